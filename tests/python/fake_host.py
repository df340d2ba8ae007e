# SPDX-License-Identifier: GPL-2.0-or-later
"""A stand-in for the engine's module `yumIOC` that parses as the engine does and records the calls."""

from __future__ import annotations

import sys
import types
from typing import Any, Callable, List, Optional, Tuple

Call = Tuple[Any, ...]


class FakeHost(types.ModuleType):
    """`calls` holds tuples of the function's name and its arguments, in order.

    `answer` is what `userconfirm` gives; `on_confirm` and `on_list` run inside those calls. `key_answer` gives what
    `confirmKey` answers, by its arguments. `details` are the last arguments of `transactionDetails`, which isn't among the
    calls: hosts may lack it. So may they lack `scriptRuns`, whose arguments are in `scripts`.
    """

    def __init__(self) -> None:
        super().__init__("yumIOC")
        self.reset()

    def reset(self) -> None:
        self.calls: List[Call] = []
        self.answer = 1
        self.on_confirm: Optional[Callable[[], None]] = None
        self.on_list: Optional[Callable[[Any], None]] = None
        self.details: Optional[Tuple[List[Any], int, int, Callable[[], List[str]]]] = None
        self.scripts: List[str] = []
        self.key_answer: Callable[..., int] = lambda *question: 0

    # What was recorded ---------------------------------------------------------------------------------

    def named(self, *names: str) -> List[Call]:
        return [call for call in self.calls if call[0] in names]

    def text(self, name: str) -> str:
        """All that was written or logged by one function, as one text."""
        joint = "" if name.endswith("Write") else "\n"
        return joint.join(call[-1] for call in self.named(name))

    def tsinfo(self) -> List[str]:
        prefix = "TSINFO: "
        return [call[2][len(prefix) :] for call in self.named("log") if call[2].startswith(prefix)]

    def meters(self) -> List[Tuple[str, int, List[int]]]:
        """Of an apply's downloads, per file: its name, its size and the values that were told."""
        found: List[Tuple[str, int, List[int]]] = []
        for call in self.named("applyGrabMeterStart", "applyGrabMeterUpdate", "applyGrabMeterEnd"):
            if call[0] == "applyGrabMeterStart":
                found.append((call[1], call[2], []))
            else:
                found[-1][2].append(call[1])
        return found

    # The formats ---------------------------------------------------------------------------------------

    @staticmethod
    def _s(text: Any) -> str:
        if not isinstance(text, str):
            raise TypeError(f"a str is required, not {type(text).__name__}")
        if "\0" in text:
            raise ValueError("embedded null character")
        text.encode("utf-8")
        return text

    @staticmethod
    def _l(number: Any) -> int:
        if not isinstance(number, int):
            raise TypeError(f"an int is required, not {type(number).__name__}")
        if not -(2**63) <= number < 2**63:
            raise OverflowError("too large for a C long")
        return number

    def _note(self, name: str, *arguments: Any) -> None:
        self.calls.append((name, *arguments))

    # The functions -------------------------------------------------------------------------------------

    def stdoutWrite(self, text: Any) -> None:
        self._note("stdoutWrite", self._s(text))

    def stderrWrite(self, text: Any) -> None:
        self._note("stderrWrite", self._s(text))

    def log(self, level: Any, text: Any) -> None:
        self._note("log", self._l(level), self._s(text))

    def warninglog(self, level: Any, text: Any) -> None:
        self._note("warninglog", self._l(level), self._s(text))

    def errorlog(self, level: Any, text: Any) -> None:
        self._note("errorlog", self._l(level), self._s(text))

    def collectProgress(self, value: Any, total: Any, name: Any) -> None:
        self._note("collectProgress", self._l(value), self._l(total), name if name is None else self._s(name))

    def collectGrabMeterStart(self, path: Any, a: Any, b: Any, size: Any, ignored: Any) -> None:
        assert size is None or isinstance(size, int)
        self._s(a), self._s(b)
        self._note("collectGrabMeterStart", self._s(path), size)

    def collectGrabMeterUpdate(self, done: Any) -> None:
        self._note("collectGrabMeterUpdate", self._l(done))

    def collectGrabMeterEnd(self, done: Any) -> None:
        self._note("collectGrabMeterEnd", self._l(done))

    def applyGrabMeterStart(self, name: Any, a: Any, b: Any, size: Any, text: Any) -> None:
        assert text is None or isinstance(text, str)
        self._note("applyGrabMeterStart", self._s(name), self._l(size), text)

    def applyGrabMeterUpdate(self, done: Any) -> None:
        self._note("applyGrabMeterUpdate", self._l(done))

    def applyGrabMeterEnd(self, done: Any) -> None:
        self._note("applyGrabMeterEnd", self._l(done))

    def dsTsCheck(self) -> None:
        self._note("dsTsCheck")

    def dsRestartLoop(self) -> None:
        self._note("dsRestartLoop")

    def userconfirm(self) -> int:
        self._note("userconfirm")
        if self.on_confirm is not None:
            self.on_confirm()
        return self.answer

    def confirmKey(self, *question: Any) -> int:
        *texts, created, expires, verified = question
        assert len(texts) == 6
        self._note("confirmKey", *map(self._s, texts), self._l(created), self._l(expires), verified)
        return self.key_answer(*question)

    def reportDownloadSize(self, packages: Any) -> None:
        self._note("reportDownloadSize", sum(self._l(package.size) for package in packages))

    def listTransaction(self, holder: Any) -> None:
        self._note("listTransaction", holder)
        if self.on_list is not None:
            self.on_list(holder)

    def transactionDetails(self, rows: Any, download: Any, growth: Any, changes: Any) -> None:
        for row in rows:
            action, name, arch, old, new, repository, size, why, whom, more, replaces, warnings = row
            texts = [action, name, arch, old, new, repository, why, *whom, *replaces, *warnings]
            assert all(self._s(text) == text for text in texts)
            self._l(size), self._l(more)
        self.details = (rows, self._l(download), self._l(growth), changes)

    def scriptRuns(self, name: Any) -> None:
        self.scripts.append(self._s(name))

    def tsInitCallback(self, real: Any) -> None:
        self._note("tsInitCallback", self._l(real))

    def tsCallback(self, what: Any, amount: Any, total: Any, key: Any, ignored: Any) -> None:
        self._note("tsCallback", self._l(what), self._l(amount), self._l(total), key)

    def tsEvent(self, package: Any, action: Any, done: Any, total: Any, ordinal: Any, count: Any) -> None:
        numbers = [self._l(number) for number in (action, done, total, ordinal, count)]
        # What goes in comes as an object with a name, what goes out as the name.
        name = package if action in (40, 50, 90) else package.name
        self._note("tsEvent", self._s(name), *numbers)

    def postTransactionOutput(self, holder: Any) -> str:
        self._note("postTransactionOutput", holder)
        return ""


HOST = FakeHost()
sys.modules["yumIOC"] = HOST
