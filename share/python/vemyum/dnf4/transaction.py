# SPDX-License-Identifier: GPL-2.0-or-later
"""One apply with dnf.

Each has a Base of its own, since a Base survives one transaction only, and since a refused confirmation then leaves
nothing behind but a Base to close.
"""

from __future__ import annotations

from typing import Callable, List, Optional

import dnf.package
import dnf.repo
import dnf.transaction
import hawkey
import libdnf.transaction as lt

from ..apply.messages import Request
from ..apply.solving import Solved, lists_all, only_doubled, solve
from ..apply.turning import turn
from ..backend import PkgTup
from ..packages import pkgtup
from ..signatures import require_signatures
from .base import open_base
from .configuration import Settings
from .display import Display
from .download import download, not_in_cache
from .history import records
from .plan import Solver, enabled_streams
from .signatures import signature_faults


class Transaction:
    """Of one Base."""

    def __init__(self, settings: Settings, request: Request) -> None:
        self._request = request
        self._records = records(settings)
        conf = settings.conf
        conf.comment = "; ".join(filter(None, (conf.comment, request.comment)))
        # A repository that was added or changed meanwhile is none of those that the marks rest on.
        self._base = open_base(conf, request.repositories, progress=False, strict=True)
        self._base.args = [request.command]
        self._incoming: List[dnf.package.Package] = []
        self._display: Optional[Display] = None

    def load(self) -> None:
        """Where there are removals alone, without repositories, as on the command line: nothing is to come in. Behind
        a transaction that was cut off, the rest of it may have to."""
        base, request = self._base, self._request
        enabled = list(base.repos.iter_enabled())
        for repo in enabled:
            # The table shows what the cache holds; newer metadata must not slip in behind it.
            repo._repo.setSyncStrategy(dnf.repo.SYNC_LAZY)
        whole = bool(request.incoming or request.past)
        if not whole:
            base.load_system()
        solver = Solver(self._base)
        names = [one.name for one in request.removes]
        if whole or only_doubled(solver.installed(names), solver.install_only(names), request.removes):
            for repo in enabled:
                # Which the reading of the system alone has switched off.
                repo.enable()
            base.load_everything()
        for file in request.files:
            base.sack.add_cmdline_package(file)
        if not lists_all(solver.visible(names), request.removes):
            # The solver doesn't see what a hidden package needs, and what nothing needs any more without it.
            base.show_installed()

    def installed_names(self) -> List[str]:
        return [package.name for package in self._base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()]

    def solve(self) -> Solved:
        for past in self._request.past:
            solved = turn(Solver(self._base), past, self._records)
        if not self._request.past:
            solved = solve(Solver(self._base), self._request.incoming, self._request.removes)
        self._incoming = sorted(self._base.transaction.install_set)
        return solved

    def streams(self) -> List[str]:
        return enabled_streams(self._base)

    def downloads(self) -> List[int]:
        return [int(package.size) for package in not_in_cache(self._incoming)]

    def download(self) -> None:
        download(self._base, self._incoming)

    def check_signatures(self) -> None:
        require_signatures(self._base.conf.installroot, lambda: signature_faults(self._base, self._incoming))

    def incoming(self) -> List[PkgTup]:
        return [pkgtup(package) for package in self._incoming]

    def outgoing(self) -> List[PkgTup]:
        items = [item for item in self._base.transaction if item.action in dnf.transaction.BACKWARD_ACTIONS]
        return [pkgtup(item.pkg) for item in items]

    def run(self, begins: Callable[[], None]) -> None:
        self._display = Display(self._base)
        self._base.before_run = begins
        self._base.do_transaction([self._display])

    def faults(self) -> List[str]:
        return self._display.faults if self._display is not None else []

    def warnings(self) -> List[str]:
        return self._display.rpm_said if self._display is not None else []

    def failed(self) -> List[PkgTup]:
        items = [item for item in self._base.transaction if item.action != lt.TransactionItemAction_REASON_CHANGE]
        return [pkgtup(item.pkg) for item in items if item.state == lt.TransactionItemState_ERROR]

    def only_tested(self) -> bool:
        return "test" in self._base.conf.tsflags

    def close(self) -> None:
        self._base.close()
