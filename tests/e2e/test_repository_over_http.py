# SPDX-License-Identifier: GPL-2.0-or-later
"""From a web address to an installed package without touching the mouse."""
from __future__ import annotations

import os
import shutil
from pathlib import Path
from typing import Callable

import pytest

from keyboard import Keyboard
from program import Atspi, Program, wait_for
from rpmestate import Estate, spec
from web import Web

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]
EDITOR = "VEM Repository Configuration Editor"
FORM = "VEM Repository Configuration"


@pytest.fixture
def pier(tmp_path: Path) -> Estate:
    """anchor and bollard are installed; nothing is configured; wharf lies where a server can give it."""
    estate = Estate(tmp_path / "pier")
    anchor, bollard, *offered = estate.build([spec(name) for name in ("anchor", "bollard", "barge", "crane")])
    estate.write_main_config(reposdir="/etc/yum.repos.d")
    estate.repository("wharf", offered)
    (estate.root / "etc/yum.repos.d/wharf.repo").unlink()
    estate.install([anchor, bollard])
    return estate


def add_repository(keyboard: Keyboard, id: str, url: str) -> None:
    """In the editor, which is open: a new repository by its form."""
    program = keyboard.program
    keyboard.activate("Add")
    wait_for(lambda: any(w.get_name() == FORM for w in program.windows()), "the form")
    wait_for(lambda: keyboard.focused_name() == "Identifier", "the keyboard in the form")
    program.type_text(id)
    keyboard.fill("Name", "Where ships lie")
    keyboard.fill("URLs", url)
    keyboard.activate("OK")
    wait_for(lambda: not any(w.get_name() == FORM for w in program.windows()), "the form to close")


def test_the_keyboard_alone_adds_a_repository_and_installs_from_it(
    pier: Estate, serve: Serve, start: Start
) -> None:
    server = serve(pier)
    program = start(pier)
    keyboard = Keyboard(program)
    report = program.window("VEM Yum Error")
    assert "No repositories are configured." in program.texts(report)
    program.key("Return")
    program.wait_closed("VEM Yum Error")
    program.wait_ready()

    # The menu, by its letter and by that of its entry.
    program.key("alt+r")
    program.wait("Edit Configuration", Atspi.Role.MENU_ITEM)
    program.key("e")
    program.window(EDITOR)
    add_repository(keyboard, "wharf", f"{server.url}/wharf")
    keyboard.activate("Apply")
    written = pier.root / "etc/yum.repos.d/wharf.repo"
    wait_for(written.exists, "the file of the new repository")
    keyboard.activate("OK")
    program.wait_closed(EDITOR)
    program.wait_ready()
    assert written.read_text() == f"[wharf]\nname=Where ships lie\nbaseurl={server.url}/wharf\n"
    assert any(path == "/wharf/repodata/repomd.xml" for path in server.requests())

    keyboard.pick("View All")
    wait_for(lambda: program.names() == ["anchor", "barge", "bollard", "crane"], "the table with wharf")

    # One to install, one to remove, each by the space bar on its Action cell.
    keyboard.tab_to("Packages")
    program.key("ctrl+Home", "Down", "space", "Down", "space")
    wait_for(lambda: program.is_enabled("Apply Actions"), "a mark to apply")
    # And out of the table again, by the button's letter.
    program.key("alt+a")
    question = program.window("Apply")
    text = program.texts(question)
    assert "\tInstall: barge 1.0-1 (noarch) [wharf]" in text
    assert "\tRemove: bollard 1.0-1 (noarch)" in text
    assert "crane" not in text
    keyboard.activate("OK")
    program.wait_closed("Apply")
    program.wait_ready()

    assert pier.rpm("-q", "barge").strip() == "barge-1.0-1.noarch"
    assert pier.installed() == {"anchor-1.0-1.noarch", "barge-1.0-1.noarch"}
    assert any(path.endswith("/barge-1.0-1.noarch.rpm") for path in server.requests())


def test_the_keyboard_gets_out_of_the_table(pier: Estate, serve: Serve, start: Start) -> None:
    pier.write_repo_file("wharf", baseurl=f"{serve(pier).url}/wharf")
    program = start(pier)
    program.wait_ready()
    keyboard = Keyboard(program)
    keyboard.pick("View All")
    wait_for(lambda: program.row_count() == 4, "all packages")
    for name in ("Packages", "Describe", "Refresh", "Regular expression", "Include Groups", "Packages"):
        keyboard.tab_to(name)


def test_the_browser_outlives_the_program(
    pier: Estate, serve: Serve, start: Start, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    share, note, end = tmp_path / "share", tmp_path / "note", tmp_path / "end"
    shutil.copytree(os.environ["VEMSHARE"], share)
    browser = share / "webbrowser"
    browser.write_text(
        f'#!/bin/sh\necho "$1" > {note}.part\nmv {note}.part {note}\n'
        f"while [ ! -e {end} ]; do sleep 0.05; done\nmv {end} {end}.seen\n"
    )
    monkeypatch.setenv("VEMSHARE", str(share))
    url = f"{serve(pier).url}/wharf"
    pier.write_repo_file("wharf", baseurl=url)
    program = start(pier)
    program.wait_ready()
    program.key("ctrl+e")
    program.window(EDITOR)
    keyboard = Keyboard(program)
    keyboard.tab_to("Repositories")
    program.key("ctrl+Home")
    keyboard.activate("Browse Repository")
    wait_for(note.exists, "the browser")
    assert note.read_text() == f"{url}\n"
    program.key("Escape")
    program.wait_closed(EDITOR)
    program.key("ctrl+q")
    assert program.process.wait(timeout=20) == 0
    end.touch()
    wait_for(Path(f"{end}.seen").exists, "the browser's own end")
