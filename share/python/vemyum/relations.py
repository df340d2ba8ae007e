# SPDX-License-Identifier: GPL-2.0-or-later
"""What the description of one package tells of others: who needs it, what it needs, why it is there, what advisories
name it, which other versions there are.

An answer is lines, each of pieces: a text, or a `Link` to the description of a package. Everything is read when it is
asked for, and takes a second at most with tens of thousands of packages.
"""

from __future__ import annotations

import time
from typing import Any, Callable, Dict, List, NamedTuple, Optional, Sequence, Set, Tuple, Union

from . import versions
from .backend import Advice, PutIn, Reason, Row, System
from .details import PackageDetails
from .packages import AvailablePackage, InstalledPackage, Package, pkgtup, shown
from .people import user_name
from .text import valid
from .texts import _

INSTALLED, UPDATE, AVAILABLE = "installed", "update", "available"
"""How a package stands."""

_SYSTEM = "@System"
_FEW = 5
"""So many packages that satisfy one requirement are named."""


class Link(NamedTuple):
    """`state` is one of the three words above; `installed` is what an update would take the place of."""

    text: str
    package: Package
    state: str
    installed: List[InstalledPackage]


Piece = Union[str, Link]
Line = List[Piece]


def told(kind: str, package: Package, most: int, system: System, details: PackageDetails) -> Tuple[List[Line], int]:
    """At most that many lines, and how many there are. `kind` is "requiredBy", "recommendedBy", "satisfiedBy", "why",
    "advisories" or "versions"; KeyError for another one. Packages stand in the lists installed ones first."""
    return _KINDS[kind](_Around(package, most, system, details))


