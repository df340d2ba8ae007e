# SPDX-License-Identifier: GPL-2.0-or-later
"""The managed system as dnf tells it: repositories, lists, what lies behind a package."""

from __future__ import annotations

from typing import Any, Callable, Dict, List, Optional, Sequence, Set, Tuple

import dnf.package
import dnf.repo
import hawkey

from ..backend import (
    CHANGELOGS,
    GROUPS,
    Advice,
    Advised,
    Advisory,
    Dependency,
    KeySource,
    OpenEntry,
    PutIn,
    Reason,
    RepositoryState,
)
from ..packages import whole_evr
from ..sections import RepositorySection
from ..vendors import by_name, refused
from .advisories import advice, advisories
from .base import open_base
from .configuration import Settings
from .fetching import fetch
from .history import records
from .keys import RepositoryKeys
from .relations import Needs, satisfying, versions_of, wanting
from .rows import Offered, checksum, dependencies
from .sack import light_packages


_REASONS = {
    "user": Reason.USER,
    "group": Reason.GROUP,
    "dependency": Reason.DEPENDENCY,
    "weak-dependency": Reason.WEAK,
}


class System:
    """Of one Base. A Row is dnf's package."""

    def __init__(self, settings: Settings, sections: Optional[Sequence[RepositorySection]] = None) -> None:
        self.settings = settings
        self._base = open_base(settings.conf, sections)
        self.lacking = self._base.lacking
        self.sections = self._base.sections
        self._needs: Dict[str, Needs] = {}

    # Repositories ----------------------------------------------------------------------------------------

    def repositories(self) -> List[RepositoryState]:
        return [RepositoryState(repo.id, repo.name, bool(repo.enabled)) for repo in self._base.repos.values()]

    def enable(self, id: str, enabled: bool) -> None:
        repo = self._base.repos[id]
        (repo.enable if enabled else repo.disable)()

    def stay_on_disk(self) -> None:
        for repo in self._base.repos.iter_enabled():
            repo._repo.setSyncStrategy(dnf.repo.SYNC_ONLY_CACHE)
            repo.skip_if_unavailable = True

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

    def available(self) -> Offered:
        sack = self._base.sack
        query = sack.query().available().filter(latest_per_arch_by_priority=True)
        query = query.filter(arch=sack.list_arches())
        native = query.filter(arch=self.native())
        found = []
        for part in (native, query.difference(native)):
            newest = part.filter(latest=True)
            found += [*newest, *part.difference(newest)]
        return Offered(found)

    def upgrades(self) -> List[dnf.package.Package]:
        upgrades = self._changeable(self._base.sack.query()).filter(upgrades_by_priority=True)
        return list(upgrades.filter(latest_per_arch=True))

    def replacing(self, upgrades: Set[str]) -> List[Tuple[dnf.package.Package, List[dnf.package.Package]]]:
        if not self._base.conf.obsoletes:
            return []
        query = self._changeable(self._base.sack.query())
        installed = by_name(self._all_installed())
        arches = self._base.sack.list_arches()
        # Who excludes an installed package wants it left alone.
        found = query.available().filter(obsoletes_by_priority=query.installed(), arch=arches)
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = upgrades.union(installed)
        new = [package for package in found.filter(latest_per_arch=True) if package.name not in covered]
        return [(package, self._replaced(package, installed)) for package in new]

    def duplicated(self) -> List[List[dnf.package.Package]]:
        """As the command line tells duplicates: without those that are meant to be there several times."""
        installed = self._all_installed()
        found: Dict[Tuple[str, str], List[dnf.package.Package]] = {}
        for package in installed.duplicated().difference(self._base._get_installonly_query(installed)):
            found.setdefault((package.name, package.arch), []).append(package)
        return [sorted(packages) for packages in found.values() if len(packages) > 1]

    def reasons(self) -> List[Tuple[dnf.package.Package, Reason]]:
        return [(package, _REASONS.get(package.reason, Reason.UNKNOWN)) for package in self._all_installed()]

    def advised(self) -> List[Advised]:
        sack = self._base.sack
        found = self._all_installed().get_advisory_pkgs(hawkey.GT)
        return [
            Advised(one.name, one.arch, *whole_evr(one.evr), one.get_advisory(sack).id)
            for one in found
        ]

    def wanting(
        self, rows: Sequence[dnf.package.Package], kind: str, installed_only: bool = False
    ) -> List[dnf.package.Package]:
        if not installed_only:
            return wanting(self._base.sack, rows, kind)
        if kind not in self._needs:
            self._needs[kind] = Needs(self._base.sack, kind)
        return self._needs[kind].of(rows)

    def satisfying(self, row: dnf.package.Package, kind: str) -> List[Tuple[str, List[dnf.package.Package]]]:
        return satisfying(self._base.sack, row, kind)

    def versions(self, name: str) -> List[dnf.package.Package]:
        return versions_of(self._base.sack, name)

    def advice(self, row: dnf.package.Package) -> List[Advice]:
        return advice(self._base.sack, row)

    def advisories(self, id: Optional[str] = None) -> List[Advisory]:
        return advisories(self._base.sack, id)

    def has_advisories(self) -> bool:
        return any(repo._repo.getMetadataPath("updateinfo") for repo in self._base.repos.iter_enabled())

    def reboot_advised(self) -> List[str]:
        """The library reads over what advisories say of it."""
        return []

    def architectures(self) -> Sequence[str]:
        return [str(arch) for arch in self._base.sack.list_arches()]

    def add_file(self, path: str) -> dnf.package.Package:
        return self._base.sack.add_cmdline_package(path)

    def fetch(self, address: str, path: str, enough: Optional[Callable[[int], bool]] = None) -> None:
        fetch(address, path, self._base.conf, enough)

    def key_sources(self) -> List[KeySource]:
        return [RepositoryKeys(repo) for repo in self._base.repos.all()]

    def native(self) -> Sequence[str]:
        variables = self._base.conf.substitutions
        return [variables["basearch"], variables["arch"], "noarch"]

    def _all_installed(self) -> hawkey.Query:
        return self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()

    def _changeable(self, query: hawkey.Query) -> hawkey.Query:
        """The query without the updates that the solver refuses."""
        if self._base.conf.allow_vendor_change:
            return query
        replacing = query.available().filter(obsoletes=self._all_installed())
        return query.filter(
            pkg__neq=refused(query.filter(upgrades=True), replacing, by_name(self._all_installed()), self._replaced)
        )

    def _replaced(
        self, package: dnf.package.Package, installed: Dict[str, List[dnf.package.Package]]
    ) -> List[dnf.package.Package]:
        """Those of the installed packages, by their names, that a package of another name makes obsolete."""
        names = dict.fromkeys(reldep.name for reldep in package.obsoletes if reldep.name != package.name)
        itself = self._base.sack.query().filter(pkg=[package])
        return [old for name in names for old in installed.get(name, []) if itself.filter(obsoletes=[old])]

    # Packages --------------------------------------------------------------------------------------------

    def checksum(self, row: dnf.package.Package) -> Optional[str]:
        return checksum(row)

    def files(self, row: dnf.package.Package) -> List[str]:
        return list(row.files)

    def dependencies(self, row: dnf.package.Package, kind: str) -> List[Dependency]:
        return dependencies(row, kind)

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
        return records(self.settings).open_entry()

    def put_in(self, row: dnf.package.Package) -> List[PutIn]:
        return records(self.settings).put_in(row.name, row.arch)

    def close(self) -> None:
        self._needs.clear()
        self._base.close()
