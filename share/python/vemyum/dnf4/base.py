# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's Base, with the places at which the engine wants to know more."""

from __future__ import annotations

import contextlib
import functools
import glob
import logging
from typing import Any, Callable, Dict, Iterable, List, Optional, Sequence

import dnf
import dnf.cli.output
import dnf.conf
import dnf.exceptions
import dnf.repo
import hawkey
import libdnf.error
from dnf.exceptions import RepoError

from .. import stop
from ..acts import reading_begins, reading_ends
from ..database import point_rpm_at, unreadable
from ..inhibitor import inhibited
from ..messages import heard, rpms_words
from ..reading import NEVER_FETCHED, drop_damaged, failure_text, is_unreadable, without_durations
from ..sections import RepositorySection
from ..webpage import asked
from . import keys
from .configuration import misread
from .encoding import RepositoryReader
from .logfiles import tell_transaction
from .metadata import RepositoryProgress, is_to_be_converted, let_stop
from .plugins import Plugins
from .queries import ask_by_complete_address, base_addresses, fetch_metadata, rounds


class Base(dnf.Base):
    """One view of the system: repositories, sack, goal. For one transaction at most.

    Whoever makes one closes it: a Base that is only dropped keeps its memory and its files open.
    """

    def __init__(self, conf: dnf.conf.MainConf, progress: bool = True, strict: bool = False) -> None:
        super().__init__(conf)
        self.lacking: List[str] = []
        """What is configured and had to be left out, each with its reason."""
        self._plugins = Plugins(self.lacking.append, strict)
        self._ds_callback = dnf.cli.output.DepSolveProgressCallBack()
        self._shows = progress
        self._read: Optional[Callable[[dnf.repo.Repo], None]] = None
        self.before_run: Optional[Callable[[], None]] = None
        """Called when the test transaction is over and the real one begins."""
        self.asks_for_keys = False
        """Whether the user is asked about a key of a repository's metadata that isn't trusted yet."""
        self.args = ["vem"]
        """The command line that dnf's history tells."""
        self.sections: Dict[str, RepositorySection] = {}
        """What the repositories were built of, by their ids."""

    def read_all_repos(self, opts: Any = None) -> None:
        """YumBaseError when the main file has become unreadable meanwhile: it may hold repositories, too."""
        reader = RepositoryReader(self.conf, opts)
        try:
            self._add(reader, reader)
        except dnf.exceptions.ConfigError as error:
            raise misread(error) from error
        self.lacking += reader.refused

    def use_repositories(self, sections: Iterable[RepositorySection]) -> None:
        """Takes these instead of what the configuration says now."""
        reader = RepositoryReader(self.conf, None)
        self._add(reader, map(reader.rebuilt, sections))

    def _add(self, reader: RepositoryReader, repositories: Iterable[dnf.repo.Repo]) -> None:
        for repo in repositories:
            # A section may ask for what the main configuration rules out.
            repo.deltarpm = False
            try:
                self.repos.add(repo)
            except (dnf.exceptions.ConfigError, libdnf.error.Error) as error:
                logging.getLogger("dnf").warning("%s", error)
                if repo.enabled:
                    reader.refuse(repo.repofile, error)
            else:
                # Two sections may claim the same id, of which the first counts.
                self.sections[repo.id] = reader.section

    def load_everything(self) -> None:
        """Reads the enabled repositories and the rpm database.

        Raises RepoError that names the repository, its address and the cause; other dnf errors and
        OSError for the rest. The Base is of no use after a failure.
        """
        self._fill(True)

    def load_system(self) -> None:
        """Reads the rpm database alone: what is then removed takes along what needs it, and nothing comes in instead.

        Raises as `load_everything`.
        """
        self._fill(True, available=False)

    def show_installed(self) -> None:
        """Lets the solver see the installed packages that the configuration excludes."""
        installed = self.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
        self.sack.remove_excludes(installed)
        self.sack.add_includes(installed)

    def load_metadata(self, read: Callable[[dnf.repo.Repo], None]) -> None:
        """Fetches what the enabled repositories are asked for, and gives each to `read`; the sack stays empty.

        Raises like `load_everything`, and for an OSError of `read` too.
        """
        self._read = read
        # What they would ask of a sack is not to be found in an empty one.
        self._plugins.plugins.clear()
        self._fill(False)

    def _fill(self, with_system: bool, available: bool = True) -> None:
        point_rpm_at(self.conf.installroot)
        for repo in self.repos.iter_enabled():
            let_stop(repo)
            if self._shows:
                # What is fetched by query shows a progress of its own.
                if not base_addresses(repo):
                    repo.set_progress_bar(RepositoryProgress(repo, self.conf.cachedir))
        with rpms_words() as said:
            try:
                try:
                    self.fill_sack(load_system_repo=with_system, load_available_repos=available)
                except RepoError as error:
                    if not self._drop_damaged_cache(str(error)):
                        raise
                    self.fill_sack(load_system_repo=with_system, load_available_repos=available)
            except OSError as error:
                if "RPMDB" not in str(error):
                    raise
                raise unreadable(self.conf.installroot, error, said()) from error

    def _drop_damaged_cache(self, text: str) -> bool:
        """Whether the library's words are about one, and there was one to remove."""
        caches = glob.escape(self.conf.cachedir)
        enabled = self.repos.iter_enabled()
        return "repo_add_solv" in text and drop_damaged(f"{caches}/{glob.escape(repo.id)}*.solv*" for repo in enabled)

    def _add_repo_to_sack(self, repo: dnf.repo.Repo) -> None:
        try:
            self._fetch_and_read(repo)
        except RepoError as error:
            if repo.skip_if_unavailable:
                # dnf goes on without it. How long something took is another matter each time.
                self.lacking.append(without_durations(str(error)))
            raise

    def _fetch_and_read(self, repo: dnf.repo.Repo) -> None:
        stop.check()
        with heard() as causes:
            try:
                self._fetch_by_query(repo)
                # Fetches; the call inherited below finds it done and only reads.
                keys.load(repo, self.asks_for_keys)
                if self._shows:
                    reading_begins(repo.id, is_to_be_converted(repo, self.conf.cachedir))
                (self._read or super()._add_repo_to_sack)(repo)
            except RepoError as error:
                stop.check()
                if error.__context__ is not None:
                    causes.append(str(error.__context__))
                if is_unreadable(str(error)):
                    mirrors = repo.metalink or repo.mirrorlist or ""
                    page = asked(mirrors, repo.baseurl, lambda address: keys.fetched(address, repo))
                    causes += filter(None, [page])
                raise RepoError(_failure_text(repo, error, causes, self.conf.cachedir)) from error
            except OSError as error:
                raise RepoError(_failure_text(repo, error, causes, self.conf.cachedir)) from error
            finally:
                if self._shows:
                    reading_ends(repo.id)

    def _fetch_by_query(self, repo: dnf.repo.Repo) -> None:
        """Fetches what dnf's library could not find, see `queries`."""
        if repo._repo.getSyncStrategy() == dnf.repo.SYNC_ONLY_CACHE:
            if not repo._repo.loadCache(False):
                raise RepoError(NEVER_FETCHED)
            return
        if not base_addresses(repo):
            return
        meter = self.conf.cachedir if self._shows else None
        lazy = repo._repo.getSyncStrategy() != dnf.repo.SYNC_TRY_CACHE
        fetch_metadata(repo, lazy, meter)

    def _download_remote_payloads(self, payloads: Any, *rest: Any, **options: Any) -> Any:
        for payload in payloads:
            # dnf passes the message on and keeps the address.
            tell = getattr(payload.progress, "mirror_failed", None)
            if tell is not None:
                payload._mirrorfail_cb = functools.partial(_tell_of_mirror, tell, payload)
        for turn in range(rounds(payloads) - 1):
            ask_by_complete_address(payloads, turn)
            try:
                return super()._download_remote_payloads(payloads, *rest, **options)
            except dnf.exceptions.DownloadError as error:
                logging.getLogger("dnf").warning("%s", error)
        ask_by_complete_address(payloads, rounds(payloads) - 1)
        return super()._download_remote_payloads(payloads, *rest, **options)

    def do_transaction(self, display: Any = ()) -> Any:
        tell_transaction(self)
        return super().do_transaction(display)

    def _run_transaction(self, cb: Any) -> Any:
        if self.before_run is not None:
            self.before_run()
        with inhibited():
            return super()._run_transaction(cb)


