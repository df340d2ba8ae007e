# SPDX-License-Identifier: GPL-2.0-or-later
"""Keeps the machine from shutting down or going to sleep while rpm works.

logind gives a lock to whoever asks, for as long as a descriptor is open. The command `systemd-inhibit` asks, and
holds it until its own command ends: `cat`, which ends with the pipe that it reads. That pipe closes with this
process at the latest, however it ends, so that the lock never outlives the transaction.
"""

from __future__ import annotations

import contextlib
import os
import select
import signal
import subprocess
import time
from typing import Iterator, Optional

from . import host
from .texts import _

WAIT = 3.0
"""Seconds that a transaction waits at most for the lock, and afterwards for the end of the command."""

_PROOF = b"held\n"
_WHY = _("Packages are being installed, updated or removed")
_COMMAND = (
    "systemd-inhibit",
    "--what=shutdown:sleep",
    "--mode=block",
    "--who=VEM",
    # A bus takes UTF-8 alone, whatever the locale's encoding is.
    f"--why={_WHY}".encode(),
    "cat",
)


@contextlib.contextmanager
def inhibited() -> Iterator[None]:
    """Holds the lock while the block runs, where there is a logind that gives one. Raises nothing of its own.

    To be entered before rpm changes the root directory: the command is this machine's, not the managed system's.
    """
    holder = _obtain()
    try:
        yield
    finally:
        if holder is not None:
            holder.end(WAIT)


def _obtain() -> Optional["_Holder"]:
    try:
        holder = _Holder()
        try:
            holder.await_lock(WAIT)
        except BaseException:
            holder.end(0)
            raise
        return holder
    except (OSError, _NoLock) as error:
        host.log(host.LEVEL_DEBUG, _("Shutdown and sleep are not held off: {cause}").format(cause=error))
        return None


class _NoLock(Exception):
    """The command's words, or ours about it."""


class _Holder:
    """The command at work. Each one is to be ended."""

    def __init__(self) -> None:
        """OSError when it cannot be started."""
        reading, self._writing = os.pipe()
        try:
            # Before there is a reader: a command that ends at once would make it a broken pipe.
            os.write(self._writing, _PROOF)
            # Descriptors 1 and 2 lead into the log during an apply, and what is typed on the terminal, Ctrl+C for
            # one, is not meant for the command: hence pipes and a session of its own.
            self._process = subprocess.Popen(
                _COMMAND, stdin=reading, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True
            )
        except BaseException:
            os.close(self._writing)
            raise
        finally:
            os.close(reading)

    def await_lock(self, seconds: float) -> None:
        """What was written comes back once the lock is held and `cat` runs. _NoLock."""
        assert self._process.stdout is not None
        deadline = time.monotonic() + seconds
        output = select.poll()
        output.register(self._process.stdout, select.POLLIN)
        said = b""
        while not said.endswith(_PROOF):
            if not output.poll(max(0.0, deadline - time.monotonic()) * 1000):
                raise _NoLock(_("{command} does not answer").format(command=_COMMAND[0]))
            part = os.read(self._process.stdout.fileno(), 4096)
            if not part:
                raise _NoLock(said.decode("utf-8", "replace").strip() or _COMMAND[0])
            said += part

    def end(self, seconds: float) -> None:
        """Gives the lock up; after these seconds by force."""
        assert self._process.stdout is not None
        os.close(self._writing)
        self._process.stdout.close()
        try:
            self._process.wait(seconds)
        except subprocess.TimeoutExpired:
            os.killpg(self._process.pid, signal.SIGKILL)
            self._process.wait()
