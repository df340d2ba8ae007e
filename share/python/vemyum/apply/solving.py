# SPDX-License-Identifier: GPL-2.0-or-later
"""From the marks to the list of changes: what this program asks of a solver, and accepts of it.

Packages are rows of the library.
"""

from __future__ import annotations

from typing import Any, Callable, Collection, Dict, Iterable, List, NamedTuple, Protocol, Sequence, Set, Tuple

from .. import versions
from ..backend import PkgTup
from ..errors import YumBaseError
from ..packages import pkgtup, shown_repository
from ..texts import _
from .details import Details, Facts, counterpart, details
from .messages import OBSOLETED, REMOVE, REPLACED, UPGRADE, Change, Wish
from .work import NOT_INSTALLED

NOTHING = _("Nothing to do: the system is already as it was asked to be.")
_NOT_OFFERED = _("{package} is no longer in the repository {repository}. Please refresh the list of packages.")


class Marks:
    """What the user asked for: new packages (installs and updates) and installed ones to remove."""

    def __init__(self, incoming: Sequence[Any], removed: Sequence[Any], doubled: Set[str]) -> None:
        self.incoming = list(incoming)
        self.removed = list(removed)
        self.doubled = doubled
        """The names of those of which a newer version stays."""

    def tuples(self) -> Set[PkgTup]:
        return set(map(pkgtup, (*self.incoming, *self.removed)))


class Incoming(NamedTuple):
    """A package that goes in, as INSTALL or UPGRADE, and all that gives way to it."""

    package: Any
    kind: str
    replaces: List[Any]


class Solution(NamedTuple):
    """What the solver has found; updates stand first."""

    incoming: List[Incoming]
    removed: List[Any]
    unneeded: Set[PkgTup]
    """Of the removed those that nothing needs any more."""
    obsoleted: List[Any]
    """What gives way to packages of other names."""


class Solved(NamedTuple):
    """What the marks come to, and what the user is told of it."""

    changes: List[Change]
    details: Details


class Solver(Facts, Protocol):
    """A library, with what is to be read loaded."""

    def offered(self, names: List[str]) -> Iterable[Any]:
        """What the repositories have of these names."""

    def installed(self, names: List[str]) -> Iterable[Any]: ...

    def install_only(self, names: List[str]) -> Set[PkgTup]:
        """The installed packages of these names that may be there in several versions."""

    def unprotect(self, names: Set[str]) -> None: ...

    def resolve(self, marks: Marks, along: Sequence[Any], erasing: bool) -> Solution:
        """Solves the marks, and the removal of what goes along; `erasing` tells whether anything else may go.
        YumBaseError or a failure of the library with the solver's problems as its text."""

    def gone_without(self, removed: Sequence[Any]) -> Set[PkgTup]:
        """What goes when these packages are removed and nothing else is done."""


def solve(solver: Solver, incoming: Sequence[Wish], removes: Sequence[Wish]) -> Solved:
    """YumBaseError for a package that isn't there any more, or that nothing is to be done about; else as `resolve`."""
    marks = _marked(solver, incoming, removes)
    if marks.doubled:
        # A transaction that was cut off has left them. The library protects each version.
        solver.unprotect(marks.doubled)
    solution = solver.resolve(marks, (), bool(marks.removed))
    if marks.incoming and marks.removed:
        solution = _pushing_nothing_out(solver, marks, solution)
    if not solution.incoming and not solution.removed:
        raise YumBaseError(NOTHING)
    _require_marks(marks, solution)
    _require_doubled(solver, marks, solution)
    return told(solver, marks.tuples(), solution)


def told(solver: Solver, asked: Set[PkgTup], solution: Solution) -> Solved:
    """What comes of a solution, where these packages were asked for."""
    return Solved(_changes(solver.native, asked, solution), details(solver, asked, solution))


def lists_all(installed: Iterable[Any], removes: Sequence[Wish]) -> bool:
    """Whether all that are to go are among the packages."""
    return not set(removes).difference(map(_wish, installed))


def only_doubled(installed: Iterable[Any], install_only: Collection[PkgTup], removes: Sequence[Wish]) -> bool:
    """Whether nothing is to go but versions that a newer one, which stays, has taken the place of."""
    return lists_all(_doubled(installed, install_only, removes), removes)


def _doubled(
    installed: Iterable[Any], install_only: Collection[PkgTup], removes: Sequence[Wish]
) -> List[Any]:
    """Of the packages that are to go those of which a newer version stays. Of install-only packages each has a place of
    its own."""
    unwanted = set(removes)
    newest: Dict[Tuple[str, str], Any] = {}
    going = []
    for package in sorted((one for one in installed if pkgtup(one) not in install_only), key=versions.oldest_first):
        if _wish(package) in unwanted:
            going.append(package)
        else:
            newest[package.name, package.arch] = package
    return [
        package
        for package in going
        if versions.compare(package, newest.get((package.name, package.arch), package)) < 0
    ]


