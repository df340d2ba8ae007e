# SPDX-License-Identifier: GPL-2.0-or-later
"""A desk: a search path of its own, on which openers only note how they were called."""

from __future__ import annotations

import json
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

sys.path.append(str(Path(__file__).resolve().parent.parent / "python"))

from users import other_users_exist, use_reachable_folder  # noqa: E402

SHARE = Path(__file__).resolve().parent.parent.parent / "share"


def pytest_configure() -> None:
    use_reachable_folder()


# Notes arguments, user and environment; ends with the status that it was made for.
OPENER = """#!/usr/bin/python3
import json, os, sys
with open({record!r}, "a") as record:
    record.write(json.dumps({{"program": {name!r}, "arguments": [os.fsencode(word).decode("latin-1")
        for word in sys.argv[1:]], "uid": os.getuid(), "gid": os.getgid(), "groups": os.getgroups(),
        "environment": dict(os.environ)}}) + "\\n")
sys.exit({status})
"""


class Desk:
    def __init__(self, folder: Path) -> None:
        self.folder = folder
        self.share = folder / "share"
        self.programs = folder / "bin"
        self.sessions = folder / "run" / "user"
        self.record = folder / "record"
        self.environment = {"PATH": str(self.programs), "HOME": str(folder / "home")}
        # Another user has to reach all this.
        for above in (folder, folder.parent, folder.parent.parent):
            above.chmod(0o755)
        self.programs.mkdir()
        self.sessions.mkdir(parents=True)
        self.record.touch()
        self.record.chmod(0o666)
        self.share.mkdir()
        for name in ("webbrowser", "mimeviewer", "opener.sh"):
            shutil.copy(SHARE / name, self.share / name)
        # Sessions of this test in place of the host's.
        parts = self.share / "opener.sh"
        text = parts.read_text()
        assert "/run/user/" in text
        parts.write_text(text.replace("/run/user/", f"{self.sessions}/"))

    def add(self, name: str, status: int = 0) -> None:
        """An opener on the search path that ends with this status."""
        program = self.programs / name
        program.write_text(OPENER.format(record=str(self.record), name=name, status=status))
        program.chmod(0o755)

    def add_tool(self, name: str, script: str = "") -> None:
        """The host's own tool, or a shell script in its place."""
        tool = self.programs / name
        if script:
            tool.write_text(f"#!/bin/sh\n{script}\n")
            tool.chmod(0o755)
        else:
            real = shutil.which(name, path="/usr/sbin:/usr/bin:/sbin:/bin")
            assert real, name
            tool.symlink_to(real)

    def run(self, command: str, *arguments: str, **environment: str) -> subprocess.CompletedProcess:
        return subprocess.run(
            [self.share / command, *arguments], env={**self.environment, **environment}, cwd=self.folder,
            stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=30, check=False)

    def records(self) -> list[dict]:
        return [json.loads(line) for line in self.record.read_text().splitlines()]

    def calls(self) -> list[list[str]]:
        """Program and arguments of each opener that was called."""
        return [[record["program"], *record["arguments"]] for record in self.records()]


@pytest.fixture
def desk(tmp_path: Path) -> Desk:
    return Desk(tmp_path)


@pytest.fixture
def as_root() -> None:
    """For tests that have to become another user."""
    if not other_users_exist():
        pytest.skip("needs root and other users")
