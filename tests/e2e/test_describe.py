# SPDX-License-Identifier: GPL-2.0-or-later
"""The description of a row, on real rpms: an update from its repository, the version before it from the rpm database."""
from __future__ import annotations

import platform
from pathlib import Path
from typing import Callable, Optional

import gi
import pytest

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from advisories import advise  # noqa: E402
from program import NAME_COLUMN, Program, has_state, wait_for, walk  # noqa: E402
from rpmestate import Estate, shell_spec, spec  # noqa: E402

DESCRIPTION = "VEM Package Description"
NOTE = "Show (must load extra data)"
LIT = "* Mon Jan 06 2025 Wren <wren@beacon.example> - 1.0-1\n- Lit for the first time"
SECOND = "* Tue Feb 04 2025 Wren <wren@beacon.example> - 1.1-1\n- A second lamp & <b>more</b>"
Start = Callable[..., Program]


def beacon_spec(version: str, files: list[str], changelog: str) -> str:
    text = spec(
        "beacon", version, summary="A light for ships", description="It burns <b>all</b> night\nand is seen far off.",
        files={path: f"of {version}" for path in files}, changelog=changelog, requires=["/bin/sh"],
        tags={"Vendor": "Cliff & Sons", "Packager": "Wren <wren@beacon.example>", "URL": "https://beacon.example/"},
    )
    return text.replace("%files\n", "%files\n%dir /usr/share/beacon\n")


@pytest.fixture
def beacon(tmp_path: Path) -> Estate:
    """Version 1.0 is installed; 1.1, with a file and a change more, is offered. Both own a directory. What is offered,
    too, requires it."""
    estate = Estate(tmp_path / "beacon")
    shell, old, new, pier = estate.build(
        [
            shell_spec("beacon-shell"),
            beacon_spec("1.0", ["/usr/share/beacon/lamp"], LIT),
            beacon_spec("1.1", ["/usr/share/beacon/lamp", "/usr/share/beacon/second"], f"{SECOND}\n\n{LIT}"),
            spec("pier", requires=["beacon >= 1.1", "tide"]),
        ]
    )
    estate.write_main_config()
    cliff = estate.repository("cliff", [new, pier], name="Cliff Station")
    advise(cliff, ("BEACON-7", "beacon", "1.1"))
    estate.install([shell, old])
    return estate


def buttons(window: Atspi.Accessible) -> list[Atspi.Accessible]:
    """The buttons of a description, from above; those that are scrolled out of view too."""
    return [node for node in walk(window) if node.get_role() == Atspi.Role.PUSH_BUTTON]


def shows(window: Atspi.Accessible) -> list[str]:
    names = [button.get_name() for button in buttons(window)]
    return [name for name in names if name.startswith("Show")]


def read_text(program: Program, description: Atspi.Accessible, number: int, title: str) -> str:
    """Presses the description's n-th "Show" and reads the window that opens."""
    button = [node for node in buttons(description) if node.get_name().startswith("Show")][number]
    Atspi.Action.do_action(button, 0)
    window = program.window(title, timeout=60)
    edit = program.wait("Text", Atspi.Role.TEXT, inside=window)
    text = program.text_of(edit)
    program.shot(title.replace(" ", "-"))
    program.press("Close", window)
    program.wait_closed(title)
    return text


def test_a_row_is_described_with_files_change_log_and_repository(beacon: Estate, start: Start) -> None:
    program = start(beacon)
    program.wait_ready()
    program.click_cell("beacon", NAME_COLUMN)
    program.press("Describe", program.window("VEM - "))
    description = program.window(DESCRIPTION)
    lines = program.texts(description).split("\n")

    def value(label: str) -> Optional[str]:
        return lines[lines.index(label) + 1] if label in lines else None

    assert lines[:2] == ["beacon", "Available for update"]
    assert value("Version:") == "1.1-1"
    assert value("Repository:") == "cliff"
    assert value("Summary:") == "A light for ships"
    assert "Description:\nIt burns <b>all</b> night\nand is seen far off." in "\n".join(lines)
    assert value("Vendor:") == "Cliff & Sons"
    assert value("Packager:") == "Wren <wren@beacon.example>"
    assert value("URL:") == "https://beacon.example/"
    assert value("Requires:") == "/bin/sh"
    below = lines[lines.index("Installed") :]
    assert below[1:3] == ["Version:", "1.0-1"]
    assert [line for line in below if line.endswith(":")] == [
        "Version:", "Size:", "Build Time:", "Packager:", "Files:", "Change Log:"
    ]

    # The installed version needs nothing loaded.
    assert shows(description) == [NOTE, NOTE, "Show", "Show"]
    # Headers tell directories too, repositories are asked for files alone.
    owned = read_text(program, description, 2, "beacon 1.0-1 File List")
    assert owned == "/usr/share/beacon\n/usr/share/beacon/lamp"
    assert read_text(program, description, 3, "beacon 1.0-1 Change Log") == dated(LIT)
    assert shows(description) == [NOTE, NOTE, "Show", "Show"]

    files = read_text(program, description, 0, "beacon 1.1-1 File List")
    assert files == "/usr/share/beacon/lamp\n/usr/share/beacon/second"
    assert shows(description) == ["Show", NOTE, "Show", "Show"]
    changes = read_text(program, description, 1, "beacon 1.1-1 Change Log")
    assert changes.split("\n\n") == [dated(SECOND), dated(LIT)]
    assert shows(description) == ["Show", "Show", "Show", "Show"]

    program.press("Details", description)
    repository = program.window("VEM Repository Description")
    words = program.texts(repository)
    assert "cliff" in words and "Cliff Station" in words and "file://" in words
    program.press("Close", repository)
    program.wait_closed("VEM Repository Description")

    program.window(DESCRIPTION)
    program.key("Escape")
    program.wait_closed(DESCRIPTION)
    wait_for(program.is_ready, "the main window to be usable again")