def _tell_of_mirror(tell: Callable[[Any, str, str], None], payload: Any, _data: Any, message: Any, url: Any) -> None:
    tell(payload, str(message or ""), str(url or ""))


def _failure_text(repo: dnf.repo.Repo, error: Exception, causes: Iterable[str], directory: str) -> str:
    addresses = [*repo.baseurl, repo.metalink or "", repo.mirrorlist or ""]
    return failure_text(repo.id, addresses, str(error), causes, directory)


def open_base(
    conf: dnf.conf.MainConf,
    sections: Optional[Sequence[RepositorySection]] = None,
    progress: bool = True,
    strict: bool = False,
) -> Base:
    """A Base with repositories, nothing loaded yet.

    They are those of the sections, else those of the configuration as it is now. A plugin that fails is left out,
    unless `strict`: then it raises, where the command line would end.
    Raises dnf's errors and OSError; nothing stays open then.
    """
    with contextlib.ExitStack() as on_failure:
        base = Base(conf, progress, strict)
        on_failure.callback(base.close)
        base.init_plugins()
        base.pre_configure_plugins()
        if sections is None:
            base.read_all_repos()
        else:
            base.use_repositories(sections)
        base.configure_plugins()
        if sections is not None:
            # Whatever a plugin has to say to that.
            for id, section in base.sections.items():
                (base.repos[id].enable if section.enabled else base.repos[id].disable)()
        on_failure.pop_all()
        return base
