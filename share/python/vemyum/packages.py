# SPDX-License-Identifier: GPL-2.0-or-later
"""Package objects as the engine reads them, over the rows of the library.

Some ten thousand are made and read in one go, so the members that every row of the table needs are
plain attribute look-ups. All texts are as libsolv gives them; what it cannot hold is read on demand.

A class with the attribute `plain` promises the engine a shorter way to the same values: `plain` of a
package is a tuple of its name, arch, evr (as `printVer()` tells it) and size, then group, summary, buildtime
and repoid as `returnSimple` tells them. A package that cannot tell one of them so has no `plain`.
"""

from __future__ import annotations

from operator import attrgetter
from typing import Any, Callable, Dict, Iterable, Iterator, List, Optional, Protocol, Tuple

import rpm

from .backend import PLAIN, Dependency, PkgTup, Plain, Row
from .errors import YumBaseError, reported_as
from .headers import Header
from .text import valid

INSTALLED = "installed"
"""The repository name that yum gives to installed packages."""
COMMAND_LINE = "@commandline"
"""What both libraries call the repository of package files that they were given by path."""
FILES = "files"
"""What the user sees instead."""

_OPERATORS = {">": "GT", ">=": "GE", "<": "LT", "<=": "LE", "=": "EQ"}
_KINDS = ("provides", "requires", "conflicts", "obsoletes")


class Details(Protocol):
    """What a package asks of the session that it belongs to, for members outside the sack."""

    def files(self, row: Row) -> List[str]: ...

    def changelog(self, row: Row) -> List[Tuple[int, str, str]]: ...

    def build_host(self, row: Row) -> Optional[str]: ...

    def primary_file(self, repository: str) -> Optional[str]: ...

    def dependencies(self, row: Row, kind: str) -> List[Dependency]: ...

    def header(self, row: Row) -> Any: ...

    def local_path(self, row: Row) -> Optional[str]: ...


_plain: Callable[[Row], Plain] = attrgetter(*PLAIN)


def plain(row: Row) -> Optional[Plain]:
    """As `Offer.with_plain` gives it."""
    try:
        return _plain(row)
    except UnicodeDecodeError:
        return None


class Package:
    """What installed and available packages have in common."""

    __slots__ = ("po", "_details")

    def __init__(self, po: Row, details: Details) -> None:
        self.po = po
        self._details = details

    name = property(attrgetter("po.name"))
    arch = property(attrgetter("po.arch"))
    size = property(attrgetter("po.size"))
    version = property(attrgetter("po.version"))
    release = property(attrgetter("po.release"))

    def printVer(self) -> str:
        return self.po.evr

    repoid: str

    @property
    def plain(self) -> Plain:
        """AttributeError, see above."""
        values = plain(self.po)
        if values is None:
            raise AttributeError("plain")
        return (*values[:-1], self.repoid)

    @property
    def epoch(self) -> str:
        return str(self.po.epoch)

    @property
    def pkgtup(self) -> PkgTup:
        return pkgtup(self.po)

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
        return self._details.dependencies(self.po, kind)

    @property
    def files(self) -> "Listed":
        return Listed(lambda: self.returnFileEntries("file"))

    def returnFileEntries(self, kind: str) -> List[str]:
        """The file names."""
        return self._details.files(self.po) if kind == "file" else []

    @property
    def changelog(self) -> "Listed":
        return Listed(self.returnChangelog)

    def returnChangelog(self) -> List[Tuple[int, str, str]]:
        """Tuples of time, author and text; empty before the changelogs are loaded."""
        return self._details.changelog(self.po)

    def localPkg(self) -> Optional[str]:
        """Where the package's file is, or will be once it is downloaded."""
        return self._details.local_path(self.po)

    def localHdr(self) -> Optional[str]:
        """The local file that holds the package's header data: the repository's metadata.

        There is nothing to download per package, so the solver's progress plans nothing for it.
        """
        return self._details.primary_file(self.po.reponame)


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

    def __init__(self, po: Row, details: Details, replaces: List["InstalledPackage"]) -> None:
        super().__init__(po, details)
        self.replaces = replaces


class FilePackage(ReplacingPackage):
    """A package of a file that the user has opened. It may replace nothing, too."""

    __slots__ = ()

    repoid = FILES

    def returnChangelog(self) -> List[Tuple[int, str, str]]:
        """No metadata has it."""
        header = _header_of(self)
        return [] if header is None else list(
            zip(header["changelogtime"], map(valid, header["changelogname"]), map(valid, header["changelogtext"]))
        )


def _header_of(package: FilePackage) -> Any:
    """The file's header; None where it is gone or has become another one."""
    path = package.localPkg()
    if path is None:
        return None
    transaction = rpm.TransactionSet()
    transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
    try:
        with open(path, "rb") as file:
            return transaction.hdrFromFdno(file.fileno())
    except (OSError, rpm.error):
        return None


def _build_host_of(package: FilePackage) -> Optional[str]:
    header = _header_of(package)
    return None if header is None else header["buildhost"]


FilePackage._fields = {
    **AvailablePackage._fields,
    "repoid": lambda package: FILES,
    "buildhost": _build_host_of,
}


class InstalledPackage(Package):
    """A package of the rpm database."""

    __slots__ = ()

    repoid = INSTALLED

    @property
    def hdr(self) -> Header:
        """The header, read anew each time. AttributeError when the package is gone from the database."""
        try:
            with reported_as(YumBaseError):
                return Header(self._details.header(self.po))
        except YumBaseError as error:
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


def stated_vendor(po: Row) -> Optional[str]:
    """The vendor that a row states; None where it states none."""
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


def pkgtup(row: Row) -> PkgTup:
    return (row.name, row.arch, str(row.epoch), row.version, row.release)


def shown_repository(id: str) -> str:
    return FILES if id == COMMAND_LINE else id


def shown(package: PkgTup) -> str:
    """As the libraries write it: "name-[epoch:]version-release.arch"."""
    name, arch, epoch, version, release = package
    return f"{name}-{shown_evr(f'{epoch}:{version}-{release}')}.{arch}"


def shown_evr(evr: str) -> str:
    """Of "epoch:version-release": without an epoch that is none."""
    return evr[2:] if evr.startswith("0:") else evr


def dependency(text: str, name: str, relation: str, version: str) -> Dependency:
    """One of libsolv's dependencies as yum tells it. A rich dependency is one long name."""
    operator = relation.strip()
    if operator not in _OPERATORS:
        return (valid(text), None, (None, None, None))
    return (valid(name), _OPERATORS[operator], split_evr(version))


def whole_evr(text: str) -> Tuple[str, str, str]:
    """Epoch, version and release of "[epoch:]version-release"."""
    epoch, version, release = split_evr(text)
    return (epoch or "0", version or "", release or "")


def split_evr(text: str) -> Tuple[Optional[str], Optional[str], Optional[str]]:
    """Epoch, version and release of "[epoch:]version[-release]"."""
    epoch, colon, rest = text.partition(":")
    if not colon:
        epoch, rest = "0", text
    version, _, release = rest.partition("-")
    return (epoch, version, release or None)
