# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database."""

from __future__ import annotations

import os
from typing import ContextManager, List

import dnf.conf
import dnf.transaction
import libdnf.transaction as lt

from ..history import Layout, usable
from ..messages import unheard

LAYOUT = Layout(
    "select id, dt_begin, cmdline, state from trans order by id desc limit 1",
    "select name, epoch, version, release, arch, action from trans_item join rpm using (item_id) where trans_id = ?",
    lt.TransactionState_UNKNOWN,
    tuple(dnf.transaction.FORWARD_ACTIONS),
    tuple(dnf.transaction.BACKWARD_ACTIONS),
    "select trans.id, dt_begin, user_id, cmdline, action, epoch, version, release from trans_item join rpm using (item_id) "
    "join trans on trans.id = trans_id where name = ? and arch = ? order by trans.id desc, trans_item.id desc",
    lt.TransactionItemAction_INSTALL,
)


def history_path(directory: str) -> str:
    return os.path.join(directory, "history.sqlite")


def usable_history(conf: dnf.conf.MainConf) -> ContextManager[None]:
    """See `backend.Library`."""
    path = history_path(conf.persistdir)

    def make() -> None:
        with unheard():
            lt.Swdb(path)

    def told_of(text: str) -> List[str]:
        first, *rest = text.split("\n")
        # The path stands before the cause.
        return [first.rpartition('": ')[2], *rest] if path in first else []

    return usable(path, make, told_of)
