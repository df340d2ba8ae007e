# SPDX-License-Identifier: GPL-2.0-or-later
"""What is told of the history of transactions. What is done with it is in test_history_apply.py."""

from __future__ import annotations

import contextlib
import json
import os
import re
import sqlite3
import subprocess
import sys
import time
from typing import Any, Dict, List, Set, Tuple

import pytest
from catalogue import Catalogue
from commandline import command_line
from libraries import BACKEND, HISTORY, by_library
from program import Program
from rpmestate import Estate
from stopping import Stopper
from vemyum import choice


def apply(program: Program, installs: str = "", updates: str = "", removes: str = "") -> None:
    found = program.collect()
    found.yumio.apply(
        [found.offered(name) for name in installs.split()],
        [found.pair(name) for name in updates.split()],
        [found.there(name) for name in removes.split()],
    )


KEPT: Dict[str, bytes] = {}
"""The history of `past` once it has been made: whoever only looks needs nothing else."""


@pytest.fixture
def past(estate: Estate, rpms: Catalogue, program: Program) -> Program:
    """Three transactions: the first installs, updates and makes obsolete; the second removes; the third fails in part."""
    history = estate.root / HISTORY
    if HISTORY not in KEPT:
        estate.install(rpms.some("lib-1.0", "oldlamp-1.0"))
        names = ("lib-2.0", "app-1.0", "newlamp-1.0", "talk-1.0", "shell-1.0", "clock-1.0", "badpre-1.0")
        estate.repository("base", rpms.some(*names))
        apply(program, "app newlamp talk", "lib")
        apply(program, removes="app")
        with pytest.raises(program.errors.YumBaseError, match="badpre"):
            apply(program, "badpre clock")
        program.end()
        with contextlib.closing(sqlite3.connect(history)) as database:
            database.execute("pragma wal_checkpoint(truncate)")
        KEPT[HISTORY] = history.read_bytes()
    else:
        estate.install([])
        history.parent.mkdir(parents=True)
        history.write_bytes(KEPT[HISTORY])
    # It needs no collection.
    program.yumio = program.namespace["YumIO"]()
    return program


def shown(whole: Dict[str, Any]) -> Dict[str, Tuple[str, str, str]]:
    return {one["name"]: (one["action"], one["old"], one["new"]) for one in whole["packages"]}


def change(estate: Estate, statement: str) -> None:
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as history:
        history.execute(statement)
        history.commit()


# What is told -------------------------------------------------------------------------------------------------


def test_all_transactions_are_listed_the_latest_first(past: Program) -> None:
    third, second, first = past.yumio.historyList()
    assert [one["number"] for one in (first, second, third)] == [1, 2, 3]
    assert [one["result"] for one in (first, second, third)] == ["done", "done", "failed"]
    assert first["counts"] == {"install": 4, "upgrade": 1, "obsoleted": 1}
    assert second["counts"] == {"remove": 1}
    assert third["counts"] == {"install": 2}
    assert first["comment"].startswith("install app-1.0-1.noarch, ")
    assert "pytest" in first["command"]
    assert time.time() - 300 < first["begun"] <= first["ended"] <= second["begun"] <= time.time()
    json.dumps(third)


def test_a_transaction_is_told_with_each_package(past: Program) -> None:
    first = past.yumio.historyOf(1)
    assert shown(first) == {
        "app": ("install", "", "1.0-1"),
        "newlamp": ("install", "", "1.0-1"),
        "shell": ("install", "", "1.0-1"),
        "talk": ("install", "", "1.0-1"),
        "lib": ("upgrade", "1.0-1", "2.0-1"),
        "oldlamp": ("obsoleted", "1.0-1", ""),
    }
    packages = {one["name"]: one for one in first["packages"]}
    assert {name: one["reason"] for name, one in packages.items() if one["action"] == "install"} == {
        "app": "user", "newlamp": "user", "shell": "dependency", "talk": "user",
    }
    assert (packages["app"]["arch"], packages["app"]["repository"]) == ("noarch", "base")
    assert packages["oldlamp"]["repository"] == "@System"
    assert {one["state"] for one in first["packages"]} == {"done"}
    assert first["groups"] == []
    # dnf 5 doesn't keep it.
    assert first["output"] == by_library(["first line", "second line"], None)
    heads = {one["number"]: one for one in past.yumio.historyList()}
    assert {key: first[key] for key in heads[1]} == heads[1]