def content(description: Atspi.Accessible, title: str) -> str:
    """Opens a section, and reads what it tells."""
    nodes = list(walk(description))
    at = next(n for n, node in enumerate(nodes) if node.get_name() == title)
    label = nodes[at + 1]
    if not has_state(label, Atspi.StateType.SHOWING):
        Atspi.Action.do_action(nodes[at], 0)
    wait_for(lambda: label.get_name() not in ("", "Reading\N{HORIZONTAL ELLIPSIS}"), f"the section {title}")
    return str(label.get_name())


def test_sections_tell_of_other_packages_and_links_lead_there_and_back(beacon: Estate, start: Start) -> None:
    program = start(beacon)
    program.wait_ready()
    program.click_cell("beacon", NAME_COLUMN)
    program.press("Describe", program.window("VEM - "))
    description = program.window(DESCRIPTION)
    assert content(description, "Recommended By") == "None"
    assert content(description, "Provides What It Requires") == f"/bin/sh: beacon-shell-1.0-1.{platform.machine()} (installed)"
    assert "The history of transactions doesn't tell when it came." in content(description, "Why Installed")
    advisories = content(description, "Advisories")
    assert advisories.startswith("BEACON-7 (security, Important)") and advisories.endswith(", not installed")
    assert content(description, "Other Versions").split("\n") == ["1.1-1.noarch (cliff)", "1.0-1.noarch (installed)"]
    assert content(description, "Required By") == "pier-1.0-1.noarch (cliff)"
    program.shot("sections")

    # By keyboard: from the title to the text behind it, and to its first link.
    title = program.wait("Required By", inside=description)
    Atspi.Component.grab_focus(title)
    wait_for(lambda: has_state(title, Atspi.StateType.FOCUSED), "the section's title to have the keyboard")
    for key in ("Tab", "Tab", "Return"):
        program.key(key)
    wait_for(lambda: program.texts(description).startswith("pier\n"), "the description of the other package")
    assert content(description, "Provides What It Requires").split("\n") == [
        "beacon >= 1.1: beacon-1.1-1.noarch (cliff)", "tide: nothing that is installed or offered",
    ]
    program.shot("followed")
    program.key("alt+Left")
    wait_for(lambda: program.texts(description).startswith("beacon\n"), "the description before")
    # What was open is open again.
    assert "pier-1.0-1.noarch (cliff)" in program.texts(description)
    program.key("Escape")
    program.wait_closed(DESCRIPTION)


def test_a_package_that_was_erased_meanwhile_is_described_as_far_as_it_is_known(beacon: Estate, start: Start) -> None:
    program = start(beacon)
    program.wait_ready()
    program.click_cell("beacon", NAME_COLUMN)
    beacon.rpm("-e", "beacon")
    program.press("Describe", program.window("VEM - "))
    description = program.window(DESCRIPTION)
    lines = program.texts(description).split("\n")
    assert lines[lines.index("Installed") + 1 :][:2] == ["Version:", "1.0-1"]
    assert read_text(program, description, 2, "beacon 1.0-1 File List") == ""
    assert read_text(program, description, 3, "beacon 1.0-1 Change Log") == ""
    program.press("Close", description)
    program.wait_closed(DESCRIPTION)


def dated(change: str) -> str:
    """A change as the program words it: a day below ten has a blank before it."""
    return change.replace(" 06 ", "  6 ").replace(" 04 ", "  4 ")


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
