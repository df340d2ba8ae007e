# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library logs while packages are fetched and rpm works: into the log files, and rpm's words at hand.

Beside `log`, which has the engine hear everything; what the library says of a transaction it gets in the words of this
program, or in the text of a failure.
"""

from __future__ import annotations

import logging
from typing import Any, List, Tuple

import libdnf5.base
import libdnf5.logger

from ..messages import ONLY_IN_FILES
from ..text import valid
from .callbacks import guarded

_MOST = 100_000
"""Lines that are kept between two steps."""

NOTICE, TRACE = 25, 5
"""Two levels of the library that Python has no names for."""

_LEVELS = (logging.CRITICAL, logging.ERROR, logging.WARNING, NOTICE, logging.INFO, logging.DEBUG, TRACE)
"""Python's levels by the library's."""

_OF_RPM = "[rpm] "


class _Outlet(libdnf5.logger.Logger):  # type: ignore[misc]
    def __init__(self) -> None:
        super().__init__()
        self.rpm_said: List[Tuple[int, str]] = []

    @guarded()
    def write(self, _time: Any, _pid: int, level: int, message: str) -> None:
        known = _LEVELS[min(level, len(_LEVELS) - 1)]
        text = valid(message)
        if text.startswith(_OF_RPM) and known >= logging.WARNING:
            self.rpm_said.append((known, text[len(_OF_RPM) :]))
        logging.getLogger(ONLY_IN_FILES).log(known, "%s", text)


class TransactionLog:
    """Begins when it is made. Not to be asked once the Base is gone."""

    def __init__(self, library: libdnf5.base.Base) -> None:
        self._lines = libdnf5.logger.MemoryBufferLogger(_MOST)
        self._outlet = _Outlet()
        library.get_logger().add_logger(libdnf5.logger.LoggerUniquePtr(self._lines))

    @property
    def rpm_said(self) -> List[Tuple[int, str]]:
        """rpm's warnings and errors, each with its level."""
        return self._outlet.rpm_said

    def take(self) -> None:
        """Passes on what has been written since."""
        self._lines.write_to_logger(self._outlet)
        self._lines.clear()
