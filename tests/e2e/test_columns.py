# SPDX-License-Identifier: GPL-2.0-or-later
"""The columns: shown by keyboard, filled from real packages, found by Filter, remembered, given up again."""
from __future__ import annotations

from typing import Callable

from program import Atspi, Program, wait_for
from rpmestate import Estate

Start = Callable[..., Program]
VERSION, INSTALLED_VERSION, INSTALLED_SIZE, REASON = 4, 10, 11, 15


def toggle(program: Program, steps_from_the_end: int) -> None:
    """The entry of the menu Selection, Columns."""
    program.key("alt+e", "c", *(["Up"] * steps_from_the_end), "Return")
    program.wait_ready()


def text(program: Program, name: str, column: int) -> str:
    return program.cell(program.row_of(name), column).get_name()


def shows(program: Program, column: int) -> bool:
    return program.cell(0, column).get_extents(Atspi.CoordType.SCREEN).width > 0


def test_columns_are_shown_filled_searched_remembered_and_given_up(site: Estate, start: Start) -> None:
    with start(site) as program:
        program.wait_ready()
        program.choose("View All")
        assert not shows(program, INSTALLED_VERSION)
        toggle(program, 7)
        toggle(program, 6)
        toggle(program, 2)
        wait_for(lambda: shows(program, REASON), "the columns")
        program.shot("columns")
        assert text(program, "fleet-lamp", VERSION) == "1.1-1"
        assert text(program, "fleet-lamp", INSTALLED_VERSION) == "1.0-1"
        assert text(program, "fleet-wick", INSTALLED_VERSION) == ""
        assert text(program, "fleet-wick", INSTALLED_SIZE).endswith("b")
        # What somebody has asked for is kept by the library, and not by rpm.
        program.click_cell("fleet-wick", 0)
        program.press("Apply Actions")
        program.press("OK", program.window("Apply"))
        wait_for(lambda: program.is_ready() and text(program, "fleet-wick", REASON) == "user", "the reason", 60)
        assert text(program, "fleet-oil", REASON) == "dependency"

        program.set_expression("dependency")
        wait_for(lambda: program.names() == ["fleet-oil"], "the filter to find what shows")
        toggle(program, 2)
        wait_for(lambda: program.names() == [], "the filter to leave what doesn't show")
        program.end_by_window_manager()

    with start(site) as program:
        program.wait_ready()
        assert shows(program, INSTALLED_VERSION) and shows(program, INSTALLED_SIZE)
        assert not shows(program, REASON)
        program.choose("View All")
        assert text(program, "fleet-lamp", INSTALLED_VERSION) == "1.0-1"
        program.key("alt+w", "r")
        wait_for(lambda: not shows(program, INSTALLED_VERSION), "the window of the first time")
        program.end_by_window_manager()

    with start(site) as program:
        program.wait_ready()
        assert not shows(program, INSTALLED_VERSION)
