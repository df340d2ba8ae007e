# SPDX-License-Identifier: GPL-2.0-or-later
"""The process that works: what it is asked for, in the order of an apply, until it ends.

Until rpm begins it ends with the program that started it. From there on it goes on alone if it has to.
"""

from __future__ import annotations

import contextlib
import ctypes
import gc
import locale
import os
import queue
import signal
import socket
import sys
import threading
import time
import traceback
import types
from typing import Any, List, NoReturn, Optional, Union

from . import messages
from .channel import Channel

_KEPT_OFF = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT, signal.SIGPIPE)
"""What ends a process that doesn't expect it; here it waits until the transaction is over, and so for ever."""

_PATIENCE = 2.0
"""Seconds that rpm waits for a program that stands still to hear of its beginning."""

_PAUSE = 0.02
"""Seconds between two reports of how far the same file or package is; a bar can show no more."""


def main(descriptor: int, program: int) -> NoReturn:
    """The whole life of the process. The descriptor is one end of a connected pair of sockets; the other one is in
    the program, whose number is given too."""
    _settle()
    # It came open for this program. What a scriptlet starts must not keep the connection alive.
    os.set_inheritable(descriptor, False)
    parent = _Parent(Channel(socket.socket(fileno=descriptor)), program)
    # The host module of this process, before anything looks for it.
    sys.modules["yumIOC"] = RemoteHost(parent)
    ended = _work(parent)
    parent.end(ended)
    # Nobody waits for what an orderly end of the interpreter would free; only what C libraries still hold is wanted.
    ctypes.CDLL(None).fflush(None)
    os._exit(0)


def _settle() -> None:
    """What the program has set up for itself is not for this process."""
    signal.pthread_sigmask(signal.SIG_SETMASK, ())
    for number in (signal.SIGINT, signal.SIGCHLD):
        signal.signal(number, signal.SIG_DFL)
    with contextlib.suppress(locale.Error):
        locale.setlocale(locale.LC_ALL, "")


def _work(parent: "_Parent") -> messages.Ended:
    from .. import backend, streams
    from ..configuration import require_main_file
    from ..credentials import masked
    from ..errors import YumBaseError, reported_as
    from ..lock import LOCK
    from ..messages import install_handler
    from .turning import Obstructed
    from .work import Work

    streams.replace_streams()
    install_handler()
    library = backend.library()
    gc.freeze()
    parent.send(messages.Hello(messages.PROTOCOL))
    work: Optional[Work] = None
    try:
        with reported_as(YumBaseError):
            request = parent.request()
            # Without the file that it rests on, nothing may ask for signatures any more.
            require_main_file(request.main_file)
            settings = library.read_settings()
            LOCK.take_over(settings, parent.pid)
            library.open_log_files(settings)
            work = Work(settings, request)
            done = work.do(parent.agreed, lambda changes: parent.commit(settings, changes))
        outcome, text = (messages.DONE, "") if done else (messages.REFUSED, "")
    except Obstructed as error:
        parent.send(messages.Obstacles([masked(text) for text in error.texts]))
        outcome, text = messages.REFUSED, ""
    except YumBaseError as error:
        outcome, text = messages.FAILED, str(error)
    except BrokenPipeError as error:
        outcome, text = messages.BROKEN_PIPE, str(error)
    except BaseException:  # noqa: BLE001 - told to whoever asked for the work
        outcome, text = messages.INTERNAL, masked(traceback.format_exc())
    library.tell_end(outcome == messages.DONE, text)
    return messages.Ended(outcome, text, work.installed if work is not None else -1)


