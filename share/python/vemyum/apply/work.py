# SPDX-License-Identifier: GPL-2.0-or-later
"""What the process of an apply does: from the marks in the table to the new rpm database."""

from __future__ import annotations

import contextlib
from typing import Callable, Dict, Iterator, List, Optional, Set

import rpm

from .. import backend, host
from ..backend import PkgTup, Settings, Transaction
from ..database import point_rpm_at, require_sound, unlisted
from ..errors import ALL_DONE, REFRESH, YumBaseError, reported_as
from ..packages import shown
from ..surroundings import load_needed_later
from ..texts import _
from .messages import Change, Plan, Request

NOT_INSTALLED = _("{package} is no longer installed. Please refresh the list of packages.")

_ONLY_TESTED = _(
    "This was only a test: tsflags=test is set in the configuration. The transaction has been checked and would work; "
    "no package was changed."
)


class Work:
    """One apply. `installed` is how many packages the system has, as far as that has been looked at."""

    def __init__(self, settings: Settings, request: Request) -> None:
        self._settings = settings
        self._request = request
        self.installed = -1
        self._done = False
        """Whether the packages have been changed, all of them as they were to be."""

    def do(self, agreed: Callable[[Plan], bool], begins: Callable[[List[Change]], None]) -> bool:
        """Everything, or nothing where the plan isn't agreed to; tells which.

        `begins` is called when rpm begins to change the system. Raises YumBaseError, the library's failures, OSError.
        """
        library = backend.library()
        with self._telling_what_is_done(), library.usable_history(self._settings), self._opened() as transaction:
            transaction.load()
            self._require_sound(transaction)
            host.solver_check()
            library.tell_command(self._settings, self._request.command)
            changes, details = transaction.solve()
            downloads = transaction.downloads()
            if not agreed(Plan(changes, transaction.streams(), downloads, details.rows, details.growth)):
                return False
            transaction.download()
            transaction.check_signatures()
            load_needed_later()
            self._run(transaction, lambda: begins(changes))
            return True

    @contextlib.contextmanager
    def _opened(self) -> Iterator[Transaction]:
        """Closes the transaction behind the block. A failure of that is not to hide one of the block."""
        transaction = backend.library().open_transaction(self._settings, self._request)
        try:
            yield transaction
        except BaseException:
            try:
                transaction.close()
            except Exception as error:  # noqa: BLE001 - told beside the other one
                host.errorlog(host.LEVEL_NOTICE, str(error))
            raise
        transaction.close()

    @contextlib.contextmanager
    def _telling_what_is_done(self) -> Iterator[None]:
        """Lets a failure behind a transaction that went well say so."""
        try:
            with reported_as(YumBaseError):
                yield
        except (YumBaseError, BrokenPipeError) as error:
            if not self._done:
                raise
            raise YumBaseError(f"{error}\n{ALL_DONE}") from error

    def _require_sound(self, transaction: Transaction) -> None:
        """Nothing is built on a database that has been damaged since the table was filled."""
        names = transaction.installed_names()
        require_sound(self._settings.root, set(names), len(names), self._request.installed)

    def _run(self, transaction: Transaction, begins: Callable[[], None]) -> None:
        """The test transaction and the real one, and a look at what came of it."""
        root = self._settings.root
        before = self._present(root)
        _require_installed(transaction, before)
        host.transaction_init(False)
        # A full disk can also stop the library's book-keeping when all packages are in, and the look at them then.
        failures: List[str] = []
        present: Optional[Dict[str, Set[str]]] = None
        try:
            with reported_as(YumBaseError):
                transaction.run(begins)
        except (YumBaseError, BrokenPipeError) as error:
            failures.append(str(error))
        try:
            with reported_as(YumBaseError):
                point_rpm_at(root)
                present = self._present(root)
        except YumBaseError as error:
            failures.append(str(error))
        faults = transaction.faults()
        heard = list(dict.fromkeys([*faults, *transaction.warnings()]))
        if failures or present is None:
            told = "\n".join(failures)
            lines = [*failures, *(line for line in heard if line not in told)]
            if present is None:
                lines.append(REFRESH)
            elif present != before:
                wrong = _not_as_asked(transaction, present)
                lines += [*wrong, REFRESH if wrong or faults else ALL_DONE]
            raise YumBaseError("\n".join(lines))
        if transaction.only_tested():
            # The library has come back as if all were done.
            raise YumBaseError(_ONLY_TESTED)
        wrong = _not_as_asked(transaction, present)
        if wrong or faults:
            lines = [_("Not everything went as it should:"), *(f"  {line}" for line in (*wrong, *heard))]
            raise YumBaseError("\n".join([*lines, REFRESH]))
        self._done = True

    def _present(self, root: str) -> Dict[str, Set[str]]:
        """The installed packages, by name, as the rpm database tells them."""
        present: Dict[str, Set[str]] = {}
        transaction = rpm.TransactionSet(root)
        try:
            transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
            count = 0
            for header in transaction.dbMatch():
                # The keys that stand among the packages are none.
                count += header["name"] != "gpg-pubkey"
                present.setdefault(header["name"], set()).add(_header_evra(header))
        finally:
            transaction.closeDB()
        self.installed = count if unlisted(root, present.keys()) is None else -1
        return present


def _require_installed(transaction: Transaction, present: Dict[str, Set[str]]) -> None:
    """YumBaseError for a package that is to go and has gone meanwhile: rpm would not say which."""
    for package in transaction.outgoing():
        if _evra(package) not in present.get(package[0], ()):
            raise YumBaseError(NOT_INSTALLED.format(package=shown(package)))


def _not_as_asked(transaction: Transaction, present: Dict[str, Set[str]]) -> List[str]:
    """Compares the rpm database with what the transaction was to do."""
    incoming, outgoing = transaction.incoming(), transaction.outgoing()
    there = {package for package in (*incoming, *outgoing) if _evra(package) in present.get(package[0], ())}
    told = {package: _("{package} was not installed") for package in incoming if package not in there}
    told.update(
        {package: _("{package} was not removed") for package in outgoing if package in there.difference(incoming)}
    )
    for package in transaction.failed():
        told.setdefault(package, _("{package} failed"))
    return [text.format(package=shown(package)) for package, text in told.items()]


def _header_evra(header: rpm.hdr) -> str:
    return f"{header['epoch'] or 0}:{header['version']}-{header['release']}.{header['arch']}"


def _evra(package: PkgTup) -> str:
    _name, arch, epoch, version, release = package
    return f"{epoch}:{version}-{release}.{arch}"
