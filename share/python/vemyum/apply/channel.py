# SPDX-License-Identifier: GPL-2.0-or-later
"""The connection between the two processes of an apply."""

from __future__ import annotations

import select
import socket
import time
from typing import Optional

from .messages import Message, from_line, to_line

_LONGEST_LINE = 1 << 26
"""More than any list of packages takes, and little enough to be held in memory."""

_PART = 1 << 16


class Channel:
    """One end. Owns the socket. One thread sends, one receives."""

    def __init__(self, connection: socket.socket) -> None:
        self._socket = connection
        self._received = bytearray()
        self._searched = 0
        self._pending = bytearray()
        self._gone = False

    @property
    def gone(self) -> bool:
        """Whether the other end turned out not to listen any more. What is sent then goes nowhere."""
        return self._gone

    def send(self, message: Message, unimportant: bool = False) -> None:
        """Sends without ever waiting for the other end. What it doesn't take at once goes with later messages;
        an unimportant message is then dropped."""
        if unimportant and self._pending:
            self._try()
            if self._pending:
                return
        self._pending += to_line(message)
        self._try()

    def flush(self, seconds: Optional[float] = None) -> None:
        """Waits until the other end has taken everything, or is gone, or the seconds are over."""
        deadline = None if seconds is None else time.monotonic() + seconds
        room = select.poll()
        room.register(self._socket, select.POLLOUT)
        self._try()
        while self._pending:
            left = None if deadline is None else max(0.0, deadline - time.monotonic()) * 1000
            if not room.poll(left):
                return
            self._try()

    def _try(self) -> None:
        while self._pending and not self._gone:
            try:
                sent = self._socket.send(self._pending, socket.MSG_DONTWAIT | socket.MSG_NOSIGNAL)
            except BlockingIOError:
                return
            except OSError:
                self._gone = True
            else:
                del self._pending[:sent]
        if self._gone:
            self._pending.clear()

    def receive(self) -> Optional[Message]:
        """The next message, None when the other end has ended. Waits for it. ProtocolError."""
        while not self._has_line():
            try:
                part = self._socket.recv(_PART)
            except OSError:
                # A reset connection: the other end has died with lines unread.
                return None
            if not part:
                # Be it in the middle of a line.
                return None
            self._received += part
        line = bytes(self._received[: self._searched])
        del self._received[: self._searched]
        self._searched = 0
        return from_line(line)

    def ready(self, also: Optional[int] = None, seconds: Optional[float] = None) -> bool:
        """Waits until the other end has said something or ended, or the descriptor `also` can be read, or the seconds
        are over. Whether it was the other end: `receive` has something then, or the beginning of it."""
        if self._has_line():
            return True
        watched = select.poll()
        watched.register(self._socket, select.POLLIN)
        if also is not None:
            watched.register(also, select.POLLIN)
        found = watched.poll(None if seconds is None else seconds * 1000)
        return any(descriptor == self._socket.fileno() for descriptor, _events in found)

    def _has_line(self) -> bool:
        """Whether a line begins what has been received, which then ends where the search has. One that is too long
        counts as one."""
        end = self._received.find(b"\n", max(self._searched - 1, 0)) + 1
        self._searched = min(end or len(self._received), _LONGEST_LINE)
        return end > 0 or self._searched == _LONGEST_LINE

    def close(self) -> None:
        self._socket.close()
