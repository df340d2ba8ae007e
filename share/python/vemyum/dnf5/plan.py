# SPDX-License-Identifier: GPL-2.0-or-later
"""Solving: the marks become a transaction of the library, and that a list of changes."""

from __future__ import annotations

from typing import Any, Callable, Dict, Iterable, List, Sequence, Set, Tuple

from libdnf5 import base as libdnf5_base
from libdnf5 import rpm as libdnf5_rpm
from libdnf5 import transaction as kinds

from ..apply.messages import INSTALL, OBSOLETED, REMOVE, REPLACED, UPGRADE, Change, Wish
from ..apply.work import NOT_INSTALLED
from ..backend import PkgTup
from ..errors import YumBaseError
from ..texts import _
from .system import System

_NOT_OFFERED = _("{package} is no longer in the repository {repository}. Please refresh the list of packages.")

INCOMING = (
    kinds.TransactionItemAction_UPGRADE,
    kinds.TransactionItemAction_INSTALL,
    kinds.TransactionItemAction_DOWNGRADE,
    kinds.TransactionItemAction_REINSTALL,
)
"""What puts a package into the system, updates first."""
OUTGOING = (kinds.TransactionItemAction_REMOVE, kinds.TransactionItemAction_REPLACED)


_FILES = "glob:"


class Marks:
    """What the user asked for: new packages (installs and updates) and installed ones to remove."""

    def __init__(self, incoming: Sequence[Any], removed: Sequence[Any]) -> None:
        self.incoming = list(incoming)
        self.removed = list(removed)
        self.doubled: Set[str] = set()
        """The names of those of which a newer version stays."""

    def tuples(self) -> Set[PkgTup]:
        return set(map(pkgtup, (*self.incoming, *self.removed)))


def pkgtup(package: Any) -> PkgTup:
    return (
        package.get_name(),
        package.get_arch(),
        package.get_epoch(),
        package.get_version(),
        package.get_release(),
    )


def installed(base: Any) -> Any:
    """A query; excludes of the main configuration hide installed packages too."""
    query = libdnf5_rpm.PackageQuery(base)
    query.filter_installed()
    return query


def mark(base: Any, incoming: Sequence[Wish], removes: Sequence[Wish]) -> Marks:
    """Finds the packages in a loaded Base.

    Raises YumBaseError for one that isn't there any more.
    """
    available = libdnf5_rpm.PackageQuery(base)
    available.filter_available()
    offered = _of_names(available, incoming)
    there = _of_names(installed(base), removes)
    for wanted in incoming:
        if wanted not in offered:
            raise YumBaseError(_NOT_OFFERED.format(package=_shown(wanted), repository=wanted.repository))
    for unwanted in removes:
        if unwanted not in there:
            raise YumBaseError(NOT_INSTALLED.format(package=_shown(unwanted)))
    marks = Marks([offered[wanted] for wanted in incoming], [there[unwanted] for unwanted in removes])
    _find_doubled(base, marks)
    return marks


def lists_all(base: Any, removes: Sequence[Wish]) -> bool:
    """Whether the Base shows all of these installed packages: excludes hide some."""
    found = _of_names(installed(base), removes)
    return all(one in found for one in removes)


def only_doubled(system: System, removes: Sequence[Wish]) -> bool:
    """Whether nothing is to go but versions that a newer one, which stays, has taken the place of. Of install-only
    packages each has a place of its own."""
    several = _install_only(system.base.library)
    names = {one.name for one in removes}
    unwanted = set(removes)
    newest: Dict[Tuple[str, str], Any] = {}
    found: Dict[Wish, Any] = {}
    for row in sorted(row for row in system.installed() if row.name in names):
        if pkgtup(row) in several:
            continue
        wish = _wish(row)
        if wish in unwanted:
            found[wish] = row
        else:
            newest[row.name, row.arch] = row
    return all(one in found and found[one] < newest.get((one.name, one.arch), found[one]) for one in removes)


