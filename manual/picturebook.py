#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Takes the pictures of the manual: the real program, used on the sample estate, window by window.

    picturebook.py DIRECTORY [NAME...]

Writes DIRECTORY/NAME.png for each picture of the book, or for those named. VEM_PROGRAM names the binary and
VEMSHARE the share directory. Needs a display and a session bus (tools/on-virtual-display), rpmbuild and the
right to change the root directory. `take-pictures` beside this file sees to all of that.

Everything by which two machines could differ is fixed: fonts, their resolution, style, language, time zone.
"""
from __future__ import annotations

import argparse
import contextlib
import os
import subprocess
import sys
import sqlite3
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Callable, Iterator, Mapping, Sequence

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path[:0] = [str(HERE.parent / "tests/e2e"), str(HERE.parent / "estate")]

from program import ACTION_COLUMN, NAME_COLUMN, Atspi, Program, TimedOut, wait_for, walk  # noqa: E402

PICTURES = HERE / "pictures"
EDITOR = "VEM Repository Configuration Editor"
FORM = "VEM Repository Configuration"
ERROR = "VEM Yum Error"
MAIN_SIZE = (900, 640)
EXPRESSION = "^(dykemap|glyphhouse|oxbow|theodolite|tidegauge)"
"""Rows of every state, and all that is marked."""

GATE = """#!/bin/busybox sh
# Lets a picture be taken while a package's script runs.
: >/gate-waits
while [ ! -e /gate-open ]; do sleep 0.1; done
exec /bin/busybox sh "$@"
"""

FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>{cache}</cachedir>
  <alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
  <alias><family>Courier</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
  <match target="pattern">
    <edit name="family" mode="append_last"><string>DejaVu Sans</string></edit>
  </match>
</fontconfig>
"""

CONFIGURATION = {
    "base": ("Fenmark 4 - Base", "https://packages.fenmark.example/4/base/$basearch/", ""),
    "updates": ("Fenmark 4 - Updates", "https://packages.fenmark.example/4/updates/$basearch/", ""),
    "extras": (
        "Fenmark 4 - Extras from the Stations",
        "https://packages.fenmark.example/4/extras/$basearch/\n        https://mirror.koog.example/fenmark/4/extras/$basearch/",
        "priority=90\n# Asked for by the station at Oxbow Lock.\nexclude=*-debuginfo\n",
    ),
    "preview": ("Fenmark 4 - Preview of the Next Release", "https://packages.fenmark.example/5/preview/$basearch/", ""),
    "survey": (
        "Survey Office",
        "https://survey.fenmark.example/buffet?login=&key=&path=/packages/$basearch/",
        "",
    ),
}
DISABLED = "preview"


@dataclass(frozen=True)
class Area:
    """A rectangle of the screen, in pixels."""

    x: int
    y: int
    width: int
    height: int

    @staticmethod
    def of(node: Atspi.Accessible) -> "Area":
        box = node.get_extents(Atspi.CoordType.SCREEN)
        return Area(box.x, box.y, box.width, box.height)

    def top(self, width: int, height: int) -> "Area":
        return Area(self.x, self.y, width, height)


Keep = Callable[[str, Callable[[], Area]], None]
"""Takes the picture with this name of what lies in this area, which may still be moving."""


def photograph(area: Area, file: Path) -> None:
    geometry = f"{area.width}x{area.height}+{area.x}+{area.y}"
    command = ["import", "-silent", "-window", "root", "-crop", geometry, "+repage", "-strip", str(file)]
    subprocess.run(command, check=True)


def shrink(file: Path, smaller: Path) -> None:
    """The same pixels in fewer bytes, and the same bytes for the same pixels."""
    options = ["-strip", "-define", "png:compression-level=9", "-define", "png:exclude-chunks=date,time"]
    subprocess.run(["convert", str(file), *options, str(smaller)], check=True)


def size_of(file: Path) -> str:
    return _magick("identify", "-format", "%wx%h", str(file))


def difference(one: Path, other: Path) -> float:
    """How much two pictures of one size differ, from 0 to 1: by the square of eight pixels that differs most.

    Whether letters are smoothed in this way or that hardly changes how dark a square is on the whole.
    """
    shrunk = ["-colorspace", "Gray", "-scale", "12.5%"]
    command = ["convert", "(", str(one), *shrunk, ")", "(", str(other), *shrunk, ")"]
    return float(_magick(*command, "-compose", "Difference", "-composite", "-format", "%[fx:maxima]", "info:"))


def _magick(*command: str) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def keep_when_still(directory: Path, work: Path) -> Keep:
    """Keeps a picture as soon as two in a row are the same."""

    def keep(name: str, where: Callable[[], Area]) -> None:
        now, before = work / f"{name}.png", work / f"{name}-before.png"

        def still() -> bool:
            if now.exists():
                now.replace(before)
            photograph(where(), now)
            return before.exists() and now.read_bytes() == before.read_bytes()

        wait_for(still, f"the picture {name!r} to stand still", 20, 0.15)
        shrink(now, directory / now.name)

    return keep


