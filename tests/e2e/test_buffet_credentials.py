# SPDX-License-Identifier: GPL-2.0-or-later
"""A repository that wants a name and a password: asked for, mended, used, and never shown to anybody."""
from __future__ import annotations

import stat
import urllib.parse
from pathlib import Path
from typing import Callable, Iterator

import pytest

from buffet import Buffet
from keyboard import Keyboard
from libraries import by_library
from program import ACTION_COLUMN, Atspi, GLib, Program, wait_for, walk
from rpmestate import Estate, spec

Start = Callable[..., Program]

NAME = "Ann & Co."
PASSWORD = "p&w %x+#/=?"
WRONG = "wr&ng"
QUESTION = "VEM Authentication"
EDITOR = "VEM Repository Configuration Editor"
FORM = "VEM Repository Configuration"


def coded(text: str) -> str:
    """As it stands in an address: reserved characters as two lower-case hexadecimal digits."""
    return "".join(f"%{ord(c):02x}" if c in '$&+,/:;=?@ "<>#%{}|\\^~[]' else c for c in text)


@pytest.fixture
def quay(tmp_path: Path) -> Estate:
    estate = Estate(tmp_path / "quay")
    anchor, barge = estate.build([spec("anchor"), spec("barge")])
    estate.write_main_config(reposdir="/etc/yum.repos.d")
    estate.repository("wharf", [barge])
    estate.install([anchor])
    return estate


@pytest.fixture
def buffet(quay: Estate) -> Iterator[Buffet]:
    """Knows one user; the configuration lacks the credentials."""
    with Buffet(quay.repos_dir, NAME, PASSWORD) as buffet:
        quay.write_repo_file("wharf", baseurl=f"{buffet.url}/buffet?login=&key=&path=/wharf")
        yield buffet


def definition(quay: Estate) -> Path:
    return quay.root / "etc/yum.repos.d/wharf.repo"


def shown(program: Program) -> str:
    """Every word that any window of the program tells, to the eye or to assistive programs."""
    words = []
    for window in program.windows():
        for node in walk(window):
            try:
                words += [node.get_name(), node.get_description()]
                if "Text" in node.get_interfaces():
                    words.append(Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node)))
            except GLib.Error:
                continue
    return "\n".join(words)


def assert_secret(program: Program, quay: Estate, tmp_path: Path, *secrets: str) -> None:
    """The secrets stand in the repository's definition and nowhere else that anybody can look at."""
    output = (tmp_path / "vem.log").read_text(errors="replace")
    process = Path("/proc", str(program.process.pid))
    texts = {
        "the windows": shown(program),
        "the program's output": output,
        "the environment": (process / "environ").read_bytes().decode(errors="replace"),
        "the command line": (process / "cmdline").read_bytes().decode(errors="replace"),
    }
    for path in quay.root.rglob("*"):
        if path.is_file() and path != definition(quay):
            texts[str(path)] = path.read_bytes().decode(errors="replace")
    for secret in secrets:
        for form in {secret, coded(secret), urllib.parse.quote(secret, safe="")}:
            for place, text in texts.items():
                assert form not in text, f"{form!r} is shown in {place}"


def answer(program: Program, name: str, password: str, button: str = "OK") -> None:
    keyboard = Keyboard(program)
    wait_for(lambda: keyboard.focused_name() == "login", "the keyboard in the question")
    program.type_text(name)
    program.key("Tab")
    program.type_text(password)
    program.press(button, program.window(QUESTION))


def show_all_of_the_log(program: Program) -> None:
    program.log_text()
    level = program.wait("Detail level", Atspi.Role.SPIN_BUTTON, inside=program.window("VEM Log"))
    program.click(level)
    program.key("ctrl+a")
    program.type_text("10")
    # A record of that level; what the library says of each request is among the others.
    record = by_library("User-Agent", "No modules metadata")
    wait_for(lambda: record in program.log_text(), "the log with all its details")


