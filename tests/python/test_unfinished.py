# SPDX-License-Identifier: GPL-2.0-or-later
"""What a transaction that was cut off has left: told by history and rpm database, removed on demand."""

from __future__ import annotations

import contextlib
import os
import sqlite3
import subprocess
import sys
from typing import Any, Dict, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import HISTORY, by_library
from program import Program
from rpmestate import Estate, install_options, spec


def double(estate: Estate, rpms: Catalogue, *names: str) -> None:
    """Puts packages in beside older ones, as rpm does before it takes those out."""
    estate.rpm("-i", "--oldpackage", *install_options(), *rpms.some(*names))


def cut_off_last(estate: Estate) -> None:
    """Makes the last entry of the history one without an end."""
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as history:
        history.execute(f"update trans set {by_library('state = 0', 'state_id = 1')}, dt_end = null")
        history.commit()


@pytest.fixture
def doubled(estate: Estate, rpms: Catalogue, program: Program) -> Tuple[Estate, Program]:
    estate.install(rpms.some("lib-1.0", "battery-1.0"))
    double(estate, rpms, "lib-2.0")
    estate.repository("base", rpms.some("lone-1.0"))
    return estate, program


def told(program: Program) -> Tuple[str, Dict[str, str], Any]:
    answer = program.collect().yumio.unfinished()
    assert answer is not None
    return answer


def test_sound_system_has_nothing_to_tell(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    _, program = lamp
    assert program.collect().yumio.unfinished() is None
    assert not host.text("errorlog")


def test_packages_that_are_there_twice_are_told_with_their_versions(
    doubled: Tuple[Estate, Program], host: FakeHost
) -> None:
    text, versions, older = told(doubled[1])
    assert text == (
        "Installed in more than one version, as a transaction leaves it that is cut off:\n"
        "    lib.noarch: 1.0-1, 2.0-1"
    )
    assert versions == {"lib": "1.0-1, 2.0-1"}
    assert [str(package) for package in older] == ["lib-1.0-1.noarch"]
    assert host.text("errorlog") == text


def test_older_version_is_the_one_that_is_removed_even_if_it_came_in_last(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("lib-2.0", "battery-1.0"))
    double(estate, rpms, "lib-1.0")
    estate.repository("base", rpms.some("lone-1.0"))
    _, versions, older = told(program)
    assert versions == {"lib": "1.0-1, 2.0-1"}
    # That a newer version stays is known even so.
    protected = estate.root / "etc/dnf/protected.d/lib.conf"
    protected.parent.mkdir(parents=True, exist_ok=True)
    protected.write_text("lib\n")
    program.yumio.apply([], [], older)
    assert estate.installed() == {"lib-2.0-1.noarch", "battery-1.0-1.noarch"}


def test_older_versions_are_removed_by_an_apply(doubled: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = doubled
    listed = []
    host.on_list = lambda apply: listed.extend(member.pkgtup for member in apply.tsInfo.removed)
    _, _, older = told(program)
    program.yumio.apply([], [], older)
    assert listed == [("lib", "noarch", "0", "1.0", "1")]
    assert estate.installed() == {"lib-2.0-1.noarch", "battery-1.0-1.noarch"}
    assert program.collect().yumio.unfinished() is None


def test_older_version_of_a_protected_package_is_removed_and_the_newest_is_not(
    doubled: Tuple[Estate, Program],
) -> None:
    estate, program = doubled
    protected = estate.root / "etc/dnf/protected.d/lib.conf"
    protected.parent.mkdir(parents=True, exist_ok=True)
    protected.write_text("lib\n")
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="protected|all versions"):
        found.yumio.apply([], [], list(filter(lambda package: package.name == "lib", found.installed)))
    assert estate.installed() == {"lib-1.0-1.noarch", "lib-2.0-1.noarch", "battery-1.0-1.noarch"}
    # Nor may the newest go, though the older one would stay.
    newest = [package for package in found.installed if str(package) == "lib-2.0-1.noarch"]
    with pytest.raises(program.errors.YumBaseError, match="protected packages: lib"):
        found.yumio.apply([], [], newest)
    _, _, older = told(program)
    program.yumio.apply([], [], older)
    assert estate.installed() == {"lib-2.0-1.noarch", "battery-1.0-1.noarch"}
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="protected"):
        found.yumio.apply([], [], [found.there("lib")])


