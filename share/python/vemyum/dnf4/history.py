# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database: looked at before anything rests on it, and never left half made by a full disk."""

from __future__ import annotations

import contextlib
import os
import sqlite3
import urllib.parse
from typing import Iterator, Optional

import dnf.conf
import libdnf.transaction

from ..errors import YumBaseError
from ..messages import unheard
from ..root import as_configured
from ..space import scarce_space
from ..texts import _
from .exceptions import FAILURES

_NAME = "history.sqlite"
_BESIDE = ("", "-wal", "-shm", "-journal")
"""What SQLite puts beside a database."""


def history_path(directory: str) -> str:
    return os.path.join(directory, _NAME)


def open_history(path: str, mode: str) -> sqlite3.Connection:
    """`mode` is SQLite's: "ro" or "rw". sqlite3.Error."""
    return sqlite3.connect(f"file:{urllib.parse.quote(path)}?mode={mode}", uri=True)


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
        fault = _fault(path)
        if fault is not None:
            raise YumBaseError(_told(path, fault, existed))
        try:
            yield
            made_for_nothing = False
        except (YumBaseError, *FAILURES) as error:
            first, *rest = str(error).split("\n")
            if path not in first:
                raise
            raise YumBaseError("\n".join([_told(path, _cause(first), False), *rest])) from error
    finally:
        if made_for_nothing and os.path.exists(path) and _fault(path) is not None and not _holds_anything(path):
            for ending in _BESIDE:
                with contextlib.suppress(OSError):
                    os.unlink(path + ending)


def _holds_anything(path: str) -> bool:
    """Whether there is an entry; where nobody can tell, there may be one."""
    try:
        with contextlib.closing(open_history(path, "ro")) as database:
            return database.execute("select count(*) from trans").fetchone() != (0,)
    except sqlite3.Error as error:
        return "no such table" not in str(error)


def _make(path: str) -> None:
    with unheard():
        try:
            libdnf.transaction.Swdb(path)
        except FAILURES as error:
            words = _("The history of transactions, {file}, cannot be made.").format(file=as_configured(path))
            # On a full disk the library finds that there is no error.
            causes = scarce_space(os.path.dirname(path)) or [_cause(str(error))]
            raise YumBaseError("\n".join([words, *causes])) from error


def _cause(text: str) -> str:
    """The library's words without the path, which stands before."""
    return text.rpartition('": ')[2]


def _told(path: str, fault: str, anew: bool) -> str:
    words = _("The history of transactions, {file}, cannot be used: {fault}")
    lines = [words.format(file=as_configured(path), fault=fault)]
    space = scarce_space(os.path.dirname(path))
    # Somebody works with one that is locked.
    if anew and not space and "locked" not in fault and os.access(path, os.W_OK):
        lines.append(_("Move it elsewhere, and it is made anew."))
    return "\n".join(lines + space)


def _fault(path: str) -> Optional[str]:
    """Why nothing can be written into a history; None where it can."""
    try:
        # SQLite would open what it may only read for just that.
        with open(path, "r+b"), contextlib.closing(open_history(path, "rw")) as database:
            database.execute("begin immediate")
            database.execute("select count(*) from config")
            database.rollback()
    except sqlite3.Error as error:
        return str(error)
    except OSError as error:
        return error.strerror or str(error)
    return None
