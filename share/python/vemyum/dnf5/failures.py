# SPDX-License-Identifier: GPL-2.0-or-later
"""libdnf5's exceptions, with all that they tell."""

from __future__ import annotations

from types import TracebackType
from typing import Optional, Type

import libdnf5.exception
import rpm

from ..errors import YumBaseError

FAILURES = (
    libdnf5.exception.Error,
    # Beside that one, not below it.
    libdnf5.exception.NonLibdnf5Exception,
    libdnf5.exception.UserAssertionError,
    libdnf5.exception.AssertionError,
    rpm.error,
    # Some of what C++ throws arrives without a class of its own.
    RuntimeError,
)


def words(error: BaseException) -> str:
    """What went wrong, with every cause, a line each; str() of an exception of the library tells the first alone."""
    in_full = getattr(error, "format", None)
    text = in_full(libdnf5.exception.FormatDetailLevel_Plain) if in_full is not None else str(error)
    return "\n".join(filter(None, (line.strip() for line in text.splitlines())))


class in_full:
    """Context manager: a failure of the library in the block becomes one of `kind`, with every cause."""

    # Not a generator: contextlib's frames would tie an exception to itself, and with it what the frames below hold.

    def __init__(self, kind: Type[YumBaseError] = YumBaseError) -> None:
        self._kind = kind

    def __enter__(self) -> None:
        """Nothing to prepare."""

    def __exit__(
        self, kind: Optional[Type[BaseException]], error: Optional[BaseException], _trace: Optional[TracebackType]
    ) -> None:
        if isinstance(error, FAILURES) and not isinstance(error, YumBaseError):
            raise self._kind(words(error)) from error
