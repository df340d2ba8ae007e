# SPDX-License-Identifier: GPL-2.0-or-later
"""Applies that go wrong: what is told, and that nothing else is done."""

from __future__ import annotations

import contextlib
import locale
import re
import sqlite3
import subprocess
from pathlib import Path
from typing import Callable, ContextManager, Iterator, Tuple

import pytest
from catalogue import Catalogue
from failing import fail_with, fails, in_work
from fake_host import FakeHost
from libraries import HISTORY
from program import Program
from rpmestate import Estate

# Failures before anything is done ---------------------------------------------------------------------


def test_unsolvable_dependencies_are_told_in_dnfs_words(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lost-1.0"))
    found = program.collect()
    fails(
        program,
        lambda: found.yumio.apply([found.offered("lost")], [], []),
        "Problem:",
        "nothing provides nowhere = 7 needed by lost-1.0-1.noarch",
    )
    assert not host.named("userconfirm")


def test_update_that_cannot_be_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("tool-1.0", "lib-1.0"))
    estate.repository("base", rpms.some("tool-2.0"))
    found = program.collect()
    fails(program, lambda: found.yumio.apply([], [found.pair("tool")], []), "lib >= 2")


def test_install_does_not_push_out_what_is_installed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", rpms.some("rival-1.0"))
    found = program.collect()
    fails(program, lambda: found.yumio.apply([found.offered("rival")], [], []), "conflicts with lone")
    assert not host.named("userconfirm")


def test_file_conflict_stops_before_anything_is_installed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("same-one-1.0", "same-two-1.0"))
    found = program.collect()
    fails(
        program,
        lambda: found.yumio.apply([found.offered("same-one"), found.offered("same-two")], [], []),
        "/usr/share/same",
        "conflict",
    )
    assert [call[1] for call in host.named("tsInitCallback")] == [0]
    assert estate.installed() == set()


def test_vanished_rpm_file_is_named(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    directory = estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (rpm,) = directory.glob("*.rpm")
    rpm.unlink()
    fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []), "lone-1.0-1.noarch", str(rpm))


def test_rpm_file_that_vanishes_late_is_named(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, in_child: Callable[[str], None]
) -> None:
    directory = estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (rpm,) = directory.glob("*.rpm")
    # dnf 5 has a copy in its cache by then.
    vanish = f"[os.unlink(path) for path in list(__import__('pathlib').Path({str(estate.directory)!r}).rglob({rpm.name!r}))]"
    in_work(in_child, f"Transaction.check_signatures = lambda transaction: {vanish}")
    text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []), f"/{rpm.name}")
    assert "No such file" in text


def test_damaged_rpm_file_stops_before_anything_is_installed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    directory = estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (rpm,) = directory.glob("*.rpm")
    data = bytearray(rpm.read_bytes())
    rpm.unlink()
    data[-20:] = bytes(20)
    rpm.write_bytes(data)
    text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []), "checksum")
    # The engine shows the error lines of the call together with the exception.
    assert "lone-1.0-1.noarch" in text + host.text("errorlog")
    assert estate.installed() == set()


def test_package_that_was_removed_meanwhile_is_named(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0", "battery-1.0"))
    estate.repository("base", [])
    found = program.collect()
    estate.rpm("--erase", "lone")
    fails(program, lambda: found.yumio.apply([], [], [found.there("lone")]), "lone-1.0-1.noarch", "refresh")


def test_package_that_is_removed_while_the_user_is_asked_is_named(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0", "battery-1.0"))
    estate.repository("base", [])
    found = program.collect()
    host.on_confirm = lambda: estate.rpm("--erase", "lone") and None
    marks = [found.there("lone"), found.there("battery")]
    fails(
        program,
        lambda: found.yumio.apply([], [], marks),
        "lone-1.0-1.noarch is no longer installed. Please refresh the list of packages.",
    )
    assert estate.installed() == {"battery-1.0-1.noarch"}


@pytest.mark.parametrize("damage", ["missing", "emptied", "a page of zeros"])
def test_database_that_was_damaged_since_the_table_was_filled_stops_the_apply(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, damage: str
) -> None:
    """dnf would take what is left for the whole system, and a missing database for a new one."""
    estate.install(rpms.some("battery-1.0", "lib-1.0", "app-1.0"))
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (database,) = estate.root.glob("**/rpmdb.sqlite")
    data = bytearray(database.read_bytes())
    for file in database.parent.glob("rpmdb.sqlite*"):
        file.unlink()
    if damage == "emptied":
        database.touch()
    elif damage == "a page of zeros":
        # The page on which the table of packages begins; the index of their names stays.
        data[4096 : 2 * 4096] = bytes(4096)
        database.write_bytes(data)
    fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []), "The rpm database of ")
    assert not host.named("userconfirm")
    # It is remembered how many packages there were.
    fails(program, lambda: program.collect(), "The rpm database of ")


