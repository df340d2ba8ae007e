# SPDX-License-Identifier: GPL-2.0-or-later
"""One YumIO object's work: from the configuration to the lists that the table shows.

A session is made new for every collection and closed when the engine is done with it.
"""

from __future__ import annotations

import contextlib
import dataclasses
import gc
from typing import Any, Iterator, List, Optional, Sequence

import dnf.conf

from . import host, rights
from .apply.journal import await_transaction, tell_last
from .base import Base, open_base
from .comps import CompsGroup
from .configuration import Configuration, existing_main_file, main_file, read_configuration
from .credentials import masked
from .details import PackageDetails
from .errors import LockError, RepoError, YumBaseError, reported_as
from .groups import Group, groups_of, read_groups
from .lists import Collector, PackageLists
from .lock import LOCK
from .packages import InstalledPackage
from .repositories import Repositories, UnreadableRepositories
from .root import as_configured, managed_root
from .sack import light_packages
from .sections import RepositorySection
from .text import valid
from .texts import _
from .unfinished import Unfinished, unfinished

_NOT_READ = _("The repositories are not read")


class _nothing_is_garbage:
    """Lets Python's garbage collector rest while tens of thousands of objects are made that all stay.

    Not a generator, for the reason that `reported_as` has.
    """

    def __enter__(self) -> None:
        gc.disable()

    def __exit__(self, *_: Any) -> None:
        gc.enable()


class Session:
    """The configuration is read by the constructor, everything else by the methods.

    The constructor raises YumBaseError for a configuration that cannot be used, unless `lenient`: then
    `read_repositories` raises it, which is how the engine can show it.
    """

    _failed_unheard = ""
    """What has failed before anybody listened, up to the end of the collection that tells it."""
    _told_unfinished = ""
    """What the log was told last of a transaction that was cut off."""

    def __init__(self, lenient: bool) -> None:
        self._conf: Optional[dnf.conf.MainConf] = None
        self._base: Optional[Base] = None
        self._details: Optional[PackageDetails] = None
        self._collector: Optional[Collector] = None
        self._comps: List[CompsGroup] = []
        self._fault: Optional[YumBaseError] = None
        try:
            with reported_as(YumBaseError, _("Unable to read the configuration")):
                self._conf = read_configuration()
                self._base = open_base(self._conf)
                self.repositories = Repositories(self._base.repos.values())
        except YumBaseError as error:
            self.close()
            self._fault = YumBaseError(as_configured(str(error)))
            if not lenient:
                raise self._fault from error
            self.repositories = UnreadableRepositories(main_file(managed_root()).path)
        self.main_file = existing_main_file(managed_root())
        self.conf = Configuration(self._conf.substitutions if self._conf is not None else {})

    # Lock ------------------------------------------------------------------------------------------------

    def lock(self) -> None:
        """LockError, also for a configuration that cannot be read: it says where the lock's files lie."""
        if LOCK.held:
            return
        if self._conf is None:
            raise LockError(str(self._fault))
        await_transaction(self._conf)
        LOCK.acquire(self._conf)
        Session._failed_unheard = tell_last(self._conf)
        reason = rights.unchangeable(managed_root())
        if reason is None and not rights.is_administrator():
            reason = rights.LOOK_ONLY
        if reason is not None:
            host.log(host.LEVEL_NOTICE, reason)

    def unlock(self) -> None:
        LOCK.release()

    @contextlib.contextmanager
    def locked(self) -> Iterator[None]:
        """Holds the lock for a block at least. LockError; a configuration that cannot be read has nothing to lock."""
        took = self._conf is not None and not LOCK.held
        if took:
            LOCK.acquire(self._conf)
        try:
            yield
        finally:
            if took:
                LOCK.release()

    # Collection ------------------------------------------------------------------------------------------

    def read_repositories(self) -> None:
        """Reads all enabled repositories and the rpm database. RepoError, whatever fails."""
        if self._fault is not None:
            raise RepoError(str(self._fault))
        if self._base is None or self._conf is None or self._collector is not None:
            raise RepoError(_("The repositories can be read once only"))
        for repo in self._base.repos.values():
            (repo.enable if self.repositories.repos[repo.id].enabled else repo.disable)()
        self._base.asks_for_keys = True
        with reported_as(RepoError), _nothing_is_garbage(), light_packages():
            self._base.load_everything()
        self._details = PackageDetails(self._base)
        self._collector = Collector(self._base, self._details)

    def updates(self) -> Sequence[Any]:
        with _nothing_is_garbage():
            return self.collector.updates()

    def everything(self) -> PackageLists:
        with _nothing_is_garbage():
            return self.collector.everything()

    def read_groups(self) -> None:
        """GroupsError when there are none."""
        self._comps = []
        self._comps = read_groups(self.base)

    def groups(self) -> List[Group]:
        return groups_of(self._comps, self.collector.installed_names)

    def incomplete(self) -> List[str]:
        """What is configured and the collection had to do without, each with its reason; the log has it, too."""
        return [masked(valid(as_configured(text))) for text in dict.fromkeys(self.base.lacking)]

    def unfinished(self) -> Optional[Unfinished]:
        """What a transaction that was cut off has left; told in the log, too."""
        found = unfinished(self.base)
        failure, Session._failed_unheard = Session._failed_unheard, ""
        if found is None and failure:
            found = Unfinished("", {}, [])
        if found is None or self._details is None:
            return None
        if found.text != Session._told_unfinished:
            Session._told_unfinished = found.text
            for line in found.text.splitlines():
                host.errorlog(host.LEVEL_NOTICE, line)
        text = "\n".join(filter(None, (failure, found.text)))
        return Unfinished(text, found.versions, [InstalledPackage(one, self._details) for one in found.older])

    # Extra data ------------------------------------------------------------------------------------------

    def load_file_lists(self) -> None:
        if self._details is None:
            raise YumBaseError(_NOT_READ)
        self._details.load_file_lists()

    def load_changelogs(self) -> None:
        if self._details is None or self._conf is None:
            raise YumBaseError(_NOT_READ)
        self._details.load_changelogs(self._conf, self.repository_sections())

    # What has been read ---------------------------------------------------------------------------------

    @property
    def base(self) -> Base:
        """The Base on which the table's packages rest. YumBaseError before the repositories are read."""
        if self._base is None or self._collector is None:
            raise YumBaseError(_NOT_READ)
        return self._base

    def repository_sections(self) -> List[RepositorySection]:
        """The repositories that the lists rest on; one that had to be left out counts as switched off. YumBaseError
        before they are read."""
        repos = self.base.repos
        sections = [(repos[id], section) for id, section in self.base.sections.items() if id in repos]
        return [dataclasses.replace(section, enabled=bool(repo.enabled)) for repo, section in sections]

    @property
    def collector(self) -> Collector:
        if self._collector is None:
            raise YumBaseError(_NOT_READ)
        return self._collector

    @property
    def cache_directory(self) -> Optional[str]:
        return None if self._conf is None else self._conf.cachedir

    # End -------------------------------------------------------------------------------------------------

    def close(self) -> None:
        """Gives up memory and files; the lock stays. Packages still tell what their sack knows.

        Never raises: there is nobody left to tell. A second call does nothing.
        """
        details, self._details = self._details, None
        base, self._base = self._base, None
        self._collector = None
        self._comps = []
        for closable in (details, base):
            if closable is not None:
                try:
                    with reported_as(YumBaseError):
                        closable.close()
                except YumBaseError as error:
                    host.errorlog(host.LEVEL_NOTICE, str(error))
