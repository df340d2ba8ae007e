# SPDX-License-Identifier: GPL-2.0-or-later
"""Undoing, redoing, rolling back: the same as the command line does on a twin of the system, and what cannot be done is
told before anything happens."""

from __future__ import annotations

import shutil
import sqlite3
from contextlib import closing
from pathlib import Path
from typing import Any, Dict, List, Set, Tuple

import pytest
from catalogue import Catalogue
from commandline import command_line, require_groups
from fake_host import FakeHost
from libraries import BACKEND, HISTORY, by_library
from program import Program
from rpmestate import Estate
from vemyum import choice

NAMES = ("lib-1.0", "lib-2.0", "app-1.0", "lone-1.0", "battery-1.0", "newlamp-1.0", "oldlamp-1.0", "clock-1.0")


def done(program: Program, kind: str, number: int, without: bool = False) -> List[str]:
    program.collect()
    obstacles: List[str] = program.yumio.applyHistory(kind, number, without)
    program.end()
    return obstacles


@pytest.fixture
def house(estate: Estate, rpms: Catalogue) -> Estate:
    estate.repository("base", rpms.some(*NAMES))
    return estate


def do(estate: Estate, *commands: str) -> None:
    for command in commands:
        command_line(estate, *command.split())


def reasons(estate: Estate) -> Dict[str, str]:
    """What the last transaction of each installed package says of why it is there."""
    program: Dict[str, str] = {}
    from vemyum import backend
    from vemyum.transactions import INCOMING, OUTGOING

    records = backend.library().records(backend.library().read_settings())
    with records.reading() as reader:
        for head in reversed(reader.heads()):
            for item in reader.items(head.number):
                key = f"{item.name}.{item.arch}"
                if item.action in OUTGOING:
                    program.pop(key, None)
                else:
                    program[key] = item.reason
            for item in reader.items(head.number):
                if item.action in INCOMING:
                    program[f"{item.name}.{item.arch}"] = item.reason
    return program


class Twin:
    """The system as it is now, to be put back."""

    def __init__(self, estate: Estate, folder: Path) -> None:
        self._estate = estate
        self._kept = folder / "twin"
        shutil.copytree(estate.root, self._kept, symlinks=True)

    def put_back(self) -> None:
        shutil.rmtree(self._estate.root)
        shutil.copytree(self._kept, self._estate.root, symlinks=True)


YEAR = (
    "install app lone",
    "downgrade lib",
    "upgrade lib",
    "install oldlamp --setopt=obsoletes=0",
    "install newlamp",
    "remove app",
    "install battery",
    "remove lone",
    "install lib-1.0",
    "upgrade lib",
)
UNDONE: Dict[Tuple[str, int], Set[str]] = {
    ("undo", 5): {"oldlamp-1.0", "battery-1.0", "lib-2.0"},
    ("undo", 6): {"newlamp-1.0", "battery-1.0", "lib-2.0", "app-1.0"},
    ("undo", 7): {"newlamp-1.0", "lib-2.0"},
    ("undo", 8): {"newlamp-1.0", "battery-1.0", "lib-2.0", "lone-1.0"},
    ("undo", 10): {"newlamp-1.0", "battery-1.0", "lib-1.0"},
    ("redo", 1): {"newlamp-1.0", "battery-1.0", "lib-2.0", "app-1.0", "lone-1.0"},
}
ROLLED_BACK = (9, 8, 5, 2)
WRONG = by_library((5, 2), ())
"""Rolling back to these, dnf 4's command line goes wrong: a package has gone and come again in another version."""


def test_what_comes_of_it_is_what_comes_of_the_command_line(house: Estate, program: Program, tmp_path: Path) -> None:
    behind = {}
    for number, command in enumerate(YEAR, 1):
        command_line(house, *command.split())
        behind[number] = house.installed(), reasons(house)
    twin = Twin(house, tmp_path)
    found, expected = {}, {}
    for kind, number in (*UNDONE, *(("rollback", number) for number in ROLLED_BACK)):
        assert done(program, kind, number) == [], (kind, number)
        found[kind, number] = house.installed(), reasons(house)
        twin.put_back()
        if (kind, number) in UNDONE or number not in WRONG:
            command_line(house, "history", kind, str(number))
            expected[kind, number] = house.installed(), reasons(house)
            twin.put_back()
    assert {turn: found[turn] for turn in expected} == expected
    for turn, names in UNDONE.items():
        assert {one[: -len("-1.noarch")] for one in found[turn][0]} == names, turn
    for number in ROLLED_BACK:
        assert found["rollback", number][0] == behind[number][0]
        if BACKEND == choice.DNF4:
            # dnf 5's library leaves the reason of what stays as it is.
            assert found["rollback", number][1] == behind[number][1]


