# SPDX-License-Identifier: GPL-2.0-or-later
"""Solving: the marks become a transaction, told as a list of changes."""

from __future__ import annotations

from typing import Dict, List, Sequence, Set, Tuple

import dnf.conf.config
import dnf.goal
import dnf.package
import dnf.sack
import hawkey
import libdnf.transaction as lt

from ..apply.messages import INSTALL, OBSOLETED, REMOVE, REPLACED, UPGRADE, Change, Wish
from ..apply.work import NOT_INSTALLED
from ..backend import PkgTup
from ..errors import YumBaseError
from ..packages import pkgtup as _pkgtup
from ..texts import _
from .base import Base

_NOT_OFFERED = _("{package} is no longer in the repository {repository}. Please refresh the list of packages.")


class Marks:
    """What the user asked for: new packages (installs and updates) and installed ones to remove."""

    def __init__(self, incoming: Sequence[dnf.package.Package], removed: Sequence[dnf.package.Package]) -> None:
        self.incoming = list(incoming)
        self.removed = list(removed)
        self.doubled: Set[str] = set()
        """The names of those of which a newer version stays."""

    def tuples(self) -> Set[PkgTup]:
        return set(map(_pkgtup, (*self.incoming, *self.removed)))


def mark(base: Base, incoming: Sequence[Wish], removes: Sequence[Wish]) -> Marks:
    """Finds the packages in a loaded Base and marks them.

    Raises YumBaseError for a package that isn't there any more, or that cannot be marked.
    """
    available = _of_names(base.sack.query().available(), incoming)
    installed = _of_names(base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed(), removes)
    for wanted in incoming:
        if wanted not in available:
            raise YumBaseError(_NOT_OFFERED.format(package=_shown(wanted), repository=wanted.repository))
    for unwanted in removes:
        if unwanted not in installed:
            raise YumBaseError(NOT_INSTALLED.format(package=_shown(unwanted)))
    marks = Marks([available[wanted] for wanted in incoming], [installed[unwanted] for unwanted in removes])
    _unprotect_doubled(base, marks)
    _put(base, marks)
    return marks


def _put(base: Base, marks: Marks, along: Sequence[dnf.package.Package] = ()) -> None:
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


def _unprotect_doubled(base: Base, marks: Marks) -> None:
    """Lets go of the older versions of a protected package, which a transaction that was cut off has left. The library
    protects each version."""
    several = set(map(_pkgtup, base._get_installonly_query(base.sack.query().installed())))
    newest = {(package.name, package.arch): package for package in sorted(_staying(base, marks))}
    marks.doubled = {
        package.name
        for package in marks.removed
        if _pkgtup(package) not in several and package < newest.get((package.name, package.arch), package)
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


def hides_any(base: Base, removes: Sequence[Wish]) -> bool:
    """Whether one of the packages that are to go is excluded by the configuration."""
    found = _of_names(base.sack.query().installed(), removes)
    return any(one not in found for one in removes)


def only_doubled(base: Base, removes: Sequence[Wish]) -> bool:
    """Whether nothing is to go but versions that a newer one, which stays, has taken the place of. Of install-only
    packages each has a place of its own."""
    installed = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed().filter(name=[one.name for one in removes])
    several = base._get_installonly_query(installed)
    unwanted = set(removes)
    newest: Dict[Tuple[str, str], dnf.package.Package] = {}
    found: Dict[Wish, dnf.package.Package] = {}
    for package in sorted(installed.difference(several)):
        wish = _wish(package)
        if wish in unwanted:
            found[wish] = package
        else:
            newest[package.name, package.arch] = package
    return all(one in found and found[one] < newest.get((one.name, one.arch), found[one]) for one in removes)


def _of_names(query: hawkey.Query, wanted: Sequence[Wish]) -> Dict[Wish, dnf.package.Package]:
    """The packages of a query that have one of the names.

    One query for all: each walks over all packages there are.
    """
    found: Dict[Wish, dnf.package.Package] = {}
    for package in query.filter(name=[one.name for one in wanted]):
        found.setdefault(_wish(package), package)
    return found


def _wish(package: dnf.package.Package) -> Wish:
    return Wish(package.reponame, package.name, package.arch, package.evr)


def _shown(wish: Wish) -> str:
    return f"{wish.name}-{wish.evr}.{wish.arch}"


def solve(base: Base, marks: Marks) -> List[Change]:
    """Solves the marked Base. YumBaseError or dnf's DepsolveError has the solver's problems as its text."""
    _protect(base)
    if not (_resolve_both if marks.incoming and marks.removed else _resolve)(base, marks):
        raise YumBaseError(_("Nothing to do: the system is already as it was asked to be."))
    _require_marks(base, marks)
    _require_doubled(base, marks)
    return _changes(base, marks.tuples())


def _protect(base: Base) -> None:
    # dnf itself leaves out what is excluded.
    protected = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).filter(name=base.conf.protected_packages)
    base._goal.add_protected(protected)


