# SPDX-License-Identifier: GPL-2.0-or-later
"""A transaction that has begun comes to its end, whatever happens to the window meanwhile; scriptlets that fail."""
from __future__ import annotations

import os
import signal
import subprocess
from pathlib import Path
from typing import Callable, Iterator

import pytest

from desk import GOOD, Desk, history
from libraries import by_library
from program import ACTION_COLUMN, Program, wait_for
from rpmestate import Estate, spec

Start = Callable[..., Program]

SLOW = spec(
    "fleet-slow",
    requires=("/bin/sh",),
    scriptlets={"post": "echo fleet-slow: begun\n: > /running\nwhile ! [ -e /go-on ]; do sleep 0.05; done"},
)


@pytest.fixture(scope="module")
def slow(tmp_path_factory: pytest.TempPathFactory) -> Path:
    (rpm,) = Estate(tmp_path_factory.mktemp("slow")).build([SLOW])
    return rpm


class Working:
    """A program whose transaction stands in a scriptlet."""

    def __init__(self, site: Estate, start: Start) -> None:
        self.site = site
        self.program = start(site)
        self.program.wait_ready()
        self.program.choose("View Installable")
        self.program.click_cell("fleet-slow", ACTION_COLUMN)
        self.program.press("Apply Actions")
        self.program.press("OK", self.program.window("Apply"))
        wait_for((site.root / "running").exists, "the scriptlet")
        self.child = int((site.root / "var/lib/dnf/rpmdb_lock.pid").read_text())
        assert self.child != self.program.process.pid

    def at_work(self) -> bool:
        try:
            return Path(f"/proc/{self.child}/stat").read_text().rpartition(")")[2].split()[0] != "Z"
        except (FileNotFoundError, ProcessLookupError):
            return False

    def go_on(self) -> None:
        (self.site.root / "go-on").touch()

    def assert_complete(self) -> None:
        wait_for(lambda: not self.at_work(), "the end of the transaction")
        assert "fleet-slow-1.0-1.noarch" in self.site.installed()
        assert history(self.site) == [GOOD]
        assert not list(self.site.root.glob("var/*/*/*lock.pid"))


@pytest.fixture
def working(site: Estate, slow: Path, start: Start) -> Iterator[Working]:
    site.repository("dock", [slow])
    working = Working(site, start)
    yield working
    working.go_on()


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGHUP, signal.SIGKILL])
def test_when_the_program_is_ended(working: Working, number: signal.Signals) -> None:
    working.program.process.send_signal(number)
    assert working.program.process.wait(10) == -number
    assert working.at_work()
    working.go_on()
    working.assert_complete()


def test_when_it_is_interrupted_which_it_answers_and_then_does(working: Working, tmp_path: Path) -> None:
    words = "The transaction goes on; the program ends when it has come to its end.\n"
    working.program.process.send_signal(signal.SIGINT)
    wait_for(lambda: words in (tmp_path / "vem.log").read_text(), "the words on the terminal")
    assert working.program.process.poll() is None
    working.go_on()
    assert working.program.process.wait(30) == -signal.SIGINT
    working.assert_complete()


def test_when_the_display_goes(
    site: Estate, slow: Path, start: Start, monkeypatch: pytest.MonkeyPatch
) -> None:
    site.repository("dock", [slow])
    read, write = os.pipe()
    with subprocess.Popen(["Xvfb", "-displayfd", str(write), "-nolisten", "tcp"], pass_fds=[write]) as server:
        try:
            os.close(write)
            with open(read, encoding="ascii") as display:
                monkeypatch.setenv("DISPLAY", f":{display.readline().strip()}")
            working = Working(site, start)
        finally:
            server.kill()
    assert working.program.process.wait(10) != 0
    assert working.at_work()
    working.go_on()
    working.assert_complete()


