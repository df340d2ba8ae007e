# SPDX-License-Identifier: GPL-2.0-or-later
"""Which program opens a document, and what it is given."""

from __future__ import annotations

import pytest

from conftest import Desk

ADDRESS = "http://example.org/buffet?login=a&key=b%20c&path=x"


@pytest.mark.parametrize(
    ("variable", "call"),
    [
        ("mine", ["mine", ADDRESS]),
        ("mine --new", ["mine", "--new", ADDRESS]),
        ("mine --url=%s --last", ["mine", f"--url={ADDRESS}", "--last"]),
        ("mine %s %s", ["mine", ADDRESS, ADDRESS]),
        ('mine "%s"', ["mine", ADDRESS]),
        ("mine '%s'", ["mine", ADDRESS]),
        ("mine 100%% %c %x %", ["mine", "100%", ":", "%x", "%", ADDRESS]),
        ("  mine   *  ", ["mine", "*", ADDRESS]),
        ("none:mine", ["mine", ADDRESS]),
        (":mine:other", ["mine", ADDRESS]),
    ],
)
def test_browser_variable_comes_first(desk: Desk, variable: str, call: list[str]) -> None:
    for name in ("mine", "other", "xdg-open", "firefox"):
        desk.add(name)
    assert desk.run("webbrowser", ADDRESS, BROWSER=variable).returncode == 0
    assert desk.calls() == [call]


def test_browser_that_fails_leaves_it_to_the_next(desk: Desk) -> None:
    desk.add("first", status=1)
    desk.add("second")
    assert desk.run("webbrowser", ADDRESS, BROWSER="first:second").returncode == 0
    assert desk.calls() == [["first", ADDRESS], ["second", ADDRESS]]


@pytest.mark.parametrize("builtin", ["eval", ".", "exec", "try", "printf"])
def test_browser_variable_reaches_no_word_of_the_shell(desk: Desk, builtin: str) -> None:
    desk.add("xdg-open")
    document = f"touch {desk.folder}/made"
    assert desk.run("webbrowser", document, BROWSER=builtin).returncode == 0
    assert desk.calls() == [["xdg-open", document]]
    assert not (desk.folder / "made").exists()


@pytest.mark.parametrize("command", [["webbrowser"], ["mimeviewer", "application/pdf"]])
@pytest.mark.parametrize(
    "document",
    [
        "http://example.org/$(touch made)",
        "http://example.org/`touch made`;touch made|touch made&touch made\ntouch made",
        "a b\tc  \"d\" 'e' \\ * ? ~ #%s %c %%",
        "-option",
        "--",
        "höhe\xff",
    ],
)
def test_no_shell_reads_the_document(desk: Desk, command: list[str], document: str) -> None:
    desk.add_tool("touch")
    for name in ("mine", "xdg-open"):
        desk.add(name)
    for variable in ("", "mine", "mine x%sy"):
        assert desk.run(*command, document, BROWSER=variable).returncode == 0
    given = ("./" if document.startswith("-") else "") + document
    given = given.encode().decode("latin-1")
    assert desk.calls() == [["xdg-open", given], ["mine", given], ["mine", f"x{given}y"]]
    assert not (desk.folder / "made").exists()


def test_openers_of_desktops_come_in_order(desk: Desk) -> None:
    # Each is better than the one before it was added for.
    expected = []
    for name, call in (
        ("konqueror", ["konqueror", ADDRESS]),
        ("firefox", ["firefox", ADDRESS]),
        ("x-www-browser", ["x-www-browser", ADDRESS]),
        ("kde-open5", ["kde-open5", ADDRESS]),
        ("kde-open", ["kde-open", ADDRESS]),
        ("gio", ["gio", "open", ADDRESS]),
        ("xdg-open", ["xdg-open", ADDRESS]),
    ):
        desk.add(name)
        assert desk.run("webbrowser", ADDRESS).returncode == 0
        expected.append(call)
    assert desk.calls() == expected


def test_opener_that_fails_leaves_it_to_the_next(desk: Desk) -> None:
    desk.add("xdg-open", status=3)
    desk.add("gio", status=2)
    desk.add("chromium")
    assert desk.run("webbrowser", ADDRESS).returncode == 0
    assert [call[0] for call in desk.calls()] == ["xdg-open", "gio", "chromium"]


def test_openers_do_not_see_the_browser_variable(desk: Desk) -> None:
    # Some openers consult it too, and it may name this very command.
    desk.add("xdg-open")
    assert desk.run("webbrowser", ADDRESS, BROWSER=str(desk.share / "webbrowser")).returncode == 0
    assert desk.calls() == [["xdg-open", ADDRESS]]
    assert "BROWSER" not in desk.records()[0]["environment"]


def test_viewer_of_the_type_comes_last(desk: Desk) -> None:
    desk.add("okular")
    assert desk.run("mimeviewer", "application/pdf", "/doc/m.pdf").returncode == 0
    desk.add("gio")
    assert desk.run("mimeviewer", "application/pdf", "/doc/m.pdf").returncode == 0
    desk.add("mine")
    assert desk.run("mimeviewer", "application/pdf", "/doc/m.pdf", BROWSER="mine").returncode == 0
    assert desk.calls() == [
        ["okular", "/doc/m.pdf"], ["gio", "open", "/doc/m.pdf"], ["mine", "/doc/m.pdf"]]


def test_page_of_the_web_goes_to_a_browser(desk: Desk) -> None:
    desk.add("firefox")
    assert desk.run("mimeviewer", "text/html", "/doc/i.html").returncode == 0
    assert desk.calls() == [["firefox", "/doc/i.html"]]


@pytest.mark.parametrize(
    "command", [["webbrowser", ADDRESS], ["mimeviewer", "application/pdf", ADDRESS], ["mimeviewer", "a/b", ADDRESS]])
def test_nothing_that_opens_is_told_without_the_document(desk: Desk, command: list[str]) -> None:
    desk.add("xdg-open", status=4)
    result = desk.run(*command)
    assert result.returncode == 1
    assert result.stderr == f"{command[0]}: found no program that could open the document\n"


@pytest.mark.parametrize(
    "command", [["webbrowser"], ["webbrowser", ""], ["webbrowser", "a", "b"], ["mimeviewer", "a/b"],
                ["mimeviewer", "a/b", ""], ["mimeviewer", "a/b", "c", "d"]])
def test_wrong_arguments_open_nothing(desk: Desk, command: list[str]) -> None:
    desk.add("xdg-open")
    result = desk.run(*command)
    assert result.returncode == 2
    assert result.stderr.startswith(f"Usage: {command[0]} ")
    assert desk.calls() == []


def test_output_of_openers_goes_nowhere(desk: Desk) -> None:
    desk.add_tool("xdg-open", "echo loud; echo louder >&2")
    result = desk.run("webbrowser", ADDRESS)
    assert (result.returncode, result.stdout, result.stderr) == (0, "", "")
