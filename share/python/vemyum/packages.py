# SPDX-License-Identifier: GPL-2.0-or-later
"""Package objects as the engine reads them, over dnf's packages.

Some ten thousand are made and read in one go, so the members that every row of the table needs are
plain attribute look-ups. All texts are as libsolv gives them; what it cannot hold is read on demand.

A class with the attribute `plain` promises the engine a shorter way to the same values: `plain` of a
package is an object whose attributes name, arch, size and evr are what the package's own members (for evr
`printVer()`) tell, and whose attributes group, summary and buildtime are what `returnSimple` tells.
`repoid` is an attribute of the package itself.
"""

from __future__ import annotations

import os
from operator import attrgetter
from typing import Any, Callable, Dict, Iterable, Iterator, List, Optional, Protocol, Tuple

import dnf.exceptions
import dnf.package
import rpm

from .headers import Header
from .text import valid

PkgTup = Tuple[str, str, str, str, str]
Dependency = Tuple[str, Optional[str], Tuple[Optional[str], Optional[str], Optional[str]]]

INSTALLED = "installed"
"""The repository name that yum gives to installed packages."""

_OPERATORS = {">": "GT", ">=": "GE", "<": "LT", "<=": "LE", "=": "EQ"}
_KINDS = ("provides", "requires", "conflicts", "obsoletes")


class Details(Protocol):
    """What a package asks of the session that it belongs to, for members outside the sack."""

    def files(self, package: dnf.package.Package) -> Optional[List[str]]: ...

    def changelog(self, package: dnf.package.Package) -> List[Tuple[int, str, str]]: ...

    def build_host(self, package: dnf.package.Package) -> Optional[str]: ...

    def metadata_file(self, repository: str) -> Optional[str]: ...


class Package:
    """What installed and available packages have in common."""

    __slots__ = ("po", "_details")

    def __init__(self, po: dnf.package.Package, details: Details) -> None:
        self.po = po
        self._details = details

    name = property(attrgetter("po.name"))
    arch = property(attrgetter("po.arch"))
    size = property(attrgetter("po.size"))
    version = property(attrgetter("po.version"))
    release = property(attrgetter("po.release"))

    def printVer(self) -> str:
        return self.po.evr

    @property
    def epoch(self) -> str:
        return str(self.po.epoch)

    @property
    def pkgtup(self) -> PkgTup:
        return (self.po.name, self.po.arch, str(self.po.epoch), self.po.version, self.po.release)

    _fields: Dict[str, Callable[[Any], Any]] = {}

    def returnSimple(self, key: str) -> Any:
        """The field `key`; None where the package has none, KeyError where there is no such field."""
        try:
            return self._fields[key](self)
        except UnicodeDecodeError as error:
            # Headers of old packages hold bytes of any encoding.
            return valid(error.object)

    def __str__(self) -> str:
        return str(self.po)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} {self.po}>"


# The slot's descriptor under a second name.
setattr(Package, "plain", Package.po)

_SOLV_KEYS = "summary description group vendor sourcerpm license packager url buildtime".split()
_SOLV_FIELDS: Dict[str, Callable[[Any], Any]] = {key: attrgetter("po." + key) for key in _SOLV_KEYS}


class AvailablePackage(Package):
    """A package of a repository."""

    __slots__ = ()

    repoid = property(attrgetter("po.reponame"))

    @property
    def prco(self) -> "Prco":
        return Prco(self)

    def returnPrco(self, kind: str) -> List[Dependency]:
        """Tuples of name, flag and (epoch, version, release); KeyError for an unknown kind."""
        if kind not in _KINDS:
            raise KeyError(kind)
        return [dependency(reldep) for reldep in getattr(self.po, kind)]

    @property
    def files(self) -> "Listed":
        return Listed(lambda: self.returnFileEntries("file"))

    def returnFileEntries(self, kind: str) -> List[str]:
        """The file names; the sack, asked before the file lists are loaded, tells directories by what they hold."""
        if kind != "file":
            return []
        listed = self._details.files(self.po)
        if listed is not None:
            return listed
        names = list(self.po.files)
        # The sack keeps bare names; what other names lie below cannot be a file.
        directories = {os.path.dirname(name) for name in names}
        return [valid(name) for name in names if name not in directories]

    @property
    def changelog(self) -> "Listed":
        return Listed(self.returnChangelog)

    def returnChangelog(self) -> List[Tuple[int, str, str]]:
        """Tuples of time, author and text; empty before the changelogs are loaded."""
        return self._details.changelog(self.po)

    def localPkg(self) -> Optional[str]:
        """Where the package's file is, or will be once it is downloaded."""
        try:
            return self.po.localPkg()
        except KeyError:
            # The session is over, and its repositories with it.
            return None

    def localHdr(self) -> Optional[str]:
        """The local file that holds the package's header data: the repository's metadata.

        There is nothing to download per package, so the solver's progress plans nothing for it.
        """
        return self._details.metadata_file(self.po.reponame)


