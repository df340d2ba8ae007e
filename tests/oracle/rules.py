# SPDX-License-Identifier: GPL-2.0-or-later
"""The differences that are meant: one table. Whatever no rule explains is a fault."""

from __future__ import annotations

from typing import Callable, Dict, List, NamedTuple

from case import Case
from sides import Applied, Ran
from state import State


class Outcome(NamedTuple):
    """Both sides of a case. States are what was there before, and what each side has left."""

    case: Case
    applied: Applied
    ran: Ran
    before: State
    ours: State
    theirs: State
    differences: Dict[str, List[str]]
    """By kind: "outcome" and those of the states; lines with - are ours, with + theirs. None of them is empty."""


class Rule(NamedTuple):
    name: str
    reason: str
    explains: Callable[[Outcome], bool]
    """Whether all differences of this case are the rule's."""


def _untouched(outcome: Outcome) -> bool:
    return outcome.ours == outcome.before


def _gives_way(outcome: Outcome) -> bool:
    if not (outcome.applied.wish.updates and outcome.applied.refused and _untouched(outcome)):
        return False
    rows = {row.name: row for row in outcome.applied.read.rows}
    marked = [rows[name].newer for name in outcome.applied.wish.updates]
    return outcome.ran.status == 0 and any(package not in outcome.theirs["packages"] for package in marked)


RULES = (
    Rule(
        "a marked update is never left out in silence",
        '"dnf upgrade" leaves out an update whose dependencies cannot be met, says so in passing and succeeds; who '
        "marked it here is told that it cannot be had, and nothing is changed.",
        _gives_way,
    ),
)


def explanation(outcome: Outcome) -> str:
    """The name of the rule that explains the differences of a case; empty for none."""
    return next((rule.name for rule in RULES if rule.explains(outcome)), "")
