# SPDX-License-Identifier: GPL-2.0-or-later
"""What the log files of either library have in common. A log never stands in the way: what cannot be written is left
out."""

from __future__ import annotations

import logging
import logging.handlers
import os

from .credentials import masked
from .errors import os_error_text
from .messages import LOGGER
from .root import as_configured
from .text import valid
from .texts import _

_LONG_LINE = 65_536
"""More bytes than a line has."""


class Masked(logging.Formatter):
    """Another formatter's lines without the passwords that stand in addresses."""

    def __init__(self, original: logging.Formatter) -> None:
        super().__init__()
        self._original = original

    def format(self, record: logging.LogRecord) -> str:
        return masked(valid(self._original.format(record)))


class KeptOpen(logging.handlers.RotatingFileHandler):
    """While rpm works on another root there is no path to the file."""

    def shouldRollover(self, record: logging.LogRecord) -> bool:
        # What is inherited makes the line's text for this, a second time.
        if self.stream is not None and os.fstat(self.stream.fileno()).st_size + _LONG_LINE < self.maxBytes:
            return False
        return os.path.exists(self.baseFilename) and bool(super().shouldRollover(record))

    def handleError(self, record: logging.LogRecord) -> None:
        """A full disk: there is nobody to tell in the middle of a transaction."""


def tell_unwritable(error: OSError) -> None:
    text = _("The log file cannot be written: {cause}").format(cause=as_configured(os_error_text(error)))
    logging.getLogger(LOGGER).warning("%s", text)
