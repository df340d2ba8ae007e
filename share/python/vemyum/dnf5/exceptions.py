# SPDX-License-Identifier: GPL-2.0-or-later
"""What libdnf5 raises, and the classes under which the engine gets to know it."""

from __future__ import annotations

import libdnf5.exception
import rpm

from ..exceptions import GroupsError as GroupsError
from ..exceptions import LockError as LockError
from ..exceptions import RepoError as RepoError
from ..exceptions import YumBaseError as YumBaseError

FAILURES = (
    YumBaseError,
    libdnf5.exception.Error,
    # Beside that one, not below it.
    libdnf5.exception.NonLibdnf5Exception,
    libdnf5.exception.UserAssertionError,
    libdnf5.exception.AssertionError,
    rpm.error,
    # Some of what C++ throws arrives without a class of its own.
    RuntimeError,
)
"""What the library raises, these included."""


def words(error: BaseException) -> str:
    """What went wrong, with every cause, a line each; str() of an exception of the library tells the first alone."""
    in_full = getattr(error, "format", None)
    if in_full is None:
        return str(error)
    text = in_full(libdnf5.exception.FormatDetailLevel_Plain)
    return "\n".join(filter(None, (line.strip() for line in text.splitlines())))
