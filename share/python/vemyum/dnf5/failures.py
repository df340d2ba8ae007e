# SPDX-License-Identifier: GPL-2.0-or-later
"""libdnf5's exceptions, with all that they tell."""

from __future__ import annotations

from types import TracebackType
from typing import Optional, Type

from ..errors import YumBaseError
from .exceptions import FAILURES as FAILURES
from .exceptions import words as words


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
