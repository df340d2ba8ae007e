# SPDX-License-Identifier: GPL-2.0-or-later
"""The three lists of a collection: updates, installed packages, available packages.

The engine merges them by name and of several packages with one name takes the first, so the order
within each list is part of the result: native architecture first, newest version first.
"""

from __future__ import annotations

from functools import cmp_to_key
from typing import Any, Dict, FrozenSet, Iterable, List, Set

import hawkey

from .base import Base
from .database import damage
from .errors import YumBaseError
from .packages import AvailablePackage, Details, InstalledPackage


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
        query = self._base.sack.query()
        upgrades = query.filter(upgrades_by_priority=True)
        packages = list(upgrades.filter(latest_per_arch=True))
        if self._base.conf.obsoletes:
            packages += self._obsoleters({package.name for package in packages})
        packages = self._in_order(packages)
        self.updatable = frozenset(package.name for package in packages)
        return [AvailablePackage(package, self._details) for package in packages]

    def everything(self) -> PackageLists:
        """All installed packages and the newest available ones.

        Raises YumBaseError when the rpm database lists nothing though it should.
        """
        installed = list(self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed())
        self._check_installed(len(installed))
        self.installed_names = frozenset(package.name for package in installed)
        available = self._available()
        self.available_names = frozenset(package.name for package in available)
        return PackageLists(
            [InstalledPackage(package, self._details) for package in installed],
            [AvailablePackage(package, self._details) for package in available],
        )

    @classmethod
    def expect_installed(cls, root: str, count: int) -> None:
        """Tells how many packages a transaction of this program has left in the root."""
        cls._known_installed[root] = count

    def _obsoleters(self, updates: Set[str]) -> List[Any]:
        sack = self._base.sack
        installed = sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
        names = {package.name for package in installed}
        found = sack.query().available().filter(obsoletes_by_priority=installed, arch=sack.list_arches())
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = names | updates
        return [package for package in found.filter(latest_per_arch=True) if package.name not in covered]

    def _native(self) -> List[str]:
        return [self._base.conf.substitutions["basearch"], self._base.conf.substitutions["arch"], "noarch"]

    def _available(self) -> List[Any]:
        sack = self._base.sack
        arches = sack.list_arches()
        native = set(self._native())
        query = sack.query().available().filter(latest_per_arch_by_priority=True)
        first = list(query.filter(arch=[arch for arch in arches if arch in native]))
        foreign = list(query.filter(arch=[arch for arch in arches if arch not in native]))
        return self._newest_first(first) + foreign

    @staticmethod
    def _newest_first(packages: List[Any]) -> List[Any]:
        """Of names that come as noarch and native in different versions, the newest in front."""
        best: Dict[str, Any] = {}
        doubled = False
        for package in packages:
            known = best.setdefault(package.name, package)
            doubled = doubled or (known is not package and known.evr != package.evr)
        if not doubled:
            return packages
        return sorted(packages, key=cmp_to_key(lambda a, b: b.evr_cmp(a) if a.name == b.name else 0))

    def _in_order(self, packages: Iterable[Any]) -> List[Any]:
        native = set(self._native())

        def compare(a: Any, b: Any) -> int:
            if a.name != b.name:
                return -1 if a.name < b.name else 1
            return (a.arch not in native) - (b.arch not in native) or b.evr_cmp(a)

        return sorted(packages, key=cmp_to_key(compare))

    def _check_installed(self, count: int) -> None:
        root = self._base.conf.installroot
        if count == 0:
            fault = damage(root)
            if fault is None and self._known_installed.get(root, 0) > 0:
                fault = "it lists no packages, though it did before. If that is right, start anew."
            if fault is not None:
                raise YumBaseError(f"The rpm database of {root} cannot be used: {fault}")
        self._known_installed[root] = count
