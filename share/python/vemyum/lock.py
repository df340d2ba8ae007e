# SPDX-License-Identifier: GPL-2.0-or-later
"""The lock: held from the first collection to the end of the process, across all YumIO objects.

dnf locks its cache and the rpm database for a moment at a time, with three pid files. They are taken
here once and for good, and dnf's own lock builders then give locks that do nothing: a second lock
object of the same process would succeed and remove the pid file when it is left. A running dnf and a
second copy of this program meet the same files.

While a process of its own applies changes, the files name that process: it may outlive the program.
"""

from __future__ import annotations

import contextlib
import fcntl
import os
from typing import Any, ContextManager, Iterator, List, Optional

import dnf.conf
import dnf.exceptions
import dnf.lock

from . import processes
from .errors import LockError, reported_as
from .texts import _

_BUILDERS = {
    name: getattr(dnf.lock, name) for name in ("build_metadata_lock", "build_download_lock", "build_rpmdb_lock")
}
"""dnf's own, by their names."""


class HeldError(LockError):
    """Another process holds the lock. `pid` is that process."""

    def __init__(self, pid: int) -> None:
        name = processes.name(pid)
        holder = f"{pid} ({name})" if name else str(pid)
        super().__init__(_("The yum lock is held by process {process}.").format(process=holder))
        self.pid = pid


def _no_lock(*_: Any) -> ContextManager[None]:
    return contextlib.nullcontext()


class ProcessLock:
    """The one lock of the process. Not to be used from two threads at once."""

    def __init__(self) -> None:
        self._held: List[str] = []

    @property
    def held(self) -> bool:
        return bool(self._held)

    def acquire(self, conf: dnf.conf.MainConf) -> None:
        """Takes the lock, or raises HeldError that names the process which holds it, LockError for other faults.

        Holding it already is fine. The pid file of a process that is dead, or that is younger than the file, doesn't
        count as a lock.
        """
        if self._held:
            return
        taken: List[str] = []
        try:
            with reported_as(LockError):
                for lock in self._locks(conf):
                    _forget_dead_holder(lock.target)
                    _enter(lock)
                    taken.append(lock.target)
        except dnf.exceptions.ProcessLockError as error:
            self._leave(taken)
            raise HeldError(error.pid) from error
        except LockError:
            self._leave(taken)
            raise
        self._hold(taken)

    def take_over(self, conf: dnf.conf.MainConf, holder: int) -> None:
        """Makes the lock of another process, which lets it happen, this one's. LockError if that one holds none."""
        targets = [lock.target for lock in self._locks(conf)]
        with reported_as(LockError):
            for target in targets:
                _change_holder(target, holder, os.getpid())
        self._hold(targets)

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

    def _locks(self, conf: dnf.conf.MainConf) -> Iterator[Any]:
        for name, builder in _BUILDERS.items():
            yield builder(conf.persistdir if name == "build_rpmdb_lock" else conf.cachedir, True)

    def _hold(self, targets: List[str]) -> None:
        self._held = targets
        for name in _BUILDERS:
            setattr(dnf.lock, name, _no_lock)

    def _give_up(self) -> List[str]:
        taken, self._held = self._held, []
        if taken:
            for name, builder in _BUILDERS.items():
                setattr(dnf.lock, name, builder)
        return taken

    @staticmethod
    def _leave(taken: List[str]) -> None:
        # A lock object may only be left on the thread that entered it, and the engine unlocks on
        # another one; what counts for others is the file.
        for target in reversed(taken):
            with contextlib.suppress(FileNotFoundError, NotADirectoryError):
                with _opened(target) as file:
                    if _holder(file) == os.getpid():
                        os.unlink(target)


def _enter(lock: Any) -> None:
    try:
        lock.__enter__()
    except OSError as error:
        # A full disk is met where no path is told.
        if error.filename is None:
            error.filename = lock.target
        raise


@contextlib.contextmanager
def _opened(target: str, flags: int = 0) -> Iterator[int]:
    """The pid file, locked as dnf locks it while it reads and writes there. OSError."""
    file = os.open(target, os.O_RDWR | os.O_CLOEXEC | flags, 0o644)
    try:
        fcntl.flock(file, fcntl.LOCK_EX)
        yield file
    finally:
        os.close(file)


def _holder(file: int) -> Optional[int]:
    with contextlib.suppress(ValueError):
        return int(os.pread(file, 20, 0))
    return None


def _forget_dead_holder(target: str) -> None:
    """Empties the file of a process that cannot have written it, which dnf takes for anybody who has its number."""
    with contextlib.suppress(FileNotFoundError, NotADirectoryError), _opened(target) as file:
        pid = _holder(file)
        if pid not in (None, os.getpid()) and not processes.lives_since(pid, os.fstat(file).st_mtime):
            os.ftruncate(file, 0)


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
