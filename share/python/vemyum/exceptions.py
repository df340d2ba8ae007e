# SPDX-License-Identifier: GPL-2.0-or-later
"""Exceptions of this package's own, for a library that has none of the same meaning."""

from __future__ import annotations

from typing import Tuple, Type

import rpm


class YumBaseError(Exception):
    """Anything that fails. The engine shows `value`."""

    def __init__(self, value: object = "") -> None:
        self.value = str(value)
        super().__init__(self.value)


class RepoError(YumBaseError):
    """A repository cannot be read."""


class LockError(YumBaseError):
    """The lock cannot be had."""


class GroupsError(YumBaseError):
    """There are no groups."""


FAILURES: Tuple[Type[Exception], ...] = (YumBaseError, rpm.error)


def words(error: Exception) -> str:
    return str(error)