def test_a_transaction_that_failed_in_part_tells_it(past: Program) -> None:
    third = past.yumio.historyOf(3)
    assert third["result"] == "failed"
    states = {one["name"]: one["state"] for one in third["packages"]}
    # dnf 5 notes nothing of the single ones.
    assert states == by_library({"badpre": "failed", "clock": "done"}, {"badpre": "unknown", "clock": "unknown"})
    assert shown(third)["clock"] == ("install", "", "3:1.0-1")
    if BACKEND == choice.DNF4:
        assert "no entry" in "".join(third["output"] + third["errors"])


def test_a_number_that_nothing_has_is_told(past: Program) -> None:
    with pytest.raises(past.errors.YumBaseError, match=r"^The history has no transaction 7\.$"):
        past.yumio.historyOf(7)
    with pytest.raises(past.errors.YumBaseError, match="no transaction 7"):
        past.yumio.historyExport(7, "text")


def test_the_command_line_tells_the_same(past: Program, estate: Estate) -> None:
    numbers = [one["number"] for one in past.yumio.historyList()]
    past.end()
    told = {number: of_command_line(estate, number) for number in numbers}
    past.yumio = past.namespace["YumIO"]()
    for number in numbers:
        whole = past.yumio.historyOf(number)
        assert (whole["begun"], whole["result"], packages_of(whole)) == told[number]


def of_command_line(estate: Estate, number: int) -> Tuple[int, str, Set[Tuple[str, str]]]:
    """Beginning, result, and what was done about each package."""
    if BACKEND == choice.DNF5:
        (told,) = json.loads(command_line(estate, "history", "info", str(number), "--json"))
        result = {"Ok": "done", "Error": "failed"}[told["status"]]
        packages = {(one["action"], one["nevra"]) for one in told["packages"]}
        return told["start_time"], result, {(action, nevra.replace("-0:", "-")) for action, nevra in packages}
    text = command_line(estate, "history", "info", str(number))
    begun = re.search(r"^Begin time +: (.*)$", text, re.M)
    assert begun is not None
    rows = re.findall(r"^ (?:\*\*|  ) (\w+) +(\S+-\S+) +@", text, re.M)
    # It shows an obsoleted package by this, and no epochs at all in older versions.
    return (
        int(time.mktime(time.strptime(begun.group(1)))),
        "done" if re.search(r"^Return-Code +: Success", text, re.M) else "failed",
        set(rows),
    )


def packages_of(whole: Dict[str, Any]) -> Set[Tuple[str, str]]:
    """As the command line has them: the two versions of an update are two."""
    new_words = {"install": "Install", "upgrade": "Upgrade"}
    old_words = by_library(
        {"upgrade": "Upgraded", "remove": "Removed", "obsoleted": "Obsoleted"},
        {"upgrade": "Replaced", "remove": "Remove", "obsoleted": "Replaced"},
    )
    found = set()
    for one in whole["packages"]:
        for words, evr in ((new_words, one["new"]), (old_words, one["old"])):
            if evr:
                found.add((words[one["action"]], f"{one['name']}-{evr}.{one['arch']}"))
    return found


def test_what_another_program_did_is_told_with_old_and_new_version(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("lib-1.0", "lib-2.0", "app-1.0"))
    for words in ("install lib-1.0 app", "reinstall app", "upgrade lib", "downgrade lib", "remove app"):
        command_line(estate, *words.split())
    yumio = program.start()
    told = [(one["number"], one["counts"]) for one in yumio.historyList()]
    assert told == [
        # Nobody asked for the version that came in as what app requires.
        (5, {"remove": 1}), (4, {"downgrade": 1}), (3, {"upgrade": 1}), (2, {"reinstall": 1}), (1, {"install": 2}),
    ]
    assert shown(yumio.historyOf(2)) == {"app": ("reinstall", "1.0-1", "1.0-1")}
    assert shown(yumio.historyOf(4)) == {"lib": ("downgrade", "2.0-1", "1.0-1")}
    assert shown(yumio.historyOf(5)) == {"app": ("remove", "1.0-1", "")}
    assert "reinstall app" in yumio.historyOf(2)["command"]


