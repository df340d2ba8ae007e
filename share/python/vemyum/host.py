# SPDX-License-Identifier: GPL-2.0-or-later
"""The engine's module `yumIOC`, with arguments that its formats take.

Nothing here raises for odd texts or numbers, and no password goes along with a text. Errors of the host
itself (a refused argument) come through as they are. All functions run on the caller's thread.
"""

from __future__ import annotations

from typing import Any, Callable, Iterable, Optional, Sequence

import yumIOC  # type: ignore[import-not-found]

from .credentials import masked
from .text import valid, whole

LEVEL_ERROR = 0
LEVEL_NOTICE = 1
LEVEL_INFO = 2
LEVEL_QUIET = 3
"""From this level on an error line stays out of the engine's error dialogs."""
LEVEL_DEBUG = 4
LEVEL_TRACE = 7


def stdout_write(text: str) -> None:
    yumIOC.stdoutWrite(masked(valid(text)))


def stderr_write(text: str) -> None:
    yumIOC.stderrWrite(masked(valid(text)))


def log(level: int, text: str) -> None:
    yumIOC.log(level, masked(valid(text)))


def errorlog(level: int, text: str) -> None:
    yumIOC.errorlog(level, masked(valid(text)))


def warninglog(level: int, text: str) -> None:
    yumIOC.warninglog(level, masked(valid(text)))


def collect_progress(value: Any, total: Any, name: Optional[str]) -> None:
    yumIOC.collectProgress(whole(value), whole(total), None if name is None else valid(name))


def collect_meter_start(path: str, size: Optional[int]) -> None:
    yumIOC.collectGrabMeterStart(valid(path), "", "", None if size is None else whole(size), None)


def collect_meter_update(done: Any) -> None:
    yumIOC.collectGrabMeterUpdate(whole(done))


def collect_meter_end(done: Any) -> None:
    yumIOC.collectGrabMeterEnd(whole(done))


def apply_meter_start(name: str, size: Any) -> None:
    yumIOC.applyGrabMeterStart(valid(name), None, None, whole(size), None)


def apply_meter_update(done: Any) -> None:
    yumIOC.applyGrabMeterUpdate(whole(done))


def apply_meter_end(done: Any) -> None:
    yumIOC.applyGrabMeterEnd(whole(done))


def solver_check() -> None:
    yumIOC.dsTsCheck()


def solver_restart() -> None:
    yumIOC.dsRestartLoop()


def confirmed() -> bool:
    """Asks the user; blocks until the answer is there."""
    return bool(yumIOC.userconfirm())


def confirm_key(
    location: str,
    repository: str,
    packages: str,
    user_id: str = "",
    fingerprint: str = "",
    key_id: str = "",
    created: int = 0,
    expires: int = 0,
    verified: bool = True,
) -> bool:
    """Asks whether a key is to be trusted, or, as long as it has no fingerprint, whether it is to be fetched; blocks
    until the answer is there. Whoever cannot ask agrees to nothing.

    `packages` are what is signed with it, empty for the metadata of the repository; times are seconds since 1970;
    `verified` tells whether a server on the way must prove its name where it can.
    """
    ask = getattr(yumIOC, "confirmKey", None)
    texts = (masked(valid(text)) for text in (location, repository, packages, user_id, fingerprint, key_id))
    return ask is not None and bool(ask(*texts, created, expires, verified))


def report_download_size(packages: Iterable[Any]) -> None:
    yumIOC.reportDownloadSize(packages)


def list_transaction(holder: Any) -> None:
    yumIOC.listTransaction(holder)


def transaction_details(rows: Sequence[Sequence[Any]], download: int, growth: int, changes: Callable[[], Any]) -> None:
    """What is told of each package behind the list, before the user is asked; not every host wants it.

    A row is the values of a `messages.Detail` in their order, without the checksum. Both numbers are bytes. `changes`
    answers for each row what its changelog has that the installed version's hasn't; the host calls it at most while the
    user is asked, on the same thread, with the changelogs loaded (`collectOtherData`).
    """
    take = getattr(yumIOC, "transactionDetails", None)
    if take is not None:
        take(rows, download, growth, changes)


def transaction_init(real: bool) -> None:
    yumIOC.tsInitCallback(1 if real else 0)


TS_UPDATE, TS_INSTALL, TS_TRUEINSTALL, TS_ERASE = 10, 20, 30, 40
TS_OBSOLETED, TS_OBSOLETING, TS_UPDATED = 50, 60, 90
"""yum's codes for what happens to a package."""

_OUTGOING = (TS_ERASE, TS_OBSOLETED, TS_UPDATED)


class Named:
    """A package of which the engine wants the name."""

    def __init__(self, name: str) -> None:
        self.name = name


def transaction_event(name: str, code: int, done: Any, total: Any, ordinal: int, count: int) -> None:
    """`ordinal` counts the elements of the transaction from 1, `count` is how many there are."""
    # What goes out is told by its name alone.
    package = valid(name) if code in _OUTGOING else Named(valid(name))
    yumIOC.tsEvent(package, code, whole(done), whole(total), ordinal, count)


def script_runs(name: str) -> None:
    """A scriptlet of a package runs, up to the next event; not every host wants to know."""
    tell = getattr(yumIOC, "scriptRuns", None)
    if tell is not None:
        tell(valid(name))


def post_transaction_output(holder: Any) -> None:
    yumIOC.postTransactionOutput(holder)
