# SPDX-License-Identifier: GPL-2.0-or-later
"""The process that applies changes, standing still at one moment of its work: in the place of `apply-child.py`.

VEM_STOP_AT names the moment, VEM_STOP_IN a folder: there, `stopped` gets the process's number when the moment has
come, and a byte written into the FIFO `go-on` ends the stop.
"""
from __future__ import annotations

import importlib
import os
import sys
from typing import Any, Callable, Dict, Tuple, Union

BEFORE, AFTER = "before", "after"
PART = "behind a part"
"""Behind a call that tells of some bytes: a library may tell first that there are none."""
TRANSACTION, DOWNLOAD = "vemyum.{library}.transaction", "vemyum.{library}.download"

Place = Tuple[str, str, str]

MOMENTS: Dict[str, Union[None, Place, Dict[str, Place]]] = {
    "start": None,
    "request": ("vemyum.apply.child", "_Parent.request", BEFORE),
    "lock": ("vemyum.lock", "ProcessLock.take_over", AFTER),
    "reading": (TRANSACTION, "Transaction.load", BEFORE),
    "solving": (TRANSACTION, "Transaction.solve", BEFORE),
    "question": ("vemyum.apply.child", "_Parent.agreed", BEFORE),
    "answer": ("vemyum.apply.child", "_Parent.agreed", AFTER),
    "download": (TRANSACTION, "Transaction.download", BEFORE),
    "part of a file": (DOWNLOAD, "DownloadMeter.progress", PART),
    "end of a file": (DOWNLOAD, "DownloadMeter.end", AFTER),
    "end of the download": (TRANSACTION, "Transaction.download", AFTER),
    "signatures": (TRANSACTION, "Transaction.check_signatures", AFTER),
    "test transaction": ("vemyum.apply.work", "Work._run", BEFORE),
    "end of the test transaction": ("vemyum.apply.child", "_Parent.commit", BEFORE),
    # From here on nobody but who kills the process itself can stop it.
    "transaction": ("vemyum.apply.child", "_Parent.commit", AFTER),
    "first package": ("vemyum.apply.child", "RemoteHost.tsEvent", "1"),
    "third package": ("vemyum.apply.child", "RemoteHost.tsEvent", "3"),
    "old package": ("vemyum.apply.child", "RemoteHost.tsEvent", "4"),
    "end of rpm": {
        "dnf4": ("dnf.db.history", "SwdbInterface.end", BEFORE),
        "dnf5": ("vemyum.dnf5.display", "Display.after_complete", BEFORE),
    },
    "end of the transaction": ("vemyum.apply.work", "_not_as_asked", BEFORE),
    "end": ("vemyum.apply.child", "_Parent._hand_back", BEFORE),
}
"""The moments of an apply in their order: which call, and which side of it, or of which turn of a package. What drives
a package library is named alike for each of them, as far as it can be."""

BEGUN = tuple(MOMENTS).index("transaction")
"""The number of moments before rpm begins to change the system."""


class _Stop:
    """Opened when the process starts: while rpm works, there is another root."""

    def __init__(self, directory: str) -> None:
        self._stopped = os.open(os.path.join(directory, "stopped"), os.O_WRONLY | os.O_CREAT | os.O_CLOEXEC)
        self._go_on = os.open(os.path.join(directory, "go-on"), os.O_RDWR | os.O_CLOEXEC)
        self._done = False

    def __call__(self) -> None:
        if not self._done:
            self._done = True
            os.write(self._stopped, f"{os.getpid()}\n".encode())
            os.read(self._go_on, 1)


def _arrange(stop: _Stop, module: str, path: str, when: str) -> None:
    owner: Any = importlib.import_module(module)
    *above, name = path.split(".")
    for part in above:
        owner = getattr(owner, part)
    original: Callable[..., Any] = getattr(owner, name)

    def stopping(*arguments: Any, **options: Any) -> Any:
        # The fifth argument behind the object tells whose turn it is: three packages go in, then two go out.
        if when == BEFORE or when.isdigit() and arguments[5] == int(when):
            stop()
        result = original(*arguments, **options)
        # The last one tells of how many bytes.
        if when == AFTER or when == PART and arguments[-1] > 0:
            stop()
        return result

    setattr(owner, name, stopping)


def main() -> None:
    sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
    moment = os.environ.get("VEM_STOP_AT")
    stop = _Stop(os.environ["VEM_STOP_IN"]) if moment else None
    if stop is not None and moment == "start":
        stop()
    from vemyum import choice

    choice.settle(sys.argv[3])
    from vemyum.apply import child

    work = child._work

    def prepared(parent: Any) -> Any:
        # Not before: the modules want the host's, which this process makes for itself.
        place = MOMENTS[moment] if moment else None
        if isinstance(place, dict):
            place = place[sys.argv[3]]
        if stop is not None and place is not None:
            module, path, when = place
            _arrange(stop, module.format(library=sys.argv[3]), path, when)
        return work(parent)

    child._work = prepared
    child.main(int(sys.argv[1]), int(sys.argv[2]))


if __name__ == "__main__":
    main()
