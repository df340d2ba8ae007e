# SPDX-License-Identifier: GPL-2.0-or-later
"""Groups on real group data: their states, and what a mark on a group does to the system."""
from __future__ import annotations

from pathlib import Path
from typing import Callable, Mapping

import pytest

from program import ACTION_COLUMN, Atspi, Program, has_state, wait_for, walk
from rpmestate import Estate, spec

Start = Callable[..., Program]
STATE_COLUMN, KIND_COLUMN = 1, 2
DESCRIPTION = "VEM Package Description"
CONFLICT = (
    "Package {} is included in group {} which was marked for {},\n"
    "so the package would be marked for {},\n"
    "but it was marked individually for {}.\n"
    "How do you wish to proceed?"
)


def group(id: str, name: str, visible: bool = True, **members: str) -> str:
    lines = [
        f'<packagereq type="{kind}">{member}</packagereq>'
        for kind, names in members.items()
        for member in names.split()
    ]
    return (
        f"<group><id>{id}</id><name>{name}</name><uservisible>{str(visible).lower()}</uservisible>"
        f"<packagelist>{''.join(lines)}</packagelist></group>"
    )


def comps(*groups: str) -> str:
    return f'<?xml version="1.0" encoding="UTF-8"?>\n<comps>{"".join(groups)}</comps>\n'


@pytest.fixture(scope="session")
def voices(tmp_path_factory: pytest.TempPathFactory) -> Mapping[str, Path]:
    """The rpms by name and version."""
    names = ["organ 1.0", "organ 1.1", "pedal 1.0", "pedal 1.1", "bench 1.0"]
    names += [f"choir-{part} 1.0" for part in ("alto", "bass", "descant")]
    estate = Estate(tmp_path_factory.mktemp("voices"))
    return dict(zip(names, estate.build([spec(*name.split()) for name in names])))


@pytest.fixture
def choir(voices: Mapping[str, Path], tmp_path: Path) -> Estate:
    """Organ and pedal are installed and out of date, the bench is installed, the choir is only offered."""
    estate = Estate(tmp_path / "choir")
    estate.write_main_config()
    groups = comps(
        group("choir", "Choir", mandatory="choir-alto", default="choir-bass", optional="choir-descant"),
        group("vestry", "Vestry", visible=False, mandatory="choir-alto"),
        group("loft", "Loft", mandatory="organ", default="choir-bass pedal", optional="choir-descant"),
        group("seats", "Seats", mandatory="bench nowhere-known", default="organ"),
        group("floor", "Floor", mandatory="bench", default="organ"),
        group("echo", "Echo", mandatory="Echo", optional="echo nowhere-known"),
        group("void", "Void"),
    )
    installed = ("organ 1.0", "pedal 1.0", "bench 1.0")
    offered = [rpm for name, rpm in voices.items() if name not in installed]
    estate.repository("gallery", offered, comps=groups)
    estate.install([voices[name] for name in installed])
    return estate


def open_with_groups(start: Start, estate: Estate) -> Program:
    program = start(estate)
    program.wait_ready()
    program.choose("View All")
    program.press("Include Groups")
    wait_for(lambda: "Choir" in program.names(), "the groups")
    return program


def open_with_rows(start: Start, estate: Estate, *names: str) -> Program:
    """Shows only these rows, so that all of them are in view."""
    program = open_with_groups(start, estate)
    program.set_expression(f"^({'|'.join(names)})")
    wait_for(lambda: set(program.names()) == set(names), "the filtered rows")
    return program


def mark(program: Program, name: str, letter: str) -> None:
    program.choose_from_context_menu(letter, program.place_of(name, ACTION_COLUMN))


def press_apply(program: Program) -> None:
    if not program.is_enabled("Apply Actions"):
        # A mark from the menu doesn't wake the button; clearing another row's mark does.
        program.click_cell("bench", ACTION_COLUMN)
        program.click_cell("bench", ACTION_COLUMN)
    program.press("Apply Actions")


def the_question(program: Program) -> Atspi.Accessible:
    """The one about the transaction. The box about a conflict has the same title, and no OK."""
    return wait_for(
        lambda: next((window for window in program.windows() if program.find("OK", inside=window)), None),
        "the question about the transaction",
    )


