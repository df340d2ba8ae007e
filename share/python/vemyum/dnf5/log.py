# SPDX-License-Identifier: GPL-2.0-or-later
"""What libdnf5 logs, into Python's logger.

A logger written in Python would be called while the interpreter's lock is let go, which ends the process. So the
library logs into memory, and that is emptied behind each step.
"""

from __future__ import annotations

import logging
from typing import Any

import libdnf5.base
import libdnf5.logger

LOGGER = "dnf"
_TRACE = 5
# What fails is raised, too: as an error it would be shown twice.
_LEVELS = (
    logging.WARNING,
    logging.WARNING,
    logging.WARNING,
    logging.INFO,
    logging.DEBUG,
    _TRACE,
    _TRACE,
)
"""By the library's levels, from critical to trace."""
_MOST = 20_000
"""Lines that are kept; the oldest give way."""


class _Outlet(libdnf5.logger.Logger):  # type: ignore[misc]
    def write(self, _time: Any, _pid: int, level: int, message: str) -> None:
        try:
            logging.getLogger(LOGGER).log(_LEVELS[min(level, len(_LEVELS) - 1)], "%s", message)
        except BaseException:  # noqa: BLE001 - the library would end the process
            pass


_OUTLET = _Outlet()


class Log:
    """The log of one Base of the library. Not to be asked once that is gone."""

    def __init__(self, library: libdnf5.base.Base) -> None:
        self._lines = libdnf5.logger.MemoryBufferLogger(_MOST)
        library.get_logger().add_logger(libdnf5.logger.LoggerUniquePtr(self._lines))

    def tell(self) -> None:
        """Passes on what has been logged since the last time."""
        self._lines.write_to_logger(_OUTLET)
        self._lines.clear()
