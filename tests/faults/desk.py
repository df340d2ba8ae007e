# SPDX-License-Identifier: GPL-2.0-or-later
"""What a test of faults does again and again: start, mark, apply, read what is told, look whether all is sound."""
from __future__ import annotations

import contextlib
import errno
import os
import re
import shutil
import sqlite3
import subprocess
from pathlib import Path
from typing import Callable, List, Optional, Union

from libraries import HISTORY, by_library
from program import ACTION_COLUMN, Atspi, Program, TimedOut, wait_for
from rpmestate import Estate

ERROR = "VEM Yum Error"
QUESTION = "Apply"
UNFINISHED = "Unfinished Transaction"


BEFORE = ("fleet-lamp-1.0-1.noarch", "fleet-match-1.0-1.noarch", "fleet-shell-1.0-1.x86_64")
"""What is installed at first."""
AFTER = ("fleet-lamp-1.1-1.noarch", *BEFORE[1:])
"""And when fleet-lamp has been updated."""

_OF_ANOTHER_ROOT = "warning: private mounts in chroot not implemented\n"
"""What rpm 6 has to say in any case, below another root."""

_ENDS = by_library(
    "select case state when 0 then 'Started' when 1 then 'Ok' else 'Error' end from trans order by id",
    "select name from trans join trans_state on trans_state.id = state_id order by trans.id",
)
OPEN, GOOD = "Started", "Ok"
"""What the history tells of a transaction: that it has no end, or a good one."""


def history(site: Estate) -> List[str]:
    """How the transactions of the library's history ended, the oldest first."""
    if not (site.root / HISTORY).exists():
        return []
    # Looked at only: whoever may write would clear up what a fault has left.
    address = f"{(site.root / HISTORY).as_uri()}?mode=ro"
    with contextlib.closing(sqlite3.connect(address, uri=True)) as database:
        return [end for (end,) in database.execute(_ENDS)]


def assert_told(text: str, *expected: Union[str, "re.Pattern[str]"]) -> None:
    """The text has these lines: the program's own ones word for word. A pattern stands for one or more lines of a
    library below, whose words differ from release to release, and tells what has to be in them."""
    parts = [re.escape(part) if isinstance(part, str) else f".*(?:{part.pattern}).*" for part in expected]
    assert re.fullmatch("\n".join(parts), text, re.DOTALL), text
    lines = [line for line in text.splitlines() if line.strip()]
    assert len(set(lines)) == len(lines), f"something is told twice:\n{text}"
    assert "Traceback" not in text and "Internal error" not in text, text