def confirm(program: Program) -> str:
    """Answers the question about the transaction by OK; gives its text."""
    question = the_question(program)
    text = program.texts(question)
    program.press("OK", question)
    program.wait_closed("Apply")
    program.wait_ready()
    return text


def conflict(program: Program) -> Atspi.Accessible:
    return wait_for(
        lambda: next((window for window in program.windows() if "included in group" in program.texts(window)), None),
        "the question about a conflict",
    )


def detailed_log(program: Program) -> str:
    """The log with the lines about groups, which are details."""
    program.log_text()
    box = program.wait("Detail level", Atspi.Role.SPIN_BUTTON, inside=program.window("VEM Log"))
    Atspi.Value.set_current_value(box, 4)
    return program.log_text()


def buttons(window: Atspi.Accessible) -> list[str]:
    return [node.get_name() for node in walk(window) if node.get_role() == Atspi.Role.PUSH_BUTTON]


def describe(program: Program, name: str) -> list[str]:
    """What the description dialog says of a row."""
    program.click_cell(name, ACTION_COLUMN + 3)
    program.press("Describe", program.window("VEM - "))
    lines = program.texts(program.window(DESCRIPTION)).split("\n")
    program.key("Escape")
    program.wait_closed(DESCRIPTION)
    return lines


def test_groups_show_their_state_and_their_members(choir: Estate, start: Start) -> None:
    program = open_with_groups(start, choir)
    rows = range(program.row_count())
    kinds = {program.cell(row, 3).get_name(): program.cell(row, KIND_COLUMN).get_name() for row in rows}
    groups = {name for name, kind in kinds.items() if kind == "Group of packages"}
    assert groups == {"Choir", "Loft", "Seats", "Floor", "Echo", "Void"}, "a hidden group isn't offered"
    states = {program.cell(row, 3).get_name(): program.cell(row, STATE_COLUMN).get_name() for row in rows}
    available = states["choir-alto"]
    for name in ("Choir", "Seats", "Echo", "Void"):
        assert states[name] == available, name
    # What is out of date counts among the mandatory packages only.
    assert states["Loft"] == states["organ"]
    assert states["Floor"] == states["bench"]
    assert len({available, states["organ"], states["bench"]}) == 3

    assert describe(program, "Loft") == [
        "Loft", "Available for update", "Kind:", "Group of packages", "Mandatory Packages:", "organ",
        "Default Packages:", "choir-bass", "pedal", "Optional Packages:", "choir-descant",
    ]
    assert describe(program, "Echo")[4:] == [
        "Mandatory Packages:", "Echo", "Optional Packages:", "echo", "nowhere-known"
    ]
    assert describe(program, "Void") == ["Void", "Available for installation", "Kind:", "Group of packages"]
    assert describe(program, "Floor")[1] == "Installed"


def test_marks_on_a_group_become_transactions_of_its_packages(choir: Estate, start: Start) -> None:
    before = choir.installed()
    program = open_with_groups(start, choir)
    mark(program, "Choir", "i")
    press_apply(program)
    text = confirm(program)
    assert "choir-alto" in text and "choir-bass" in text and "choir-descant" not in text
    assert choir.installed() == before | {"choir-alto-1.0-1.noarch", "choir-bass-1.0-1.noarch"}

    # All that the group insists on is there now, so it counts as installed and can be removed.
    program.choose("View Removable")
    assert "Choir" in program.names()
    mark(program, "Choir", "r")
    press_apply(program)
    text = confirm(program)
    assert "\tRemove: choir-alto" in text
    assert choir.installed() == before
    log = detailed_log(program)
    for line in (
        "For group Choir, marking package choir-alto for Install",
        "For group Choir, marking package choir-bass for Install",
        "For group Choir, marking package choir-alto for Remove",
    ):
        assert line in log


