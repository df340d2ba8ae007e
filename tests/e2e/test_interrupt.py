# SPDX-License-Identifier: GPL-2.0-or-later
"""Ctrl-C on the terminal ends the program at once, also at the moments when a library wants the signal for itself."""
from __future__ import annotations

import os
import signal
import socket
import subprocess
from pathlib import Path
from typing import Iterator, Mapping, Optional

import pytest

from rpmestate import Estate

ENDS_WITHIN = 10  # seconds; a download that is interrupted as the library does it takes 30


def started(site: Estate, environment: Optional[Mapping[str, str]] = None) -> "subprocess.Popen[bytes]":
    return subprocess.Popen(
        [os.environ["VEM_PROGRAM"]],
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "VEMROOT": str(site.root), **(environment or {})},
        stdin=subprocess.DEVNULL,
    )


def assert_ends_by_interrupt(process: "subprocess.Popen[bytes]") -> None:
    try:
        assert process.wait(ENDS_WITHIN) == -signal.SIGINT
    finally:
        process.kill()
        process.wait()


@pytest.fixture
def silent_server() -> Iterator[socket.socket]:
    """Accepts connections and never says a word."""
    with socket.socket() as server:
        server.bind(("127.0.0.1", 0))
        server.listen()
        server.settimeout(60)
        yield server


def test_while_the_interpreter_starts(site: Estate, tmp_path: Path) -> None:
    # Runs within the start, as soon as there is an interpreter that could take the signal.
    hook = "import os, signal, time\nos.kill(os.getpid(), signal.SIGINT)\ntime.sleep(60)\n"
    (tmp_path / "sitecustomize.py").write_text(hook)
    assert_ends_by_interrupt(started(site, {"PYTHONPATH": str(tmp_path)}))


def test_while_modules_are_loaded(site: Estate, tmp_path: Path) -> None:
    hook = "import os, signal, time\nos.kill(os.getpid(), signal.SIGINT)\ntime.sleep(60)\n"
    # Only the one that this run is about is loaded.
    for library in ("dnf", "libdnf5"):
        (tmp_path / f"{library}.py").write_text(hook)
    assert_ends_by_interrupt(started(site, {"PYTHONPATH": str(tmp_path)}))


def test_while_a_server_keeps_a_download_waiting(site: Estate, silent_server: socket.socket) -> None:
    port = silent_server.getsockname()[1]
    repository = f"[harbour]\nname=harbour\nbaseurl=http://127.0.0.1:{port}/\nenabled=1\ngpgcheck=0\n"
    (site.root / "etc/yum.repos.d/harbour.repo").write_text(repository)
    process = started(site)
    try:
        connection, _ = silent_server.accept()
        connection.recv(1)
        process.send_signal(signal.SIGINT)
    except BaseException:
        process.kill()
        raise
    with connection:
        assert_ends_by_interrupt(process)
