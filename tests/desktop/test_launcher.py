# SPDX-License-Identifier: GPL-2.0-or-later
"""The launcher, in a copy of the installed layout, with a pkexec and a program that only note their call."""

from __future__ import annotations

import json
import shutil
import subprocess
from pathlib import Path
from typing import Dict, List

import pytest

DESKTOP = Path(__file__).resolve().parent.parent.parent / "desktop"

# What the real one does: it starts the program as root with an environment of its own making.
PKEXEC = """#!/bin/sh
exec /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C PKEXEC_UID=1000 "$@"
"""

PROGRAM = """#!/usr/bin/python3
import json, os, sys
print(json.dumps({"arguments": sys.argv[1:], "environment": dict(os.environ)}))
"""


class Installed:
    def __init__(self, prefix: Path) -> None:
        self.share = prefix / "share/vem"
        self.tools = prefix / "tools"
        for folder in (self.share, self.tools, prefix / "bin"):
            folder.mkdir(parents=True)
        for name in ("launch", "as-root"):
            shutil.copy(DESKTOP / name, self.share / name)
        self.write(prefix / "bin/vem", PROGRAM)
        for name in ("dirname", "readlink"):
            (self.tools / name).symlink_to(shutil.which(name) or "")

    @staticmethod
    def write(file: Path, text: str) -> None:
        file.write_text(text)
        file.chmod(0o755)

    def add_pkexec(self) -> None:
        self.write(self.tools / "pkexec", PKEXEC)

    def launch(self, *options: str, uid: int = 1000, **environment: str) -> subprocess.CompletedProcess[str]:
        """Runs the launcher, which takes itself for this user."""
        self.write(self.tools / "id", f"#!/bin/sh\necho {uid}\n")
        return subprocess.run(
            [str(self.share / "launch"), *options],
            env={"PATH": str(self.tools), **environment},
            capture_output=True,
            text=True,
        )

    def as_root(self, *arguments: str) -> subprocess.CompletedProcess[str]:
        return subprocess.run(
            [str(self.share / "as-root"), *arguments],
            env={"PATH": str(self.tools)},
            capture_output=True,
            text=True,
        )


def arguments(run: subprocess.CompletedProcess[str]) -> List[str]:
    assert run.returncode == 0, run.stderr
    return list(json.loads(run.stdout)["arguments"])


def environment(run: subprocess.CompletedProcess[str]) -> Dict[str, str]:
    assert run.returncode == 0, run.stderr
    return dict(json.loads(run.stdout)["environment"])


@pytest.fixture
def installed(tmp_path: Path) -> Installed:
    return Installed(tmp_path)


def test_root_starts_the_program_at_once(installed: Installed) -> None:
    assert arguments(installed.launch("--log", "a b", uid=0)) == ["--log", "a b"]


def test_anybody_else_is_sent_through_pkexec(installed: Installed) -> None:
    installed.add_pkexec()
    run = installed.launch("--log", "DISPLAY=:9", "a b")
    assert environment(run)["PKEXEC_UID"] == "1000"
    assert arguments(run) == ["--log", "DISPLAY=:9", "a b"]


def test_display_style_and_language_arrive(installed: Installed) -> None:
    installed.add_pkexec()
    wanted = {
        "DISPLAY": ":3",
        "XAUTHORITY": "/run/user/1000/.mutter-Xwaylandauth.Q3",
        "WAYLAND_DISPLAY": "/run/user/1000/wayland-0",
        "QT_STYLE_OVERRIDE": "Fusion",
        "QT_SCALE_FACTOR": "1.5",
        "LANG": "de_DE.UTF-8",
        "LANGUAGE": "de_DE:en",
    }
    assert wanted.items() <= environment(installed.launch(**wanted)).items()


def test_nothing_else_arrives(installed: Installed) -> None:
    installed.add_pkexec()
    there = environment(installed.launch(DISPLAY=":3", QT_PLUGIN_PATH="/tmp", VEMSHARE="/tmp", SECRET="x"))
    assert there["DISPLAY"] == ":3"
    assert not {"QT_PLUGIN_PATH", "VEMSHARE", "SECRET"} & set(there)


def test_the_name_of_a_wayland_socket_is_completed_by_its_folder(installed: Installed) -> None:
    installed.add_pkexec()
    run = installed.launch(WAYLAND_DISPLAY="wayland-1", XDG_RUNTIME_DIR="/run/user/1000")
    there = environment(run)
    assert there["WAYLAND_DISPLAY"] == "/run/user/1000/wayland-1"
    assert "XDG_RUNTIME_DIR" not in there


def test_the_usual_key_file_of_the_x_server_is_named(installed: Installed, tmp_path: Path) -> None:
    installed.add_pkexec()
    key = tmp_path / ".Xauthority"
    key.write_bytes(b"")
    key.chmod(0o644)
    assert environment(installed.launch(DISPLAY=":3", HOME=str(tmp_path)))["XAUTHORITY"] == str(key)


def test_without_pkexec_the_program_starts_for_looking_only(installed: Installed) -> None:
    run = installed.launch("--log")
    assert arguments(run) == ["--log"]
    assert "without the rights" in run.stderr


def test_as_root_refuses_a_variable_that_is_not_on_its_list(installed: Installed) -> None:
    for word in ("LD_PRELOAD=/tmp/x.so", "PATH=/tmp", "--log"):
        run = installed.as_root(word, "--")
        assert run.returncode == 2
        assert run.stdout == ""
        assert "refused" in run.stderr


def test_as_root_wants_the_end_of_the_variables(installed: Installed) -> None:
    assert installed.as_root("DISPLAY=:3").returncode == 2


@pytest.mark.parametrize(
    "word", ["QT_STYLE_OVERRIDE=/tmp/x", "QT_QPA_PLATFORM=xcb /tmp", "LANG=$(id)", "DISPLAY=:1\nPATH=/tmp"]
)
def test_as_root_leaves_out_a_value_with_other_characters(installed: Installed, word: str) -> None:
    assert word.partition("=")[0] not in environment(installed.as_root(word, "--"))