def _marked(solver: Solver, incoming: Sequence[Wish], removes: Sequence[Wish]) -> Marks:
    available = _of_names(solver.offered, incoming)
    installed = _of_names(solver.installed, removes)
    for wanted in incoming:
        if wanted not in available:
            raise YumBaseError(_NOT_OFFERED.format(package=_shown(wanted), repository=shown_repository(wanted.repository)))
    for unwanted in removes:
        if unwanted not in installed:
            raise YumBaseError(NOT_INSTALLED.format(package=_shown(unwanted)))
    several = solver.install_only([one.name for one in removes]) if removes else set()
    doubled = {package.name for package in _doubled(installed.values(), several, removes)}
    return Marks([available[wanted] for wanted in incoming], [installed[unwanted] for unwanted in removes], doubled)


def _of_names(query: Callable[[List[str]], Iterable[Any]], wanted: Sequence[Wish]) -> Dict[Wish, Any]:
    """The packages that have one of the names. One query for all: each walks over all packages there are."""
    found: Dict[Wish, Any] = {}
    for package in query([one.name for one in wanted]) if wanted else ():
        found.setdefault(_wish(package), package)
    return found


def _wish(package: Any) -> Wish:
    return Wish(package.reponame, package.name, package.arch, package.evr)


def _shown(wish: Wish) -> str:
    return f"{wish.name}-{wish.evr}.{wish.arch}"


def _pushing_nothing_out(solver: Solver, marks: Marks, solution: Solution) -> Solution:
    """Lets the removals take along what needs the removed, and the rest nothing: as each would alone."""
    marked = set(map(pkgtup, marks.removed))
    going = [package for package in solution.removed if pkgtup(package) not in marked]
    # Nothing needs the others any more, maybe since something else is updated.
    pushed = {pkgtup(package) for package in going} - solution.unneeded
    if not pushed:
        return solution
    dependent = solver.gone_without(marks.removed)
    if pushed <= dependent:
        return solution
    return solver.resolve(marks, [package for package in going if pkgtup(package) in dependent], False)


def _require_marks(marks: Marks, solution: Solution) -> None:
    incoming = [one.package for one in solution.incoming]
    happens = set(map(pkgtup, (*incoming, *solution.removed, *solution.obsoleted)))
    left_out = [str(package) for package in marks.incoming + marks.removed if pkgtup(package) not in happens]
    if left_out:
        raise YumBaseError(
            _("Nothing is to be done about {packages}. Please refresh the list of packages.").format(
                packages=", ".join(left_out)
            )
        )


def _require_doubled(solver: Solver, marks: Marks, solution: Solution) -> None:
    """The last version of a package is protected as ever, whatever the solver has found to go with the older ones."""
    if not marks.doubled:
        return
    going = set(map(pkgtup, (*marks.removed, *solution.removed)))
    left = {package.name for package in solver.installed(sorted(marks.doubled)) if pkgtup(package) not in going}
    lost = sorted(marks.doubled - left)
    if lost:
        raise YumBaseError(
            _("The operation would remove all versions of {packages}.").format(packages=", ".join(lost))
        )


def _changes(native: str, marked: Set[PkgTup], solution: Solution) -> List[Change]:
    changes: List[Change] = []

    def add(package: Any, kind: str, replaced_by: int = -1) -> None:
        key = pkgtup(package)
        changes.append(Change(kind, key in marked, *key, shown_repository(package.reponame), replaced_by))

    obsoleted = set(map(pkgtup, solution.obsoleted))
    replaced: Dict[PkgTup, Any] = {}
    replacing: Dict[PkgTup, int] = {}
    for package, kind, olds in solution.incoming:
        versions = [old for old in olds if old.name == package.name]
        if kind == UPGRADE and versions:
            # Who reads of the update knows that the old version goes; not so of the same in other architectures.
            versions.remove(counterpart(package, versions, native))
        replaced.update((pkgtup(old), old) for old in versions)
        for old in olds:
            if old.name != package.name and pkgtup(old) in obsoleted:
                replacing[pkgtup(old)] = len(changes)
        add(package, kind)
    for package in solution.obsoleted:
        if pkgtup(package) in replacing:
            add(package, OBSOLETED, replacing[pkgtup(package)])
    for package in solution.removed:
        add(package, REMOVE)
    for key, package in replaced.items():
        if key not in replacing:
            add(package, REPLACED)
    return changes
