# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands before the program's helper script where the benchmark wants to know or do more than it does.

VEM_BENCH_SCRIPT
    the script itself, which is run first
VEM_BENCH_LINES
    how many lines each collection shall say in addition
VEM_BENCH_TIMES
    file for a JSON object: how an apply's seconds are divided between dnf and everything else, the wait for
    the user's answer left out. The process that applies is run by apply-child.py beside this file.
VEM_BENCH_HELPER
    the folder of this file, which its runner doesn't tell
"""

from __future__ import annotations

import functools
import json
import os
import time
from typing import Any

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


def _tell_times(path: str) -> None:
    import yumIOC
    from vemyum.apply import parent

    script = os.path.join(os.environ["VEM_BENCH_HELPER"], "apply-child.py")
    parent.COMMAND = [parent.COMMAND[0], script]
    original = YumIO.apply  # type: ignore[name-defined]  # noqa: F821
    ask = yumIOC.userconfirm
    asked = 0.0

    def userconfirm() -> Any:
        nonlocal asked
        since = time.perf_counter()
        try:
            return ask()
        finally:
            asked += time.perf_counter() - since

    @functools.wraps(original)
    def apply(*arguments: Any) -> Any:
        nonlocal asked
        asked = 0.0
        since = time.perf_counter()
        try:
            return original(*arguments)
        finally:
            whole = time.perf_counter() - since - asked
            with open(path, encoding="utf-8") as file:
                dnf = json.load(file)
            with open(path, "w", encoding="utf-8") as file:
                json.dump({"dnf": dnf, "rest": whole - dnf}, file)

    yumIOC.userconfirm = userconfirm
    YumIO.apply = apply  # type: ignore[name-defined]  # noqa: F821


if os.environ.get("VEM_BENCH_LINES"):
    _say_lines(int(os.environ["VEM_BENCH_LINES"]))
if os.environ.get("VEM_BENCH_TIMES"):
    _tell_times(os.environ["VEM_BENCH_TIMES"])
