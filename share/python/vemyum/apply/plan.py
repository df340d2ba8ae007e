# SPDX-License-Identifier: GPL-2.0-or-later
"""Solving: the marks become a transaction, told as a list of changes."""

from __future__ import annotations

from typing import Dict, List, Sequence, Set, Tuple

import dnf.conf.config
import dnf.package
import hawkey

from ..base import Base
from ..errors import YumBaseError
from ..packages import PkgTup
from ..texts import _
from .messages import DOWNGRADED, INSTALL, OBSOLETED, REMOVE, UPGRADE, Change, Wish

_NOT_OFFERED = _("{package} is no longer in the repository {repository}. Please refresh the list of packages.")
NOT_INSTALLED = _("{package} is no longer installed. Please refresh the list of packages.")


class Marks:
    """What the user asked for: new packages (installs and updates) and installed ones to remove."""

    def __init__(self) -> None:
        self.incoming: List[dnf.package.Package] = []
        self.removed: List[dnf.package.Package] = []
        self.doubled: Set[str] = set()
        """The names of those of which a newer version stays."""

    def tuples(self) -> Set[PkgTup]:
        return {_pkgtup(package) for package in (*self.incoming, *self.removed)}


def mark(base: Base, incoming: Sequence[Wish], removes: Sequence[Wish]) -> Marks:
    """Marks packages in a loaded Base.

    Raises YumBaseError for a package that isn't there any more, or that cannot be marked.
    """
    marks = Marks()
    available = _of_names(base.sack.query().available(), incoming)
    for wanted in incoming:
        package = available.get(wanted)
        if package is None:
            raise YumBaseError(_NOT_OFFERED.format(package=_shown(wanted), repository=wanted.repository))
        # Also for updates: dnf's own "upgrade" gives way silently where dependencies are in the way.
        base.package_install(package)
        marks.incoming.append(package)
    installed = _of_names(base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed(), removes)
    for unwanted in removes:
        package = installed.get(unwanted)
        if package is None:
            raise YumBaseError(NOT_INSTALLED.format(package=_shown(unwanted)))
        base.package_remove(package)
        marks.removed.append(package)
    _unprotect_doubled(base, marks)
    return marks


def _unprotect_doubled(base: Base, marks: Marks) -> None:
    """Lets go of the older versions of a protected package, which a transaction that was cut off has left. The library
    protects each version."""
    newest = {(package.name, package.arch): package for package in sorted(_staying(base, marks))}
    marks.doubled = {
        package.name
        for package in marks.removed
        if (package.name, package.arch) in newest and newest[package.name, package.arch] > package
    }
    if marks.doubled:
        kept = [name for name in base.conf.protected_packages if name not in marks.doubled]
        base.conf._set_value("protected_packages", kept, dnf.conf.config.PRIO_RUNTIME)


def _staying(base: Base, marks: Marks) -> List[dnf.package.Package]:
    removed = set(map(_pkgtup, marks.removed))
    names = [package.name for package in marks.removed]
    installed = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed().filter(name=names) if names else []
    return [package for package in installed if _pkgtup(package) not in removed]


def _require_doubled(base: Base, marks: Marks) -> None:
    """The last version of a package is protected as ever, whatever the solver has found to go with the older ones."""
    going = {_pkgtup(package) for package in base.goal.list_erasures()}
    left = {package.name for package in _staying(base, marks) if _pkgtup(package) not in going}
    lost = sorted(marks.doubled - left)
    if lost:
        raise YumBaseError(
            _("The operation would remove all versions of {packages}.").format(packages=", ".join(lost))
        )


def _of_names(query: hawkey.Query, wanted: Sequence[Wish]) -> Dict[Wish, dnf.package.Package]:
    """The packages of a query that have one of the names.

    One query for all: each walks over all packages there are.
    """
    found: Dict[Wish, dnf.package.Package] = {}
    for package in query.filter(name=[one.name for one in wanted]):
        found.setdefault(Wish(package.reponame, package.name, package.arch, package.evr), package)
    return found


def _shown(wish: Wish) -> str:
    return f"{wish.name}-{wish.evr}.{wish.arch}"


def solve(base: Base, marks: Marks) -> List[Change]:
    """Solves the marked Base. YumBaseError has the solver's problems as its text."""
    # dnf itself leaves out what is excluded.
    protected = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).filter(name=base.conf.protected_packages)
    base._goal.add_protected(protected)
    if not base.resolve(allow_erasing=bool(marks.removed)):
        raise YumBaseError(_("Nothing to do: the system is already as it was asked to be."))
    _require_marks(base, marks)
    _require_doubled(base, marks)
    return _changes(base, marks.tuples())


def _require_marks(base: Base, marks: Marks) -> None:
    happens = {_pkgtup(package) for package, _kind in _incoming(base)}
    happens.update(_pkgtup(package) for package in base.goal.list_erasures() + base.goal.list_obsoleted())
    marked = marks.incoming + marks.removed
    left_out = [str(package) for package in marked if _pkgtup(package) not in happens]
    if left_out:
        raise YumBaseError(
            _("Nothing is to be done about {packages}. Please refresh the list of packages.").format(
                packages=", ".join(left_out)
            )
        )


def _incoming(base: Base) -> List[Tuple[dnf.package.Package, str]]:
    """All packages that go in, each with its kind of change."""
    goal = base.goal
    others = [*goal.list_installs(), *goal.list_downgrades(), *goal.list_reinstalls()]
    return [(package, UPGRADE) for package in goal.list_upgrades()] + [(package, INSTALL) for package in others]


def _changes(base: Base, marked: Set[PkgTup]) -> List[Change]:
    goal = base.goal
    changes: List[Change] = []

    def add(package: dnf.package.Package, kind: str, replaced_by: int = -1) -> None:
        pkgtup = _pkgtup(package)
        changes.append(Change(kind, pkgtup in marked, *pkgtup, package.reponame, replaced_by))

    replacing: Dict[PkgTup, int] = {}
    for package, kind in _incoming(base):
        for old in goal.obsoleted_by_package(package):
            if old.name != package.name:
                replacing[_pkgtup(old)] = len(changes)
        add(package, kind)
    for package in goal.list_obsoleted():
        if _pkgtup(package) in replacing:
            add(package, OBSOLETED, replacing[_pkgtup(package)])
    for package in goal.list_erasures():
        add(package, REMOVE)
    for package in goal.list_downgrades():
        for old in goal.obsoleted_by_package(package):
            if old.name == package.name:
                add(old, DOWNGRADED)
    return changes


def _pkgtup(package: dnf.package.Package) -> PkgTup:
    return (package.name, package.arch, str(package.epoch), package.version, package.release)
