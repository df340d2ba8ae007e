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
from typing import Any, Callable, Dict, Iterable, List, Optional, Sequence, Set, Tuple

import libdnf5.repo
import libdnf5.rpm
import rpm

from .. import versions
from ..acts import reading_begins, reading_ends
from ..backend import CHANGELOGS, GROUPS, Dependency, OpenEntry, RepositoryState
from ..database import point_rpm_at
from ..errors import RepoError, YumBaseError, os_error_text
from ..history import open_entry
from ..messages import rpms_words
from ..reading import without_durations
from ..sections import RepositorySection
from ..texts import _
from ..vendors import by_name, refused
from .base import Base, open_base
from .failures import FAILURES, in_full, words
from .history import LAYOUT, history_path
from .keys import load_signed
from .log import LOGGER
from .metadata import Metadata, told_of
from .progress import is_to_be_converted
from .rows import InstalledRow, Row, checksum, dependencies, rows
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
        self._base: Optional[Base] = None
        self._loaded = False
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
                    unreadable = told_of(repo, text, [], self.settings.cache_directory)
                    raise _Unreadable(unreadable, repo) from error
                told = _("The rpm database of {root} cannot be read: {error}")
                raise YumBaseError("\n".join([told.format(root=self.settings.root, error=text), *said()])) from error
            finally:
                base.log.tell()
        self._installed = self._query_installed(base)
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

    def _drop_damaged_cache(self, text: str) -> bool:
        """Removes the form of the metadata that is made for fast reading, where the library says that it is damaged.
        Whether there was anything to remove: it is made anew from the metadata."""
        if not _DAMAGED_CACHE.search(text):
            return False
        found = []
        for repo in self.base.repositories(enabled_only=True):
            found += glob.glob(os.path.join(glob.escape(repo.get_cachedir()), "solv", "*.solv*"))
        for path in found:
            os.unlink(path)
        if found:
            logging.getLogger(LOGGER).warning("%s", _("The cache of the metadata was damaged: it is made anew"))
        return bool(found)

    # Packages ----------------------------------------------------------------------------------------------------

    def installed(self) -> List[Row]:
        return list(self._installed)

    def available(self) -> List[Row]:
        base = self.base
        query = self._offered(base)
        query.filter_latest_evr()
        return self._cheapest_first(query, base)

    def upgrades(self) -> List[Row]:
        base = self.base
        query = self._changeable(base, self._offered(base))
        query.filter_upgrades()
        query.filter_latest_evr()
        return self._cheapest_first(query, base)

    def replacing(self, upgrades: Set[str]) -> List[Tuple[Row, List[Row]]]:
        base = self.base
        if not base.config.obsoletes:
            return []
        query = self._changeable(base, self._offered(base))
        # Who excludes an installed package wants it left alone.
        present = libdnf5.rpm.PackageQuery(base.library)
        present.filter_installed()
        query.filter_obsoletes(present)
        query.filter_latest_evr()
        installed = by_name(self._installed)
        # An installed package that makes others obsolete in a newer version is an upgrade already.
        covered = upgrades.union(installed)
        new = [row for row in self._cheapest_first(query, base) if row.name not in covered]
        return [(row, self._replaced(row, installed)) for row in new]

    def duplicated(self) -> List[List[Row]]:
        base = self.base
        query = libdnf5.rpm.PackageQuery(base.library)
        query.filter_installonly()
        meant = set(query)
        found: Dict[Tuple[str, str], List[Any]] = {}
        for row in self._installed:
            found.setdefault((row.name, row.arch), []).append(row)
        several = [same for same in found.values() if len(same) > 1 and not meant.intersection(same)]
        return [sorted(same, key=versions.oldest_first) for same in several]

    def native(self) -> Sequence[str]:
        variables = self.settings.variables
        return [variables["basearch"], variables["arch"], "noarch"]

    def _offered(self, base: Base) -> libdnf5.rpm.PackageQuery:
        """What the repositories offer to this machine, by their priorities."""
        query = libdnf5.rpm.PackageQuery(base.library)
        query.filter_available()
        query.filter_priority()
        query.filter_arch(_fitting())
        return query

    @staticmethod
    def _cheapest_first(query: libdnf5.rpm.PackageQuery, base: Base) -> List[Any]:
        """The rows of a query. Of a package that several repositories have, the solver takes the one that costs least;
        the library's own order is the one in which they happened to be read."""
        found = rows(query, base)
        costs = {repo.get_id(): repo.get_cost() for repo in base.repositories(enabled_only=True)}
        if len(set(costs.values())) > 1:
            found.sort(key=lambda row: costs[row.reponame])
        return found

    def _changeable(self, base: Base, query: libdnf5.rpm.PackageQuery) -> libdnf5.rpm.PackageQuery:
        """The query without the updates that the solver refuses."""
        if base.config.allow_vendor_change:
            return query
        newer = libdnf5.rpm.PackageQuery(query)
        newer.filter_upgrades()
        replacing = libdnf5.rpm.PackageQuery(query)
        replacing.filter_obsoletes(_set(base, self._installed))
        installed = by_name(self._installed)
        query.difference(_set(base, refused(rows(newer, base), rows(replacing, base), installed, self._replaced)))
        return query

    @staticmethod
    def _query_installed(base: Base) -> List[Any]:
        query = libdnf5.rpm.PackageQuery(base.library)
        query.filter_installed()
        return rows(query, base, InstalledRow)

    def _replaced(self, row: Any, installed: Dict[str, List[Any]]) -> List[Any]:
        """Those of the installed packages, by their names, that a package of another name makes obsolete."""
        base = self.base
        names = dict.fromkeys(reldep.get_name() for reldep in row.get_obsoletes())
        found = []
        for old in (old for name in names if name != row.name for old in installed.get(name, [])):
            query = libdnf5.rpm.PackageQuery(_set(base, [row]))
            query.filter_obsoletes(_set(base, [old]))
            if not query.empty():
                found.append(old)
        return found

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
        transaction = rpm.TransactionSet(self.settings.root)
        try:
            point_rpm_at(self.settings.root)
            for header in transaction.dbMatch(rpm.RPMDBI_PACKAGES, row.get_rpmdbid()):
                return header
        finally:
            transaction.closeDB()
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
        return open_entry(history_path(self.base.settings, self.base.config), LAYOUT)

    # End ---------------------------------------------------------------------------------------------------------

    def close(self) -> None:
        self._base = None
        self._installed = []


def open_system(settings: Settings, sections: Optional[Sequence[RepositorySection]] = None) -> System:
    """See `backend.Library`."""
    with in_full():
        return System(settings, sections)


def _fitting() -> List[str]:
    """The architectures of packages that this machine can run."""
    known = libdnf5.rpm.get_supported_arches()
    return [arch for arch in known if arch == "noarch" or rpm.archscore(arch)]


def _set(base: Base, packages: Iterable[Any]) -> libdnf5.rpm.PackageSet:
    found = libdnf5.rpm.PackageSet(base.library)
    for package in packages:
        found.add(package)
    return found
