# SPDX-License-Identifier: GPL-2.0-or-later
"""An entry of the history that has no end."""

from __future__ import annotations

import contextlib
import sqlite3
import subprocess
from pathlib import Path
from typing import Any, Callable

import pytest
from catalogue import Catalogue
from reading import opened  # noqa: F401 - a fixture
from rpmestate import Estate


@pytest.fixture
def history(estate: Estate, rpms: Catalogue) -> Path:
    """Of a transaction that the command line has done: newlamp replaces oldlamp, lib is updated."""
    estate.install(rpms.some("oldlamp-1.0", "lib-1.0", "clock-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0", "lib-2.0"))
    command = ["dnf5", f"--installroot={estate.root}", f"--config={estate.root}/etc/yum.conf", "--assumeyes"]
    command += [f"--setopt=reposdir={estate.root}/etc/yum.repos.d", "--setopt=plugins=0"]
    command += [f"--setopt=cachedir={estate.root}/tmp/cache", f"--setopt=system_cachedir={estate.root}/tmp/cache"]
    subprocess.run([*command, "upgrade"], check=True, capture_output=True)
    subprocess.run([*command, "remove", "clock"], check=True, capture_output=True)
    (path,) = estate.root.rglob("transaction_history.sqlite")
    return path


def change(history: Path, statement: str) -> None:
    with contextlib.closing(sqlite3.connect(history)) as database, database:
        database.execute(statement)


def test_history_with_an_end_has_no_open_entry(
    estate: Estate, history: Path, opened: Callable[..., Any]  # noqa: F811
) -> None:
    assert opened().open_entry() is None
    # Only the last one counts.
    change(history, "update trans set state_id = 1, dt_end = null where id = 1")
    assert opened().open_entry() is None


def test_open_entry_tells_what_was_to_be_done(
    estate: Estate, history: Path, opened: Callable[..., Any]  # noqa: F811
) -> None:
    change(history, "delete from trans_item where trans_id = 2")
    change(history, "delete from trans where id = 2")
    change(history, "update trans set state_id = 1, dt_end = null where id = 1")
    entry = opened().open_entry()
    assert entry.number == 1 and entry.begun > 1_000_000_000 and "dnf5" in entry.command
    assert entry.incoming == {("newlamp", "0:1.0-1", "noarch"), ("lib", "0:2.0-1", "noarch")}
    assert entry.outgoing == {("oldlamp", "0:1.0-1", "noarch"), ("lib", "0:1.0-1", "noarch")}


def test_epoch_is_told(estate: Estate, history: Path, opened: Callable[..., Any]) -> None:  # noqa: F811
    change(history, "update trans set state_id = 1, dt_end = null where id = 2")
    assert opened().open_entry().outgoing == {("clock", "3:1.0-1", "noarch")}


@pytest.mark.parametrize("content", [b"", b"garbage" * 100])
def test_history_that_cannot_be_read_has_none(
    estate: Estate, history: Path, opened: Callable[..., Any], content: bytes  # noqa: F811
) -> None:
    for file in history.parent.glob(history.name + "*"):
        file.unlink()
    assert opened().open_entry() is None
    # Nor is one made.
    assert not history.exists()
    history.write_bytes(content)
    assert opened().open_entry() is None
