# SPDX-License-Identifier: GPL-2.0-or-later
"""The running rpm transaction, told to the engine step by step."""

from __future__ import annotations

import logging
from typing import Any, Callable, Dict, Iterable, List, Set, Tuple

from libdnf5 import rpm as libdnf5_rpm
from libdnf5 import transaction as kinds

from .. import host
from ..backend import PkgTup
from ..host import TS_ERASE, TS_INSTALL, TS_OBSOLETED, TS_OBSOLETING, TS_TRUEINSTALL, TS_UPDATE, TS_UPDATED
from ..messages import rpm_prefixes
from ..text import valid
from ..texts import _
from .callbacks import guarded
from .librarylog import TransactionLog
from .plan import Solved, pkgtup

_NOT_CRITICAL = 1
"""A scriptlet's end that keeps its package neither out nor in."""


_CODES: Dict[int, int] = {
    kinds.TransactionItemAction_INSTALL: TS_INSTALL,
    kinds.TransactionItemAction_UPGRADE: TS_UPDATE,
    kinds.TransactionItemAction_DOWNGRADE: TS_INSTALL,
    kinds.TransactionItemAction_REINSTALL: TS_INSTALL,
    kinds.TransactionItemAction_REMOVE: TS_ERASE,
}


class Display(libdnf5_rpm.TransactionCallbacks):  # type: ignore[misc]
    """Forwards progress and scriptlet output, and keeps what rpm reports only in passing. Nothing can be stopped from
    here. Whoever makes one keeps it until the library is done."""

    def __init__(
        self, solved: Solved, install_only: Set[PkgTup], log: TransactionLog, begins: Callable[[], None]
    ) -> None:
        super().__init__()
        self.faults: List[str] = []
        """Sentences about elements that failed."""
        self.begun = False
        """Whether the test transaction is over."""
        self.failed: Set[PkgTup] = set()
        self._transaction = solved.transaction
        self._log = log
        self._begins = begins
        self._codes = _codes(solved, install_only)
        self._ordinal = 0
        self._count = 0

    @guarded()
    def before_begin(self, total: int) -> None:
        """Behind the test transaction: rpm begins in earnest."""
        self.begun = True
        self._count = total
        self._log.tell()
        # What rpm has said of the test is over.
        self._log.rpm_said.clear()
        self._begins()

    @guarded()
    def after_complete(self, _success: bool) -> None:
        self._log.tell()

    @guarded()
    def elem_progress(self, _item: Any, amount: int, total: int) -> None:
        self._ordinal = amount + 1
        self._count = total
        self._log.tell()

    @guarded()
    def install_start(self, item: Any, total: int) -> None:
        self._tell(item, 0, total)

    @guarded()
    def install_progress(self, item: Any, amount: int, total: int) -> None:
        self._tell_part(item, amount, total)

    @guarded()
    def install_stop(self, item: Any, _amount: int, total: int) -> None:
        self._tell(item, total, total)

    @guarded()
    def uninstall_start(self, item: Any, total: int) -> None:
        self._tell(item, 0, total)

    @guarded()
    def uninstall_progress(self, item: Any, amount: int, total: int) -> None:
        self._tell_part(item, amount, total)

    @guarded()
    def uninstall_stop(self, item: Any, _amount: int, total: int) -> None:
        self._tell(item, total, total)

    @guarded()
    def unpack_error(self, item: Any) -> None:
        self._fail(item, _("{package} could not be unpacked"))

    @guarded()
    def cpio_error(self, item: Any) -> None:
        self._fail(item, _("{package} could not be unpacked"))

    @guarded()
    def script_start(self, _item: Any, nevra: Any, _kind: int) -> None:
        host.script_runs(valid(nevra.get_name()))
        self._log.tell()

    @guarded()
    def script_stop(self, _item: Any, nevra: Any, kind: int, code: int) -> None:
        for line in valid(self._transaction.get_last_script_output()).splitlines():
            host.stdout_write(line + "\n")
        self._log.tell()
        if code == _NOT_CRITICAL:
            self.faults.append(_script_text(nevra, kind))

    @guarded()
    def script_error(self, item: Any, nevra: Any, kind: int, _code: int) -> None:
        """Behind `script_stop`, for what keeps the package from being done."""
        self.faults.append(_script_text(nevra, kind))
        if item is not None:
            self.failed.add(pkgtup(item.get_package()))

    def _fail(self, item: Any, words: str) -> None:
        package = item.get_package()
        self.failed.add(pkgtup(package))
        self.faults.append(words.format(package=valid(package.get_nevra())))

    def _tell_part(self, item: Any, done: int, total: int) -> None:
        # The whole of it is told at the end.
        if done < total:
            self._tell(item, done, total)

    def _tell(self, item: Any, done: float, total: float) -> None:
        name, code = self._codes[item.get_action(), pkgtup(item.get_package())]
        # An element without a size is done where it begins.
        host.transaction_event(name, code, done, max(total, 1), self._ordinal, self._count)


def _codes(solved: Solved, install_only: Set[PkgTup]) -> Dict[Tuple[int, PkgTup], Tuple[str, int]]:
    """By action and package: its name, and yum's code for what happens to it."""
    found = {}
    actions = {}
    for item in solved.incoming:
        package, action = item.get_package(), item.get_action()
        actions[pkgtup(package)] = action
        code = _CODES[action]
        if action == kinds.TransactionItemAction_INSTALL:
            if any(old.get_name() != package.get_name() for old in item.get_replaces()):
                code = TS_OBSOLETING
            elif pkgtup(package) in install_only:
                code = TS_TRUEINSTALL
        found[action, pkgtup(package)] = valid(package.get_name()), code
    for item in solved.outgoing:
        package = item.get_package()
        found[item.get_action(), pkgtup(package)] = valid(package.get_name()), _outgoing_code(item, actions)
    return found


def _outgoing_code(item: Any, actions: Dict[PkgTup, int]) -> int:
    if item.get_action() == kinds.TransactionItemAction_REMOVE:
        return TS_ERASE
    name = item.get_package().get_name()
    namesakes = [new for new in item.get_replaced_by() if new.get_name() == name]
    if not namesakes:
        return TS_OBSOLETED
    upgraded = any(actions.get(pkgtup(new)) == kinds.TransactionItemAction_UPGRADE for new in namesakes)
    return TS_UPDATED if upgraded else TS_ERASE


def _script_text(nevra: Any, kind: int) -> str:
    package = f"{nevra.get_name()}-{nevra.get_version()}-{nevra.get_release()}.{nevra.get_arch()}"
    script = libdnf5_rpm.TransactionCallbacks.script_type_to_string(kind)
    return _("The {script} scriptlet of {package} has failed").format(script=script, package=valid(package))


def rpms_lines(said: Iterable[Tuple[int, str]]) -> List[str]:
    """rpm's warnings and errors, as it would print them."""
    error, warning = rpm_prefixes()
    return [f"{warning if level <= logging.WARNING else error}{text}" for level, text in said]
