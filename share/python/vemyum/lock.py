# SPDX-License-Identifier: GPL-2.0-or-later
"""The lock: held from the first collection to the end of the process, across all YumIO objects.

dnf locks its cache and the rpm database for a moment at a time, with three pid files. They are taken
here once and for good, whichever library does the work; what that has for locks of its own goes along. A running dnf
and a second copy of this program meet the same files.

While a process of its own applies changes, the files name that process: it may outlive the program.
"""

from __future__ import annotations

import contextlib
import fcntl
import os
from typing import Iterator, List, Optional

from . import backend, processes
from .backend import Settings
from .errors import LockError, reported_as
from .texts import _


class HeldError(LockError):
    """Another process holds the lock. `pid` is that process."""

    def __init__(self, pid: int) -> None:
        name = processes.name(pid)
        holder = f"{pid} ({name})" if name else str(pid)
        super().__init__(_("The yum lock is held by process {process}.").format(process=holder))
        self.pid = pid


class ProcessLock:
    """The one lock of the process. Not to be used from two threads at once."""

    def __init__(self) -> None:
        self._held: List[str] = []

    @property
    def held(self) -> bool:
        return bool(self._held)

    def acquire(self, settings: Settings) -> None:
        """Takes the lock, or raises HeldError that names the process which holds it, LockError for other faults.

        Holding it already is fine. The pid file of a process that is dead, or that is younger than the file, doesn't
        count as a lock.
        """
        if self._held:
            return
        taken: List[str] = []
        try:
            with reported_as(LockError):
                for target in backend.library().lock_files(settings):
                    _take(target)
                    taken.append(target)
                backend.library().hold(settings)
        except LockError:
            self._leave(taken)
            raise
        self._held = taken

    def take_over(self, settings: Settings, holder: int) -> None:
        """Makes the lock of another process, which lets it happen, this one's. LockError if that one holds none."""
        targets = backend.library().lock_files(settings)
        with reported_as(LockError):
            for target in targets:
                _change_holder(target, holder, os.getpid())
        self._held = targets
        backend.library().take_over(settings)

    def give_over(self, holder: int) -> None:
        """Makes the lock that process's. Never raises: whoever gets it looks for itself."""
        for target in self._give_up():
            with contextlib.suppress(OSError, LockError):
                _change_holder(target, os.getpid(), holder)

    def take_back(self, holder: int) -> None:
        """Behind the end of a process that had taken the lock over: makes it this one's again. LockError."""
        faults: List[LockError] = []
        for target in self._held:
            try:
                with reported_as(LockError):
                    _change_holder(target, holder, os.getpid())
            except LockError as error:
                faults.append(error)
        if faults:
            raise faults[0]

    def release(self) -> None:
        """Gives the lock up, on any thread; nothing happens when it isn't held. LockError if it fails."""
        taken = self._give_up()
        with reported_as(LockError):
            self._leave(taken)

    def _give_up(self) -> List[str]:
        taken, self._held = self._held, []
        if taken:
            backend.library().let_go()
        return taken

    @staticmethod
    def _leave(taken: List[str]) -> None:
        for target in reversed(taken):
            with contextlib.suppress(FileNotFoundError, NotADirectoryError):
                with _opened(target) as file:
                    if _holder(file) == os.getpid():
                        os.unlink(target)


def _take(target: str) -> None:
    """Writes this process's number into a pid file. HeldError; OSError."""
    os.makedirs(os.path.dirname(target), mode=0o755, exist_ok=True)
    with _opened(target, os.O_CREAT) as file:
        pid = _holder(file)
        if pid is None and os.fstat(file).st_size:
            raise LockError(
                _(
                    "The lock file {file} does not hold the number of a process. If no other program changes packages, "
                    "remove it."
                ).format(file=target)
            )
        # The number of a process that cannot have written it may be anybody's by now.
        if pid not in (None, os.getpid()) and processes.lives_since(pid, os.fstat(file).st_mtime):
            raise HeldError(pid)
        os.ftruncate(file, 0)
        os.pwrite(file, str(os.getpid()).encode(), 0)


@contextlib.contextmanager
def _opened(target: str, flags: int = 0) -> Iterator[int]:
    """The pid file, locked as dnf locks it while it reads and writes there. OSError with its path."""
    while True:
        file = os.open(target, os.O_RDWR | os.O_CLOEXEC | flags, 0o644)
        try:
            fcntl.flock(file, fcntl.LOCK_EX)
            # Whoever had it locked may have removed it meanwhile.
            if os.fstat(file).st_nlink:
                yield file
                return
        except OSError as error:
            # A full disk is met where no path is told.
            if error.filename is None:
                error.filename = target
            raise
        finally:
            os.close(file)


def _holder(file: int) -> Optional[int]:
    with contextlib.suppress(ValueError):
        return int(os.pread(file, 20, 0))
    return None


def _change_holder(target: str, before: int, after: int) -> None:
    """LockError when another process than these two has the lock, OSError. A file that is gone is made anew."""
    with _opened(target, os.O_CREAT) as file:
        if _holder(file) not in (None, before, after):
            raise LockError(_("The lock file {file} has been changed.").format(file=target))
        text = str(after).encode()
        # At every moment one of the two: what follows a number are blanks.
        os.pwrite(file, text.ljust(os.fstat(file).st_size), 0)
        os.ftruncate(file, len(text))


LOCK = ProcessLock()