class _Around:
    def __init__(self, package: Package, most: int, system: System, details: PackageDetails) -> None:
        self.row = package.po
        self.most = most
        self.system = system
        self._details = details
        self._present: Optional[Dict[Tuple[str, str], List[Row]]] = None

    # Of whom the package is wanted --------------------------------------------------------------------------------

    def wanting(self, kind: str) -> Tuple[List[Line], int]:
        found = [row for row in self.system.wanting([self.row], kind) if not self._is_itself(row)]
        found.sort(key=lambda row: (row.reponame != _SYSTEM, row.name, row.arch))
        # What is installed is offered too.
        packages = list({pkgtup(row): row for row in reversed(found)}.items())[::-1]
        return [self._package_line(row) for _key, row in packages[: self.most]], len(packages)

    def _is_itself(self, row: Row) -> bool:
        """Whatever the version: who needs an older form of itself is not somebody else."""
        return row.name == self.row.name and row.arch == self.row.arch

    # What it wants ------------------------------------------------------------------------------------------------

    def satisfied(self) -> Tuple[List[Line], int]:
        lines: List[Line] = []
        for requirement, rows in sorted(self.system.satisfying(self.row, "requires")):
            # rpm's own abilities are no package's.
            if not requirement.startswith("rpmlib("):
                lines.append([f"{valid(requirement)}: ", *self._satisfying(rows)])
        return lines[: self.most], len(lines)

    def _satisfying(self, rows: Sequence[Row]) -> Line:
        if any(pkgtup(row) == pkgtup(self.row) for row in rows):
            return [_("the package itself")]
        if not rows:
            return [_("nothing that is installed or offered")]
        there = [row for row in rows if row.reponame == _SYSTEM]
        newest: Dict[Tuple[str, str], Row] = {}
        for row in there or rows:
            known = newest.get((row.name, row.arch))
            if known is None or versions.compare(row, known) > 0:
                newest[row.name, row.arch] = row
        chosen = [newest[key] for key in sorted(newest)]
        pieces: Line = []
        for row in chosen[:_FEW]:
            pieces += [", ", *self._package_line(row)] if pieces else self._package_line(row)
        if len(chosen) > _FEW:
            pieces.append(" " + _("and {count} more").format(count=len(chosen) - _FEW))
        return pieces

    # Why it is there ----------------------------------------------------------------------------------------------

    def why(self) -> Tuple[List[Line], int]:
        row = self._installed_form()
        if row is None:
            return [[_("It is not installed.")]], 1
        reasons = {pkgtup(one): reason for one, reason in self.system.reasons()}
        reason = reasons.get(pkgtup(row), Reason.UNKNOWN)
        lines: List[Line] = [[_REASONS[reason]]]
        lines += [[text] for text in self._put_in(row)]
        if reason in (Reason.DEPENDENCY, Reason.WEAK, Reason.UNKNOWN):
            chain = self._chain(row, reasons)
            # Where nobody knows of this one, nobody may know of the others either.
            lines += chain if len(chain) > 1 or reason is not Reason.UNKNOWN else []
        return lines, len(lines)

    def _installed_form(self) -> Optional[Row]:
        """The package, or what it would take the place of; the newest of several."""
        there = self._namesakes(self.row.name, self.row.arch)
        same = [row for row in there if pkgtup(row) == pkgtup(self.row)]
        return (same or there or [None])[-1]

    def _put_in(self, row: Row) -> List[str]:
        texts = []
        told = self.system.put_in(row)
        latest = next((one for one in told if one.evr == f"{int(row.epoch)}:{row.version}-{row.release}"), None)
        first = next((one for one in told if one.first), None)
        if first is not None:
            texts.append(_transaction(_("Installed by transaction {number}, {time}"), first))
        if latest is not None and latest.number != (first.number if first is not None else None):
            texts.append(_transaction(_("This version came with transaction {number}, {time}"), latest))
        return texts or [_("The history of transactions doesn't tell when it came.")]

    def _chain(self, row: Row, reasons: Dict[Any, Reason]) -> List[Line]:
        """What needs it, what needs that, and so on, up to a package that somebody asked for."""
        levels: List[Dict[Any, Row]] = [{pkgtup(row): row}]
        seen: Set[Any] = set(levels[0])
        asked: Optional[Row] = None
        while asked is None and levels[-1]:
            above: Dict[Any, Row] = {}
            for kind in ("requires", "recommends"):
                for one in self.system.wanting(list(levels[-1].values()), kind, installed_only=True):
                    if pkgtup(one) not in seen:
                        above.setdefault(pkgtup(one), one)
            seen.update(above)
            levels.append(above)
            wanted = [one for key, one in above.items() if reasons.get(key) in (Reason.USER, Reason.GROUP)]
            asked = min(wanted, key=lambda one: one.name, default=None)
        if asked is None:
            needed = bool(levels[1])
            return [[_("Nobody asked for what needs it.") if needed else _("Nothing that is installed needs it.")]]
        lines: List[Line] = [[*self._package_line(asked), ": ", _REASONS[reasons[pkgtup(asked)]]]]
        for level in reversed(levels[: len(levels) - 1]):
            kind, requirement, asked = self._step(asked, level)
            words = _("requires {requirement}") if kind == "requires" else _("recommends {requirement}")
            lines.append([words.format(requirement=valid(requirement)) + ": ", *self._package_line(asked)])
        return lines

    def _step(self, row: Row, level: Dict[Any, Row]) -> Tuple[str, str, Row]:
        """Which package of the level the row wants, and by what."""
        for kind in ("requires", "recommends"):
            for requirement, rows in self.system.satisfying(row, kind):
                for one in rows:
                    if one.reponame == _SYSTEM and pkgtup(one) in level:
                        return kind, requirement, level[pkgtup(one)]
        # By a dependency that holds under conditions.
        return "requires", "…", next(iter(level.values()))

    # Advisories ---------------------------------------------------------------------------------------------------

    def advisories(self) -> Tuple[List[Line], int]:
        there = self._namesakes(self.row.name, self.row.arch)
        best: Dict[str, Advice] = {}
        for one in self.system.advice(self.row):
            known = best.get(one.id)
            if known is None or versions.compare(one, known) < 0:
                best[one.id] = one
        found = sorted(best.values(), key=lambda one: (-one.issued, one.id))
        lines: List[Line] = []
        for one in found[: self.most]:
            done = any(versions.compare(row, one) >= 0 for row in there)
            kind = ", ".join(filter(None, (_TYPES.get(one.kind, one.kind), valid(one.severity))))
            words = [f"{valid(one.id)} ({kind})" if kind else valid(one.id), valid(one.title)]
            words += [_date(one.issued), _("installed") if done else _("not installed")]
            lines.append([", ".join(filter(None, words))])
        return lines, len(found)

    # Versions -----------------------------------------------------------------------------------------------------

    def versions(self) -> Tuple[List[Line], int]:
        rows = sorted(self.system.versions(self.row.name), key=lambda row: (row.arch, row.reponame))
        rows.sort(key=versions.oldest_first, reverse=True)
        lines: List[Line] = []
        for row in rows:
            if pkgtup(row) == pkgtup(self.row) and row.reponame == self.row.reponame:
                lines.append([self._words(row)])
            else:
                lines.append([self._link(row, self._words(row))])
        return lines[: self.most], len(lines)

    def _words(self, row: Row) -> str:
        repository = _("installed") if row.reponame == _SYSTEM else valid(row.reponame)
        return f"{valid(row.evr)}.{valid(row.arch)} ({repository})"

    # Packages -----------------------------------------------------------------------------------------------------

    def _package_line(self, row: Row) -> Line:
        note = _("installed") if row.reponame == _SYSTEM else valid(row.reponame)
        return [self._link(row, valid(shown(pkgtup(row)))), f" ({note})"]

    def _link(self, row: Row, text: str) -> Link:
        if row.reponame == _SYSTEM:
            return Link(text, InstalledPackage(row, self._details), INSTALLED, [])
        older = [one for one in self._namesakes(row.name, row.arch) if versions.compare(row, one) > 0]
        package = AvailablePackage(row, self._details)
        return Link(text, package, UPDATE if older else AVAILABLE, [InstalledPackage(one, self._details) for one in older])

    def _namesakes(self, name: str, arch: str) -> List[Row]:
        """What is installed of that name, of that architecture if there is such a thing; the oldest first."""
        if self._present is None:
            self._present = {}
            for row in self.system.installed():
                self._present.setdefault((row.name, row.arch), []).append(row)
                self._present.setdefault((row.name, ""), []).append(row)
        found = self._present.get((name, arch)) or self._present.get((name, ""), [])
        return sorted(found, key=versions.oldest_first)