def test_versions_of_several_architectures_find_their_own() -> None:
    from vemyum.transactions import Item, changes

    def item(action: str, evr: str, arch: str) -> Item:
        return Item(1, "pair", evr, arch, action, "user", "base", "done")

    both = [item("upgrade", "0:2-1", "i686"), item("upgrade", "0:2-1", "x86_64")]
    both += [item("replaced", "0:1-1", "x86_64"), item("replaced", "1:1-1", "i686")]
    told = [(one.arch, one.old, one.new) for one in changes(both)]
    assert told == [("i686", "1:1-1", "2-1"), ("x86_64", "1-1", "2-1")]
    one = [item("replaced", "0:1-1", "i686"), item("replaced", "0:1-1", "x86_64"), item("upgrade", "0:2-1", "noarch")]
    assert [(c.arch, c.action, c.old, c.new) for c in changes(one)] == [
        ("x86_64", "replaced", "1-1", ""), ("noarch", "upgrade", "1-1", "2-1"),
    ]


def test_the_user_who_had_logged_in_is_named(past: Program, estate: Estate) -> None:
    change(estate, "update trans set user_id = 0 where id = 1")
    change(estate, "update trans set user_id = 54321 where id = 2")
    change(estate, "update trans set user_id = 4294967295 where id = 3")
    told = [(one["user"], one["userName"]) for one in reversed(past.yumio.historyList())]
    assert told == [(0, "root"), (54321, "54321"), (None, "")]


# Search and export --------------------------------------------------------------------------------------------


@pytest.mark.parametrize(
    ("text", "numbers"),
    [
        ("app", [2, 1]), ("APP-1.0", [2, 1]), ("lamp", [1]), ("lib-2.0-1.noarch", [1]), ("l?b", [1]), ("*lamp", [1]),
        ("clock-3:1*", [3]), ("lam", [1]), ("lam*", []), ("nothing", []), ("[", []), ("", [3, 2, 1]),
    ],
)
def test_transactions_are_found_by_their_packages(past_numbers: Any, text: str, numbers: List[int]) -> None:
    assert past_numbers(text) == numbers


@pytest.fixture(scope="module")
def past_numbers() -> Any:
    """Searches a history that holds what the search asks of one."""
    from vemyum.matters.history import _matching
    from vemyum.transactions import Layout, Reader

    database = sqlite3.connect(":memory:")
    database.execute("create table trans_item (trans_id, item_id)")
    database.execute("create table known (item_id, name, epoch, version, release, arch)")
    packages = [("app", 0, "1.0"), ("lib", 0, "2.0"), ("newlamp", 0, "1.0"), ("clock", 3, "1.0")]
    for number, (name, epoch, version) in enumerate(packages):
        database.execute("insert into known values (?, ?, ?, ?, '1', 'noarch')", (number, name, epoch, version))
    database.executemany("insert into trans_item values (?, ?)", [(1, 0), (1, 1), (1, 2), (2, 0), (3, 3)])
    reader = Reader(database, Layout("", "", "", "", "", "select * from known", {}, {}, {}, {}))
    reader._empty = False
    return lambda text: reader.concerning(_matching(text))


def test_the_script_searches_its_history(past: Program) -> None:
    assert past.yumio.historySearch("lib") == [1]
    assert past.yumio.historySearch("app") == [2, 1]


def test_a_transaction_or_all_become_a_text_or_json(past: Program) -> None:
    one = past.yumio.historyExport(1, "text")
    assert one.startswith("Transaction 1\n  Begin: 20")
    assert "\n    Updated lib.noarch 1.0-1 -> 2.0-1 (" in one
    assert "\n    Obsoleted oldlamp.noarch 1.0-1\n" in re.sub(r" \([a-z ]*\)\n", "\n", one)
    assert "\n  Result: done\n" in one
    everything = past.yumio.historyExport(0, "text")
    assert everything.endswith(one) and everything.startswith("Transaction 3\n")
    assert json.loads(past.yumio.historyExport(1, "json")) == past.yumio.historyOf(1)
    assert json.loads(past.yumio.historyExport(0, "json")) == [past.yumio.historyOf(number) for number in (3, 2, 1)]


# Faults -------------------------------------------------------------------------------------------------------


