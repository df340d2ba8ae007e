# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's goal, as `apply.solving` asks it."""

from __future__ import annotations

from typing import Collection, List, Optional, Sequence, Set

import dnf.conf.config
import dnf.goal
import dnf.package
import dnf.sack
import hawkey
import libdnf.transaction as lt

from ..apply.messages import INSTALL, UPGRADE
from ..apply.solving import Incoming, Marks, Solution
from ..apply.turning import Aim
from ..backend import Dependency, PkgTup
from ..packages import COMMAND_LINE, pkgtup
from .base import Base
from .rows import checksum, dependencies
from .turning import turn


class Solver:
    """Of a loaded Base, whose transaction is what was resolved last."""

    def __init__(self, base: Base) -> None:
        self._base = base
        self._asked = False
        self.native = str(base.conf.substitutions["arch"])
        self.root = str(base.conf.installroot)

    def offered(self, names: List[str]) -> hawkey.Query:
        return self._base.sack.query().available().filter(name=names)

    def installed(self, names: List[str]) -> hawkey.Query:
        """Excluded ones too."""
        return self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed().filter(name=names)

    def visible(self, names: List[str]) -> hawkey.Query:
        """Of the installed ones those that the configuration doesn't exclude."""
        return self._base.sack.query().installed().filter(name=names)

    def install_only(self, names: List[str]) -> Set[PkgTup]:
        return set(map(pkgtup, self._base._get_installonly_query(self.installed(names))))

    def unprotect(self, names: Set[str]) -> None:
        conf = self._base.conf
        kept = [name for name in conf.protected_packages if name not in names]
        conf._set_value("protected_packages", kept, dnf.conf.config.PRIO_RUNTIME)

    def resolve(self, marks: Marks, along: Sequence[dnf.package.Package], erasing: bool) -> Solution:
        base = self._base
        if self._asked:
            base.reset(goal=True)
        self._asked = True
        _put(base, marks, along)
        # dnf itself leaves out what is excluded.
        protected = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).filter(name=base.conf.protected_packages)
        base._goal.add_protected(protected)
        base.resolve(allow_erasing=erasing)
        return _solution(base.goal)

    def turn(self, aim: Aim) -> Solution:
        turn(self._base, aim)
        return _solution(self._base.goal)

    def gone_without(self, removed: Sequence[dnf.package.Package]) -> Set[PkgTup]:
        base = self._base
        sack = dnf.sack._build_sack(base)
        sack.load_system_repo(build_cache=False)
        installed = sack.query().installed()
        unwanted = set(map(pkgtup, removed))
        goal = dnf.goal.Goal(sack)
        for package in installed.filter(name=[one.name for one in removed]):
            if pkgtup(package) in unwanted:
                goal.erase(package, clean_deps=base.conf.clean_requirements_on_remove)
        goal.push_userinstalled(installed, base.history)
        goal.run(allow_uninstall=True)
        return set(map(pkgtup, goal.list_erasures()))

    # What details rest on --------------------------------------------------------------------------------

    def dependencies(self, package: dnf.package.Package, kind: str) -> List[Dependency]:
        return dependencies(package, kind)

    def files(self, package: dnf.package.Package) -> List[str]:
        return list(package.files)

    def installed_size(self, package: dnf.package.Package) -> int:
        return int(package.installsize)

    def checksum(self, package: dnf.package.Package) -> Optional[str]:
        return checksum(package)

    def protected(self) -> Collection[str]:
        return list(self._base.conf.protected_packages)

    def asks_for_signature(self, package: dnf.package.Package) -> bool:
        if package.reponame == COMMAND_LINE:
            return bool(self._base.conf.localpkg_gpgcheck)
        return bool(self._base.repos[package.reponame].gpgcheck)


def _put(base: Base, marks: Marks, along: Sequence[dnf.package.Package]) -> None:
    """Puts the marks into the goal, and the removal of what goes along.

    Removals first: the solver looks at dependencies that nothing needs any more by the order of what it is asked.
    """
    for package in (*marks.removed, *along):
        # What came in as a dependency alone goes along as the configuration says. An older version has the same
        # dependencies as the one that stays.
        clean = base.conf.clean_requirements_on_remove and package.name not in marks.doubled
        base._goal.erase(package, clean_deps=clean)
    for package in marks.incoming:
        # Also for updates: dnf's own "upgrade" gives way silently where dependencies are in the way.
        base.package_install(package)


def _solution(goal: dnf.goal.Goal) -> Solution:
    def incoming(packages: List[dnf.package.Package], kind: str) -> List[Incoming]:
        return [Incoming(package, kind, goal.obsoleted_by_package(package)) for package in packages]

    others = [*goal.list_installs(), *goal.list_downgrades(), *goal.list_reinstalls()]
    removed = goal.list_erasures()
    return Solution(
        incoming(goal.list_upgrades(), UPGRADE) + incoming(others, INSTALL),
        removed,
        {pkgtup(package) for package in removed if goal.get_reason(package) == lt.TransactionItemReason_CLEAN},
        goal.list_obsoleted(),
    )


def enabled_streams(base: Base) -> List[str]:
    """The module streams that the solved transaction enables, each as "name:stream"."""
    modules = base._moduleContainer
    if modules is None:
        return []
    enabled = modules.getEnabledStreams()
    return sorted(f"{name}:{enabled[name]}" for name in enabled)
