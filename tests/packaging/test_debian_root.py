# SPDX-License-Identifier: GPL-2.0-or-later
"""The Debian package, installed by apt into a Debian that holds what it depends on and little else, and used there."""
from __future__ import annotations

import os
import subprocess
from pathlib import Path
from typing import Iterator

import pytest

from debian_root import DebianRoot, other_users_exist, screen_sockets
from program import Program
from rpmestate import Estate, spec

ESTATE = "/srv/estate"

pytestmark = pytest.mark.skipif(not other_users_exist(), reason="a Debian in a folder takes root")


@pytest.fixture(scope="module")
def debian(deb_file: Path) -> Iterator[DebianRoot]:
    root = DebianRoot(deb_file)
    yield root
    root.remove()


def compiled_modules(debian: DebianRoot) -> set[Path]:
    return set((debian.root / "usr/share/vem/python").rglob("*.pyc"))


def test_it_is_installed_whole(debian: DebianRoot) -> None:
    assert debian.run("dpkg-query", "-W", "-f", "${db:Status-Abbrev}", "vem").strip() == "ii"
    assert debian.run("dpkg", "--verify", "vem") == ""
    assert debian.run("apt-get", "check")
    # What nobody asked for: the display and its tools are ours, not that system's.
    assert not (debian.root / "usr/bin/Xvfb").exists()


def test_dnfs_own_configuration_is_the_one_there(debian: DebianRoot) -> None:
    ask = "import sys; sys.path.insert(0, '/usr/share/vem/python'); "
    ask += "from vemyum.configuration import main_file; print(main_file('/').path)"
    assert debian.run("/usr/bin/python3", "-B", "-c", ask).strip() == "/etc/dnf/dnf.conf"
    assert (debian.root / "etc/dnf/dnf.conf").exists()


def test_the_program_updates_a_package_there(debian: DebianRoot, tmp_path: Path) -> None:
    estate = Estate(debian.root / ESTATE.lstrip("/"))
    old, kept, new = estate.build([spec("lantern", "1.0"), spec("mooring", "1.0"), spec("lantern", "1.1")])
    estate.write_main_config()
    estate.repository("quay", [new], baseurl=f"file://{ESTATE}/repos/quay")
    estate.install([old, kept])
    modules = compiled_modules(debian)
    assert {f"{module.parent.parent / module.name.split('.')[0]}.py" for module in modules} == {
        str(source) for source in (debian.root / "usr/share/vem/python").rglob("*.py")
    }

    environment, sockets = screen_sockets()
    step, *words = debian.command(
        debian.root, ["/usr/bin/vem"], {**environment, "VEMROOT": f"{ESTATE}/root"}, sockets
    )
    log = tmp_path / "vem.log"
    try:
        with Program(Path(step), estate.root, Path("/nowhere"), log, words) as program:
            program.wait_ready()
            assert program.names() == ["lantern"]
            program.choose("View All")
            assert program.names() == ["lantern", "mooring"]
            if "VEM_SHOTS" in os.environ:
                subprocess.run(["import", "-window", "root", Path(os.environ["VEM_SHOTS"]) / "deb.png"], check=True)
            program.press("Set Update of All Out-of-Date")
            program.press("Apply Actions")
            program.press("OK", program.window("Apply"))
            program.wait_closed("Apply")
            program.wait_ready()
    finally:
        print(log.read_text(errors="replace"))
    assert estate.installed() == {"lantern-1.1-1.noarch", "mooring-1.0-1.noarch"}
    assert compiled_modules(debian) == modules


def test_purging_leaves_nothing(debian: DebianRoot) -> None:
    listed = debian.run("dpkg", "--listfiles", "vem").split()
    debian.run("dpkg", "--purge", "vem")
    files = [path for path in listed if not (debian.root / path.lstrip("/")).is_dir()]
    assert [path for path in files if os.path.lexists(debian.root / path.lstrip("/"))] == []
    for folder in ("usr/share/vem", "usr/share/doc/vem", "usr/share/doc/vem-1.7.2"):
        assert not os.path.lexists(debian.root / folder), folder


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
