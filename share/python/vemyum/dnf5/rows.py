# SPDX-License-Identifier: GPL-2.0-or-later
"""Packages as the table reads them.

Tens of thousands are made and read in one go. The library's own objects for packages would each have a dictionary, and
look themselves up in it for every value. A row has nothing but what the library's functions want: they take whatever has
the attribute `this`, and a row's attributes are these functions themselves, without a Python function between.
"""

from __future__ import annotations

import itertools
from typing import Any, Callable, Collection, Iterable, Iterator, List, Optional, Sequence, Tuple

import libdnf5.rpm
import libdnf5.transaction

from ..backend import PLAIN, Dependency, PkgTup, Plain, Reason
from ..packages import dependency
from ..text import valid
from .base import Base

_functions = libdnf5.rpm._rpm
_Package = libdnf5.rpm.Package
_copy = _functions.new_PackageSetIterator
_value, _step = _functions.PackageSetIterator_value, _functions.PackageSetIterator_next

_STRETCH = 32
"""How many rows share a place from which they are found: more save memory, and make each take longer to be found."""


def _text(function: Callable[[Any], str]) -> property:
    """Old headers hold bytes of any encoding."""
    return property(lambda row: valid(function(row)))


def _optional(function: Callable[[Any], str]) -> property:
    """None for what isn't stated, which is an empty text to the library."""
    return property(lambda row: valid(function(row)) or None)


class Row:
    """A package of a repository. See `backend.Row`; it has the methods of the library's packages, too.

    It holds the Base that it is of, by its holder: the library ends the process when a package is asked for anything after
    its Base has gone.
    """

    __slots__ = ("this", "holder")
    # With each value the library's functions spell out the name of the type, which takes as long as the rest if a module
    # stands before it.
    __module__ = "builtins"

    def __init__(self, this: Any, holder: Any) -> None:
        """`this` is the attribute of that name of one of the library's packages."""
        self.this = this
        self.holder = holder

    name = property(_functions.Package_get_name)
    arch = property(_functions.Package_get_arch)
    epoch = property(lambda row: int(_functions.Package_get_epoch(row) or 0))
    version = property(_functions.Package_get_version)
    release = property(_functions.Package_get_release)
    evr = property(_functions.Package_get_evr)
    size = property(_functions.Package_get_download_size)
    installsize = property(_functions.Package_get_install_size)
    reponame = property(_functions.Package_get_repo_id)
    # Of these two the table wants everyone's, and the engine takes them whatever their bytes.
    summary = property(_functions.Package_get_summary)
    group = property(_functions.Package_get_group)
    description = _text(_functions.Package_get_description)
    vendor = _optional(_functions.Package_get_vendor)
    sourcerpm = _optional(_functions.Package_get_sourcerpm)
    license = _optional(_functions.Package_get_license)
    packager = _optional(_functions.Package_get_packager)
    url = _optional(_functions.Package_get_url)
    buildtime = property(_functions.Package_get_build_time)
    location = _optional(_functions.Package_get_location)

    __eq__ = _Package.__eq__
    __ne__ = _Package.__ne__
    __lt__ = _Package.__lt__
    __hash__ = _Package.__hash__

    def __str__(self) -> str:
        return str(self.get_nevra())


_PLAIN = [getattr(Row, name).fget for name in PLAIN]
"""The library's own functions."""

for _name, _method in vars(_Package).items():
    if callable(_method) and not _name.startswith("_"):
        setattr(Row, _name, _method)


class _Stretch:
    """Some rows that follow each other in a set of packages: where the first of them is to be found.

    Its Base is held for the reason that a row has.
    """

    __slots__ = ("base", "_packages", "_first")

    def __init__(self, base: Base, packages: libdnf5.rpm.PackageSet, place: Any) -> None:
        """`place` is that of the first, as an iterator of the set has it."""
        self.base = base
        # A place doesn't hold its set.
        self._packages = packages
        self._first = _copy(place)

    def find(self, offset: int) -> Any:
        """What the row that stands `offset` places behind the first refers to."""
        place = _copy(self._first)
        for _number in range(offset):
            _step(place)
        return _value(place).this


