# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's goal, as `apply.solving` asks it."""

from __future__ import annotations

from typing import Any, Callable, Collection, Iterable, List, Optional, Sequence, Set

from libdnf5 import base as libdnf5_base
from libdnf5 import rpm as libdnf5_rpm
from libdnf5 import transaction as kinds

from ..apply.messages import INSTALL, UPGRADE
from ..apply.solving import Incoming, Marks, Solution
from ..apply.turning import Aim
from ..backend import Dependency, PkgTup
from ..errors import YumBaseError
from ..packages import COMMAND_LINE
from ..packages import pkgtup as pkgtup_of_row
from .base import Base
from .rows import checksum, dependencies, pkgtup, rows
from .turning import turned

_INCOMING = (
    kinds.TransactionItemAction_UPGRADE,
    kinds.TransactionItemAction_INSTALL,
    kinds.TransactionItemAction_DOWNGRADE,
    kinds.TransactionItemAction_REINSTALL,
)
"""What puts a package into the system, updates first."""

_FILES = "glob:"


class Solved:
    """A transaction of the library, with its items sorted by what happens."""

    def __init__(self, transaction: Any) -> None:
        self.transaction = transaction
        items = list(transaction.get_transaction_packages())
        self.incoming = [item for action in _INCOMING for item in items if item.get_action() == action]
        self.removed = [item for item in items if item.get_action() == kinds.TransactionItemAction_REMOVE]
        replaced = [item for item in items if item.get_action() == kinds.TransactionItemAction_REPLACED]
        self.obsoleted = [item for item in replaced if not _has_namesake(item)]
        """What gives way to packages of other names alone."""
        self.outgoing = self.removed + replaced

    def packages(self) -> List[Any]:
        return [item.get_package() for item in self.incoming]


def _has_namesake(item: Any) -> bool:
    name = item.get_package().get_name()
    return any(new.get_name() == name for new in item.get_replaced_by())


class Solver:
    """Of a loaded Base."""

    def __init__(self, base: Base, gone_without: Callable[[Sequence[Any]], Set[PkgTup]]) -> None:
        self._base = base
        self.solved: Optional[Solved] = None
        """What was resolved last."""
        self.native = str(base.library.get_vars().get_value("arch"))
        self.root = base.settings.root
        self.gone_without = gone_without

    def offered(self, names: List[str]) -> List[Any]:
        query = libdnf5_rpm.PackageQuery(self._base.library)
        query.filter_available()
        query.filter_name(names)
        return rows(query, self._base)

    def installed(self, names: List[str]) -> List[Any]:
        return installed(self._base, names)

    def install_only(self, names: List[str]) -> Set[PkgTup]:
        return install_only(self._base, names)

    def unprotect(self, names: Set[str]) -> None:
        config = self._base.config
        kept = [name for name in config.protected_packages if name not in names]
        # What files of the managed system add has been read into the list already. An empty name first takes the place
        # of what is there; the library would add to it.
        config.protected_packages = ["", *(name for name in kept if not name.startswith(_FILES))]

    def resolve(self, marks: Marks, along: Sequence[Any], erasing: bool) -> Solution:
        transaction = _goal(self._base, marks, along, erasing).resolve()
        # It lists packages in any case, which would be a part of what was asked for.
        if transaction.get_problems() != libdnf5_base.GoalProblem_NO_PROBLEM:
            raise YumBaseError("\n".join(transaction.get_resolve_logs_as_strings()))
        self.solved = Solved(transaction)
        return self._solution(self.solved)

    def turn(self, aim: Aim) -> Solution:
        surplus = aim.surplus()
        there = self.installed([name for name, *_rest in surplus]) if surplus else []
        self.solved = Solved(turned(self._base, aim, [one for one in there if pkgtup_of_row(one) in surplus]))
        return self._solution(self.solved)

    def _solution(self, solved: Solved) -> Solution:
        def packages(items: Iterable[Any]) -> List[Any]:
            return rows((item.get_package() for item in items), self._base)

        return Solution(
            [
                Incoming(package, _kind(item), rows(item.get_replaces(), self._base))
                for item, package in zip(solved.incoming, packages(solved.incoming))
            ],
            packages(solved.removed),
            {
                pkgtup(item.get_package())
                for item in solved.removed
                if item.get_reason() == kinds.TransactionItemReason_CLEAN
            },
            packages(solved.obsoleted),
        )

    # What details rest on ----------------------------------------------------------------------------------------

    def dependencies(self, package: Any, kind: str) -> List[Dependency]:
        return dependencies(getattr(package, f"get_{kind}")())

    def files(self, package: Any) -> List[str]:
        return list(package.get_files())

    def installed_size(self, package: Any) -> int:
        return int(package.get_install_size())

    def checksum(self, package: Any) -> Optional[str]:
        return checksum(package)

    def protected(self) -> Collection[str]:
        return list(self._base.config.protected_packages)

    def asks_for_signature(self, package: Any) -> bool:
        if package.reponame == COMMAND_LINE:
            return bool(self._base.config.localpkg_gpgcheck)
        config = self._base.repository(package.reponame).get_config()
        return bool(config.get_pkg_gpgcheck_option().get_value())


def _kind(item: Any) -> str:
    return UPGRADE if item.get_action() == kinds.TransactionItemAction_UPGRADE else INSTALL


def install_only(base: Base, names: List[str]) -> Set[PkgTup]:
    """Those of the installed packages of these names of which there may be several versions."""
    query = _query_installed(base, names)
    query.filter_installonly()
    return set(map(pkgtup, query))


def installed(base: Base, names: List[str]) -> List[Any]:
    """Excludes of the main configuration hide installed packages too."""
    return rows(_query_installed(base, names), base)


def _query_installed(base: Base, names: List[str]) -> Any:
    query = libdnf5_rpm.PackageQuery(base.library)
    query.filter_installed()
    query.filter_name(names)
    return query


def removed_alone(base: Base, removed: Sequence[Any]) -> Set[PkgTup]:
    """What goes from a Base that has the system alone when these packages are removed."""
    unwanted = set(map(pkgtup_of_row, removed))
    there = installed(base, [package.name for package in removed])
    marks = Marks([], [package for package in there if pkgtup_of_row(package) in unwanted], set())
    transaction = _goal(base, marks, (), True).resolve()
    return {pkgtup(item.get_package()) for item in Solved(transaction).outgoing}


def _goal(base: Base, marks: Marks, along: Iterable[Any], erasing: bool) -> Any:
    goal = libdnf5_base.Goal(base.library)
    for package in (*marks.removed, *along):
        settings = libdnf5_base.GoalJobSettings()
        if package.name in marks.doubled:
            # An older version has the same dependencies as the one that stays.
            settings.set_clean_requirements_on_remove(libdnf5_base.GoalSetting_SET_FALSE)
        goal.add_rpm_remove(package, settings)
    for package in marks.incoming:
        # Also for updates: the library's own "upgrade" gives way silently where dependencies are in the way.
        goal.add_rpm_install(package)
    goal.set_allow_erasing(erasing)
    return goal