AvailablePackage._fields = {
    **_SOLV_FIELDS,
    "repoid": attrgetter("po.reponame"),
    "relativepath": attrgetter("po.location"),
    "buildhost": lambda package: package._details.build_host(package.po),
}


class ReplacingPackage(AvailablePackage):
    """An update that makes installed packages of other names obsolete, while nothing of its own is installed.

    The class's attribute `replaces` promises the engine that there are such packages to tell.
    """

    __slots__ = ("replaces",)

    def __init__(self, po: dnf.package.Package, details: Details, replaces: List["InstalledPackage"]) -> None:
        super().__init__(po, details)
        self.replaces = replaces


class InstalledPackage(Package):
    """A package of the rpm database."""

    __slots__ = ()

    repoid = INSTALLED

    @property
    def hdr(self) -> Header:
        """The header, read anew each time. AttributeError when the package is gone from the database."""
        try:
            return Header(self.po.get_header())
        except (dnf.exceptions.Error, rpm.error, OSError) as error:
            raise AttributeError(f"{self.po}: {error}") from error

    def localPkg(self) -> Optional[str]:
        return None

    def localHdr(self) -> Optional[str]:
        return None


def _installed_build_host(package: InstalledPackage) -> Optional[str]:
    try:
        return package.hdr[rpm.RPMTAG_BUILDHOST]
    except AttributeError:
        return None


def stated_vendor(po: dnf.package.Package) -> Optional[str]:
    """The vendor that a package of the sack states; None where it states none."""
    vendor = po.vendor
    # libsolv's word for a header without a vendor.
    return None if vendor == "<NULL>" else vendor


InstalledPackage._fields = {
    **_SOLV_FIELDS,
    "vendor": lambda package: stated_vendor(package.po),
    "repoid": lambda package: INSTALLED,
    "relativepath": lambda package: None,
    "buildhost": _installed_build_host,
}


class Prco:
    """A package's dependencies as a mapping from kind to tuples, evaluated when asked."""

    __slots__ = ("_package",)

    def __init__(self, package: AvailablePackage) -> None:
        self._package = package

    def __getitem__(self, kind: str) -> List[Dependency]:
        return self._package.returnPrco(kind)

    def __iter__(self) -> Iterator[str]:
        return iter(_KINDS)

    def __len__(self) -> int:
        return len(_KINDS)

    def keys(self) -> Iterable[str]:
        return _KINDS


class Listed:
    """A list that a package tells, evaluated when it is read: the engine often only asks whether there is one."""

    __slots__ = ("_tell",)

    def __init__(self, tell: Callable[[], List[Any]]) -> None:
        self._tell = tell

    def __iter__(self) -> Iterator[Any]:
        return iter(self._tell())


def dependency(reldep: Any) -> Dependency:
    """One of libsolv's dependencies as yum tells it. A rich dependency is one long name."""
    operator = reldep.relation.strip()
    if not operator:
        return (valid(str(reldep)), None, (None, None, None))
    if operator not in _OPERATORS:
        return (valid(str(reldep)), None, (None, None, None))
    return (valid(reldep.name), _OPERATORS[operator], split_evr(reldep.version))


def split_evr(text: str) -> Tuple[Optional[str], Optional[str], Optional[str]]:
    """Epoch, version and release of "[epoch:]version[-release]"."""
    epoch, colon, rest = text.partition(":")
    if not colon:
        epoch, rest = "0", text
    version, _, release = rest.partition("-")
    return (epoch, version, release or None)
