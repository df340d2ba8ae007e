# SPDX-License-Identifier: GPL-2.0-or-later
"""The repositories' metadata: brought into the library's cache, repository by repository, before it reads them all.

The library would fetch everything at once, tell of the first repository that fails without its causes, and fetch all
files of a repository again for the sake of one that is missing.

Of repositories whose address ends in a query everything is fetched file by file.
"""

from __future__ import annotations

import contextlib
import functools
import itertools
import logging
import os
import tempfile
from typing import Callable, Collection, Iterable, Iterator, List, Optional

import libdnf5.exception
import libdnf5.repo

from .. import stop
from ..acts import MIRROR_LISTS
from ..backend import CHANGELOGS, FILE_LISTS, PRIMARY
from ..errors import RepoError, YumBaseError, os_error_text
from ..mirrors import TRIES, mirrors_in
from ..queries import fetch
from ..reading import NEVER_FETCHED, failure_text, is_unreadable
from ..repomd import FOLDER, NAME, File, join, listed, verify
from ..texts import _
from ..webpage import asked
from .base import Base
from .failures import FAILURES, words
from .log import LOGGER
from .progress import FetchingProgress

_ALWAYS = frozenset(("primary", "group", "group_gz", "modules"))
_OPTIONAL = frozenset((FILE_LISTS, CHANGELOGS, "updateinfo"))
"""Kinds of which a cache that another program has filled may lack one."""


def addresses(repo: libdnf5.repo.Repo) -> List[str]:
    """Where a repository is configured to be: its base addresses, metalink and mirror list."""
    config = repo.get_config()
    lists = (config.get_metalink_option(), config.get_mirrorlist_option())
    found = [*config.baseurl, *(option.get_value() for option in lists if not option.empty())]
    return [str(address) for address in found if address]


def base_addresses(repo: libdnf5.repo.Repo) -> List[str]:
    """The base addresses of a repository if one has a query and the library would use them; else none."""
    config = repo.get_config()
    bases = [str(address) for address in config.baseurl]
    if len(addresses(repo)) > len(bases) or not any("?" in address for address in bases):
        return []
    return bases


def servers(repo: libdnf5.repo.Repo) -> Iterator[str]:
    """The addresses below which the files of a repository lie, those of mirrors as far as the cache tells them."""
    yield from (str(address) for address in repo.get_config().baseurl)
    mirrors = list(repo.get_mirrors())
    yield from mirrors
    if not mirrors:
        for name in MIRROR_LISTS:
            with contextlib.suppress(OSError):
                yield from mirrors_in(_content(os.path.join(repo.get_cachedir(), name)))


def told_of(repo: libdnf5.repo.Repo, text: str, causes: Iterable[str], cache: str) -> str:
    """That it cannot be read."""
    return failure_text(repo.get_id(), addresses(repo), text, causes, cache)


def downloaded(base: Base, repo: libdnf5.repo.Repo, address: str, target: str) -> None:
    """Fetches one file by the repository's settings; an address without a scheme is one of the repository's files.
    The library's failures."""
    downloader = libdnf5.repo.FileDownloader(base.library)
    downloader.add(repo.get_weak_ptr(), address, target)
    downloader.download()


def content_of(base: Base, repo: libdnf5.repo.Repo, address: str) -> bytes:
    """RuntimeError with the library's words."""
    causes = _Causes()
    listener, base.downloads.listener = base.downloads.listener, causes
    try:
        with tempfile.TemporaryDirectory(prefix="vem-") as folder:
            target = os.path.join(folder, "file")
            downloaded(base, repo, address, target)
            with open(target, "rb") as file:
                return file.read()
    except FAILURES as error:
        raise RuntimeError("; ".join(dict.fromkeys(causes.told)) or words(error)) from error
    finally:
        base.downloads.listener = listener


