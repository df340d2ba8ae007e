# SPDX-License-Identifier: GPL-2.0-or-later
"""The main job on real rpms: see every package, mark, apply; and what may go wrong on the way."""
from __future__ import annotations

import os
import signal
import subprocess
from pathlib import Path
from typing import Callable

import gi
import pytest

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from program import ACTION_COLUMN, NAME_COLUMN, REPOSITORY_COLUMN, Program, wait_for  # noqa: E402
from rpmestate import Estate, spec  # noqa: E402

Start = Callable[..., Program]

NAME_COLUMN_OF_DETAILS = 1
BEFORE = {"fleet-lamp-1.0-1.noarch", "fleet-match-1.0-1.noarch", "fleet-shell-1.0-1.x86_64"}


def open_program(start: Start, site: Estate, *arguments: str) -> Program:
    program = start(site, *arguments)
    program.wait_ready()
    return program


def test_rows_follow_the_state_filter_and_the_expression(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    assert program.names() == ["fleet-lamp"]
    program.choose("View Installable")
    assert program.names() == ["fleet-bellows", "fleet-oil", "fleet-orphan", "fleet-sulker", "fleet-wick"]
    program.choose("View Removable")
    assert program.names() == ["fleet-lamp", "fleet-match", "fleet-shell"]
    program.choose("View All")
    assert program.row_count() == 8
    program.set_expression("^fleet-(wick|oil) 1")
    wait_for(lambda: program.row_count() == 2, "the filtered rows")
    assert program.names() == ["fleet-oil", "fleet-wick"]


def test_package_files_of_the_command_line_are_marked_and_installed(
    site: Estate, fleet: Estate, start: Start, tmp_path: Path
) -> None:
    new, lamp = fleet.build([spec("fleet-flag", "3.0"), spec("fleet-lamp", "2.0")])
    cut = tmp_path / "cut.rpm"
    cut.write_bytes(new.read_bytes()[:-40])
    heard = tmp_path / "heard"
    with heard.open("wb") as file:
        listener = subprocess.Popen(
            ["dbus-monitor", "--session", "interface='com.canonical.Unity.LauncherEntry'"], stdout=file
        )
    program = start(site, str(new), f"file://{lamp}", str(cut))
    box = program.window("VEM Yum Error")
    assert f"{cut}: this is no rpm package, or it is damaged" in program.texts(box)
    program.press("OK", box)
    program.wait_ready()
    assert program.names() == ["fleet-flag", "fleet-lamp"]
    assert program.cell(0, REPOSITORY_COLUMN).get_name() == "files"
    program.press("Apply Actions")
    question = program.window("Apply")
    text = program.texts(question)
    assert "\tInstall: fleet-flag 3.0-1 (noarch) [files]" in text
    assert "\tUpdate: fleet-lamp 2.0-1 (noarch) [files]" in text
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()
    assert site.installed() == BEFORE - {"fleet-lamp-1.0-1.noarch"} | {
        "fleet-flag-3.0-1.noarch", "fleet-lamp-2.0-1.noarch",
    }
    # The desktop's task bar has followed all of it.
    listener.terminate()
    listener.wait()
    told = heard.read_text(errors="replace").split("member=Update")[1:]
    assert len(told) > 20 and all("application://org.example.vem.desktop" in each for each in told)
    assert "boolean true" in told[0] and "boolean false" in told[-1]


def test_a_click_on_a_header_sorts_and_a_second_one_reverses(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.choose("View Removable")
    x, y = program.centre(program.cell(0, NAME_COLUMN))
    program.click_at(x, y - 28)
    wait_for(lambda: program.names() == ["fleet-lamp", "fleet-match", "fleet-shell"], "ascending names")
    program.click_at(x, y - 28)
    wait_for(lambda: program.names() == ["fleet-shell", "fleet-match", "fleet-lamp"], "descending names")


def test_marks_are_applied_in_one_transaction(site: Estate, start: Start) -> None:
    assert site.installed() == BEFORE
    program = open_program(start, site)

    program.choose("View All")
    program.click_cell("fleet-lamp", ACTION_COLUMN)
    program.choose_from_context_menu("i", program.place_of("fleet-wick", ACTION_COLUMN))
    program.click_cell("fleet-bellows", NAME_COLUMN)
    program.press("Set Install/Update of Selected")
    program.click_cell("fleet-match", ACTION_COLUMN)

    program.press("Apply Actions")
    question = program.window("Apply")
    text = program.texts(question)
    assert "\tInstall: fleet-wick 1.0-1 (noarch) [harbour]" in text
    assert "\tInstall: fleet-bellows 1.0-1 (noarch) [harbour]" in text
    assert "\tUpdate: fleet-lamp 1.1-1 (noarch) [harbour]" in text
    assert "\tRemove: fleet-match 1.0-1 (noarch)" in text
    assert "Performing the following to resolve dependencies:\n\tInstall: fleet-oil 1.0-1" in text
    assert "Total download size: " in text
    look_at_the_details(program, question)
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()

    assert site.installed() == {
        "fleet-lamp-1.1-1.noarch",
        "fleet-shell-1.0-1.x86_64",
        "fleet-wick-1.0-1.noarch",
        "fleet-oil-1.0-1.noarch",
        "fleet-bellows-1.0-1.noarch",
    }
    program.choose("View Updatable")
    assert program.row_count() == 0, "the table still shows the system as it was before"
    program.choose("View Removable")
    assert set(program.names()) == {
        "fleet-lamp", "fleet-shell", "fleet-wick", "fleet-oil", "fleet-bellows"
    }
    log = program.log_text()
    for line in (
        "Applying: OK",
        "Updating fleet-lamp",
        "Installing fleet-wick",
        "Installing fleet-oil",
        "fleet-lamp: the board is lit",
        "fleet-bellows: blown by a shell",
    ):
        assert line in log


def look_at_the_details(program: Program, question: Atspi.Accessible) -> None:
    """The second page: every package with its reason, sorted by a click, and what has changed."""
    program.click(program.wait("Details", Atspi.Role.PAGE_TAB, inside=question))
    table = program.wait("Details", Atspi.Role.TABLE, inside=question)

    def rows() -> list[str]:
        cells = [[Atspi.Table.get_accessible_at(table, row, column).get_name() for column in (0, 1, 2, 6)]
                 for row in range(Atspi.Table.get_n_rows(table))]
        return [" | ".join(cell) for cell in cells]

    told = [
        "Remove | fleet-match | 1.0-1 | marked",
        "Update | fleet-lamp | 1.0-1 \N{RIGHTWARDS ARROW} 1.1-1 | marked",
        "Install | fleet-bellows | 1.0-1 | marked",
        "Install | fleet-oil | 1.0-1 | required by fleet-wick",
        "Install | fleet-wick | 1.0-1 | marked",
    ]
    wait_for(lambda: rows() == told, "the rows of the details")
    x, y = program.centre(Atspi.Table.get_accessible_at(table, 0, NAME_COLUMN_OF_DETAILS))
    program.click_at(x, y - 28)
    wait_for(lambda: rows() == sorted(told, key=lambda row: row.split(" | ")[1]), "the rows by their names")
    assert "Install: 3    Update: 1    Remove: 1    To download: " in program.texts(question)
    program.press("Load Changes", question)
    changes = program.wait("Changes", Atspi.Role.TEXT, inside=question)
    wait_for(lambda: "- Brighter" in program.text_of(changes), "what has changed")
    assert "First light" not in program.text_of(changes)


def test_everything_that_can_be_updated_is_also_what_replaces_others(site: Estate, start: Start) -> None:
    lighter = spec("fleet-lighter", "1.0", obsoletes=["fleet-match < 2"])
    site.repository("annex", site.build(lighter))
    program = open_program(start, site)
    assert program.names() == ["fleet-lamp", "fleet-lighter"]
    program.press("Set Update of All Out-of-Date")
    program.press("Apply Actions")
    question = program.window("Apply")
    text = program.texts(question)
    assert "\tInstall: fleet-lighter 1.0-1 (noarch) [annex]" in text
    assert "\tUpdate: fleet-lamp 1.1-1 (noarch) [harbour]" in text
    assert "\tObsoleting: fleet-match 1.0-1 (noarch) with fleet-lighter 1.0-1 (noarch)" in text
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()
    assert site.installed() == {"fleet-lamp-1.1-1.noarch", "fleet-lighter-1.0-1.noarch", "fleet-shell-1.0-1.x86_64"}
    assert program.row_count() == 0


def test_a_mark_of_the_context_menu_can_be_applied_at_once(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    assert not program.is_enabled("Apply Actions")
    program.choose_from_context_menu("u", program.place_of("fleet-lamp", ACTION_COLUMN))
    wait_for(lambda: program.is_enabled("Apply Actions"), "the button of an apply")
    program.choose_from_context_menu("n", program.place_of("fleet-lamp", ACTION_COLUMN))
    wait_for(lambda: not program.is_enabled("Apply Actions"), "the button to go back")
    program.choose_from_context_menu("u", program.place_of("fleet-lamp", ACTION_COLUMN))
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")
    program.wait_ready()
    assert "fleet-lamp-1.1-1.noarch" in site.installed()


def test_a_program_started_without_standard_descriptors_applies(site: Estate, tmp_path: Path) -> None:
    # As a careless launcher does it. What is opened next, the connection to the display for one, must not be taken for
    # the standard output.
    arguments = ["-c", 'exec "$0" <&- >&- 2>&-', os.environ["VEM_PROGRAM"]]
    share = Path(os.environ["VEMSHARE"])
    with Program(Path("/bin/sh"), site.root, share, tmp_path / "vem.log", arguments) as program:
        program.wait_ready()
        descriptors = Path(f"/proc/{program.process.pid}/fd")
        assert [os.readlink(descriptors / name) for name in "012"] == ["/dev/null"] * 3
        program.press("Set Update of All Out-of-Date")
        program.press("Apply Actions")
        program.press("OK", program.window("Apply"))
        program.wait_closed("Apply")
        program.wait_ready()
        assert "fleet-lamp-1.1-1.noarch" in site.installed()


def test_a_cancelled_apply_changes_nothing_and_keeps_the_marks(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.press("Set Update of All Out-of-Date")
    for _ in range(2):
        # The second round shows that the mark is still there.
        program.press("Apply Actions")
        question = program.window("Apply")
        assert "\tUpdate: fleet-lamp 1.1-1" in program.texts(question)
        program.press("Cancel", question)
        program.wait_closed("Apply")
        program.wait_ready()
        assert site.installed() == BEFORE
    assert "Not Applying: Canceled" in program.log_text()


def test_unsolvable_dependencies_are_explained_and_the_program_goes_on(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.choose("View All")
    program.click_cell("fleet-orphan", ACTION_COLUMN)
    program.press("Apply Actions")
    report = program.window("VEM Yum Error")
    text = program.texts(report)
    assert "fleet-parent" in text and "fleet-orphan" in text
    assert text.endswith("Error applying changes")
    program.press("Close", report)
    program.wait_ready()
    assert site.installed() == BEFORE

    # The mark is still there; without it the next apply works.
    program.press("Clear Actions")
    program.click_cell("fleet-lamp", ACTION_COLUMN)
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")
    program.wait_ready()
    assert "fleet-lamp-1.1-1.noarch" in site.installed()


def test_a_failing_scriptlet_ends_as_a_visible_error(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.choose("View All")
    program.click_cell("fleet-sulker", ACTION_COLUMN)
    program.click_cell("fleet-lamp", ACTION_COLUMN)
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    report = program.window("VEM Yum Error", timeout=60)
    text = program.texts(report)
    assert "fleet-sulker" in text and "will not" in text
    assert "refresh" in text.lower()
    program.press("Close", report)
    program.wait_ready()
    assert not any(name.startswith("fleet-sulker") for name in site.installed())


def test_a_second_instance_is_refused_and_told_who_holds_the_lock(site: Estate, start: Start) -> None:
    first = open_program(start, site)
    second = start(site)
    report = second.window("VEM Yum Error")
    text = second.texts(report)
    assert "Unable to obtain yum lock" in text
    assert str(first.process.pid) in text
    second.press("Close", report)
    second.wait_ready()
    assert second.row_count() == 0

    # Once the first has gone, a refresh gets the lock.
    first.close()
    second.press("Refresh")
    wait_for(lambda: second.is_ready() and second.row_count() == 1, "the table of the second instance")


def test_a_repository_that_is_gone_is_named_with_its_address(site: Estate, start: Start) -> None:
    definition = site.root / "etc/yum.repos.d/harbour.repo"
    gone = "http://127.0.0.1:9/harbour-that-sank"
    lines = definition.read_text().splitlines()
    definition.write_text(
        "\n".join(f"baseurl={gone}" if line.startswith("baseurl") else line for line in lines) + "\n"
    )
    program = start(site)
    report = program.window("VEM Yum Error", timeout=120)
    text = program.texts(report)
    assert "harbour" in text and gone in text
    assert text.endswith("Unable to initialize")
    program.press("Close", report)
    program.wait_ready()
    assert program.row_count() == 0


def test_repositories_of_the_command_line_are_left_out(site: Estate, start: Start) -> None:
    program = start(site, "--disablerepo=*")
    report = program.window("VEM Yum Error")
    assert "No repositories are enabled." in program.texts(report)
    program.press("OK", report)
    program.wait_ready()
    assert program.row_count() == 0


def test_the_log_window_stands_before_the_first_line(site: Estate, start: Start) -> None:
    program = start(site, "--log")
    program.window("VEM Log")
    program.wait_ready()
    assert program.log_text().startswith("Initialization")


def test_an_interrupt_ends_the_process_at_once(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.process.send_signal(signal.SIGINT)
    assert program.process.wait(timeout=10) == -signal.SIGINT


def test_quitting_gives_the_lock_back(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    program.key("ctrl+q")
    assert program.process.wait(timeout=20) == 0
    leftovers = [path for path in Path(site.root).rglob("*_lock.pid")]
    assert leftovers == []


def test_columns_tell_version_repository_and_size(site: Estate, start: Start) -> None:
    program = open_program(start, site)
    row = [program.cell(0, column).get_name() for column in range(NAME_COLUMN, 9)]
    assert row[:4] == ["fleet-lamp", "1.1-1", "harbour", "noarch"]
    assert program.cell(0, REPOSITORY_COLUMN).get_name() == "harbour"
    assert row[4].endswith("b")


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
