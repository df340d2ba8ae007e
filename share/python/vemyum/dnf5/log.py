# SPDX-License-Identifier: GPL-2.0-or-later
"""What libdnf5 logs, into Python's logger.

A logger written in Python would be called while the interpreter's lock is let go, which ends the process. So the
library logs into memory, and that is emptied behind each step.
"""

from __future__ import annotations

import logging
from typing import Any, Callable, NamedTuple

import libdnf5.base
import libdnf5.logger

from ..messages import LOGGER as LOGGER
from .callbacks import guarded

_NOTICE, _TRACE = 25, 5
"""Two levels of the library that Python has no names for."""


class Level(NamedTuple):
    """One of the library's levels, with Python's in its place."""

    name: str
    in_files: int
    to_engine: int
    """What fails is raised, too: as an error it would be shown twice."""


LEVELS = (
    Level("CRITICAL", logging.CRITICAL, logging.WARNING),
    Level("ERROR", logging.ERROR, logging.WARNING),
    Level("WARNING", logging.WARNING, logging.WARNING),
    Level("NOTICE", _NOTICE, logging.INFO),
    Level("INFO", logging.INFO, logging.DEBUG),
    Level("DEBUG", logging.DEBUG, _TRACE),
    Level("TRACE", _TRACE, _TRACE),
)
"""In the library's order."""

_MOST = 20_000
"""Lines that are kept; the oldest give way."""

Teller = Callable[[Level, str], None]


class _Outlet(libdnf5.logger.Logger):  # type: ignore[misc]
    def __init__(self, tell: Teller) -> None:
        super().__init__()
        self._tell = tell

    @guarded()
    def write(self, _time: Any, _pid: int, level: int, message: str) -> None:
        self._tell(LEVELS[min(level, len(LEVELS) - 1)], message)


def _tell_engine(level: Level, message: str) -> None:
    logging.getLogger(LOGGER).log(level.to_engine, "%s", message)


class Log:
    """The log of one Base of the library, from here on. Not to be asked once that is gone."""

    def __init__(self, library: libdnf5.base.Base, tell: Teller = _tell_engine, most: int = _MOST) -> None:
        self._lines = libdnf5.logger.MemoryBufferLogger(most)
        self._outlet = _Outlet(tell)
        library.get_logger().add_logger(libdnf5.logger.LoggerUniquePtr(self._lines))

    def tell(self) -> None:
        """Passes on what has been logged since the last time."""
        self._lines.write_to_logger(self._outlet)
        self._lines.clear()
