# SPDX-License-Identifier: GPL-2.0-or-later
"""The command line's log file: an administrator finds the transactions of this program where those of `dnf5` are.

It has what was done, which packages rpm went through and what their scripts said, in the command line's format and with
its rotation.
"""

from __future__ import annotations

import logging
import os
import time

import libdnf5.base

from ..logfiles import KeptOpen, Masked, tell_unwritable
from ..messages import ONLY_IN_FILES, PYTHONS_WARNINGS
from .failures import FAILURES
from .log import LEVELS, LOGGER
from .settings import Settings

_NAME = "dnf5.log"
_log = logging.getLogger(ONLY_IN_FILES)


class _Lines(logging.Formatter):
    """The command line's."""

    def format(self, record: logging.LogRecord) -> str:
        when = time.strftime("%Y-%m-%dT%H:%M:%S+0000", time.gmtime(record.created))
        name = next((level.name for level in LEVELS if record.levelno >= level.in_files), LEVELS[-1].name)
        return f"{when} [{record.process}] {name} {record.getMessage()}"


class _LogFile(KeptOpen):
    def emit(self, record: logging.LogRecord) -> None:
        self._follow()
        super().emit(record)

    def _follow(self) -> None:
        """The command line may have put another file in its place."""
        try:
            there = os.stat(self.baseFilename)
            ours = os.fstat(self.stream.fileno())
        except (OSError, ValueError, AttributeError):
            return
        if (there.st_dev, there.st_ino) != (ours.st_dev, ours.st_ino):
            self.stream.close()
            self.stream = self._open()


def open_log_files(settings: Settings) -> None:
    """From here on the loggers write into the file, too, to the end of the process. Never raises: there is a warning
    where it cannot be opened."""
    path = os.path.join(settings.log_directory, _NAME)
    size, count = _rotation(settings)
    try:
        file = _LogFile(path, maxBytes=size if count else 0, backupCount=count, encoding="utf-8", errors="replace")
    except OSError as error:
        tell_unwritable(error)
        return
    file.setFormatter(Masked(_Lines()))
    for name in (LOGGER, PYTHONS_WARNINGS):
        logging.getLogger(name).addHandler(file)


def _rotation(settings: Settings) -> "tuple[int, int]":
    """How large the file may grow, in bytes, and how many of its predecessors are kept."""
    library = libdnf5.base.Base()
    try:
        settings.load_into(library)
    except FAILURES:
        # The configuration is read once more, and then it is told.
        library = libdnf5.base.Base()
    config = library.get_config()
    return int(config.log_size), int(config.log_rotate)


def tell_command(settings: Settings, command: str) -> None:
    """What is to be done, and where."""
    _log.info('--- VEM launched with arguments: "%s" ---', command)
    _log.debug("Installroot: %s", settings.root)
    _log.debug("Releasever: %s", settings.variables.get("releasever", ""))


def tell_end(done: bool, fault: str) -> None:
    """How the apply ended; without a fault, and not done, the user didn't agree."""
    if fault:
        _log.error("%s", fault)
    _log.info("VEM finished" if done else "VEM has changed nothing" if not fault else "VEM finished with an error")