def test_credentials_are_asked_for_mended_and_never_shown(
    quay: Estate, buffet: Buffet, start: Start, tmp_path: Path
) -> None:
    program = start(quay)
    question = program.window(QUESTION)
    assert f"{buffet.url}/buffet?login=&key=&path=/wharf" in program.texts(question)
    keyboard = Keyboard(program)
    wait_for(lambda: keyboard.focused_name() == "login", "the keyboard in the question")
    program.type_text(NAME)
    program.key("Tab")
    program.type_text(WRONG)
    wait_for(lambda: coded(NAME) in program.texts(question), "the address with the name")
    assert_secret(program, quay, tmp_path, WRONG)
    program.key("Return")

    # The server refuses, which is told with the address, but not with what must not be read.
    report = program.window("VEM Yum Error", timeout=60)
    text = program.texts(report)
    assert "wharf" in text and "403" in text
    assert f"{buffet.url}/buffet?login={coded(NAME)}&key=***&path=/wharf" in text
    assert_secret(program, quay, tmp_path, WRONG)
    program.press("Close", report)
    program.wait_ready()
    assert f"&key={coded(WRONG)}&" in definition(quay).read_text()
    assert stat.S_IMODE(definition(quay).stat().st_mode) == 0o600

    # The user corrects it where repositories are edited.
    program.key("ctrl+e")
    program.window(EDITOR)
    keyboard.tab_to("Repositories")
    program.key("ctrl+Home")
    keyboard.activate("Edit")
    wait_for(lambda: any(w.get_name() == FORM for w in program.windows()), "the form")
    assert_secret(program, quay, tmp_path, WRONG)
    keyboard.fill("key", PASSWORD)
    assert_secret(program, quay, tmp_path, WRONG, PASSWORD)
    keyboard.activate("OK")
    wait_for(lambda: not any(w.get_name() == FORM for w in program.windows()), "the form to close")
    keyboard.activate("OK")
    program.wait_closed(EDITOR)
    program.wait_ready()
    assert f"login={coded(NAME)}&key={coded(PASSWORD)}&path=/wharf" in definition(quay).read_text()
    assert stat.S_IMODE(definition(quay).stat().st_mode) == 0o600

    program.choose("View Installable")
    wait_for(lambda: program.names() == ["barge"], "the package behind the password")
    program.click_cell("barge", ACTION_COLUMN)
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")
    program.wait_ready()
    assert quay.rpm("-q", "barge").strip() == "barge-1.0-1.noarch"
    assert any(request.endswith("&path=/wharf/barge-1.0-1.noarch.rpm") for request in buffet.requests())

    show_all_of_the_log(program)
    wait_for(lambda: "403" in program.log_text(), "the refusal in the log")
    assert_secret(program, quay, tmp_path, WRONG, PASSWORD)


def test_a_refusal_on_the_way_to_a_package_is_told_without_the_password(
    quay: Estate, buffet: Buffet, start: Start, tmp_path: Path
) -> None:
    program = start(quay)
    answer(program, NAME, PASSWORD)
    program.wait_ready()
    program.choose("View Installable")
    program.click_cell("barge", ACTION_COLUMN)
    buffet.refuse_everybody()
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    report = program.window("VEM Yum Error", timeout=60)
    text = program.texts(report)
    assert "barge" in text and "403" in text
    assert_secret(program, quay, tmp_path, PASSWORD)
    program.press("Close", report)
    program.wait_ready()
    show_all_of_the_log(program)
    assert_secret(program, quay, tmp_path, PASSWORD)
    assert quay.installed() == {"anchor-1.0-1.noarch"}


def test_a_session_without_the_repository_goes_on(quay: Estate, buffet: Buffet, start: Start) -> None:
    before = definition(quay).read_text()
    program = start(quay)
    program.press("Disable for Session", program.window(QUESTION))
    report = program.window("VEM Yum Error")
    assert "No repositories are enabled." in program.texts(report)
    program.press("OK", report)
    program.wait_ready()
    assert buffet.requests() == []
    assert definition(quay).read_text() == before


def test_quit_in_the_question_ends_the_program(quay: Estate, buffet: Buffet, start: Start) -> None:
    program = start(quay)
    program.press("Quit", program.window(QUESTION))
    assert program.process.wait(timeout=20) == 0
    assert list(quay.root.rglob("*_lock.pid")) == []
    assert buffet.requests() == []


def test_quit_in_the_question_behind_the_editor_ends_the_program(
    quay: Estate, buffet: Buffet, start: Start
) -> None:
    program = start(quay)
    program.press("Disable for Session", program.window(QUESTION))
    program.press("OK", program.window("VEM Yum Error"))
    program.wait_ready()
    program.key("ctrl+e")
    editor = program.window(EDITOR)
    keyboard = Keyboard(program)
    keyboard.tab_to("Repositories")
    program.key("ctrl+Home", "space")
    program.press("OK", editor)
    program.press("Quit", program.window(QUESTION))
    assert program.process.wait(timeout=20) == 0
    assert list(quay.root.rglob("*_lock.pid")) == []
