# SPDX-License-Identifier: GPL-2.0-or-later
"""Headers of installed packages, with texts that the engine can take."""

from __future__ import annotations

from typing import Any

import rpm

from .text import valid


class Header:
    """An rpm header, read by tag number like the original."""

    __slots__ = ("_header",)

    def __init__(self, header: rpm.hdr) -> None:
        self._header = header

    def __getitem__(self, tag: Any) -> Any:
        """The tag's value: int, str, a list of them; None or an empty list for one that isn't there."""
        value = self._header[tag]
        if isinstance(value, str):
            return valid(value)
        if isinstance(value, list) and value and isinstance(value[0], str):
            return [valid(item) for item in value]
        return value
