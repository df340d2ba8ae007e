# SPDX-License-Identifier: GPL-2.0-or-later
"""Lists of a repository's mirrors."""

from __future__ import annotations

import html
import re
from typing import Iterator

TRIES = 5
"""Servers that are asked for one file."""

_OF_METALINK = re.compile(r">\s*([^<>\s]+)/repodata/repomd\.xml\s*<")
_MIRROR = re.compile(r"(?:https?|ftp|file)://")


def mirrors_in(content: bytes) -> Iterator[str]:
    """The addresses in a list of mirrors. A metalink may be given where a plain list is asked for."""
    text = content.decode("utf-8", "replace")
    found = map(html.unescape, _OF_METALINK.findall(text)) if "<metalink" in text else iter(text.split())
    return (mirror for mirror in found if _MIRROR.match(mirror))
