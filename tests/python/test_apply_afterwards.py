# SPDX-License-Identifier: GPL-2.0-or-later
"""What fails when rpm has done its work: what is told of that, and of what was done."""

from __future__ import annotations

from typing import Any, Callable

import pytest
from catalogue import Catalogue
from failing import RUN_END, fail_with, fails, in_work
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

ALL_DONE = (
    "The packages have been changed as asked, and only what comes after that has failed: please refresh the list of "
    "packages."
)
REFRESH = "A part of the transaction may have been done: please refresh the list of packages."
NO_SPACE = "OSError(28, os.strerror(28), '/var/lib/dnf/history.sqlite')"
CLOSE = "\n    Transaction.close = fail"
SECOND_LOOK = """
    looks = []
    present = work.Work._present
    work.Work._present = lambda self, root: (looks.append(root), present(self, root) if len(looks) < 2 else fail())[1]"""


@pytest.mark.parametrize(
    "step, error, words",
    [
        (RUN_END, NO_SPACE, "/var/lib/dnf/history.sqlite: No space left on device"),
        (RUN_END, "BrokenPipeError(32, 'a pipe')", "[Errno 32] a pipe"),
        (CLOSE, NO_SPACE, "/var/lib/dnf/history.sqlite: No space left on device"),
        (CLOSE, "RuntimeError('no such table: trans')", "no such table: trans"),
        (CLOSE, "BrokenPipeError(32, 'a pipe')", "[Errno 32] a pipe"),
        (CLOSE + RUN_END, "RuntimeError('full')", "full"),
    ],
)
def test_failure_behind_the_transaction_tells_that_all_is_done(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    in_child: Callable[[str], None],
    step: str,
    error: str,
    words: str,
) -> None:
    estate.install(rpms.some("lib-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("lib-2.0"))
    found = program.collect()
    in_work(in_child, fail_with(error) + step)
    text = fails(program, lambda: found.yumio.apply([], [found.pair("lib")], [found.there("lone")]))
    assert text == f"{words}\n{ALL_DONE}"
    assert estate.installed() == {"lib-2.0-1.noarch"}


@pytest.mark.parametrize("step", [RUN_END, CLOSE, RUN_END + CLOSE])
def test_failure_behind_a_part_of_the_transaction_tells_what_was_not_done(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, in_child: Callable[[str], None], step: str
) -> None:
    estate.repository("base", rpms.some("badpre-1.0", "lone-1.0"))
    found = program.collect()
    in_work(in_child, fail_with("RuntimeError('full')") + step)
    marks = [found.offered("badpre"), found.offered("lone")]
    text = fails(program, lambda: found.yumio.apply(marks, [], []), "badpre-1.0-1.noarch was not installed")
    assert text.endswith(f"\n{REFRESH}") and ALL_DONE not in text
    assert text.startswith("full\n" if RUN_END in step else "Not everything went as it should:\n")
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_database_that_cannot_be_looked_at_behind_the_transaction_asks_for_a_refresh(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, in_child: Callable[[str], None]
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    in_work(in_child, fail_with("RuntimeError('locked')") + SECOND_LOOK)
    text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []))
    assert text == f"locked\n{REFRESH}"


def test_close_that_fails_before_the_transaction_tells_of_no_change(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, in_child: Callable[[str], None]
) -> None:
    estate.repository("base", rpms.some("same-one-1.0", "same-two-1.0"))
    found = program.collect()
    in_work(in_child, fail_with("RuntimeError('closed badly')") + CLOSE)
    marks = [found.offered("same-one"), found.offered("same-two")]
    text = fails(program, lambda: found.yumio.apply(marks, [], []), "conflict")
    assert "closed badly" not in text and "refresh" not in text
    assert "closed badly" in host.text("errorlog")


def test_post_transaction_output_that_fails_tells_that_all_is_done(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()

    def fail(_holder: Any) -> None:
        raise RuntimeError("Internal error: txmbr lacks pkgtup")

    monkeypatch.setattr(host, "postTransactionOutput", fail)
    text = fails(program, lambda: found.yumio.apply([found.offered("lone")], [], []))
    assert text == f"Internal error: txmbr lacks pkgtup\n{ALL_DONE}"
    assert estate.installed() == {"lone-1.0-1.noarch"}
