# SPDX-License-Identifier: GPL-2.0-or-later
"""A repository as its section of the configuration had it."""

from __future__ import annotations

import dataclasses
from typing import Dict


@dataclasses.dataclass(frozen=True)
class RepositorySection:
    """`name` and the values of `options` are as they were written, with variables in them. An address or an option
    may hold a password: a section is never shown."""

    name: str
    options: Dict[str, str]
    enabled: bool
    """Whether the session uses it, whatever the option says."""
