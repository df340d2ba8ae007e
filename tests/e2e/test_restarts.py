# SPDX-License-Identifier: GPL-2.0-or-later
"""What is to be restarted is told; below another root no service of the running system is."""
from __future__ import annotations

from typing import Callable

from program import Atspi, Program, has_state, wait_for
from rpmestate import Estate

Start = Callable[..., Program]


def test_another_system_than_the_running_one_is_told_and_left_alone(site: Estate, start: Start) -> None:
    program = start(site)
    program.wait_ready()
    program.key("ctrl+shift+r")
    window = program.window("Restarts")
    advice = program.wait("Advice", Atspi.Role.TEXT, inside=window)
    wait_for(lambda: "not the system that runs" in program.text_of(advice), "the advice")
    restart = program.wait("Restart These Services", Atspi.Role.PUSH_BUTTON, inside=window)
    assert not has_state(restart, Atspi.StateType.ENABLED)
    assert program.rows("Processes", "Restarts") == []
    program.key("Escape")
    program.wait_closed("Restarts")
