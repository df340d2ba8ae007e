# SPDX-License-Identifier: GPL-2.0-or-later
"""The packages' way into the system, in the process that works.

rpm works in this process: from its first scriptlet on the root directory is another one, off and on. Nothing is
imported then, and nothing opened by its path.
"""

from __future__ import annotations

import contextlib
import logging
import signal
from typing import Any, Callable, Iterator, List, Optional, Sequence, Set, Tuple

import libdnf5.base
import libdnf5.rpm

from ..apply.messages import Request
from ..apply.solving import Solved, lists_all, only_doubled, solve
from ..apply.turning import turn
from ..backend import PkgTup
from ..database import point_rpm_at
from ..errors import YumBaseError
from ..inhibitor import inhibited
from ..signatures import require_signatures
from ..text import valid
from ..texts import _
from . import download, plan
from .base import Base
from .display import Display, rpms_lines
from .failures import in_full
from .history import records
from .librarylog import TransactionLog
from .settings import Settings
from .signatures import signature_faults
from .system import System

_Transaction = libdnf5.base.Transaction

_OF_THE_MAIN_FILE = "main"


class Transaction:
    """See `backend.Transaction`."""

    def __init__(self, settings: Settings, request: Request) -> None:
        """YumBaseError."""
        self._settings = settings
        self._request = request
        self._system: Optional[System] = self._new_system()
        self._names: List[str] = []
        self._log: Optional[TransactionLog] = None
        self._solved: Optional[plan.Solved] = None
        self._display: Optional[Display] = None

    # Reading -----------------------------------------------------------------------------------------------------

    def load(self) -> None:
        """Where there are removals alone, without repositories, as on the command line: nothing is to come in. Behind
        a transaction that was cut off, the rest of it may have to."""
        incoming, removes = self._request.incoming, self._request.removes
        with_repositories = bool(incoming or self._request.past)
        system = self._read(with_repositories)
        names = [one.name for one in removes]
        named = [row for row in system.installed() if row.name in names]
        if not with_repositories and only_doubled(named, plan.install_only(system.base, names), removes):
            with_repositories = True
            self._system = self._new_system()
            system = self._read(with_repositories)
        self._names = [row.name for row in system.installed()]
        if not lists_all(plan.installed(system.base, names), removes):
            # The solver doesn't see what a hidden package needs, and what nothing needs any more without it.
            visible = set(map(_place, _available(system.base)))
            self._system = self._new_system()
            _show_installed(self._system)
            _hide_others(self._read(with_repositories).base, visible)

    def _new_system(self) -> System:
        # A repository that was added or changed meanwhile is none of those that the marks rest on.
        sections = self._request.repositories
        return System(self._settings, sections, progress=False, strict=True, asks_for_keys=False)

    def _read(self, with_repositories: bool) -> System:
        system = self._opened
        for repo in system.base.repositories():
            # The table shows what the cache holds; newer metadata must not slip in behind it.
            repo.set_sync_strategy(repo.SyncStrategy_LAZY)
            if not with_repositories:
                repo.disable()
        system.load()
        for file in self._request.files:
            system.add_file(file)
        point_rpm_at(self._settings.root)
        return system

    @property
    def _opened(self) -> System:
        assert self._system is not None
        return self._system

    @property
    def _loaded(self) -> Base:
        return self._opened.base

    @property
    def _resolved(self) -> plan.Solved:
        assert self._solved is not None
        return self._solved

    def installed_names(self) -> List[str]:
        return self._names

    # Solving -----------------------------------------------------------------------------------------------------

    def solve(self) -> Solved:
        self._log = TransactionLog(self._loaded.library)
        solver = plan.Solver(self._loaded, self._gone_without)
        try:
            with in_full():
                for past in self._request.past:
                    solved = turn(solver, past, records(self._settings))
                if not self._request.past:
                    solved = solve(solver, self._request.incoming, self._request.removes)
                self._solved = solver.solved
                return solved
        finally:
            self._log.tell()

    def _gone_without(self, removed: Sequence[Any]) -> Set[PkgTup]:
        """Of the system alone, whatever is excluded."""
        alone = System(self._settings, [], progress=False)
        _show_installed(alone)
        alone.load()
        point_rpm_at(self._settings.root)
        return plan.removed_alone(alone.base, removed)

    def streams(self) -> List[str]:
        """None: the library enables one only when that is asked for, not for a package that comes from it."""
        return []

    # Files -------------------------------------------------------------------------------------------------------

    def downloads(self) -> List[int]:
        lacking = download.not_in_cache(self._resolved.packages())
        return [int(package.get_download_size()) for package in lacking]

    def download(self) -> None:
        try:
            download.download(self._loaded, self._resolved.packages())
        finally:
            self._take_log()

    def check_signatures(self) -> None:
        root = self._settings.root
        try:
            point_rpm_at(root)
            with in_full():
                require_signatures(root, lambda: signature_faults(self._loaded, self._resolved.packages()))
        finally:
            self._take_log()

    def _take_log(self) -> None:
        if self._log is not None:
            self._log.tell()

    # The transaction ---------------------------------------------------------------------------------------------

    def incoming(self) -> List[PkgTup]:
        return [plan.pkgtup(item.get_package()) for item in self._resolved.incoming]

    def outgoing(self) -> List[PkgTup]:
        return [plan.pkgtup(item.get_package()) for item in self._resolved.outgoing]

    def run(self, begins: Callable[[], None]) -> None:
        assert self._log is not None
        transaction = self._resolved.transaction
        config = self._loaded.config
        with contextlib.ExitStack() as until_rpm_begins, contextlib.ExitStack() as while_rpm_works:

            def begin() -> None:
                until_rpm_begins.close()
                begins()
                while_rpm_works.enter_context(inhibited())

            self._display = Display(self._resolved, self._install_only(), self._log, begin)
            transaction.set_callbacks(libdnf5.rpm.TransactionCallbacksUniquePtr(self._display))
            transaction.set_description(self._request.command)
            transaction.set_comment("; ".join(filter(None, (config.comment, self._request.comment))))
            point_rpm_at(self._settings.root)
            self._log.rpm_said.clear()
            until_rpm_begins.enter_context(_signals_waiting())
            try:
                with in_full():
                    # The library would note down as done what is only to be tested.
                    result = transaction.test() if self.only_tested() else transaction.run()
            finally:
                self._log.tell()
        if result != _Transaction.TransactionRunResult_SUCCESS and not self._display.faults:
            raise YumBaseError("\n".join(self._refusal(result)))

    def _install_only(self) -> Set[PkgTup]:
        query = libdnf5.rpm.PackageQuery(self._loaded.library)
        query.filter_name([package.get_name() for package in self._resolved.packages()])
        query.filter_installonly()
        return set(map(plan.pkgtup, query))

    def _refusal(self, result: int) -> List[str]:
        """Why the transaction was not done, in the library's words and rpm's."""
        transaction = self._resolved.transaction
        lines = [valid(line) for line in transaction.get_transaction_problems()]
        if result == _Transaction.TransactionRunResult_ERROR_GPG_CHECK:
            lines += [valid(line) for line in transaction.get_gpg_signature_problems()]
        if result == _Transaction.TransactionRunResult_ERROR_LOCK:
            other = transaction.get_concurrent_transaction()
            if other is not None and other.get_pid() > 0:
                lines.append(
                    _("Another transaction is at work: process {pid}, {command}").format(
                        pid=other.get_pid(), command=valid(other.get_description())
                    )
                )
        lines += self.warnings()
        return [valid(_Transaction.transaction_result_to_string(result)), *dict.fromkeys(lines)]

    def faults(self) -> List[str]:
        return self._display.faults if self._display is not None else []

    def warnings(self) -> List[str]:
        if self._display is None or self._log is None:
            return []
        # A test that fails does so for an error; it warns of each root that isn't this machine's.
        lowest = logging.WARNING if self._display.begun else logging.ERROR
        return rpms_lines(one for one in self._log.rpm_said if one[0] >= lowest)

    def failed(self) -> List[PkgTup]:
        return sorted(self._display.failed) if self._display is not None else []

    def only_tested(self) -> bool:
        return "test" in self._loaded.config.tsflags

    def close(self) -> None:
        self._display = None
        self._solved = None
        self._log = None
        if self._system is not None:
            self._system.close()
        self._system = None


