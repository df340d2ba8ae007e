# SPDX-License-Identifier: GPL-2.0-or-later
"""The main job without a mouse: find, mark, read, agree, and see it done."""
from __future__ import annotations

from typing import Callable

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from keyboard import MOST_CONTROLS, Keyboard  # noqa: E402
from program import Program, has_state, wait_for  # noqa: E402
from rpmestate import Estate  # noqa: E402

IN_THE_TABLE = {Atspi.Role.TABLE, Atspi.Role.TREE_TABLE, Atspi.Role.TABLE_CELL}


def go_to_table(keyboard: Keyboard) -> None:
    for _ in range(MOST_CONTROLS):
        here = keyboard.focused()
        if here is not None and here.get_role() in IN_THE_TABLE:
            return
        keyboard.program.key("Tab")
        wait_for(lambda: keyboard.focused() not in (None, here), "the keyboard to go on", 10)
    raise AssertionError("the tabulator doesn't reach the table")


def read_the_details(keyboard: Keyboard, question: Atspi.Accessible) -> None:
    keyboard.program.key("alt+d")
    table = keyboard.program.wait("Details", Atspi.Role.TABLE, inside=question)
    go_to_table(keyboard)
    keyboard.program.key("ctrl+Home")
    first = [Atspi.Table.get_accessible_at(table, 0, column) for column in (0, 1, 2, 6)]
    wait_for(lambda: has_state(first[0], Atspi.StateType.SELECTED), "the first row of the details")
    assert [cell.get_name() for cell in first] == [
        "Update", "fleet-lamp", "1.0-1 \N{RIGHTWARDS ARROW} 1.1-1", "marked"
    ]


def test_a_package_is_found_marked_and_updated_by_keys_alone(site: Estate, start: Callable[..., Program]) -> None:
    program = start(site)
    program.wait_ready()
    keyboard = Keyboard(program)
    program.type_text("fleet-l[a]mp")
    wait_for(lambda: program.names() == ["fleet-lamp"], "the filtered row")
    go_to_table(keyboard)
    program.key("plus")
    wait_for(lambda: program.is_enabled("Apply Actions"), "the mark")
    keyboard.activate("Apply Actions")
    question = program.window("Apply")
    assert "fleet-lamp" in program.texts(question)
    wait_for(lambda: keyboard.focused_name() == "OK", "the keyboard on the button that agrees")
    read_the_details(keyboard, question)
    keyboard.activate("OK")
    program.wait_closed("Apply")
    program.wait_ready()
    assert "fleet-lamp-1.1-1.noarch" in site.installed()
    assert "fleet-lamp-1.0-1.noarch" not in site.installed()
