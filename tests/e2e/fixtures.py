# SPDX-License-Identifier: GPL-2.0-or-later
"""Estates and programs for the tests that use a real window; a conftest.py that imports them has them.

VEM_PROGRAM names the binary and VEMSHARE the share directory; VEM_SHOTS, if set, a folder for screenshots.
"""
from __future__ import annotations

import contextlib
import os
import shutil
import subprocess
from pathlib import Path
from typing import Callable, Iterator

import pytest

from program import Program
from rpmestate import Estate, shell_spec, spec
from web import Web

__all__ = ["fleet", "pytest_runtest_makereport", "serve", "site", "start"]


LIT = "* Mon Jan 08 2024 A. Keeper <keeper@fleet.example> - 1.0-1\n- First light"


@pytest.fixture(scope="session")
def fleet(tmp_path_factory: pytest.TempPathFactory) -> Estate:
    estate = Estate(tmp_path_factory.mktemp("fleet"))
    shell, lamp, match, *offered = estate.build(
        [
            shell_spec("fleet-shell"),
            spec("fleet-lamp", "1.0", changelog=LIT),
            spec("fleet-match", "1.0"),
            spec(
                "fleet-lamp",
                "1.1",
                scriptlets={"post -p <lua>": 'print("fleet-lamp: the board is lit")'},
                changelog=f"* Tue Mar 05 2024 A. Keeper <keeper@fleet.example> - 1.1-1\n- Brighter\n\n{LIT}",
            ),
            spec("fleet-wick", "1.0", requires=["fleet-oil"]),
            spec("fleet-oil", "1.0"),
            spec("fleet-bellows", "1.0", scriptlets={"post": 'echo "fleet-bellows: blown by a shell"'}),
            spec("fleet-orphan", "1.0", requires=["fleet-parent"]),
            spec("fleet-sulker", "1.0", scriptlets={"pre -p <lua>": 'error("will not")'}),
        ]
    )
    estate.write_main_config()
    estate.repository("harbour", [match, *offered])
    estate.install([shell, lamp, match])
    return estate


@pytest.fixture
def site(fleet: Estate, tmp_path: Path) -> Estate:
    """A system of its own for one test, fed from the fleet's repositories, which are not to be changed."""
    own = Estate(tmp_path / "site")
    shutil.rmtree(own.root)
    shutil.copytree(fleet.root, own.root, symlinks=True)
    return own


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item: pytest.Item) -> Iterator[None]:
    """Keeps a picture of the screen as it was when a test failed."""
    outcome = yield
    report = outcome.get_result()  # type: ignore[attr-defined]
    if report.when == "call" and report.failed and "VEM_SHOTS" in os.environ:
        picture = Path(os.environ["VEM_SHOTS"]) / f"{item.name}.png"
        picture.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["import", "-window", "root", str(picture)], check=False)


@pytest.fixture
def serve(tmp_path: Path) -> Iterator[Callable[[Estate], Web]]:
    """Serves an estate's repositories on loopback."""
    with contextlib.ExitStack() as stack:
        yield lambda estate: stack.enter_context(Web(estate.repos_dir, tmp_path / "web"))


@pytest.fixture
def start(tmp_path: Path) -> Iterator[Callable[..., Program]]:
    """Starts the program on a site; what is still running at the test's end is ended."""
    running: list[Program] = []

    def starter(site: Estate, *arguments: str) -> Program:
        program = Program(
            Path(os.environ["VEM_PROGRAM"]), site.root, Path(os.environ["VEMSHARE"]), tmp_path / "vem.log", arguments
        )
        running.append(program)
        return program

    yield starter
    for program in running:
        program.close()
    log = tmp_path / "vem.log"
    if log.exists():
        print(log.read_text(errors="replace"))
