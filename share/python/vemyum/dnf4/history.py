# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database."""

from __future__ import annotations

import os
from typing import ContextManager, List

import dnf.conf
import libdnf.transaction as lt

from ..apply.messages import DOWNGRADE, INSTALL, OBSOLETED, REINSTALL, REMOVE, REPLACED, UPGRADE
from ..history import usable
from ..messages import unheard
from ..transactions import DONE, FAILED, OPEN, REASON, Layout, Records
from .configuration import Settings

LAYOUT = Layout(
    heads="select trans.id, dt_begin, dt_end, user_id, cmdline, comment, state from trans",
    packages="select trans_id, rpm.name as package, epoch, version, release, rpm.arch as architecture, action, reason, "
    "repoid, state from trans_item join rpm using (item_id) left join repo on repo.id = repo_id",
    counts="select trans_id, action, count(*) from trans_item group by trans_id, action",
    groups="select trans_id, groupid, name, action, 0 from trans_item join comps_group using (item_id) union all "
    "select trans_id, environmentid, name, action, 1 from trans_item join comps_environment using (item_id)",
    output="select file_descriptor, line from console_output where trans_id = ? order by id",
    known="select item_id, name, epoch, version, release, arch from rpm",
    results={lt.TransactionState_UNKNOWN: OPEN, lt.TransactionState_DONE: DONE, lt.TransactionState_ERROR: FAILED},
    actions={
        lt.TransactionItemAction_INSTALL: INSTALL,
        lt.TransactionItemAction_OBSOLETE: INSTALL,
        lt.TransactionItemAction_UPGRADE: UPGRADE,
        lt.TransactionItemAction_DOWNGRADE: DOWNGRADE,
        lt.TransactionItemAction_REINSTALL: REINSTALL,
        lt.TransactionItemAction_REMOVE: REMOVE,
        lt.TransactionItemAction_OBSOLETED: OBSOLETED,
        lt.TransactionItemAction_UPGRADED: REPLACED,
        lt.TransactionItemAction_DOWNGRADED: REPLACED,
        lt.TransactionItemAction_REINSTALLED: REPLACED,
        lt.TransactionItemAction_REASON_CHANGE: REASON,
    },
    reasons={
        lt.TransactionItemReason_DEPENDENCY: "dependency",
        lt.TransactionItemReason_USER: "user",
        lt.TransactionItemReason_CLEAN: "clean",
        lt.TransactionItemReason_WEAK_DEPENDENCY: "weak",
        lt.TransactionItemReason_GROUP: "group",
    },
    states={lt.TransactionItemState_DONE: DONE, lt.TransactionItemState_ERROR: FAILED},
)


def history_path(directory: str) -> str:
    return os.path.join(directory, "history.sqlite")


def records(settings: Settings) -> Records:
    """See `backend.Library`."""
    return Records(history_path(settings.system_persistent_directory), LAYOUT)


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
