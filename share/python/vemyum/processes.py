# SPDX-License-Identifier: GPL-2.0-or-later
"""What /proc tells of other processes (see proc(5))."""

from __future__ import annotations

import os
from typing import List, Optional

_STATE, _PARENT, _START = 0, 1, 19
"""Places of these fields in /proc/<pid>/stat, counted from the one behind the name."""

_TOLERANCE = 2.0
"""Seconds: a process's start is counted in hundredths from a start of the system that is told in whole ones."""


def name(pid: int) -> str:
    """The process's name; empty when there is no such process."""
    try:
        with open(f"/proc/{pid}/comm", encoding="utf-8", errors="replace") as comm:
            return comm.read().strip()
    except OSError:
        return ""


def command_line(pid: int) -> str:
    """What the process was started with, the program's name without its folder; empty when there is no such
    process."""
    try:
        with open(f"/proc/{pid}/cmdline", "rb") as file:
            program, *arguments = file.read().removesuffix(b"\0").split(b"\0")
    except OSError:
        return ""
    return b" ".join([os.path.basename(program), *arguments]).decode(errors="replace")


def lives(pid: int) -> bool:
    """Whether there is such a process, and not only its exit code."""
    fields = _stat(pid)
    return fields is not None and fields[_STATE] not in ("Z", "X")


def lives_since(pid: int, time: float) -> bool:
    """Whether the process lives and did so at that time (seconds since the epoch). Numbers are used again."""
    fields = _stat(pid)
    if fields is None or fields[_STATE] in ("Z", "X"):
        return False
    booted = _boot_time()
    if booted is None:
        return True
    return booted + int(fields[_START]) / os.sysconf("SC_CLK_TCK") <= time + _TOLERANCE


def start_of(pid: int) -> int:
    """When the process started, in clock ticks since the system did; 0 when there is no such process. Together with
    the number it tells a process from all others of this run of the system."""
    fields = _stat(pid)
    return 0 if fields is None else int(fields[_START])


def parent(pid: int) -> int:
    """The number of the process's parent; 0 when there is no such process."""
    fields = _stat(pid)
    return 0 if fields is None else int(fields[_PARENT])


def _stat(pid: int) -> Optional[List[str]]:
    try:
        with open(f"/proc/{pid}/stat", encoding="utf-8", errors="replace") as stat:
            # The name may hold blanks and parentheses.
            fields = stat.read().rpartition(")")[2].split()
    except OSError:
        return None
    return fields if len(fields) > _START else None


def _boot_time() -> Optional[int]:
    try:
        with open("/proc/stat", encoding="ascii", errors="replace") as stat:
            return next((int(line.split()[1]) for line in stat if line.startswith("btime ")), None)
    except (OSError, ValueError):
        return None
