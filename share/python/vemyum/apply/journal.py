# SPDX-License-Identifier: GPL-2.0-or-later
"""The running transaction on the disk: for a program that starts while the process which works has no window, and
for the one that starts after a transaction was cut off.

A file beside the lock of the rpm database, lines as `messages` has them: `Begun`, an `Event` for each element that
begins, and `Ended`. It is removed once somebody has heard the end.
"""

from __future__ import annotations

import contextlib
import os
import time
from typing import BinaryIO, Iterator, Optional

from .. import host, processes, stop
from ..backend import Settings
from ..errors import os_error_text
from ..root import as_configured
from ..texts import _
from .messages import DONE, Begun, Ended, Event, Message, ProtocolError, from_line, to_line

_NAME = "vem-transaction"
_POLL = 0.1
"""Seconds between two looks at what has been added."""


def journal_path(settings: Settings) -> str:
    return os.path.join(settings.persistent_directory, _NAME)


class Journal:
    """Written by the process that works. A disk that takes no more ends the journal, not the transaction."""

    def __init__(self, settings: Settings, begun: Begun) -> None:
        self._path = journal_path(settings)
        self._file: Optional[int] = None
        self._ordinal = 0
        with self._best_effort():
            # Opened here once: while rpm works below another root there is no such path.
            flags = os.O_WRONLY | os.O_CREAT | os.O_TRUNC | os.O_CLOEXEC
            self._file = os.open(self._path, flags, 0o600)
        self._write(begun)
        with self._best_effort():
            if self._file is not None:
                # A machine that stops in the middle of it shall know what it was about.
                os.fsync(self._file)

    def event(self, event: Event) -> None:
        if event.ordinal != self._ordinal:
            self._ordinal = event.ordinal
            self._write(event)

    def end(self, ended: Ended) -> None:
        """The transaction is over, and nobody heard it."""
        self._write(ended)
        if self._file is None:
            # Without its end it would tell of a transaction that was cut off.
            self.remove()

    def remove(self) -> None:
        """The transaction is over, and the program knows."""
        with contextlib.suppress(OSError):
            os.unlink(self._path)

    def _write(self, message: Message) -> None:
        with self._best_effort():
            if self._file is None:
                return
            before = os.lseek(self._file, 0, os.SEEK_CUR)
            line = to_line(message)
            try:
                while line:
                    line = line[os.write(self._file, line) :]
            except OSError:
                # Whole lines only.
                os.ftruncate(self._file, before)
                raise

    @contextlib.contextmanager
    def _best_effort(self) -> Iterator[None]:
        try:
            yield
        except OSError as error:
            if self._file is not None:
                os.close(self._file)
                self._file = None
            if error.filename is None:
                error.filename = self._path
            cause = as_configured(os_error_text(error))
            host.log(
                host.LEVEL_DEBUG, _("The journal of the transaction cannot be written: {cause}").format(cause=cause)
            )


class Reader:
    """Read by a program that starts. Owns the file."""

    def __init__(self, file: BinaryIO, begun: Begun) -> None:
        self._file = file
        self.begun = begun

    @property
    def at_work(self) -> bool:
        """Whether the process that works does so still."""
        return processes.lives(self.begun.pid) and processes.start_of(self.begun.pid) == self.begun.start

    def follow(self) -> Iterator[Message]:
        """What has been written and is being written, up to the end of the transaction or of the process. Stopped."""
        line = b""
        while True:
            stop.check()
            at_work = self.at_work
            for part in self._file:
                line += part
                if line.endswith(b"\n"):
                    with contextlib.suppress(ProtocolError):
                        yield from_line(line)
                    line = b""
            if not at_work:
                return
            time.sleep(_POLL)

    def close(self) -> None:
        self._file.close()


def open_journal(settings: Settings) -> Optional[Reader]:
    """The journal that lies there; None without one that can be understood."""
    try:
        file = open(journal_path(settings), "rb")
    except OSError:
        return None
    try:
        begun = from_line(file.readline())
    except (OSError, ProtocolError):
        begun = None
    if isinstance(begun, Begun):
        return Reader(file, begun)
    file.close()
    return None


def await_transaction(settings: Settings) -> None:
    """Where a transaction is at work whose program is gone: says so, and shows it up to its end.

    One of a program that is there is left to it. Any thread; sleeps without the interpreter lock. Stopped.
    """
    reader = open_journal(settings)
    if reader is None:
        return
    with contextlib.closing(reader):
        if not reader.at_work or processes.parent(reader.begun.pid) == reader.begun.program:
            return
        host.log(
            host.LEVEL_NOTICE,
            _("A transaction is at work, process {pid} does it: this program goes on when it has ended.").format(
                pid=reader.begun.pid
            ),
        )
        host.transaction_init(True)
        for message in reader.follow():
            if isinstance(message, Event):
                host.transaction_event(
                    message.name, message.code, message.done, message.total, message.ordinal, message.count
                )


def tell_last(settings: Settings) -> str:
    """Tells once how a transaction ended that nobody listened to; gives what is to be told of one that failed. To be
    called by who holds the lock."""
    failure = ""
    reader = open_journal(settings)
    if reader is None:
        return failure
    with contextlib.closing(reader):
        if reader.at_work:
            return failure
        heard = list(reader.follow())
        changes = ", ".join(sorted({change.name for change in reader.begun.changes}))
        if not heard or not isinstance(heard[-1], Ended):
            host.errorlog(
                host.LEVEL_ERROR,
                _("A transaction was cut off, and may be done in part. It was about: {packages}").format(
                    packages=changes
                ),
            )
        elif heard[-1].outcome == DONE:
            host.log(
                host.LEVEL_NOTICE,
                _("A transaction whose window was gone has come to its end: {packages}").format(packages=changes),
            )
        else:
            failure = _("A transaction whose window was gone has failed: {cause}").format(cause=heard[-1].text)
            host.errorlog(host.LEVEL_ERROR, failure)
    with contextlib.suppress(OSError):
        os.unlink(journal_path(settings))
    return failure
