# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library makes of a wish about its history."""

from __future__ import annotations

from typing import Any, Collection, Sequence

import libdnf5.base
import libdnf5.rpm
import libdnf5.transaction

from ..apply.messages import REDO, ROLL_BACK, Past
from ..apply.turning import Aim, require_unobstructed
from ..backend import PkgTup
from ..errors import YumBaseError
from ..text import valid
from .base import Base
from .rows import pkgtup

_NO_OBSTACLES = (
    # Of the whole.
    libdnf5.base.GoalProblem_NO_PROBLEM,
    libdnf5.base.GoalProblem_SOLVER_ERROR,
    # What is there already need not be done, and what has been changed since is known.
    libdnf5.base.GoalProblem_ALREADY_INSTALLED,
    libdnf5.base.GoalProblem_INSTALLED_IN_DIFFERENT_VERSION,
    libdnf5.base.GoalProblem_MERGE_ERROR,
    libdnf5.base.GoalProblem_NOT_INSTALLED,
    libdnf5.base.GoalProblem_NOT_INSTALLED_FOR_ARCHITECTURE,
    # What comes along is listed before the question.
    libdnf5.base.GoalProblem_EXTRA,
)


def turned(base: Base, aim: Aim, surplus: Sequence[Any]) -> Any:
    """The solved transaction, see `apply.turning.Turner`. `surplus` is what goes and leaves no other version behind."""
    if aim.past.without:
        _hide(base, aim.changed)
    history = base.library.get_transaction_history()
    chosen = libdnf5.transaction.VectorTransaction()
    # It takes them in the order in which they happened.
    for number in reversed(aim.numbers):
        for one in history.list_transactions(number, number):
            chosen.append(one)
    transaction = _goal(aim.past, chosen, False, base).resolve()
    obstacles = [one for one in transaction.get_resolve_logs() if one.get_problem() not in _NO_OBSTACLES]
    require_unobstructed(aim, [valid(one.to_string()) for one in obstacles])
    without = aim.past.without
    for erasing in (False, True):
        if transaction.get_problems() != libdnf5.base.GoalProblem_NO_PROBLEM:
            goal = _goal(aim.past, chosen, without, base)
            if without:
                # Together with what isn't there, the library forgets some of what is to go.
                for package in surplus:
                    goal.add_rpm_remove(package, _keeping_dependencies())
            goal.set_allow_erasing(erasing)
            transaction = goal.resolve()
    if transaction.get_problems() != libdnf5.base.GoalProblem_NO_PROBLEM:
        raise YumBaseError("\n".join(map(valid, transaction.get_resolve_logs_as_strings())))
    return transaction


def _goal(past: Past, chosen: Any, without: bool, base: Base) -> Any:
    """`without` what no repository has, and what isn't as the transactions have left it."""
    goal = libdnf5.base.Goal(base.library)
    settings = libdnf5.base.GoalJobSettings()
    # Else what is there already is a problem where it is done once more.
    settings.set_ignore_installed(without or past.kind == REDO)
    settings.set_ignore_extras(True)
    settings.set_override_reasons(past.kind in (REDO, ROLL_BACK))
    if without:
        settings.set_skip_unavailable(libdnf5.base.GoalSetting_SET_TRUE)
    if past.kind == REDO:
        goal.add_redo_transaction(chosen[0], settings)
    else:
        goal.add_revert_transactions(chosen, settings)
    return goal


def _hide(base: Base, packages: Collection[PkgTup]) -> None:
    """Lets these be in no repository, so that nothing comes in where somebody else has changed something."""
    query = libdnf5.rpm.PackageQuery(base.library)
    query.filter_available()
    query.filter_name(sorted({name for name, *_rest in packages}))
    hidden = libdnf5.rpm.PackageSet(base.library)
    for package in query:
        if pkgtup(package) in packages:
            hidden.add(package)
    base.library.get_rpm_package_sack().add_user_excludes(hidden)


def _keeping_dependencies() -> Any:
    settings = libdnf5.base.GoalJobSettings()
    settings.set_clean_requirements_on_remove(libdnf5.base.GoalSetting_SET_FALSE)
    return settings
