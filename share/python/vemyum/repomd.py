# SPDX-License-Identifier: GPL-2.0-or-later
"""What a repository's repomd.xml lists."""

from __future__ import annotations

import os
import urllib.parse
from typing import List, NamedTuple, Optional, Tuple
from xml.etree import ElementTree

from .errors import RepoError
from .texts import _

FOLDER = "repodata"
NAME = "repomd.xml"

_NAMESPACE = "{http://linux.duke.edu/metadata/repo}"
LEFT_OUT = ("_db", "_zck")
"""Endings of the types that hold other forms of what is fetched anyway."""


class File(NamedTuple):
    kind: str
    href: str
    """Below the repository's address."""
    checksum_type: str
    checksum: str
    size: int


def join(address: str, path: str) -> str:
    """The address of a file of the repository. What would end or change a query's value is coded."""
    if "?" in address:
        path = urllib.parse.quote(path, safe="/~:^")
    return f"{address.rstrip('/')}/{path.lstrip('/')}"


def listed(repomd: str, left_out: Tuple[str, ...] = LEFT_OUT) -> List[File]:
    """The files that it lists, without the types that end so. RepoError, OSError."""
    try:
        root = ElementTree.parse(repomd).getroot()
    except ElementTree.ParseError as error:
        raise RepoError(_("{file} parser error: {error}").format(file=NAME, error=error)) from error
    files = []
    for data in root.iter(f"{_NAMESPACE}data"):
        kind = data.get("type", "")
        if left_out and kind.endswith(left_out):
            continue
        location, checksum = data.find(f"{_NAMESPACE}location"), data.find(f"{_NAMESPACE}checksum")
        href = "" if location is None else location.get("href", "")
        if checksum is None or href != f"{FOLDER}/{os.path.basename(href)}":
            raise RepoError(
                _("{file} lists {kind} in a form that is not understood").format(file=NAME, kind=kind)
            )
        size = data.findtext(f"{_NAMESPACE}size") or ""
        files.append(
            File(
                kind,
                href,
                checksum.get("type", ""),
                (checksum.text or "").strip(),
                int(size) if size.isdecimal() else 0,
            )
        )
    return files


def verify(file: File, path: str) -> None:
    """RepoError where `path` holds something else than was announced. OSError."""
    found = digest(path, file.checksum_type)
    if found is None:
        raise RepoError(
            _("{file}: the checksum type {type} is not known").format(file=file.href, type=file.checksum_type)
        )
    if found != file.checksum.lower():
        raise RepoError(_("{file}: the checksum is not the announced one").format(file=file.href))


def digest(path: str, kind: str) -> Optional[str]:
    """The checksum of a file in lower-case hexadecimal digits; None for a kind that isn't known. OSError."""
    import hashlib  # only here: with it come 2 MiB that few need

    try:
        found = hashlib.new("sha1" if kind == "sha" else kind)
    except ValueError:
        return None
    if not found.digest_size:
        # A digest of any length proves nothing.
        return None
    with open(path, "rb") as stream:
        for chunk in iter(lambda: stream.read(1 << 20), b""):
            found.update(chunk)
    return found.hexdigest()
