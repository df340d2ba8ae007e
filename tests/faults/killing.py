# SPDX-License-Identifier: GPL-2.0-or-later
"""An apply that stands still at a chosen moment, and programs with and without a window to be killed there."""
from __future__ import annotations

import json
import os
import shutil
import signal
import subprocess
import sys
from pathlib import Path
from typing import Any, Dict, List, Optional

from program import wait_for
from rpmestate import Estate

HERE = Path(__file__).resolve().parent


def share_with_stops(share: Path, copy: Path) -> Path:
    """A share directory whose process of an apply stands still where it is told to. All else is that of `share`."""
    (copy / "python").mkdir(parents=True)
    for path in (*share.iterdir(), *(share / "python").iterdir()):
        place = copy / path.relative_to(share)
        if not place.exists() and path.name != "apply-child.py":
            place.symlink_to(path)
    shutil.copy(HERE / "stopping_child.py", copy / "python/apply-child.py")
    return copy


class Stop:
    """The moment, as the process that applies is told of it by `variables`."""

    def __init__(self, directory: Path, moment: str) -> None:
        directory.mkdir()
        self._stopped = directory / "stopped"
        self._go_on = directory / "go-on"
        os.mkfifo(self._go_on)
        self._end = os.open(self._go_on, os.O_RDWR)
        self.variables = {"VEM_STOP_AT": moment, "VEM_STOP_IN": str(directory)}

    def reached(self) -> int:
        """Waits for the moment; gives the number of the process that applies."""
        return int(wait_for(lambda: self._stopped.exists() and self._stopped.read_text().strip(), "the moment"))

    def go_on(self) -> None:
        os.write(self._end, b"\n")

    def close(self) -> None:
        os.close(self._end)


def at_work(pid: int) -> bool:
    try:
        return Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] not in "ZX"
    except (FileNotFoundError, ProcessLookupError):
        return False


def kill(pid: int, number: signal.Signals) -> None:
    """Returns when it has worked."""
    os.kill(pid, number)
    wait_for(lambda: not at_work(pid), f"the end of process {pid}", interval=0.01)


class Headless:
    """A program without a window."""

    def __init__(self, answer: Path) -> None:
        self._answer = answer
        self.pid: int = wait_for(lambda: self._line(0), "the program", interval=0.01)["pid"]

    def _line(self, number: int) -> Optional[Dict[str, Any]]:
        lines = self._answer.read_bytes().split(b"\n") if self._answer.exists() else []
        return json.loads(lines[number]) if len(lines) > number + 1 else None

    def ended(self) -> Dict[str, str]:
        """Waits for its end; gives the fault, empty for none, and the texts that were logged."""

        def end() -> Optional[Dict[str, str]]:
            alive = at_work(self.pid)
            line = self._line(1)
            assert alive or line, "the program has died"
            return line

        outcome = wait_for(end, "the end of the program", interval=0.01)
        wait_for(lambda: not at_work(self.pid), "the end of the program")
        return outcome


class Programs:
    """Makes such programs."""

    def __init__(self, share: Path, directory: Path) -> None:
        self._directory = directory
        self._count = 0
        self._server = subprocess.Popen(
            [sys.executable, "-B", str(HERE / "headless.py"), str(share / "python")],
            stdin=subprocess.PIPE, env={**os.environ, "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent"},
        )

    def start(self, site: Estate, apply: bool, variables: Optional[Dict[str, str]] = None) -> Headless:
        self._count += 1
        answer = self._directory / f"answer-{self._count}"
        order = {"root": str(site.root), "apply": apply, "variables": variables or {}, "answer": str(answer)}
        assert self._server.stdin is not None
        self._server.stdin.write(json.dumps(order).encode() + b"\n")
        self._server.stdin.flush()
        return Headless(answer)

    def close(self) -> None:
        self._server.communicate()


def lock_files(site: Estate) -> List[Path]:
    return sorted(site.root.glob("var/*/*/*lock.pid"))
