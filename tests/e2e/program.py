# SPDX-License-Identifier: GPL-2.0-or-later
"""The real program, used as a person would: found by the words on the screen, clicked with the mouse, typed at.

Needs a display and a session bus with the accessibility bus on it, as tools/on-virtual-display gives them.
"""
from __future__ import annotations

import os
import subprocess
import time
from pathlib import Path
from typing import Callable, Iterator, Mapping, Optional, Sequence, TypeVar

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

DOUBLE_CLICK_SECONDS = 0.5  # the toolkit's 0.4 and some
Result = TypeVar("Result")

# Milliseconds. A program that is about to open or close a window may miss a question; it is then asked again,
# which must not have to wait for the library's own 15 seconds.
Atspi.set_timeout(1000, 1000)

COLUMNS = ("Action", "State", "Kind", "Name", "Version", "Repository", "Architecture", "Size", "Build Time")
ACTION_COLUMN, NAME_COLUMN, REPOSITORY_COLUMN = 0, 3, 5


class TimedOut(AssertionError):
    """What was waited for didn't come."""


def wait_for(
    condition: Callable[[], Optional[Result]], what: str, timeout: float = 30.0, interval: float = 0.05
) -> Result:
    """The first true answer of `condition`; TimedOut naming `what` when none comes in `timeout` seconds."""
    deadline = time.monotonic() + timeout
    while True:
        try:
            answer = condition()
        except GLib.Error:
            answer = None  # what was being looked at has gone meanwhile
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise TimedOut(f"waited {timeout:.0f} s for {what}")
        time.sleep(interval)


def walk(node: Optional[Atspi.Accessible], depth: int = 0) -> Iterator[Atspi.Accessible]:
    """The tree below a node, itself first. Cells of tables are left out: there can be very many."""
    if node is None or depth > 25:
        return
    yield node
    try:
        if node.get_role() in (Atspi.Role.TABLE, Atspi.Role.TREE_TABLE):
            return
        children = [node.get_child_at_index(at) for at in range(node.get_child_count())]
    except GLib.Error:
        return
    for child in children:
        yield from walk(child, depth + 1)


def has_state(node: Atspi.Accessible, state: Atspi.StateType) -> bool:
    try:
        return node.get_state_set().contains(state)
    except GLib.Error:
        return False