class _Parent:
    """The program that started this process, while it listens and when it doesn't any more."""

    def __init__(self, channel: Channel, pid: int) -> None:
        self.pid = pid
        self._channel = channel
        self._said: "queue.Queue[Optional[messages.Message]]" = queue.Queue()
        self._journal: Any = None
        self._committing = threading.Lock()
        self._committed = False
        self._heard = False
        self._settled = threading.Event()
        # Opened now: later on there may be another root, without one.
        self._nowhere = os.open(os.devnull, os.O_RDWR | os.O_CLOEXEC)
        # The listening thread takes none of these signals: what is to end the process meets the thread that works.
        signal.pthread_sigmask(signal.SIG_BLOCK, _KEPT_OFF)
        threading.Thread(target=self._listen, daemon=True).start()
        signal.pthread_sigmask(signal.SIG_UNBLOCK, _KEPT_OFF)

    def send(self, message: messages.Message, unimportant: bool = False) -> None:
        if self._journal is not None and isinstance(message, messages.Event):
            self._journal.event(message)
        self._channel.send(message, unimportant)

    def request(self) -> messages.Request:
        request = self._said.get()
        if not isinstance(request, messages.Request) or request.protocol != messages.PROTOCOL:
            raise messages.ProtocolError(type(request).__name__)
        return request

    def agreed(self, question: Union[messages.Plan, messages.KeyWanted]) -> bool:
        """Asks; waits for the answer."""
        self._channel.send(question)
        self._channel.flush()
        answer = self._said.get()
        return isinstance(answer, messages.Answer) and answer.confirmed

    def commit(self, settings: Any, changes: List[messages.Change]) -> None:
        """rpm begins: from here on nothing ends this process but its work."""
        from .. import host, processes
        from .journal import Journal

        with self._committing:
            self._committed = True
            signal.pthread_sigmask(signal.SIG_BLOCK, _KEPT_OFF)
        pid = os.getpid()
        begun = messages.Begun(messages.PROTOCOL, pid, processes.start_of(pid), self.pid, changes)
        self._journal = Journal(settings, begun)
        host.transaction_init(True)
        # What happens from here on is told otherwise than what happened before, so the program has to know.
        self._channel.flush(_PATIENCE)

    def end(self, ended: messages.Ended) -> None:
        """Tells the program the outcome and gives it the lock back; without a program the journal tells it."""
        with self._committing:
            # There is nothing left to cut off.
            self._committed = True
        self._channel.send(ended)
        self._channel.flush()
        self._settled.wait()
        if self._journal is not None and self._heard:
            self._journal.remove()
        elif self._journal is not None:
            self._journal.end(ended)
        self._hand_back(gone=not self._heard)

    def _hand_back(self, gone: bool) -> None:
        from ..lock import LOCK

        if gone:
            with contextlib.suppress(Exception):
                LOCK.release()
        else:
            LOCK.give_over(self.pid)

    def _listen(self) -> None:
        """On a thread of its own: what the program says, and whether it is there."""
        message: Optional[messages.Message] = messages.Leave(heard=False)
        while message is not None:
            try:
                message = self._channel.receive()
            except messages.ProtocolError:
                message = messages.Leave(heard=False)
            self._said.put(message)
            if isinstance(message, messages.Leave) and message.heard:
                self._heard = True
                self._settled.set()
            elif message is None or isinstance(message, messages.Leave):
                self._end_unless_committed(message is None)
        self._settled.set()
        # What the program captured leads nowhere now.
        for descriptor in (1, 2):
            os.dup2(self._nowhere, descriptor)

    def _end_unless_committed(self, gone: bool) -> None:
        with self._committing:
            if not self._committed:
                self._hand_back(gone)
                os._exit(1)


class RemoteHost(types.ModuleType):
    """The engine's module `yumIOC` in this process: each call is a message to the program.

    The functions that list, and ask about it, are not among them; here the plan does both.
    """

    def __init__(self, parent: _Parent) -> None:
        super().__init__("yumIOC")
        self._parent = parent
        self._element: Any = None
        self._next = 0.0

    def log(self, level: int, text: str) -> None:
        self._parent.send(messages.Log(level, text))

    def warninglog(self, level: int, text: str) -> None:
        self._parent.send(messages.WarningLog(level, text))

    def errorlog(self, level: int, text: str) -> None:
        self._parent.send(messages.ErrorLog(level, text))

    def stdoutWrite(self, text: str) -> None:
        self._parent.send(messages.Output(text))

    def stderrWrite(self, text: str) -> None:
        self._parent.send(messages.ErrorOutput(text))

    def dsTsCheck(self) -> None:
        self._parent.send(messages.Solving())

    def confirmKey(self, *question: Any) -> int:
        return int(self._parent.agreed(messages.KeyWanted(*question)))

    def applyGrabMeterStart(self, name: str, _a: None, _b: None, size: int, _c: None) -> None:
        self._parent.send(messages.FileStarted(name, size))

    def applyGrabMeterUpdate(self, done: int) -> None:
        if self._is_time():
            self._parent.send(messages.FileProgress(done), unimportant=True)

    def applyGrabMeterEnd(self, done: int) -> None:
        self._parent.send(messages.FileProgress(done))
        self._parent.send(messages.FileEnded(done))

    def tsInitCallback(self, real: int) -> None:
        self._parent.send(messages.TransactionStarts(bool(real)))

    def tsEvent(self, package: Any, code: int, done: int, total: int, ordinal: int, count: int) -> None:
        name = package if isinstance(package, str) else package.name
        begins = ordinal != self._element
        self._element = ordinal
        if begins or done >= total or self._is_time():
            self._parent.send(messages.Event(name, code, done, total, ordinal, count), unimportant=not begins)

    def scriptRuns(self, name: str) -> None:
        self._parent.send(messages.Script(name), unimportant=True)

    def _is_time(self) -> bool:
        now = time.monotonic()
        if now < self._next:
            return False
        self._next = now + _PAUSE
        return True
