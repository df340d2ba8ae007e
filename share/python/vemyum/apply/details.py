# SPDX-License-Identifier: GPL-2.0-or-later
"""What the user is told of each package of a solved transaction, beyond the list: which version takes which one's place,
and why.

A solver doesn't tell why it adds a package. What is told here is read in the dependencies of all that comes in or goes.
"""

from __future__ import annotations

import re
from typing import Any, Collection, Dict, Iterable, List, NamedTuple, Optional, Protocol, Sequence, Set, Tuple

from .. import versions
from ..backend import Dependency, PkgTup
from ..database import running_kernel
from ..packages import pkgtup, shown_repository
from ..text import valid
from .messages import (
    DOWNGRADE,
    INSTALL,
    MARKED,
    NEEDS,
    OBSOLETED,
    OLDER,
    PROTECTED,
    RECOMMENDED,
    REINSTALL,
    REMOVE,
    REQUIRED,
    RUNNING,
    SOLVER,
    SUPPLANTED,
    SURPLUS,
    SYSTEM,
    TOGETHER,
    UNCHECKED,
    UNMARKED,
    UNNEEDED,
    UPGRADE,
    Detail,
)

_MOST_NAMES = 5
_ORDER = (REMOVE, OBSOLETED, DOWNGRADE, UPGRADE, INSTALL, REINSTALL)
_IN_RICH = {"and", "or", "if", "else", "with", "without", "unless", "=", "<", ">", "<=", ">="}


class Facts(Protocol):
    """A library, with the transaction solved. Packages are its rows."""

    native: str
    """The architecture of this machine."""
    root: str
    """Of the managed system."""

    def dependencies(self, package: Any, kind: str) -> List[Dependency]:
        """`kind` is "provides", "requires", "recommends" or "supplements"."""

    def files(self, package: Any) -> Iterable[str]:
        """As far as the metadata in memory tells them."""

    def installed_size(self, package: Any) -> int:
        """Bytes on the disk."""

    def checksum(self, package: Any) -> Optional[str]: ...

    def protected(self) -> Collection[str]:
        """Names."""

    def asks_for_signature(self, package: Any) -> bool:
        """Whether its repository wants signatures of packages."""


class Details(NamedTuple):
    """Of a whole transaction; the rows that want attention stand first."""

    rows: List[Detail]
    growth: int
    """How many bytes more the packages take on the disk, below zero for less."""


def details(facts: Facts, marked: Set[PkgTup], solution: Any) -> Details:
    """`solution` is a `solving.Solution`."""
    return _Telling(facts, marked, solution).told()


class _Telling:
    def __init__(self, facts: Facts, marked: Set[PkgTup], solution: Any) -> None:
        self._facts = facts
        self._marked = marked
        self._solution = solution
        self._protected = set(facts.protected())
        self._kernel = running_kernel(facts.root) if solution.removed else None
        self._checks: Dict[str, bool] = {}
        self._growth = 0
        self._rows: List[Detail] = []

    def told(self) -> Details:
        gone: Dict[PkgTup, Tuple[Any, List[str]]] = {}
        """What gives way to what comes in, with the names of that."""
        paired: Set[PkgTup] = set()
        beside: Set[str] = set()
        """The names of what comes in and takes no version's place."""
        coming = [one.package for one in self._solution.incoming]
        reasons = _Reasons(self._facts, [one for one in coming if pkgtup(one) not in self._marked], coming)
        for package, kind, olds in self._solution.incoming:
            old = counterpart(package, olds, self._facts.native)
            if old is None:
                beside.add(package.name)
            else:
                paired.add(pkgtup(old))
            for one in olds:
                gone.setdefault(pkgtup(one), (one, []))[1].append(package.name)
            replaces = sorted({one.name for one in olds if one.name != package.name})
            why, whom = (MARKED, []) if pkgtup(package) in self._marked else reasons.of(package, old)
            self._incoming(package, _action(package, old, kind), old, why, whom, replaces)
        leaving = [*self._solution.removed, *(package for package, _names in gone.values())]
        needs = _Needs(self._facts, leaving)
        for package in self._solution.removed:
            key = pkgtup(package)
            if key in self._marked:
                self._outgoing(package, REMOVE, MARKED, [])
            elif key in self._solution.unneeded:
                self._outgoing(package, REMOVE, UNNEEDED, [])
            elif package.name in beside:
                self._outgoing(package, REMOVE, SURPLUS, [])
            else:
                lost = needs.of(package)
                self._outgoing(package, REMOVE, NEEDS if lost else SOLVER, lost)
        for key, (package, names) in gone.items():
            if key in paired:
                self._growth -= self._facts.installed_size(package)
            else:
                action = REMOVE if package.name in names else OBSOLETED
                self._outgoing(package, action, SUPPLANTED, sorted(set(names)))
        self._rows.sort(key=_attention)
        return Details(self._rows, self._growth)

    def _incoming(
        self, package: Any, action: str, old: Any, why: str, whom: List[str], replaces: List[str]
    ) -> None:
        self._growth += self._facts.installed_size(package)
        repository = package.reponame
        if repository not in self._checks:
            self._checks[repository] = self._facts.asks_for_signature(package)
        warnings = [OLDER] if action == DOWNGRADE else []
        if not self._checks[repository]:
            warnings.append(UNCHECKED)
        self._rows.append(
            Detail(
                action,
                package.name,
                package.arch,
                "" if old is None else old.evr,
                package.evr,
                shown_repository(repository),
                int(package.size),
                why,
                whom[:_MOST_NAMES],
                max(0, len(whom) - _MOST_NAMES),
                replaces,
                warnings,
                self._facts.checksum(package) or "",
            )
        )

    def _outgoing(self, package: Any, action: str, why: str, whom: List[str]) -> None:
        size = self._facts.installed_size(package)
        self._growth -= size
        warnings = []
        if package.name in self._protected:
            warnings.append(PROTECTED)
        if pkgtup(package) == self._kernel:
            warnings.append(RUNNING)
        if why in (NEEDS, UNNEEDED, SOLVER):
            warnings.append(UNMARKED)
        more = max(0, len(whom) - _MOST_NAMES)
        self._rows.append(
            Detail(
                action, package.name, package.arch, package.evr, "", SYSTEM, size, why, whom[:_MOST_NAMES], more, [],
                warnings, "",
            )
        )


