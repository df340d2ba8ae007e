# SPDX-License-Identifier: GPL-2.0-or-later
"""The history: what was done is told, searched, written into a file, and taken back."""
from __future__ import annotations

import json
from pathlib import Path
from typing import Callable

from program import NAME_COLUMN, Atspi, Program, has_state, wait_for
from rpmestate import Estate

Start = Callable[..., Program]


def apply_marks(program: Program) -> None:
    program.press("Apply Actions")
    confirm(program)


def confirm(program: Program) -> str:
    question = program.window("Apply")
    text = program.texts(question)
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()
    return text


def numbers(program: Program) -> list[str]:
    return [row[0] for row in program.rows("History", "History")]


def changes(program: Program) -> set[tuple[str, str, str]]:
    return {(action, name, version) for action, name, version, *_ in program.rows("Packages", "History")}


def head(program: Program) -> str:
    return program.text_of(program.wait("Transaction", Atspi.Role.TEXT, inside=program.window("History")))


def test_transaction_is_told_searched_and_undone(site: Estate, start: Start) -> None:
    program = start(site)
    program.wait_ready()
    program.press("Set Update of All Out-of-Date")
    apply_marks(program)
    program.choose("View Installable")
    program.click_cell("fleet-wick", NAME_COLUMN)
    program.press("Set Install/Update of Selected")
    apply_marks(program)
    before = site.installed()

    program.key("ctrl+h")
    history = program.window("History")
    wait_for(lambda: numbers(program) == ["2", "1"], "both transactions, the latest first")
    wait_for(lambda: ("Installed", "fleet-oil", "1.0-1") in changes(program), "the latest one in full")
    assert changes(program) == {("Installed", "fleet-wick", "1.0-1"), ("Installed", "fleet-oil", "1.0-1")}
    assert head(program).startswith("Transaction 2: Done\n")

    # The arrow goes to the one before.
    program.key("Down")
    wait_for(lambda: changes(program) == {("Updated", "fleet-lamp", "1.0-1 \u2192 1.1-1")}, "the first one in full")
    search = program.wait("Package:", Atspi.Role.TEXT, inside=history)
    program.click(search)
    program.type_text("oil")
    wait_for(lambda: numbers(program) == ["2"], "the transaction with the package")
    program.key("ctrl+a", "Delete")
    wait_for(lambda: numbers(program) == ["2", "1"], "all transactions again")

    # To go back behind nothing is no change.
    roll_back = program.wait("Roll Back To Here", Atspi.Role.PUSH_BUTTON, inside=history)
    assert not has_state(roll_back, Atspi.StateType.ENABLED)
    program.press("Undo This", history)
    assert "Remove: fleet-wick" in confirm(program)
    wait_for(lambda: numbers(program) == ["3", "2", "1"], "the undoing itself in the history")
    assert site.installed() == before - {"fleet-wick-1.0-1.noarch", "fleet-oil-1.0-1.noarch"}

    program.key("Escape")
    program.wait_closed("History")


def test_what_cannot_be_undone_is_told_before_and_the_rest_is_undone(
    site: Estate, start: Start, tmp_path: Path
) -> None:
    program = start(site)
    program.wait_ready()
    program.press("Set Update of All Out-of-Date")
    program.choose("View Installable")
    program.click_cell("fleet-bellows", NAME_COLUMN)
    program.press("Set Install/Update of Selected")
    apply_marks(program)
    # Its script fails, and with it the transaction.
    program.click_cell("fleet-sulker", NAME_COLUMN)
    program.press("Set Install/Update of Selected")
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.press("Close", program.window("VEM Yum Error"))
    program.wait_ready()
    before = site.installed()

    program.key("ctrl+h")
    history = program.window("History")
    wait_for(lambda: [row[3] for row in program.rows("History", "History")] == ["Failed", "Done"], "the results")
    program.key("Down")
    wait_for(lambda: head(program).startswith("Transaction 1: Done"), "the first one in full")

    # Nothing of the whole history is lost in a file.
    for letter, name in (("t", "one.txt"), ("a", "all.json")):
        program.choose_from_popup(letter, lambda: program.press("Export", history))
        program.window("Export")
        program.key("ctrl+a")
        program.type_text(str(tmp_path / name))
        program.key("Return")
        program.wait_closed("Export")
    wait_for((tmp_path / "all.json").exists, "the file")
    assert "fleet-lamp.noarch 1.0-1 -> 1.1-1" in (tmp_path / "one.txt").read_text()
    told = json.loads((tmp_path / "all.json").read_text())
    assert [(one["number"], one["result"]) for one in told] == [(2, "failed"), (1, "done")]
    assert {package["name"] for package in told[1]["packages"]} == {"fleet-bellows", "fleet-lamp"}

    # No repository has the lamp's old version any more.
    program.press("Undo This", history)
    question = wait_for(lambda: program.find("OK", Atspi.Role.PUSH_BUTTON), "the question")
    assert site.installed() == before
    texts = "".join(program.texts(window) for window in program.windows())
    assert "Not all of it can be done:" in texts and "fleet-lamp" in texts
    program.click(question)
    assert "Remove: fleet-bellows" in confirm(program)
    assert site.installed() == before - {"fleet-bellows-1.0-1.noarch"}
