# SPDX-License-Identifier: GPL-2.0-or-later
"""Applies: from the marks to the rpm database, with what the engine hears on the way."""

from __future__ import annotations

import contextlib
import os
from typing import Any, Dict, List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

LISTS = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")
"""The attributes that the engine reads."""


@pytest.fixture
def listed(host: FakeHost) -> Dict[str, List[str]]:
    """The transaction's lists as the engine reads them while it composes the confirmation."""
    lists: Dict[str, List[str]] = {}

    def read(holder: Any) -> None:
        info = holder.tsInfo
        info.makelists()
        for name in LISTS:
            members = getattr(info, name)
            for member in members:
                assert len(member.pkgtup) == 5 and all(isinstance(part, str) for part in member.pkgtup)
            if members:
                lists[name] = ["{0}-{3}".format(*member.pkgtup) + f" {member.repoid}" for member in members]

    host.on_list = read
    return lists


def order(host: FakeHost) -> List[str]:
    """The host functions of an apply in their order, repeats left out."""
    names: List[str] = []
    for call in host.calls:
        if call[0] not in ("log", "errorlog", "stdoutWrite") and (not names or names[-1] != call[0]):
            names.append(call[0])
    return names


def events(host: FakeHost) -> List[Tuple[str, int]]:
    """Name and code per element, in order of their ordinals."""
    seen: Dict[int, Tuple[str, int]] = {}
    for _, name, code, _, _, ordinal, _ in host.named("tsEvent"):
        assert seen.setdefault(ordinal, (name, code)) == (name, code)
    assert sorted(seen) == list(range(1, len(seen) + 1))
    return [seen[ordinal] for ordinal in sorted(seen)]


# Good ways --------------------------------------------------------------------------------------------


