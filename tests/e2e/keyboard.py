# SPDX-License-Identifier: GPL-2.0-or-later
"""A user without a mouse: all is done by keys, the accessibility tree only tells where the keyboard is."""
from __future__ import annotations

from typing import Iterator, Optional

from program import Atspi, Program, has_state, wait_for, walk

MOST_CONTROLS = 60
"""More than any window has; whoever needs as many tabs as this goes in circles."""


class Keyboard:
    """The keyboard of one program."""

    def __init__(self, program: Program) -> None:
        self.program = program

    def focused(self) -> Optional[Atspi.Accessible]:
        """The control that has the keyboard."""
        window = next((w for w in self.program.windows() if has_state(w, Atspi.StateType.ACTIVE)), None)
        nodes = [node for node in walk(window) if has_state(node, Atspi.StateType.FOCUSED)]
        # Later releases of the toolkit tell it of each closed combo box's current item, too.
        items = [node for node in nodes if node.get_role() == Atspi.Role.LIST_ITEM]
        return next((node for node in nodes if node not in items), items[0] if items else None)

    def focused_name(self) -> str:
        node = self.focused()
        return "" if node is None else node.get_name().replace("&", "")

    def tab_to(self, *names: str) -> None:
        """Presses Tab until a control with one of these names has the keyboard."""
        for name in self._stops():
            if name in names:
                return
        raise AssertionError(f"the tabulator reaches no {names!r}, it stands on {self.focused_name()!r}")

    def _stops(self) -> Iterator[str]:
        for _ in range(MOST_CONTROLS):
            # In a window that has just become usable nothing has the keyboard before the first Tab.
            here = self.focused()
            yield "" if here is None else here.get_name().replace("&", "")
            self.program.key("Tab")
            wait_for(lambda: self.focused() not in (None, here), "the keyboard to go on", 10)

    def activate(self, name: str) -> None:
        """Goes to a button or box and presses it."""
        self.tab_to(name)
        self.program.key("space")

    def fill(self, name: str, text: str) -> None:
        """Goes to a field and writes in place of what it holds."""
        self.tab_to(name)
        self.program.key("ctrl+a", "Delete")
        self.program.type_text(text)

    def pick(self, item: str) -> None:
        """Goes to the combo box that offers the item, and through its items."""
        for _ in self._stops():
            combo = self.focused()
            if combo is not None and item in self._items(combo):
                self.program.key("Home", *(["Down"] * self._items(combo).index(item)))
                wait_for(lambda: combo.get_name() == item, f"the choice {item!r}", 10)
                return
        raise AssertionError(f"the tabulator reaches no combo box that offers {item!r}")

    @staticmethod
    def _items(combo: Atspi.Accessible) -> list[str]:
        if combo.get_role() != Atspi.Role.COMBO_BOX:
            return []
        return [node.get_name() for node in walk(combo) if node.get_role() == Atspi.Role.LIST_ITEM]
