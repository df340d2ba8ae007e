# SPDX-License-Identifier: GPL-2.0-or-later
"""The program of a user without rights: it shows everything and changes nothing. Run by as_nobody.py."""
from __future__ import annotations

import os
import shutil
from pathlib import Path
from typing import Callable, Dict, NamedTuple

import pytest

from program import ACTION_COLUMN, NAME_COLUMN, Atspi, Program, wait_for, walk
from rpmestate import Estate, shell_spec, spec

Start = Callable[..., Program]
EDITOR = "VEM Repository Configuration Editor"
LIT = "* Mon Jan 06 2025 Wren <wren@beacon.example> - 1.1-1\n- Polished the brass reflector"
LOOK_ONLY = "Started without administrator rights: packages can be looked at, not changed."
NOT_APPLIED = (
    "Only the administrator can install, update or remove packages: start the program with administrator rights."
)
NOT_CLEANED = "Only the administrator can clean the caches: start the program with administrator rights."


class System(NamedTuple):
    root: Path

    def files(self) -> Dict[str, tuple[int, int, int]]:
        """Every file with its permissions, size and time of change."""
        found = {}
        for path in [self.root, *self.root.glob("**/*")]:
            status = path.lstat()
            found[str(path)] = (status.st_mode, status.st_size, status.st_ctime_ns)
        return found


def make_systems(folder: Path) -> None:
    """By root: a coast with a light that can be updated, and the same with a file that only root may read."""
    estate = Estate(folder / "coast")
    shell, old, *offered = estate.build(
        [
            shell_spec("coast-shell"),
            spec("coast-light", "1.0"),
            spec("coast-light", "1.1", changelog=LIT, files={"/usr/share/coast/lamp": "lit"}),
            spec("coast-horn", "1.0", description="It sounds in fog.", files={"/usr/share/coast/horn": "brass"}),
        ]
    )
    estate.write_main_config()
    estate.repository("cliff", offered)
    estate.install([shell, old])
    secretive = folder / "secretive"
    shutil.copytree(estate.root, secretive, symlinks=True)
    secret = secretive / "etc/yum.repos.d/secret.repo"
    secret.write_text("[secret]\nname=secret\nbaseurl=http://127.0.0.1:9/?key=tell-nobody\n")
    secret.chmod(0o600)


def system(name: str) -> System:
    return System(Path(os.environ["VEM_SYSTEMS"]) / name)


@pytest.fixture
def coast() -> System:
    return system("coast/root")


@pytest.fixture
def program(coast: System, start: Start) -> Program:
    program = start(coast)
    program.wait_ready()
    program.choose("View All")
    return program


def answer(program: Program, caption: str, button: str) -> str:
    """Waits for an error box, presses the button, and gives its words."""
    box = program.window(caption)
    text = program.texts(box)
    program.shot(caption.replace(" ", "-"))
    program.press(button, box)
    wait_for(lambda: program.process.poll() is not None or not program.find_window(caption), "the box to close")
    return text


def test_table_search_and_description_work(coast: System, program: Program) -> None:
    before = coast.files()
    assert program.names() == ["coast-horn", "coast-light", "coast-shell"]
    assert LOOK_ONLY in program.log_text().split("\n")
    assert program.wait("Looking only", Atspi.Role.LABEL)
    program.key("Escape")
    program.wait_closed("VEM Log")

    program.choose("Search")
    for pattern, found in (("in fog", "coast-horn"), ("brass reflector", "coast-light"), ("coast/horn$", "coast-horn")):
        program.set_expression(pattern)
        wait_for(lambda: program.is_ready() and program.names() == [found], f"the row that matches {pattern!r}")

    program.click_cell("coast-horn", NAME_COLUMN)
    program.press("Describe")
    description = program.window("VEM Package Description")
    assert "It sounds in fog." in program.texts(description)
    program.shot("description")
    assert coast.files() == before


def test_apply_ends_in_one_sentence_and_the_mark_stays(coast: System, program: Program) -> None:
    before = coast.files()
    program.click_cell("coast-horn", ACTION_COLUMN)
    marked = program.cell(0, ACTION_COLUMN).get_name()
    assert marked
    program.press("Apply Actions")
    assert answer(program, "VEM Yum Error", "Close") == f"{NOT_APPLIED}\nError applying changes"
    program.wait_ready()
    assert program.cell(0, ACTION_COLUMN).get_name() == marked
    assert coast.files() == before


def test_every_entry_of_the_cache_menu_ends_in_one_sentence(coast: System, program: Program) -> None:
    before = coast.files()
    for entry in ("Clean Headers", "Clean Packages", "Clean XML Metadata", "Clean All"):
        program.click(program.wait("Cache", Atspi.Role.MENU_ITEM))
        program.click(program.wait(entry, Atspi.Role.MENU_ITEM))
        assert answer(program, "VEM Yum Error", "OK") == NOT_CLEANED
        program.wait_ready()
        assert program.names() == ["coast-horn", "coast-light", "coast-shell"]
    assert coast.files() == before


def test_configuration_is_not_written_and_the_edits_stay(coast: System, program: Program) -> None:
    before = coast.files()
    program.key("ctrl+e")
    editor = program.window(EDITOR)
    table = next(node for node in walk(editor) if node.get_role() == Atspi.Role.TABLE)
    program.click(Atspi.Table.get_accessible_at(table, 0, 1))
    program.wait("Unapplied Configuration Changes", inside=editor)
    for button in ("Apply", "OK"):
        program.press(button, editor)
        words = "Unable to write repository configuration file /etc/yum.repos.d/cliff.repo"
        assert answer(program, "VEM Repository Editor Error", "OK") == f"{words}; errno = 13 (Permission denied)."
        assert program.find("Unapplied Configuration Changes", inside=editor)
    assert coast.files() == before
    program.press("Cancel", editor)
    program.wait_closed(EDITOR)


def test_second_copy_is_refused_by_the_users_own_lock(coast: System, program: Program, start: Start) -> None:
    second = start(coast)
    text = answer(second, "VEM Yum Error", "Close")
    assert f"The yum lock is held by process {program.process.pid} (vem)." in text
    assert text.endswith("Unable to obtain yum lock")


def test_file_that_only_root_may_read_is_told_and_the_others_are_shown(start: Start) -> None:
    program = start(system("secretive"))
    words = "Unable to read repository configuration file /etc/yum.repos.d/secret.repo; errno = 13 (Permission denied)."
    assert answer(program, "VEM Repository Editor Error", "OK") == words
    assert answer(program, "Incomplete Table", "Close").endswith("\n\n/etc/yum.repos.d/secret.repo: Permission denied")
    program.wait_ready()
    program.choose("View All")
    assert program.names() == ["coast-horn", "coast-light", "coast-shell"]


def test_home_that_cannot_be_written_is_told(coast: System, start: Start, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setenv("HOME", "/nonexistent")
    program = start(coast)
    text = answer(program, "VEM Yum Error", "Close")
    assert "a cache of the user's own, which cannot be used:\n/nonexistent: Permission denied" in text
    assert text.endswith("Unable to initialize")
    assert program.process.wait(timeout=30) == 0


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