def _of_names(query: Any, wanted: Sequence[Wish]) -> Dict[Wish, Any]:
    """The packages of a query that have one of the names, which it keeps."""
    query.filter_name([one.name for one in wanted])
    found: Dict[Wish, Any] = {}
    for package in query:
        found.setdefault(_wish(package), package)
    return found


def _wish(package: Any) -> Wish:
    return Wish(package.get_repo_id(), package.get_name(), package.get_arch(), package.get_evr())


def _shown(wish: Wish) -> str:
    return f"{wish.name}-{wish.evr}.{wish.arch}"


def _named(base: Any, names: Sequence[str]) -> List[Any]:
    query = installed(base)
    query.filter_name(list(names))
    return list(query)


def _install_only(base: Any) -> Set[PkgTup]:
    query = installed(base)
    query.filter_installonly()
    return set(map(pkgtup, query))


def _find_doubled(base: Any, marks: Marks) -> None:
    several = _install_only(base) if marks.removed else set()
    newest = {(package.get_name(), package.get_arch()): package for package in sorted(_staying(base, marks))}
    marks.doubled = {
        package.get_name()
        for package in marks.removed
        if pkgtup(package) not in several
        and package < newest.get((package.get_name(), package.get_arch()), package)
    }


def _staying(base: Any, marks: Marks) -> List[Any]:
    removed = set(map(pkgtup, marks.removed))
    names = [package.get_name() for package in marks.removed]
    return [package for package in (_named(base, names) if names else ()) if pkgtup(package) not in removed]


# Solving -----------------------------------------------------------------------------------------------------------


class Solved:
    """A transaction of the library, with its items sorted by what happens."""

    def __init__(self, transaction: Any) -> None:
        self.transaction = transaction
        items = list(transaction.get_transaction_packages())
        self.incoming = [item for action in INCOMING for item in items if item.get_action() == action]
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


def solve(base: Any, marks: Marks, gone_without: Callable[[], Set[PkgTup]]) -> Solved:
    """YumBaseError has the solver's problems as its text. `gone_without` tells what goes where the marked packages are
    removed and nothing else is done."""
    _unprotect_doubled(base, marks)
    solved = _resolve(base, marks, bool(marks.removed))
    if marks.incoming and marks.removed:
        solved = _pushing_nothing_out(base, marks, solved, gone_without)
    if not solved.incoming and not solved.outgoing:
        raise YumBaseError(_("Nothing to do: the system is already as it was asked to be."))
    _require_marks(marks, solved)
    _require_doubled(base, marks, solved)
    return solved


def removed_alone(base: Any, removes: Iterable[PkgTup]) -> Set[PkgTup]:
    """What goes from a Base that has the system alone when these packages are removed."""
    unwanted = set(removes)
    marks = Marks([], [package for package in installed(base) if pkgtup(package) in unwanted])
    transaction = _goal(base, marks, True).resolve()
    return {pkgtup(item.get_package()) for item in Solved(transaction).outgoing}


def _unprotect_doubled(base: Any, marks: Marks) -> None:
    """Lets go of the older versions of a protected package, which a transaction that was cut off has left. The library
    protects each version."""
    if marks.doubled:
        config = base.get_config()
        kept = [name for name in config.protected_packages if name not in marks.doubled]
        # What files of the managed system add has been read into the list already. An empty name first takes the place
        # of what is there; the library would add to it.
        config.protected_packages = ["", *(name for name in kept if not name.startswith(_FILES))]


def _goal(base: Any, marks: Marks, erasing: bool, along: Iterable[Any] = ()) -> Any:
    goal = libdnf5_base.Goal(base)
    for package in (*marks.removed, *along):
        settings = libdnf5_base.GoalJobSettings()
        if package.get_name() in marks.doubled:
            # An older version has the same dependencies as the one that stays.
            settings.set_clean_requirements_on_remove(libdnf5_base.GoalSetting_SET_FALSE)
        goal.add_rpm_remove(package, settings)
    for package in marks.incoming:
        # Also for updates: the library's own "upgrade" gives way silently where dependencies are in the way.
        goal.add_rpm_install(package)
    goal.set_allow_erasing(erasing)
    return goal


