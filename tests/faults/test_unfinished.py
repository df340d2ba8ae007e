# SPDX-License-Identifier: GPL-2.0-or-later
"""A transaction that was cut off: told by the next window, with what it has left, and cleared up from there."""
from __future__ import annotations

import os
import signal
from pathlib import Path

import pytest

from desk import BEFORE, QUESTION, UNFINISHED, Desk
from program import wait_for
from rpmestate import Estate, spec

SLOW = spec(
    "fleet-slow",
    "2.0",
    requires=("/bin/sh",),
    scriptlets={"post": ": > /running\nwhile ! [ -e /go-on ]; do sleep 0.05; done"},
)


@pytest.fixture(scope="module")
def slow(tmp_path_factory: pytest.TempPathFactory) -> tuple[Path, Path]:
    old, new = Estate(tmp_path_factory.mktemp("slow")).build([spec("fleet-slow", "1.0"), SLOW])
    return old, new


def cut_off(desk: Desk) -> None:
    """Ends everything at once in the middle of an update, as a machine that loses its power."""
    desk.mark("fleet-slow")
    desk.apply()
    running = desk.site.root / "running"
    wait_for(running.exists, "the scriptlet")
    child = int((desk.site.root / "var/lib/dnf/rpmdb_lock.pid").read_text())
    desk.program.process.kill()
    os.kill(child, signal.SIGKILL)
    desk.program.process.wait()
    (desk.site.root / "go-on").touch()


def test_the_next_window_tells_it_and_removes_the_older_version(desk: Desk, slow: tuple[Path, Path]) -> None:
    old, new = slow
    desk.site.install([old])
    desk.site.repository("dock", [new])
    cut_off(desk)
    both = {"fleet-slow-1.0-1.noarch", "fleet-slow-2.0-1.noarch"}
    assert desk.site.installed() == {*BEFORE, *both}

    program = desk.open()
    told = desk.told_unfinished().splitlines()
    assert told[0].startswith("The last transaction was cut off before its end: number 1, of 20")
    assert ", begun by vem " in told[0] or told[0].endswith(", begun by vem.")
    assert told[1:] == [
        "Still to be removed:",
        "    fleet-slow-1.0-1.noarch",
        "Installed in more than one version:",
        "    fleet-slow.noarch: 1.0-1, 2.0-1",
        "Shall the older versions be removed? What exactly is done is shown before, and asked once more.",
    ]
    log = desk.new_log()
    assert "A transaction was cut off, and may be done in part. It was about: fleet-slow" in log
    assert told[0] in log
    desk.refresh()
    program.wait_ready()
    assert program.find_window(UNFINISHED) is None
    desk.program_ends()

    program = desk.open()
    program.window(UNFINISHED)
    program.press("Remove Older Versions")
    question = program.window(QUESTION)
    assert "\tRemove: fleet-slow 1.0-1 (noarch)" in program.texts(question)
    program.press("OK", question)
    program.wait_closed(QUESTION)
    desk.untold()
    desk.sound(*BEFORE, "fleet-slow-2.0-1.noarch")
    assert program.find_window(UNFINISHED) is None
