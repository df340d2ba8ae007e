# SPDX-License-Identifier: GPL-2.0-or-later
"""A kill at each moment of an apply: what is left is the system as it was or as it was to be, and the next start says so.

Only who kills the process that applies while rpm works leaves something between the two, as with dnf.
"""
from __future__ import annotations

import os
import shutil
import signal
from pathlib import Path
from typing import Callable, Iterator, List

import pytest
from web import Web

from desk import GOOD, OPEN, QUESTION, Desk, history, processes_of
from killing import Programs, Stop, at_work, kill, lock_files, share_with_stops
from libraries import by_library
from program import Program, wait_for
from rpmestate import Estate
from stopping_child import BEGUN, MOMENTS

BEFORE = {"fleet-lamp-1.0-1.noarch", "fleet-match-1.0-1.noarch", "fleet-shell-1.0-1.x86_64"}
AFTER = {"fleet-lamp-1.1-1.noarch", "fleet-oil-1.0-1.noarch", "fleet-wick-1.0-1.noarch", "fleet-shell-1.0-1.x86_64"}

TERMINATE, KILL, KILL_CHILD = "SIGTERM", "kill -9", "kill -9 of the process that applies"
WAYS = (TERMINATE, KILL, KILL_CHILD)
NUMBERS = {TERMINATE: signal.SIGTERM, KILL: signal.SIGKILL}

DIED = "The process that applies the changes has died (signal 9, Killed).\n"
NOTHING = "Nothing was changed."
REFRESH = "A part of the transaction may have been done: please refresh the list of packages."
CUT_OFF = "A transaction was cut off, and may be done in part. It was about: fleet-lamp, fleet-match, fleet-oil, fleet-wick"
CAME_TO_ITS_END = (
    "A transaction whose window was gone has come to its end: fleet-lamp, fleet-match, fleet-oil, fleet-wick"
)

EVERY = list(MOMENTS)
LAST = EVERY[-1]
NOTED = EVERY.index(by_library("first package", "end of the test transaction"))
"""The number of moments before a transaction stands in the library's history: dnf 5 notes it down first."""


@pytest.fixture(scope="module")
def share(tmp_path_factory: pytest.TempPathFactory) -> Path:
    return share_with_stops(Path(os.environ["VEMSHARE"]), tmp_path_factory.mktemp("share") / "vem")


@pytest.fixture(scope="module")
def programs(share: Path, tmp_path_factory: pytest.TempPathFactory) -> Iterator[Programs]:
    programs = Programs(share, tmp_path_factory.mktemp("programs"))
    yield programs
    programs.close()


@pytest.fixture(scope="module")
def harbour(
    fleet: Estate, programs: Programs, tmp_path_factory: pytest.TempPathFactory
) -> Iterator[Estate]:
    """The fleet's system, fed by a server, as after a first look at its repositories."""
    directory = tmp_path_factory.mktemp("harbour")
    estate = Estate(directory / "site")
    shutil.rmtree(estate.root)
    shutil.copytree(fleet.root, estate.root, symlinks=True)
    with Web(fleet.repos_dir, directory / "web") as web:
        estate.write_repo_file("harbour", baseurl=f"{web.url}/harbour")
        assert programs.start(estate, apply=False).ended()["fault"] == ""
        yield estate


@pytest.fixture
def berth(harbour: Estate, tmp_path: Path) -> Estate:
    """Such a system for one test."""
    own = Estate(tmp_path / "site")
    shutil.rmtree(own.root)
    shutil.copytree(harbour.root, own.root, symlinks=True)
    return own


@pytest.fixture
def stop(request: pytest.FixtureRequest, tmp_path: Path, berth: Estate) -> Iterator[Stop]:
    stop = Stop(tmp_path / "stop", request.getfixturevalue("moment"))
    yield stop
    for pid in processes_of(berth):
        os.kill(pid, signal.SIGKILL)
    stop.close()


def expected(moment: str, way: str) -> str:
    """What the next start has to tell."""
    if EVERY.index(moment) < BEGUN or moment == LAST:
        return ""
    return CUT_OFF if way == KILL_CHILD else CAME_TO_ITS_END


def expected_history(moment: str, way: str) -> List[str]:
    """The ends of the transactions in the library's history."""
    at = EVERY.index(moment)
    if at >= BEGUN and way != KILL_CHILD or at >= EVERY.index("end of the transaction"):
        return [GOOD]
    return [OPEN] if at >= NOTED else []


