# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script: what the engine calls, on top of dnf.

The engine executes this file in `__main__` and keeps one object of the class `YumIO`. The names are
those that the engine uses. Each method may raise the one class of `yum.Errors` that its text tells and
nothing else that a library raises; only a broken pipe reaches the engine as it is, from `apply`.
All methods may be called on any thread, one at a time.
"""

from __future__ import annotations

import gc
import os
import sys
from typing import Any, Dict, List, Optional, Sequence, Tuple

# The engine tells no path, only this file's name; the package lies beside it in the share directory.
_share = os.environ.get("VEMSHARE", "/usr/share/vem")
for _folder in (os.path.dirname(os.path.abspath(__file__)), os.path.join(_share, "python")):
    if os.path.isdir(os.path.join(_folder, "vemyum")):
        if _folder not in sys.path:
            sys.path.insert(0, _folder)
        break

from vemyum import streams  # noqa: E402

streams.replace_streams()

import bdb  # noqa: E402,F401

from vemyum import backend, choice, clean, host, messages, rights, stop, surroundings  # noqa: E402
from vemyum.apply.parent import Apply  # noqa: E402
from vemyum.errors import LockError, RepoError, YumBaseError, reported_as  # noqa: E402
from vemyum.matters import advisories, history, keys, restarts  # noqa: E402
from vemyum.root import managed_root  # noqa: E402
from vemyum.session import Session  # noqa: E402

yum = surroundings.make_yum_module()
messages.install_handler()

if not gc.get_freeze_count():
    # dnf has the garbage collector look through everything each time it fills a sack; what has been imported
    # stays for good, and is passed over from here on.
    gc.freeze()


def usesSqlite() -> bool:
    """Metadata is never held in sqlite form."""
    return False


def packageLibrary() -> str:
    """The package library that does the work, and its version, as people name them."""
    return f"{choice.MODULES[choice.chosen().backend]} {yum.__dict__['__version__']}"


def whyOnlyLooking() -> Optional[str]:
    """Why nobody can change the packages of the managed system, in one sentence; None where they can be."""
    return rights.unchangeable(managed_root())


def whyNoChange() -> Optional[str]:
    """Why this user can't change the packages, in one sentence; None where they can be changed."""
    return rights.unchangeable(managed_root()) or (None if rights.is_administrator() else rights.LOOK_ONLY)


def stopBy(descriptor: int) -> None:
    """From here on a job is given up, with the exception that its method may raise, once this descriptor can be read;
    where rpm works, it isn't."""
    stop.listen_to(descriptor)


