# SPDX-License-Identifier: GPL-2.0-or-later
"""The differences that are meant: one table. Whatever no rule explains is a fault.

A rule never says that something may differ. It says what the helper package is to do instead: the same as the command
line does when it is asked in another way, or what the rule's own function looks at in full.
"""

from __future__ import annotations

import fnmatch
from typing import Callable, Dict, List, NamedTuple, Optional, Tuple

from case import Case
from sides import Applied, Asked, Ran
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
    concerns: Callable[[Outcome], bool]
    """Whether the case is one of those that the rule speaks of."""
    ask: Optional[Callable[[Asked], Asked]] = None
    """How else the command line is asked then; without it, all that differs is explained by `concerns`."""


def _marks_updates(outcome: Outcome) -> bool:
    return bool(outcome.applied.wish.updates)


def _removes_excluded(outcome: Outcome) -> bool:
    patterns = outcome.case.main.get("excludepkgs", "").split()
    return any(fnmatch.fnmatchcase(name, pattern) for name in outcome.applied.wish.removes for pattern in patterns)


def _late_scriptlet_failed(outcome: Outcome) -> bool:
    """Everything is as it should be, but for what a scriptlet has to say."""
    told = "Error in POSTIN scriptlet"
    return (
        set(outcome.differences) == {"outcome"}
        and outcome.ran.status == 0
        and told in outcome.ran.words
        and told in outcome.applied.refused
    )


RULES = (
    Rule(
        "a scriptlet that fails behind an installation is told as a failure",
        "dnf writes a line about it and succeeds; the package is in, but may not work, which nobody is to find out by "
        "chance.",
        _late_scriptlet_failed,
    ),
    Rule(
        "a marked update is insisted upon",
        '"dnf upgrade" of a version leaves it out where anything is in the way, says so in passing, and may even update '
        'to another version; it shuns some that can be had. "dnf install" of the same version takes it or says why not.',
        _marks_updates,
        lambda asked: asked._replace(insisting=True),
    ),
    Rule(
        "an excluded package can be removed",
        "What excludepkgs names can't be removed by dnf, which acts as if it weren't installed. The table shows it, and "
        "it can be removed like any other.",
        _removes_excluded,
        lambda asked: asked._replace(options=(*asked.options, "--disableexcludes=main")),
    ),
)


def explanation(outcome: Outcome, again: Callable[[Asked], Outcome]) -> Tuple[str, Outcome]:
    """The names of the rules that explain the differences of a case, empty where something is left; and the outcome
    that comes nearest. `again` has the command line carry out the wish once more, asked otherwise."""
    asked = Asked()
    names: List[str] = []
    for rule in RULES:
        if rule.ask is not None and rule.concerns(outcome):
            names.append(rule.name)
            asked = rule.ask(asked)
            outcome_again = again(asked)
            if not outcome_again.differences:
                return " + ".join(names), outcome_again
            direct = _direct(outcome_again)
            if direct:
                return " + ".join([*names, direct]), outcome_again
    direct = _direct(outcome)
    return direct, outcome


def _direct(outcome: Outcome) -> str:
    return next((rule.name for rule in RULES if rule.ask is None and rule.concerns(outcome)), "")
