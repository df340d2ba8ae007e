# SPDX-License-Identifier: GPL-2.0-or-later
"""One apply: from the marks in the table to the new rpm database.

Each apply has a Base of its own, since a Base survives one transaction only, and since a refused
confirmation then leaves nothing behind but a Base to close.
"""

from __future__ import annotations

import contextlib
from typing import Any, Dict, List, Optional, Sequence, Set

import dnf.repo
import dnf.transaction
import libdnf.transaction as lt
import rpm

from . import host
from .base import Base
from .database import point_rpm_at
from .display import Display
from .download import download, not_in_cache
from .errors import YumBaseError, reported_as
from .lists import Collector
from .packages import AvailablePackage
from .session import Session
from .signatures import check_signatures
from .solver import mark, solve
from .surroundings import load_needed_later
from .texts import _
from .transaction import TransactionInfo

_REFRESH = _("A part of the transaction may have been done: please refresh the list of packages.")


class Apply:
    """`tsInfo` is what the engine lists; it exists once the transaction is solved."""

    def __init__(self, session: Session) -> None:
        self._session = session
        self.tsInfo: Optional[TransactionInfo] = None

    def run(self, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> None:
        """Does everything, or nothing when the user refuses. YumBaseError, other dnf errors, OSError.

        Blocks while the user is asked and while rpm runs.
        """
        if not (installs or updates or removes):
            host.log(host.LEVEL_NOTICE, _("Nothing is marked"))
            return
        collector = self._session.collector
        with contextlib.closing(self._session.new_base()) as base:
            for repo in base.repos.iter_enabled():
                # The table shows what the cache holds; newer metadata must not slip in behind it.
                repo._repo.setSyncStrategy(dnf.repo.SYNC_LAZY)
            base.load_everything()
            self.tsInfo = solve(base, mark(base, installs, updates, removes), collector)
            self.tsInfo.makelists()
            load_needed_later()
            incoming = sorted(base.transaction.install_set)
            host.list_transaction(self)
            missing = not_in_cache(incoming)
            host.report_download_size([AvailablePackage(package, _NO_DETAILS) for package in missing])
            if not host.confirmed():
                return
            download(base, incoming)
            check_signatures(base, incoming)
            _run(base)
            host.post_transaction_output(self)


class _NoDetails:
    def changelog(self, package: Any) -> List[Any]:
        return []

    def build_host(self, package: Any) -> Optional[str]:
        return None

    def metadata_file(self, repository: str) -> Optional[str]:
        return None


_NO_DETAILS = _NoDetails()


def _run(base: Base) -> None:
    """The test transaction and the real one, and a look at what came of it."""
    display = Display(base)
    root = base.conf.installroot
    before = _present(root)
    host.transaction_init(False)
    base.before_run = lambda: host.transaction_init(True)
    try:
        with reported_as(YumBaseError):
            base.do_transaction([display])
    except YumBaseError as error:
        point_rpm_at(root)
        said = [str(error), *(line for line in display.faults + display.rpm_said if line not in str(error))]
        if _present(root) != before:
            # A full disk can also stop dnf's book-keeping when all packages are in.
            said.append(_REFRESH)
        raise YumBaseError("\n".join(said)) from error
    point_rpm_at(root)
    wrong = _not_as_asked(base)
    if not wrong and not display.faults:
        return
    lines = [_("Not everything went as it should:")]
    lines += [f"  {line}" for line in (*wrong, *dict.fromkeys(display.faults + display.rpm_said))]
    raise YumBaseError("\n".join([*lines, _REFRESH]))


def _present(root: str) -> Dict[str, Set[str]]:
    """The installed packages, by name, as the rpm database tells them."""
    present: Dict[str, Set[str]] = {}
    transaction = rpm.TransactionSet(root)
    try:
        transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
        count = 0
        for header in transaction.dbMatch():
            count += 1
            present.setdefault(header["name"], set()).add(_nevra(header))
    finally:
        transaction.closeDB()
    Collector.expect_installed(root, count)
    return present


def _not_as_asked(base: Base) -> List[str]:
    """Compares the rpm database with what the transaction was to do."""
    present = _present(base.conf.installroot)
    incoming = {str(package) for package in base.transaction.install_set}
    wrong = []
    for item in base.transaction:
        if item.action == lt.TransactionItemAction_REASON_CHANGE:
            continue
        package = item.pkg
        there = _package_nevra(package) in present.get(package.name, ())
        if item.action in dnf.transaction.FORWARD_ACTIONS and not there:
            wrong.append(_("{package} was not installed").format(package=package))
        elif item.action in dnf.transaction.BACKWARD_ACTIONS and there and str(package) not in incoming:
            wrong.append(_("{package} was not removed").format(package=package))
        elif item.state == lt.TransactionItemState_ERROR:
            wrong.append(_("{package} failed").format(package=package))
    return wrong


def _nevra(header: Any) -> str:
    return f"{header['epoch'] or 0}:{header['version']}-{header['release']}.{header['arch']}"


def _package_nevra(package: Any) -> str:
    return f"{package.epoch}:{package.version}-{package.release}.{package.arch}"