def fetch_file(base: Base, address: str, path: str, enough: Optional[Callable[[int], bool]] = None) -> None:
    """See `backend.System`."""
    causes = _Causes(enough)
    listener, base.downloads.listener = base.downloads.listener, causes
    downloader = libdnf5.repo.FileDownloader(base.library)
    downloader.add(address, path)
    try:
        downloader.download()
    except FAILURES as error:
        stop.check()
        raise YumBaseError("; ".join(dict.fromkeys(causes.told)) or words(error)) from error
    finally:
        base.downloads.listener = listener


class _Causes:
    """Hears why a file couldn't be had, which the library's failure doesn't tell."""

    def __init__(self, enough: Optional[Callable[[int], bool]] = None) -> None:
        self.told: List[str] = []
        self._enough = enough

    def begin(self, _repository: int, _what: str, _size: int) -> int:
        return 0

    def progress(self, _number: int, _size: int, done: int) -> Optional[bool]:
        return None if self._enough is None else self._enough(done)

    def end(self, number: int, status: int, message: str) -> None: ...

    def mirror_failed(self, _number: int, message: str, _address: str) -> None:
        self.told.append(message.strip())


class Metadata:
    """Brings metadata of a Base's repositories into the cache. Blocks; any thread."""

    def __init__(
        self,
        base: Base,
        kinds: Collection[str],
        progress: bool,
        load: Callable[[libdnf5.repo.Repo, Callable[[], None]], None],
    ) -> None:
        """`kinds` are those that are wanted beside what the library itself wants; `load` is given each repository
        that has to be fetched, with what does it."""
        self._base = base
        self._kinds = kinds
        self._meter = base.settings.cache_directory if progress else None
        self._load = load

    def bring(self, repo: libdnf5.repo.Repo, lazy: bool = False) -> None:
        """Fetches what is missing, or older than the configuration allows unless `lazy`. RepoError names the
        repository, its address and every cause."""
        stop.check()
        progress = FetchingProgress(repo, self._meter)
        self._base.downloads.listener = progress
        try:
            self._bring(repo, progress, lazy or repo.get_sync_strategy() != repo.SyncStrategy_TRY_CACHE)
        except (*FAILURES, RepoError, OSError) as error:
            self._base.take_vacant_descriptors()
            stop.check()
            text = os_error_text(error) if isinstance(error, OSError) else words(error)
            if is_unreadable(text):
                progress.causes += filter(None, [self._page(repo)])
            directory = self._base.settings.cache_directory
            raise RepoError(told_of(repo, text, progress.causes, directory)) from error
        finally:
            self._base.downloads.listener = None
            progress.acts.close()
            self._base.log.tell()

    def path(self, repo: libdnf5.repo.Repo, kind: str) -> Optional[str]:
        """The file of a repository's metadata in the cache; None where there is none."""
        found = str(repo.get_metadata_path(kind))
        if found:
            return found
        # One that the library doesn't read.
        cache = repo.get_cachedir()
        places = [os.path.join(cache, file.href) for file in _listed_in(cache) if file.kind == kind]
        return next(filter(os.path.exists, places), None)

    def _bring(self, repo: libdnf5.repo.Repo, progress: FetchingProgress, lazy: bool) -> None:
        cached = self._is_cached(repo, progress)
        if not cached and _is_offline(repo):
            raise RepoError(NEVER_FETCHED)
        if cached and (lazy or not repo.is_expired()):
            return
        if base_addresses(repo):
            self._bring_by_query(repo, cached)
        elif cached and repo.is_in_sync():
            # The library tells the age by this file.
            os.utime(repo.get_metadata_path(PRIMARY))
        else:
            self._load(repo, lambda: repo.download_metadata(repo.get_cachedir()))
        repo.read_metadata_cache()
        self._supplement(repo, progress)

    def _is_cached(self, repo: libdnf5.repo.Repo, progress: FetchingProgress) -> bool:
        if not os.path.exists(os.path.join(repo.get_cachedir(), FOLDER, NAME)):
            return False
        try:
            self._supplement(repo, progress)
            repo.read_metadata_cache()
        except (*FAILURES, RepoError, OSError) as error:
            stop.check()
            logging.getLogger(LOGGER).debug("%s", words(error))
            progress.causes.clear()
            return False
        return True

    def _supplement(self, repo: libdnf5.repo.Repo, progress: FetchingProgress) -> None:
        """Fetches those wanted files that the cache lacks; the library would fetch them all."""
        if _is_offline(repo):
            return
        cache = repo.get_cachedir()
        wanted = _OPTIONAL.intersection((*self._base.config.optional_metadata_types, *self._kinds))
        for file in listed(os.path.join(cache, FOLDER, NAME)):
            target = os.path.join(cache, file.href)
            if file.kind not in wanted or self._has(cache, file):
                continue
            part = target + ".part"
            try:
                self._fetch_file(repo, progress, file, part)
                os.rename(part, target)
            finally:
                if os.path.exists(part):
                    os.unlink(part)

    @staticmethod
    def _has(cache: str, file: File) -> bool:
        """Whether the cache holds it, in one form or another."""
        if os.path.exists(os.path.join(cache, file.href)):
            return True
        # A form of it that can be fetched in parts stands under a name of its own.
        return any(
            os.path.exists(os.path.join(cache, other.href))
            for other in listed(os.path.join(cache, FOLDER, NAME), left_out=())
            if other.kind == f"{file.kind}_zck"
        )

    def _fetch_file(self, repo: libdnf5.repo.Repo, progress: FetchingProgress, file: File, target: str) -> None:
        if self._meter is not None:
            progress.acts.open("primary", file.size)
        self._base.downloads.listener = None
        fault: Optional[Exception] = None
        try:
            for address in itertools.islice(servers(repo), TRIES):
                stop.check()
                try:
                    self._fresh(repo, join(address, file.href), target)
                    verify(file, target)
                    return
                except (*FAILURES, RepoError) as error:
                    fault = error
            raise RepoError(words(fault) if fault is not None else _("no address")) from fault
        finally:
            self._base.downloads.listener = progress
            progress.acts.close()

    def _bring_by_query(self, repo: libdnf5.repo.Repo, cached: bool) -> None:
        # The acts are those of the files, which are known here.
        self._base.downloads.listener = None
        wanted = _ALWAYS.union(self._base.config.optional_metadata_types, self._kinds)
        fetch(_Repository(self._base, repo, wanted), base_addresses(repo), cached, self._meter)

    def _fresh(self, repo: libdnf5.repo.Repo, address: str, target: str) -> None:
        # What an earlier address gave would be gone on with.
        if os.path.exists(target):
            os.unlink(target)
        downloaded(self._base, repo, address, target)

    def _page(self, repo: libdnf5.repo.Repo) -> Optional[str]:
        bases = len(repo.get_config().baseurl)
        found = addresses(repo)
        # Lists of mirrors stand behind the base addresses.
        mirrors = next(iter(found[bases:]), "")
        return asked(mirrors, found[:bases], functools.partial(content_of, self._base, repo))


class _Repository:
    """See `queries.Repository`."""

    def __init__(self, base: Base, repo: libdnf5.repo.Repo, kinds: Collection[str]) -> None:
        self._base = base
        self._repo = repo
        self._kinds = kinds
        self.id: str = repo.get_id()
        self.cache: str = repo.get_cachedir()
        self.signed = bool(repo.get_config().repo_gpgcheck)

    def download(self, address: str, target: str) -> None:
        downloaded(self._base, self._repo, address, target)

    def wanted(self, repomd: str) -> List[File]:
        return [file for file in listed(repomd) if file.kind in self._kinds]

    def age_file(self) -> str:
        return str(self._repo.get_metadata_path(PRIMARY))


def _is_offline(repo: libdnf5.repo.Repo) -> bool:
    return bool(repo.get_sync_strategy() == repo.SyncStrategy_ONLY_CACHE)


def _listed_in(cache: str) -> List[File]:
    try:
        return listed(os.path.join(cache, FOLDER, NAME))
    except (RepoError, OSError):
        return []


def _content(path: str) -> bytes:
    with open(path, "rb") as file:
        return file.read()
