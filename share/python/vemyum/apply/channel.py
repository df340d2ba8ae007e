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


class Channel:
    """One end. Owns the socket. One thread sends, one receives."""

    def __init__(self, connection: socket.socket) -> None:
        self._socket = connection
        self._lines = connection.makefile("rb")
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
        try:
            line = self._lines.readline(_LONGEST_LINE)
        except OSError:
            # A reset connection: the other end has died with lines unread.
            return None
        if not line:
            return None
        if line.endswith(b"\n") or len(line) == _LONGEST_LINE:
            return from_line(line)
        # The end came in the middle of a line.
        return None

    def close(self) -> None:
        self._lines.close()
        self._socket.close()
