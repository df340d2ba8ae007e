# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands before the program's helper script where the benchmark wants to know or do more than it does.

VEM_BENCH_SCRIPT
    the script itself, which is run first
VEM_BENCH_LINES
    how many lines each collection shall say in addition
VEM_BENCH_TIMES
    file for one JSON object a line: how an apply's seconds are divided between dnf, everything else, and
    the wait for the user's answer
"""

from __future__ import annotations

import functools
import inspect
import json
import os
import time
from typing import Any, Callable, Dict, List

_script = os.environ["VEM_BENCH_SCRIPT"]
with open(_script, encoding="utf-8") as _file:
    exec(compile(_file.read(), _script, "exec"))  # noqa: S102 - it defines the class YumIO here


def _say_lines(lines: int) -> None:
    import yumIOC  # type: ignore[import-not-found]

    original = YumIO.collectUpdates  # type: ignore[name-defined]  # noqa: F821

    def collect_updates(self: Any) -> Any:
        for number in range(lines):
            yumIOC.log(1, f"Line {number} of the many that a busy day brings: it tells what became of a package")
        return original(self)

    YumIO.collectUpdates = collect_updates  # type: ignore[name-defined]  # noqa: F821


class Times:
    """Seconds by who has spent them. Whoever calls another one doesn't spend that one's seconds."""

    def __init__(self) -> None:
        self.seconds: Dict[str, float] = {}
        self._stack: List[str] = []
        self._since = time.perf_counter()

    def _pass(self) -> None:
        now = time.perf_counter()
        if self._stack:
            spender = self._stack[-1]
            self.seconds[spender] = self.seconds.get(spender, 0.0) + now - self._since
        self._since = now

    def of(self, spender: str, function: Callable[..., Any]) -> Callable[..., Any]:
        """`function`, its time put down to `spender`."""

        @functools.wraps(function)
        def timed(*arguments: Any, **named: Any) -> Any:
            self._pass()
            self._stack.append(spender)
            try:
                return function(*arguments, **named)
            finally:
                self._pass()
                self._stack.pop()

        return timed


_DNF_WORK = (
    "read_all_repos fill_sack resolve download_packages do_transaction package_signature_check close".split()
)


def _tell_times(path: str) -> None:
    import dnf
    import yumIOC
    from vemyum import display

    # Now: during a transaction, paths may mean something else.
    output = open(path, "a", encoding="utf-8", buffering=1)  # noqa: SIM115
    times = Times()
    for name in _DNF_WORK:
        setattr(dnf.Base, name, times.of("dnf", getattr(dnf.Base, name)))
    for name, function in inspect.getmembers(display.Display, inspect.isfunction):
        if name in vars(display.Display) and not name.startswith("__"):
            setattr(display.Display, name, times.of("feedback", function))
    for name, function in inspect.getmembers(yumIOC, callable):
        if not name.startswith("__"):
            setattr(yumIOC, name, times.of("question" if name == "userconfirm" else "feedback", function))
    original = YumIO.apply  # type: ignore[name-defined]  # noqa: F821
    whole = times.of("rest", original)

    @functools.wraps(original)
    def apply(*arguments: Any) -> Any:
        times.seconds.clear()
        try:
            return whole(*arguments)
        finally:
            print(json.dumps(times.seconds), file=output)

    YumIO.apply = apply  # type: ignore[name-defined]  # noqa: F821


if os.environ.get("VEM_BENCH_LINES"):
    _say_lines(int(os.environ["VEM_BENCH_LINES"]))
if os.environ.get("VEM_BENCH_TIMES"):
    _tell_times(os.environ["VEM_BENCH_TIMES"])
