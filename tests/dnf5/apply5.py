# SPDX-License-Identifier: GPL-2.0-or-later
"""One apply in the process of the test, and the same by the command line on a twin of the root."""

from __future__ import annotations

import re
import shutil
import subprocess
from pathlib import Path
from typing import Any, Callable, Dict, List, Sequence

import rpm
from rpmestate import Estate

STATE = "usr/lib/sysimage/libdnf5"


def wish(path: Path, repository: str) -> Any:
    """A mark on the package of this file."""
    from vemyum.apply.messages import Wish

    transaction = rpm.TransactionSet()
    transaction.setVSFlags(-1)
    with open(path, "rb") as file:
        header = transaction.hdrFromFdno(file)
    epoch = f"{header['epoch']}:" if header["epoch"] else ""
    evr = f"{epoch}{header['version']}-{header['release']}"
    return Wish(repository, header["name"], header["arch"], evr)


class Apply:
    """The steps of an apply with a libdnf5 transaction, one after the other. What the table rests on is read first."""

    def __init__(self, incoming: Sequence[Path] = (), removes: Sequence[Path] = (), repository: str = "base") -> None:
        from vemyum.apply.messages import PROTOCOL, Request
        from vemyum.dnf5 import library
        from vemyum.dnf5.system import System

        self.settings = library.read_settings()
        table = System(self.settings, progress=False)
        for repo in table.base.repositories():
            # A repository that a test has made anew is read anew.
            repo.expire()
        table.load()
        self.request = Request(
            PROTOCOL,
            list(table.sections.values()),
            [wish(path, repository) for path in incoming],
            [],
            [wish(path, "@System") for path in removes],
            [],
            0,
            "",
            "vem --test",
            "marked by a test",
        )
        self.transaction = library.open_transaction(self.settings, self.request)
        self.changes: List[Any] = []

    def plan(self) -> List[Any]:
        self.transaction.load()
        self.changes = self.transaction.solve().changes
        return self.changes

    def run(self, begins: Callable[[], None] = lambda: None) -> Any:
        """All of it; gives the transaction."""
        self.plan()
        self.transaction.download()
        self.transaction.check_signatures()
        self.transaction.run(begins)
        return self.transaction


def kinds(changes: Sequence[Any]) -> Dict[str, str]:
    """By name and version what happens; in brackets what nobody asked for."""
    return {f"{one.name}-{one.version}": one.kind if one.asked else f"({one.kind})" for one in changes}


def command_line(estate: Estate, *arguments: str) -> "subprocess.CompletedProcess[str]":
    """`dnf5` on the estate's root."""
    root = estate.root
    # It takes a repository that was made anew within a second for the same.
    shutil.rmtree(root / "var/cache/command", ignore_errors=True)
    command = ["dnf5", "--installroot", str(root), "--use-host-config", "-y", "-c", f"{root}/etc/yum.conf"]
    command += [f"--setopt=reposdir={root}/etc/yum.repos.d", "--setopt=pluginpath=/nowhere", "--setopt=plugins=0"]
    command += [f"--setopt=cachedir={root}/var/cache/command", f"--setopt=system_cachedir={root}/var/cache/command"]
    done = subprocess.run(
        [*command, *arguments], env=estate.command_environment(), stdout=-1, stderr=-2, encoding="utf-8"
    )
    return done


def state(estate: Estate) -> Dict[str, str]:
    """The library's files about the system, without what differs from root to root."""
    folder = estate.root / STATE
    files = sorted(folder.glob("*.toml")) if folder.is_dir() else []
    return {file.name: re.sub(r'rpmdb_cookie = "[0-9a-f]*"', "", file.read_text()) for file in files}


def reasons(estate: Estate) -> Dict[str, str]:
    text = state(estate).get("packages.toml", "")
    return dict(re.findall(r'"([^"]+)" = \{reason = "([^"]+)"\}', text))


