# SPDX-License-Identifier: GPL-2.0-or-later
"""Web pages that are sent in place of what was asked for: by a proxy that wants a login, by a site that has moved."""

from __future__ import annotations

import contextlib
import re
from html.parser import HTMLParser
from typing import Callable, List, Optional, Sequence, Tuple

from .texts import _

_BEGINNING = re.compile(
    rb"(?:\xef\xbb\xbf)?\s*(?:<\?xml[^>]*>\s*)?(?:<!--(?:(?!-->).)*-->\s*)*"
    rb"<(?:!doctype\s+html|html|head|body|script|title|meta)\b",
    re.I | re.S,
)
_ENOUGH = 1 << 16
"""Bytes that are looked at."""
_WORDS = 12
_UNSEEN = ("script", "style", "template", "noscript")


class _Words(HTMLParser):
    """The words that a page shows, its title first."""

    def __init__(self) -> None:
        super().__init__()
        self.words: List[str] = []
        self._unseen = 0

    def handle_starttag(self, tag: str, attrs: List[Tuple[str, Optional[str]]]) -> None:
        self._unseen += tag in _UNSEEN

    def handle_endtag(self, tag: str) -> None:
        self._unseen -= tag in _UNSEEN and self._unseen > 0

    def handle_data(self, data: str) -> None:
        if not self._unseen:
            self.words += data.split()


def told(address: str, content: bytes) -> Optional[str]:
    """One sentence with the first words of the page; None for content that is none."""
    content = content[:_ENOUGH]
    if not _BEGINNING.match(content):
        return None
    page = _Words()
    # Where a page is too crooked for the parser, the words before that do.
    with contextlib.suppress(AssertionError, NotImplementedError):
        page.feed(content.decode("utf-8-sig", "replace"))
        page.close()
    return _('{address} gives a web page in place of the metadata. It begins: "{words}"').format(
        address=address, words=" ".join(page.words[:_WORDS])
    )


def asked(mirrors: str, bases: Sequence[str], fetch: Callable[[str], bytes]) -> Optional[str]:
    """Asks once more for what begins the reading of a repository, where a program cannot read the answer, and tells
    of a web page. None for anything else, and where there is no answer any more.

    `mirrors` is the address of a metalink or a list of mirrors, empty for none; `fetch` may raise RuntimeError.
    """
    address = mirrors or next((f"{base.rstrip('/')}/repodata/repomd.xml" for base in bases), "")
    if address.startswith(("http://", "https://")):
        with contextlib.suppress(RuntimeError):
            return told(address, fetch(address))
    return None
