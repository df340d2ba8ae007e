# SPDX-License-Identifier: GPL-2.0-or-later
"""What packages tell beyond the sack: changelogs, build hosts, the file of their metadata."""

from __future__ import annotations

import html
import re
import sys
import time
from typing import Dict, Iterator, List, Optional, Tuple

import dnf.conf
import dnf.package
import rpm

from .base import Base, open_base
from .text import valid

_CHUNK = 1 << 20
_HOSTS = re.compile(rb'<checksum[^>]*\bpkgid="YES"[^>]*>\s*([0-9a-f]+)\s*<|<rpm:buildhost>([^<]*)<')
_COMPRESSIONS = {".gz": "gzdio", ".xz": "xzdio", ".bz2": "bzdio", ".zst": "zstdio", ".xml": "ufdio"}


class PackageDetails:
    """The details of one session's packages. `close` must be called; any thread."""

    def __init__(self, base: Base) -> None:
        self._base = base
        self._changelogs: Optional[Base] = None
        self._hosts: Dict[str, Dict[str, str]] = {}
        self._metadata_files: Dict[str, Optional[str]] = {}

    def load_changelogs(self, conf: dnf.conf.MainConf, enabled: Dict[str, bool]) -> None:
        """Loads the changelogs of the enabled repositories, with progress. Raises as Base does.

        They lie in a Base of their own: dnf takes them in only when a repository is first loaded.
        """
        self._close_changelogs()
        base = open_base(conf, enabled)
        try:
            for repo in base.repos.iter_enabled():
                repo.load_metadata_other = True
            base.load_everything()
        except BaseException:
            base.close()
            raise
        self._changelogs = base

    def changelog(self, package: dnf.package.Package) -> List[Tuple[int, str, str]]:
        if self._changelogs is None:
            return []
        query = self._changelogs.sack.query().available()
        query = query.filter(name=package.name, evr=package.evr, arch=package.arch, reponame=package.reponame)
        return [
            (int(time.mktime(entry["timestamp"].timetuple())), valid(entry["author"]), valid(entry["text"]))
            for found in list(query)[:1]
            for entry in found.changelogs
        ]

    def build_host(self, package: dnf.package.Package) -> Optional[str]:
        """The build host of an available package, None where the metadata doesn't tell it.

        libsolv leaves it out, so the first question for a repository reads its metadata through.
        """
        repository = package.reponame
        hosts = self._hosts.get(repository)
        if hosts is None:
            file = self.metadata_file(repository)
            hosts = dict(_build_hosts(file)) if file else {}
            self._hosts[repository] = hosts
        _, checksum = package.returnIdSum()
        return hosts.get(checksum)

    def metadata_file(self, repository: str) -> Optional[str]:
        """The file of the repository's package metadata, None for one that is not loaded."""
        if repository not in self._metadata_files:
            repo = self._base.repos.get(repository)
            loaded = repo is not None and repo.metadata is not None
            self._metadata_files[repository] = repo.get_metadata_path("primary") or None if loaded else None
        return self._metadata_files[repository]

    def close(self) -> None:
        self._close_changelogs()
        self._hosts.clear()

    def _close_changelogs(self) -> None:
        if self._changelogs is not None:
            self._changelogs.close()
            self._changelogs = None


def _build_hosts(file: str) -> Iterator[Tuple[str, str]]:
    """Pairs of a package's checksum and its build host, from a repository's primary metadata."""
    suffix = file[file.rfind(".") :]
    stream = rpm.fd(file, "r", _COMPRESSIONS.get(suffix, "ufdio"))
    try:
        checksum, rest = None, b""
        while True:
            chunk = stream.read(_CHUNK)
            if not chunk:
                return
            data = rest + chunk
            end = 0
            for match in _HOSTS.finditer(data):
                end = match.end()
                if match.group(1):
                    checksum = match.group(1).decode("ascii")
                elif checksum:
                    yield checksum, sys.intern(html.unescape(valid(match.group(2))))
            # A tag may be cut in two by the end of the chunk.
            rest = data[max(end, data.rfind(b">", 0, max(0, len(data) - 1024))) :]
    finally:
        stream.close()