def test_what_needs_the_older_version_is_updated_where_that_is_offered(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    old, new = estate.build([spec("peg", "1.0", requires=["lib < 2"]), spec("peg", "2.0", requires=["lib >= 2"])])
    estate.install([*rpms.some("lib-1.0"), old])
    double(estate, rpms, "lib-2.0")
    estate.repository("base", [new])
    _, _, older = told(program)
    program.yumio.apply([], [], older)
    assert estate.installed() == {"lib-2.0-1.noarch", "peg-2.0-1.noarch"}


def test_nothing_is_told_while_another_program_changes_the_system(
    doubled: Tuple[Estate, Program], host: FakeHost
) -> None:
    estate, program = doubled
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
        assert program.collect().yumio.unfinished() is None
        assert "A transaction is at work: what it has not done yet is not told." in host.text("log")
        other.stdin.close()
    assert told(program)


def test_packages_that_may_be_there_several_times_are_none_of_them(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("core-1.0"))
    double(estate, rpms, "core-2.0")
    estate.repository("base", [])
    assert program.collect().yumio.unfinished() is None


def test_long_list_is_cut_short(estate: Estate, rpms: Catalogue) -> None:
    from vemyum import unfinished

    lines = unfinished._shortened([f"package-{number}" for number in range(13)])
    assert lines[-2:] == ["    package-9", "    and 3 more"]


def test_who_may_only_look_gets_nothing_to_remove(
    doubled: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch, host: FakeHost
) -> None:
    from vemyum import unfinished

    monkeypatch.setattr(unfinished, "is_administrator", lambda: False)
    text, versions, older = told(doubled[1])
    assert text == "" and versions == {"lib": "1.0-1, 2.0-1"} and older == []
    assert "lib.noarch: 1.0-1, 2.0-1" in host.text("log")


def test_who_may_only_look_is_told_of_the_systems_own_history(
    lamp: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum import rights

    estate, program = lamp
    found = program.collect()
    found.yumio.apply([], [], [found.there("lamp")])
    cut_off_last(estate)
    program.end()
    monkeypatch.setattr(rights, "is_administrator", lambda: False)
    assert told(program)[0].startswith("The last transaction was cut off before its end: number 1, ")


def test_entry_of_the_history_without_an_end_is_told_with_what_is_missing(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("lib-1.0", "battery-1.0"))
    estate.repository("base", rpms.some("lone-1.0", "lib-2.0"))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [found.pair("lib")], [found.there("battery")])
    from vemyum.processes import command_line

    cut_off_last(estate)
    first, *rest = told(program)[0].splitlines()
    assert first.startswith("The last transaction was cut off before its end: number 1, of 20")
    assert first.endswith(f", begun by {command_line(os.getpid())}.")
    assert rest == []

    estate.rpm("--erase", "lone")
    estate.install(rpms.some("battery-1.0"))
    double(estate, rpms, "lib-1.0")
    assert told(program)[0].splitlines()[1:] == [
        "Still to be installed:",
        "    lone-1.0-1.noarch",
        "Still to be removed:",
        "    battery-1.0-1.noarch",
        "    lib-1.0-1.noarch",
        "Installed in more than one version:",
        "    lib.noarch: 1.0-1, 2.0-1",
    ]


def test_next_transaction_ends_the_telling(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lone-1.0", "battery-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    cut_off_last(estate)
    assert told(program)
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    assert program.collect().yumio.unfinished() is None


@pytest.mark.parametrize("content", [None, b"", b"no database", b"SQLite format 3\0" + bytes(84)])
def test_history_that_cannot_be_read_is_left_alone(
    lamp: Tuple[Estate, Program], content: Any, host: FakeHost
) -> None:
    estate, program = lamp
    history = estate.root / HISTORY
    history.parent.mkdir(parents=True, exist_ok=True)
    if content is not None:
        history.write_bytes(content)
    assert program.collect().yumio.unfinished() is None
    assert history.exists() == (content is not None)
    assert content is None or history.read_bytes() == content
