# SPDX-License-Identifier: GPL-2.0-or-later
"""The program of a user without rights: everything can be looked at, and nothing of the system changes."""

from __future__ import annotations

import errno
import json
import os
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Any, Dict, Iterator, List, Tuple

import pytest
from catalogue import Catalogue
from keys import Key
from libraries import BACKEND, by_library
from program import Program
from rpmestate import Estate
from users import NOBODY, other_users_exist
from web import Web

from vemyum import choice

HERE = Path(__file__).resolve().parent
LOOK_ONLY = "Started without administrator rights: packages can be looked at, not changed."
NOT_APPLIED = (
    "Only the administrator can install, update or remove packages: start the program with administrator rights."
)
CONVERTED = by_library("cache/base.solv", "cache/base-*/solv/base.solv")
NOT_CLEANED = "Only the administrator can clean the caches: start the program with administrator rights."

# `do` is called with the program and fills `said`, which the test gets.
GUEST = """
import json, sys
sys.path[:0] = [sys.argv[1], sys.argv[1] + "/python"]
import fake_host
from pathlib import Path
from program import Program
program = Program(Path(sys.argv[1]) / "python/YumIO.py")
said = {{}}
def do():
{body}
try:
    do()
except program.errors.YumBaseError as error:
    said["error"] = str(error)
except SystemExit:
    said["ended"] = True
for name in "log", "warninglog", "errorlog":
    said[name] = fake_host.HOST.text(name).splitlines()
said["calls"] = sorted({{call[0] for call in fake_host.HOST.calls}})
sys.__stdout__.write(json.dumps(said) + "\\n")
sys.__stdout__.flush()
sys.stdin.readline()
program.end()
"""

COLLECT = """
found = program.collect()
said["table"] = found.merged()
"""

# As where there is no main file at all.
ASKS_FOR_SIGNATURES = by_library(
    """
from vemyum.dnf4 import configuration
said["asks for signatures"] = bool(configuration.Settings().conf.gpgcheck)
""",
    """
from vemyum.dnf5 import base, settings
kept = base.Base(settings.read_settings())
said["asks for signatures"] = bool(kept.config.pkg_gpgcheck)
""",
)