def _resolve(base: Any, marks: Marks, erasing: bool, along: Iterable[Any] = ()) -> Solved:
    transaction = _goal(base, marks, erasing, along).resolve()
    # It lists packages in any case, which would be a part of what was asked for.
    if transaction.get_problems() != libdnf5_base.GoalProblem_NO_PROBLEM:
        raise YumBaseError("\n".join(transaction.get_resolve_logs_as_strings()))
    return Solved(transaction)


def _pushing_nothing_out(
    base: Any, marks: Marks, solved: Solved, gone_without: Callable[[], Set[PkgTup]]
) -> Solved:
    """Lets the removals take along what needs the removed, and the rest nothing: as each would alone."""
    marked = set(map(pkgtup, marks.removed))
    going = [item for item in solved.removed if pkgtup(item.get_package()) not in marked]
    # Nothing needs these any more, maybe since something else is updated.
    pushed = [item for item in going if item.get_reason() != kinds.TransactionItemReason_CLEAN]
    if not pushed:
        return solved
    dependent = gone_without()
    if all(pkgtup(item.get_package()) in dependent for item in pushed):
        return solved
    along = [item.get_package() for item in going if pkgtup(item.get_package()) in dependent]
    return _resolve(base, marks, False, along)


def _require_marks(marks: Marks, solved: Solved) -> None:
    items = (*solved.incoming, *solved.removed, *solved.obsoleted)
    happens = {pkgtup(item.get_package()) for item in items}
    left_out = [
        package.get_nevra() for package in marks.incoming + marks.removed if pkgtup(package) not in happens
    ]
    if left_out:
        raise YumBaseError(
            _("Nothing is to be done about {packages}. Please refresh the list of packages.").format(
                packages=", ".join(left_out)
            )
        )


def _require_doubled(base: Any, marks: Marks, solved: Solved) -> None:
    """The last version of a package is protected as ever, whatever the solver has found to go with the older ones."""
    going = {pkgtup(item.get_package()) for item in solved.removed}
    left = {package.get_name() for package in _staying(base, marks) if pkgtup(package) not in going}
    lost = sorted(marks.doubled - left)
    if lost:
        raise YumBaseError(
            _("The operation would remove all versions of {packages}.").format(packages=", ".join(lost))
        )


def changes(base: Any, marks: Marks, solved: Solved) -> List[Change]:
    marked = marks.tuples()
    found: List[Change] = []

    def add(package: Any, kind: str, replaced_by: int = -1) -> None:
        key = pkgtup(package)
        found.append(Change(kind, key in marked, *key, package.get_repo_id(), replaced_by))

    native = base.get_vars().get_value("arch")
    obsoleted = {pkgtup(item.get_package()) for item in solved.obsoleted}
    replaced: Dict[PkgTup, Any] = {}
    replacing: Dict[PkgTup, int] = {}
    for item in solved.incoming:
        package = item.get_package()
        olds = list(item.get_replaces())
        versions = [old for old in olds if old.get_name() == package.get_name()]
        kind = UPGRADE if item.get_action() == kinds.TransactionItemAction_UPGRADE else INSTALL
        if kind == UPGRADE and versions:
            # Who reads of the update knows that the old version goes; not so of the same in other architectures.
            versions.remove(
                min(versions, key=lambda old: (old.get_arch() != package.get_arch(), old.get_arch() != native))
            )
        replaced.update((pkgtup(old), old) for old in versions)
        for old in olds:
            if pkgtup(old) in obsoleted:
                replacing[pkgtup(old)] = len(found)
        add(package, kind)
    for item in solved.obsoleted:
        if pkgtup(item.get_package()) in replacing:
            add(item.get_package(), OBSOLETED, replacing[pkgtup(item.get_package())])
    for item in solved.removed:
        add(item.get_package(), REMOVE)
    for key, package in replaced.items():
        if key not in replacing:
            add(package, REPLACED)
    return found
