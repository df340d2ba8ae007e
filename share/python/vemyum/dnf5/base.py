# SPDX-License-Identifier: GPL-2.0-or-later
"""libdnf5's Base, with what has to live as long as it does."""

from __future__ import annotations

import contextlib
import logging
import os
import re
import traceback
from typing import Any, Dict, Iterator, List, Optional, Protocol, Sequence

import libdnf5.base
import libdnf5.conf
import libdnf5.repo

from .. import stop
from ..database import point_rpm_at
from ..errors import YumBaseError
from ..root import as_configured
from ..sections import RepositorySection
from ..texts import _
from .callbacks import guarded
from .failures import FAILURES, words
from .log import LOGGER, Log
from .repositories import RepositoryReader
from .settings import Settings

_PLUGIN = re.compile(r"Cannot load libdnf plugin enabled from: (?P<file>\S.*)")


_DONE_HERE = ("systemd-inhibit",)
"""Plugins whose work this program does itself: `inhibitor` holds shutdown and sleep off."""


class Listener(Protocol):
    """Hears of downloads, all on the thread that asked for them. What it raises is logged and dropped."""

    def begin(self, repository: int, what: str, size: int) -> int:
        """Of one file, or of a repository's metadata. The answer tells it apart in the other calls. `repository` is
        what was given to that as its user data."""

    def progress(self, number: int, size: int, done: int) -> Optional[bool]:
        """A true answer gives the file up."""

    def end(self, number: int, status: int, message: str) -> None: ...

    def mirror_failed(self, number: int, message: str, address: str) -> None: ...


@guarded()
def log_mirror(message: str) -> None:
    """Why a mirror failed. The library's own log hasn't got it, and nothing is raised where another mirror serves."""
    logging.getLogger(LOGGER).debug("%s", message.strip())


class _Downloads(libdnf5.repo.DownloadCallbacks):  # type: ignore[misc]
    """What the library tells of downloads, passed on. An exception that left one of these would end the process."""

    def __init__(self) -> None:
        super().__init__()
        self.listener: Optional[Listener] = None

    def add_new_download(self, user_data: Any, description: str, size: float) -> int:
        return int(self._tell("begin", int(user_data or 0), description, int(size)) or 0)

    def progress(self, number: Any, size: float, done: float) -> int:
        enough = self._tell("progress", int(number or 0), int(size), int(done))
        return self.ERROR if enough or stop.wanted() else self.OK

    def end(self, number: Any, status: int, message: Optional[str]) -> int:
        self._tell("end", int(number or 0), status, message or "")
        return self.OK

    def mirror_failure(self, number: Any, message: Optional[str], url: Optional[str], _metadata: Any) -> int:
        if self.listener is None:
            log_mirror(message or "")
        self._tell("mirror_failed", int(number or 0), message or "", url or "")
        return self.OK

    def _tell(self, what: str, *arguments: Any) -> Any:
        if self.listener is None:
            return None
        try:
            return getattr(self.listener, what)(*arguments)
        except BaseException:  # noqa: BLE001 - see above
            logging.getLogger(LOGGER).debug("%s", traceback.format_exc())
            return None


class _NoKeys(libdnf5.repo.RepoCallbacks):  # type: ignore[misc]
    """Trusts no key: without an answer the library trusts them all."""

    def repokey_import(self, *_about: Any) -> bool:
        return False


class _Placeholders:
    """Descriptors that stand where another one may be closed that isn't there any more."""

    _MANY = 16
    """As many as the library has open at a time, and more."""

    def __init__(self) -> None:
        first = os.memfd_create("placeholder")
        self._file = os.fstat(first)
        self._descriptors = [first, *(os.dup(first) for _ in range(self._MANY - 1))]

    def __del__(self) -> None:
        for descriptor in self._descriptors:
            # Somebody else may have got the number of one that was closed.
            with contextlib.suppress(OSError):
                if os.path.samestat(os.fstat(descriptor), self._file):
                    os.close(descriptor)


