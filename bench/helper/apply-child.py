# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands before the process that applies changes where the benchmark wants to know how long dnf itself works there.

    apply-child.py DESCRIPTOR PID BACKEND

VEM_BENCH_SCRIPT names the program's helper script, VEM_BENCH_TIMES the file for the seconds.
"""

from __future__ import annotations

import functools
import inspect
import os
import sys
import time
from typing import Any, Callable, List

sys.path[0] = os.path.dirname(os.environ["VEM_BENCH_SCRIPT"])

import dnf  # noqa: E402
from vemyum import choice  # noqa: E402

choice.settle(sys.argv[3])

from vemyum.apply import child  # noqa: E402

_DNF_WORK = (
    "read_all_repos fill_sack resolve download_packages do_transaction package_signature_check close".split()
)

# Now: during a transaction, paths may mean something else.
_output = open(os.environ["VEM_BENCH_TIMES"], "w", encoding="utf-8")  # noqa: SIM115


class Dnf:
    """Seconds that dnf has spent: in its own functions, but not in those of this program that it calls back."""

    def __init__(self) -> None:
        self.seconds = 0.0
        self._works: List[bool] = [False]
        self._since = time.perf_counter()

    def _pass(self) -> None:
        now = time.perf_counter()
        if self._works[-1]:
            self.seconds += now - self._since
        self._since = now

    def timed(self, function: Callable[..., Any], works: bool) -> Callable[..., Any]:
        """`function`, during which dnf works or doesn't."""

        @functools.wraps(function)
        def timed(*arguments: Any, **named: Any) -> Any:
            self._pass()
            self._works.append(works)
            try:
                return function(*arguments, **named)
            finally:
                self._pass()
                self._works.pop()

        return timed


_dnf = Dnf()


def _tell(end: Callable[..., None]) -> Callable[..., None]:
    def told(*arguments: Any) -> None:
        _output.write(str(_dnf.seconds))
        _output.close()
        end(*arguments)

    return told


def _measured(work: Callable[..., Any]) -> Callable[..., Any]:
    def measured(*arguments: Any) -> Any:
        # Not before: these want the host module, which is made when the process begins.
        from vemyum.dnf4 import display

        for name in _DNF_WORK:
            setattr(dnf.Base, name, _dnf.timed(getattr(dnf.Base, name), True))
        for name, function in inspect.getmembers(display.Display, inspect.isfunction):
            if name in vars(display.Display) and not name.startswith("__"):
                setattr(display.Display, name, _dnf.timed(function, False))
        return work(*arguments)

    return measured


child._work = _measured(child._work)
child._Parent.end = _tell(child._Parent.end)  # type: ignore[method-assign]
child.main(*map(int, sys.argv[1:3]))
