# SPDX-License-Identifier: GPL-2.0-or-later
"""The running rpm transaction, told to the engine step by step."""

from __future__ import annotations

from typing import Any, Dict, List, Set

import dnf.package
import dnf.transaction
import dnf.yum.rpmtrans
import libdnf.transaction as lt

from .. import host
from .base import Base
from ..host import TS_ERASE, TS_INSTALL, TS_OBSOLETED, TS_OBSOLETING, TS_TRUEINSTALL, TS_UPDATE, TS_UPDATED
from ..messages import rpm_prefixes
from ..text import valid

_CODES: Dict[int, int] = {
    lt.TransactionItemAction_INSTALL: TS_INSTALL,
    lt.TransactionItemAction_DOWNGRADE: TS_INSTALL,
    lt.TransactionItemAction_DOWNGRADED: TS_ERASE,
    lt.TransactionItemAction_OBSOLETED: TS_OBSOLETED,
    lt.TransactionItemAction_UPGRADE: TS_UPDATE,
    lt.TransactionItemAction_UPGRADED: TS_UPDATED,
    lt.TransactionItemAction_REMOVE: TS_ERASE,
    lt.TransactionItemAction_REINSTALL: TS_INSTALL,
    lt.TransactionItemAction_REINSTALLED: TS_ERASE,
}


class Display(dnf.yum.rpmtrans.TransactionDisplay):
    """Forwards progress and scriptlet output, and keeps what rpm reports only in passing.

    dnf logs and drops what is raised here, so nothing can be stopped from here.
    """

    def __init__(self, base: Base) -> None:
        super().__init__()
        self.faults: List[str] = []
        """dnf's sentences about elements that failed."""
        self.rpm_said: List[str] = []
        """rpm's own error and warning lines."""
        self._ordinal = 0
        self._last: Any = None
        self._rpm_prefixes = rpm_prefixes()
        self._install_only = {str(package) for package in base._get_installonly_query()}
        self._obsoleting: Set[str] = {
            str(package)
            for package in base.goal.list_installs()
            if any(old.name != package.name for old in base.goal.obsoleted_by_package(package))
        }

    def progress(
        self, package: Any, action: int, ti_done: Any, ti_total: Any, ts_done: Any, ts_total: Any
    ) -> None:
        if action == dnf.transaction.PKG_SCRIPTLET and isinstance(package, dnf.package.Package):
            host.script_runs(package.name)
        code = self._code(package, action)
        if code is None:
            return
        step = (str(package), action)
        if step != self._last:
            self._last = step
            self._ordinal += 1
        host.transaction_event(package.name, code, ti_done, ti_total, self._ordinal, int(ts_total or 0))

    def _code(self, package: Any, action: int) -> Any:
        code = _CODES.get(action)
        if code == TS_INSTALL and action == lt.TransactionItemAction_INSTALL:
            if str(package) in self._obsoleting:
                return TS_OBSOLETING
            if str(package) in self._install_only:
                return TS_TRUEINSTALL
        return code

    def scriptout(self, msgs: Any) -> None:
        for line in valid(msgs).splitlines() if msgs else ():
            if line.startswith(self._rpm_prefixes):
                self.rpm_said.append(line)
            host.stdout_write(line + "\n")

    def error(self, message: Any) -> None:
        self.faults.append(valid(message))
