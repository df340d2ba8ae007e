# SPDX-License-Identifier: GPL-2.0-or-later
"""What packages tell beyond the sack: file lists, changelogs, build hosts, the file of their metadata."""

from __future__ import annotations

import html
import os
import re
import sys
from typing import Any, Dict, Iterator, List, Optional, Sequence, Tuple

from . import backend, host, stop
from .backend import FILE_LISTS, PRIMARY, Dependency, Row, Settings, System
from .records import Recognition, Records, Unrecognised, changes, chunks, files
from .sections import RepositorySection
from .text import valid
from .texts import _

_HOSTS = re.compile(rb"""<checksum[^>]*\bpkgid=["']YES["'][^>]*>\s*([0-9a-f]+)\s*<|<rpm:buildhost>([^<]*)<""")


class PackageDetails:
    """The details of one session's packages. `close` must be called; any thread."""

    def __init__(self, system: System) -> None:
        # For as long as there are packages: their rows rest on it.
        self._system = system
        self._file_lists: Dict[str, Records] = {}
        self._changelogs: Dict[str, Records] = {}
        self._hosts: Dict[str, Dict[str, str]] = {}
        self._primary_files: Dict[str, Optional[str]] = {}

    def load_file_lists(self) -> None:
        """Makes the file lists of the enabled repositories quick to reach, with progress.

        They came with the repositories. What cannot be read here is left to the library, which is slow.
        """
        _close_all(self._file_lists)
        for repository in self._system.repositories():
            if not repository.enabled:
                continue
            stop.check()
            host.collect_progress(0, 1, repository.id)
            path = self._system.metadata_file(repository.id, FILE_LISTS)
            try:
                if path:
                    self._file_lists[repository.id] = Records(path)
            except OSError as error:
                host.errorlog(
                    host.LEVEL_NOTICE,
                    _("The file lists of {repository} are read slowly: {error}").format(
                        repository=repository.id, error=error
                    ),
                )
            host.collect_progress(1, 1, repository.id)

    def load_changelogs(self, settings: Settings, sections: Sequence[RepositorySection]) -> None:
        """Loads the changelogs of those repositories that are enabled, with progress. Raises as System does, and
        OSError.

        A System of its own fetches them: a library does so only when a repository is first loaded.
        """
        _close_all(self._changelogs)
        system = backend.library().open_system(settings, sections)
        try:
            system.load_changelogs(self._read_changelogs)
        finally:
            system.close()

    def _read_changelogs(self, repository: str, path: Optional[str]) -> None:
        try:
            if path:
                self._changelogs[repository] = Records(path)
        except (FileNotFoundError, Unrecognised) as error:
            # Also of a program that reads it. The other repositories' are none the worse for it.
            host.errorlog(host.LEVEL_NOTICE, _unreadable(repository, error))

    def files(self, row: Row) -> List[str]:
        """The names of a package's files, without directories. The library, asked before the file lists are loaded,
        tells directories by what they hold."""
        record = self._record(self._file_lists, row)
        if record is not None:
            return files(record)
        names = self._system.files(row)
        # It keeps bare names; what other names lie below cannot be a file.
        directories = {os.path.dirname(name) for name in names}
        return [valid(name) for name in names if name not in directories]

    def changelog(self, row: Row) -> List[Tuple[int, str, str]]:
        record = self._record(self._changelogs, row)
        return [] if record is None else changes(record)

    def changes(self, repository: str, checksum: str) -> List[Tuple[int, str, str]]:
        """The changelog of the package of a repository that has this checksum."""
        records = self._changelogs.get(repository)
        record = records.record(checksum) if records is not None else None
        return [] if record is None else changes(record)

    def dependencies(self, row: Row, kind: str) -> List[Dependency]:
        return self._system.dependencies(row, kind)

    def header(self, row: Row) -> Any:
        return self._system.header(row)

    def local_path(self, row: Row) -> Optional[str]:
        return self._system.local_path(row)

    def build_host(self, row: Row) -> Optional[str]:
        """The build host of an available package, None where the metadata doesn't tell it.

        libsolv leaves it out, so the first question for a repository reads its metadata through.
        """
        repository = row.reponame
        hosts = self._hosts.get(repository)
        if hosts is None:
            file = self.primary_file(repository)
            hosts = self._hosts_of(repository, file) if file else {}
            self._hosts[repository] = hosts
        checksum = self._system.checksum(row)
        return None if checksum is None else hosts.get(checksum)

    @staticmethod
    def _hosts_of(repository: str, file: str) -> Dict[str, str]:
        """None where the file cannot be read: one question about a package is not what that should be told by."""
        try:
            return dict(_build_hosts(file))
        except OSError as error:
            host.log(host.LEVEL_NOTICE, _unreadable(repository, error))
            return {}

    def primary_file(self, repository: str) -> Optional[str]:
        """The file of the repository's package metadata, None for one that is not loaded."""
        if repository not in self._primary_files:
            self._primary_files[repository] = self._system.metadata_file(repository, PRIMARY)
        return self._primary_files[repository]

    def _record(self, records: Dict[str, Records], row: Row) -> Optional[bytes]:
        found = records.get(row.reponame)
        checksum = self._system.checksum(row) if found is not None else None
        return found.record(checksum) if found is not None and checksum is not None else None

    def close(self) -> None:
        _close_all(self._file_lists)
        _close_all(self._changelogs)
        self._hosts.clear()


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