class Book:
    """All pictures, in the order in which one walk through the program meets them."""

    def __init__(self, work: Path, keep: Keep, wanted: Sequence[str] = ()) -> None:
        self.work = work
        self.wanted = wanted
        self._keep = keep
        self.taken: list[str] = []

    def take(self) -> None:
        self.estate_pictures()
        self.configuration_pictures()

    # Programs.

    def environment(self) -> Mapping[str, str]:
        fonts = self.work / "fonts.conf"
        home = self.work / "home"
        home.mkdir(exist_ok=True)
        fonts.write_text(FONTS.format(cache=self.work / "fonts"), encoding="utf-8")
        return {
            "FONTCONFIG_FILE": str(fonts), "HOME": str(home), "XDG_CONFIG_HOME": str(home), "TZ": "UTC",
            "LC_ALL": "C.UTF-8", "LANGUAGE": "", "QT_FONT_DPI": "96", "QT_SCALE_FACTOR": "1",
            "QT_STYLE_OVERRIDE": "", "QT_QPA_PLATFORMTHEME": "", "XDG_CURRENT_DESKTOP": "",
        }

    @contextlib.contextmanager
    def program(self, root: Path, *arguments: str) -> Iterator[Program]:
        binary, share = Path(os.environ["VEM_PROGRAM"]), Path(os.environ["VEMSHARE"])
        with Program(binary, root, share, self.work / "vem.log", arguments, self.environment()) as program:
            yield program

    # Taking.

    def keep(self, name: str, where: Callable[[], Area]) -> None:
        self.taken.append(name)
        if not self.wanted or name in self.wanted:
            Program.xdotool("mousemove", "0", "0")
            self._keep(name, where)

    def keep_window(self, program: Program, name: str, title: str) -> None:
        program.window(title, 60)
        self.keep(name, lambda: Area.of(program.window(title)))

    @staticmethod
    def fix_size(program: Program) -> None:
        """Gives the main window its size for all of its pictures; the buttons of some toolkits want more width."""
        window = program.window("VEM - ")
        box = Area.of(window)
        answer = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", "^VEM - "], capture_output=True, text=True, check=True
        )
        width, height = MAIN_SIZE
        Program.xdotool("windowsize", answer.stdout.split()[-1], str(width), str(height))
        wait_for(lambda: Area.of(window).height == height, f"the size, not {box}", 10)

    # The walk on the sample estate.

    def estate_pictures(self) -> None:
        estate = self.work / "estate"
        subprocess.run([str(HERE.parent / "estate/sample/make_sample.py"), str(estate)], check=True)
        root = estate / "root"
        with self.program(root) as program:
            program.wait_ready(120)
            self.fix_size(program)
            self.age_repositories(program, root)
            self.table_pictures(program)
            self.description_pictures(program)
            self.apply_pictures(program, root)

    @staticmethod
    def age_repositories(program: Program, root: Path) -> None:
        """What was read just now is a minute old in the next picture."""
        then = time.time() - 3.5 * 3600
        for file in (root / "var").rglob("repomd.xml"):
            os.utime(file, (then, then))
        program.press("Refresh")
        program.wait("Repositories read 3 hours ago")
        program.wait_ready()

    def table_pictures(self, program: Program) -> None:
        program.choose("View All")
        program.click_cell("causeway", ACTION_COLUMN)
        program.click_cell("causeway-radio", ACTION_COLUMN)
        program.click_cell("drawbridge", ACTION_COLUMN)
        self.keep_window(program, "main-window", "VEM - ")
        program.press("Clear Actions")
        main = Area.of(program.window("VEM - "))
        program.click_at(*program.centre(program.wait("Cache", Atspi.Role.MENU_ITEM)))
        program.wait("Clean All", Atspi.Role.MENU_ITEM)
        self.keep("cache-menu", lambda: main.top(480, 220))
        program.key("Escape")

        program.choose("Search")
        program.set_expression("/etc/.*gauge|[Ff]err(y|ies)")
        wait_for(lambda: program.is_ready() and 0 < program.row_count() < 20, "what was searched for", 60)
        self.keep_window(program, "search", "VEM - ")
        program.choose("Filter")
        program.set_expression(".*")
        wait_for(lambda: program.row_count() > 20, "all rows")

    def description_pictures(self, program: Program) -> None:
        self.describe(program, "causeway", "description")
        program.press("Include Groups")
        wait_for(lambda: "Tides and Rain" in program.names(), "the groups")
        self.keep_window(program, "groups", "VEM - ")
        self.describe(program, "Tides and Rain", "group-description")
        program.press("Include Groups")

    def describe(self, program: Program, row: str, name: str) -> None:
        program.click_cell(row, NAME_COLUMN)
        program.press("Describe")
        self.keep_window(program, name, "VEM Package Description")
        program.press("Close", program.window("VEM Package Description"))
        program.wait_closed("VEM Package Description")

    def apply_pictures(self, program: Program, root: Path) -> None:
        shell, shell_aside = root / "bin/sh", root / "bin/sh-aside"
        shell.rename(shell_aside)
        shell.write_text(GATE, encoding="utf-8")
        shell.chmod(0o755)

        program.set_expression(EXPRESSION)
        wait_for(lambda: 0 < program.row_count() < 20, "the filtered rows")
        # Nothing that is offered satisfies it.
        program.click_cell("dykemap-lidar", ACTION_COLUMN)
        program.press("Apply Actions")
        self.keep_window(program, "error", ERROR)
        program.press("Close", program.window(ERROR))
        program.wait_closed(ERROR)
        program.wait_ready()
        program.press("Clear Actions")

        self.advisories_picture(program)
        for name in ("oxbow", "tidegauge", "theodolite", "glyphhouse-mono"):
            program.click_cell(name, ACTION_COLUMN)
        self.keep_window(program, "marks", "VEM - ")
        program.press("Apply Actions")
        self.keep_window(program, "confirmation", "Apply")
        program.press("OK", program.window("Apply"))
        wait_for((root / "gate-waits").exists, "a script at the gate", 60)
        self.keep_window(program, "progress", "VEM - ")
        (root / "gate-open").touch()
        program.wait_ready(60)
        self.keep_window(program, "after", "VEM - ")
        self.history_picture(program, root)
        program.log_text()
        # At higher levels dnf tells the time of day.
        level = program.wait("Detail level", Atspi.Role.SPIN_BUTTON, inside=program.window("VEM Log"))
        program.click(level)
        program.key("ctrl+a", "1", "Tab")
        wait_for(lambda: "expiration" not in program.log_text(), "the log at the lower level")
        self.keep_window(program, "log", "VEM Log")

    def advisories_picture(self, program: Program) -> None:
        program.key("ctrl+d")
        wait_for(lambda: len(program.rows("Advisories", "Advisories")) == 5, "the open advisories")
        program.key("Down", "Down", "Down")
        text = program.wait("Advisory", Atspi.Role.LABEL, inside=program.window("Advisories"))
        wait_for(lambda: "CVE-2025-20023" in program.text_of(text), "one with a CVE in full")
        self.keep_window(program, "advisories", "Advisories")
        program.key("Escape")
        program.wait_closed("Advisories")

    def history_picture(self, program: Program, root: Path) -> None:
        (database,) = root.rglob("*history.sqlite")
        with contextlib.closing(sqlite3.connect(database)) as connection, connection:
            # Every picture is taken at another time, by somebody else.
            connection.execute("UPDATE trans SET dt_begin = 1709647200, dt_end = 1709647209, user_id = 0")
        program.key("ctrl+h")
        head = program.wait("Transaction", Atspi.Role.TEXT, inside=program.window("History"))
        wait_for(lambda: program.text_of(head).startswith("Transaction"), "the latest transaction")
        self.keep_window(program, "history", "History")
        program.key("Escape")
        program.wait_closed("History")

    # The configuration, which needs no repository to answer.

    def configuration_pictures(self) -> None:
        root = self.configured()
        with self.program(root, "--repo-editor") as program:
            editor = program.window(EDITOR)
            table = next(node for node in walk(editor) if node.get_role() == Atspi.Role.TABLE)
            rows = range(Atspi.Table.get_n_rows(table))
            extras = next(row for row in rows if Atspi.Table.get_accessible_at(table, row, 2).get_name() == "extras")
            program.click(Atspi.Table.get_accessible_at(table, extras, 2))
            wait_for(lambda: program.is_enabled("Edit"), "the selected repository")
            self.keep_window(program, "repository-editor", EDITOR)
            program.press("Edit", editor)
            self.keep(
                "repository-form",
                lambda: Area.of(next(window for window in program.windows() if window.get_name() == FORM)),
            )
        with self.program(root) as program:
            self.keep_window(program, "authentication", "VEM Authentication")

    def configured(self) -> Path:
        root = self.work / "configured"
        directory = root / "etc/yum.repos.d"
        directory.mkdir(parents=True)
        (root / "etc/yum.conf").write_text("[main]\ngpgcheck=1\nreposdir=/etc/yum.repos.d\n", encoding="utf-8")
        for id, (name, address, others) in CONFIGURATION.items():
            enabled = "enabled=0\n" if id == DISABLED else ""
            text = f"[{id}]\nname={name}\nbaseurl={address}\n{enabled}{others}"
            (directory / f"{id}.repo").write_text(text, encoding="utf-8")
        return root


def main() -> int:
    parser = argparse.ArgumentParser(description="Takes the pictures of the manual.")
    parser.add_argument("directory", type=Path)
    parser.add_argument("names", nargs="*", help="pictures to take; all if none is named")
    arguments = parser.parse_args()
    arguments.directory.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="vem-manual-") as work:
        book = Book(Path(work), keep_when_still(arguments.directory, Path(work)), arguments.names)
        try:
            book.take()
        except (TimedOut, AssertionError) as fault:
            print(f"{Path(__file__).name}: {fault}", file=sys.stderr)
            print((Path(work) / "vem.log").read_text(errors="replace"), file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
