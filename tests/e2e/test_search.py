# SPDX-License-Identifier: GPL-2.0-or-later
"""Searching by typing: through what the table shows, and through what only the packages know."""
from __future__ import annotations

from pathlib import Path
from typing import Callable

import pytest

from program import Atspi, Program, wait_for, walk
from rpmestate import Estate, shell_spec, spec

Start = Callable[..., Program]
LIT = "* Mon Jan 06 2025 Wren <wren@beacon.example> - 1.0-1\n- Polished the brass reflector"


@pytest.fixture
def coast(tmp_path: Path) -> Estate:
    """A light that is installed, another that is offered, and a horn without a file of its own."""
    estate = Estate(tmp_path / "coast")
    shell, light, *offered = estate.build(
        [
            shell_spec("coast-shell"),
            spec("coast-light", "1.0", files={"/usr/share/coast/lamp": "lit"}, changelog=LIT),
            spec("coast-lantern", "2.0", files={"/usr/share/coast/wick": "dry"}, changelog=LIT),
            spec("coast-horn", "1.0", description="It sounds in fog.", requires=["/bin/sh"]),
        ]
    )
    estate.write_main_config()
    estate.repository("cliff", offered)
    estate.install([shell, light])
    return estate


def test_a_search_reaches_files_changes_and_descriptions(coast: Estate, start: Start) -> None:
    program = start(coast)
    program.wait_ready()
    program.choose("View All")
    everything = sorted(program.names())
    assert {"coast-light", "coast-lantern", "coast-horn"} <= set(everything)
    program.choose("Search")

    def finds(pattern: str) -> list[str]:
        program.set_expression(pattern)
        program.wait_ready()
        return sorted(program.names())

    for pattern, expected in (
        ("/usr/share/coast/wick", ["coast-lantern"]),
        ("/usr/share/coast/lamp$", ["coast-light"]),
        ("brass reflector", ["coast-lantern", "coast-light"]),
        ("in fog", ["coast-horn"]),
        ("Brass Reflector", []),
        ("(wick|in fog)", ["coast-horn", "coast-lantern"]),
        (".*", everything),
    ):
        wait_for(lambda: finds(pattern) == expected, f"the rows that match {pattern!r}", 30)

    program.set_expression("in fog")
    wait_for(lambda: program.names() == ["coast-horn"], "the horn", 30)
    program.choose("Filter")
    wait_for(lambda: program.names() == [], "a table without a match", 30)


def test_the_table_follows_what_is_typed_from_the_start(coast: Estate, start: Start) -> None:
    program = start(coast)
    program.wait_ready()
    program.choose("View All")
    everything = sorted(program.names())
    program.click(program.wait("Regular expression", Atspi.Role.TEXT))
    program.key("ctrl+a")
    program.type_text("t-h")
    wait_for(lambda: program.names() == ["coast-horn"], "the horn", 30)
    program.type_text("[")
    wait_for(
        lambda: any("letter 4" in node.get_name() for node in walk(program.window("VEM - "))),
        "a word on what is wrong", 30,
    )
    assert program.names() == ["coast-horn"]
    program.key("ctrl+a", "Delete")
    wait_for(lambda: sorted(program.names()) == everything, "all rows", 30)


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
