# SPDX-License-Identifier: GPL-2.0-or-later
"""The lock in other hands: who has it is told, and nobody who is gone shuts anyone out."""
from __future__ import annotations

import os
import signal
import subprocess
import time
from pathlib import Path
from typing import Callable, List

import pytest

from desk import Desk
from program import Program
from rpmestate import Estate

HELD = "The yum lock is held by process {process}.\nUnable to obtain yum lock"


def lock_files(site: Estate) -> List[Path]:
    return [site.root / "var/cache/yum/metadata_lock.pid", site.root / "var/cache/yum/download_lock.pid",
            site.root / "var/lib/dnf/rpmdb_lock.pid"]


def write_lock(site: Estate, pid: int, age: float = 0) -> None:
    """The lock files of that process, as old as that many seconds."""
    for file in lock_files(site):
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(str(pid))
        os.utime(file, (time.time() - age, time.time() - age))


def holders(site: Estate) -> List[str]:
    return [file.read_text() for file in lock_files(site)]


def test_a_process_that_lives_and_one_that_stands_still(desk: Desk) -> None:
    with subprocess.Popen(["sleep", "600"]) as other:
        try:
            write_lock(desk.site, other.pid)
            desk.open()
            words = HELD.format(process=f"{other.pid} (sleep)")
            assert desk.told() == words
            assert desk.program.row_count() == 0
            other.send_signal(signal.SIGSTOP)
            desk.refresh()
            assert desk.told() == words
            assert holders(desk.site) == [str(other.pid)] * 3
        finally:
            other.kill()
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]
    assert holders(desk.site) == [str(desk.program.process.pid)] * 3


def test_a_process_that_is_gone(desk: Desk) -> None:
    with subprocess.Popen(["true"]) as other:
        pass
    write_lock(desk.site, other.pid)
    assert desk.untold().names() == ["fleet-lamp"]
    assert holders(desk.site) == [str(desk.program.process.pid)] * 3


def test_a_process_that_has_got_the_number_of_one_that_is_gone(desk: Desk) -> None:
    with subprocess.Popen(["sleep", "600"]) as other:
        try:
            write_lock(desk.site, other.pid, age=3600)
            assert desk.untold().names() == ["fleet-lamp"]
        finally:
            other.kill()


def test_another_window(desk: Desk, start: Callable[..., Program]) -> None:
    """One that stands still has the lock; one that was killed hasn't."""
    first = start(desk.site)
    first.wait_ready()
    first.process.send_signal(signal.SIGSTOP)
    try:
        desk.open()
        assert desk.told() == HELD.format(process=f"{first.process.pid} (vem)")
    finally:
        first.process.kill()
        first.process.wait()
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]
    desk.program.end_by_window_manager()
    assert not any(file.exists() for file in lock_files(desk.site))


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
