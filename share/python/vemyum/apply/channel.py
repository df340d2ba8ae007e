# SPDX-License-Identifier: GPL-2.0-or-later
"""The connection between the two processes of an apply."""

from __future__ import annotations

import socket
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
            self._try(socket.MSG_DONTWAIT)
            if self._pending:
                return
        self._pending += to_line(message)
        self._try(socket.MSG_DONTWAIT)

    def flush(self) -> None:
        """Waits until the other end has taken everything, or is gone."""
        self._try(0)

    def _try(self, flags: int) -> None:
        while self._pending and not self._gone:
            try:
                sent = self._socket.send(self._pending, flags | socket.MSG_NOSIGNAL)
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
