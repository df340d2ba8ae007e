#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""as_nobody.py TEST-FILE: runs an end-to-end test as a user without rights, on a system that belongs to root.

The test's `make_systems` is called by root, with a new folder; the test finds that folder in VEM_SYSTEMS. Program,
share directory and tests are copied to where that user can read them. Ends with the test's status, or with 77
where there are no other users.
"""
from __future__ import annotations

import importlib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
TOP = HERE.parents[1]
sys.path[:0] = [str(HERE), str(TOP / "estate")]
sys.path.append(str(TOP / "tests/python"))

from users import NOBODY, other_users_exist  # noqa: E402

SKIPPED = 77


def run(test: str, folder: Path) -> int:
    folder.chmod(0o755)
    copy = folder / "copy"
    for part in ("tests/e2e", "tests/python", "estate", "tools"):
        shutil.copytree(TOP / part, copy / part, ignore=shutil.ignore_patterns("__pycache__"))
    shutil.copytree(os.environ["VEMSHARE"], copy / "share")
    shutil.copy(os.environ["VEM_PROGRAM"], copy / "vem")
    systems = folder / "systems"
    systems.mkdir()
    importlib.import_module(test).make_systems(systems)
    home = folder / "home"
    home.mkdir()
    os.chown(home, NOBODY, NOBODY)

    # The display's server would make it its user's own.
    sockets = Path("/tmp/.X11-unix")
    if not sockets.exists():
        sockets.mkdir()
        sockets.chmod(0o1777)

    kept = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "DBUS_", "VEM"))}
    environment = {
        **kept,
        "HOME": str(home),
        "VEM_PROGRAM": str(copy / "vem"),
        "VEMSHARE": str(copy / "share"),
        "VEM_SYSTEMS": str(systems),
    }
    for name in ("VEM_SCREEN", "VEM_SHOTS", "VEMBACKEND"):
        if name in os.environ:
            environment[name] = os.environ[name]
    command = [sys.executable, "-B", "-m", "pytest", "-p", "no:cacheprovider", "-q", "--basetemp", str(home / "tmp")]
    return subprocess.run(
        [str(copy / "tools/on-virtual-display"), *command, str(copy / "tests/e2e" / f"{test}.py")],
        cwd="/", env=environment, user=NOBODY, group=NOBODY, extra_groups=[], check=False,
    ).returncode


def main() -> int:
    if not other_users_exist():
        print("Needs root and other users.")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="vem-nobody-") as folder:
        return run(Path(sys.argv[1]).stem, Path(folder))


if __name__ == "__main__":
    raise SystemExit(main())
