# SPDX-License-Identifier: GPL-2.0-or-later
"""One view of the managed system (`backend.System`)."""

from __future__ import annotations

import dataclasses
import errno
import glob
import logging
import os
import re
import urllib.parse
from typing import Any, Callable, Dict, List, Optional, Sequence, Set, Tuple

import libdnf5.repo
import libdnf5.rpm
import rpm

from .. import stop
from ..acts import reading_begins, reading_ends
from ..backend import (
    CHANGELOGS,
    GROUPS,
    Advice,
    Advised,
    Advisory,
    Dependency,
    KeySource,
    OpenEntry,
    PutIn,
    Reason,
    RepositoryState,
)
from ..database import point_rpm_at, unreadable
from ..errors import RepoError, YumBaseError, os_error_text
from ..messages import rpms_words
from ..packages import COMMAND_LINE
from ..reading import drop_damaged, without_durations
from ..sections import RepositorySection
from ..texts import _
from .advisories import Advisories, reboot_advised
from .base import Base, open_base
from .failures import FAILURES, in_full, words
from .history import records
from .keys import Source, load_signed
from .lists import Lists, fitting, installed_rows
from .log import LOGGER
from .metadata import Metadata, fetch_file, told_of
from .progress import is_to_be_converted
from .relations import Relations
from .rows import Offered, Row, checksum, dependencies, reason, rows
from .settings import Settings

_MAIN = "main"
_DAMAGED_CACHE = re.compile(r"\bload \w+ cache\b|repo_add_solv")
_GROUP_KINDS = ("group", "group_gz")


class _Unreadable(RepoError):
    """A repository that has been fetched cannot be read. `optional` tells whether one can do without."""

    def __init__(self, text: str, repo: libdnf5.repo.Repo) -> None:
        super().__init__(text)
        self.repository: str = repo.get_id()
        self.optional = bool(repo.get_config().skip_if_unavailable)


