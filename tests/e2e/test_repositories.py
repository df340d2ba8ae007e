# SPDX-License-Identifier: GPL-2.0-or-later
"""The repository editor reaches dnf: what is switched off for the session is gone from the table."""
from __future__ import annotations

from pathlib import Path
from typing import Callable

import pytest

from keyboard import Keyboard
from program import NAME_COLUMN, Atspi, Program, wait_for, walk
from rpmestate import Estate, spec

Start = Callable[..., Program]
EDITOR = "VEM Repository Configuration Editor"


@pytest.fixture
def quays(tmp_path: Path) -> Estate:
    estate = Estate(tmp_path / "quays")
    anchor, barge, crane = estate.build([spec("anchor"), spec("barge"), spec("crane")])
    estate.write_main_config()
    estate.repository("north", [barge])
    estate.repository("south", [crane])
    estate.install([anchor])
    return estate


def toggle_session(program: Program, repository: str) -> None:
    """Clicks the repository's Sess box in the editor and leaves the editor by OK."""
    program.key("ctrl+e")
    editor = program.window(EDITOR)
    table = next(node for node in walk(editor) if node.get_role() == Atspi.Role.TABLE)
    rows = range(Atspi.Table.get_n_rows(table))
    row = next(row for row in rows if Atspi.Table.get_accessible_at(table, row, 2).get_name() == repository)
    program.click(Atspi.Table.get_accessible_at(table, row, 0))
    program.press("OK", editor)
    program.wait_closed(EDITOR)
    program.wait_ready()


def test_a_repository_is_left_out_for_the_session_and_taken_back(quays: Estate, start: Start) -> None:
    before = {path.name: path.read_bytes() for path in (quays.root / "etc/yum.repos.d").iterdir()}
    program = start(quays)
    program.wait_ready()
    program.choose("View All")
    assert program.names() == ["anchor", "barge", "crane"]
    toggle_session(program, "north")
    wait_for(lambda: program.names() == ["anchor", "crane"], "the table without north")
    toggle_session(program, "north")
    wait_for(lambda: program.names() == ["anchor", "barge", "crane"], "the table with north again")
    after = {path.name: path.read_bytes() for path in (quays.root / "etc/yum.repos.d").iterdir()}
    assert after == before, "a session's choice is not written"


def test_patterns_of_the_command_line_choose_repositories(quays: Estate, start: Start) -> None:
    program = start(quays, "--disablerepo=*", "--enablerepo=s[a-z]uth")
    program.wait_ready()
    program.choose("View All")
    assert program.names() == ["anchor", "crane"]
    assert program.cell(1, NAME_COLUMN).get_name() == "crane"


def test_the_editor_opens_first_where_asked_and_the_table_follows(quays: Estate, start: Start) -> None:
    program = start(quays, "--repo-editor")
    editor = program.window(EDITOR)
    assert program.find("Packages") is None
    program.press("Cancel", editor)
    program.wait_closed(EDITOR)
    program.wait_ready()
    program.choose("View All")
    assert program.names() == ["anchor", "barge", "crane"]


def test_an_umlaut_in_the_name_of_a_repository_keeps_nothing_out(quays: Estate, start: Start) -> None:
    program = start(quays)
    program.wait_ready()
    program.key("ctrl+e")
    editor = program.window(EDITOR)
    table = next(node for node in walk(editor) if node.get_role() == Atspi.Role.TABLE)
    program.click(Atspi.Table.get_accessible_at(table, 0, 2))
    keyboard = Keyboard(program)
    keyboard.activate("Edit")
    wait_for(lambda: keyboard.focused_name() == "Identifier", "the keyboard in the form")
    keyboard.tab_to("Name")
    # The screen's keyboard has no such key.
    assert Atspi.EditableText.set_text_contents(keyboard.focused(), "B\u00fcro")
    keyboard.activate("OK")
    program.wait("Unapplied Configuration Changes", inside=editor)
    program.press("OK", editor)
    program.wait_closed(EDITOR)
    program.wait_ready()
    written = (quays.root / "etc/yum.repos.d/north.repo").read_bytes()
    assert "B\u00fcro".encode("latin-1") in written
    program.choose("View All")
    assert program.names() == ["anchor", "barge", "crane"]
    program.close()

    again = start(quays)
    again.wait_ready()
    again.choose("View All")
    assert again.names() == ["anchor", "barge", "crane"]
