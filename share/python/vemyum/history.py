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
from typing import Callable, Collection, Iterator, List, NamedTuple, Optional, Set, Tuple, Union

from .backend import OpenEntry, PutIn
from .errors import FAILURES, YumBaseError, words
from .root import as_configured
from .space import scarce_space
from .texts import _

_BESIDE = ("", "-wal", "-shm", "-journal")
"""What SQLite puts beside a database."""

_Code = Union[int, str]


class Layout(NamedTuple):
    """How a library writes it down."""

    last: str
    """Asks for number, beginning, command and state of the last transaction."""
    items: str
    """Asks, for a number, for name, epoch, version, release, architecture and action of what was to be done."""
    begun: _Code
    """The state of a transaction without an end."""
    incoming: Collection[_Code]
    outgoing: Collection[_Code]
    """Actions."""
    about: str
    """Asks, for a name and an architecture, for number, beginning, user, command, action, epoch, version and release,
    the latest first."""
    first: _Code
    """The action by which something comes that wasn't there."""


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


def open_entry(path: str, layout: Layout) -> Optional[OpenEntry]:
    """The last entry if it has no end; None for a history that cannot be read: whoever wants to write into that is told
    then."""
    with contextlib.suppress(sqlite3.Error), contextlib.closing(_opened(path, "ro")) as database:
        database.text_factory = lambda content: content.decode("utf-8", "replace")
        last = database.execute(layout.last).fetchone()
        if last is None or last[3] != layout.begun:
            return None
        incoming: Set[Tuple[str, str, str]] = set()
        outgoing: Set[Tuple[str, str, str]] = set()
        for name, epoch, version, release, arch, action in database.execute(layout.items, last[:1]):
            package = (name, f"{epoch}:{version}-{release}", arch)
            if action in layout.incoming:
                incoming.add(package)
            elif action in layout.outgoing:
                outgoing.add(package)
        return OpenEntry(last[0], last[1] or 0, last[2] or "", incoming, outgoing - incoming)
    return None


def put_in(path: str, layout: Layout, name: str, arch: str) -> List[PutIn]:
    """See `backend.System`."""
    with contextlib.suppress(sqlite3.Error), contextlib.closing(_readable(path)) as database:
        database.text_factory = lambda content: content.decode("utf-8", "replace")
        return [
            PutIn(number, begun or 0, user, command or "", f"{epoch or 0}:{version}-{release}", action == layout.first)
            for number, begun, user, command, action, epoch, version, release in database.execute(
                layout.about, (name, arch)
            )
            if action in layout.incoming
        ]
    return []


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
        with contextlib.closing(_readable(path)) as database:
            return database.execute("select count(*) from trans").fetchone() != (0,)
    except sqlite3.Error as error:
        return "no such table" not in str(error)


def _readable(path: str) -> sqlite3.Connection:
    """For whoever may write nothing there, or has no room. sqlite3.Error."""
    # Else SQLite wants to put something beside it.
    alone = not os.path.exists(path + "-wal") or os.path.getsize(path + "-wal") == 0
    return _opened(path, "ro&immutable=1" if alone else "ro")


def _opened(path: str, mode: str) -> sqlite3.Connection:
    """`mode` is SQLite's: "ro" or "rw", with more of its parameters. sqlite3.Error."""
    return sqlite3.connect(f"file:{urllib.parse.quote(path)}?mode={mode}", uri=True)