# Before anything happens --------------------------------------------------------------------------------------


def withdraw(estate: Estate, rpms: Catalogue, *gone: str) -> None:
    shutil.rmtree(estate.repos_dir / "base")
    estate.repository("base", rpms.some(*(name for name in NAMES if name not in gone)))


def test_a_version_that_no_repository_has_is_told_and_the_rest_is_done_on_demand(
    house: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    do(house, "install lib-1.0 lone", "upgrade lib", "remove lone", "install battery")
    withdraw(house, rpms, "lib-1.0")
    before = house.installed()
    (obstacle,) = done(program, "rollback", 1)
    assert "lib-1.0-1.noarch" in obstacle
    assert house.installed() == before and not host.named("userconfirm")
    assert done(program, "rollback", 1, without=True) == []
    assert house.installed() == {"lib-2.0-1.noarch", "lone-1.0-1.noarch"}
    # Where there is nothing else to be done, that is told.
    (obstacle,) = done(program, "undo", 2)
    assert "lib-1.0-1.noarch" in obstacle
    with pytest.raises(program.errors.YumBaseError, match="^Nothing to do"):
        done(program, "undo", 2, without=True)


def test_each_package_that_is_in_the_way_is_told(house: Estate, rpms: Catalogue, program: Program) -> None:
    do(house, "install lone battery clock", "remove lone battery clock")
    withdraw(house, rpms, "lone-1.0", "battery-1.0")
    obstacles = sorted(done(program, "undo", 2))
    assert len(obstacles) == 2
    assert "battery-1.0-1.noarch" in obstacles[0] and "lone-1.0-1.noarch" in obstacles[1]
    assert done(program, "undo", 2, without=True) == []
    assert house.installed() == {"clock-3:1.0-1.noarch"}


@pytest.mark.parametrize("kind", ["undo", "rollback"])
def test_what_was_changed_since_is_told_and_stays(
    house: Estate, rpms: Catalogue, program: Program, kind: str
) -> None:
    do(house, "install battery", "install lib-1.0 lone")
    # By nobody whom the history knows.
    house.install(rpms.some("lib-2.0"))
    number = {"undo": 2, "rollback": 1}[kind]
    before = house.installed()
    assert done(program, kind, number) == [
        "lib.noarch has been changed since then: installed is lib-2.0-1.noarch."
    ]
    assert house.installed() == before
    assert done(program, kind, number, without=True) == []
    assert house.installed() == {"battery-1.0-1.noarch", "lib-2.0-1.noarch"}


def test_what_came_back_in_another_version_since_is_told_and_stays(house: Estate, program: Program) -> None:
    do(house, "install lib-1.0 lone", "remove lib lone", "install lib-2.0")
    assert done(program, "undo", 2) == ["lib.noarch has been changed since then: installed is lib-2.0-1.noarch."]
    assert done(program, "undo", 2, without=True) == []
    assert house.installed() == {"lib-2.0-1.noarch", "lone-1.0-1.noarch"}


def test_what_is_done_once_more_takes_the_place_of_what_came_since(house: Estate, program: Program) -> None:
    do(house, "install lib-2.0", "reinstall lib", "downgrade lib")
    assert done(program, "redo", 1) == []
    assert house.installed() == {"lib-2.0-1.noarch"}
    if BACKEND == choice.DNF5:
        # It reinstalls nothing that isn't installed, nor does its command line.
        return
    do(house, "remove lib")
    assert done(program, "redo", 2) == []
    assert house.installed() == {"lib-2.0-1.noarch"}


def test_the_user_is_asked_about_what_comes_of_it_and_may_refuse(
    house: Estate, program: Program, host: FakeHost
) -> None:
    do(house, "install app", "install lone")
    listed: Dict[str, List[str]] = {}
    host.on_list = lambda apply: listed.update(
        (name, [member.name for member in members]) for name, members in vars(apply.tsInfo).items() if members
    )
    host.answer = 0
    before = house.installed()
    assert done(program, "undo", 1) == []
    assert listed == {"removed": ["app", "lib"]}
    assert house.installed() == before
    assert host.details is not None
    assert {row[1]: row[7] for row in host.details[0]} == {"app": "marked", "lib": "marked"}
    host.answer = 1
    assert done(program, "undo", 1) == []
    assert house.installed() == {"lone-1.0-1.noarch"}
    last = program.namespace["YumIO"]().historyList()[0]
    assert last["comment"] == "history undo 1" and last["counts"] == {"remove": 2}


def test_what_needs_a_package_that_goes_goes_along_and_is_told(
    house: Estate, program: Program, host: FakeHost
) -> None:
    do(house, "install lib", "install app")
    listed: List[str] = []
    host.on_list = lambda apply: listed.extend(member.name for member in apply.tsInfo.depremoved)
    assert done(program, "undo", 1) == []
    assert listed == ["app"] and house.installed() == set()


def test_a_group_goes_and_comes_with_its_transaction(house: Estate, rpms: Catalogue, program: Program) -> None:
    require_groups()
    comps = (
        "<comps><group><id>light</id><name>Light</name><uservisible>true</uservisible>"
        '<packagelist><packagereq type="mandatory">lone</packagereq></packagelist></group></comps>'
    )
    shutil.rmtree(house.repos_dir / "base")
    house.repository("base", rpms.some(*NAMES), comps=comps)
    do(house, "group install light")
    whole = program.namespace["YumIO"]().historyOf(1)
    assert whole["groups"] == [{"id": "light", "name": "Light", "action": "install", "environment": False}]
    assert whole["counts"] == {"install": 1, "groups": 1}
    assert program.namespace["YumIO"]().historyList()[0]["counts"] == whole["counts"]
    program.end()
    assert done(program, "undo", 1) == []
    assert house.installed() == set()
    assert done(program, "undo", 2) == []
    assert house.installed() == {"lone-1.0-1.noarch"}
    yumio = program.namespace["YumIO"]()
    assert [[one["action"] for one in yumio.historyOf(number)["groups"]] for number in (2, 3)] == [["remove"], ["install"]]


def test_an_undo_can_be_undone(house: Estate, program: Program) -> None:
    do(house, "install app", "remove app")
    before = reasons(house)
    assert done(program, "undo", 2) == []
    assert house.installed() == {"app-1.0-1.noarch", "lib-2.0-1.noarch"}
    assert done(program, "undo", 3) == []
    assert house.installed() == set() and reasons(house) == before


def test_nothing_is_done_about_a_transaction_that_is_not_there_or_the_last_to_roll_back_to(
    house: Estate, program: Program
) -> None:
    do(house, "install lone")
    with pytest.raises(program.errors.YumBaseError, match=r"^The history has no transaction 2\.$"):
        done(program, "undo", 2)
    for kind in ("rollback", "redo"):
        with pytest.raises(program.errors.YumBaseError, match="^Nothing to do: "):
            done(program, kind, 1)
    assert house.installed() == {"lone-1.0-1.noarch"}


def test_of_a_transaction_that_failed_what_was_done_is_undone(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("badpre-1.0", "lone-1.0"))
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="badpre"):
        found.yumio.apply([found.offered("badpre"), found.offered("lone")], [], [])
    program.end()
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert done(program, "undo", 1) == []
    assert estate.installed() == set()