def test_a_transaction_without_an_end_was_cut_off_or_is_running(past: Program, estate: Estate) -> None:
    change(estate, f"update trans set {by_library('state = 0', 'state_id = 1')}, dt_end = null where id > 1")
    change(estate, f"update trans_item set {by_library('state = 0', 'state_id = 1')} where trans_id = 3")
    assert [one["result"] for one in past.yumio.historyList()] == ["cut off", "cut off", "done"]
    third = past.yumio.historyOf(3)
    assert (third["result"], third["ended"], {one["state"] for one in third["packages"]}) == ("cut off", 0, {"open"})
    holder = (
        "import fcntl, sys\n"
        f"file = open({str(estate.root / 'var/lib/rpm/.rpm.lock')!r}, 'w')\n"
        "fcntl.lockf(file, fcntl.LOCK_EX)\n"
        "print(flush=True)\n"
        "sys.stdin.readline()\n"
    )
    with subprocess.Popen([sys.executable, "-c", holder], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as other:
        assert other.stdout is not None and other.stdin is not None
        other.stdout.readline()
        assert [one["result"] for one in past.yumio.historyList()] == ["running", "cut off", "done"]
        assert past.yumio.historyOf(3)["result"] == "running"
        other.stdin.close()


def test_without_a_history_there_are_no_transactions_and_none_is_made(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install([])
    yumio = program.namespace["YumIO"]()
    assert yumio.historyList() == [] and yumio.historySearch("a") == [] and yumio.historyExport(0, "text") == ""
    assert json.loads(yumio.historyExport(0, "json")) == []
    with pytest.raises(program.errors.YumBaseError, match="no transaction 1"):
        yumio.historyOf(1)
    assert not (estate.root / HISTORY).exists()


@pytest.mark.parametrize("content", [b"", b"no database at all", b"SQLite format 3\0" + bytes(84), None])
def test_a_damaged_history_is_one_sentence_and_left_alone(
    estate: Estate, rpms: Catalogue, program: Program, content: Any
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    history = estate.root / HISTORY
    if content is None:
        # A page of it, and not the first.
        apply(program, "lone")
        program.end()
        with contextlib.closing(sqlite3.connect(history)) as database:
            database.execute("pragma journal_mode = delete")
        whole = history.read_bytes()
        content = whole[:4096] + b"\x5a" * (len(whole) - 4096)
    history.parent.mkdir(parents=True, exist_ok=True)
    history.write_bytes(content)
    yumio = program.namespace["YumIO"]()
    for call in (yumio.historyList, lambda: yumio.historyOf(1), lambda: yumio.historySearch("a")):
        with pytest.raises(program.errors.YumBaseError) as failure:
            call()
        text = str(failure.value)
        assert text.startswith(f"The history of transactions, /{HISTORY}, cannot be read: ") and "\n" not in text
    assert history.read_bytes() == content


def test_a_history_that_somebody_keeps_for_himself_is_told_soon(past: Program, estate: Estate) -> None:
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as database:
        database.execute("pragma journal_mode = delete")
        database.execute("begin exclusive")
        database.execute("update trans set comment = 'x'")
        begun = time.monotonic()
        # What was written last, or the sentence; nobody waits for long.
        with contextlib.suppress(past.errors.YumBaseError):
            assert len(past.yumio.historyList()) == 3
        assert time.monotonic() - begun < 4
        database.rollback()
    assert len(past.yumio.historyList()) == 3


def test_who_may_not_read_it_is_told(past: Program, estate: Estate, monkeypatch: pytest.MonkeyPatch) -> None:
    (estate.root / HISTORY).rename(estate.root / f"{HISTORY}.away")
    (estate.root / HISTORY).mkdir()
    with pytest.raises(past.errors.YumBaseError, match=f"/{HISTORY}, cannot be read: Is a directory$"):
        past.yumio.historyList()


def test_a_long_answer_can_be_stopped(past: Program, estate: Estate, tmp_path: Any) -> None:
    past.yumio.historyList()
    stopper = Stopper(past, tmp_path)
    try:
        with stopper.at_once():
            with pytest.raises(past.errors.YumBaseError, match="^Stopped$"):
                past.yumio.historyExport(0, "json")
        assert past.yumio.historyExport(0, "json")
    finally:
        stopper.close()
    assert os.path.exists(estate.root / HISTORY)
