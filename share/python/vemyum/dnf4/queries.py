# SPDX-License-Identifier: GPL-2.0-or-later
"""Repositories whose address ends in a query, as in "http://host/buffet?login=me&key=secret&path=/os".

What is asked for stands behind the whole address: "…&path=/os/repodata/repomd.xml". dnf's library would put
it in front of the question mark, where no such server looks for it. So the metadata of these repositories
is fetched here, file by file, into the place where dnf keeps it, and dnf finds it there. Packages are asked
for by their complete address.
"""

from __future__ import annotations

import functools
import os
import shutil
import tempfile
from typing import Any, Dict, Iterable, List, Optional

import dnf.repo
from dnf.exceptions import RepoError

from .. import host
from ..backend import CHANGELOGS
from ..repomd import FOLDER, LEFT_OUT, NAME, join, listed, verify
from ..texts import _
from ..webpage import told


def base_addresses(repo: dnf.repo.Repo) -> List[str]:
    """The base addresses of a repository if one has a query and dnf would use them; else none."""
    addresses = [str(address) for address in repo.baseurl]
    if repo.metalink or repo.mirrorlist or not any("?" in address for address in addresses):
        return []
    return addresses


def rounds(payloads: Iterable[Any]) -> int:
    """How often these payloads are worth trying: as often as one of such repositories has addresses."""
    return max((len(base_addresses(payload.pkg.repo)) for payload in payloads), default=0) or 1


def ask_by_complete_address(payloads: Iterable[Any], turn: int) -> None:
    """Lets dnf fetch the packages of such repositories, in the first round (0) from their first address."""
    for payload in payloads:
        addresses = base_addresses(payload.pkg.repo)
        if addresses and not payload.pkg.baseurl:
            address = addresses[min(turn, len(addresses) - 1)]
            payload._target_params = functools.partial(_parameters, payload, address)


def _parameters(payload: Any, address: str) -> Dict[str, Any]:
    parameters: Dict[str, Any] = type(payload)._target_params(payload)
    parameters["relative_url"] = join(address, parameters["relative_url"])
    return parameters


class MetadataFetcher:
    """Brings the metadata of one repository into dnf's cache. Blocks; any thread."""

    def __init__(self, repo: dnf.repo.Repo, meter: Optional[str]) -> None:
        """`meter` is the directory that the progress names, None for no progress."""
        self._repo = repo
        self._meter = meter
        self._cache: str = repo._repo.getCachedir()

    def fetch(self, lazy: bool) -> None:
        """Fetches what is missing, or older than the configuration allows unless `lazy`.

        RepoError with the library's words for the last address that was tried; OSError.
        """
        cached = self._repo._repo.loadCache(False)
        if cached and (lazy or not self._repo._repo.isExpired()):
            return
        if self._repo.repo_gpgcheck:
            raise RepoError(_("repo_gpgcheck is not possible for an address with a query"))
        os.makedirs(self._cache, exist_ok=True)
        stage = tempfile.mkdtemp(prefix="tmpdir.", dir=self._cache)
        try:
            os.mkdir(os.path.join(stage, FOLDER))
            self._fetch_from_any(stage, cached)
            # dnf keeps what it looked at before.
            self._repo._repo.loadCache(False)
        finally:
            shutil.rmtree(stage, ignore_errors=True)

    def _fetch_from_any(self, stage: str, cached: bool) -> None:
        fault: Optional[Exception] = None
        for address in base_addresses(self._repo):
            try:
                self._fetch_from(address, stage, cached)
                return
            except (RepoError, RuntimeError) as error:
                fault = error
        raise RepoError(str(fault)) from fault

    def _fetch_from(self, address: str, stage: str, cached: bool) -> None:
        repomd = os.path.join(stage, FOLDER, NAME)
        self._begin(NAME, 0)
        self._download(address, f"{FOLDER}/{NAME}", repomd)
        page = told(join(address, f"{FOLDER}/{NAME}"), _content(repomd))
        if page is not None:
            raise RepoError(page)
        self._end(os.path.getsize(repomd))
        if cached and _content(repomd) == _content(os.path.join(self._cache, FOLDER, NAME)):
            # dnf tells the age by this file.
            os.utime(self._repo.get_metadata_path("primary"))
            return

        files = listed(repomd, LEFT_OUT if self._repo.load_metadata_other else (*LEFT_OUT, CHANGELOGS))
        total = sum(file.size for file in files)
        self._begin("primary", total)
        done = 0
        for file in files:
            target = os.path.join(stage, file.href)
            self._download(address, file.href, target)
            verify(file, target)
            done += file.size
            if self._meter is not None:
                host.collect_meter_update(done)
        self._end(total)
        kept = os.path.join(self._cache, FOLDER)
        shutil.rmtree(kept, ignore_errors=True)
        os.rename(os.path.join(stage, FOLDER), kept)

    def _download(self, address: str, path: str, target: str) -> None:
        # The library opens the descriptor once more, for writing and reading.
        with open(target, "w+b") as file:
            self._repo._repo.downloadUrl(join(address, path), file.fileno())

    def _begin(self, act: str, size: int) -> None:
        if self._meter is not None:
            host.collect_meter_start(f"{self._meter}/{self._repo.id}/{act}", size or None)

    def _end(self, size: int) -> None:
        if self._meter is not None:
            host.collect_meter_end(size)


def _content(path: str) -> bytes:
    with open(path, "rb") as file:
        return file.read()
