# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's log messages: into the engine's log, and at hand for the texts of exceptions.

A library puts the causes of many failures (curl's words, rpm's lines) only into its log.
"""

from __future__ import annotations

import locale
import logging
import os
import sys
from contextlib import contextmanager
from typing import Callable, Iterator, List, Tuple

import rpm

from . import host
from .root import as_configured
from .text import valid

LOGGER = "dnf"
"""Everything that a library or this package has to say goes to this logger, or one below it."""
RPM_LOGGER = "dnf.rpm"
ONLY_IN_FILES = "dnf.vem"
"""The logger of what stands in dnf's log files and not in the engine's log, which has words of its own for it."""

PYTHONS_WARNINGS = "py.warnings"
"""The logger of what Python warns of, such as something in a plugin. dnf takes it from the standard error."""

# Not texts of this program, for which the extraction of those would take them in a call.
_RPM_PREFIXES = ("error: ", "warning: ")

_ALL = 2
"""The lowest level that dnf uses; Python's own begin at 10."""


class HostHandler(logging.Handler):
    """Forwards records to the host functions `log`, `warninglog` and `errorlog`."""

    def emit(self, record: logging.LogRecord) -> None:
        if record.name == ONLY_IN_FILES:
            return
        try:
            text = record.getMessage()
        except (TypeError, ValueError):
            text = str(record.msg)
        if record.name == RPM_LOGGER and record.levelno >= logging.INFO:
            # Scriptlet output comes through the transaction's display, and what rpm says against a
            # package stands in the exception: once is enough.
            if record.levelno > logging.INFO:
                host.errorlog(host.LEVEL_QUIET, text)
        elif record.levelno >= logging.ERROR:
            host.errorlog(host.LEVEL_ERROR, as_configured(text))
        elif record.levelno >= logging.WARNING:
            host.warninglog(host.LEVEL_NOTICE, as_configured(text))
        else:
            host.log(_level(record.levelno), as_configured(text))


def _level(levelno: int) -> int:
    for threshold, level in (
        (logging.INFO, host.LEVEL_INFO),
        (logging.DEBUG, host.LEVEL_DEBUG),
    ):
        if levelno >= threshold:
            return level
    return host.LEVEL_TRACE


class _Hearing(logging.Handler):
    def __init__(self) -> None:
        super().__init__(logging.WARNING)
        self.lines: list[str] = []

    def emit(self, record: logging.LogRecord) -> None:
        self.lines += [line.strip() for line in record.getMessage().splitlines() if line.strip()]


@contextmanager
def heard() -> Iterator[list[str]]:
    """Collects the lines of warnings and errors while the block runs."""
    hearing = _Hearing()
    logger = logging.getLogger(LOGGER)
    logger.addHandler(hearing)
    try:
        yield hearing.lines
    finally:
        logger.removeHandler(hearing)


@contextmanager
def unheard() -> Iterator[None]:
    """Keeps the log quiet while the block runs, for what is told otherwise."""
    logger = logging.getLogger(LOGGER)
    before = logger.level
    logger.setLevel(logging.CRITICAL + 1)
    try:
        yield
    finally:
        logger.setLevel(before)


def rpm_prefixes() -> Tuple[str, str]:
    """How rpm's lines of errors and of warnings begin: it speaks the user's language. To be asked before it changes the
    root, below which there may be no catalogue."""
    error, warning = (locale.dgettext("rpm", prefix) for prefix in _RPM_PREFIXES)
    return error, warning


@contextmanager
def rpms_words() -> Iterator[Callable[[], List[str]]]:
    """Takes rpm's lines from the terminal into the log while the block runs. What it gives tells them instead, each
    once; there is nothing to take from then on."""
    # In memory: a full disk is what rpm may be telling of.
    with open(os.memfd_create("rpm"), "w+b") as file:

        def said() -> List[str]:
            # rpm writes the last of them when it gets another file.
            rpm.setLogFile(sys.stderr)
            file.seek(0)
            lines = [as_configured(line.strip()) for line in valid(file.read()).splitlines()]
            file.seek(0)
            file.truncate()
            return list(dict.fromkeys(filter(None, lines)))

        rpm.setLogFile(file)
        try:
            yield said
        finally:
            for line in said():
                logging.getLogger(LOGGER).warning("%s", line)


def install_handler() -> None:
    """Makes the logger talk to the engine, and that of Python's warnings; a second call changes nothing."""
    logging.getLogger(LOGGER).setLevel(_ALL)
    for logger in map(logging.getLogger, (LOGGER, PYTHONS_WARNINGS)):
        logger.propagate = False
        if not any(isinstance(handler, HostHandler) for handler in logger.handlers):
            logger.addHandler(HostHandler())
