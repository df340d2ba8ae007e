# SPDX-License-Identifier: GPL-2.0-or-later
"""Root that acts for a user opens documents as that user, in that user's session."""

from __future__ import annotations

import os
import socket

import pytest

from conftest import Desk

ADDRESS = "http://example.org/a b"
# An account that every system has.
OTHER = 65534

COMMANDS = [["webbrowser", ADDRESS], ["mimeviewer", "application/pdf", ADDRESS]]


@pytest.fixture
def root_desk(desk: Desk) -> Desk:
    """A desk at which everyone looks like root, and the ways to another user only note where they lead."""
    desk.add("xdg-open")
    desk.add_tool("id", "echo 0")
    desk.add_tool("getent", '[ "$*" = "passwd 1000" ] && echo "ann:x:1000:1001:Ann:/home/ann:/bin/zsh"')
    return desk


@pytest.mark.parametrize("command", COMMANDS)
@pytest.mark.parametrize("variable", ["PKEXEC_UID", "SUDO_UID"])
def test_document_is_opened_by_the_user(root_desk: Desk, variable: str, command: list[str]) -> None:
    for way in ("setpriv", "runuser", "su"):
        root_desk.add(way)
    words = [str(root_desk.share / command[0]), *command[1:]]
    ways = {
        "setpriv": ["--reuid", "1000", "--regid", "1001", "--init-groups", "--", *words],
        "runuser": ["-u", "ann", "--", *words],
        "su": ["-s", "/bin/sh", "-c", 'exec "$@"', "--", "ann", "sh", *words],
    }
    for way, arguments in ways.items():
        assert root_desk.run(*command, **{variable: "1000"}).returncode == 0
        assert root_desk.calls()[-1] == [way, *arguments]
        # The next time without it.
        (root_desk.programs / way).unlink()
    assert len(root_desk.calls()) == len(ways)


def test_pkexec_counts_before_sudo(root_desk: Desk) -> None:
    root_desk.add("runuser")
    root_desk.run("webbrowser", ADDRESS, PKEXEC_UID="1000", SUDO_UID="1")
    assert root_desk.calls()[0][1:3] == ["-u", "ann"]


@pytest.mark.parametrize("uid", ["", "0", "x", "1 2", "$(id)"])
def test_root_that_acts_for_nobody_opens_itself(root_desk: Desk, uid: str) -> None:
    root_desk.add("setpriv")
    assert root_desk.run("webbrowser", ADDRESS, SUDO_UID=uid).returncode == 0
    assert root_desk.calls() == [["xdg-open", ADDRESS]]


def test_user_who_is_not_root_opens_as_before(root_desk: Desk) -> None:
    root_desk.add_tool("id", "echo 7")
    root_desk.add("setpriv")
    assert root_desk.run("webbrowser", ADDRESS, SUDO_UID="1000").returncode == 0
    assert root_desk.calls() == [["xdg-open", ADDRESS]]


def test_unknown_user_is_told_and_nothing_opened_as_root(root_desk: Desk) -> None:
    root_desk.add("setpriv")
    result = root_desk.run("webbrowser", ADDRESS, SUDO_UID="1234")
    assert result.returncode == 1
    assert result.stderr == "webbrowser: no user has the number 1234\n"
    assert root_desk.calls() == []


def session_environment(desk: Desk, **environment: str) -> dict[str, str]:
    desk.add("setpriv")
    assert desk.run("webbrowser", ADDRESS, SUDO_UID="1000", **environment).returncode == 0
    return desk.records()[-1]["environment"]


def make_socket(path: os.PathLike) -> None:
    # Relative, since the names of sockets are short.
    before = os.getcwd()
    os.chdir(os.path.dirname(path))
    try:
        with socket.socket(socket.AF_UNIX) as end:
            end.bind(os.path.basename(path))
    finally:
        os.chdir(before)


def test_user_gets_the_own_identity(root_desk: Desk) -> None:
    environment = session_environment(
        root_desk, HOME="/root", USER="root", LOGNAME="root", SHELL="/bin/bash", SUDO_USER="ann", SUDO_GID="1001",
        SUDO_COMMAND="vem", XDG_CONFIG_HOME="/root/.config", XDG_RUNTIME_DIR="/run/user/0")
    assert (environment["HOME"], environment["USER"], environment["LOGNAME"], environment["SHELL"]) == (
        "/home/ann", "ann", "ann", "/bin/zsh")
    gone = {"SUDO_UID", "SUDO_GID", "SUDO_USER", "SUDO_COMMAND", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}
    assert not gone & environment.keys()


def test_session_of_the_user_is_entered(root_desk: Desk) -> None:
    session = root_desk.sessions / "1000"
    session.mkdir()
    make_socket(session / "bus")
    make_socket(session / "wayland-0")
    environment = session_environment(root_desk, DBUS_SESSION_BUS_ADDRESS="unix:path=/root/bus")
    assert environment["XDG_RUNTIME_DIR"] == str(session)
    assert environment["DBUS_SESSION_BUS_ADDRESS"] == f"unix:path={session}/bus"
    assert environment["WAYLAND_DISPLAY"] == "wayland-0"


def test_display_that_was_handed_down_stays(root_desk: Desk) -> None:
    session = root_desk.sessions / "1000"
    session.mkdir()
    make_socket(session / "wayland-0")
    handed = {"DISPLAY": ":5", "XAUTHORITY": "/home/ann/.Xauthority", "DBUS_SESSION_BUS_ADDRESS": "unix:abstract=x"}
    environment = session_environment(root_desk, **handed)
    assert {name: environment.get(name) for name in handed} == handed
    assert "WAYLAND_DISPLAY" not in environment
    assert session_environment(root_desk, WAYLAND_DISPLAY="wayland-3")["WAYLAND_DISPLAY"] == "wayland-3"


def test_key_of_the_display_that_cannot_be_read_is_replaced_by_the_own(desk: Desk) -> None:
    desk.add("xdg-open")
    missing = str(desk.folder / "missing")
    desk.run("webbrowser", ADDRESS, XAUTHORITY=missing)
    assert "XAUTHORITY" not in desk.records()[-1]["environment"]

    own = desk.folder / "home" / ".Xauthority"
    own.parent.mkdir()
    own.touch()
    desk.run("webbrowser", ADDRESS, XAUTHORITY=missing)
    assert desk.records()[-1]["environment"]["XAUTHORITY"] == str(own)

    other = desk.folder / "key"
    other.touch()
    desk.run("webbrowser", ADDRESS, XAUTHORITY=str(other))
    assert desk.records()[-1]["environment"]["XAUTHORITY"] == str(other)


@pytest.mark.usefixtures("as_root")
@pytest.mark.parametrize("way", ["setpriv", "runuser", "su"])
@pytest.mark.parametrize("command", COMMANDS)
def test_root_really_becomes_the_user(desk: Desk, way: str, command: list[str]) -> None:
    desk.add("mine")
    for tool in ("id", "getent", way):
        desk.add_tool(tool)
    assert desk.run(*command, SUDO_UID=str(OTHER), BROWSER="mine").returncode == 0
    assert desk.calls() == [["mine", ADDRESS]]
    record = desk.records()[0]
    assert (record["uid"], record["gid"]) == (OTHER, OTHER)
    assert 0 not in record["groups"]
