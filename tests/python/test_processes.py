# SPDX-License-Identifier: GPL-2.0-or-later
"""What is known of other processes."""

from __future__ import annotations

import os
import subprocess
import time
from typing import Iterator

import pytest
from vemyum import processes


@pytest.fixture
def sleeper() -> Iterator["subprocess.Popen[bytes]"]:
    with subprocess.Popen(["sleep", "60"]) as process:
        yield process
        process.kill()


@pytest.fixture
def zombie() -> Iterator["subprocess.Popen[bytes]"]:
    with subprocess.Popen(["true"]) as process:
        os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOWAIT)
        yield process


def test_living_process(sleeper: "subprocess.Popen[bytes]") -> None:
    assert processes.lives(sleeper.pid) and processes.lives_since(sleeper.pid, time.time())
    assert processes.parent(sleeper.pid) == os.getpid()
    assert processes.start_of(sleeper.pid) >= processes.start_of(os.getpid()) > 0


def test_process_that_is_younger_than_a_time_did_not_live_then(sleeper: "subprocess.Popen[bytes]") -> None:
    assert not processes.lives_since(sleeper.pid, time.time() - 60)


def test_zombie_does_not_live(zombie: "subprocess.Popen[bytes]") -> None:
    assert not processes.lives(zombie.pid) and not processes.lives_since(zombie.pid, time.time())


def test_process_that_is_gone() -> None:
    process = subprocess.Popen(["true"])
    process.wait()
    assert not processes.lives(process.pid) and not processes.lives_since(process.pid, time.time())
    assert processes.name(process.pid) == "" and processes.parent(process.pid) == processes.start_of(process.pid) == 0


@pytest.mark.parametrize("name", ["a) b (c", "x y", ") Z 1 1"])
def test_odd_name_confuses_nobody(name: str) -> None:
    # The shell names itself, and waits for its end.
    script = f"printf '%s' '{name}' >/proc/$$/comm; echo; read -r line"
    with subprocess.Popen(["sh", "-c", script], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
        assert process.stdout is not None
        process.stdout.readline()
        assert processes.name(process.pid) == name.strip()
        assert processes.lives(process.pid) and processes.parent(process.pid) == os.getpid()
        process.communicate()
