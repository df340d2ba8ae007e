# SPDX-License-Identifier: GPL-2.0-or-later
"""The three lists of a collection: updates, installed packages, available packages.

The engine merges them by name and of several packages with one name takes the first, so the order
within each list is part of the result: native architecture first, newest version first.
"""

from __future__ import annotations

from functools import cmp_to_key
from operator import attrgetter
from typing import Any, Dict, FrozenSet, Iterable, List, Set, Tuple

import hawkey

from .base import Base
from .database import require_sound
from .packages import AvailablePackage, Details, InstalledPackage, ReplacingPackage, stated_vendor


def _names(packages: Iterable[Any]) -> FrozenSet[str]:
    return frozenset(map(attrgetter("name"), packages))


def _same_vendor(package: Any, other: Any) -> bool:
    return (stated_vendor(package) or "") == (stated_vendor(other) or "")


def _updates(package: Any, installed: Any) -> bool:
    """Whether a package of the same name is to take the place of an installed one."""
    arches = (package.arch, installed.arch)
    return package.evr_gt(installed) and (package.arch == installed.arch or "noarch" in arches)


class PackageLists:
    """Result of `collectAll`."""

    def __init__(self, installed: List[InstalledPackage], available: List[AvailablePackage]) -> None:
        self.installed = installed
        self.available = available


class Collector:
    """Queries one loaded Base and remembers what the table will show."""

    _known_installed: Dict[str, int] = {}
    """By root: how many installed packages this process has seen last."""

    def __init__(self, base: Base, details: Details) -> None:
        self._base = base
        self._details = details
        self.updatable: FrozenSet[str] = frozenset()
        self.installed_names: FrozenSet[str] = frozenset()
        self.available_names: FrozenSet[str] = frozenset()

    def updates(self) -> List[AvailablePackage]:
        """Newer versions of installed packages, and packages that make installed ones obsolete."""
        query = self._changeable(self._base.sack.query())
        upgrades = query.filter(upgrades_by_priority=True)
        packages = list(upgrades.filter(latest_per_arch=True))
        replaced: Dict[Any, List[Any]] = {}
        if self._base.conf.obsoletes:
            replaced = self._obsoleters(query, {package.name for package in packages})
            packages += replaced.keys()
        packages = self._best_first(packages)
        self.updatable = _names(packages)
        return [self._update(package, replaced.get(package, [])) for package in packages]

    def _update(self, package: Any, replaced: List[Any]) -> AvailablePackage:
        if not replaced:
            return AvailablePackage(package, self._details)
        return ReplacingPackage(package, self._details, [InstalledPackage(old, self._details) for old in replaced])

    def everything(self) -> PackageLists:
        """All installed packages and the newest available ones.

        Raises YumBaseError when the rpm database lists less than it should.
        """
        installed = self._best_first(self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed())
        self.installed_names = _names(installed)
        self._check_installed(len(installed))
        available = self._available()
        self.available_names = _names(available)
        return PackageLists(
            [InstalledPackage(package, self._details) for package in installed],
            [AvailablePackage(package, self._details) for package in available],
        )

    @classmethod
    def known_installed(cls, root: str) -> int:
        """How many packages this process has seen last in the root, 0 before any."""
        return cls._known_installed.get(root, 0)

    @classmethod
    def expect_installed(cls, root: str, count: int) -> None:
        """Tells how many packages a transaction of this program has left in the root."""
        cls._known_installed[root] = count

    def _changeable(self, query: hawkey.Query) -> hawkey.Query:
        """The query without the updates that the solver refuses, since a vendor may not change. dnf's query for
        updates doesn't ask for that."""
        if self._base.conf.allow_vendor_change:
            return query
        installed, by_name = self._installed()
        refused = [
            package
            for package in query.filter(upgrades=True)
            if not any(_same_vendor(package, old) and _updates(package, old) for old in by_name[package.name])
        ]
        refused += [
            package
            for package in query.available().filter(obsoletes=installed)
            if not all(_same_vendor(package, old) for old in self._replaced(package, by_name))
        ]
        return query.filter(pkg__neq=refused)

    def _installed(self) -> Tuple[hawkey.Query, Dict[str, List[Any]]]:
        """The installed packages, and the same by their names."""
        installed = self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
        by_name: Dict[str, List[Any]] = {}
        for package in installed:
            by_name.setdefault(package.name, []).append(package)
        return installed, by_name

    def _obsoleters(self, query: hawkey.Query, updates: Set[str]) -> Dict[Any, List[Any]]:
        """Packages that make installed ones of other names obsolete, each with those."""
        _all, by_name = self._installed()
        arches = self._base.sack.list_arches()
        # Who excludes an installed package wants it left alone.
        found = query.available().filter(obsoletes_by_priority=query.installed(), arch=arches)
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = updates.union(by_name)
        new = [package for package in found.filter(latest_per_arch=True) if package.name not in covered]
        return {package: self._replaced(package, by_name) for package in new}

    def _replaced(self, package: Any, installed: Dict[str, List[Any]]) -> List[Any]:
        """Those of the installed packages, by their names, that a package of another name makes obsolete."""
        names = dict.fromkeys(reldep.name for reldep in package.obsoletes if reldep.name != package.name)
        itself = self._base.sack.query().filter(pkg=[package])
        return [old for name in names for old in installed.get(name, []) if itself.filter(obsoletes=[old])]

    def _native(self) -> List[str]:
        return [self._base.conf.substitutions["basearch"], self._base.conf.substitutions["arch"], "noarch"]

    def _available(self) -> List[Any]:
        sack = self._base.sack
        query = sack.query().available().filter(latest_per_arch_by_priority=True)
        return self._best_first(query.filter(arch=sack.list_arches()))

    def _best_first(self, found: Iterable[Any]) -> List[Any]:
        """The packages with those of one name side by side: native ones first, newest ones first."""
        packages = list(found)
        names = list(map(attrgetter("name"), packages))
        last = dict(zip(names, packages))
        if len(last) == len(packages):
            return packages
        # Most names stand for one package even so; only the others are compared.
        several: Dict[str, List[Any]] = {}
        for name, package in zip(names, packages):
            if last[name] is not package:
                several.setdefault(name, []).append(package)
        native = set(self._native())

        def compare(a: Any, b: Any) -> int:
            return (a.arch not in native) - (b.arch not in native) or b.evr_cmp(a)

        for name, same in several.items():
            same.append(last[name])
            same.sort(key=cmp_to_key(compare))
        ordered: List[Any] = []
        for name, package in zip(names, packages):
            if name not in several:
                ordered.append(package)
            elif several[name]:
                # At the place of the first.
                ordered += several[name]
                several[name] = []
        return ordered

    def _check_installed(self, count: int) -> None:
        root = self._base.conf.installroot
        require_sound(root, self.installed_names, count, self.known_installed(root))
        self._known_installed[root] = count
