# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history of transactions, looked at: its own class would make one where there is none, and tells no
state of the things that a transaction was to do."""

from __future__ import annotations

import contextlib
import os
import sqlite3
import urllib.parse
from typing import Optional, Set, Tuple

from ..backend import OpenEntry
from ..root import below
from .base import Base

_NAME = "transaction_history.sqlite"
_OPEN = "Started"
_INCOMING = ("Install", "Upgrade", "Downgrade", "Reinstall")
_OUTGOING = ("Remove", "Replaced")


def history_path(base: Base) -> str:
    """The managed system's, whoever looks at it."""
    return os.path.join(below(base.settings.root, base.config.transaction_history_dir), _NAME)


def open_entry(base: Base) -> Optional[OpenEntry]:
    """The last entry of the history if it has no end; None for a history that cannot be read."""
    address = f"file:{urllib.parse.quote(history_path(base))}?mode=ro"
    with contextlib.suppress(sqlite3.Error), contextlib.closing(sqlite3.connect(address, uri=True)) as database:
        database.text_factory = lambda content: content.decode("utf-8", "replace")
        last = database.execute(
            "select trans.id, dt_begin, description, name from trans join trans_state on trans_state.id = state_id "
            "order by trans.id desc limit 1"
        ).fetchone()
        if last is None or last[3] != _OPEN:
            return None
        incoming: Set[Tuple[str, str, str]] = set()
        outgoing: Set[Tuple[str, str, str]] = set()
        for name, epoch, version, release, arch, action in database.execute(
            "select pkg_name.name, epoch, version, release, arch.name, trans_item_action.name from trans_item "
            "join rpm using (item_id) join pkg_name on pkg_name.id = name_id join arch on arch.id = arch_id "
            "join trans_item_action on trans_item_action.id = action_id where trans_id = ?",
            last[:1],
        ):
            package = (name, f"{epoch}:{version}-{release}", arch)
            if action in _INCOMING:
                incoming.add(package)
            elif action in _OUTGOING:
                outgoing.add(package)
        return OpenEntry(last[0], last[1] or 0, last[2] or "", incoming, outgoing - incoming)
    return None
