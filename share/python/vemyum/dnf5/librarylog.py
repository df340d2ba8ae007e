# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library logs while packages are fetched and rpm works: into the log files, and rpm's words at hand.

Beside the Base's own log, which has the engine hear everything; what the library says of a transaction it gets in the
words of this program, or in the text of a failure.
"""

from __future__ import annotations

import logging
from typing import List, Tuple

import libdnf5.base

from ..messages import ONLY_IN_FILES
from ..text import valid
from .log import Level, Log

_MOST = 100_000
"""Lines that are kept between two steps."""

_OF_RPM = "[rpm] "


class TransactionLog(Log):
    """Begins when it is made. Not to be asked once the Base is gone."""

    def __init__(self, library: libdnf5.base.Base) -> None:
        rpm_said: List[Tuple[int, str]] = []

        def tell(level: Level, message: str) -> None:
            text = valid(message)
            if text.startswith(_OF_RPM) and level.in_files >= logging.WARNING:
                rpm_said.append((level.in_files, text[len(_OF_RPM) :]))
            logging.getLogger(ONLY_IN_FILES).log(level.in_files, "%s", text)

        super().__init__(library, tell, _MOST)
        self.rpm_said = rpm_said
        """rpm's warnings and errors, each with its level."""