class Guest:
    """One run of the helper script by a user without rights, until `end`."""

    def __init__(self, share: Path, body: str, root: Path, environment: Dict[str, str]) -> None:
        text = GUEST.format(body="".join(f"    {line}\n" for line in body.strip().splitlines()))
        self.process = subprocess.Popen(
            [sys.executable, "-B", "-c", text, str(share)],
            env={
                "PATH": os.environ["PATH"],
                "LC_ALL": "C.UTF-8",
                "VEMROOT": str(root),
                choice.VARIABLE: BACKEND,
                **environment,
            },
            cwd="/",
            user=NOBODY,
            group=NOBODY,
            extra_groups=[],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        assert self.process.stdout is not None
        self.said: Dict[str, Any] = json.loads(self.process.stdout.readline() or "{}")

    def end(self) -> None:
        self.process.communicate("\n")
        assert self.process.returncode == 0


class Guests:
    """The user: a home, and a share directory and an estate within reach."""

    def __init__(self, folder: Path, estate: Estate) -> None:
        self.estate = estate
        self.home = folder / "guest"
        self.home.mkdir()
        os.chown(self.home, NOBODY, NOBODY)
        # The tests may lie where nobody else gets to.
        self.share = folder / "share"
        shutil.copytree(HERE.parents[1] / "share/python", self.share / "python")
        for name in ("fake_host.py", "program.py"):
            shutil.copy(HERE / name, self.share)
        for above in (folder, folder.parent, folder.parent.parent):
            above.chmod(0o755)
        self.running: List[Guest] = []

    def start(self, body: str, **environment: str) -> Guest:
        guest = Guest(self.share, body, self.estate.root, {"HOME": str(self.home), **environment})
        self.running.append(guest)
        return guest

    def run(self, body: str, **environment: str) -> Dict[str, Any]:
        """What a program said that has ended by now."""
        guest = self.start(body, **environment)
        self.end()
        return guest.said

    def end(self) -> None:
        while self.running:
            self.running.pop().end()

    def own(self) -> List[Path]:
        """The folders of the user, one for each root."""
        return sorted((self.home / ".cache/vem").iterdir())


@pytest.fixture
def guests(tmp_path: Path, estate: Estate) -> Iterator[Guests]:
    if not other_users_exist():
        pytest.skip("needs root and other users")
    guests = Guests(tmp_path, estate)
    yield guests
    guests.end()


@pytest.fixture
def house(estate: Estate, rpms: Catalogue, guests: Guests) -> Guests:
    """lamp 1.0 is installed; base has lamp 1.1 and lone, and puts lone into a group."""
    comps = (
        "<comps><group><id>light</id><name>Light</name><uservisible>true</uservisible>"
        '<packagelist><packagereq type="mandatory">lone</packagereq></packagelist></group></comps>'
    )
    estate.install([rpms["lamp-1.0"]])
    estate.repository("base", rpms.some("lamp-1.1", "lone-1.0"), comps=comps)
    return guests


def system(estate: Estate) -> Dict[str, Tuple[int, int, int]]:
    """Every file below the root with its permissions, size and time of change."""
    files = {}
    for path in [estate.root, *estate.root.glob("**/*")]:
        status = path.lstat()
        files[str(path)] = (status.st_mode, status.st_size, status.st_ctime_ns)
    return files


def folders(root: Path) -> List[Path]:
    return [root, *(path for path in root.glob("**/*") if path.is_dir())]


# Looking ----------------------------------------------------------------------------------------------


def test_everything_can_be_looked_at(house: Guests, web: Web) -> None:
    house.estate.write_repo_file("base", baseurl=f"{web.url}/base")
    before = system(house.estate)
    said = house.run(
        COLLECT
        + """
said["groups"] = [group.name for group in found.groups]
lamp, old, lone = found.update("lamp"), found.there("lamp"), found.offered("lone")
said["summary"] = lamp.returnSimple("summary")
said["vendor"] = lamp.returnSimple("vendor")
said["requires"] = len(lamp.returnPrco("requires"))
said["header"] = old.hdr["name"]
program.yumio.collectFileLists()
program.yumio.collectOtherData()
said["files"] = sorted(lamp.returnFileEntries("file"))
said["changes"] = [change[2] for change in lamp.returnChangelog()]
"""
    )
    assert "error" not in said
    assert said["table"] == {"lamp": "OutOfDate", "lone": "Available"}
    assert said["groups"] == ["Light"]
    assert (said["summary"], said["vendor"], said["header"]) == ("The lamp package", "Estate Works", "lamp")
    assert said["requires"] == 3
    assert said["files"] == ["/etc/lamp.conf", "/usr/share/lamp/bulb", "/usr/share/lamp/shade"]
    assert said["changes"] == ["- Brighter", "- First light"]
    assert any("-other.xml" in path for path in web.requests())
    assert system(house.estate) == before


def test_user_hears_at_once_that_nothing_can_be_changed(house: Guests, program: Program, host: Any) -> None:
    said = house.run(COLLECT + "program.collect()")
    assert said["log"].count(LOOK_ONLY) == 1
    program.collect()
    assert LOOK_ONLY not in host.text("log")


def test_metadata_lie_in_the_users_own_cache(house: Guests, web: Web) -> None:
    house.estate.write_main_config(cachedir="/var/cache/elsewhere", logdir="/var/log/elsewhere")
    house.estate.write_repo_file("base", baseurl=f"{web.url}/base")
    house.run(COLLECT)
    (own,) = house.own()
    assert list(own.glob(CONVERTED)) and (BACKEND != choice.DNF4 or (own / "log/hawkey.log").exists())
    for folder in (house.home / ".cache", house.home / ".cache/vem", own):
        assert folder.stat().st_mode & 0o777 == 0o700
    assert {path.stat().st_uid for path in folders(own)} == {NOBODY}
    # What was fetched once serves the next run.
    web.forget_requests()
    assert house.run(COLLECT)["table"] == {"lamp": "OutOfDate", "lone": "Available"}
    assert not any("primary" in path for path in web.requests())


def test_key_of_metadata_lies_in_the_users_own_cache(house: Guests) -> None:
    """After the same question as for the administrator."""
    answer = "import fake_host\nfake_host.HOST.key_answer = lambda *question: {answer}\n" + COLLECT
    with Key() as key:
        public = house.estate.directory / "public.asc"
        public.write_bytes(key.public.read_bytes())
        house.estate.write_repo_file("base", extra={"repo_gpgcheck": "1", "gpgkey": public.as_uri()})
        key.sign_metadata(house.estate.repos_dir / "base")
        before = system(house.estate)
        assert "was not agreed to" in house.run(answer.format(answer=0))["error"]
        assert "lone" in house.run(answer.format(answer=1))["table"]
    assert "confirmKey" not in house.run(COLLECT)["calls"]
    (own,) = house.own()
    assert list(own.glob("cache/base-*/pubring"))
    assert system(house.estate) == before


def test_system_of_another_root_has_another_cache(house: Guests, tmp_path: Path) -> None:
    house.run(COLLECT)
    other = Estate(tmp_path / "other")
    other.write_main_config()
    other.repository("base", [])
    assert house.run(COLLECT, VEMROOT=str(other.root)).get("table") is None
    assert len(house.own()) == 2


def test_cache_lies_where_the_user_wants_it(house: Guests) -> None:
    place = house.home / "elsewhere"
    assert house.run(COLLECT, XDG_CACHE_HOME=str(place))["table"]
    assert len(list((place / "vem").iterdir())) == 1
    # A relative path doesn't count.
    assert house.run(COLLECT, XDG_CACHE_HOME="elsewhere")["table"]
    assert len(house.own()) == 1


# What the user may not do ----------------------------------------------------------------------------


def test_apply_ends_before_anything_is_asked_or_fetched(house: Guests, web: Web) -> None:
    house.estate.write_repo_file("base", baseurl=f"{web.url}/base")
    before = system(house.estate)
    said = house.run(COLLECT + 'program.yumio.apply([found.offered("lone")], [found.pair("lamp")], [])')
    assert said["error"] == NOT_APPLIED
    assert not {"userconfirm", "listTransaction", "dsTsCheck", "reportDownloadSize"} & set(said["calls"])
    assert not any(path.endswith(".rpm") for path in web.requests())
    assert system(house.estate) == before


@pytest.mark.parametrize("kind", ["Headers", "Packages", "Metadata", "Pickles"])
def test_caches_are_not_cleaned(house: Guests, kind: str) -> None:
    said = house.run(COLLECT + f"program.yumio.clean{kind}()")
    assert said["error"] == NOT_CLEANED
    assert list(house.own()[0].glob(CONVERTED))


# The lock -------------------------------------------------------------------------------------------


def test_history_is_the_systems_and_is_told_without_a_collection(house: Guests, program: Program) -> None:
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    program.end()
    before = system(house.estate)
    said = house.run(
        """
yumio = program.namespace["YumIO"]()
said["list"] = yumio.historyList()
said["names"] = [one["name"] for one in yumio.historyOf(1)["packages"]]
said["found"] = yumio.historySearch("lone")
said["text"] = yumio.historyExport(0, "text")
"""
    )
    assert [one["counts"] for one in said["list"]] == [{"install": 1}]
    assert (said["names"], said["found"]) == (["lone"], [1])
    assert said["text"].startswith("Transaction 1\n")
    assert system(house.estate) == before


def test_two_copies_of_one_user_exclude_each_other(house: Guests, tmp_path: Path) -> None:
    first = house.start(COLLECT)
    said = house.start(COLLECT).said
    assert said["error"] == f"The yum lock is held by process {first.process.pid} (python3)."
    house.end()
    assert not list(house.own()[0].glob("**/*.pid"))
    assert "error" not in house.run(COLLECT)


def test_copies_on_different_roots_run_side_by_side(house: Guests, tmp_path: Path) -> None:
    other = tmp_path / "other"
    shutil.copytree(house.estate.root, other, symlinks=True)
    house.start(COLLECT)
    assert house.start(COLLECT, VEMROOT=str(other)).said["table"]


def test_administrator_and_user_dont_exclude_each_other(house: Guests, program: Program) -> None:
    program.collect()
    assert house.start(COLLECT).said["table"]
    program.collect()


# What the user may not read --------------------------------------------------------------------------


def test_repository_file_with_a_secret_leaves_the_others(house: Guests) -> None:
    secret = house.estate.write_repo_file("secret", baseurl="http://127.0.0.1:9/?key=tell-nobody")
    secret.chmod(0o600)
    said = house.run(COLLECT)
    assert said["table"] == {"lamp": "OutOfDate", "lone": "Available"}
    assert "/etc/yum.repos.d/secret.repo: Permission denied" in said["warninglog"]


def test_unreadable_main_file_leaves_the_repositories(house: Guests) -> None:
    main = house.estate.root / "etc/yum.conf"
    main.chmod(0o600)
    said = house.run(COLLECT + ASKS_FOR_SIGNATURES)
    assert said["table"] == {"lamp": "OutOfDate", "lone": "Available"}
    assert said["warninglog"].count("/etc/yum.conf: Permission denied") == 1
    assert said["asks for signatures"]


def test_unreadable_list_of_protected_packages_is_not_missed(house: Guests) -> None:
    protected = house.estate.root / "etc/dnf/protected.d/mine.conf"
    protected.parent.mkdir(parents=True)
    protected.write_text("lamp\n")
    protected.chmod(0o600)
    assert house.run(COLLECT)["table"]


def test_unreadable_database_is_told(house: Guests) -> None:
    (house.estate.root / "var/lib/rpm").chmod(0o700)
    assert f"The rpm database of {house.estate.root} cannot be read" in house.run(COLLECT)["error"]


def test_unreadable_log_directory_is_not_missed(house: Guests) -> None:
    log = house.estate.root / "var/log"
    log.mkdir()
    log.chmod(0o700)
    assert house.run(COLLECT)["table"]


# The user's own folder -------------------------------------------------------------------------------


@pytest.mark.parametrize("home", ["/nonexistent", "/usr", "/dev/null"])
def test_home_that_cannot_be_written_is_told(house: Guests, home: str) -> None:
    said = house.run(COLLECT, HOME=home)
    assert said["ended"]
    sentence, cause = said["errorlog"]
    assert sentence == (
        "Without administrator rights the program needs a cache of the user's own, which cannot be used:"
    )
    assert cause.startswith(home)


def test_own_cache_that_has_become_unwritable_is_told(house: Guests) -> None:
    house.run(COLLECT)
    cache = house.own()[0] / "cache"
    os.chown(cache, 0, 0)
    for permissions in 0o700, 0o755:
        cache.chmod(permissions)
        said = house.run(COLLECT)
        assert said["ended"] and said["errorlog"][1] == f"{cache}: {os.strerror(errno.EACCES)}"
