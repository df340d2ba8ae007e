# SPDX-License-Identifier: GPL-2.0-or-later
"""The order of versions of one package, by rpm's own rule: the order of packages as such is the library's matter."""

from __future__ import annotations

from functools import cmp_to_key
from typing import Any, Tuple

import rpm


def compare(one: Any, other: Any) -> int:
    """Of two rows of the library: above zero where the version of the first is the newer one, below where the other's
    is."""
    return int(rpm.labelCompare(_label(one), _label(other)))


oldest_first = cmp_to_key(compare)
"""A key to sort rows by."""


def _label(row: Any) -> Tuple[str, str, str]:
    return (str(row.epoch), row.version, row.release)