def counterpart(package: Any, olds: Sequence[Any], native: str) -> Any:
    """Of the versions that give way to the package, the one whose place it takes; None for none."""
    namesakes = [old for old in olds if old.name == package.name]
    return min(namesakes, key=lambda old: (old.arch != package.arch, old.arch != native), default=None)


def _action(package: Any, old: Any, kind: str) -> str:
    if old is None:
        return INSTALL
    order = versions.compare(package, old)
    if order == 0:
        return UPGRADE if kind == UPGRADE else REINSTALL
    return UPGRADE if order > 0 else DOWNGRADE


def _attention(row: Detail) -> Tuple[bool, int, str, str]:
    # Where no repository is asked for signatures, each package that comes in has that warning.
    serious = any(warning != UNCHECKED for warning in row.warnings)
    return (not serious, _ORDER.index(row.action), row.name, row.arch)


class _Providers:
    """Of some packages: by a capability, the names of those that have it."""

    def __init__(self, facts: Facts, packages: Sequence[Any]) -> None:
        self._facts = facts
        self._packages = packages
        self._by_name: Dict[str, Set[str]] = {}
        self._files: Optional[Dict[str, Set[str]]] = None
        for package in packages:
            for name, _flag, _version in facts.dependencies(package, "provides"):
                self._by_name.setdefault(name, set()).add(package.name)

    def of(self, dependency: Dependency) -> Set[str]:
        found: Set[str] = set()
        for name in _names(dependency[0]):
            found |= self._by_name.get(name, set())
            if name.startswith("/"):
                found |= self._having(name)
        return found

    def _having(self, path: str) -> Set[str]:
        if self._files is None:
            self._files = {}
            for package in self._packages:
                for file in self._facts.files(package):
                    self._files.setdefault(valid(file), set()).add(package.name)
        return self._files.get(path, set())


def _names(text: str) -> List[str]:
    """Of a rich dependency, "(a if b >= 1)", all the names in it."""
    if not text.startswith("("):
        return [text]
    words = [word.lstrip("(") for word in text.split()]
    # The name of a capability may end in brackets of its own.
    words = [word[: len(word) - max(0, word.count(")") - word.count("("))] for word in words]
    return [word for word in words if word and word not in _IN_RICH]


class _Reasons:
    """Why a package comes in that nobody has marked."""

    def __init__(self, facts: Facts, added: Sequence[Any], coming: Sequence[Any]) -> None:
        self._facts = facts
        self._coming: Optional[_Providers] = None
        self._all = coming
        self._strictly: Dict[str, Set[str]] = {}
        self._loosely: Dict[str, Set[str]] = {}
        self._weakly: Dict[str, Set[str]] = {}
        if not added:
            return
        providers = _Providers(facts, added)
        for package in coming:
            for dependency in facts.dependencies(package, "requires"):
                told = self._loosely if dependency[1] is None else self._strictly
                _note(told, providers.of(dependency), package.name)
            for dependency in facts.dependencies(package, "recommends"):
                _note(self._weakly, providers.of(dependency), package.name)

    def of(self, package: Any, old: Any) -> Tuple[str, List[str]]:
        strictly, loosely = self._strictly.get(package.name, set()), self._loosely.get(package.name, set())
        # What the installed version satisfies as well hasn't brought the newer one in.
        requiring = (strictly or loosely) if old is not None else strictly | loosely
        if requiring:
            return REQUIRED, sorted(requiring)
        weakly = self._weakly.get(package.name, set()) | self._others(package, "supplements")
        if weakly:
            return RECOMMENDED, sorted(weakly)
        along = self._others(package, "requires")
        return (TOGETHER, sorted(along)) if along else (SOLVER, [])

    def _others(self, package: Any, kind: str) -> Set[str]:
        if self._coming is None:
            self._coming = _Providers(self._facts, self._all)
        found: Set[str] = set()
        for dependency in self._facts.dependencies(package, kind):
            found |= self._coming.of(dependency)
        return found - {package.name}


def _note(told: Dict[str, Set[str]], names: Set[str], wanting: str) -> None:
    for name in names:
        if name != wanting:
            told.setdefault(name, set()).add(wanting)


class _Needs:
    """What of all that goes a package needs that goes along."""

    def __init__(self, facts: Facts, leaving: Sequence[Any]) -> None:
        self._facts = facts
        self._leaving = leaving
        self._providers: Optional[_Providers] = None

    def of(self, package: Any) -> List[str]:
        if self._providers is None:
            self._providers = _Providers(self._facts, self._leaving)
        found: Set[str] = set()
        for dependency in self._facts.dependencies(package, "requires"):
            found |= self._providers.of(dependency)
        return sorted(found - {package.name})