def test_of_a_transaction_that_was_cut_off_what_was_done_is_undone(house: Estate, program: Program) -> None:
    do(house, "install lone battery")
    house.rpm("--erase", "battery")
    with closing(sqlite3.connect(house.root / HISTORY)) as history:
        for table in ("trans", "trans_item"):
            history.execute(f"update {table} set {by_library('state = 0', 'state_id = 1')}")
        history.commit()
    assert done(program, "undo", 1) == []
    assert house.installed() == set()


def test_one_of_several_kernels_goes_by_an_undo(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("core-1.0", "core-2.0"))
    do(estate, "install core-1.0", "install core-2.0")
    assert done(program, "undo", 2) == []
    assert estate.installed() == {"core-1.0-1.noarch"}
    assert done(program, "redo", 2) == []
    assert estate.installed() == {"core-1.0-1.noarch", "core-2.0-1.noarch"}
    assert done(program, "undo", 1) == []
    assert estate.installed() == {"core-2.0-1.noarch"}


def test_a_system_without_a_history_has_nothing_to_undo(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    with pytest.raises(program.errors.YumBaseError, match="no transaction 1"):
        done(program, "undo", 1)


def test_who_may_only_look_undoes_nothing(
    house: Estate, program: Program, monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum import rights

    do(house, "install lone")
    monkeypatch.setattr(rights, "is_administrator", lambda: False)
    with pytest.raises(program.errors.YumBaseError, match="^Only the administrator can"):
        done(program, "undo", 1)
    assert house.installed() == {"lone-1.0-1.noarch"}
