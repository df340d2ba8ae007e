# SPDX-License-Identifier: GPL-2.0-or-later
"""The managed system as dnf tells it: repositories, lists, what lies behind a package."""

from __future__ import annotations

from typing import Any, Callable, Dict, List, Optional, Sequence, Set, Tuple

import dnf.package
import dnf.repo
import hawkey

from ..backend import CHANGELOGS, GROUPS, Dependency, OpenEntry, RepositoryState
from ..history import open_entry
from ..packages import dependency, stated_vendor
from ..sections import RepositorySection
from .base import open_base
from .configuration import Settings
from .history import LAYOUT, history_path
from .sack import light_packages


class System:
    """Of one Base. A Row is dnf's package."""

    def __init__(self, settings: Settings, sections: Optional[Sequence[RepositorySection]] = None) -> None:
        self.settings = settings
        self._base = open_base(settings.conf, sections)
        self.lacking = self._base.lacking
        self.sections = self._base.sections

    # Repositories ----------------------------------------------------------------------------------------

    def repositories(self) -> List[RepositoryState]:
        return [RepositoryState(repo.id, repo.name, bool(repo.enabled)) for repo in self._base.repos.values()]

    def enable(self, id: str, enabled: bool) -> None:
        repo = self._base.repos[id]
        (repo.enable if enabled else repo.disable)()

    def load(self) -> None:
        self._base.asks_for_keys = True
        with light_packages():
            self._base.load_everything()

    def load_changelogs(self, read: Callable[[str, Optional[str]], None]) -> None:
        for repo in self._base.repos.iter_enabled():
            repo.load_metadata_other = True
        self._base.load_metadata(lambda repo: read(repo.id, repo.get_metadata_path(CHANGELOGS) or None))

    def metadata_file(self, repository: str, kind: str) -> Optional[str]:
        repo = self._base.repos.get(repository)
        if repo is None or repo.metadata is None:
            return None
        if kind == GROUPS:
            return repo._repo.getCompsFn() or None if repo.enablegroups else None
        return repo.get_metadata_path(kind) or None

    # Lists -----------------------------------------------------------------------------------------------

    def installed(self) -> List[dnf.package.Package]:
        return list(self._all_installed())

    def available(self) -> List[dnf.package.Package]:
        sack = self._base.sack
        query = sack.query().available().filter(latest_per_arch_by_priority=True)
        return list(query.filter(arch=sack.list_arches()))

    def upgrades(self) -> List[dnf.package.Package]:
        upgrades = self._changeable(self._base.sack.query()).filter(upgrades_by_priority=True)
        return list(upgrades.filter(latest_per_arch=True))

    def replacing(self, upgrades: Set[str]) -> List[Tuple[dnf.package.Package, List[dnf.package.Package]]]:
        if not self._base.conf.obsoletes:
            return []
        query = self._changeable(self._base.sack.query())
        by_name = self._by_name()
        arches = self._base.sack.list_arches()
        # Who excludes an installed package wants it left alone.
        found = query.available().filter(obsoletes_by_priority=query.installed(), arch=arches)
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = upgrades.union(by_name)
        new = [package for package in found.filter(latest_per_arch=True) if package.name not in covered]
        return [(package, self._replaced(package, by_name)) for package in new]

    def duplicated(self) -> List[List[dnf.package.Package]]:
        """As the command line tells duplicates: without those that are meant to be there several times."""
        installed = self._all_installed()
        found: Dict[Tuple[str, str], List[dnf.package.Package]] = {}
        for package in installed.duplicated().difference(self._base._get_installonly_query(installed)):
            found.setdefault((package.name, package.arch), []).append(package)
        return [sorted(packages) for packages in found.values() if len(packages) > 1]

    def native(self) -> Sequence[str]:
        variables = self._base.conf.substitutions
        return [variables["basearch"], variables["arch"], "noarch"]

    def _all_installed(self) -> hawkey.Query:
        return self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()

    def _by_name(self) -> Dict[str, List[dnf.package.Package]]:
        by_name: Dict[str, List[dnf.package.Package]] = {}
        for package in self._all_installed():
            by_name.setdefault(package.name, []).append(package)
        return by_name

    def _changeable(self, query: hawkey.Query) -> hawkey.Query:
        """The query without the updates that the solver refuses, since a vendor may not change. dnf's query for
        updates doesn't ask for that."""
        if self._base.conf.allow_vendor_change:
            return query
        by_name = self._by_name()
        refused = [
            package
            for package in query.filter(upgrades=True)
            if not any(_same_vendor(package, old) and _updates(package, old) for old in by_name[package.name])
        ]
        refused += [
            package
            for package in query.available().filter(obsoletes=self._all_installed())
            if not all(_same_vendor(package, old) for old in self._replaced(package, by_name))
        ]
        return query.filter(pkg__neq=refused)

    def _replaced(
        self, package: dnf.package.Package, installed: Dict[str, List[dnf.package.Package]]
    ) -> List[dnf.package.Package]:
        """Those of the installed packages, by their names, that a package of another name makes obsolete."""
        names = dict.fromkeys(reldep.name for reldep in package.obsoletes if reldep.name != package.name)
        itself = self._base.sack.query().filter(pkg=[package])
        return [old for name in names for old in installed.get(name, []) if itself.filter(obsoletes=[old])]

    # Packages --------------------------------------------------------------------------------------------

    def checksum(self, row: dnf.package.Package) -> Optional[str]:
        checksum = row.chksum
        return None if checksum is None else str(checksum[1].hex())

    def files(self, row: dnf.package.Package) -> List[str]:
        return list(row.files)

    def dependencies(self, row: dnf.package.Package, kind: str) -> List[Dependency]:
        return [dependency(str(one), one.name, one.relation, one.version) for one in getattr(row, kind)]

    def header(self, row: dnf.package.Package) -> Any:
        return row.get_header()

    def local_path(self, row: dnf.package.Package) -> Optional[str]:
        try:
            return str(row.localPkg())
        except KeyError:
            # The session is over, and its repositories with it.
            return None

    # History ---------------------------------------------------------------------------------------------

    def open_entry(self) -> Optional[OpenEntry]:
        return open_entry(history_path(self.settings.system_persistent_directory), LAYOUT)

    def close(self) -> None:
        self._base.close()


def _same_vendor(package: dnf.package.Package, other: dnf.package.Package) -> bool:
    return (stated_vendor(package) or "") == (stated_vendor(other) or "")


def _updates(package: dnf.package.Package, installed: dnf.package.Package) -> bool:
    """Whether a package of the same name is to take the place of an installed one."""
    arches = (package.arch, installed.arch)
    return package.evr_gt(installed) and (package.arch == installed.arch or "noarch" in arches)
