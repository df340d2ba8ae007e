# SPDX-License-Identifier: GPL-2.0-or-later
"""The advisories: what is open is told, and its updates are marked and applied."""
from __future__ import annotations

import shutil
from typing import Callable

from advisories import advise
from program import Atspi, Program, has_state, wait_for
from rpmestate import Estate

Start = Callable[..., Program]


def advisories(program: Program) -> list[list[str]]:
    """Identifier and state of those in the window's table."""
    rows = program.rows("Advisories", "Advisories")
    return [[row[3], row[0]] for row in rows]


def test_updates_of_an_advisory_are_marked_and_carry_it_out(fleet: Estate, site: Estate, start: Start) -> None:
    repository = site.repos_dir / "harbour"
    shutil.copytree(fleet.repos_dir / "harbour", repository)
    site.write_repo_file("harbour")
    advise(repository, ("FLEET-2", "fleet-lamp", "1.1"), ("FLEET-1", "fleet-match", "1.0"))
    program = start(site)
    program.wait_ready()

    # The table knows as much.
    program.choose("View Security Updates")
    wait_for(lambda: program.names() == ["fleet-lamp"], "the update alone")
    program.key("ctrl+shift+u")
    program.choose("View Marked")
    wait_for(lambda: program.names() == ["fleet-lamp"], "its mark")
    program.press("Clear Actions")
    wait_for(lambda: program.names() == [], "no mark")

    program.key("ctrl+d")
    window = program.window("Advisories")
    wait_for(lambda: advisories(program) == [["FLEET-2", "Open"]], "the one that is open")
    text = program.wait("Advisory", Atspi.Role.LABEL, inside=window)
    wait_for(lambda: "More light." in program.text_of(text), "its text")
    packages = program.rows("Packages", "Advisories")
    assert packages == [["fleet-lamp", "1.1-1", "1.0-1", "noarch", "Open"]]
    program.press("Mark Its Updates", window)
    program.key("Escape")
    program.wait_closed("Advisories")
    assert program.names() == ["fleet-lamp"]
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")
    program.wait_ready()
    assert "fleet-lamp-1.1-1.noarch" in site.installed()

    program.key("ctrl+d")
    window = program.window("Advisories")
    wait_for(lambda: advisories(program) == [], "nothing open any more")
    mark = program.wait("Mark Its Updates", Atspi.Role.PUSH_BUTTON, inside=window)
    assert not has_state(mark, Atspi.StateType.ENABLED)
    program.choose("All Advisories", "Advisories")
    wait_for(lambda: sorted(advisories(program)) == [["FLEET-1", "Carried out"], ["FLEET-2", "Carried out"]], "all of them")
    program.key("Escape")
    program.wait_closed("Advisories")