class System:
    """See `backend.System`."""

    def __init__(
        self,
        settings: Settings,
        sections: Optional[Sequence[RepositorySection]] = None,
        progress: bool = True,
        strict: bool = False,
        asks_for_keys: bool = True,
    ) -> None:
        """Without `progress` nothing is shown; `strict` lets a plugin that fails stop everything; `asks_for_keys` tells
        whether the user is asked about a key of a repository's metadata that isn't trusted yet. YumBaseError."""
        self.settings = settings
        self.lacking: List[str] = []
        self._progress = progress
        self._strict = strict
        self._asks_for_keys = asks_for_keys
        self._installed: List[Any] = []
        self._made_lists: Optional[Lists] = None
        self._base: Optional[Base] = None
        self._database: Optional[rpm.TransactionSet] = None
        self._loaded = False
        self._on_disk = False
        base = self._opened(sections)
        self._sections = base.sections
        self.lacking = base.lacking

    def _opened(self, sections: Optional[Sequence[RepositorySection]]) -> Base:
        self._base = open_base(self.settings, sections, self._strict)
        return self._base

    @property
    def base(self) -> Base:
        """YumBaseError once it is closed."""
        if self._base is None:
            raise YumBaseError(_("The repositories are not read"))
        return self._base

    # Repositories ------------------------------------------------------------------------------------------------

    @property
    def sections(self) -> Dict[str, RepositorySection]:
        if self._base is None:
            return self._sections
        enabled = {repo.get_id(): bool(repo.is_enabled()) for repo in self._base.repositories()}
        return {
            id: dataclasses.replace(section, enabled=enabled[id])
            for id, section in self._sections.items()
            if id in enabled
        }

    def repositories(self) -> List[RepositoryState]:
        found = self.base.repositories()
        return [
            RepositoryState(repo.get_id(), repo.get_name() or repo.get_id(), bool(repo.is_enabled())) for repo in found
        ]

    def enable(self, id: str, enabled: bool) -> None:
        repo = self.base.repository(id)
        (repo.enable if enabled else repo.disable)()

    # Loading -----------------------------------------------------------------------------------------------------

    def stay_on_disk(self) -> None:
        self._on_disk = True
        for repo in list(self.base.repositories(enabled_only=True)):
            repo.set_sync_strategy(repo.SyncStrategy_ONLY_CACHE)
            repo.get_config().skip_if_unavailable = True

    def load(self) -> None:
        anew = False
        while True:
            try:
                self._load()
                return
            except _Unreadable as error:
                if not anew and self._drop_damaged_cache(str(error)):
                    anew = True
                elif error.optional:
                    self._leave_out(self.base.repository(error.repository), str(error))
                else:
                    raise
                # One Base reads once.
                self._reopen()

    def load_changelogs(self, read: Callable[[str, Optional[str]], None]) -> None:
        base = self.base
        metadata = self._metadata(base, (CHANGELOGS,))
        for repo in list(base.repositories(enabled_only=True)):
            # Those of the packages that have been read, not of newer ones.
            if not self._brought(metadata, repo, lazy=True):
                continue
            reading_begins(repo.get_id(), False)
            try:
                read(repo.get_id(), metadata.path(repo, CHANGELOGS))
            except OSError as error:
                raise RepoError(told_of(repo, os_error_text(error), [], self.settings.cache_directory)) from error
            finally:
                reading_ends(repo.get_id())

    def _metadata(self, base: Base, kinds: Sequence[str]) -> Metadata:
        def load(repo: libdnf5.repo.Repo, fetch: Callable[[], None]) -> None:
            load_signed(base, repo, fetch, self._asks_for_keys)

        return Metadata(base, kinds, self._progress, load)

    def _brought(self, metadata: Metadata, repo: libdnf5.repo.Repo, lazy: bool = False) -> bool:
        """Whether a repository can be read; else it is done without, as the configuration allows."""
        try:
            metadata.bring(repo, lazy)
            return True
        except RepoError as error:
            if not repo.get_config().skip_if_unavailable:
                raise
            self._leave_out(repo, str(error))
            if self._progress:
                reading_ends(repo.get_id())
            return False

    def _leave_out(self, repo: libdnf5.repo.Repo, text: str) -> None:
        # How long something took is another matter each time.
        self.lacking.append(without_durations(text))
        logging.getLogger(LOGGER).warning("%s", text)
        repo.disable()

    def _load(self) -> None:
        base = self.base
        metadata = self._metadata(base, ())
        converts = False
        latest: Optional[libdnf5.repo.Repo] = None
        unread = False
        for repo in list(base.repositories(enabled_only=True)):
            if latest is not None and unread and self._progress:
                # The library reads all of them in one go, behind the last one.
                reading_begins(latest.get_id(), is_to_be_converted(latest))
                reading_ends(latest.get_id())
            unread = self._brought(metadata, repo)
            if unread:
                latest = repo
                converts = converts or is_to_be_converted(repo)
                repo.set_sync_strategy(repo.SyncStrategy_ONLY_CACHE)
        stop.check()
        if latest is not None and self._progress:
            reading_begins(latest.get_id(), converts)
        try:
            self._read(base)
        finally:
            if latest is not None and self._progress:
                reading_ends(latest.get_id())
        self._loaded = True

    def _read(self, base: Base) -> None:
        """Has the library read what has been brought, and the rpm database."""
        config = base.config
        disabled = list(config.disable_excludes)
        # Excludes of the main file hide what is installed, too: its list is taken before they hold.
        config.disable_excludes = [*disabled, _MAIN]
        point_rpm_at(self.settings.root)
        with rpms_words() as said:
            try:
                base.library.get_repo_sack().load_repos()
            except FAILURES as error:
                text = words(error)
                repo = self._told(base, text)
                if repo is not None:
                    cause = told_of(repo, text, [], self.settings.cache_directory)
                    raise _Unreadable(cause, repo) from error
                raise unreadable(self.settings.root, text, said()) from error
            finally:
                base.log.tell()
        self._installed = installed_rows(base)
        config.disable_excludes = disabled
        base.library.get_rpm_package_sack().load_config_excludes_includes()
        base.log.tell()

    @staticmethod
    def _told(base: Base, text: str) -> Optional[libdnf5.repo.Repo]:
        """The repository of which the library's words tell."""
        for repo in base.repositories(enabled_only=True):
            if re.search(rf"\brepo(?:sitory)? ['\"]?{re.escape(repo.get_id())}(?!\w)", text):
                return repo
        return None

    def _reopen(self) -> None:
        sections = list(self.sections.values())
        self._base = None
        lacking = self.lacking
        base = self._opened(sections)
        # What the plugins have to say has been told.
        self.lacking = lacking
        self._sections = base.sections
        if self._on_disk:
            self.stay_on_disk()

    def _drop_damaged_cache(self, text: str) -> bool:
        """Whether the library's words are about one, and there was one to remove."""
        caches = (repo.get_cachedir() for repo in self.base.repositories(enabled_only=True))
        about_one = _DAMAGED_CACHE.search(text) is not None
        return about_one and drop_damaged(f"{glob.escape(cache)}/solv/*.solv*" for cache in caches)

    # Packages ----------------------------------------------------------------------------------------------------

    def installed(self) -> List[Row]:
        return list(self._installed)

    def available(self) -> Offered:
        return self._lists.available()

    def upgrades(self) -> List[Row]:
        return self._lists.upgrades()

    def replacing(self, upgrades: Set[str]) -> List[Tuple[Row, List[Row]]]:
        return self._lists.replacing(upgrades)

    def duplicated(self) -> List[List[Row]]:
        return self._lists.duplicated()

    def reasons(self) -> List[Tuple[Row, Reason]]:
        return [(row, reason(row)) for row in self._installed]

    def advised(self) -> List[Advised]:
        return self._lists.advised()

    def wanting(self, rows: Sequence[Row], kind: str, installed_only: bool = False) -> List[Row]:
        return self._relations.wanting(rows, kind, installed_only)

    def satisfying(self, row: Row, kind: str) -> List[Tuple[str, List[Row]]]:
        return self._relations.satisfying(row, kind)

    def versions(self, name: str) -> List[Row]:
        return self._relations.versions(name)

    def advice(self, row: Row) -> List[Advice]:
        return self._advisories.of(row)

    def advisories(self, id: Optional[str] = None) -> List[Advisory]:
        return self._advisories.all(id)

    def has_advisories(self) -> bool:
        return self._advisories.there_are()

    @property
    def _advisories(self) -> Advisories:
        return Advisories(self.base, self._installed)

    @property
    def _relations(self) -> Relations:
        return Relations(self.base, self._installed)

    def architectures(self) -> Sequence[str]:
        return fitting()

    def add_file(self, path: str) -> Row:
        base = self.base
        with in_full():
            found = base.library.get_repo_sack().add_cmdline_packages([path])
        # The bindings cannot read this map, and would say on the terminal that they cannot free it either.
        found.disown()
        query = libdnf5.rpm.PackageQuery(base.library)
        query.filter_repo_id([COMMAND_LINE])
        return next(row for row in rows(query, base) if row.location == path)

    def fetch(self, address: str, path: str, enough: Optional[Callable[[int], bool]] = None) -> None:
        fetch_file(self.base, address, path, enough)

    def key_sources(self) -> List[KeySource]:
        return [Source(self.base, repo) for repo in self.base.repositories()]

    def native(self) -> Sequence[str]:
        variables = self.settings.variables
        return [variables["basearch"], variables["arch"], "noarch"]

    @property
    def _lists(self) -> Lists:
        base = self.base
        if self._made_lists is None:
            self._made_lists = Lists(base, self._installed, self.native())
        return self._made_lists

    # Of a package ------------------------------------------------------------------------------------------------

    def metadata_file(self, repository: str, kind: str) -> Optional[str]:
        base = self._base
        if base is None:
            return None
        try:
            repo = base.repository(repository)
        except KeyError:
            return None
        if not (self._loaded and repo.is_enabled()) or (kind == GROUPS and not repo.get_config().enablegroups):
            return None
        metadata = self._metadata(base, ())
        kinds = _GROUP_KINDS if kind == GROUPS else (kind,)
        return next(filter(None, (metadata.path(repo, one) for one in kinds)), None)

    def checksum(self, row: Any) -> Optional[str]:
        return checksum(row)

    def files(self, row: Any) -> List[str]:
        return list(row.get_files())

    def dependencies(self, row: Any, kind: str) -> List[Dependency]:
        return dependencies(getattr(row, f"get_{kind}")())

    def header(self, row: Any) -> Any:
        if self._database is None:
            # Kept open: a search asks for thousands of headers.
            point_rpm_at(self.settings.root)
            self._database = rpm.TransactionSet(self.settings.root)
        for header in self._database.dbMatch(rpm.RPMDBI_PACKAGES, row.get_rpmdbid()):
            return header
        raise FileNotFoundError(errno.ENOENT, os.strerror(errno.ENOENT), str(row))

    def local_path(self, row: Any) -> Optional[str]:
        if self._base is None:
            return None
        repo = row.get_repo()
        if repo.is_local():
            # It is there already; the library copies it.
            base = next(iter(repo.get_config().baseurl), "")
            path = os.path.join(urllib.parse.unquote(urllib.parse.urlsplit(base).path), row.location or "")
            if os.path.exists(path):
                return path
        return str(row.get_package_path()) or None

    def open_entry(self) -> Optional[OpenEntry]:
        return records(self.settings).open_entry()

    def reboot_advised(self) -> List[str]:
        return reboot_advised(self.base)

    def put_in(self, row: Row) -> List[PutIn]:
        return records(self.settings).put_in(row.name, row.arch)

    # End ---------------------------------------------------------------------------------------------------------

    def close(self) -> None:
        self._base = None
        self._installed = []
        self._made_lists = None
        self._database = None


def open_system(settings: Settings, sections: Optional[Sequence[RepositorySection]] = None) -> System:
    """See `backend.Library`."""
    with in_full():
        return System(settings, sections)
