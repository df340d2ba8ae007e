# SPDX-License-Identifier: GPL-2.0-or-later
"""Exceptions as the engine expects them: `yum.Errors`' classes with complete texts.

Which classes they are is the library's matter.
"""

from __future__ import annotations

import os
from types import TracebackType
from typing import TYPE_CHECKING, Optional, Tuple, Type

from .credentials import masked
from .texts import _


if TYPE_CHECKING:

    class YumBaseError(Exception):
        """Anything that fails. The engine shows `value`."""

        value: str

    class RepoError(YumBaseError):
        """A repository cannot be read."""

    class LockError(YumBaseError):
        """The lock cannot be had."""

    class GroupsError(YumBaseError):
        """There are no groups."""

    FAILURES: Tuple[Type[Exception], ...]
    """What the library raises, these included."""

    def words(error: Exception) -> str:
        """All that a failure says."""

else:
    from .backend import exceptions

    YumBaseError = exceptions.YumBaseError
    RepoError = exceptions.RepoError
    LockError = exceptions.LockError
    GroupsError = exceptions.GroupsError
    FAILURES = exceptions.FAILURES
    words = exceptions.words

REFRESH = _("A part of the transaction may have been done: please refresh the list of packages.")
"""Ends the text of a failure behind which the table may no longer be right."""

ALL_DONE = _(
    "The packages have been changed as asked, and only what comes after that has failed: please refresh the list of "
    "packages."
)
"""Ends the text of a failure behind a transaction that has done all it was to do."""

def os_error_text(error: OSError) -> str:
    """Names the path (both, where two are concerned) and the cause."""
    cause = error.strerror or (os.strerror(error.errno) if error.errno else str(error))
    names = (error.filename, error.filename2)
    paths = [os.fsdecode(name) for name in names if isinstance(name, (str, bytes))]
    if not paths:
        return str(error) or cause
    return f"{' -> '.join(paths)}: {cause}"


class reported_as:
    """Context manager: lets the block fail with `kind` only, whatever library failed.

    `doing` starts the text, from which passwords are taken out. BrokenPipeError passes: the engine has
    words of its own for it. So do exceptions that no library raises (faults of this package), which the
    engine shows as internal errors.
    """

    # Not a generator: contextlib's frames would tie an exception to itself, and with it everything that
    # the frames below hold, until the garbage collector comes by.

    def __init__(self, kind: Type[YumBaseError], doing: str = "") -> None:
        self._kind = kind
        self._doing = doing

    def __enter__(self) -> None:
        """Nothing to prepare."""

    def __exit__(
        self, kind: Optional[Type[BaseException]], error: Optional[BaseException], _trace: Optional[TracebackType]
    ) -> None:
        if isinstance(error, BrokenPipeError):
            return
        if isinstance(error, OSError):
            raise self._kind(_text(self._doing, os_error_text(error))) from error
        if isinstance(error, FAILURES):
            # The engine shows `value`, which some of the library's classes leave empty.
            if not (isinstance(error, self._kind) and error.value == masked(str(error))):
                raise self._kind(_text(self._doing, words(error))) from error


def _text(doing: str, cause: str) -> str:
    return masked(f"{doing}: {cause}" if doing else cause)
