# SPDX-License-Identifier: GPL-2.0-or-later
"""Collections: which packages stand in which list, and what the engine makes of them."""

from __future__ import annotations

import contextlib
import gc
import os
import sqlite3
from pathlib import Path
from typing import Any, List, Tuple

import pytest
from catalogue import Catalogue
from dnfreport import dnf_report
from fake_host import FakeHost
from libraries import CACHE, MISREAD
from program import Program
from rpmestate import Estate, install_options, spec


def names(packages: list) -> list:
    return [f"{package.name}-{package.printVer()}.{package.arch}" for package in packages]


def test_three_lists_and_the_states_that_they_merge_to(lamp: Tuple[Estate, Program], rpms: Catalogue) -> None:
    estate, program = lamp
    estate.install(rpms.some("lib-1.0"))
    estate.repository("base", rpms.some("lamp-1.1", "lib-1.0", "battery-1.0"))
    found = program.collect()
    assert names(found.updates) == ["lamp-1.1-1.noarch"]
    assert sorted(names(found.installed)) == ["lamp-1.0-1.noarch", "lib-1.0-1.noarch"]
    assert sorted(names(found.available)) == ["battery-1.0-1.noarch", "lamp-1.1-1.noarch", "lib-1.0-1.noarch"]
    assert found.merged() == {"lamp": "OutOfDate", "lib": "UpToDate", "battery": "Available"}


