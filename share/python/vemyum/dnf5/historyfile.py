# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history database: looked at before anything rests on it, and never left half made by a full disk."""

from __future__ import annotations

import contextlib
import os
import re
import sqlite3
import urllib.parse
from typing import Iterator, Optional

import libdnf5.base

from ..errors import YumBaseError
from ..root import as_configured, below
from ..space import scarce_space
from ..texts import _
from .failures import FAILURES, words
from .settings import Settings

_NAME = "transaction_history.sqlite"
_BESIDE = ("", "-wal", "-shm", "-journal")
"""What SQLite puts beside a database."""


_ABOUT_HISTORY = re.compile(r"\bSQL")
_STATEMENT = re.compile(r'(\bSQL\b[^"]*?): ".*"', re.S)
"""What the library quotes of its own, a hundred lines at times."""


def history_path(settings: Settings) -> str:
    """The managed system's, whoever looks at it. The library's failures."""
    library = libdnf5.base.Base()
    settings.load_into(library)
    config = library.get_config()
    return os.path.join(below(settings.root, config.transaction_history_dir or config.system_state_dir), _NAME)


def open_history(path: str, mode: str) -> sqlite3.Connection:
    """`mode` is SQLite's: "ro" or "rw", with more of its parameters. sqlite3.Error."""
    return sqlite3.connect(f"file:{urllib.parse.quote(path)}?mode={mode}", uri=True)


@contextlib.contextmanager
def usable_history(settings: Settings) -> Iterator[None]:
    """Lets a block use the history, which the library makes if there is none. YumBaseError where it cannot be used;
    also when that fails in the block. One that was made for nothing, since there was no room for more, is removed
    again."""
    path = history_path(settings)
    existed = os.path.exists(path)
    made_for_nothing = not existed
    try:
        fault = _fault(path) if existed else None
        if fault is not None:
            raise YumBaseError(_told(path, fault, True))
        try:
            yield
            made_for_nothing = False
        except (YumBaseError, *FAILURES) as error:
            # The library doesn't name the file.
            text = _STATEMENT.sub(r"\1", words(error))
            fault = _fault(path) if os.path.exists(path) else None
            about_history = _ABOUT_HISTORY.search(text) is not None
            if fault is None and not about_history:
                raise
            lines = [_told(path, fault or text, False), *([] if about_history else [text])]
            raise YumBaseError("\n".join(lines)) from error
    finally:
        if made_for_nothing and os.path.exists(path) and _fault(path) is not None and not _holds_anything(path):
            for ending in _BESIDE:
                with contextlib.suppress(OSError):
                    os.unlink(path + ending)


def _holds_anything(path: str) -> bool:
    """Whether there is an entry; where nobody can tell, there may be one."""
    try:
        # Else SQLite wants room for what it puts beside it.
        alone = not os.path.exists(path + "-wal") or os.path.getsize(path + "-wal") == 0
        with contextlib.closing(open_history(path, "ro&immutable=1" if alone else "ro")) as database:
            return database.execute("select count(*) from trans").fetchone() != (0,)
    except sqlite3.Error as error:
        return "no such table" not in str(error)


def _told(path: str, fault: str, anew: bool) -> str:
    told = _("The history of transactions, {file}, cannot be used: {fault}")
    lines = [told.format(file=as_configured(path), fault=fault)]
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
