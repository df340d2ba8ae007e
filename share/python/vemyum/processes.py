# SPDX-License-Identifier: GPL-2.0-or-later
"""What /proc tells of other processes (see proc(5)). Where it is a parameter, it is the folder to read instead."""

from __future__ import annotations

import os
from typing import List, Optional

PROC = "/proc"

_STATE, _PARENT, _FLAGS, _START = 0, 1, 6, 19
"""Places of these fields in /proc/<pid>/stat, counted from the one behind the name."""

_OF_KERNEL = 0x00200000
"""The flag of a thread of the kernel's own."""

_TOLERANCE = 2.0
"""Seconds: a process's start is counted in hundredths from a start of the system that is told in whole ones."""


def numbers(proc: str = PROC) -> List[int]:
    """Of all processes. OSError."""
    return sorted(int(entry) for entry in os.listdir(proc) if entry.isascii() and entry.isdigit())


def name(pid: int, proc: str = PROC) -> str:
    """The process's name; empty when there is no such process."""
    try:
        with open(f"{proc}/{pid}/comm", encoding="utf-8", errors="replace") as comm:
            return comm.read().strip()
    except OSError:
        return ""


def command_line(pid: int, proc: str = PROC) -> str:
    """What the process was started with, the program's name without its folder; empty when there is no such
    process."""
    try:
        with open(f"{proc}/{pid}/cmdline", "rb") as file:
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
    return booted is None or _start(fields, booted) <= time + _TOLERANCE


def started(pid: int, proc: str = PROC) -> Optional[float]:
    """When the process did, in seconds since the epoch; None when there is no such process."""
    fields = _stat(pid, proc)
    booted = _boot_time(proc)
    return None if fields is None or booted is None else _start(fields, booted)


def system_started(proc: str = PROC) -> float:
    """When the first process did, in seconds since the epoch: in a container that is later than the kernel's start."""
    return started(1, proc) or _boot_time(proc) or 0.0


def is_of_kernel(pid: int, proc: str = PROC) -> bool:
    """Whether it is a thread of the kernel's own, which runs no file."""
    fields = _stat(pid, proc)
    return fields is not None and bool(int(fields[_FLAGS]) & _OF_KERNEL)


def user(pid: int, proc: str = PROC) -> Optional[int]:
    """As whom it works; None when there is no such process."""
    try:
        with open(f"{proc}/{pid}/status", encoding="utf-8", errors="replace") as status:
            return next((int(line.split()[2]) for line in status if line.startswith("Uid:")), None)
    except (OSError, ValueError, IndexError):
        return None


def control_group(pid: int, proc: str = PROC) -> str:
    """The path of the one by which systemd knows the process; empty when nobody tells."""
    try:
        with open(f"{proc}/{pid}/cgroup", encoding="utf-8", errors="replace") as groups:
            parts = [line.rstrip("\n").split(":", 2) for line in groups]
    except OSError:
        return ""
    paths = {controllers: path for _number, controllers, path in (part for part in parts if len(part) == 3)}
    # Where there are several hierarchies, systemd has its own.
    return paths.get("name=systemd") or paths.get("", "")


def _start(fields: List[str], booted: int) -> float:
    return booted + int(fields[_START]) / os.sysconf("SC_CLK_TCK")


def start_of(pid: int) -> int:
    """When the process started, in clock ticks since the system did; 0 when there is no such process. Together with
    the number it tells a process from all others of this run of the system."""
    fields = _stat(pid)
    return 0 if fields is None else int(fields[_START])


def parent(pid: int) -> int:
    """The number of the process's parent; 0 when there is no such process."""
    fields = _stat(pid)
    return 0 if fields is None else int(fields[_PARENT])


def _stat(pid: int, proc: str = PROC) -> Optional[List[str]]:
    try:
        with open(f"{proc}/{pid}/stat", encoding="utf-8", errors="replace") as stat:
            # The name may hold blanks and parentheses.
            fields = stat.read().rpartition(")")[2].split()
    except OSError:
        return None
    known = len(fields) > _START and fields[_START].isdigit() and fields[_FLAGS].isdigit()
    return fields if known else None


def _boot_time(proc: str = PROC) -> Optional[int]:
    try:
        with open(f"{proc}/stat", encoding="ascii", errors="replace") as stat:
            return next((int(line.split()[1]) for line in stat if line.startswith("btime ")), None)
    except (OSError, ValueError, IndexError):
        return None
