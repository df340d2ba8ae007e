# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database."""

from __future__ import annotations

import os
from typing import ContextManager, List, Optional

import dnf.conf
import dnf.transaction
import libdnf.transaction as lt

from ..errors import YumBaseError
from ..history import Layout, told, usable
from ..messages import unheard
from ..root import as_configured
from ..space import scarce_space
from ..texts import _
from .exceptions import FAILURES

LAYOUT = Layout(
    "select id, dt_begin, cmdline, state from trans order by id desc limit 1",
    "select name, epoch, version, release, arch, action from trans_item join rpm using (item_id) where trans_id = ?",
    lt.TransactionState_UNKNOWN,
    tuple(dnf.transaction.FORWARD_ACTIONS),
    tuple(dnf.transaction.BACKWARD_ACTIONS),
)


def history_path(directory: str) -> str:
    return os.path.join(directory, "history.sqlite")


def usable_history(conf: dnf.conf.MainConf) -> ContextManager[None]:
    """See `history.usable`. dnf would tell several times what is wrong."""
    path = history_path(conf.persistdir)

    def told_by(error: Exception) -> Optional[List[str]]:
        first, *rest = str(error).split("\n")
        return [told(path, _cause(first), False), *rest] if path in first else None

    return usable(path, lambda: _make(path), told_by)


def _make(path: str) -> None:
    with unheard():
        try:
            lt.Swdb(path)
        except FAILURES as error:
            words = _("The history of transactions, {file}, cannot be made.").format(file=as_configured(path))
            # On a full disk the library finds that there is no error.
            causes = scarce_space(os.path.dirname(path)) or [_cause(str(error))]
            raise YumBaseError("\n".join([words, *causes])) from error


def _cause(text: str) -> str:
    """The library's words without the path, which stands before."""
    return text.rpartition('": ')[2]
