# SPDX-License-Identifier: GPL-2.0-or-later
"""Groups on real group data: their states, and what a mark on a group does to the system."""
from __future__ import annotations

from pathlib import Path
from typing import Callable

import pytest

from program import ACTION_COLUMN, Program
from rpmestate import Estate, spec

Start = Callable[..., Program]

COMPS = """<?xml version="1.0" encoding="UTF-8"?>
<comps>
  <group>
    <id>choir</id><name>Choir</name><uservisible>true</uservisible>
    <packagelist>
      <packagereq type="mandatory">choir-alto</packagereq>
      <packagereq type="default">choir-bass</packagereq>
      <packagereq type="optional">choir-descant</packagereq>
    </packagelist>
  </group>
  <group>
    <id>vestry</id><name>Vestry</name><uservisible>false</uservisible>
    <packagelist><packagereq type="mandatory">choir-alto</packagereq></packagelist>
  </group>
</comps>
"""


@pytest.fixture
def choir(tmp_path: Path) -> Estate:
    """Nothing of the visible group Choir is installed; organ, which belongs to none, is."""
    estate = Estate(tmp_path / "choir")
    organ, *voices = estate.build([spec("organ"), spec("choir-alto"), spec("choir-bass"), spec("choir-descant")])
    estate.write_main_config()
    estate.repository("gallery", voices, comps=COMPS)
    estate.install([organ])
    return estate


def apply_mark(program: Program, name: str, letter: str) -> str:
    """Marks the row by its context menu and applies; answers the question's text."""
    program.choose_from_context_menu(letter, program.place_of(name, ACTION_COLUMN))
    if not program.is_enabled("Apply Actions"):
        # A mark from the menu doesn't wake the button; clearing another row's mark does.
        program.click_cell("organ", ACTION_COLUMN)
        program.click_cell("organ", ACTION_COLUMN)
    program.press("Apply Actions")
    question = program.window("Apply")
    text = program.texts(question)
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()
    return text


def test_marks_on_a_group_become_transactions_of_its_packages(choir: Estate, start: Start) -> None:
    program = start(choir)
    program.wait_ready()
    program.choose("View All")
    assert "Choir" not in program.names()
    program.press("Include Groups")
    assert "Choir" in program.names()
    assert "Vestry" not in program.names()

    text = apply_mark(program, "Choir", "i")
    assert "choir-alto" in text and "choir-bass" in text and "choir-descant" not in text
    assert choir.installed() == {"organ-1.0-1.noarch", "choir-alto-1.0-1.noarch", "choir-bass-1.0-1.noarch"}

    # All that the group insists on is there now, so it counts as installed and can be removed.
    program.choose("View Removable")
    assert "Choir" in program.names()
    text = apply_mark(program, "Choir", "r")
    assert "\tRemove: choir-alto" in text
    assert choir.installed() == {"organ-1.0-1.noarch"}
