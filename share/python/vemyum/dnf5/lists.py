# SPDX-License-Identifier: GPL-2.0-or-later
"""The lists of packages that the table is made of, as the library's queries give them."""

from __future__ import annotations

import functools
from typing import Any, Dict, Iterable, Iterator, List, Sequence, Set, Tuple

import libdnf5.advisory
import libdnf5.common
import libdnf5.rpm
import rpm

from .. import versions
from ..backend import Advised
from ..packages import whole_evr
from ..vendors import by_name, refused
from .base import Base
from .rows import InstalledRow, Offered, Row, rows


def installed_rows(base: Base) -> List[Any]:
    """Those of a Base that has been loaded, without what its excludes hide."""
    query = libdnf5.rpm.PackageQuery(base.library)
    query.filter_installed()
    return rows(query, base, InstalledRow)


class Lists:
    """Of a loaded Base; each as `backend.System` has it."""

    def __init__(self, base: Base, installed: List[Any], native: Sequence[str]) -> None:
        """`installed` are all that are there, excluded or not; `native` as `backend.System` has it."""
        self._base = base
        self._installed = installed
        self._native = native

    def available(self) -> Offered:
        query = self._offered()
        query.filter_latest_evr()
        native = libdnf5.rpm.PackageQuery(query)
        native.filter_arch(list(self._native))
        query.difference(native)
        return Offered([each for part in (native, query) for each in self._best_first(part)], self._base)

    def upgrades(self) -> List[Row]:
        query = self._changeable(self._offered())
        query.filter_upgrades()
        query.filter_latest_evr()
        return self._cheapest_first(query)

    def replacing(self, upgrades: Set[str]) -> List[Tuple[Row, List[Row]]]:
        if not self._base.config.obsoletes:
            return []
        query = self._changeable(self._offered())
        # Who excludes an installed package wants it left alone.
        present = libdnf5.rpm.PackageQuery(self._base.library)
        present.filter_installed()
        query.filter_obsoletes(present)
        query.filter_latest_evr()
        installed = by_name(self._installed)
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = upgrades.union(installed)
        new = [row for row in self._cheapest_first(query) if row.name not in covered]
        return [(row, self._replaced(row, installed)) for row in new]

    def duplicated(self) -> List[List[Row]]:
        query = libdnf5.rpm.PackageQuery(self._base.library)
        query.filter_installonly()
        meant = set(query)
        found: Dict[Tuple[str, str], List[Any]] = {}
        for row in self._installed:
            found.setdefault((row.name, row.arch), []).append(row)
        several = [same for same in found.values() if len(same) > 1 and not meant.intersection(same)]
        return [sorted(same, key=versions.oldest_first) for same in several]

    def advised(self) -> List[Advised]:
        found = libdnf5.advisory.AdvisoryQuery(self._base.library).get_advisory_packages_sorted(
            self._set(self._installed), libdnf5.common.QueryCmp_GT
        )
        return [
            Advised(one.get_name(), one.get_arch(), *whole_evr(one.get_evr()), one.get_advisory().get_name())
            for one in found
        ]

    def _offered(self) -> libdnf5.rpm.PackageQuery:
        """A new query for what the repositories offer to this machine, by their priorities."""
        return libdnf5.rpm.PackageQuery(self._offer)

    @functools.cached_property
    def _offer(self) -> libdnf5.rpm.PackageQuery:
        query = libdnf5.rpm.PackageQuery(self._base.library)
        query.filter_available()
        query.filter_priority()
        query.filter_arch(fitting())
        return query

    def _cheapest_first(self, query: libdnf5.rpm.PackageQuery) -> List[Any]:
        """The rows of a query. Of a package that several repositories have, the solver takes the one that costs least;
        the library's own order is the one in which they happened to be read."""
        found = rows(query, self._base)
        costs = {repo.get_id(): repo.get_cost() for repo in self._base.repositories(enabled_only=True)}
        if len(set(costs.values())) > 1:
            found.sort(key=lambda row: costs.get(row.reponame, 0))
        return found

    def _best_first(self, query: libdnf5.rpm.PackageQuery) -> Iterator[libdnf5.rpm.PackageQuery]:
        """Parts of a query, of which the first that has a name has the newest, from where it costs least."""
        newest = libdnf5.rpm.PackageQuery(query)
        newest.filter_latest_evr_any_arch()
        query.difference(newest)
        by_cost: Dict[int, List[str]] = {}
        for repo in self._base.repositories(enabled_only=True):
            by_cost.setdefault(repo.get_cost(), []).append(repo.get_id())
        for part in (newest, query):
            for _cost, ids in sorted(by_cost.items()):
                of_these = libdnf5.rpm.PackageQuery(part)
                of_these.filter_repo_id(ids)
                yield of_these

    def _changeable(self, query: libdnf5.rpm.PackageQuery) -> libdnf5.rpm.PackageQuery:
        """The query without the updates that the solver refuses."""
        if self._base.config.allow_vendor_change:
            return query
        newer = libdnf5.rpm.PackageQuery(query)
        newer.filter_upgrades()
        replacing = libdnf5.rpm.PackageQuery(query)
        replacing.filter_obsoletes(self._set(self._installed))
        installed = by_name(self._installed)
        found = (rows(newer, self._base), rows(replacing, self._base))
        query.difference(self._set(refused(*found, installed, self._replaced)))
        return query

    def _replaced(self, row: Any, installed: Dict[str, List[Any]]) -> List[Any]:
        """Those of the installed packages, by their names, that a package of another name makes obsolete."""
        names = dict.fromkeys(reldep.get_name() for reldep in row.get_obsoletes())
        found = []
        for old in (old for name in names if name != row.name for old in installed.get(name, [])):
            query = libdnf5.rpm.PackageQuery(self._set([row]))
            query.filter_obsoletes(self._set([old]))
            if not query.empty():
                found.append(old)
        return found

    def _set(self, packages: Iterable[Any]) -> libdnf5.rpm.PackageSet:
        return package_set(self._base, packages)


def package_set(base: Base, packages: Iterable[Any]) -> libdnf5.rpm.PackageSet:
    found = libdnf5.rpm.PackageSet(base.library)
    for package in packages:
        found.add(package)
    return found


def fitting() -> List[str]:
    """The architectures of packages that this machine can run."""
    known = libdnf5.rpm.get_supported_arches()
    return [arch for arch in known if arch == "noarch" or rpm.archscore(arch)]