def test_install_update_and_remove_in_one_go(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("twin-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("twin-1.5", "battery-1.0"))
    found = program.collect()
    host.calls.clear()
    found.yumio.apply([found.offered("battery")], [found.pair("twin")], [found.there("lone")])
    assert estate.installed() == {"battery-1.0-1.noarch", "twin-1.5-1.x86_64"}
    assert listed == {
        "installed": ["battery-1.0 base"],
        "updated": ["twin-1.5 base"],
        "removed": ["lone-1.0 installed"],
    }
    assert sorted(events(host)) == [("battery", 20), ("lone", 40), ("twin", 10), ("twin", 90)]
    assert order(host) == [
        "dsTsCheck",
        "listTransaction",
        "reportDownloadSize",
        "userconfirm",
        "tsInitCallback",
        "tsEvent",
        "postTransactionOutput",
    ]
    assert [call[1] for call in host.named("tsInitCallback")] == [0, 1]
    assert host.tsinfo() == []
    assert program.collect().merged() == {"battery": "UpToDate", "twin": "UpToDate"}


def test_events_count_bytes_up_to_the_whole(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    steps = [call[3:5] for call in host.named("tsEvent")]
    assert steps[0][0] == 0 and steps[-1][0] == steps[-1][1] > 0


def test_pulled_in_packages_are_listed_and_told_to_the_solver_bar(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0"))
    found = program.collect()
    host.calls.clear()
    found.yumio.apply([found.offered("app")], [], [])
    assert listed == {"installed": ["app-1.0 base"], "depinstalled": ["lib-1.0 base"]}
    (line,) = host.tsinfo()
    assert line.startswith("Marking lib ") and " update " not in line
    assert order(host)[:4] == ["dsTsCheck", "dsRestartLoop", "dsTsCheck", "listTransaction"]
    assert estate.installed() == {"app-1.0-1.noarch", "lib-1.0-1.noarch"}


def test_update_that_needs_another_update(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("tool-1.0", "lib-1.0"))
    estate.repository("base", rpms.some("tool-2.0", "lib-2.0"))
    found = program.collect()
    found.yumio.apply([], [found.pair("tool")], [])
    assert listed == {"updated": ["tool-2.0 base"], "depupdated": ["lib-2.0 base"]}
    (line,) = host.tsinfo()
    assert line.startswith("Updating lib ")
    assert estate.installed() == {"tool-2.0-1.noarch", "lib-2.0-1.noarch"}


def test_removal_takes_along_what_needs_it(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("app-1.0", "lib-1.0", "lone-1.0"))
    estate.repository("base", [])
    found = program.collect()
    found.yumio.apply([], [], [found.there("lib")])
    assert listed == {"removed": ["lib-1.0 installed"], "depremoved": ["app-1.0 installed"]}
    (line,) = host.tsinfo()
    assert " marked as erase" in line and line.startswith("app ")
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_obsoleting_install_names_what_it_replaces(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    found = program.collect()
    related: List[Any] = []

    def read(holder: Any) -> None:
        holder.tsInfo.makelists()
        related.extend((one.pkgtup[0], kind) for one, kind in holder.tsInfo.obsoleted[0].relatedto)

    host.on_list = read
    found.yumio.apply([found.update("newlamp")], [], [])
    assert related == [("newlamp", "obsoletedby")]
    assert events(host) == [("newlamp", 60), ("oldlamp", 50)]
    assert estate.installed() == {"newlamp-1.0-1.noarch"}


def test_all_updates_with_a_replacing_one_among_them(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    """Split as the engine splits the marks on everything that can be updated."""
    estate.install(rpms.some("oldlamp-1.0", "lib-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0", "lib-2.0"))
    found = program.collect()
    replacing = [update for update in found.updates if getattr(update, "replaces", None)]
    pairs = [found.pair(update.name) for update in found.updates if update not in replacing]
    found.yumio.apply(replacing, pairs, [])
    assert listed == {
        "installed": ["newlamp-1.0 base"],
        "updated": ["lib-2.0 base"],
        "obsoleted": ["oldlamp-1.0 installed"],
    }
    assert estate.installed() == {"newlamp-1.0-1.noarch", "lib-2.0-1.noarch"}
    assert set(program.collect().merged().values()) == {"UpToDate"}


def test_package_that_is_up_to_date_is_never_told_to_the_solver_bar(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    """twin is installed for one architecture, and the other one is pulled in."""
    estate.install(rpms.some("twin-1.0"))
    estate.repository("base", rpms.some("twin-1.0", "twin-1.0.i686", "needs-twin32-1.0"))
    found = program.collect()
    assert found.merged()["twin"] == "UpToDate"
    found.yumio.apply([found.offered("needs-twin32")], [], [])
    assert host.tsinfo() == []
    assert "twin-1.0-1.i686" in estate.installed()


def test_install_only_package_keeps_the_old_one(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("core-1.0"))
    estate.repository("base", rpms.some("core-2.0"))
    found = program.collect()
    assert found.merged() == {"core": "OutOfDate"}
    found.yumio.apply([], [found.pair("core")], [])
    assert listed == {"installed": ["core-2.0 base"]}
    assert events(host) == [("core", 30)]
    assert estate.installed() == {"core-1.0-1.noarch", "core-2.0-1.noarch"}


def test_version_that_gives_way_to_an_older_one_is_listed_as_removed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.install(rpms.some("lib-2.0"))
    estate.repository("base", rpms.some("lib-1.0", "oldapp-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("oldapp")], [], [])
    assert listed == {
        "installed": ["oldapp-1.0 base"],
        "depinstalled": ["lib-1.0 base"],
        "depremoved": ["lib-2.0 installed"],
    }
    assert estate.installed() == {"lib-1.0-1.noarch", "oldapp-1.0-1.noarch"}


def test_package_whose_scriptlet_runs_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0", "badpost-1.0"))
    found = program.collect()
    with contextlib.suppress(program.errors.YumBaseError):
        found.yumio.apply([found.offered("lone"), found.offered("badpost")], [], [])
    assert host.scripts == ["badpost"]


def test_scriptlet_output_reaches_the_log_line_by_line(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("talk-1.0", "shell-1.0"))
    found = program.collect()
    host.calls.clear()
    found.yumio.apply([found.offered("talk")], [], [])
    assert [call[1] for call in host.named("stdoutWrite")] == ["first line\n", "second line\n"]
    assert not [call for call in host.named("log") if "first line" in call[2]]


def test_two_applies_in_a_row(estate: Estate, rpms: Catalogue, program: Program, host: FakeHost) -> None:
    estate.repository("base", rpms.some("battery-1.0", "lone-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_removing_the_last_package_is_no_fault(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", [])
    found = program.collect()
    found.yumio.apply([], [], [found.there("lone")])
    assert program.collect().installed == []


def test_nothing_marked_asks_nothing(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    found = lamp[1].collect()
    host.calls.clear()
    found.yumio.apply([], [], [])
    assert order(host) == []


def test_apply_leaves_no_descriptors_open(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("battery-1.0", "lone-1.0", "lib-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    before = len(os.listdir("/proc/self/fd"))
    found.yumio.apply([found.offered("lone")], [], [])
    host.answer = 0
    found.yumio.apply([found.offered("lib")], [], [])
    assert len(os.listdir("/proc/self/fd")) == before


# Refusals ---------------------------------------------------------------------------------------------


def test_refused_confirmation_leaves_nothing_behind(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, listed: Dict[str, List[str]]
) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0", "lone-1.0"))
    found = program.collect()
    host.answer = 0
    host.calls.clear()
    found.yumio.apply([found.offered("app")], [], [])
    assert order(host)[-1] == "userconfirm"
    assert estate.installed() == set()
    host.answer = 1
    listed.clear()
    found.yumio.apply([found.offered("lone")], [], [])
    assert listed == {"installed": ["lone-1.0 base"]}
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_after_a_refusal_and_its_flush_the_same_object_applies(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    """The engine calls flush after a refused confirmation, too, and keeps table and object."""
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    host.answer = 0
    found.yumio.apply([found.offered("lone")], [], [])
    found.yumio.flush()
    assert found.offered("lone").localPkg() is not None
    host.answer = 1
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}
