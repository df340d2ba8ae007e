# SPDX-License-Identifier: GPL-2.0-or-later
"""The program's side of an apply: starts the process that works, and tells the engine what it hears from there."""

from __future__ import annotations

import contextlib
import errno
import os
import signal
import socket
import subprocess
import sys
from typing import Any, List, Optional, Sequence, Tuple

from .. import choice, host, processes, stop
from ..errors import ALL_DONE, REFRESH, LockError, YumBaseError, reported_as
from ..lists import Collector
from ..lock import LOCK
from ..packages import COMMAND_LINE
from ..root import managed_root
from ..session import Session
from ..text import valid
from ..texts import _
from . import messages
from .channel import Channel
from .listing import TransactionInfo, solver_lines
from .newer import newer_changes

COMMAND = [
    sys.executable or "/usr/bin/python3",
    os.path.join(os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__)))), "apply-child.py"),
]
"""What starts the process; the descriptor of its connection, this process's number and the name of the package library
are added."""


_PATIENCE = 0.3
"""Seconds in which a process that is to leave can do so by itself; one that waits in a library for a server cannot."""


class ChildFault(Exception):
    """A fault of the program itself in the process that worked; the text is its traceback."""


class Apply:
    """`tsInfo` is what the engine lists; it exists once the transaction is solved."""

    def __init__(self, session: Session) -> None:
        self._session = session
        self._begun = False
        self._leaves = False
        self._obstacles: List[str] = []
        self.tsInfo: Optional[TransactionInfo] = None

    def run(self, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> None:
        """Does everything, or nothing when the user refuses. YumBaseError (Stopped, when the user wants that and rpm
        hasn't begun), OSError only for a broken pipe.

        Blocks while the user is asked and while the other process works, without the interpreter lock.
        """
        if not (installs or updates or removes):
            host.log(host.LEVEL_NOTICE, _("Nothing is marked"))
            return
        incoming = [*installs, *(pair[0] for pair in updates)]
        self._do(
            [_wish(package, package.po.reponame) for package in incoming],
            [package.po.location for package in incoming if package.po.reponame == COMMAND_LINE],
            [_wish(package, messages.SYSTEM) for package in removes],
            [],
            _comment(installs, updates, removes),
        )

    def turn(self, kind: str, number: int, without: bool) -> List[str]:
        """Undoes the transaction of that number, does it once more, or rolls back to it; `kind` is one of the words of
        `messages`. Gives what cannot be done, a sentence for each package or group, and does nothing then, unless it is
        to go on `without`. Raises and blocks as `run`."""
        self._do([], [], [], [messages.Past(kind, number, without)], f"history {kind} {number}")
        return self._obstacles

    def _do(
        self,
        incoming: List[messages.Wish],
        files: List[str],
        removes: List[messages.Wish],
        past: List[messages.Past],
        comment: str,
    ) -> None:
        root = managed_root()
        request = messages.Request(
            messages.PROTOCOL,
            self._session.repository_sections(),
            incoming,
            files,
            removes,
            past,
            Collector.known_installed(root),
            self._session.main_file,
            processes.command_line(os.getpid()),
            comment,
        )
        with _Child(root) as child:
            ended = self._converse(child, request)
        if ended.installed >= 0:
            Collector.expect_installed(root, ended.installed)
        if ended.outcome == messages.DONE:
            try:
                host.post_transaction_output(self)
            except Exception as error:  # noqa: BLE001 - whatever it is, the packages have been changed
                raise YumBaseError(f"{error}\n{ALL_DONE}") from error
        elif ended.outcome == messages.FAILED:
            raise YumBaseError(ended.text)
        elif ended.outcome == messages.BROKEN_PIPE:
            raise BrokenPipeError(errno.EPIPE, ended.text)
        elif ended.outcome == messages.INTERNAL:
            raise ChildFault(self._with_consequence(ended.text) if self._begun else ended.text)

    def _converse(self, child: "_Child", request: messages.Request) -> messages.Ended:
        try:
            hello = self._next(child)
            if hello is not None and hello != messages.Hello(messages.PROTOCOL):
                raise YumBaseError(
                    _("The program's files have been changed since it was started: please start it anew.")
                )
            child.tell(request)
            while True:
                message = self._next(child)
                if isinstance(message, messages.Ended):
                    return message
                if message is None:
                    told = child.end()
                    if self._leaves:
                        stop.check()
                    raise YumBaseError(self._with_consequence(told))
                try:
                    self._take(message, child)
                except messages.ProtocolError:
                    raise
                except Exception as error:  # noqa: BLE001 - what has begun is heard to its end
                    if not self._begun:
                        raise
                    host.errorlog(host.LEVEL_ERROR, f"{type(error).__name__}: {error}")
        except messages.ProtocolError as error:
            said = _("The process that applies the changes said what cannot be understood: {line}").format(line=error)
            raise YumBaseError(self._with_consequence(said)) from error

    def _next(self, child: "_Child") -> Optional[messages.Message]:
        """What the child says next. Once the user wants to stop, it leaves, unless rpm has begun."""
        if not self._leaves and not self._begun:
            while not stop.wanted():
                if child.channel.ready(stop.descriptor()):
                    return child.channel.receive()
            self._leaves = True
            child.tell(messages.Leave(heard=False))
        if self._leaves and not self._begun and not child.channel.ready(seconds=_PATIENCE):
            child.terminate()
        return child.channel.receive()

    def _with_consequence(self, text: str) -> str:
        consequence = REFRESH if self._begun else _("Nothing was changed.")
        return f"{text}\n{consequence}"

    def _take(self, message: messages.Message, child: "_Child") -> None:
        """One message of the child becomes what the engine expects to be called with."""
        if isinstance(message, messages.Event):
            host.transaction_event(
                message.name, message.code, message.done, message.total, message.ordinal, message.count
            )
        elif isinstance(message, messages.Script):
            host.script_runs(message.name)
        elif isinstance(message, messages.FileProgress):
            host.apply_meter_update(message.done)
        elif isinstance(message, messages.FileStarted):
            host.apply_meter_start(message.name, message.size)
        elif isinstance(message, messages.FileEnded):
            host.apply_meter_end(message.done)
        elif isinstance(message, messages.Log):
            host.log(message.level, message.text)
        elif isinstance(message, messages.WarningLog):
            host.warninglog(message.level, message.text)
        elif isinstance(message, messages.ErrorLog):
            host.errorlog(message.level, message.text)
        elif isinstance(message, messages.Output):
            host.stdout_write(message.text)
        elif isinstance(message, messages.ErrorOutput):
            host.stderr_write(message.text)
        elif isinstance(message, messages.Solving):
            host.solver_check()
        elif isinstance(message, messages.Obstacles):
            self._obstacles = [valid(text) for text in message.texts]
        elif isinstance(message, messages.Plan):
            child.tell(messages.Answer(not self._leaves and self._agreed(message)))
        elif isinstance(message, messages.KeyWanted):
            child.tell(messages.Answer(not self._leaves and host.confirm_key(**vars(message))))
        elif isinstance(message, messages.TransactionStarts):
            self._begun = message.real
            host.transaction_init(message.real)
        else:
            raise messages.ProtocolError(type(message).__name__)

    def _agreed(self, plan: messages.Plan) -> bool:
        collector = self._session.collector
        lines = solver_lines(plan.changes, collector)
        for line in lines:
            host.log(host.LEVEL_INFO, f"TSINFO: {line}")
        if lines:
            host.solver_restart()
            host.solver_check()
        self.tsInfo = TransactionInfo(plan.changes, collector.updatable, plan.streams)
        host.list_transaction(self)
        host.report_download_size([_Download(size) for size in plan.downloads])
        host.transaction_details(
            [_values(detail) for detail in plan.details],
            sum(plan.downloads),
            plan.growth,
            lambda: self._changes(plan.details),
        )
        return host.confirmed()

    def _changes(self, details: Sequence[messages.Detail]) -> List[str]:
        """YumBaseError."""
        with reported_as(YumBaseError):
            return [valid(text) for text in newer_changes(details, managed_root(), self._session.changes)]


class _Download:
    """A file to be fetched, as the engine wants it."""

    def __init__(self, size: int) -> None:
        self.size = size


def _values(detail: messages.Detail) -> Tuple[Any, ...]:
    *values, _checksum = vars(detail).values()
    return tuple(map(_shown, values))


def _shown(value: Any) -> Any:
    """Texts of headers may hold anything."""
    return [valid(one) for one in value] if isinstance(value, list) else valid(value) if isinstance(value, str) else value


def _wish(package: Any, repository: str) -> messages.Wish:
    return messages.Wish(repository, package.name, package.arch, package.po.evr)


def _comment(installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> str:
    """The marks as the library's history shows them, in its own words."""
    marked = {"install": installs, "upgrade": [pair[0] for pair in updates], "remove": removes}
    return "; ".join(
        f"{verb} {', '.join(sorted(str(package.po) for package in packages))}"
        for verb, packages in marked.items()
        if packages
    )


class _Child:
    """The process that works, for the length of a with block. It is gone when the block is left: a transaction that
    has begun is waited for."""

    def __init__(self, root: str) -> None:
        """OSError when the process cannot be started."""
        ours, theirs = socket.socketpair()
        self.channel = Channel(ours)
        try:
            # Its standard output and error are the ones that the engine captures. In a session of its own, so that
            # what is typed on the terminal isn't meant for it.
            self._process = subprocess.Popen(
                [*COMMAND, str(theirs.fileno()), str(os.getpid()), choice.chosen().backend],
                stdin=subprocess.DEVNULL,
                pass_fds=(theirs.fileno(),),
                env=os.environ if root == "/" else {**os.environ, "VEMROOT": root},
                cwd="/",
                start_new_session=True,
            )
        except BaseException:
            self.channel.close()
            raise
        finally:
            theirs.close()

    def tell(self, message: messages.Message) -> None:
        self.channel.send(message)
        self.channel.flush()

    def terminate(self) -> None:
        """Ends the process where it stands. One in which rpm has begun keeps this off."""
        # It is a child that hasn't been waited for: nobody else has its number.
        with contextlib.suppress(ProcessLookupError):
            os.kill(self._process.pid, signal.SIGTERM)

    def end(self) -> str:
        """Waits for the end of the process, and tells how that was. The lock is this process's again then."""
        # Somebody may have arranged that children leave nothing to wait for.
        with contextlib.suppress(ChildProcessError):
            os.waitid(os.P_PID, self._process.pid, os.WEXITED | os.WNOWAIT)
        try:
            # Before the other one's number is free.
            LOCK.take_back(self._process.pid)
        except LockError as error:
            host.errorlog(host.LEVEL_ERROR, str(error))
        code = self._process.wait()
        if code >= 0:
            cause = _("exit status {code}").format(code=code)
        else:
            cause = _("signal {number}, {name}").format(number=-code, name=signal.strsignal(-code))
        return _("The process that applies the changes has died ({cause}).").format(cause=cause)

    def _says_the_end(self) -> bool:
        with contextlib.suppress(messages.ProtocolError):
            message = self.channel.receive()
            return message is None or isinstance(message, messages.Ended)
        return False

    def __enter__(self) -> "_Child":
        return self

    def __exit__(self, kind: Any, *_: Any) -> None:
        try:
            # A transaction that has not begun ends here, one that has begun is heard to its end.
            if kind is not None:
                self.tell(messages.Leave(heard=False))
                while not self._says_the_end():
                    pass
            self.tell(messages.Leave(heard=True))
        finally:
            self.channel.close()
            if self._process.returncode is None:
                self.end()
