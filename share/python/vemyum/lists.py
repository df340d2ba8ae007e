# SPDX-License-Identifier: GPL-2.0-or-later
"""The three lists of a collection: updates, installed packages, available packages.

The engine merges them by name and of several packages with one name takes the first, so the order
within each list is part of the result: native architecture first, newest version first.
"""

from __future__ import annotations

import gc
from functools import cached_property, cmp_to_key
from operator import attrgetter
from typing import Any, Collection, Dict, FrozenSet, Iterable, Iterator, List, Optional, Tuple

from . import versions
from .backend import Offer, Plain, Row, System
from .database import require_sound
from .packages import (
    COMMAND_LINE,
    AvailablePackage,
    Details,
    FilePackage,
    InstalledPackage,
    ReplacingPackage,
)

_RowWithPlain = Tuple[Row, Optional[Plain]]


def _names(rows: Iterable[Row]) -> FrozenSet[str]:
    return frozenset(map(attrgetter("name"), rows))


class nothing_is_garbage:
    """Lets Python's garbage collector rest while tens of thousands of objects are made that all stay.

    Not a generator, for the reason that `reported_as` has.
    """

    def __enter__(self) -> None:
        gc.disable()

    def __exit__(self, *_: Any) -> None:
        gc.enable()


class PackageLists:
    """Result of `collectAll`."""

    def __init__(self, installed: List[InstalledPackage], available: "Offered") -> None:
        self.installed = installed
        self.available = available


class Offered:
    """The files that are opened, and the packages of the repositories, which are made as one goes through them."""

    def __init__(self, files: List[AvailablePackage], rows: Offer, details: Details) -> None:
        self._files = files
        self._rows = rows
        self._details = details

    def __length_hint__(self) -> int:
        return len(self._files) + len(self._rows)

    def __iter__(self) -> Iterator[AvailablePackage]:
        return (package for package, _plain in self.withPlain())

    def withPlain(self) -> Iterator[Tuple[AvailablePackage, Optional[Plain]]]:
        """Each with what its `plain` tells, None where it has none: asked for by itself, it would take longer."""
        for file in self._files:
            yield file, getattr(file, "plain", None)
        rows = self._rows.with_plain()
        if self._files:
            rows = self._without_files(rows)
        details = self._details
        with nothing_is_garbage():
            for row, plain in rows:
                yield AvailablePackage(row, details), plain

    def _without_files(self, rows: Iterator[_RowWithPlain]) -> Iterator[_RowWithPlain]:
        """See the function of this name. A row that has been told isn't asked once more."""
        names = {file.name for file in self._files}
        for row, plain in rows:
            name, repository = (plain[0], plain[-1]) if plain is not None else (row.name, row.reponame)
            if repository != COMMAND_LINE and name not in names:
                yield row, plain


def _without_files(rows: Iterable[Row], names: Collection[str]) -> Iterator[Row]:
    """What the repositories have; the libraries take the files for packages of one more."""
    return (row for row in rows if row.reponame != COMMAND_LINE and row.name not in names)


class Collector:
    """Asks one loaded System and remembers what the table will show."""

    _known_installed: Dict[str, int] = {}
    """By root: how many installed packages this process has seen last."""

    def __init__(self, system: System, details: Details) -> None:
        self._system = system
        self._details = details
        self.updatable: FrozenSet[str] = frozenset()
        self.installed_names: FrozenSet[str] = frozenset()
        self._files: Dict[str, Row] = {}

    def take_files(self, rows: Iterable[Row]) -> None:
        """Package files of one name each, which go before what the repositories have of that name. Before the lists are
        asked for."""
        self._files = {row.name: row for row in rows}

    def updates(self) -> List[AvailablePackage]:
        """Newer versions of installed packages, and packages that make installed ones obsolete."""
        upgrades = self._system.upgrades()
        if self._files:
            upgrades = list(_without_files(upgrades, self._files))
        replacing = self._system.replacing({row.name for row in upgrades})
        files = self._updating_files(replacing)
        replacing = [(row, olds) for row, olds in replacing if row.name not in self._files]
        replaced = {id(row): olds for row, olds in replacing}
        rows = self._best_first([*upgrades, *(row for row, _olds in replacing)])
        self.updatable = _names([*rows, *(file.po for file in files)])
        return [*files, *(self._update(row, replaced.get(id(row), [])) for row in rows)]

    def _updating_files(self, replacing: List[Tuple[Row, List[Row]]]) -> List[AvailablePackage]:
        """The files of which another version is installed, be it a newer one, or that make installed packages of other
        names obsolete."""
        if not self._files:
            return []
        names = _names(self._system.installed())
        obsolete = {row.name: olds for row, olds in replacing if row.reponame == COMMAND_LINE}
        return [
            self._file(row, [] if row.name in names else obsolete[row.name])
            for row in self._files.values()
            if row.name in names or row.name in obsolete
        ]

    def _file(self, row: Row, replaced: List[Row]) -> AvailablePackage:
        return FilePackage(row, self._details, [InstalledPackage(old, self._details) for old in replaced])

    def _update(self, row: Row, replaced: List[Row]) -> AvailablePackage:
        if not replaced:
            return AvailablePackage(row, self._details)
        return ReplacingPackage(row, self._details, [InstalledPackage(old, self._details) for old in replaced])

    def everything(self) -> PackageLists:
        """All installed packages and the newest available ones.

        Raises YumBaseError when the rpm database lists less than it should.
        """
        installed = self._best_first(self._system.installed())
        self.installed_names = _names(installed)
        self._check_installed(len(installed))
        # The engine passes over those that it has met among the updates.
        files = [self._file(row, []) for row in self._files.values()]
        return PackageLists(
            [InstalledPackage(row, self._details) for row in installed],
            Offered(files, self._system.available(), self._details),
        )

    @cached_property
    def available_names(self) -> FrozenSet[str]:
        """Made when the first apply asks for them: they take as much memory as a tenth of the table."""
        return _names(_without_files(self._system.available(), self._files))

    @classmethod
    def known_installed(cls, root: str) -> int:
        """How many packages this process has seen last in the root, 0 before any."""
        return cls._known_installed.get(root, 0)

    @classmethod
    def expect_installed(cls, root: str, count: int) -> None:
        """Tells how many packages a transaction of this program has left in the root."""
        cls._known_installed[root] = count

    def _best_first(self, rows: List[Row]) -> List[Row]:
        """The rows with those of one name side by side: native ones first, newest ones first."""
        names = list(map(attrgetter("name"), rows))
        last = dict(zip(names, rows))
        if len(last) == len(rows):
            return rows
        # Most names stand for one package even so; only the others are compared.
        several: Dict[str, List[Row]] = {}
        for name, row in zip(names, rows):
            if last[name] is not row:
                several.setdefault(name, []).append(row)
        native = set(self._system.native())

        def compare(a: Row, b: Row) -> int:
            return (a.arch not in native) - (b.arch not in native) or versions.compare(b, a)

        for name, same in several.items():
            same.append(last[name])
            same.sort(key=cmp_to_key(compare))
        ordered: List[Row] = []
        for name, row in zip(names, rows):
            if name not in several:
                ordered.append(row)
            elif several[name]:
                # At the place of the first.
                ordered += several[name]
                several[name] = []
        return ordered

    def _check_installed(self, count: int) -> None:
        root = self._system.settings.root
        require_sound(root, self.installed_names, count, self.known_installed(root))
        self._known_installed[root] = count
