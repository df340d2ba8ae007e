# SPDX-License-Identifier: GPL-2.0-or-later
"""Repository files that aren't UTF-8.

The configuration editor knows bytes: whatever a user types into it beyond ASCII is one byte a character, Latin-1, in
texts and in names of files. Such bytes are read here as the characters that they were.
"""

from __future__ import annotations

import codecs
from typing import Optional, Tuple

from .texts import _

_UTF8_ELSE_LATIN1 = "vem.latin1"


def _as_latin1(error: UnicodeError) -> Tuple[str, int]:
    if not isinstance(error, UnicodeDecodeError):
        raise error
    return error.object[error.start : error.end].decode("latin-1"), error.end


codecs.register_error(_UTF8_ELSE_LATIN1, _as_latin1)


def decoded(content: bytes) -> str:
    """Only those bytes that can't be UTF-8 count as Latin-1."""
    return content.decode("utf-8", _UTF8_ELSE_LATIN1)


def fault(path: str, content: bytes) -> Optional[str]:
    """Tells where the first thing is that isn't UTF-8."""
    try:
        path.encode("utf-8")
    except UnicodeEncodeError:
        return _("The name of {path} is read as Latin-1; other programs may refuse it").format(path=path)
    try:
        content.decode("utf-8")
    except UnicodeDecodeError as error:
        line = content.count(b"\n", 0, error.start) + 1
        return _("{path}, line {line}, is read as Latin-1; other programs may refuse it").format(
            path=path, line=line
        )
    return None
