# SPDX-License-Identifier: GPL-2.0-or-later
"""An exception out of a callback would end the process, in mid-transaction too: none gets that far."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path
from typing import List

import pytest
from catalogue import Catalogue
from conftest import HERE, TOP
from rpmestate import Estate

OF_RPM = (
    "before_begin after_complete elem_progress install_start install_progress install_stop uninstall_start "
    "uninstall_progress uninstall_stop script_start script_stop script_error unpack_error cpio_error"
).split()
OF_DOWNLOADS = ["begin", "progress", "end", "mirror_failed"]

THERE = ["lamp-1.0", "current-2.5", "battery-1.0", "shell-1.0", "oldlamp-1.0", "badpreun-1.0"]
INCOMING = ["lamp-1.1", "newlamp-1.0", "badpost-1.0", "badpre-1.0", "talk-1.0"]
AFTERWARDS = {
    "lamp-1.1-1.noarch",
    "current-1:2.5-1.noarch",
    "battery-1.0-1.noarch",
    "shell-1.0-1.x86_64",
    "newlamp-1.0-1.noarch",
    "badpost-1.0-1.noarch",
    "talk-1.0-1.noarch",
    "badpreun-1.0-1.noarch",
}

SCRIPT = """
import sys
sys.path[:0] = {path!r}
import fake_host
sys.modules["yumIOC"] = fake_host.HOST
from pathlib import Path
from apply5 import Apply

class Fault(BaseException):
    pass

def fault(*_):
    raise Fault("in {where}")

from vemyum import messages
from vemyum.dnf5 import display, download, librarylog
from vemyum.dnf5.callbacks import guarded
messages.install_handler()
begins = lambda: None
{lines}
Apply([Path(one) for one in {incoming!r}], [Path(one) for one in {removes!r}]).run(begins)
told = [call for call in fake_host.HOST.calls if call[0] == "errorlog" and "Fault" in call[2]]
print(len(told))
"""


def run(estate: Estate, rpms: Catalogue, where: str, lines: str) -> int:
    """An apply in a process of its own, with a fault in it; gives how often that was told. Everything is done as if
    there were none."""
    estate.install(rpms.some(*THERE))
    estate.repository("base", rpms.some(*INCOMING))
    folders: List[Path] = [TOP / "estate", TOP / "share/python", TOP / "tests/python", HERE]
    path = [os.environ["VEM_TEST_PYTHON"]] if "VEM_TEST_PYTHON" in os.environ else []
    path += map(str, folders)
    script = SCRIPT.format(
        path=path,
        where=where,
        lines=lines,
        incoming=list(map(str, rpms.some(*INCOMING))),
        removes=list(map(str, rpms.some("badpreun-1.0"))),
    )
    done = subprocess.run([sys.executable, "-B", "-c", script], stdout=-1, stderr=-1, encoding="utf-8")
    assert done.returncode == 0, done.stderr
    assert estate.installed() == AFTERWARDS
    return int(done.stdout.splitlines()[-1])


@pytest.mark.parametrize("name", OF_RPM)
def test_a_fault_in_a_callback_of_rpm(name: str, estate: Estate, rpms: Catalogue) -> None:
    told = run(estate, rpms, name, f"display.Display.{name} = guarded()(fault)")
    # Nothing here is damaged.
    assert bool(told) == (name not in ("unpack_error", "cpio_error"))


def test_every_callback_is_among_them() -> None:
    import libdnf5.rpm
    from vemyum.dnf5.display import Display

    known = dir(libdnf5.rpm.TransactionCallbacks)
    ours = {name for name in vars(Display) if name in known and not name.startswith("_")}
    assert ours == set(OF_RPM)
    for name in ours:
        assert hasattr(getattr(Display, name), "__wrapped__"), name


@pytest.mark.parametrize("name", OF_DOWNLOADS)
def test_a_fault_in_a_callback_of_a_download(name: str, estate: Estate, rpms: Catalogue) -> None:
    run(estate, rpms, name, f"download.DownloadMeter.{name} = fault")


def test_a_fault_of_the_host(estate: Estate, rpms: Catalogue) -> None:
    lines = "fake_host.HOST.tsEvent = fake_host.HOST.stdoutWrite = fault"
    assert run(estate, rpms, "the host", lines) > 1


def test_a_fault_where_rpm_begins(estate: Estate, rpms: Catalogue) -> None:
    assert run(estate, rpms, "the beginning", "begins = fault") == 1


def test_a_fault_in_the_log(estate: Estate, rpms: Catalogue) -> None:
    assert run(estate, rpms, "the log", "librarylog.valid = fault") > 1
