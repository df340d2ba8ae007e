# SPDX-License-Identifier: GPL-2.0-or-later
"""One YumIO object's work: from the configuration to the lists that the table shows.

A session is made new for every collection and closed when the engine is done with it.
"""

from __future__ import annotations

import contextlib
import dataclasses
import os
from typing import Any, Iterator, List, Optional, Sequence, Tuple

from . import backend, columns, host, relations, rights, stop
from .apply.journal import await_transaction, tell_last
from .backend import Settings, System
from .comps import CompsGroup
from .configuration import Configuration, existing_main_file, main_file
from .credentials import masked
from .details import PackageDetails
from .errors import LockError, RepoError, YumBaseError, reported_as
from .groups import Group, groups_of, read_groups
from .lists import Collector, PackageLists, nothing_is_garbage
from .lock import LOCK
from .packagefiles import Opened, open_files
from .packages import InstalledPackage
from .repositories import Repositories, UnreadableRepositories
from .root import as_configured, managed_root
from .sections import RepositorySection
from .text import valid
from .texts import _
from .transactions import Records
from .unfinished import Unfinished, unfinished

_NOT_READ = _("The repositories are not read")


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
        self._settings: Optional[Settings] = None
        self._system: Optional[System] = None
        self._details: Optional[PackageDetails] = None
        self._collector: Optional[Collector] = None
        self._comps: List[CompsGroup] = []
        self._fault: Optional[YumBaseError] = None
        self._on_disk = False
        try:
            with reported_as(YumBaseError, _("Unable to read the configuration")):
                self._settings = backend.library().read_settings()
                self._system = backend.library().open_system(self._settings)
                self.repositories = Repositories(self._system.repositories())
        except YumBaseError as error:
            self.close()
            self._fault = YumBaseError(as_configured(str(error)))
            if not lenient:
                raise self._fault from error
            self.repositories = UnreadableRepositories(main_file(managed_root()).path)
        self.main_file = existing_main_file(managed_root())
        self.conf = Configuration(self._settings.variables if self._settings is not None else {})

    # Lock ------------------------------------------------------------------------------------------------

    def lock(self) -> None:
        """LockError, also for a configuration that cannot be read: it says where the lock's files lie."""
        if LOCK.held:
            return
        if self._settings is None:
            raise LockError(str(self._fault))
        await_transaction(self._settings)
        LOCK.acquire(self._settings)
        Session._failed_unheard = tell_last(self._settings)
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
        took = self._settings is not None and not LOCK.held
        if took:
            LOCK.acquire(self._settings)
        try:
            yield
        finally:
            if took:
                LOCK.release()

    # Collection ------------------------------------------------------------------------------------------

    def stay_on_disk(self) -> None:
        """Has `read_repositories` take what has been fetched before, and do without a repository of which there is
        nothing."""
        self._on_disk = True

    def read_repositories(self) -> None:
        """Reads all enabled repositories and the rpm database. RepoError, whatever fails."""
        if self._fault is not None:
            raise RepoError(str(self._fault))
        if self._system is None or self._collector is not None:
            raise RepoError(_("The repositories can be read once only"))
        for state in self._system.repositories():
            self._system.enable(state.id, bool(self.repositories.repos[state.id].enabled))
        if self._on_disk:
            self._system.stay_on_disk()
        with reported_as(RepoError), nothing_is_garbage():
            self._system.load()
        self._details = PackageDetails(self._system)
        self._collector = Collector(self._system, self._details)

    def open_package_files(self, words: Sequence[str]) -> List[Opened]:
        """Makes packages of these files and addresses rows of the lists to come."""
        opened, rows = open_files(words, self.system)
        for one in opened:
            if one.refusal:
                host.errorlog(host.LEVEL_NOTICE, one.refusal)
        self.collector.take_files(rows)
        return opened

    def updates(self) -> Sequence[Any]:
        stop.check()
        with nothing_is_garbage():
            return self.collector.updates()

    def everything(self) -> PackageLists:
        stop.check()
        with nothing_is_garbage():
            return self.collector.everything()

    def read_groups(self) -> None:
        """GroupsError when there are none."""
        stop.check()
        self._comps = []
        self._comps = read_groups(self.system)

    def groups(self) -> List[Group]:
        return groups_of(self._comps, self.collector.installed_names)

    def incomplete(self) -> List[str]:
        """What is configured and the collection had to do without, each with its reason; the log has it, too."""
        return [masked(valid(as_configured(text))) for text in dict.fromkeys(self.system.lacking)]

    def repository_times(self) -> Dict[str, int]:
        """As the command line tells a repository's age: both libraries touch the file whenever they look."""
        times: Dict[str, int] = {}
        for state in self.system.repositories():
            primary = self.system.metadata_file(state.id, backend.PRIMARY) if state.enabled else None
            if primary is not None:
                with contextlib.suppress(OSError):
                    times[state.name] = int(os.stat(os.path.join(os.path.dirname(primary), "repomd.xml")).st_mtime)
        return times

    def unfinished(self) -> Optional[Unfinished]:
        """What a transaction that was cut off has left; told in the log, too."""
        found = unfinished(self.system)
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

    def row_details(self, kind: str, packages: Sequence[Any]) -> Optional[Sequence[Any]]:
        return columns.told(kind, packages, self.system)

    def relations(self, kind: str, package: Any, most: int) -> Tuple[List[relations.Line], int]:
        if self._details is None:
            raise YumBaseError(_NOT_READ)
        return relations.told(kind, package, most, self.system, self._details)

    # History ---------------------------------------------------------------------------------------------

    def records(self) -> Records:
        """Whether anything is collected or not. YumBaseError for a configuration that cannot be used."""
        if self._settings is None:
            raise YumBaseError(str(self._fault))
        return backend.library().records(self._settings)

    def configured(self) -> System:
        """The repositories, read or not. YumBaseError for a configuration that cannot be used."""
        if self._system is None:
            raise YumBaseError(str(self._fault or _NOT_READ))
        return self._system

    def reboot_advised(self) -> List[str]:
        """What the repositories' advisories tell of that; nothing before they are read."""
        return [] if self._system is None or self._collector is None else self._system.reboot_advised()

    # Extra data ------------------------------------------------------------------------------------------

    def load_file_lists(self) -> None:
        if self._details is None:
            raise YumBaseError(_NOT_READ)
        self._details.load_file_lists()

    def load_changelogs(self) -> None:
        if self._details is None or self._settings is None:
            raise YumBaseError(_NOT_READ)
        self._details.load_changelogs(self._settings, self.repository_sections())

    def changes(self, repository: str, checksum: str) -> List[Tuple[int, str, str]]:
        """A package's changelog, as far as it is loaded."""
        return [] if self._details is None else self._details.changes(repository, checksum)

    # What has been read ---------------------------------------------------------------------------------

    @property
    def system(self) -> System:
        """What the table's packages rest on. YumBaseError before the repositories are read."""
        if self._system is None or self._collector is None:
            raise YumBaseError(_NOT_READ)
        return self._system

    def repository_sections(self) -> List[RepositorySection]:
        """The repositories that the lists rest on; one that had to be left out counts as switched off. YumBaseError
        before they are read."""
        enabled = {state.id: state.enabled for state in self.system.repositories()}
        sections = [(id, section) for id, section in self.system.sections.items() if id in enabled]
        return [dataclasses.replace(section, enabled=enabled[id]) for id, section in sections]

    @property
    def collector(self) -> Collector:
        if self._collector is None:
            raise YumBaseError(_NOT_READ)
        return self._collector

    @property
    def cache_directory(self) -> Optional[str]:
        return None if self._settings is None else self._settings.cache_directory

    # End -------------------------------------------------------------------------------------------------

    def close(self) -> None:
        """Gives up memory and files; the lock stays. Packages still tell what their rows know.

        Never raises: there is nobody left to tell. A second call does nothing.
        """
        details, self._details = self._details, None
        system, self._system = self._system, None
        self._collector = None
        self._comps = []
        for closable in (details, system):
            if closable is not None:
                try:
                    with reported_as(YumBaseError):
                        closable.close()
                except YumBaseError as error:
                    host.errorlog(host.LEVEL_NOTICE, str(error))
