# SPDX-License-Identifier: GPL-2.0-or-later
"""Repository files that aren't UTF-8, over which dnf stumbles.

The configuration editor knows bytes: whatever a user types into it beyond ASCII is one byte a character,
Latin-1, in texts and in names of files. Such bytes are read here as the characters that they were.
"""

from __future__ import annotations

import codecs
import contextlib
import logging
import tempfile
from typing import Any, Iterator, Optional, Tuple

import dnf.conf.read

from .errors import os_error_text
from .text import valid
from .texts import _

_UTF8_ELSE_LATIN1 = "vem.latin1"


def _as_latin1(error: UnicodeError) -> Tuple[str, int]:
    if not isinstance(error, UnicodeDecodeError):
        raise error
    return error.object[error.start : error.end].decode("latin-1"), error.end


codecs.register_error(_UTF8_ELSE_LATIN1, _as_latin1)


class RepositoryReader(dnf.conf.read.RepoReader):
    """dnf's reader of all configured repositories."""

    def _get_repos(self, repofn: str) -> Iterator[Any]:
        with _utf8_file(repofn) as file:
            for repo in super()._get_repos(file):
                repo.repofile = valid(repofn)
                yield repo


@contextlib.contextmanager
def _utf8_file(path: str) -> Iterator[str]:
    """The name of a file in UTF-8 with the text of `path`: `path` itself, or else a copy for the time being.

    Only those bytes that can't be UTF-8 count as Latin-1. A file that can't be opened is left to the reader,
    for whom it is an empty one.
    """
    try:
        with open(path, "rb") as file:
            content = file.read()
    except OSError as error:
        if not isinstance(error, FileNotFoundError):
            logging.getLogger("dnf").warning("%s", os_error_text(error))
        yield path
        return
    fault = _fault(path, content)
    if fault is None:
        yield path
        return
    logging.getLogger("dnf").warning("%s", fault)
    # For its owner's eyes only: an address may hold a password.
    with tempfile.NamedTemporaryFile(prefix="vem-", suffix=".repo") as copy:
        copy.write(content.decode("utf-8", _UTF8_ELSE_LATIN1).encode("utf-8"))
        copy.flush()
        yield copy.name


def _fault(path: str, content: bytes) -> Optional[str]:
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
