# SPDX-License-Identifier: GPL-2.0-or-later
"""Users by the numbers under which they had logged in."""

from __future__ import annotations

import functools
import pwd
from typing import Optional

_NOBODY = (-1, 0xFFFFFFFF)
"""The kernel's number for somebody who has never logged in."""


def logged_in(number: Optional[int]) -> bool:
    return number is not None and number not in _NOBODY


def user_name(number: Optional[int]) -> str:
    """Of a user by number; the number itself where it has none, and nothing for somebody who never logged in."""
    return _name(number) if number is not None and logged_in(number) else ""


@functools.lru_cache(maxsize=None)
def _name(number: int) -> str:
    try:
        return pwd.getpwuid(number).pw_name
    except (KeyError, OverflowError):
        return str(number)
