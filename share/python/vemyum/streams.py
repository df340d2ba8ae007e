# SPDX-License-Identifier: GPL-2.0-or-later
"""Stand-ins for sys.stdout and sys.stderr: what Python prints goes to the engine's log."""

from __future__ import annotations

import io
import sys
from typing import Any, Callable

from . import host


class _Bytes(io.RawIOBase):
    """The `buffer` of a stream, for code that prints bytes."""

    def __init__(self, stream: "HostStream") -> None:
        self._stream = stream

    def writable(self) -> bool:
        return True

    def write(self, data: Any) -> int:
        self._stream.write(bytes(data).decode("utf-8", "replace"))
        return len(data)


class HostStream(io.TextIOBase):
    """A text stream whose `write` calls a host function.

    `fileno` is the descriptor of the process, so that programs started by Python write where the
    process itself does; the engine captures that separately.
    """

    def __init__(self, write: Callable[[str], None], name: str, descriptor: int) -> None:
        self._write = write
        self._descriptor = descriptor
        self.name = name
        self.mode = "w"
        self.buffer = _Bytes(self)

    @property
    def encoding(self) -> str:  # type: ignore[override]
        return "utf-8"

    @property
    def errors(self) -> str:  # type: ignore[override]
        return "replace"

    def write(self, text: Any) -> int:
        """Sends the text on at once; returns its length."""
        if not isinstance(text, str):
            text = bytes(text).decode("utf-8", "replace")
        if text:
            self._write(text)
        return len(text)

    def writable(self) -> bool:
        return True

    def readable(self) -> bool:
        return False

    def flush(self) -> None:
        """Nothing is held back here."""

    def close(self) -> None:
        """Stays open: the log takes lines as long as the process lives."""

    def isatty(self) -> bool:
        return False

    def fileno(self) -> int:
        return self._descriptor


def replace_streams() -> None:
    """Puts the stand-ins into `sys`. The engine puts the originals back when it ends."""
    sys.stdout = HostStream(host.stdout_write, "<stdout>", 1)
    sys.stderr = HostStream(host.stderr_write, "<stderr>", 2)