def test_an_updated_group_has_its_packages_updated_and_what_it_requires_put_in(choir: Estate, start: Start) -> None:
    program = open_with_groups(start, choir)
    program.choose("View Updatable")
    assert set(program.names()) == {"Loft", "organ", "pedal"}
    mark(program, "Loft", "u")
    mark(program, "organ", "u")
    program.choose("View All")
    press_apply(program)
    text = confirm(program)
    assert "\tUpdate: organ 1.1-1" in text and "\tUpdate: pedal 1.1-1" in text and "\tInstall: choir-bass 1.0-1" in text
    assert choir.installed() == {
        "organ-1.1-1.noarch", "pedal-1.1-1.noarch", "choir-bass-1.0-1.noarch", "bench-1.0-1.noarch"
    }
    log = detailed_log(program)
    for line in (
        "For group Loft, package organ already was marked for Update",
        "For group Loft, marking package pedal for Update",
        "For group Loft, marking package choir-bass for Install",
    ):
        assert line in log
    # The table tells the group's new state.
    assert describe(program, "Loft")[1] == "Installed"


def test_groups_of_unknown_packages_leave_nothing_to_do(choir: Estate, start: Start) -> None:
    before = choir.installed()
    program = open_with_groups(start, choir)
    mark(program, "Echo", "i")
    mark(program, "Void", "i")
    mark(program, "choir-alto", "i")
    press_apply(program)
    assert confirm(program).count("\tInstall: ") == 1
    assert choir.installed() == before | {"choir-alto-1.0-1.noarch"}
    assert "For group" not in detailed_log(program)


def test_a_conflict_is_asked_about_and_each_answer_is_followed(choir: Estate, start: Start) -> None:
    before = choir.installed()
    program = open_with_rows(start, choir, "Loft", "organ", "bench")
    mark(program, "Loft", "u")
    mark(program, "organ", "r")

    def ask() -> Atspi.Accessible:
        press_apply(program)
        box = conflict(program)
        assert program.texts(box) == CONFLICT.format("organ", "Loft", "Update", "Update", "Remove")
        assert buttons(box) == ["Update", "Remove", "Cancel"]
        return box

    def gone() -> None:
        program.wait_closed("Apply")
        program.wait_ready()
        assert choir.installed() == before

    box = ask()
    cancel = program.wait("Cancel", Atspi.Role.PUSH_BUTTON, inside=box)
    wait_for(lambda: has_state(cancel, Atspi.StateType.FOCUSED), "the focus of Cancel, the default")
    program.press("Cancel", box)
    gone()
    ask()
    program.key("Escape")
    gone()

    # The package's own mark stays; the transaction is then refused.
    program.press("Remove", ask())
    question = the_question(program)
    text = program.texts(question)
    assert "\tRemove: organ 1.0-1" in text and "\tUpdate: pedal 1.1-1" in text and "Update: organ" not in text
    program.press("Cancel", question)
    gone()

    # What the group would do takes its place. The marks are still the user's own.
    program.press("Update", ask())
    text = confirm(program)
    assert "\tUpdate: organ 1.1-1" in text and "\tRemove: " not in text
    assert choir.installed() == {
        "organ-1.1-1.noarch", "pedal-1.1-1.noarch", "choir-bass-1.0-1.noarch", "bench-1.0-1.noarch"
    }
    lines = [line for line in detailed_log(program).split("\n") if line.startswith("Manually")]
    assert lines == [f"Manually resolving conflict: marking package organ for {name}" for name in ("Remove", "Update")]


def test_a_package_of_two_groups_is_asked_about_a_second_time(choir: Estate, start: Start) -> None:
    program = open_with_rows(start, choir, "Loft", "Seats", "organ", "bench")
    mark(program, "Loft", "u")
    mark(program, "Seats", "i")
    mark(program, "organ", "r")
    press_apply(program)
    first = conflict(program)
    words = program.texts(first)
    # Which group comes first isn't told to anybody.
    names = ("Loft", "Seats") if "group Loft" in words else ("Seats", "Loft")
    actions = {"Loft": "Update", "Seats": "Install"}
    assert words == CONFLICT.format("organ", names[0], actions[names[0]], "Update", "Remove")
    program.press("Remove", first)
    wait_for(lambda: f"group {names[1]}" in program.texts(conflict(program)), "the second question")
    second = conflict(program)
    assert program.texts(second) == CONFLICT.replace(
        "it was marked individually for", "you resolved an earlier conflict by marking it for"
    ).format("organ", names[1], actions[names[1]], "Update", "Remove")
    program.key("Escape")
    program.wait_closed("Apply")
    program.wait_ready()


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
