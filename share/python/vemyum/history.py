# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's history database: a full disk must not leave one that no transaction can use."""

from __future__ import annotations

import contextlib
import os
from typing import Iterator

import dnf.conf

from .errors import YumBaseError
from .root import as_configured
from .texts import _

_NAME = "history.sqlite"


def _path(conf: dnf.conf.MainConf) -> str:
    return os.path.join(conf.persistdir, _NAME)


def _is_empty(path: str) -> bool:
    try:
        return os.path.getsize(path) == 0 and not os.path.exists(path + "-wal")
    except OSError:
        return False


@contextlib.contextmanager
def usable_history(conf: dnf.conf.MainConf) -> Iterator[None]:
    """Lets a block use the history. YumBaseError for an empty file, in which dnf looks for its tables in vain; one
    that the block leaves so, since there was no room for more, is removed again."""
    path = _path(conf)
    if _is_empty(path):
        raise YumBaseError(
            _(
                "The history of transactions, {file}, is an empty file: the disk was full when it was to be made. "
                "Remove it, and it is made anew."
            ).format(file=as_configured(path))
        )
    try:
        yield
    finally:
        if _is_empty(path):
            with contextlib.suppress(OSError):
                os.unlink(path)
