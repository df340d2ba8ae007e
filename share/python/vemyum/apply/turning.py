# SPDX-License-Identifier: GPL-2.0-or-later
"""From a wish about the history to the list of changes: what was done is undone, done again, or rolled back.

What comes of it is what the library's own command line would do, but that what cannot be done is told for each package
before anything happens, and that only then, if the user wants that, the rest is done.
"""

from __future__ import annotations

from typing import Dict, Iterable, List, NamedTuple, Protocol, Sequence, Set

from ..backend import PkgTup
from ..errors import YumBaseError
from ..packages import pkgtup, shown
from ..texts import _
from ..transactions import FAILED, INCOMING, OUTGOING, Item, Records
from .messages import REDO, ROLL_BACK, UNDO, Past
from .solving import NOTHING, Solution, Solved, Solver, told


_CHANGED = _("{package} has been changed since then: installed is {present}.")


class Obstructed(Exception):
    """Something cannot be done; the user may want the rest all the same. `texts` are sentences, each about a package or
    a group."""

    def __init__(self, texts: Sequence[str]) -> None:
        super().__init__("\n".join(texts))
        self.texts = list(texts)


class Aim(NamedTuple):
    """What a wish about the history comes to, by what is there now."""

    past: Past
    numbers: List[int]
    """Of the transactions, the latest first."""
    present: Set[PkgTup]
    """What is installed of the names in them."""
    named: Set[PkgTup]
    """All that they tell of."""
    wanted: Set[PkgTup]
    """What is to be there in the end."""
    leaving: Set[PkgTup]
    """What is not."""
    changed: Dict[PkgTup, str]
    """What came or went, of which there is now a version that the transactions don't tell of, and what is told of that."""

    def surplus(self) -> Set[PkgTup]:
        """What is there and goes, and leaves no other version behind."""
        kept = {key[:2] for key in self.wanted}
        return {key for key in self.leaving & self.present if key[:2] not in kept}


class Turner(Solver, Protocol):
    def turn(self, aim: Aim) -> Solution:
        """Solves it; nothing else goes, unless there is no other way. Calls `require_unobstructed`. YumBaseError or a
        failure of the library with the solver's problems as its text."""


def require_unobstructed(aim: Aim, obstacles: Iterable[str]) -> None:
    """Obstructed by what has been changed and these obstacles, unless the user wants to go on without."""
    texts = list(dict.fromkeys((*aim.changed.values(), *obstacles)))
    if texts and not aim.past.without:
        raise Obstructed(texts)


def turn(turner: Turner, past: Past, records: Records) -> Solved:
    """Obstructed; YumBaseError for a transaction that isn't there, and where nothing is to be done; else as
    `Turner.turn`."""
    with records.reading() as reader:
        if reader.head(past.number) is None:
            raise YumBaseError(_("The history has no transaction {number}.").format(number=past.number))
        numbers = [past.number]
        if past.kind == ROLL_BACK:
            numbers = [head.number for head in reader.heads() if head.number > past.number]
        steps = [[item for item in reader.items(number) if item.state != FAILED] for number in numbers]
    if not numbers:
        raise YumBaseError(NOTHING)
    aim = _aim(turner, past, numbers, steps)
    solution = turner.turn(aim)
    if not solution.incoming and not solution.removed:
        raise YumBaseError(NOTHING)
    return told(turner, aim.named, solution)


def _aim(turner: Turner, past: Past, numbers: List[int], steps: Sequence[Sequence[Item]]) -> Aim:
    """`steps` are the packages of the transactions."""
    items = [item for step in steps for item in step]
    names = sorted({item.name for item in items})
    present = set(map(pkgtup, turner.installed(names))) if names else set()
    came = {item.pkgtup() for item in items if item.action in INCOMING}
    went = {item.pkgtup() for item in items if item.action in OUTGOING}
    if past.kind == ROLL_BACK:
        then = set(present)
        for step in steps:
            then.difference_update(item.pkgtup() for item in step if item.action in INCOMING)
            then.update(item.pkgtup() for item in step if item.action in OUTGOING)
        wanted, leaving = then - present, present - then
    else:
        wanted, leaving = (went, came) if past.kind == UNDO else (came, went)
    several = {name for name, *_rest in turner.install_only(names)} if names else set()
    changed = {}
    # What is done once more takes the place of whatever there is.
    again = {key[:2] for key in wanted} if past.kind == REDO else set()
    for key in sorted(one for one in (came | went) - present if one[:2] not in again):
        there = [one for one in present if one[:2] == key[:2] and one not in came | went]
        if there and key[0] not in several:
            versions = ", ".join(map(shown, sorted(there)))
            changed[key] = _CHANGED.format(package=".".join(key[:2]), present=versions)
    return Aim(past, numbers, present, {item.pkgtup() for item in items}, wanted, leaving, changed)
