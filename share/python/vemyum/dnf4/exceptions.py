# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf raises, and which of its classes stand for the engine's: one of dnf's that passes through is caught all the
same."""

from __future__ import annotations

import dnf.exceptions
import hawkey
import libdnf.error
import rpm

YumBaseError = dnf.exceptions.Error
RepoError = dnf.exceptions.RepoError
LockError = dnf.exceptions.LockError
GroupsError = dnf.exceptions.CompsError

FAILURES = (
    dnf.exceptions.Error,
    hawkey.Exception,
    libdnf.error.Error,
    rpm.error,
    # libdnf's C++ exceptions (its databases, the configuration's parsers) arrive as RuntimeError.
    RuntimeError,
)


def words(error: Exception) -> str:
    """All that a failure says."""
    return str(error)
