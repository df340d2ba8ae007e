# SPDX-License-Identifier: GPL-2.0-or-later
"""The engine's part of a stop: a descriptor that becomes readable, and signals that wake what waits."""

from __future__ import annotations

import contextlib
import os
import signal
import subprocess
import sys
import time
from pathlib import Path
from typing import Iterator

from program import Program

_WISH = """
import os, signal, sys, time
log, part, descriptor, process, told = sys.argv[1:]
while not (os.path.exists(log) and part in open(log).read()):
    time.sleep(0.02)
# By then whoever asked for it waits.
time.sleep(0.2)
open(told, "w").close()
os.write(int(descriptor), b"!")
for _ in range(100):
    os.kill(int(process), signal.SIGURG)
    time.sleep(0.1)
"""


class Stopper:
    """Whoever holds the interpreter lock must be stopped by another process."""

    def __init__(self, program: Program, folder: Path) -> None:
        self._read, self._write = os.pipe()
        os.set_blocking(self._read, False)
        self._told = folder / "told"
        program.namespace["stopBy"](self._read)

    @contextlib.contextmanager
    def once(self, log: Path, part: str) -> Iterator[None]:
        """The wish comes once the file has this in it, and goes with the block."""
        words = [str(log), part, str(self._write), str(os.getpid()), str(self._told)]
        before = signal.signal(signal.SIGURG, lambda *_: None)
        signal.siginterrupt(signal.SIGURG, False)
        other = subprocess.Popen([sys.executable, "-c", _WISH, *words], pass_fds=(self._write,))
        try:
            yield
        finally:
            other.kill()
            other.wait()
            signal.signal(signal.SIGURG, before)
            self.forget()

    @contextlib.contextmanager
    def at_once(self) -> Iterator[None]:
        self.wish()
        try:
            yield
        finally:
            self.forget()

    def wish(self) -> None:
        os.write(self._write, b"!")

    def forget(self) -> None:
        with contextlib.suppress(BlockingIOError):
            os.read(self._read, 1)

    def seconds(self) -> float:
        """Since the wish was told."""
        return time.time() - self._told.stat().st_mtime

    def close(self) -> None:
        from vemyum import stop

        stop._descriptor = stop._asked = None
        os.close(self._read)
        os.close(self._write)
