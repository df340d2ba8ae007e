# SPDX-License-Identifier: GPL-2.0-or-later
"""Repositories whose address ends in a query, as in "http://host/buffet?login=me&key=secret&path=/os".

What is asked for stands behind the whole address: "…&path=/os/repodata/repomd.xml". A library would put it in front of
the question mark, where no such server looks for it. So the metadata of these repositories is fetched here, file by
file, into the place where the library keeps it, and it finds it there.
"""

from __future__ import annotations

import contextlib
import os
import shutil
import tempfile
from typing import Iterator, List, Optional, Protocol, Sequence

from . import host, stop
from .errors import FAILURES, RepoError, words
from .repomd import FOLDER, NAME, File, join, verify
from .texts import _
from .webpage import told


class Repository(Protocol):
    """One of these, in a library."""

    id: str
    cache: str
    """The directory in which the library keeps the metadata."""
    signed: bool
    """Whether a signature of the metadata is asked for."""

    def download(self, address: str, target: str) -> None:
        """Into a file that isn't there yet. The library's failures."""

    def wanted(self, repomd: str) -> List[File]:
        """The files that this one lists and the library wants. RepoError."""

    def age_file(self) -> str:
        """Of what is kept the file by which the library tells how old it is."""


def fetch(repository: Repository, addresses: Sequence[str], kept: bool, meter: Optional[str]) -> None:
    """From the first address that works. `kept` tells whether the cache holds metadata that may still be the newest;
    `meter` is the directory that the progress names, None for no progress.

    RepoError with the library's words for the last address that was tried; OSError.
    """
    if repository.signed:
        raise RepoError(_("repo_gpgcheck is not possible for an address with a query"))
    os.makedirs(repository.cache, exist_ok=True)
    stage = tempfile.mkdtemp(prefix="tmpdir.", dir=repository.cache)
    try:
        os.mkdir(os.path.join(stage, FOLDER))
        fault: Optional[Exception] = None
        for address in addresses:
            stop.check()
            try:
                _fetch_from(address, repository, stage, kept, meter)
                return
            except FAILURES as error:
                fault = error
        raise RepoError(words(fault) if fault is not None else "") from fault
    finally:
        shutil.rmtree(stage, ignore_errors=True)


def _fetch_from(address: str, repository: Repository, stage: str, kept: bool, meter: Optional[str]) -> None:
    acts = f"{meter}/{repository.id}" if meter is not None else None
    place = os.path.join(repository.cache, FOLDER)
    repomd = os.path.join(stage, FOLDER, NAME)
    with _act(acts, NAME, 0):
        _download(repository, address, f"{FOLDER}/{NAME}", repomd)
        page = told(join(address, f"{FOLDER}/{NAME}"), _content(repomd))
        if page is not None:
            raise RepoError(page)
    if kept and _content(repomd) == _content(os.path.join(place, NAME)):
        os.utime(repository.age_file())
        return
    files = repository.wanted(repomd)
    with _act(acts, "primary", sum(file.size for file in files)):
        done = 0
        for file in files:
            target = os.path.join(stage, file.href)
            _download(repository, address, file.href, target)
            verify(file, target)
            done += file.size
            if acts is not None:
                host.collect_meter_update(done)
    shutil.rmtree(place, ignore_errors=True)
    os.rename(os.path.join(stage, FOLDER), place)


def _download(repository: Repository, address: str, path: str, target: str) -> None:
    # What an earlier address gave would be gone on with.
    with contextlib.suppress(FileNotFoundError):
        os.unlink(target)
    repository.download(join(address, path), target)


@contextlib.contextmanager
def _act(acts: Optional[str], name: str, size: int) -> Iterator[None]:
    if acts is not None:
        host.collect_meter_start(f"{acts}/{name}", size or None)
    try:
        yield
    finally:
        if acts is not None:
            host.collect_meter_end(size)


def _content(path: str) -> bytes:
    with open(path, "rb") as file:
        return file.read()