def test_obsoleting_package_is_an_update(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    assert program.collect().merged() == {"newlamp": "OutOfDate", "oldlamp": "UpToDate"}


def replaced(update: Any) -> List[str]:
    """What the engine reads of an update that replaces others: whether the class promises it, and the pkgtups."""
    return [one.pkgtup[0] for one in update.replaces] if hasattr(type(update), "replaces") else []


def test_obsoleting_package_tells_what_it_replaces(estate: Estate, rpms: Catalogue, program: Program) -> None:
    """Neither what only provides an obsolete name, nor a version that is new enough; but also what is excluded."""
    installed = [
        spec("candle", "1.0"),
        spec("torch", "1.0"),
        spec("lantern", "3.0"),
        spec("glim", "1.0", provides=("candle = 1.0",)),
        spec("wick", "1.0"),
    ]
    offered = [
        spec("led", "1.0", obsoletes=("candle", "torch < 2", "lantern < 3", "nothing")),
        spec("bulb", "1.0", obsoletes=("torch", "glim")),
        spec("wick", "2.0", obsoletes=("torch",)),
    ]
    estate.install(estate.build(installed))
    estate.repository("base", estate.build(offered))
    estate.write_main_config(excludepkgs="torch")
    found = program.collect()
    told = {update.name: sorted(replaced(update)) for update in found.updates}
    assert told == {"led": ["candle", "torch"], "bulb": ["glim", "torch"], "wick": []}


def vendors_estate(estate: Estate) -> None:
    def made(name: str, version: str, vendor: str, **more: Any) -> str:
        return spec(name, version, tags={"Vendor": vendor} if vendor else None, **more)

    kernel = ("installonlypkg(kernel)",)
    installed = [
        made("same", "1", "Works"),
        made("other", "1", "Works"),
        made("stated", "1", ""),
        made("unstated", "1", "Works"),
        made("neither", "1", ""),
        made("both", "1", "Works"),
        made("core", "1", "Works", provides=kernel),
        made("oldlamp", "1", "Works"),
        made("oldtorch", "1", "Works"),
        made("left", "1", "Works"),
        made("right", "1", "Yard"),
        made("wick", "1", "Works"),
        made("tinder", "1", "Yard"),
    ]
    offered = [
        made("same", "2", "Works"),
        made("other", "2", "Yard"),
        made("stated", "2", "Works"),
        made("unstated", "2", ""),
        made("neither", "2", ""),
        made("both", "2", "Works"),
        made("both", "3", "Yard"),
        made("core", "2", "Yard", provides=kernel),
        made("newlamp", "1", "Yard", obsoletes=("oldlamp",)),
        made("newtorch", "1", "Works", obsoletes=("oldtorch",)),
        made("whole", "1", "Works", obsoletes=("left", "right")),
        made("wick", "2", "Works", obsoletes=("tinder",)),
    ]
    estate.install(estate.build(installed))
    estate.repository("base", estate.build(offered))


ALL_VENDORS = ["both-3", "core-2", "neither-2", "newlamp-1", "newtorch-1", "other-2", "same-2", "stated-2", "unstated-2"]


@pytest.mark.parametrize(
    "allowed, updates",
    [("1", [*ALL_VENDORS, "whole-1", "wick-2"]), ("0", ["both-2", "neither-2", "newtorch-1", "same-2"])],
)
def test_update_of_a_vendor_that_the_solver_refuses_is_not_offered(
    estate: Estate, program: Program, allowed: str, updates: List[str]
) -> None:
    vendors_estate(estate)
    estate.write_main_config(allow_vendor_change=allowed)
    found = program.collect()
    assert sorted(names(found.updates)) == [f"{update}-1.noarch" for update in updates]
    merged = found.merged()
    if allowed == "0":
        assert (merged["other"], merged["core"], merged["newlamp"]) == ("UpToDate", "UpToDate", "Available")
    # The library itself updates the same, no more and no less.
    assert dnf_report(estate, upgrade=True)["resolved"] == sorted(names(found.updates))


def test_what_would_replace_an_excluded_package_alone_is_no_update(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    estate.write_main_config(excludepkgs="oldlamp")
    assert program.collect().merged() == {"newlamp": "Available", "oldlamp": "UpToDate"}


def test_obsoleting_package_is_no_update_when_the_configuration_says_so(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.write_main_config(obsoletes="0")
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    assert program.collect().merged() == {"newlamp": "Available", "oldlamp": "UpToDate"}


def test_native_architecture_comes_first(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install(rpms.some("twin-1.0", "twin-1.0.i686"))
    estate.repository("base", rpms.some("twin-2.0.i686"))
    estate.repository("extras", rpms.some("twin-1.5"))
    found = program.collect()
    assert names(found.updates) == ["twin-1.5-1.x86_64", "twin-2.0-1.i686"]
    assert names(found.available) == ["twin-1.5-1.x86_64", "twin-2.0-1.i686"]


def test_newest_of_several_installed_versions_comes_first(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    for key in ("core-1.0", "core-3.0", "core-2.0"):
        estate.rpm("--install", "--oldpackage", *install_options(), rpms[key])
    estate.repository("base", [])
    found = program.collect()
    assert names(found.installed) == ["core-3.0-1.noarch", "core-2.0-1.noarch", "core-1.0-1.noarch"]


def test_newest_comes_first_though_others_lie_between(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("panel-1.0", "twin-1.0"))
    estate.repository("extras", rpms.some("panel-2.0"))
    found = program.collect()
    assert [version for version in names(found.available) if version.startswith("panel")] == [
        "panel-2.0-1.noarch",
        "panel-1.0-1.x86_64",
    ]


def test_only_the_newest_update_of_several(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install(rpms.some("twin-1.0"))
    estate.repository("base", rpms.some("twin-1.0", "twin-1.5"))
    found = program.collect()
    assert names(found.updates) == names(found.available) == ["twin-1.5-1.x86_64"]


def test_excluded_package_is_not_offered_but_shown_as_installed(
    lamp: Tuple[Estate, Program], rpms: Catalogue
) -> None:
    estate, program = lamp
    estate.write_main_config(excludepkgs="lamp")
    found = program.collect()
    assert found.merged() == {"lamp": "UpToDate"}


@pytest.mark.parametrize("cheap", ("first", "second", "third"))
def test_package_of_several_repositories_is_taken_where_it_costs_least(
    lamp: Tuple[Estate, Program], rpms: Catalogue, cheap: str
) -> None:
    estate, program = lamp
    estate.install(rpms.some("oldlamp-1.0"))
    for id in ("first", "second", "third"):
        packages = rpms.some("lamp-1.1", "lib-1.0", "newlamp-1.0")
        estate.repository(id, packages, extra={"cost": "200" if id == cheap else "300"})
    found = program.collect()
    taken = [found.update("lamp"), found.update("newlamp"), found.offered("lib")]
    assert [package.repoid for package in taken] == [cheap] * 3


def test_disabled_repository_is_not_read(lamp: Tuple[Estate, Program], rpms: Catalogue) -> None:
    estate, program = lamp
    estate.repository("extras", rpms.some("battery-1.0"), enabled=False)
    assert "battery" not in program.collect().merged()


def test_switched_repositories_count_for_one_session(lamp: Tuple[Estate, Program], rpms: Catalogue) -> None:
    estate, program = lamp
    estate.repository("extras", rpms.some("battery-1.0"), enabled=False)
    yumio = program.start()
    assert {id: repo.enabled for id, repo in yumio.repos.repos.items()} == {"base": 1, "extras": 0}
    yumio.repos.enableRepo("extras")
    yumio.repos.disableRepo("base")
    yumio.setupRepos()
    assert names(list(yumio.collectAll().available)) == ["battery-1.0-1.noarch"]
    yumio.flush()
    assert program.collect().merged()["lamp"] == "OutOfDate"


def test_unknown_repository_cannot_be_switched(lamp: Tuple[Estate, Program]) -> None:
    yumio = lamp[1].start()
    for switch in (yumio.repos.enableRepo, yumio.repos.disableRepo):
        with pytest.raises(lamp[1].errors.RepoError, match="nowhere"):
            switch("nowhere")


def test_no_repository_enabled_is_no_failure(lamp: Tuple[Estate, Program]) -> None:
    yumio = lamp[1].start()
    yumio.repos.disableRepo("base")
    yumio.setupRepos()
    assert list(yumio.collectUpdates()) == []
    assert names(list(yumio.collectAll().installed)) == ["lamp-1.0-1.noarch"]


def test_empty_root_has_no_packages(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lamp-1.1"))
    assert program.collect().merged() == {"lamp": "Available"}


def test_main_file_and_repository_directory_of_either_place(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("battery-1.0"))
    (estate.root / "etc/yum").mkdir()
    (estate.root / "etc/yum.repos.d").rename(estate.root / "etc/yum/repos.d")
    (estate.root / "etc/yum.conf").write_text("[main]\ncachedir=/var/wrong\n")
    (estate.root / "etc/yum/yum.conf").write_text("[main]\ncachedir=/var/tmp/cache/$basearch\n")
    assert program.collect().merged() == {"battery": "Available"}
    assert list((estate.root / "var/tmp/cache/x86_64").glob("base-*"))
    assert not (estate.root / "var/wrong").exists()


def test_dnfs_own_main_file_counts_where_no_other_is(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    (estate.root / "etc/dnf").mkdir()
    main = (estate.root / "etc/yum.conf").rename(estate.root / "etc/dnf/dnf.conf")
    estate.repository("base", rpms.some("battery-1.0"))
    estate.repository("distro", rpms.some("lamp-1.1"))
    estate.repository("old", rpms.some("lib-1.0"))
    for name, folder in (("distro", "etc/distro.repos.d"), ("old", "etc/yum/repos.d")):
        (estate.root / folder).mkdir(parents=True)
        (estate.root / f"etc/yum.repos.d/{name}.repo").rename(estate.root / f"{folder}/{name}.repo")
    assert program.collect().merged() == {"battery": "Available", "lamp": "Available"}
    assert list((estate.root / CACHE).glob("base-*"))
    assert not (estate.root / "var/cache/yum").exists()
    program.end()

    (estate.root / "etc/yum.conf").symlink_to(os.path.relpath(main, estate.root / "etc"))
    assert program.collect().merged() == {"battery": "Available", "lib": "Available"}
    assert list((estate.root / "var/cache/yum").glob("base-*"))


def test_cache_lies_below_the_root_by_default(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    program.collect()
    assert list((estate.root / "var/cache/yum").glob("base-*"))


# dnf 5 writes none while it reads.
@pytest.mark.dnf4
def test_the_librarys_log_lies_below_the_root_by_default(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    program.collect()
    assert (estate.root / "var/log/hawkey.log").exists()


def test_variables_of_the_configuration(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    vars = estate.root / "etc/yum/vars"
    vars.mkdir(parents=True)
    (vars / "site").write_text("north\n")
    yumvar = program.start().conf.yumvar
    assert (yumvar["site"], yumvar["basearch"], yumvar["releasever"]) == ("north", "x86_64", "")


def test_update_of_a_later_collection_is_seen(lamp: Tuple[Estate, Program], rpms: Catalogue) -> None:
    estate, program = lamp
    assert program.collect().merged() == {"lamp": "OutOfDate"}
    estate.install(rpms.some("lamp-1.1"), ["--nodeps"])
    assert program.collect().merged() == {"lamp": "UpToDate"}


def test_suddenly_empty_database_is_an_error(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    program.collect()
    for file in (estate.root / "var/lib/rpm").iterdir():
        file.unlink()
    with pytest.raises(program.errors.YumBaseError, match="no packages, though it did before"):
        program.collect()


def test_database_file_without_contents_is_an_error(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    for file in (estate.root / "var/lib/rpm").iterdir():
        file.unlink()
    (estate.root / "var/lib/rpm/rpmdb.sqlite").touch()
    with pytest.raises(program.errors.YumBaseError, match="rpm database"):
        program.collect()


def test_damaged_database_is_an_error(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    database = estate.root / "var/lib/rpm/rpmdb.sqlite"
    for file in database.parent.glob("rpmdb.sqlite-*"):
        file.unlink()
    database.write_bytes(b"no database" * 1000)
    with pytest.raises(program.errors.YumBaseError):
        program.collect()


def test_list_that_a_damaged_database_cuts_short_is_an_error(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    long = spec("novel", description="".join(f"Chapter {number}. " for number in range(5000)))
    estate.install([*rpms.some("battery-1.0", "lone-1.0"), *estate.build([long])])
    estate.repository("base", rpms.some("lamp-1.1"))
    database = estate.root / "var/lib/rpm/rpmdb.sqlite"
    with contextlib.closing(sqlite3.connect(database)) as connection:
        connection.execute("PRAGMA wal_checkpoint=TRUNCATE")
    contents = bytearray(database.read_bytes())
    place = contents.index(b"Chapter 4000.")
    contents[place - 8192 : place + 8192] = bytes([0xAA]) * 16384
    database.write_bytes(contents)
    for file in database.parent.glob("rpmdb.sqlite-*"):
        file.unlink()
    with pytest.raises(program.errors.YumBaseError, match="no longer lists .*damaged"):
        program.collect()


def test_package_that_comes_in_meanwhile_is_no_damage(
    lamp: Tuple[Estate, Program], rpms: Catalogue
) -> None:
    estate, program = lamp
    yumio = program.start()
    yumio.setupRepos()
    estate.install(rpms.some("battery-1.0"))
    assert names(yumio.collectAll().installed) == ["lamp-1.0-1.noarch"]


def test_many_collections_leave_nothing_open(lamp: Tuple[Estate, Program]) -> None:
    program = lamp[1]

    def descriptors() -> int:
        return len(os.listdir("/proc/self/fd"))

    program.collect().yumio.collectOtherData()
    program.clear()
    before = descriptors()
    for _ in range(4):
        program.collect().yumio.collectOtherData()
    program.clear()
    assert descriptors() == before


def test_cleared_session_is_freed(lamp: Tuple[Estate, Program]) -> None:
    import weakref

    program = lamp[1]
    found = program.collect()
    base = weakref.ref(found.yumio._session.system._base)
    kind = type(base())
    del found
    program.clear()
    assert base() is None
    assert not [thing for thing in gc.get_objects() if type(thing) is kind]


def test_collector_works_again_after_a_collection(lamp: Tuple[Estate, Program]) -> None:
    lamp[1].collect()
    assert gc.isenabled()


def test_collector_works_again_after_a_failed_collection(estate: Estate, program: Program) -> None:
    estate.repository("base", [], baseurl="file:///nowhere/at/all")
    yumio = program.start()
    with pytest.raises(program.errors.RepoError):
        yumio.setupRepos()
    assert gc.isenabled()


@pytest.mark.parametrize("method, query", [("collectUpdates", "updates"), ("collectAll", "everything")])
def test_collector_works_again_after_a_failed_list(
    lamp: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch, method: str, query: str
) -> None:
    from vemyum.lists import Collector

    def fail(_: Collector) -> None:
        assert not gc.isenabled()
        raise program.errors.YumBaseError("it broke")

    program = lamp[1]
    yumio = program.start()
    yumio.setupRepos()
    yumio.setupTs()
    monkeypatch.setattr(Collector, query, fail)
    with pytest.raises(program.errors.YumBaseError, match="it broke"):
        getattr(yumio, method)()
    assert gc.isenabled()


def test_texts_beyond_ascii(estate: Estate, rpms: Catalogue, program: Program, host: FakeHost) -> None:
    estate.repository("base", rpms.some("moebel-1.0"))
    package = program.collect().offered("moebel")
    assert package.returnSimple("summary") == "Tische und St\u00fchle \u2014 \u6728"


# dnf 5 knows no deltas.
@pytest.mark.dnf4
def test_deltas_are_off_whatever_the_configuration_says(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    estate.write_main_config(deltarpm="1")
    assert not program.start()._session._settings.conf.deltarpm


def test_first_configuration_that_cannot_be_read_ends_the_program(
    estate: Estate, program: Program, host: FakeHost
) -> None:
    Path(estate.root / "etc/yum.conf").write_text("[main\nbroken")
    with pytest.raises(SystemExit):
        program.namespace["YumIO"]()
    check_misread(estate, host.text("errorlog"))


def check_misread(estate: Estate, report: str) -> None:
    """The fault is told once, and the path is the one that the configuration knows."""
    assert report.count("yum.conf") == 1 and report.count(MISREAD) == 1
    assert "/etc/yum.conf" in report and str(estate.root) not in report


def test_main_file_that_is_not_utf8_is_named_with_its_line(
    lamp: Tuple[Estate, Program], host: FakeHost
) -> None:
    estate, program = lamp
    with open(estate.root / "etc/yum.conf", "ab") as stream:
        stream.write("proxy_username=J\u00f6rg\n".encode("latin-1"))
    line = (estate.root / "etc/yum.conf").read_bytes().count(b"\n")
    with pytest.raises(SystemExit):
        program.namespace["YumIO"]()
    assert host.text("errorlog") == f"/etc/yum.conf, line {line}: the text is not in UTF-8"


def test_variable_that_is_not_utf8_is_named(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = lamp
    variables = estate.root / "etc/yum/vars"
    variables.mkdir(parents=True)
    (variables / "branch").write_text("north\n")
    (variables / "office").write_bytes("B\u00fcro\n".encode("latin-1"))
    try:
        yumio = program.namespace["YumIO"]()
    except SystemExit:
        assert "/etc/yum/vars/office, line 1: the text is not in UTF-8" in host.text("errorlog")
    else:
        # Later releases of dnf pass over the file, with a word of their own.
        assert "/etc/yum/vars/office" in host.text("warninglog")
        assert yumio.conf.yumvar["branch"] == "north" and "office" not in yumio.conf.yumvar


def test_later_configuration_that_cannot_be_read_is_told_by_the_repositories(
    lamp: Tuple[Estate, Program]
) -> None:
    estate, program = lamp
    program.collect()
    (estate.root / "etc/yum.conf").write_text("[main\nbroken")
    program.clear()
    yumio = program.start()
    assert [(repo.name, repo.enabled) for repo in yumio.repos.repos.values()] == [("/etc/yum.conf", 1)]
    with pytest.raises(program.errors.RepoError) as caught:
        yumio.setupRepos()
    check_misread(estate, str(caught.value))


def test_configuration_that_breaks_before_an_apply_is_told_once(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (estate.root / "etc/yum.conf").write_text("[main\nbroken")
    with pytest.raises(program.errors.YumBaseError) as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    check_misread(estate, str(caught.value))
    assert not host.named("userconfirm")


def test_broken_repository_file_is_passed_over_with_a_word(
    lamp: Tuple[Estate, Program], host: FakeHost
) -> None:
    estate, program = lamp
    (estate.root / "etc/yum.repos.d/bad.repo").write_text("[bad\nname=x")
    assert program.collect().merged() == {"lamp": "OutOfDate"}
    said = host.text("warninglog")
    assert "/etc/yum.repos.d/bad.repo" in said and f"{estate.root}/etc" not in said