@contextlib.contextmanager
def _signals_waiting() -> Iterator[None]:
    """Lets all signals wait while the block runs, on the threads that are made there for good.

    The library makes one for the output of scriptlets before rpm begins. What this process keeps off from then on
    would end it there.
    """
    before = signal.pthread_sigmask(signal.SIG_BLOCK, signal.valid_signals())
    try:
        yield
    finally:
        signal.pthread_sigmask(signal.SIG_SETMASK, before)


def _show_installed(system: System) -> None:
    """Before it is loaded: lets the main file's excludes hide nothing."""
    config = system.base.config
    config.disable_excludes = [*config.disable_excludes, _OF_THE_MAIN_FILE]


def _hide_others(base: Base, visible: Set[Tuple[str, PkgTup]]) -> None:
    """What the main file excludes does not come in all the same."""
    hidden = libdnf5.rpm.PackageSet(base.library)
    for package in _available(base):
        if _place(package) not in visible:
            hidden.add(package)
    base.library.get_rpm_package_sack().add_user_excludes(hidden)


def _available(base: Base) -> Any:
    query = libdnf5.rpm.PackageQuery(base.library)
    query.filter_available()
    return query


def _place(package: Any) -> Tuple[str, PkgTup]:
    return package.get_repo_id(), plan.pkgtup(package)
