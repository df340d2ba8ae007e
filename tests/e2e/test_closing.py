# SPDX-License-Identifier: GPL-2.0-or-later
"""Closing the window by the window manager, whatever the program is doing, leaves no process and no lock."""
from __future__ import annotations

import socket
from pathlib import Path
from typing import Callable, Iterator, List

import pytest

from program import Program, wait_for
from rpmestate import Estate, run, spec

Start = Callable[..., Program]


def locks(site: Estate) -> List[Path]:
    return list(site.root.glob("var/*/*/*lock.pid"))


@pytest.fixture
def stalled(site: Estate) -> Iterator[socket.socket]:
    """A repository whose server accepts connections and never says a word."""
    with socket.socket() as server:
        server.bind(("127.0.0.1", 0))
        server.listen()
        server.settimeout(60)
        address = f"http://127.0.0.1:{server.getsockname()[1]}/"
        repository = f"[harbour]\nname=harbour\nbaseurl={address}\nenabled=1\ngpgcheck=0\n"
        (site.root / "etc/yum.repos.d/harbour.repo").write_text(repository)
        yield server


def test_an_idle_window(site: Estate, start: Start) -> None:
    program = start(site)
    program.wait_ready()
    assert len(locks(site)) == 3
    program.end_by_window_manager()
    assert program.process.returncode == 0
    assert locks(site) == []


def test_a_window_that_waits_for_a_server(site: Estate, start: Start, stalled: socket.socket) -> None:
    program = start(site)
    connection, _ = stalled.accept()
    with connection:
        connection.recv(1)
        program.window("VEM - ")
        wait_for(lambda: locks(site), "the lock")
        # Two seconds for the program, the rest for a machine that is busy with other tests.
        assert program.end_by_window_manager() < 4
    assert program.process.returncode == 0


def test_a_window_that_downloads_packages(site: Estate, start: Start) -> None:
    """The question has been answered, and nothing is installed yet."""
    server = socket.socket()
    server.bind(("127.0.0.1", 0))
    server.listen()
    server.settimeout(60)
    # The metadata are there; the packages are somewhere where nobody gives them.
    address = f"http://127.0.0.1:{server.getsockname()[1]}/"
    run(["createrepo_c", "--quiet", "--baseurl", address, site.repository("dock", site.build(spec("fleet-lamp", "9")))])
    program = start(site)
    program.wait_ready()
    program.press("Set Update of All Out-of-Date")
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    with server:
        connection, _ = server.accept()
        with connection:
            connection.recv(1)
            assert program.end_by_window_manager() < 4
            assert program.process.returncode == 0
            wait_for(lambda: locks(site) == [], "the lock files to go")
    assert "fleet-lamp-1.0-1.noarch" in site.installed()
