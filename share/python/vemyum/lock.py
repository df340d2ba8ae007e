# SPDX-License-Identifier: GPL-2.0-or-later
"""The lock: held from the first collection to the end of the process, across all YumIO objects.

dnf locks its cache and the rpm database for a moment at a time, with three pid files. They are taken
here once and for good, and dnf's own lock builders then give locks that do nothing: a second lock
object of the same process would succeed and remove the pid file when it is left. A running dnf and a
second copy of this program meet the same files.
"""

from __future__ import annotations

import contextlib
import os
from typing import Any, ContextManager, List

import dnf.conf
import dnf.exceptions
import dnf.lock

from .errors import LockError, reported_as
from .texts import _

_BUILDERS = ("build_metadata_lock", "build_download_lock", "build_rpmdb_lock")


def _no_lock(*_: Any) -> ContextManager[None]:
    return contextlib.nullcontext()


class ProcessLock:
    """The one lock of the process. Not to be used from two threads at once."""

    def __init__(self) -> None:
        self._held: List[Any] = []
        self._originals = {name: getattr(dnf.lock, name) for name in _BUILDERS}

    @property
    def held(self) -> bool:
        return bool(self._held)

    def acquire(self, conf: dnf.conf.MainConf) -> None:
        """Takes the lock, or raises LockError that names the process which holds it.

        Holding it already is fine. The pid file of a dead process doesn't count as a lock.
        """
        if self._held:
            return
        taken: List[Any] = []
        try:
            with reported_as(LockError):
                for name in _BUILDERS:
                    where = conf.persistdir if name == "build_rpmdb_lock" else conf.cachedir
                    lock = self._originals[name](where, True)
                    _enter(lock)
                    taken.append(lock)
        except dnf.exceptions.ProcessLockError as error:
            self._leave(taken)
            raise LockError(
                _("The yum lock is held by process {process}.").format(
                    process=f"{error.pid}{_program(error.pid)}"
                )
            ) from error
        except LockError:
            self._leave(taken)
            raise
        self._held = taken
        for name in _BUILDERS:
            setattr(dnf.lock, name, _no_lock)

    def release(self) -> None:
        """Gives the lock up, on any thread; nothing happens when it isn't held. LockError if it fails."""
        taken, self._held = self._held, []
        if taken:
            for name, builder in self._originals.items():
                setattr(dnf.lock, name, builder)
        with reported_as(LockError):
            self._leave(taken)

    @staticmethod
    def _leave(taken: List[Any]) -> None:
        for lock in reversed(taken):
            # A lock object may only be left on the thread that entered it, and the engine unlocks on
            # another one; what counts for others is the file.
            with contextlib.suppress(FileNotFoundError, NotADirectoryError):
                os.unlink(lock.target)


def _enter(lock: Any) -> None:
    try:
        lock.__enter__()
    except OSError as error:
        # A full disk is met where no path is told.
        if error.filename is None:
            error.filename = lock.target
        raise


def _program(pid: int) -> str:
    try:
        with open(f"/proc/{pid}/comm", encoding="utf-8", errors="replace") as comm:
            return f" ({comm.read().strip()})"
    except OSError:
        return ""


LOCK = ProcessLock()
