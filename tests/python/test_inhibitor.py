# SPDX-License-Identifier: GPL-2.0-or-later
"""The machine stays up while rpm works: the lock of logind, on a bus of the test's own."""

from __future__ import annotations

import os
import signal
import subprocess
import sys
import time
from pathlib import Path
from typing import Any, Callable, Dict, Iterator, List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from logind import Logind
from program import Program
from rpmestate import Estate
from vemyum import inhibitor

HERE = Path(__file__).resolve().parent
NOT_HELD = "Shutdown and sleep are not held off: "
LOCK = {
    "what": "shutdown:sleep",
    "who": "VEM",
    "why": "Packages are being installed, updated or removed",
    "mode": "block",
}

# Takes the lock, says so, and goes on until it is ended.
HOLDER = """
import sys
sys.path[:0] = [sys.argv[1], sys.argv[1] + "/../../share/python"]
import fake_host
from vemyum.inhibitor import inhibited
with inhibited():
    print("in", flush=True)
    sys.stdin.readline()
"""


@pytest.fixture
def logind(tmp_path: Path, estate: Estate, monkeypatch: pytest.MonkeyPatch) -> Iterator[Logind]:
    logind = Logind(tmp_path / "logind")
    monkeypatch.setenv("DBUS_SYSTEM_BUS_ADDRESS", logind.address)
    yield logind
    logind.end()


@pytest.fixture
def during(
    logind: Logind, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> Dict[str, List[Dict[str, Any]]]:
    """The locks as they were when the engine was told a step of the apply, by the step's name."""
    seen: Dict[str, List[Dict[str, Any]]] = {}
    for name in "userconfirm", "tsInitCallback", "tsEvent", "postTransactionOutput":
        told = getattr(host, name)

        def look(*arguments: Any, name: str = name, told: Callable[..., Any] = told) -> Any:
            seen[name] = logind.locks()
            return told(*arguments)

        monkeypatch.setattr(host, name, look, raising=True)
    return seen


@pytest.fixture
def lone(estate: Estate, rpms: Catalogue, program: Program) -> Tuple[Estate, Program]:
    """base has lone 1.0."""
    estate.repository("base", rpms.some("lone-1.0"))
    return estate, program


def command(folder: Path, body: str, monkeypatch: pytest.MonkeyPatch) -> None:
    """Puts a stand-in of systemd-inhibit before all other commands."""
    folder.mkdir()
    script = folder / "systemd-inhibit"
    script.write_text(f"#!/bin/sh\n{body}\n")
    script.chmod(0o755)
    monkeypatch.setenv("PATH", f"{folder}:{os.environ['PATH']}")


def said(host: FakeHost) -> List[str]:
    return [text for _, level, text in host.named("log") if level == 4 and text.startswith(NOT_HELD)]


def commands() -> List[str]:
    """The commands that this process has started and not yet seen off."""
    children = Path(f"/proc/self/task/{os.getpid()}/children").read_text().split()
    names = [Path(f"/proc/{child}/comm").read_text().strip() for child in children]
    return [name for name in names if name == "systemd-inhibit"]


# With a logind ---------------------------------------------------------------------------------------------


def test_lock_is_held_exactly_while_rpm_works(
    logind: Logind, lone: Tuple[Estate, Program], during: Dict[str, List[Dict[str, Any]]], host: FakeHost
) -> None:
    estate, program = lone
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert during["userconfirm"] == during["tsInitCallback"] == []
    assert during["tsEvent"] == [{**LOCK, "held": True}]
    assert len(logind.locks()) == 1 and logind.all_released()
    assert not said(host) and not commands()


def test_refused_confirmation_takes_no_lock(
    logind: Logind, lone: Tuple[Estate, Program], host: FakeHost
) -> None:
    host.answer = 0
    found = lone[1].collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert logind.locks() == []


def test_failed_transaction_gives_the_lock_up(
    logind: Logind, estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("badpre-1.0"))
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError):
        found.yumio.apply([found.offered("badpre")], [], [])
    assert len(logind.locks()) == 1
    assert logind.all_released() and not commands()


def test_exception_gives_the_lock_up_and_passes(logind: Logind) -> None:
    with pytest.raises(ZeroDivisionError), inhibitor.inhibited():
        assert logind.locks()[0]["held"]
        raise ZeroDivisionError
    assert logind.all_released() and not commands()


