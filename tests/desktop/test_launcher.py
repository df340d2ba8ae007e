# SPDX-License-Identifier: GPL-2.0-or-later
"""The launcher, in a copy of the installed layout, with a pkexec and a program that only note their call."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
from pathlib import Path
from typing import Dict, List, Optional

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

    def add_pkexec(self, text: str = PKEXEC) -> None:
        self.write(self.tools / "pkexec", text)

    def launch(
        self, *options: str, uid: int = 1000, launcher: Optional[Path] = None, **environment: str
    ) -> subprocess.CompletedProcess[str]:
        """Runs the launcher, which takes itself for this user."""
        self.write(self.tools / "id", f"#!/bin/sh\necho {uid}\n")
        return subprocess.run(
            [str(launcher or self.share / "launch"), *options],
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


def test_display_and_language_arrive(installed: Installed) -> None:
    installed.add_pkexec()
    wanted = {
        "DISPLAY": ":3",
        "XAUTHORITY": "/run/user/1000/.mutter-Xwaylandauth.Q3",
        "WAYLAND_DISPLAY": "/run/user/1000/wayland-0",
        "QT_QPA_PLATFORM": "wayland;xcb",
        "QT_QPA_PLATFORMTHEME": "gtk3",
        "QT_SCALE_FACTOR": "1.5",
        "QT_FONT_DPI": "144",
        "XDG_CURRENT_DESKTOP": "ubuntu:GNOME",
        "LANG": "de_DE.UTF-8",
        "LANGUAGE": "de_DE:en",
        "LC_ALL": "de_DE.UTF-8",
        "LC_CTYPE": "de_DE@euro",
        "LC_MESSAGES": "fr_FR.UTF-8",
        "LC_NUMERIC": "C",
        "LC_TIME": "en_GB.UTF-8",
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
    assert environment(installed.launch(WAYLAND_DISPLAY="wayland-1"))["WAYLAND_DISPLAY"] == "wayland-1"


def test_the_usual_key_file_of_the_x_server_is_named(installed: Installed, tmp_path: Path) -> None:
    installed.add_pkexec()
    key = tmp_path / ".Xauthority"
    key.write_bytes(b"")
    key.chmod(0o644)
    assert environment(installed.launch(DISPLAY=":3", HOME=str(tmp_path)))["XAUTHORITY"] == str(key)


def test_a_key_file_of_any_name_is_found_from_any_folder(installed: Installed, tmp_path: Path) -> None:
    installed.add_pkexec()
    there = environment(installed.launch(DISPLAY=":3", XAUTHORITY="/home/j\u00f6rg b/.Xauth'or$ity"))
    assert there["XAUTHORITY"] == "/home/j\u00f6rg b/.Xauth'or$ity"
    there = environment(installed.launch(DISPLAY=":3", XAUTHORITY="keys/x"))
    assert there["XAUTHORITY"] == f"{os.getcwd()}/keys/x"


def test_a_package_file_is_found_from_any_folder(
    installed: Installed, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    installed.add_pkexec()
    (tmp_path / "a b.rpm").touch()
    monkeypatch.chdir(tmp_path)
    words = ["--log", "a b.rpm", "none.rpm", "/srv/c.rpm", "https://example.org/d.rpm"]
    assert arguments(installed.launch(*words)) == ["--log", f"{tmp_path}/a b.rpm", *words[2:]]


def test_a_remote_display_keeps_its_name(installed: Installed) -> None:
    installed.add_pkexec()
    assert environment(installed.launch(DISPLAY="localhost:10.0"))["DISPLAY"] == "localhost:10.0"


def test_launcher_finds_its_place_through_a_link(installed: Installed, tmp_path: Path) -> None:
    installed.add_pkexec()
    link = tmp_path / "a link"
    link.symlink_to(installed.share / "launch")
    assert arguments(installed.launch("--log", launcher=link)) == ["--log"]


@pytest.mark.parametrize(
    ("text", "style"),
    [
        ("[Qt]\nstyle=Windows\n", "Windows"),
        ("[General]\nstyle=other\n\n[Qt]\nfont=x\nstyle = \"GTK+\"", "GTK+"),
        ("[Qt]\nstyle=Windows\n[More]\nstyle=other\n", "Windows"),
        ("[Qt]\nstylesheet=x\n[General]\nstyle=other\n", None),
        ("[Qt]\nstyle=/tmp/x.so\n", None),
        ("[Qt]\nstyle=-platform\n", None),
        ("[Qt]\nstyle=$(id) a\n", None),
        ("[Qt]\nstyle=\n", None),
        ("", None),
    ],
)
def test_the_style_of_the_users_settings_becomes_an_option(
    installed: Installed, tmp_path: Path, text: str, style: Optional[str]
) -> None:
    installed.add_pkexec()
    settings = tmp_path / ".config/Trolltech.conf"
    settings.parent.mkdir()
    settings.write_text(text)
    expected = ["-style", style] if style else []
    assert arguments(installed.launch("--log", HOME=str(tmp_path))) == [*expected, "--log"]
    assert arguments(installed.launch("--log", XDG_CONFIG_HOME=str(settings.parent))) == [*expected, "--log"]


def test_a_style_named_for_the_session_counts_before_the_settings(installed: Installed, tmp_path: Path) -> None:
    installed.add_pkexec()
    settings = tmp_path / ".config/Trolltech.conf"
    settings.parent.mkdir()
    settings.write_text("[Qt]\nstyle=Windows\n")
    run = installed.launch(HOME=str(tmp_path), QT_STYLE_OVERRIDE="Fusion")
    assert arguments(run) == ["-style", "Fusion"]
    # The toolkit takes the last one.
    run = installed.launch("-style", "mine", HOME=str(tmp_path))
    assert arguments(run) == ["-style", "Windows", "-style", "mine"]


def test_who_gets_no_rights_may_look(installed: Installed) -> None:
    installed.add_pkexec("#!/bin/sh\nexit 127\n")
    run = installed.launch("--log", "a b", DISPLAY=":3")
    assert arguments(run) == ["--log", "a b"]
    assert "without the rights" in run.stderr
    assert environment(run)["DISPLAY"] == ":3"


@pytest.mark.parametrize("status", [0, 1, 126])
def test_who_dismisses_the_question_or_quits_is_done(installed: Installed, status: int) -> None:
    installed.add_pkexec(f"#!/bin/sh\nexit {status}\n")
    run = installed.launch()
    assert (run.returncode, run.stdout) == (status, "")


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
    "word", ["QT_QPA_PLATFORMTHEME=/tmp/x", "QT_QPA_PLATFORM=xcb /tmp", "LANG=$(id)", "DISPLAY=:1\nPATH=/tmp"]
)
def test_as_root_leaves_out_a_value_with_other_characters(installed: Installed, word: str) -> None:
    assert word.partition("=")[0] not in environment(installed.as_root(word, "--"))