class Program:
    """One run of the program on the system below `root`. Leave it by `close` (or the context manager)."""

    def __init__(
        self, binary: Path, root: Path, share: Path, log: Path, arguments: Sequence[str] = (),
        environment: Optional[Mapping[str, str]] = None, shots: Optional[Path] = None,
    ) -> None:
        self.shots = shots
        self.shot_number = 0
        self.last_click = (-1, -1, 0.0)
        with open(log, "ab") as output:
            self.process = subprocess.Popen(
                [str(binary), *arguments],
                # No test keeps this machine from shutting down, or remembers anything for the user who runs it.
                env={
                    **os.environ, "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent", "VEMROOT": str(root),
                    "VEMSHARE": str(share), "XDG_CONFIG_HOME": str(log.parent / "configuration"),
                    **(environment or {}),
                },
                stdin=subprocess.DEVNULL, stdout=output, stderr=output,
            )

    def __enter__(self) -> "Program":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def close(self) -> None:
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()

    # Finding.

    def application(self) -> Optional[Atspi.Accessible]:
        if self.process.poll() is not None:
            raise AssertionError(f"the program has ended with status {self.process.returncode}")
        desktop = Atspi.get_desktop(0)
        for at in range(desktop.get_child_count()):
            try:
                child = desktop.get_child_at_index(at)
                if child is not None and child.get_process_id() == self.process.pid:
                    return child
            except GLib.Error:
                continue
        return None

    def find(
        self, name: str, role: Optional[Atspi.Role] = None, inside: Optional[Atspi.Accessible] = None
    ) -> Optional[Atspi.Accessible]:
        """The first showing control whose words are `name` (mnemonics left out); None if there is none now."""
        for node in walk(inside or self.application()):
            try:
                if node.get_name().replace("&", "") != name:
                    continue
                if role is not None and node.get_role() != role:
                    continue
            except GLib.Error:
                continue
            if has_state(node, Atspi.StateType.SHOWING):
                return node
        return None

    def wait(
        self, name: str, role: Optional[Atspi.Role] = None, timeout: float = 30.0,
        inside: Optional[Atspi.Accessible] = None,
    ) -> Atspi.Accessible:
        return wait_for(lambda: self.find(name, role, inside), f"{name!r}", timeout)

    def windows(self) -> list[Atspi.Accessible]:
        """The top-level windows and dialogs that show."""
        application = self.application()
        if application is None:
            return []
        children = [application.get_child_at_index(at) for at in range(application.get_child_count())]
        return [child for child in children if child and has_state(child, Atspi.StateType.SHOWING)]

    def find_window(self, title: str) -> Optional[Atspi.Accessible]:
        """The window whose title begins so, if it shows now."""
        for window in self.windows():
            try:
                if window.get_name().startswith(title):
                    return window
            except GLib.Error:
                continue
        return None

    def window(self, title: str, timeout: float = 30.0) -> Atspi.Accessible:
        return wait_for(lambda: self.find_window(title), f"the window {title!r}", timeout)

    def wait_closed(self, title: str, timeout: float = 30.0) -> None:
        wait_for(lambda: self.find_window(title) is None, f"the window {title!r} to close", timeout)

    def texts(self, window: Atspi.Accessible) -> str:
        """Every label of a window, joined."""
        labels = []
        for node in walk(window):
            if node.get_role() in (Atspi.Role.LABEL, Atspi.Role.STATIC):
                labels.append(node.get_name())
        return "\n".join(labels)

    def is_ready(self) -> bool:
        """The table is filled and enabled."""
        return self.is_enabled("Refresh")

    def is_enabled(self, name: str) -> bool:
        button = self.find(name, Atspi.Role.PUSH_BUTTON)
        return button is not None and has_state(button, Atspi.StateType.ENABLED)

    def wait_ready(self, timeout: float = 60.0) -> None:
        wait_for(self.is_ready, "the main window to be ready", timeout)

    # Hands.

    @staticmethod
    def centre(node: Atspi.Accessible) -> tuple[int, int]:
        extents = node.get_extents(Atspi.CoordType.SCREEN)
        return extents.x + extents.width // 2, extents.y + extents.height // 2

    @staticmethod
    def xdotool(*arguments: str) -> None:
        subprocess.run(["xdotool", *arguments], check=True)

    def click_at(self, x: int, y: int, button: int = 1) -> None:
        # Two quick clicks on one spot are a double click, which is something else.
        if self.last_click[:2] == (x, y):
            time.sleep(max(0.0, self.last_click[2] + DOUBLE_CLICK_SECONDS - time.monotonic()))
        self.xdotool("mousemove", str(x), str(y), "click", str(button))
        self.last_click = (x, y, time.monotonic())

    def click(self, node: Atspi.Accessible, button: int = 1) -> None:
        self.click_at(*self.centre(node), button)

    def press(self, name: str, inside: Optional[Atspi.Accessible] = None, timeout: float = 30.0) -> None:
        """Clicks a push button or check box once it shows, is enabled and stands still.

        A new window is first where the toolkit puts it, and then where the window manager wants it.
        """
        seen: list[tuple[int, int]] = []

        def look() -> Optional[Atspi.Accessible]:
            for role in (Atspi.Role.PUSH_BUTTON, Atspi.Role.PUSH_BUTTON_MENU, Atspi.Role.CHECK_BOX):
                found = self.find(name, role, inside)
                if found is not None and has_state(found, Atspi.StateType.ENABLED):
                    seen.append(self.centre(found))
                    return found if seen[-2:-1] == seen[-1:] else None
            return None

        self.click(wait_for(look, f"the button {name!r}", timeout))

    def end_by_window_manager(self) -> float:
        """Closes the window as the window manager does it, until the process has ended. Gives the seconds that this
        took from the last key on: one is lost while a window that has just come hasn't got the keyboard."""
        pressed = 0.0

        def press() -> bool:
            nonlocal pressed
            if self.process.poll() is None and time.monotonic() > pressed + 5:
                self.key("alt+F4")
                pressed = time.monotonic()
            return self.process.poll() is not None

        wait_for(press, "the end of the process", 30)
        return time.monotonic() - pressed

    def key(self, *keys: str) -> None:
        self.xdotool("key", *keys)

    def type_text(self, text: str) -> None:
        self.xdotool("type", "--delay", "5", text)

    def choose(self, item: str, window: str = "VEM - ") -> None:
        """Chooses an item in the combo box of the window that offers it, with mouse and keyboard."""
        for combo in walk(self.window(window)):
            if combo.get_role() != Atspi.Role.COMBO_BOX:
                continue
            items = [node.get_name() for node in walk(combo) if node.get_role() == Atspi.Role.LIST_ITEM]
            if item in items:
                self.click(combo)
                self.key("Home", *(["Down"] * items.index(item)), "Return")
                wait_for(lambda: combo.get_name() == item, f"the choice {item!r}", 10)
                return
        raise AssertionError(f"no combo box offers {item!r}")

    def set_expression(self, text: str) -> None:
        """Types a regular expression into the line and applies it."""
        line = self.wait("Regular expression", Atspi.Role.TEXT)
        self.click(line)
        self.key("ctrl+a")
        self.type_text(text)
        self.key("Return")

    def choose_from_context_menu(self, letter: str, at: tuple[int, int]) -> None:
        """Right click, then the entry with this mnemonic."""
        self.choose_from_popup(letter, lambda: self.click_at(*at, button=3))

    def choose_from_popup(self, letter: str, opening: Callable[[], None]) -> None:
        """The entry with this mnemonic of the menu that comes up then. (Such a menu isn't in the accessibility tree.)"""
        before = self._visible_windows()
        opening()
        menu = wait_for(lambda: self._visible_windows() - before, "the menu", 10)
        self.key(letter)
        wait_for(lambda: not menu & self._visible_windows(), "the menu to close", 10)

    @staticmethod
    def _visible_windows() -> set[str]:
        answer = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--class", "vem"], capture_output=True, text=True, check=False
        )
        return set(answer.stdout.split())

    @staticmethod
    def text_of(edit: Atspi.Accessible) -> str:
        """What an edit holds. While the program is busy with a long text, the bus may answer that there is none: that
        is believed when it is answered again and again."""
        answers: list[str] = []

        def settled() -> bool:
            answers.append(Atspi.Text.get_text(edit, 0, Atspi.Text.get_character_count(edit)))
            return bool(answers[-1]) or len(answers) == 5

        wait_for(settled, "a text", timeout=60, interval=0.4)
        return answers[-1]

    def log_text(self) -> str:
        """What the log window shows; opens it if need be."""
        # A key is lost while a dialog that has just gone hasn't given the keyboard back.
        wait_for(
            lambda: self.find_window("VEM Log") or self.key("ctrl+l"), "the log's window", timeout=60, interval=2
        )
        edit = self.wait("Log", Atspi.Role.TEXT, inside=self.window("VEM Log"))
        return Atspi.Text.get_text(edit, 0, Atspi.Text.get_character_count(edit))

    # The table.

    def table(self) -> Atspi.Accessible:
        return self.wait("Packages", Atspi.Role.TABLE)

    def cell(self, row: int, column: int) -> Atspi.Accessible:
        return Atspi.Table.get_accessible_at(self.table(), row, column)

    def row_count(self) -> int:
        return Atspi.Table.get_n_rows(self.table())

    def names(self) -> list[str]:
        cells = [self.cell(row, NAME_COLUMN) for row in range(self.row_count())]
        # The table may change while it is read.
        return [cell.get_name() for cell in cells if cell is not None]

    def row_of(self, name: str) -> int:
        return self.names().index(name)

    def place_of(self, name: str, column: int) -> tuple[int, int]:
        """The middle of a cell in the row of the package `name`, which has to be in view."""
        table = self.table().get_extents(Atspi.CoordType.SCREEN)
        x, y = self.centre(self.cell(self.row_of(name), column))
        assert table.y < y < table.y + table.height, f"{name} is scrolled out of view"
        return x, y

    def click_cell(self, name: str, column: int) -> None:
        self.click_at(*self.place_of(name, column))

    # Pictures.

    def rows(self, name: str, window: str) -> list[list[str]]:
        """The cells of the table of that name in the window, a list for each row."""
        table = self.wait(name, Atspi.Role.TABLE, inside=self.window(window))
        cells = [
            [table.get_accessible_at(row, column) for column in range(table.get_n_columns())]
            for row in range(table.get_n_rows())
        ]
        # A table that is filled meanwhile lacks some.
        return [[cell.get_name() for cell in row] for row in cells if all(row)]

    def shot(self, what: str) -> None:
        """A numbered screenshot, where a folder for them was given."""
        if self.shots is not None:
            self.shot_number += 1
            time.sleep(0.3)  # lets the last repaint reach the screen; nothing is tested by it
            path = self.shots / f"{self.shot_number:02d}-{what}.png"
            subprocess.run(["import", "-window", "root", str(path)], check=True)
