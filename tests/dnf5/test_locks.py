# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's own lock, which `dnf5` looks at, beside dnf 4's files."""

from __future__ import annotations

import os
import subprocess
import sys
from typing import Any, Iterator

import pytest
from apply5 import command_line
from catalogue import Catalogue
from rpmestate import Estate

PATH = "var/lib/dnf/system-repo.lock"
HOLD = """
import fcntl, sys
file = open(sys.argv[1], "a+")
fcntl.lockf(file, getattr(fcntl, sys.argv[2]))
print("held", flush=True)
sys.stdin.read()
"""


@pytest.fixture
def library(estate: Estate) -> Iterator[Any]:
    from vemyum.dnf5 import lock

    yield lock
    lock.let_go()


def settings() -> Any:
    from vemyum.dnf5.settings import read_settings

    return read_settings()


class Holder:
    """Another process with the library's lock."""

    def __init__(self, estate: Estate, kind: str) -> None:
        path = estate.root / PATH
        path.parent.mkdir(parents=True, exist_ok=True)
        command = [sys.executable, "-c", HOLD, str(path), kind]
        self.process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        assert self.process.stdout is not None and self.process.stdout.readline() == b"held\n"

    def __enter__(self) -> int:
        return self.process.pid

    def __exit__(self, *_: Any) -> None:
        self.process.communicate()


def test_the_command_line_waits_to_install_and_goes_on_to_list(
    library: Any, estate: Estate, rpms: Catalogue
) -> None:
    estate.repository("base", [rpms["lib-1.0"]])
    library.hold(settings())
    assert "lib" in command_line(estate, "list").stdout
    root = estate.root
    options = ["--installroot", str(root), "--use-host-config", "-y", "-c", f"{root}/etc/yum.conf"]
    options += [f"--setopt=reposdir={root}/etc/yum.repos.d", "--setopt=plugins=0"]
    waiting = subprocess.Popen(
        ["dnf5", *options, "install", "lib"], env=estate.command_environment(), stdout=-1, stderr=-2, encoding="utf-8"
    )
    try:
        assert waiting.stdout is not None
        said = ""
        while str(os.getpid()) not in said:
            line = waiting.stdout.readline()
            assert line, said
            said += line
        assert estate.installed() == set()
        library.let_go()
        said += waiting.communicate()[0]
    finally:
        waiting.kill()
        waiting.wait()
    assert estate.installed() == {"lib-1.0-1.noarch"}, said


def test_the_holder_is_named(library: Any, estate: Estate) -> None:
    from vemyum.errors import LockError

    with Holder(estate, "LOCK_EX") as pid:
        with pytest.raises(LockError) as error:
            library.hold(settings())
        assert f"{pid} (python3" in str(error.value)
    library.hold(settings())


def test_whoever_only_reads_is_no_obstacle(library: Any, estate: Estate) -> None:
    with Holder(estate, "LOCK_SH"):
        library.hold(settings())


def test_reading_and_a_transaction_leave_it(library: Any, estate: Estate, rpms: Catalogue) -> None:
    from apply5 import Apply

    estate.repository("base", [rpms["lib-1.0"]])
    library.hold(settings())
    Apply([rpms["lib-1.0"]]).run()
    probe = "import fcntl, sys\nfcntl.lockf(open(sys.argv[1], 'a+'), fcntl.LOCK_EX | fcntl.LOCK_NB)"
    command = [sys.executable, "-c", probe, str(estate.root / PATH)]
    assert subprocess.run(command, stderr=-1).returncode != 0
    library.let_go()
    assert subprocess.run(command, stderr=-1).returncode == 0


def test_the_files_are_dnf_4s(library: Any, estate: Estate) -> None:
    """As dnf 4 itself names them."""
    ask = (
        "import dnf.conf, dnf.lock, sys\n"
        "conf = dnf.conf.Conf(); conf.read(sys.argv[1]); root = sys.argv[2]\n"
        "for build, folder in ((dnf.lock.build_metadata_lock, conf.cachedir),\n"
        "    (dnf.lock.build_download_lock, conf.cachedir), (dnf.lock.build_rpmdb_lock, conf.persistdir)):\n"
        "    print(build(root + folder, True).target)\n"
    )
    for options in ({"cachedir": "/var/cache/odd"}, {"cachedir": "/c", "persistdir": "/var/lib/p"}):
        main = estate.write_main_config(**options)
        done = subprocess.run([sys.executable, "-c", ask, str(main), str(estate.root)], stdout=-1, encoding="utf-8")
        if done.returncode != 0:
            pytest.skip("no dnf 4 here")
        assert library.lock_files(settings()) == done.stdout.split()
    main.unlink()
    (estate.root / "etc/dnf").mkdir()
    (estate.root / "etc/dnf/dnf.conf").write_text("[main]\n")
    assert library.lock_files(settings())[0] == f"{estate.root}/var/cache/dnf/metadata_lock.pid"
