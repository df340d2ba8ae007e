# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands before the process that applies changes where the benchmark wants to know how long dnf itself works there.

    apply-child.py DESCRIPTOR PID BACKEND

VEM_BENCH_SCRIPT names the program's helper script, VEM_BENCH_TIMES the file for the seconds.
"""

from __future__ import annotations

import functools
import importlib
import inspect
import os
import sys
import time
from typing import Any, Callable, List, Tuple

sys.path[0] = os.path.dirname(os.environ["VEM_BENCH_SCRIPT"])

from vemyum import choice  # noqa: E402

_BACKEND = sys.argv[3]
choice.settle(_BACKEND)

from vemyum.apply import child  # noqa: E402


def _dnf_work() -> List[Tuple[Any, str]]:
    """The classes of the library that do what an apply is about, each with the names of the functions."""
    if _BACKEND == choice.DNF4:
        import dnf

        names = "read_all_repos fill_sack resolve download_packages do_transaction package_signature_check close"
        return [(dnf.Base, names)]
    import libdnf5.base
    import libdnf5.repo

    return [
        (libdnf5.base.Base, "load_config setup"),
        (libdnf5.repo.RepoSackWeakPtr, "load_repos"),
        (libdnf5.base.Goal, "resolve"),
        (libdnf5.repo.PackageDownloader, "download"),
        (libdnf5.base.Transaction, "check_gpg_signatures test run"),
    ]



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
        display = importlib.import_module(f"vemyum.{_BACKEND}.display")
        for kind, names in _dnf_work():
            for name in names.split():
                setattr(kind, name, _dnf.timed(getattr(kind, name), True))
        for name, function in inspect.getmembers(display.Display, inspect.isfunction):
            if name in vars(display.Display) and not name.startswith("__"):
                setattr(display.Display, name, _dnf.timed(function, False))
        return work(*arguments)

    return measured


child._work = _measured(child._work)
child._Parent.end = _tell(child._Parent.end)  # type: ignore[method-assign]
child.main(*map(int, sys.argv[1:3]))