class RestingRow(Row):
    """A package of a set, which holds nothing of the library's until it is asked for a value: that takes more than twice
    the memory of the row itself."""

    __slots__ = ("_offset",)
    __module__ = Row.__module__

    def __init__(self, holder: _Stretch, offset: int) -> None:
        self.holder = holder
        self._offset = offset

    def __getattr__(self, name: str) -> Any:
        if name != "this":
            raise AttributeError(name)
        self.this = self.holder.find(self._offset)
        return self.this


class Offered(Collection[RestingRow]):
    """The packages of some sets, one set behind the other (`backend.Offer`). Each time that one goes through them, the
    rows are made anew; one is quick to read until the next comes."""

    def __init__(self, sets: Sequence[libdnf5.rpm.PackageSet], base: Base) -> None:
        self._sets = sets
        self._base = base

    def __len__(self) -> int:
        return sum(packages.size() for packages in self._sets)

    def __contains__(self, row: object) -> bool:
        return any(row == one for one in self)

    def __iter__(self) -> Iterator[RestingRow]:
        for rows, referred in self._stretches():
            for row, this in zip(rows, referred):
                row.this = this
                yield row
                del row.this

    def with_plain(self) -> Iterator[Tuple[RestingRow, Plain]]:
        for rows, referred in self._stretches():
            # What a row refers to is quicker to ask than the row, and loops of the interpreter itself than ours.
            yield from zip(rows, zip(*(map(function, referred) for function in _PLAIN)))

    def _stretches(self) -> Iterator[Tuple[Iterator[RestingRow], List[Any]]]:
        """The rows of each stretch, with what they refer to."""
        for packages in self._sets:
            iterator = packages.begin()
            place = iterator.this
            size = packages.size()
            for first in range(0, size, _STRETCH):
                stretch = _Stretch(self._base, packages, place)
                referred = []
                for _number in range(min(_STRETCH, size - first)):
                    referred.append(_value(place).this)
                    _step(place)
                yield map(RestingRow, itertools.repeat(stretch), range(len(referred))), referred


class InstalledRow(Row):
    """A package of the rpm database."""

    __slots__ = ()
    __module__ = Row.__module__

    size = property(_functions.Package_get_install_size)
    vendor = property(lambda row: _stated(_functions.Package_get_vendor(row)))
    location = None


def _stated(vendor: str) -> Optional[str]:
    # The library's word for a header without a vendor.
    return None if vendor in ("", "<NULL>") else valid(vendor)


def rows(packages: Iterable[Any], base: Base, kind: type = Row) -> List[Any]:
    """Packages as rows."""
    if isinstance(packages, libdnf5.rpm.PackageSet):
        packages = _each(packages)
    return [kind(package.this, base) for package in packages]


def _each(packages: libdnf5.rpm.PackageSet) -> Iterator[Any]:
    """As the library's own iterator, which goes through several Python functions for each package."""
    iterator = packages.begin()
    place = iterator.this
    for _number in range(packages.size()):
        yield _value(place)
        _step(place)


def pkgtup(package: Any) -> PkgTup:
    """Of a package that no row has been made of."""
    return (
        package.get_name(),
        package.get_arch(),
        package.get_epoch(),
        package.get_version(),
        package.get_release(),
    )


def dependencies(found: libdnf5.rpm.ReldepList) -> List[Dependency]:
    these, get = found.this, _functions.ReldepList_get
    return [_dependency(get(these, number).this) for number in range(_functions.ReldepList_size(these))]


def _dependency(this: Any) -> Dependency:
    return dependency(
        _functions.Reldep_to_string(this),
        _functions.Reldep_get_name(this),
        _functions.Reldep_get_relation(this),
        _functions.Reldep_get_version(this),
    )


_REASONS = {
    libdnf5.transaction.TransactionItemReason_USER: Reason.USER,
    libdnf5.transaction.TransactionItemReason_EXTERNAL_USER: Reason.USER,
    libdnf5.transaction.TransactionItemReason_GROUP: Reason.GROUP,
    libdnf5.transaction.TransactionItemReason_DEPENDENCY: Reason.DEPENDENCY,
    libdnf5.transaction.TransactionItemReason_WEAK_DEPENDENCY: Reason.WEAK,
}


def reason(row: Any) -> Reason:
    """Of an installed package."""
    return _REASONS.get(row.get_reason(), Reason.UNKNOWN)


def checksum(row: Any) -> Optional[str]:
    found: str = row.get_checksum().get_checksum()
    return found.lower() or None
