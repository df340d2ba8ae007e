# SPDX-License-Identifier: GPL-2.0-or-later
"""What packages tell beyond the sack: file lists, changelogs, build hosts, the file of their metadata."""

from __future__ import annotations

import html
import re
import sys
from typing import Dict, Iterator, List, Optional, Sequence, Tuple

import dnf.conf
import dnf.package
import dnf.repo

from . import host
from .base import Base, open_base
from .metadata import reading_reported
from .records import Recognition, Records, Unrecognised, changes, chunks, files
from .sections import RepositorySection
from .text import valid
from .texts import _

_HOSTS = re.compile(rb"""<checksum[^>]*\bpkgid=["']YES["'][^>]*>\s*([0-9a-f]+)\s*<|<rpm:buildhost>([^<]*)<""")


class PackageDetails:
    """The details of one session's packages. `close` must be called; any thread."""

    def __init__(self, base: Base) -> None:
        self._base = base
        self._file_lists: Dict[str, Records] = {}
        self._changelogs: Dict[str, Records] = {}
        self._hosts: Dict[str, Dict[str, str]] = {}
        self._metadata_files: Dict[str, Optional[str]] = {}

    def load_file_lists(self) -> None:
        """Makes the file lists of the enabled repositories quick to reach, with progress.

        They came with the repositories. What cannot be read here is left to the sack, which is slow.
        """
        _close_all(self._file_lists)
        for repo in self._base.repos.iter_enabled():
            with reading_reported(repo):
                path = repo.get_metadata_path("filelists")
                try:
                    if path:
                        self._file_lists[repo.id] = Records(path)
                except OSError as error:
                    host.errorlog(
                        host.LEVEL_NOTICE,
                        _("The file lists of {repository} are read slowly: {error}").format(
                            repository=repo.id, error=error
                        ),
                    )

    def load_changelogs(self, conf: dnf.conf.MainConf, sections: Sequence[RepositorySection]) -> None:
        """Loads the changelogs of those repositories that are enabled, with progress. Raises as Base does, and OSError.

        A Base of its own fetches them: dnf does so only when a repository is first loaded.
        """
        _close_all(self._changelogs)
        base = open_base(conf, sections)
        try:
            for repo in base.repos.iter_enabled():
                repo.load_metadata_other = True
            base.load_metadata(self._read_changelogs)
        finally:
            base.close()

    def _read_changelogs(self, repo: dnf.repo.Repo) -> None:
        path = repo.get_metadata_path("other")
        try:
            if path:
                self._changelogs[repo.id] = Records(path)
        except (FileNotFoundError, Unrecognised) as error:
            # Also of a program that reads it. The other repositories' are none the worse for it.
            host.errorlog(host.LEVEL_NOTICE, _unreadable(repo.id, error))

    def files(self, package: dnf.package.Package) -> Optional[List[str]]:
        """The names of a package's files, without directories; None where only the sack knows them."""
        record = _record(self._file_lists, package)
        return None if record is None else files(record)

    def changelog(self, package: dnf.package.Package) -> List[Tuple[int, str, str]]:
        record = _record(self._changelogs, package)
        return [] if record is None else changes(record)

    def build_host(self, package: dnf.package.Package) -> Optional[str]:
        """The build host of an available package, None where the metadata doesn't tell it.

        libsolv leaves it out, so the first question for a repository reads its metadata through.
        """
        repository = package.reponame
        hosts = self._hosts.get(repository)
        if hosts is None:
            file = self.metadata_file(repository)
            hosts = self._hosts_of(repository, file) if file else {}
            self._hosts[repository] = hosts
        _, checksum = package.returnIdSum()
        return hosts.get(checksum)

    @staticmethod
    def _hosts_of(repository: str, file: str) -> Dict[str, str]:
        """None where the file cannot be read: one question about a package is not what that should be told by."""
        try:
            return dict(_build_hosts(file))
        except OSError as error:
            host.log(host.LEVEL_NOTICE, _unreadable(repository, error))
            return {}

    def metadata_file(self, repository: str) -> Optional[str]:
        """The file of the repository's package metadata, None for one that is not loaded."""
        if repository not in self._metadata_files:
            repo = self._base.repos.get(repository)
            loaded = repo is not None and repo.metadata is not None
            self._metadata_files[repository] = repo.get_metadata_path("primary") or None if loaded else None
        return self._metadata_files[repository]

    def close(self) -> None:
        _close_all(self._file_lists)
        _close_all(self._changelogs)
        self._hosts.clear()


def _record(records: Dict[str, Records], package: dnf.package.Package) -> Optional[bytes]:
    found, checksum = records.get(package.reponame), package.chksum
    return found.record(checksum[1]) if found is not None and checksum is not None else None


def _close_all(records: Dict[str, Records]) -> None:
    while records:
        records.popitem()[1].close()


def _unreadable(repository: str, error: OSError) -> str:
    return _("The metadata of {repository} cannot be read: {error}").format(repository=repository, error=error)


def _build_hosts(file: str) -> Iterator[Tuple[str, str]]:
    """Pairs of a package's checksum and its build host, from a repository's primary metadata. OSError, Unrecognised."""
    checksum, rest = None, b""
    recognition = Recognition(file)
    for chunk in chunks(file):
        data = rest + chunk
        end = 0
        for match in _HOSTS.finditer(data):
            end = match.end()
            if match.group(1):
                checksum = match.group(1).decode("ascii")
            elif checksum:
                yield checksum, sys.intern(html.unescape(valid(match.group(2))))
        recognition.see(data, checksum is not None)
        # A tag may be cut in two by the end of the chunk.
        rest = data[max(end, data.rfind(b">", 0, max(0, len(data) - 1024))) :]
    recognition.check()