def _transaction(template: str, one: PutIn) -> str:
    moment = time.strftime("%Y-%m-%d %H:%M", time.localtime(one.begun))
    text = template.format(number=one.number, time=moment)
    who = user_name(one.user)
    if who:
        text += ", " + _("by {user}").format(user=who)
    return f"{text}: {valid(one.command)}" if one.command else text


def _date(seconds: int) -> str:
    return time.strftime("%Y-%m-%d", time.gmtime(seconds)) if seconds else ""


_REASONS: Dict[Reason, str] = {
    Reason.USER: _("The user asked for it."),
    Reason.GROUP: _("It came with a group."),
    Reason.DEPENDENCY: _("Other packages require it."),
    Reason.WEAK: _("Other packages recommend it."),
    Reason.UNKNOWN: _("Nobody knows why it is installed."),
}
_TYPES = {
    "security": _("security"),
    "bugfix": _("bug fix"),
    "enhancement": _("enhancement"),
    "newpackage": _("new package"),
}
_KINDS: Dict[str, Callable[[_Around], Tuple[List[Line], int]]] = {
    "requiredBy": lambda around: around.wanting("requires"),
    "recommendedBy": lambda around: around.wanting("recommends"),
    "satisfiedBy": _Around.satisfied,
    "why": _Around.why,
    "advisories": _Around.advisories,
    "versions": _Around.versions,
}
