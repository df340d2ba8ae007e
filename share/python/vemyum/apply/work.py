# SPDX-License-Identifier: GPL-2.0-or-later
"""What the process of an apply does: from the marks in the table to the new rpm database.

Each apply has a Base of its own, since a Base survives one transaction only, and since a refused
confirmation then leaves nothing behind but a Base to close.
"""

from __future__ import annotations

import contextlib
from typing import Any, Callable, Dict, Iterator, List, Optional, Set

import dnf.conf
import dnf.repo
import dnf.transaction
import hawkey
import libdnf.transaction as lt
import rpm

from .. import host
from ..base import Base, open_base
from ..database import point_rpm_at, require_sound, unlisted
from ..display import Display
from ..download import download, not_in_cache
from ..errors import ALL_DONE, REFRESH, YumBaseError, reported_as
from ..history import usable_history
from ..logfiles import tell_command
from ..signatures import check_signatures
from ..surroundings import load_needed_later
from ..texts import _
from .messages import Change, Plan, Request
from .plan import NOT_INSTALLED, enabled_streams, hides_any, mark, only_doubled, solve

_ONLY_TESTED = _(
    "This was only a test: tsflags=test is set in the configuration. The transaction has been checked and would work; "
    "no package was changed."
)


class Work:
    """One apply. `installed` is how many packages the system has, as far as that has been looked at."""

    def __init__(self, conf: dnf.conf.MainConf, request: Request) -> None:
        self._conf = conf
        self._request = request
        conf.comment = "; ".join(filter(None, (conf.comment, request.comment)))
        self.installed = -1
        self._done = False
        """Whether the packages have been changed, all of them as they were to be."""

    def do(self, agreed: Callable[[Plan], bool], begins: Callable[[List[Change]], None]) -> bool:
        """Everything, or nothing where the plan isn't agreed to; tells which.

        `begins` is called when rpm begins to change the system. Raises YumBaseError, other dnf errors, OSError.
        """
        with self._telling_what_is_done(), usable_history(self._conf), _closing(self._loaded()) as base:
            self._require_sound(base)
            host.solver_check()
            tell_command(base.conf, self._request.command)
            changes = solve(base, mark(base, self._request.incoming, self._request.removes))
            incoming = sorted(base.transaction.install_set)
            plan = Plan(changes, enabled_streams(base), [int(package.size) for package in not_in_cache(incoming)])
            if not agreed(plan):
                return False
            download(base, incoming)
            check_signatures(base, incoming)
            load_needed_later()
            base.before_run = lambda: begins(changes)
            self._run(base)
            return True

    def _loaded(self) -> Base:
        """Where there are removals alone, without repositories, as on the command line: nothing is to come in. Behind
        a transaction that was cut off, the rest of it may have to."""
        with contextlib.ExitStack() as on_failure:
            # A repository that was added or changed meanwhile is none of those that the marks rest on.
            base = open_base(self._conf, self._request.repositories, progress=False, strict=True)
            on_failure.callback(base.close)
            base.args = [self._request.command]
            enabled = list(base.repos.iter_enabled())
            for repo in enabled:
                # The table shows what the cache holds; newer metadata must not slip in behind it.
                repo._repo.setSyncStrategy(dnf.repo.SYNC_LAZY)
            if not self._request.incoming:
                base.load_system()
                if hides_any(base, self._request.removes):
                    # The solver doesn't see what a hidden package needs, and what nothing needs any more without it.
                    base.load_system(excludes=False)
            if self._request.incoming or only_doubled(base, self._request.removes):
                for repo in enabled:
                    # Which the reading of the system alone has switched off.
                    repo.enable()
                base.load_everything()
            on_failure.pop_all()
            return base

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

    def _require_sound(self, base: Base) -> None:
        """Nothing is built on a database that has been damaged since the table was filled."""
        packages = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
        names = {package.name for package in packages}
        require_sound(base.conf.installroot, names, len(packages), self._request.installed)

    def _run(self, base: Base) -> None:
        """The test transaction and the real one, and a look at what came of it."""
        display = Display(base)
        root = base.conf.installroot
        before = self._present(root)
        _require_installed(base, before)
        host.transaction_init(False)
        # A full disk can also stop dnf's book-keeping when all packages are in, and the look at them then.
        failures: List[str] = []
        present: Optional[Dict[str, Set[str]]] = None
        try:
            with reported_as(YumBaseError):
                base.do_transaction([display])
        except (YumBaseError, BrokenPipeError) as error:
            failures.append(str(error))
        try:
            with reported_as(YumBaseError):
                point_rpm_at(root)
                present = self._present(root)
        except YumBaseError as error:
            failures.append(str(error))
        heard = list(dict.fromkeys(display.faults + display.rpm_said))
        if failures or present is None:
            told = "\n".join(failures)
            lines = [*failures, *(line for line in heard if line not in told)]
            if present is None:
                lines.append(REFRESH)
            elif present != before:
                wrong = _not_as_asked(base, present)
                lines += [*wrong, REFRESH if wrong or display.faults else ALL_DONE]
            raise YumBaseError("\n".join(lines))
        if "test" in base.conf.tsflags:
            # The library has come back as if all were done.
            raise YumBaseError(_ONLY_TESTED)
        wrong = _not_as_asked(base, present)
        if wrong or display.faults:
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
                present.setdefault(header["name"], set()).add(_nevra(header))
        finally:
            transaction.closeDB()
        self.installed = count if unlisted(root, present.keys()) is None else -1
        return present


@contextlib.contextmanager
def _closing(base: Base) -> Iterator[Base]:
    """Closes the Base behind the block. Its failure is not to hide one of the block."""
    try:
        yield base
    except BaseException:
        try:
            base.close()
        except Exception as error:  # noqa: BLE001 - told beside the other one
            host.errorlog(host.LEVEL_NOTICE, str(error))
        raise
    base.close()


def _require_installed(base: Base, present: Dict[str, Set[str]]) -> None:
    """YumBaseError for a package that is to go and has gone meanwhile: rpm would not say which."""
    for item in base.transaction:
        if item.action in dnf.transaction.BACKWARD_ACTIONS:
            if _package_nevra(item.pkg) not in present.get(item.pkg.name, ()):
                raise YumBaseError(NOT_INSTALLED.format(package=item.pkg))


def _not_as_asked(base: Base, present: Dict[str, Set[str]]) -> List[str]:
    """Compares the rpm database with what the transaction was to do."""
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
