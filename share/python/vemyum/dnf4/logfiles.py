# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's own log files: an administrator finds the transactions of this program where those of the command line are.

dnf.log tells what was done, dnf.rpm.log which packages rpm went through and what their scripts said, in dnf's
format and with its rotation.
"""

from __future__ import annotations

import logging
import os

import dnf
import dnf.cli.output
import dnf.conf
import dnf.const
import dnf.lock
import dnf.logging
from dnf.i18n import _ as in_dnfs_words

from ..logfiles import KeptOpen, Masked, tell_unwritable
from ..messages import ONLY_IN_FILES, PYTHONS_WARNINGS, RPM_LOGGER

_log = logging.getLogger(ONLY_IN_FILES)


class _LogFile(KeptOpen, dnf.logging.MultiprocessRotatingFileHandler):
    """One of dnf's, with what `KeptOpen` changes about it."""


def open_log_files(conf: dnf.conf.MainConf) -> None:
    """From here on dnf's loggers write into the files below `conf.logdir`, too, to the end of the process.

    Never raises: there is a warning for a file that cannot be opened.
    """
    # Gives the levels dnf's names.
    dnf.logging.Logging()
    level = dnf.logging._cfg_verbose_val2level(conf.logfilelevel)
    _open(conf, dnf.const.LOG, "dnf", level)
    # On the command line all that rpm says is there, whatever the level.
    _open(conf, dnf.const.LOG_RPM, RPM_LOGGER, dnf.logging.SUBDEBUG)


def _open(conf: dnf.conf.MainConf, name: str, logger: str, level: int) -> None:
    try:
        file = dnf.logging._create_filehandler(
            os.path.join(conf.logdir, name), conf.log_size, conf.log_rotate, conf.log_compress
        )
    except OSError as error:
        tell_unwritable(error)
        return
    # dnf has made it, with format and rotation; it only has to bear more.
    file.__class__ = _LogFile
    file.rotate_lock = dnf.lock.build_log_lock(conf.logdir, True)
    file.setFormatter(Masked(file.formatter))
    file.setLevel(level)
    if logger != RPM_LOGGER:
        # dnf keeps rpm's lines out of its own file.
        file.addFilter(lambda record: record.name != RPM_LOGGER)
        logging.getLogger(PYTHONS_WARNINGS).addHandler(file)
    marker = {"name": logger, "levelno": logging.INFO, "levelname": "INFO", "msg": dnf.const.LOG_MARKER}
    if level <= logging.INFO:
        file.handle(logging.makeLogRecord(marker))
    logging.getLogger(logger).addHandler(file)


def tell_command(conf: dnf.conf.MainConf, command: str) -> None:
    """What is to be done, and where."""
    _log.log(dnf.logging.DDEBUG, "Command: %s", command)
    _log.log(dnf.logging.DDEBUG, "Installroot: %s", conf.installroot)
    _log.log(dnf.logging.DDEBUG, "Releasever: %s", conf.releasever)


def tell_transaction(base: dnf.Base) -> None:
    """The solved transaction, as the command line shows it before its question."""
    _log.info(in_dnfs_words("Dependencies resolved."))
    _log.info(dnf.cli.output.Output(base, base.conf).list_transaction(base.transaction))


def tell_end(done: bool, fault: str) -> None:
    """How the apply ended; without a fault, and not done, the user didn't agree."""
    if fault:
        _log.critical(in_dnfs_words("Error: %s"), fault)
    elif done:
        _log.info(in_dnfs_words("Complete!"))
    else:
        _log.critical(in_dnfs_words("Operation aborted."))
