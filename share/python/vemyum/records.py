# SPDX-License-Identifier: GPL-2.0-or-later
"""File lists and changelogs as the repositories' metadata files hold them, a record for each package.

libsolv can tell them too, but looks for each directory of each file among all directories that stand beside it:
0.3 ms a package in a large repository, which is too long for a search through all of them.
"""

from __future__ import annotations

import errno
import html
import os
import re
import subprocess
import tempfile
from typing import Dict, Iterator, List, Optional, Tuple

import rpm

from . import stop
from .text import valid
from .texts import _

_CHUNK = 1 << 20
_LIST = re.compile(rb"<(?:metadata|filelists|otherdata)\b")
_PACKAGE = re.compile(rb"<package\b")
_RECORD = re.compile(rb"""<package\b[^>]*?\bpkgid=["']([0-9a-fA-F]+)["']""")
_FILE = re.compile(r"""<file(?: type="file")?>([^<]*)<""")
_END = r"""[^<]*?(?:/>|>([^<]*)</changelog)"""
_CHANGE = re.compile(r"""<changelog author="([^"]*)" date="(-?[0-9]+)\"""" + _END)
_CHANGE_IN_ANY_ORDER = re.compile(
    r"""<changelog\b(?=[^<]*?\bauthor="([^"]*)")(?=[^<]*?\bdate="(-?[0-9]+)")""" + _END
)
_COMPRESSIONS = {".gz": "gzdio", ".xz": "xzdio", ".bz2": "bzdio", ".zst": "zstdio", ".xml": "ufdio"}


def chunks(path: str, size: int = _CHUNK) -> Iterator[bytes]:
    """The content of a metadata file, uncompressed, in pieces of `size` bytes at most. OSError, Stopped."""
    for chunk in _chunks(path, size):
        stop.check()
        yield chunk


def _chunks(path: str, size: int) -> Iterator[bytes]:
    # rpm tells no path, and other programs no cause.
    os.stat(path)
    ending = os.path.splitext(path)[1]
    if ending == ".zck":
        yield from _unzck(path, size)
        return
    stream = rpm.fd(path, "r", _COMPRESSIONS.get(ending, "ufdio"))
    try:
        while True:
            chunk = stream.read(size)
            if not chunk:
                return
            yield chunk
    finally:
        stream.close()


def _unzck(path: str, size: int) -> Iterator[bytes]:
    """By the program of the library that dnf fetches such files with; rpm doesn't read them. OSError."""
    with subprocess.Popen(["unzck", "--stdout", path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as unzck:
        assert unzck.stdout is not None
        while True:
            chunk = unzck.stdout.read(size)
            if not chunk:
                break
            yield chunk
    if unzck.returncode:
        raise OSError(errno.EIO, _("unzck cannot read it"), path)


class Unrecognised(OSError):
    """The file can be read, but not as metadata."""


class Recognition:
    """Tells a metadata file without packages from one in which none is recognised: its form may be unknown."""

    def __init__(self, path: str) -> None:
        self._path = path
        self._known = False
        self._is_list = False
        self._lists_packages = False

    def see(self, data: bytes, known: bool) -> None:
        """Takes in a piece of the file that cuts no tag; `known` says whether a package was recognised in it."""
        self._known = self._known or known
        if not self._known:
            self._is_list = self._is_list or _LIST.search(data) is not None
            self._lists_packages = self._lists_packages or _PACKAGE.search(data) is not None

    def check(self) -> None:
        """To be called at the end of the file. Unrecognised."""
        if not self._known and (self._lists_packages or not self._is_list):
            raise Unrecognised(errno.EILSEQ, _("no package is recognised in it"), self._path)


class Records:
    """The records of one metadata file. They lie uncompressed in a file without a name, not in memory."""

    def __init__(self, path: str) -> None:
        """Reads the file through. OSError, Unrecognised."""
        self._places: Dict[bytes, int] = {}
        """By a package's checksum, in hexadecimal digits: its place among the starts."""
        self._starts: List[int] = []
        self._file = tempfile.TemporaryFile(buffering=0, dir=os.path.dirname(path))
        try:
            self._copy(path)
        except BaseException:
            self.close()
            raise

    def _copy(self, path: str) -> None:
        written, rest = 0, b""
        recognition = Recognition(path)
        for chunk in chunks(path):
            data = rest + chunk
            # A tag may be cut in two by the end of the chunk.
            cut = data.rfind(b"<")
            end = cut if cut >= 0 and data.find(b">", cut) < 0 else len(data)
            self._write(data[:end], written)
            recognition.see(data[:end], bool(self._starts))
            written, rest = written + end, data[end:]
        self._write(rest, written)
        recognition.see(rest, bool(self._starts))
        recognition.check()
        self._starts.append(written + len(rest))

    def _write(self, data: bytes, offset: int) -> None:
        for match in _RECORD.finditer(data):
            self._places[match.group(1).lower()] = len(self._starts)
            self._starts.append(offset + match.start())
        while data:
            data = data[self._file.write(data) :]

    def record(self, checksum: str) -> Optional[bytes]:
        """What the file says of the package with this checksum, in hexadecimal digits, as XML; None where it says
        nothing."""
        place = self._places.get(checksum.encode())
        if place is None:
            return None
        start = self._starts[place]
        return os.pread(self._file.fileno(), self._starts[place + 1] - start, start)

    def close(self) -> None:
        self._file.close()


def files(record: bytes) -> List[str]:
    """The names of the files; directories and ghosts are none."""
    text = valid(record)
    names = _FILE.findall(text)
    return [_decoded(name) for name in names] if "&" in text else names


def changes(record: bytes) -> List[Tuple[int, str, str]]:
    """Tuples of time, author and text, the newest first as in a header."""
    text = valid(record)
    found = _CHANGE.findall(text)
    if len(found) != text.count("<changelog"):
        found = _CHANGE_IN_ANY_ORDER.findall(text)
    return [(int(date), _decoded(author), _decoded(words)) for author, date, words in reversed(found)]


def _decoded(text: str) -> str:
    """The text that XML holds; the five names are by far the most frequent."""
    if "&" not in text:
        return text
    if "&#" in text:
        return html.unescape(text)
    text = text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", '"').replace("&apos;", "'")
    return text.replace("&amp;", "&")
