# SPDX-License-Identifier: GPL-2.0-or-later
"""Work in a process of its own, which begins as a copy of the one that looks after the cases."""

from __future__ import annotations

import os
import pickle
import signal
import sys
import traceback
from pathlib import Path
from typing import Any, Callable

SECONDS = 120
"""Longer than any of it takes, on any machine."""


def in_process(work: Callable[[], Any], said: Path) -> Any:
    """What `work` gives in a process of its own, whose output goes into the file. RuntimeError where it fails."""
    answer = said.with_suffix(".answer")
    child = os.fork()
    if child == 0:
        _serve(work, said, answer)
    _, status = os.waitpid(child, 0)
    if status != 0:
        raise RuntimeError(f"status {status}:\n{said.read_text(encoding='utf-8', errors='replace')}")
    result = pickle.loads(answer.read_bytes())
    answer.unlink()
    return result


def _serve(work: Callable[[], Any], said: Path, answer: Path) -> None:
    try:
        signal.alarm(SECONDS)
        output = os.open(said, os.O_WRONLY | os.O_CREAT | os.O_APPEND, 0o644)
        nothing = os.open(os.devnull, os.O_RDONLY)
        os.dup2(nothing, 0)
        os.dup2(output, 1)
        os.dup2(output, 2)
        os.chdir("/")
        # The streams of the other process may hold what it has not written yet.
        sys.stdout = open(1, "w", encoding="utf-8", closefd=False)
        sys.stderr = open(2, "w", encoding="utf-8", closefd=False)
        answer.write_bytes(pickle.dumps(work()))
        status = 0
    except BaseException:  # noqa: BLE001 - told by the status
        traceback.print_exc()
        status = 1
    for stream in (sys.stdout, sys.stderr):
        try:
            stream.flush()
        except Exception:  # noqa: BLE001 - the helper package's streams are nowhere any more
            pass
    os._exit(status)