@pytest.mark.parametrize("content", [b"", b"no history" * 1000, b"SQLite format 3\0" + bytes(84)])
def test_history_that_cannot_be_used_is_told_once_with_its_remedy(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, content: bytes
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    history = estate.root / HISTORY
    history.parent.mkdir(parents=True, exist_ok=True)
    history.write_bytes(content)
    found = program.collect()
    text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []))
    first, second = text.splitlines()
    assert first.startswith(f"The history of transactions, /{HISTORY}, cannot be used: ")
    assert second == "Move it elsewhere, and it is made anew."
    assert not host.text("errorlog")
    assert not host.named("userconfirm")
    assert estate.installed() == set() and history.read_bytes() == content
    history.unlink()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"} and history.stat().st_size


def test_locked_history_is_told_and_not_to_be_moved(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0", "battery-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    found = program.collect()
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as history:
        history.execute("begin exclusive")
        fails_with = f"The history of transactions, /{HISTORY}, cannot be used: database is locked"
        assert fails(program, lambda: found.yumio.apply([found.offered("lone")], [], [])) == fails_with
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


# Where dnf 5's lies there is more beside it: see tests/dnf5/test_apply.py.
@pytest.mark.parametrize("kib", [8, 64, 124, 160])
@pytest.mark.dnf4
def test_full_disk_leaves_no_half_made_history(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    small_disk: Callable[[Path, int], ContextManager[None]],
    kib: int,
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    place = estate.root / "var/lib/dnf"
    with small_disk(place, kib):
        text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []))
        assert text.startswith("The history of transactions, /var/lib/dnf/history.sqlite, cannot be ")
        assert re.search(r"\nOnly \d+ KiB are free in /var/lib/dnf\.$", text)
        assert "not an error" not in text and not host.text("errorlog")
        left = [file.name for file in place.iterdir() if file.name.startswith("history")]
        assert kib > 120 or not left
    assert estate.installed() == set()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_mark_that_is_done_already_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    estate.install(rpms.some("lone-1.0"))
    fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []), "Nothing to do")


