# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database."""

from __future__ import annotations

import contextlib
import os
from typing import Iterator

import dnf.conf
import dnf.transaction
import libdnf.transaction as lt

from ..errors import YumBaseError
from ..history import Layout, fault, remove_useless, told
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


@contextlib.contextmanager
def usable_history(conf: dnf.conf.MainConf) -> Iterator[None]:
    """Lets a block use the history, which is made if there is none. YumBaseError where it cannot be used, which dnf
    would find out late and tell several times; also when that fails in the block. One that was made for nothing, since
    there was no room for more, is removed again."""
    path = history_path(conf.persistdir)
    existed = os.path.exists(path)
    made_for_nothing = not existed
    try:
        if not existed:
            _make(path)
        cause = fault(path)
        if cause is not None:
            raise YumBaseError(told(path, cause, existed))
        try:
            yield
            made_for_nothing = False
        except (YumBaseError, *FAILURES) as error:
            first, *rest = str(error).split("\n")
            if path not in first:
                raise
            raise YumBaseError("\n".join([told(path, _cause(first), False), *rest])) from error
    finally:
        if made_for_nothing:
            remove_useless(path)


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
