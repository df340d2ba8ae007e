# SPDX-License-Identifier: GPL-2.0-or-later
"""Texts that the engine can take: what cannot be UTF-8, or would end a C string early, is replaced."""

from __future__ import annotations

from typing import Any

REPLACEMENT = "\N{REPLACEMENT CHARACTER}"


def valid(text: Any) -> str:
    """`text` as a str without lone surrogates and NULs; bytes count as UTF-8, other objects by str()."""
    if isinstance(text, (bytes, bytearray)):
        text = text.decode("utf-8", "replace")
    elif not isinstance(text, str):
        text = str(text)
    if text.isascii():
        return text.replace("\0", REPLACEMENT) if "\0" in text else text
    try:
        text.encode("utf-8")
    except UnicodeEncodeError:
        # rpm's headers hold bytes of any encoding; Python brings them as lone surrogates.
        text = text.encode("utf-8", "surrogateescape" if _escaped(text) else "replace")
        text = text.decode("utf-8", "replace")
    return text.replace("\0", REPLACEMENT)


def _escaped(text: str) -> bool:
    return not any("\ud800" <= c <= "\udc7f" or "\udd00" <= c <= "\udfff" for c in text)


def whole(number: Any) -> int:
    """An int for the host's number formats: dnf gives floats and None for sizes that it doesn't know."""
    return int(number) if number else 0