def assert_sound(site: Estate, moment: str, way: str) -> None:
    """What is installed is one of what there may be, the database is whole, and the history tells what has begun."""
    site.rpm("--verifydb")
    assert history(site) == expected_history(moment, way)
    installed = site.installed()
    if EVERY.index(moment) < BEGUN:
        assert installed == BEFORE
    elif way != KILL_CHILD or moment in EVERY[-3:]:
        assert installed == AFTER
    else:
        assert BEFORE & AFTER <= installed <= BEFORE | AFTER
        if moment == "old package":
            # All that is new is in, and nothing that is old is out.
            assert installed == BEFORE | AFTER


def leave_behind(stop: Stop, child: int, moment: str) -> None:
    """The program has gone. What has begun goes on; all else ends of itself."""
    if EVERY.index(moment) >= BEGUN:
        assert at_work(child)
        stop.go_on()
        return
    if moment == EVERY[0]:
        # There it stands before it could notice anything.
        stop.go_on()
    wait_for(lambda: not at_work(child), "the end of the process that applies")


def without_a_window(moment: str, way: str) -> pytest.param:
    """Before rpm begins the ways take turns; behind that the two of ending the program do."""
    at = EVERY.index(moment)
    fast = WAYS[at % 3] == way if at < BEGUN else way in (WAYS[at % 2], KILL_CHILD)
    return pytest.param(moment, way, marks=() if fast else pytest.mark.slow)


@pytest.mark.parametrize(("moment", "way"), [without_a_window(moment, way) for moment in EVERY for way in WAYS])
def test_without_a_window(berth: Estate, programs: Programs, stop: Stop, moment: str, way: str) -> None:
    program = programs.start(berth, apply=True, variables=stop.variables)
    child = stop.reached()
    if way == KILL_CHILD:
        kill(child, signal.SIGKILL)
        begun = EVERY.index(moment) >= BEGUN
        assert program.ended()["fault"] == ("" if moment == LAST else DIED + (REFRESH if begun else NOTHING))
        assert lock_files(berth) == []
    else:
        kill(program.pid, NUMBERS[way])
        leave_behind(stop, child, moment)
    found = programs.start(berth, apply=False).ended()
    assert not at_work(child)
    assert_sound(berth, moment, way)
    assert lock_files(berth) == []
    assert found["fault"] == ""
    log = found["log"] + found["errorlog"]
    for words in (CUT_OFF, CAME_TO_ITS_END):
        assert (words in log) == (words == expected(moment, way))


def is_unfinished(site: Estate) -> bool:
    """The history has no end, or a package is there twice."""
    names = [package.rsplit("-", 2)[0] for package in site.installed()]
    return len(set(names)) < len(names) or OPEN in history(site)[-1:]


def next_start(desk: Desk, told: bool) -> str:
    """The next window, up to a table that can be used; gives what it has told, by a box if there is to be one."""
    desk.open()
    if told:
        box = desk.told_unfinished()
        log = desk.new_log()
        assert all(line in log for line in box.splitlines() if not line.startswith("Shall "))
        return log
    desk.untold()
    return desk.new_log()


def in_a_window(moment: str, way: str) -> pytest.param:
    return pytest.param(moment, way, marks=() if (moment, way) == ("old package", KILL_CHILD) else pytest.mark.slow)


@pytest.mark.parametrize(("moment", "way"), [in_a_window(moment, way) for moment in EVERY for way in WAYS])
def test_in_a_window(
    berth: Estate, share: Path, start: Callable[..., Program], stop: Stop, moment: str, way: str,
    monkeypatch: pytest.MonkeyPatch,
) -> None:
    for name, value in {"VEMSHARE": str(share), **stop.variables}.items():
        monkeypatch.setenv(name, value)
    desk = Desk(berth, start)
    desk.mark("fleet-lamp", "fleet-wick", "fleet-match")
    begun = EVERY.index(moment) >= BEGUN
    desk.program.press("Apply Actions")
    if EVERY.index(moment) > EVERY.index("question"):
        desk.program.press("OK", desk.program.window(QUESTION))
    child = stop.reached()
    if way == KILL_CHILD:
        kill(child, signal.SIGKILL)
        if moment == LAST:
            desk.untold()
        else:
            assert desk.told() == f"{DIED}{REFRESH if begun else NOTHING}\nError applying changes"
        assert_sound(berth, moment, way)
        desk.program.end_by_window_manager()
    else:
        kill(desk.program.process.pid, NUMBERS[way])
        leave_behind(stop, child, moment)
    log = next_start(desk, (way == KILL_CHILD or not begun) and is_unfinished(berth))
    assert not at_work(child)
    assert_sound(berth, moment, way)
    for words in (CUT_OFF, CAME_TO_ITS_END):
        assert (words in log) == (words == expected(moment, way))
    if not begun:
        # The process of this apply stands still as well, and goes on.
        stop.go_on()
        desk.mark("fleet-lamp", "fleet-wick", "fleet-match")
        desk.apply()
        desk.untold()
        desk.sound(*AFTER)
    desk.program_ends()


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