def test_a_program_that_starts_meanwhile_shows_it_and_is_ready_behind_it(working: Working, start: Start) -> None:
    working.program.process.kill()
    working.program.process.wait()
    second = start(working.site)
    wait_for(lambda: "Installing fleet-slow" in second.log_text(), "the package in the log")
    assert not second.is_ready()
    working.go_on()
    second.wait_ready()
    second.choose("View Removable")
    assert "fleet-slow" in second.names()
    log = second.log_text()
    assert f"A transaction is at work, process {working.child} does it" in log
    assert "A transaction whose window was gone has come to its end: fleet-slow" in log


def test_a_window_that_is_closed_meanwhile_ends_behind_it(working: Working) -> None:
    program = working.program
    box = wait_for(lambda: program.find("OK") or program.key("alt+F4"), "the word", interval=2)
    assert "That goes on to its end, and the program ends behind it." in program.texts(program.application())
    program.click(box)
    working.go_on()
    assert program.process.wait(30) == 0
    working.assert_complete()


@pytest.fixture(scope="module")
def failing(tmp_path_factory: pytest.TempPathFactory) -> list[Path]:
    return Estate(tmp_path_factory.mktemp("failing")).build(
        [
            spec("fleet-badpre", requires=["/bin/sh"], scriptlets={"pre": "echo no entry; exit 3"}),
            spec("fleet-badpost", requires=["/bin/sh"], scriptlets={"post": "echo half way; exit 4"}),
            spec("fleet-badpreun", requires=["/bin/sh"], scriptlets={"preun": "echo staying; exit 5"}),
        ]
    )


def scriptlet(kind: str, package: str) -> str:
    """The line that tells of one that has failed."""
    name = {"pre": "PREIN", "post": "POSTIN", "preun": "PREUN"}[kind]
    return by_library(
        f"  Error in {name} scriptlet in rpm package {package}",
        f"  The %{kind} scriptlet of {package}-1.0-1.noarch has failed",
    )


def test_scriptlets_that_fail(desk: Desk, failing: list[Path]) -> None:
    """The others do what they are for, and what went wrong is told of each."""
    desk.site.repository("dock", failing)
    refresh = "A part of the transaction may have been done: please refresh the list of packages."
    desk.mark("fleet-badpre", "fleet-badpost", "fleet-badpreun", "fleet-lamp")
    desk.apply()
    told = desk.told().splitlines()
    assert told[:2] == ["Not everything went as it should:", "  fleet-badpre-1.0-1.noarch was not installed"]
    # The library's words or ours, in rpm's order, and rpm's.
    assert set(told[2:4]) == {scriptlet("pre", "fleet-badpre"), scriptlet("post", "fleet-badpost")}
    for words in ("%prein(fleet-badpre-1.0-1.noarch) scriptlet failed, exit status 3",
                  "%post(fleet-badpost-1.0-1.noarch) scriptlet failed, exit status 4"):
        assert len([line for line in told if words in line]) == 1
    assert told[-2:] == [refresh, "Error applying changes"]
    kept = ["fleet-badpost-1.0-1.noarch", "fleet-badpreun-1.0-1.noarch", "fleet-lamp-1.1-1.noarch",
            "fleet-shell-1.0-1.x86_64"]
    desk.sound(*kept, "fleet-match-1.0-1.noarch")

    desk.refresh()
    desk.untold()
    desk.mark("fleet-badpreun", "fleet-match")
    desk.apply()
    told = desk.told().splitlines()
    assert told[:3] == [
        "Not everything went as it should:",
        "  fleet-badpreun-1.0-1.noarch was not removed",
        scriptlet("preun", "fleet-badpreun"),
    ]
    assert "%preun(fleet-badpreun-1.0-1.noarch) scriptlet failed, exit status 5" in told[3]
    assert told[-2:] == [refresh, "Error applying changes"]
    desk.sound(*kept)
    log = desk.new_log()
    for said in ("no entry", "half way", "staying"):
        assert said in log.splitlines()


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
