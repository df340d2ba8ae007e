# SPDX-License-Identifier: GPL-2.0-or-later
"""The command line of the library that the tests run on, on an estate: for comparison, and for what others do."""

from __future__ import annotations

import shutil
import subprocess
import sys
from typing import List

import pytest

from libraries import by_library
from rpmestate import Estate


def command_line(estate: Estate, *words: str, check: bool = True) -> str:
    """What it says with these words, which agree to everything."""
    done = subprocess.run(
        [*_command(estate), *words],
        env={**estate.command_environment(), "LC_ALL": "C.UTF-8"},
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        encoding="utf-8",
        check=False,
    )
    assert done.returncode == 0 or not check, done.stdout
    return done.stdout


def require_groups() -> None:
    """Skips a test whose command line ends by a signal as soon as it looks at a group: dnf 4's parser of groups does so
    as some releases have built it (Debian 13)."""
    look = "import libcomps; comps = libcomps.Comps(); comps.fromxml_str(%r); print([one.id for one in comps.groups])"
    looked = subprocess.run(
        [sys.executable, "-W", "ignore", "-c", look % "<comps><group><id>light</id></group></comps>"],
        stdout=subprocess.PIPE,
        check=False,
    )
    if by_library(looked.stdout != b"['light']\n", False):
        pytest.skip("the groups of this release's command line are broken")


def _command(estate: Estate) -> List[str]:
    root = estate.root
    cache = root / "var/cache/command"
    # It takes a repository that was made anew within a second for the same.
    shutil.rmtree(cache, ignore_errors=True)
    where = [f"--installroot={root}", f"--config={root}/etc/yum.conf", f"--setopt=reposdir={root}/etc/yum.repos.d"]
    # dnf 4 puts the root before the folder.
    dnf4 = ["--releasever=1", "--setopt=cachedir=/var/cache/command", "--noplugins"]
    dnf5 = ["--use-host-config", f"--setopt=cachedir={cache}", f"--setopt=system_cachedir={cache}", "--no-plugins"]
    return [by_library("dnf", "dnf5"), *where, "--assumeyes", *by_library(dnf4, dnf5)]
