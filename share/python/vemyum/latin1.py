# SPDX-License-Identifier: GPL-2.0-or-later
"""Repository files that aren't UTF-8.

The configuration editor knows bytes: whatever a user types into it beyond ASCII is one byte a character, Latin-1, in
texts and in names of files. Such bytes are read here as the characters that they were.
"""

from __future__ import annotations

import codecs
import logging
from typing import List, Optional, Tuple

from .errors import os_error_text
from .messages import LOGGER
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


def content_of(path: str, refused: List[str]) -> Optional[Tuple[bytes, bool]]:
    """What is in a repository file, and whether it is to be read as `decoded`, of which the log then tells. None for a
    file that can't be opened, which holds nothing; why is added to `refused`, unless it isn't there."""
    logger = logging.getLogger(LOGGER)
    try:
        with open(path, "rb") as file:
            content = file.read()
    except OSError as error:
        if not isinstance(error, FileNotFoundError):
            logger.warning("%s", os_error_text(error))
            refused.append(os_error_text(error))
        return None
    oddity = fault(path, content)
    if oddity is not None:
        logger.warning("%s", oddity)
    return content, oddity is not None