def test_mark_that_is_done_already_is_told_beside_others(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0", "battery-1.0"))
    found = program.collect()
    estate.install(rpms.some("lone-1.0"))
    marks = [found.offered("lone"), found.offered("battery")]
    fails(program, lambda: found.yumio.apply(marks, [], []), "lone-1.0-1.noarch", "refresh")
    assert not host.named("userconfirm")


# Failures that rpm reports in passing -----------------------------------------------------------------


def test_failing_pre_scriptlet_is_an_error_and_the_others_go_in(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("badpre-1.0", "lone-1.0"))
    found = program.collect()
    fails(
        program,
        lambda: found.yumio.apply([found.offered("badpre"), found.offered("lone")], [], []),
        "badpre-1.0-1.noarch was not installed",
        "no entry",
        "refresh the list",
    )
    assert estate.installed() == {"lone-1.0-1.noarch"}


@pytest.fixture
def german_rpm(tmp_path: Path, in_child: Callable[[str], None]) -> Iterator[None]:
    """rpm begins its lines in German; dnf and the helper script speak English."""
    folder = tmp_path / "locale/de/LC_MESSAGES"
    folder.mkdir(parents=True)
    texts = 'msgid ""\nmsgstr "Content-Type: text/plain; charset=UTF-8\\n"\nmsgid "error: "\nmsgstr "Fehler: "\n'
    subprocess.run(["msgfmt", "--output-file", folder / "rpm.mo", "-"], input=texts, text=True, check=True)
    # A locale that is somebody's: in C.UTF-8, the one that every system has, later releases of glibc translate nothing.
    made = ["localedef", "--no-archive", "--inputfile=de_DE", "--charmap=UTF-8", tmp_path / "de_DE.UTF-8"]
    subprocess.run(made, check=True)
    in_child(f"import locale; locale.bindtextdomain('rpm', {str(tmp_path / 'locale')!r})")
    before = locale.setlocale(locale.LC_ALL)
    with pytest.MonkeyPatch.context() as environment:
        environment.setenv("LANGUAGE", "de")
        environment.setenv("LOCPATH", str(tmp_path))
        environment.setenv("LC_ALL", "de_DE.UTF-8")
        yield
    # The C library keeps what it has translated until the locale changes.
    for name in ("C", "C.UTF-8", before):
        locale.setlocale(locale.LC_ALL, name)


def test_rpms_words_about_a_failure_are_told_in_any_language(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, german_rpm: None
) -> None:
    estate.repository("base", rpms.some("badpost-1.0"))
    found = program.collect()
    fails(program, lambda: found.yumio.apply([found.offered("badpost")], [], []), "Fehler: ", "half way")


def test_failing_post_scriptlet_is_an_error(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("badpost-1.0"))
    found = program.collect()
    text = fails(
        program,
        lambda: found.yumio.apply([found.offered("badpost")], [], []),
        "badpost",
        "half way",
        "refresh the list",
    )
    assert "was not installed" not in text
    assert estate.installed() == {"badpost-1.0-1.noarch"}


def test_failing_preun_scriptlet_is_an_error(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("badpreun-1.0"))
    estate.repository("base", [])
    found = program.collect()
    fails(
        program,
        lambda: found.yumio.apply([], [], [found.there("badpreun")]),
        "badpreun-1.0-1.noarch was not removed",
        "staying",
    )
    assert estate.installed() == {"badpreun-1.0-1.noarch"}


def test_failure_that_changes_nothing_asks_for_no_refresh(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("same-one-1.0", "same-two-1.0"))
    found = program.collect()
    marks = [found.offered("same-one"), found.offered("same-two")]
    assert "refresh" not in fails(program, lambda: found.yumio.apply(marks, [], []), "conflict")


def test_transaction_that_is_only_tested_is_told_as_that(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.write_main_config(tsflags="nodocs test")
    estate.install(rpms.some("lib-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "battery-1.0"))
    found = program.collect()
    marks = [found.offered("battery")], [found.pair("lib")], [found.there("lone")]
    for _ in range(2):
        text = fails(program, lambda: found.yumio.apply(*marks))
        assert text == (
            "This was only a test: tsflags=test is set in the configuration. The transaction has been checked and "
            "would work; no package was changed."
        )
        assert not host.text("errorlog")
        assert [call[1] for call in host.named("tsInitCallback")] == [0]
        assert not host.named("postTransactionOutput")
        assert estate.installed() == {"lib-1.0-1.noarch", "lone-1.0-1.noarch"}
        host.calls.clear()


def test_transaction_that_fails_its_test_is_told_as_ever_where_only_that_is_wanted(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.write_main_config(tsflags="test")
    estate.repository("base", rpms.some("same-one-1.0", "same-two-1.0"))
    found = program.collect()
    marks = [found.offered("same-one"), found.offered("same-two")]
    assert "only a test" not in fails(program, lambda: found.yumio.apply(marks, [], []), "conflict")


def test_protected_package_of_the_managed_system_stays(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0", "battery-1.0"))
    estate.repository("base", [])
    for system, name in (("yum", "lone"), ("dnf", "battery")):
        directory = estate.root / "etc" / system / "protected.d"
        directory.mkdir(parents=True)
        (directory / "own.conf").write_text(f"# ours\n{name}\n")
    found = program.collect()
    for name in ("lone", "battery"):
        fails(program, lambda: found.yumio.apply([], [], [found.there(name)]), "protected packages: " + name)
    assert not host.named("userconfirm")


def test_protected_package_stays_though_it_is_excluded(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", [])
    estate.write_main_config(exclude="lone")
    directory = estate.root / "etc/dnf/protected.d"
    directory.mkdir(parents=True)
    (directory / "own.conf").write_text("lone\n")
    found = program.collect()
    fails(program, lambda: found.yumio.apply([], [], [found.there("lone")]), "protected packages: lone")
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_apply_after_a_failed_one(estate: Estate, rpms: Catalogue, program: Program, host: FakeHost) -> None:
    estate.repository("base", rpms.some("badpre-1.0", "same-one-1.0", "same-two-1.0", "lone-1.0"))
    found = program.collect()
    fails(program, lambda: found.yumio.apply([found.offered("badpre")], [], []))
    fails(program, lambda: found.yumio.apply([found.offered("same-one"), found.offered("same-two")], [], []))
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


# What else can go wrong -------------------------------------------------------------------------------


def test_operating_system_errors_name_path_and_cause(
    lamp: Tuple[Estate, Program], host: FakeHost, in_child: Callable[[str], None]
) -> None:
    found = lamp[1].collect()
    error = "OSError(28, os.strerror(28), '/var/cache/yum/lamp.rpm')"
    in_work(in_child, fail_with(error) + "\n    Transaction.solve = fail")
    fails(
        lamp[1],
        lambda: found.yumio.apply([], [found.pair("lamp")], []),
        "/var/cache/yum/lamp.rpm: No space left on device",
    )


def test_broken_pipe_reaches_the_engine_as_it_is(
    lamp: Tuple[Estate, Program], host: FakeHost, in_child: Callable[[str], None]
) -> None:
    found = lamp[1].collect()
    in_work(in_child, fail_with("BrokenPipeError(32, os.strerror(32))") + "\n    Transaction.solve = fail")
    with pytest.raises(BrokenPipeError):
        found.yumio.apply([], [found.pair("lamp")], [])


def test_apply_without_collection_is_an_error(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    pair = lamp[1].collect().pair("lamp")
    unread = lamp[1].start()
    fails(lamp[1], lambda: unread.apply([], [pair], []))