def _resolve(base: Base, marks: Marks) -> bool:
    return bool(base.resolve(allow_erasing=bool(marks.removed)))


def _resolve_both(base: Base, marks: Marks) -> bool:
    """Lets the removals take along what needs the removed, and the rest nothing: as each would alone."""
    done = _resolve(base, marks)
    marked = set(map(_pkgtup, marks.removed))
    going = [package for package in base.goal.list_erasures() if _pkgtup(package) not in marked]
    # Nothing needs these any more, maybe since something else is updated.
    pushed = [package for package in going if base.goal.get_reason(package) != lt.TransactionItemReason_CLEAN]
    if not pushed:
        return done
    dependent = _gone_without(base, marks.removed)
    if all(_pkgtup(package) in dependent for package in pushed):
        return done
    base.reset(goal=True)
    _put(base, marks, [package for package in going if _pkgtup(package) in dependent])
    _protect(base)
    return bool(base.resolve(allow_erasing=False))


def _gone_without(base: Base, removed: Sequence[dnf.package.Package]) -> Set[PkgTup]:
    """What goes when these packages are removed and nothing else is done."""
    sack = dnf.sack._build_sack(base)
    sack.load_system_repo(build_cache=False)
    installed = sack.query().installed()
    unwanted = set(map(_pkgtup, removed))
    goal = dnf.goal.Goal(sack)
    for package in installed.filter(name=[one.name for one in removed]):
        if _pkgtup(package) in unwanted:
            goal.erase(package, clean_deps=base.conf.clean_requirements_on_remove)
    goal.push_userinstalled(installed, base.history)
    goal.run(allow_uninstall=True)
    return set(map(_pkgtup, goal.list_erasures()))


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

    obsoleted = set(map(_pkgtup, goal.list_obsoleted()))
    replaced: Dict[PkgTup, dnf.package.Package] = {}
    replacing: Dict[PkgTup, int] = {}
    for package, kind in _incoming(base):
        olds = goal.obsoleted_by_package(package)
        versions = [old for old in olds if old.name == package.name]
        if kind == UPGRADE and versions:
            # Who reads of the update knows that the old version goes; not so of the same in other architectures.
            ours = base.conf.substitutions["arch"]
            versions.remove(min(versions, key=lambda old: (old.arch != package.arch, old.arch != ours)))
        replaced.update((_pkgtup(old), old) for old in versions)
        for old in olds:
            if old.name != package.name and _pkgtup(old) in obsoleted:
                replacing[_pkgtup(old)] = len(changes)
        add(package, kind)
    for package in goal.list_obsoleted():
        if _pkgtup(package) in replacing:
            add(package, OBSOLETED, replacing[_pkgtup(package)])
    for package in goal.list_erasures():
        add(package, REMOVE)
    for pkgtup, package in replaced.items():
        if pkgtup not in replacing:
            add(package, REPLACED)
    return changes


def enabled_streams(base: Base) -> List[str]:
    """The module streams that the solved transaction enables, each as "name:stream"."""
    modules = base._moduleContainer
    if modules is None:
        return []
    enabled = modules.getEnabledStreams()
    return sorted(f"{name}:{enabled[name]}" for name in enabled)
