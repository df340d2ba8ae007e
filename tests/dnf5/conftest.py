# SPDX-License-Identifier: GPL-2.0-or-later
"""Fixtures for what is libdnf5's own oddity; what both libraries have to do is tested in tests/python."""

from __future__ import annotations

import os
import sys
from pathlib import Path
from typing import Callable

import pytest

HERE = Path(__file__).resolve().parent
TOP = HERE.parent.parent
for folder in (TOP / "estate", TOP / "share" / "python", TOP / "tests" / "python", HERE):
    sys.path.insert(0, str(folder))
# For trying a tree that is elsewhere.
if "VEM_TEST_PYTHON" in os.environ:
    sys.path.insert(0, os.environ["VEM_TEST_PYTHON"])
os.environ["VEMBACKEND"] = "dnf5"

pytest.importorskip("libdnf5", exc_type=ImportError)

import fake_host  # noqa: E402
from catalogue import Catalogue  # noqa: E402
from rpmestate import Estate  # noqa: E402
from users import use_reachable_folder  # noqa: E402


def pytest_configure() -> None:
    use_reachable_folder()


@pytest.fixture(scope="session")
def rpms(tmp_path_factory: pytest.TempPathFactory) -> Catalogue:
    return Catalogue(Estate(tmp_path_factory.mktemp("rpms")))


@pytest.fixture
def host(monkeypatch: pytest.MonkeyPatch) -> fake_host.FakeHost:
    fake_host.HOST.reset()
    monkeypatch.setitem(sys.modules, "yumIOC", fake_host.HOST)
    from vemyum import messages

    messages.install_handler()
    return fake_host.HOST


@pytest.fixture
def new_estate(tmp_path: Path) -> Callable[[str], Estate]:
    """Makes an estate without packages and repositories."""

    def make(name: str) -> Estate:
        estate = Estate(tmp_path / name)
        estate.write_main_config()
        return estate

    return make


@pytest.fixture
def estate(
    tmp_path: Path, host: fake_host.FakeHost, new_estate: Callable[[str], Estate], monkeypatch: pytest.MonkeyPatch
) -> Estate:
    """One that VEMROOT names."""
    home = tmp_path / "home"
    home.mkdir()
    estate = new_estate("estate")
    monkeypatch.setenv("HOME", str(home))
    monkeypatch.setenv("VEMROOT", str(estate.root))
    # No test keeps this machine from shutting down.
    monkeypatch.setenv("DBUS_SYSTEM_BUS_ADDRESS", f"unix:path={tmp_path}/no-bus")
    return estate