class YumIO:
    """One session. The lock is the process's and outlives it.

    The constructor raises SystemExit when there is no package library to be used, or when the very first
    configuration cannot be used, with the reason in the log. Later ones leave it to `setupRepos` to
    tell, so that there is always an object.
    """

    _latest: Optional[Session] = None

    def __init__(self) -> None:
        before = YumIO._latest
        if before is not None:
            # Its object is gone or will go; nothing of it may stay in memory beside the new one.
            before.close()
        try:
            library = choice.chosen()
            if before is None and library.doubt:
                host.warninglog(host.LEVEL_NOTICE, library.doubt)
            self._session = Session(lenient=before is not None)
        except (choice.Unusable, YumBaseError) as error:
            host.errorlog(host.LEVEL_ERROR, str(error))
            raise SystemExit(1) from error
        YumIO._latest = self._session
        self.repos = self._session.repositories
        self.conf = self._session.conf

    def __del__(self) -> None:
        session = self.__dict__.get("_session")
        if session is not None:
            session.close()

    def lock(self) -> None:
        """LockError. The engine shows no exception's text here but what was logged: the holder's name."""
        try:
            self._session.lock()
        except stop.Stopped as error:
            raise LockError(str(error)) from error
        except LockError as error:
            host.errorlog(host.LEVEL_ERROR, str(error))
            raise

    def unlock(self) -> None:
        """LockError."""
        self._session.unlock()

    def stayOnDisk(self) -> None:
        """Has `setupRepos` fetch nothing: it reads what was fetched before, as far as there is anything."""
        self._session.stay_on_disk()

    def setupRepos(self) -> None:
        """RepoError, naming the repository, its address and the cause."""
        with reported_as(RepoError):
            self._session.read_repositories()

    def openPackageFiles(self, words: Sequence[str]) -> List[Tuple[str, str, str]]:
        """Behind `setupRepos`: adds the packages of these paths and addresses to the lists to come, in the place of
        others of their names. For each word itself, the name of its package, empty for none, and why there is none.
        YumBaseError."""
        with reported_as(YumBaseError):
            return [tuple(one) for one in self._session.open_package_files(words)]

    def setupTs(self) -> None:
        """YumBaseError. Each transaction is prepared by its own `apply`; here it only must be possible."""
        self._session.collector

    def collectUpdates(self) -> Sequence[Any]:
        """YumBaseError."""
        with reported_as(YumBaseError):
            return self._session.updates()

    def collectAll(self) -> Any:
        """YumBaseError, also for an rpm database that is suddenly empty."""
        with reported_as(YumBaseError):
            return self._session.everything()

    def setupTsGroup(self) -> None:
        """GroupsError when there are no groups, YumBaseError."""
        with reported_as(YumBaseError):
            self._session.read_groups()

    def collectGroupInfo(self) -> List[Any]:
        """The groups; none where `setupTsGroup` found none."""
        return self._session.groups()

    def incomplete(self) -> List[str]:
        """What is configured and the collection had to do without: a text for each repository or file. YumBaseError
        before there was one."""
        return self._session.incomplete()

    def repositoryTimes(self) -> Dict[str, int]:
        """By the name of each repository in use: when its metadata were fetched or found to be current, in seconds
        since the epoch. YumBaseError before there was a collection."""
        with reported_as(YumBaseError):
            return self._session.repository_times()

    def unfinished(self) -> Optional[Tuple[str, Dict[str, str], List[Any]]]:
        """What a transaction that was cut off has left: a text; the versions of each package that is there more than
        once, by its name; the older ones of these, for `apply` to remove. None for nothing. YumBaseError."""
        with reported_as(YumBaseError):
            found = self._session.unfinished()
        return None if found is None else (found.text, found.versions, found.older)

    def rowDetails(self, kind: str, packages: Sequence[Any]) -> Optional[Sequence[Any]]:
        """For each of the packages, in their order, what `columns.told` tells. YumBaseError."""
        with reported_as(YumBaseError):
            return self._session.row_details(kind, packages)

    def relations(self, kind: str, package: Any, most: int) -> Tuple[List[Any], int]:
        """What `relations.told` tells of a package. YumBaseError."""
        with reported_as(YumBaseError):
            return self._session.relations(kind, package, most)

    def historyList(self) -> List[Dict[str, Any]]:
        """All transactions, the latest first; `matters.history` tells what each is. Needs no collection. YumBaseError."""
        with reported_as(YumBaseError):
            return history.listed(self._session.records(), managed_root())

    def historyOf(self, number: int) -> Dict[str, Any]:
        """One transaction in full, as `matters.history` tells. YumBaseError."""
        with reported_as(YumBaseError):
            return history.told(self._session.records(), managed_root(), number)

    def historySearch(self, text: str) -> List[int]:
        """The numbers of the transactions, the latest first, about packages that a text or a pattern fits.
        YumBaseError."""
        with reported_as(YumBaseError):
            return history.concerning(self._session.records(), text)

    def historyExport(self, number: int, form: str) -> str:
        """A transaction, or for 0 all of them, as "text" or "json". YumBaseError."""
        with reported_as(YumBaseError):
            return history.exported(self._session.records(), managed_root(), number, form)

    def advisoryList(self) -> Optional[List[Dict[str, Any]]]:
        """The advisories about what is installed, the latest first, as `matters.advisories` tells; None where no
        repository's metadata tells of any. YumBaseError."""
        with reported_as(YumBaseError):
            return advisories.listed(self._session.system)

    def advisoryOf(self, identifier: str) -> Dict[str, Any]:
        """One of them in full, as `matters.advisories` tells. YumBaseError."""
        with reported_as(YumBaseError):
            return advisories.told(self._session.system, identifier)

    def securityUpdates(self, newest: bool) -> List[Dict[str, Any]]:
        """The updates that carry out security advisories, the smallest or the newest, as `matters.advisories` tells.
        YumBaseError."""
        with reported_as(YumBaseError):
            return advisories.security_updates(self._session.system, newest)

    def keyList(self) -> Dict[str, Any]:
        """The keys that rpm trusts, as `matters.keys` tells. Needs no collection. YumBaseError."""
        with reported_as(YumBaseError):
            return keys.listed(self._session.configured(), managed_root())

    def keyRead(self, word: str) -> Dict[str, Any]:
        """The keys that a path or an address would bring, as `matters.keys` tells. Needs no collection. YumBaseError."""
        with reported_as(YumBaseError):
            return keys.read(self._session.configured(), managed_root(), word)

    def keyImport(self, fingerprints: Sequence[str]) -> List[Dict[str, str]]:
        """Has rpm trust these of the keys that `keyRead` gave last; what came of each, as `matters.keys` tells.
        YumBaseError."""
        with reported_as(YumBaseError), self._session.locked():
            return keys.imported(managed_root(), fingerprints)

    def keyRemove(self, key: str) -> None:
        """Has rpm trust a key no more, by its fingerprint, or rpm's name for one that cannot be read. YumBaseError."""
        with reported_as(YumBaseError), self._session.locked():
            keys.removed(managed_root(), key)

    def restartAdvice(self) -> Dict[str, Any]:
        """What still works with what has been replaced, as `matters.restarts` tells. Needs no collection; behind one,
        advisories count. YumBaseError."""
        with reported_as(YumBaseError):
            lists, advised = backend.library().REBOOT_LISTS, self._session.reboot_advised()
            return restarts.advice(managed_root(), lists, advised)

    def restartServices(self, units: Sequence[str]) -> List[Dict[str, Any]]:
        """Restarts services of the running system, one by one; what came of each, as `matters.restarts` tells.
        YumBaseError."""
        with reported_as(YumBaseError):
            return restarts.restarted(managed_root(), units)

    def collectFileLists(self) -> bool:
        """YumBaseError."""
        with reported_as(YumBaseError):
            self._session.load_file_lists()
        return True

    def collectOtherData(self) -> bool:
        """YumBaseError."""
        with reported_as(YumBaseError):
            self._session.load_changelogs()
        return True

    def apply(self, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> None:
        """Solves, lists, asks, downloads and runs. YumBaseError; OSError only for a broken pipe."""
        with reported_as(YumBaseError):
            rights.require_changeable(managed_root())
            Apply(self._session).run(installs, updates, removes)

    def applyHistory(self, kind: str, number: int, without: bool) -> List[str]:
        """Does the opposite of a transaction ("undo"), the same once more ("redo"), or the opposite of all that came
        behind it ("rollback"), by the same way as `apply`: lists, asks, downloads and runs.

        Gives what cannot be done, a sentence for each package or group; nothing was asked or done then. With `without`
        the rest of it is done, and nothing is given. Behind a refusal nothing is given either. Needs a collection.
        Raises as `apply`.
        """
        with reported_as(YumBaseError):
            rights.require_changeable(managed_root())
            return Apply(self._session).turn(kind, number, without)

    def usesPresto(self) -> bool:
        """Packages are never rebuilt from deltas."""
        return False

    def flush(self) -> None:
        """Nothing is left to write. Memory and files go with the object, once the engine has dropped its
        packages; after a refused apply, which ends with this call too, the object serves the next one."""

    def cleanHeaders(self) -> Tuple[int, List[str]]:
        """YumBaseError. There are no header files to remove."""
        return self._clean()

    def cleanPackages(self) -> Tuple[int, List[str]]:
        """YumBaseError."""
        return self._clean("packages")

    def cleanMetadata(self) -> Tuple[int, List[str]]:
        """YumBaseError."""
        return self._clean("metadata", "dbcache")

    def cleanPickles(self) -> Tuple[int, List[str]]:
        """YumBaseError."""
        return self._clean("dbcache")

    def _clean(self, *kinds: str) -> Tuple[int, List[str]]:
        rights.require_administrator(rights.NO_CLEANING)
        with self._session.locked():
            return clean.clean(self._session.cache_directory, *kinds) if kinds else (0, [])
