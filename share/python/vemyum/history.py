# SPDX-License-Identifier: GPL-2.0-or-later
"""A library's history of transactions, a database of SQLite: looked at before anything rests on it, and never left half
made by a full disk.

Only looked at: the libraries' own classes would make one where there is none, and bring an old one up to date.
"""

from __future__ import annotations

import contextlib
import os
import sqlite3
import urllib.parse
from typing import Callable, Iterator, List, Optional

from .errors import FAILURES, YumBaseError, words
from .root import as_configured
from .space import scarce_space
from .texts import _

_BESIDE = ("", "-wal", "-shm", "-journal")
"""What SQLite puts beside a database."""


@contextlib.contextmanager
def usable(path: str, make: Callable[[], None], told_of: Callable[[str], List[str]]) -> Iterator[None]:
    """Lets a block use the history at that path, which `make` makes if there is none. YumBaseError where it cannot be
    used, which a library would find out late; also when that fails in the block. One that was made for nothing, since
    there was no room for more, is removed again.

    `told_of` is given the text of a failure in the block, and gives that of the history first and then the other lines;
    nothing where it is about something else.
    """
    existed = os.path.exists(path)
    made_for_nothing = not existed
    try:
        if not existed:
            _make(path, make, told_of)
        cause = fault(path)
        if cause is not None:
            raise YumBaseError(_told(path, cause, existed))
        try:
            yield
            made_for_nothing = False
        except FAILURES as error:
            found = told_of(words(error))
            if not found:
                raise
            raise YumBaseError("\n".join([_told(path, found[0], False), *found[1:]])) from error
    finally:
        if made_for_nothing:
            _remove_useless(path)


def _make(path: str, make: Callable[[], None], told_of: Callable[[str], List[str]]) -> None:
    try:
        make()
    except FAILURES as error:
        text = _("The history of transactions, {file}, cannot be made.").format(file=as_configured(path))
        # On a full disk a library may find that there is no error.
        causes = scarce_space(os.path.dirname(path)) or told_of(words(error)) or [words(error)]
        raise YumBaseError("\n".join([text, *causes])) from error


def fault(path: str) -> Optional[str]:
    """Why nothing can be written into a history; None where it can."""
    try:
        # SQLite would open what it may only read for just that.
        with open(path, "r+b"), contextlib.closing(_opened(path, "rw")) as database:
            database.execute("begin immediate")
            database.execute("select count(*) from config")
            database.rollback()
    except sqlite3.Error as error:
        return str(error)
    except OSError as error:
        return error.strerror or str(error)
    return None


def _told(path: str, cause: str, anew: bool) -> str:
    """That a history cannot be used; `anew` for one that one could do without."""
    template = _("The history of transactions, {file}, cannot be used: {fault}")
    lines = [template.format(file=as_configured(path), fault=cause)]
    space = scarce_space(os.path.dirname(path))
    # Somebody works with one that is locked.
    if anew and not space and "locked" not in cause and os.access(path, os.W_OK):
        lines.append(_("Move it elsewhere, and it is made anew."))
    return "\n".join(lines + space)


def _remove_useless(path: str) -> None:
    """Removes one that cannot be used and holds nothing: it was made when there was no room for more."""
    if os.path.exists(path) and fault(path) is not None and not _holds_anything(path):
        for ending in _BESIDE:
            with contextlib.suppress(OSError):
                os.unlink(path + ending)


def _holds_anything(path: str) -> bool:
    """Whether there is an entry; where nobody can tell, there may be one."""
    try:
        with contextlib.closing(readable(path)) as database:
            return database.execute("select count(*) from trans").fetchone() != (0,)
    except sqlite3.Error as error:
        return "no such table" not in str(error)


def readable(path: str) -> sqlite3.Connection:
    """For whoever only looks, may write nothing there, or has no room. sqlite3.Error."""
    # Else SQLite wants to put something beside it.
    alone = not os.path.exists(path + "-wal") or os.path.getsize(path + "-wal") == 0
    return _opened(path, "ro&immutable=1" if alone else "ro")


def _opened(path: str, mode: str) -> sqlite3.Connection:
    """`mode` is SQLite's: "ro" or "rw", with more of its parameters. sqlite3.Error."""
    return sqlite3.connect(f"file:{urllib.parse.quote(path)}?mode={mode}", uri=True)