class Base:
    """One view of the system: a Base of the library that has its settings, nothing loaded yet.

    It lives as long as somebody holds it: a package that is asked for anything after its end takes the process along.
    """

    def __init__(self, settings: Settings, strict: bool = False) -> None:
        """A plugin that fails is left out, unless `strict`: then YumBaseError tells of it. YumBaseError also for a
        configuration that has become unreadable."""
        self.settings = settings
        self.lacking: List[str] = []
        """What is configured and had to be left out, each with its reason."""
        self.sections: Dict[str, RepositorySection] = {}
        """What the repositories were built of, by their ids."""
        self._strict = strict
        without = list(_DONE_HERE)
        while not self._set_up(without):
            pass
        self._callbacks: List[Any] = []
        self._placeholders: List[_Placeholders] = []
        self.downloads = _Downloads()
        self.library.set_download_callbacks(libdnf5.repo.DownloadCallbacksUniquePtr(self.downloads))

    def _set_up(self, without: List[str]) -> bool:
        """Whether it came to its end; else for lack of a plugin that is among `without` from then on."""
        point_rpm_at(self.settings.root)
        self.library = libdnf5.base.Base()
        try:
            self.settings.load_into(self.library)
            self.settings.put_into(self.library)
        except FAILURES as error:
            raise YumBaseError(as_configured(words(error))) from error
        # What is odd about the configuration has been told when the settings were read.
        self.log = Log(self.library)
        self.library.enable_disable_plugins(without, False)
        try:
            self.library.setup()
        except FAILURES as error:
            text = words(error)
            found = _PLUGIN.search(text)
            name = _plugin_name(found.group("file")) if found else ""
            told = _("The plugin {name} failed ({step}): {error}").format(name=name, step="import", error=text)
            if not name or name in without or self._strict:
                raise YumBaseError(as_configured(told if name else text)) from error
            without.append(name)
            self.lacking.append(told)
            return False
        finally:
            self.log.tell()
        point_rpm_at(self.settings.root)
        return True

    @property
    def config(self) -> libdnf5.conf.ConfigMain:
        return self.library.get_config()

    def read_repositories(self, sections: Optional[Sequence[RepositorySection]] = None) -> None:
        """Those of the sections, else those of the configuration as it is now. YumBaseError when the main file has
        become unreadable meanwhile."""
        reader = RepositoryReader(self.settings, self.library)
        try:
            if sections is None:
                reader.read()
            else:
                reader.rebuild(sections)
            self.library.notify_repos_configured()
            for repo in self.repositories():
                self.answer_with(repo, _NoKeys())
        except FAILURES as error:
            raise YumBaseError(as_configured(words(error))) from error
        finally:
            self.log.tell()
        for id, section in reader.sections.items():
            # Whatever a plugin has to say to that.
            if sections is not None:
                repo = self.repository(id)
                (repo.enable if section.enabled else repo.disable)()
        self.sections = reader.sections
        self.lacking += reader.refused

    def answer_with(self, repo: libdnf5.repo.Repo, callbacks: libdnf5.repo.RepoCallbacks) -> None:
        """Lets these answer what the library asks about a repository."""
        # Python would drop them while the library still calls them.
        self._callbacks.append(callbacks)
        repo.set_callbacks(libdnf5.repo.RepoCallbacksUniquePtr(callbacks))

    def take_vacant_descriptors(self) -> None:
        """To be called behind a failed download. The library closes the file of a list of mirrors that it could not use
        once more when the Base goes: whatever has that number by then."""
        self._placeholders.append(_Placeholders())

    def __del__(self) -> None:
        # Before the placeholders.
        self.__dict__.pop("library", None)

    def repositories(self, enabled_only: bool = False) -> Iterator[libdnf5.repo.Repo]:
        """All that are configured, in their order."""
        query = libdnf5.repo.RepoQuery(self.library)
        query.filter_type(libdnf5.repo.Repo.Type_AVAILABLE)
        if enabled_only:
            query.filter_enabled(True)
        found = {repo.get_id(): repo.get() for repo in query}
        return iter([found[id] for id in self.sections or sorted(found) if id in found])

    def repository(self, id: str) -> libdnf5.repo.Repo:
        """KeyError."""
        for repo in self.repositories():
            if repo.get_id() == id:
                return repo
        raise KeyError(id)


def _plugin_name(file: str) -> str:
    """The name of the plugin that a file configures, empty where nobody can tell."""
    parser = libdnf5.conf.ConfigParser()
    try:
        parser.read(file)
        return str(parser.get_value("main", "name"))
    except FAILURES:
        return ""


def open_base(
    settings: Settings, sections: Optional[Sequence[RepositorySection]] = None, strict: bool = False
) -> Base:
    """A Base with repositories, nothing loaded yet. YumBaseError."""
    base = Base(settings, strict)
    base.read_repositories(sections)
    return base