def test_lock_ends_with_the_process(logind: Logind) -> None:
    process = subprocess.Popen(
        [sys.executable, "-B", "-c", HOLDER, str(HERE)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
    )
    assert process.stdout is not None and process.stdout.readline() == "in\n"
    assert logind.locks()[0]["held"]
    process.kill()
    process.communicate()
    assert logind.all_released()


def test_interrupt_from_the_terminal_leaves_the_lock(logind: Logind) -> None:
    process = subprocess.Popen(
        [sys.executable, "-B", "-c", "import signal; signal.signal(2, lambda *_: None)\n" + HOLDER, str(HERE)],
        stdin=subprocess.PIPE,
        stdout=subprocess.PIPE,
        text=True,
        start_new_session=True,
    )
    assert process.stdout is not None and process.stdout.readline() == "in\n"
    os.killpg(process.pid, signal.SIGINT)
    # The holder takes no notice and ends by itself; a command that had ended would not have waited for that.
    assert not logind.all_released(within=0.2)
    process.communicate("\n")
    assert process.returncode == 0 and logind.all_released()


def test_command_gets_nothing_of_the_process(
    tmp_path: Path, estate: Estate, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    listing = tmp_path / "listing"
    command(tmp_path / "bin", f'ls -l /proc/$$/fd > {listing}; cut -d" " -f6 /proc/$$/stat > {tmp_path}/sid; cat', monkeypatch)
    with open(tmp_path / "open", "w", encoding="utf-8") as kept, inhibitor.inhibited():
        os.set_inheritable(kept.fileno(), True)
    assert not said(host)
    led = [line.split(" -> ")[1] for line in listing.read_text().splitlines() if " -> " in line]
    assert len([target for target in led if target.startswith("pipe:")]) == 3
    assert str(tmp_path / "open") not in led
    assert int((tmp_path / "sid").read_text()) != os.getsid(0)


# Without one --------------------------------------------------------------------------------------------


def test_refusal_is_a_line_in_the_log(
    tmp_path: Path, lone: Tuple[Estate, Program], host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate, program = lone
    logind = Logind(tmp_path / "logind", "refuse")
    try:
        monkeypatch.setenv("DBUS_SYSTEM_BUS_ADDRESS", logind.address)
        found = program.collect()
        found.yumio.apply([found.offered("lone")], [], [])
    finally:
        logind.end()
    assert said(host) == [f"{NOT_HELD}Failed to inhibit: Access denied"]
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_without_a_bus_the_transaction_runs(lone: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = lone
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert len(said(host)) == 1
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert not host.named("errorlog")


@pytest.mark.parametrize(
    "body, words",
    [
        ("echo no such thing >&2; exit 1", "no such thing"),
        ("exit 3", "systemd-inhibit"),
        ("kill -9 $$", "systemd-inhibit"),
        ("exec <&-; echo odd; sleep 1000", "systemd-inhibit does not answer"),
        ("sleep 1000", "systemd-inhibit does not answer"),
    ],
)
def test_command_that_fails_costs_a_line_and_no_time(
    tmp_path: Path, host: FakeHost, monkeypatch: pytest.MonkeyPatch, body: str, words: str
) -> None:
    # Those that end by themselves have the time that a busy machine takes.
    monkeypatch.setattr(inhibitor, "WAIT", 0.3 if "sleep" in body else 60)
    command(tmp_path / "bin", body, monkeypatch)
    start = time.monotonic()
    with inhibitor.inhibited():
        assert said(host) == [NOT_HELD + words]
        assert not commands()
    assert time.monotonic() - start < 30


def test_missing_command_is_a_line_in_the_log(
    tmp_path: Path, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setenv("PATH", str(tmp_path))
    before = sorted(os.listdir("/proc/self/fd"))
    with inhibitor.inhibited():
        pass
    assert sorted(os.listdir("/proc/self/fd")) == before
    (line,) = said(host)
    assert line.endswith("No such file or directory: 'systemd-inhibit'")


def test_command_that_does_not_end_is_ended(
    tmp_path: Path, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(inhibitor, "WAIT", 5.0)
    command(tmp_path / "bin", "head -n 1; sleep 1000", monkeypatch)
    with inhibitor.inhibited():
        assert not said(host) and commands()
        monkeypatch.setattr(inhibitor, "WAIT", 0.1)
    assert not commands()