class Desk:
    """One system, and a window on it."""

    def __init__(self, site: Estate, start: Callable[..., Program]) -> None:
        self.site = site
        self._start = start
        self._program: Optional[Program] = None
        self._said = 0

    # The window.

    @property
    def program(self) -> Program:
        """Started when it is first wanted."""
        return self._program or self.open()

    def open(self, *arguments: str) -> Program:
        """A new window, which isn't waited for."""
        self._program = self._start(self.site, *arguments)
        self._said = 0
        return self._program

    def ready(self) -> Program:
        self.program.wait_ready()
        return self.program

    def program_ends(self) -> None:
        if self._program is not None:
            self._program.close()
            self._program = None

    # What is done in it.

    def refresh(self) -> None:
        """Without waiting for its end."""
        before = self._sacks()
        self.program.press("Refresh")
        # The click may still be on its way, and a refresh of next to nothing is over before anybody sees it; but the
        # library notes each one. If it can't, or isn't asked for that long, the window has long been at it.
        with contextlib.suppress(TimedOut):
            wait_for(
                lambda: self._sacks() > before or not self.program.is_ready() or self.program.find_window(ERROR),
                "the refresh to begin", 5, 0.01,
            )

    def _sacks(self) -> int:
        """How many times the library has begun to read repositories and rpm database."""
        log = self.site.root / "var/log/hawkey.log"
        return log.read_text().count("Started") if log.exists() else 0

    def mark(self, *names: str) -> None:
        """Marks the packages, which are offered or installed, and no others."""
        if self.ready().find("View All", Atspi.Role.COMBO_BOX) is None:
            self.program.choose("View All")
        if self.program.is_enabled("Clear Actions"):
            self.program.press("Clear Actions")
        for name in names:
            self.program.click_cell(name, ACTION_COLUMN)

    def apply(self) -> str:
        """Presses Apply and answers the question by OK; gives its words."""
        self.program.press("Apply Actions")
        question = self.program.window(QUESTION)
        text = self.program.texts(question)
        self.program.press("OK", question)
        self.program.wait_closed(QUESTION)
        return text

    def told(self, timeout: float = 60.0) -> str:
        """The words of the error dialog, which is waited for and closed. The window is usable behind it."""
        report = self.program.window(ERROR, timeout)
        text = self.program.texts(report).removeprefix(_OF_ANOTHER_ROOT)
        button = wait_for(
            lambda: next((name for name in ("Close", "OK") if self.program.find(name, inside=report)), None),
            f"a button in {ERROR!r}",
        )
        self.program.press(button, report)
        self.program.wait_closed(ERROR)
        self.program.wait_ready()
        return text

    def told_unfinished(self) -> str:
        """The words of the box about a transaction that was cut off, which is waited for. Nothing is removed."""
        box = self.program.window(UNFINISHED, 60)
        text = self.program.texts(box)
        self.program.press("Leave Them" if self.program.find("Leave Them", inside=box) else "OK", box)
        self.program.wait_closed(UNFINISHED)
        self.program.wait_ready()
        return text

    def untold(self) -> Program:
        """Waits until the window is usable again, without a word of an error."""

        def settled() -> bool:
            report = self.program.find_window(ERROR)
            assert report is None, self.program.texts(report)
            return self.program.is_ready()

        wait_for(settled, "the window to be usable", 60)
        return self.program

    def new_log(self) -> str:
        """What the log has said since it was last asked. The log's window is put away again."""
        text = self.program.log_text()
        window = self.program.window("VEM Log")
        self.program.press("Close", window)
        self.program.wait_closed("VEM Log")
        new = text[self._said :]
        self._said = len(text)
        return new

    # What is behind it.

    def expire_metadata(self) -> None:
        """The next refresh looks whether the repositories have anything new."""
        for path in (self.site.root / "var/cache/yum").glob("*/repodata/*"):
            os.utime(path, (0, 0))

    def forget_metadata(self) -> None:
        """The next refresh fetches everything again."""
        for path in (self.site.root / "var/cache/yum").iterdir():
            shutil.rmtree(path) if path.is_dir() else path.unlink()

    def sound(self, *installed: str, cut_off: bool = False) -> None:
        """The rpm database is whole and holds these packages and no others, and nobody works on it any more. The
        history has an end of the last transaction, unless that was `cut_off`."""
        self.site.rpm("--verifydb")
        assert self.site.installed() == set(installed)
        assert (history(self.site)[-1:] == [OPEN]) == cut_off
        pid = None if self._program is None else self._program.process.pid
        wait_for(lambda: processes_of(self.site) <= {pid}, "other processes to end", 30)


def processes_of(site: Estate) -> set[int]:
    """The processes that work on this system: those that were told of it."""
    wanted = f"VEMROOT={site.root}".encode()
    found = set()
    for folder in Path("/proc").iterdir():
        if folder.name.isdecimal():
            try:
                if wanted in (folder / "environ").read_bytes().split(b"\0"):
                    found.add(int(folder.name))
            except OSError:
                continue  # gone, or another user's
    return found


class Disk:
    """A small disk over a directory, whose content moves there; it can be full."""

    def __init__(self, directory: Path, size: int) -> None:
        """`size` in KiB."""
        self.directory = directory
        self._filling = directory / ".filling"
        directory.mkdir(parents=True, exist_ok=True)
        aside = directory.with_name(directory.name + ".aside")
        directory.rename(aside)
        directory.mkdir()
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}k,mode=755", "none", str(directory)], check=True)
        shutil.copytree(aside, directory, symlinks=True, dirs_exist_ok=True)
        shutil.rmtree(aside)

    def free(self) -> int:
        """KiB."""
        space = os.statvfs(self.directory)
        return space.f_bavail * space.f_frsize // 1024

    def fill(self, spare: int = 0) -> None:
        """Leaves so many KiB free, and no more."""
        with open(self._filling, "ab", buffering=0) as file:
            try:
                while self.free() > spare:
                    file.write(bytes(min(1 << 20, (self.free() - spare) << 10)))
            except OSError as error:
                if error.errno != errno.ENOSPC:
                    raise

    def make_room(self) -> None:
        self._filling.unlink(missing_ok=True)

    def take_away(self) -> None:
        # Somebody may still have a file open there.
        subprocess.run(["umount", "--lazy", str(self.directory)], check=True)
