# SPDX-License-Identifier: GPL-2.0-or-later
"""Fixtures: rpms built once a session, an estate and a loaded helper script for each test."""

from __future__ import annotations

import contextlib
import os
import subprocess
import sys
from pathlib import Path
from typing import Callable, ContextManager, Iterator, List, Tuple

import pytest

HERE = Path(__file__).resolve().parent
TOP = HERE.parent.parent
for folder in (TOP / "estate", TOP / "share" / "python", HERE):
    sys.path.insert(0, str(folder))

import fake_host  # noqa: E402
import libraries  # noqa: E402
from catalogue import Catalogue  # noqa: E402
from program import Program  # noqa: E402
from rpmestate import Estate  # noqa: E402
from users import use_reachable_folder  # noqa: E402
from vemyum import choice  # noqa: E402
from web import Web  # noqa: E402


def pytest_configure(config: pytest.Config) -> None:
    use_reachable_folder()
    # Whatever a test starts works with the same one.
    os.environ[choice.VARIABLE] = libraries.BACKEND
    for backend, name in choice.NAMES.items():
        config.addinivalue_line("markers", f"{backend}: about {name} alone, not for the other library")


def pytest_collection_modifyitems(items: List[pytest.Item]) -> None:
    for item in items:
        for backend in choice.BACKENDS:
            if backend != libraries.BACKEND and item.get_closest_marker(backend):
                item.add_marker(pytest.mark.skip(reason=f"about {choice.NAMES[backend]}"))


@pytest.fixture(scope="session")
def rpms(tmp_path_factory: pytest.TempPathFactory) -> Catalogue:
    return Catalogue(Estate(tmp_path_factory.mktemp("rpms")))


@pytest.fixture
def host() -> fake_host.FakeHost:
    fake_host.HOST.reset()
    return fake_host.HOST


@pytest.fixture
def estate(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Estate:
    """An estate without packages and repositories; VEMROOT names its root."""
    # A home that knows nothing of the estate: the database must be found without its help.
    home = tmp_path / "home"
    home.mkdir()
    estate = Estate(tmp_path / "estate")
    estate.write_main_config()
    monkeypatch.setenv("HOME", str(home))
    monkeypatch.setenv("VEMROOT", str(estate.root))
    # No test keeps this machine from shutting down.
    monkeypatch.setenv("DBUS_SYSTEM_BUS_ADDRESS", f"unix:path={tmp_path}/no-bus")
    return estate


@pytest.fixture
def program(estate: Estate, host: fake_host.FakeHost) -> Iterator[Program]:
    """The helper script on the estate, not yet instantiated."""
    streams = sys.stdout, sys.stderr
    program = Program(TOP / "share" / "python" / "YumIO.py")
    try:
        yield program
    finally:
        program.end()
        sys.stdout, sys.stderr = streams
        os.chdir("/")


@pytest.fixture
def in_child(program: Program, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Callable[[str], None]:
    """Has the process that applies changes run these lines, too, before it begins."""
    from vemyum.apply import parent

    script = tmp_path / "child.py"

    def run_first(lines: str) -> None:
        lead = f"import sys\nsys.path.insert(0, {str(TOP / 'share/python')!r})\n"
        lead += "from vemyum import choice\nchoice.settle(sys.argv[3])\n"
        script.write_text(f"{lead}{lines}\nfrom vemyum.apply import child\nchild.main(*map(int, sys.argv[1:3]))\n")
        monkeypatch.setattr(parent, "COMMAND", [sys.executable, "-B", str(script)])

    return run_first


@pytest.fixture
def small_disk() -> Callable[[Path, int], ContextManager[None]]:
    """Lets a directory lie on a disk of its own that has so many KiB free, its files included while that lasts."""

    @contextlib.contextmanager
    def mounted(directory: Path, kib: int) -> Iterator[None]:
        files = {file.name: file.read_bytes() for file in directory.iterdir() if file.is_file()}
        # Each file has a page of its own at least, and so has the directory.
        pages = 1 + sum(-(-len(content) // 4096) for content in files.values())
        size = f"size={pages * 4 + kib}k"
        if subprocess.run(["mount", "-t", "tmpfs", "-o", size, "tmpfs", str(directory)]).returncode != 0:
            pytest.skip("no right to mount")
        try:
            for name, content in files.items():
                (directory / name).write_bytes(content)
            yield
        finally:
            subprocess.run(["umount", "--lazy", str(directory)], check=True)

    return mounted


@pytest.fixture
def web(tmp_path: Path) -> Iterator[Web]:
    """A web server on loopback over the estate's repositories."""
    with Web(tmp_path / "estate" / "repos", tmp_path / "web") as web:
        yield web


@pytest.fixture
def lamp(estate: Estate, rpms: Catalogue, program: Program) -> Tuple[Estate, Program]:
    """lamp 1.0 is installed, base has lamp 1.1."""
    estate.install([rpms["lamp-1.0"]])
    estate.repository("base", [rpms["lamp-1.1"]])
    return estate, program
