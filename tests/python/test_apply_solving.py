# SPDX-License-Identifier: GPL-2.0-or-later
"""What an apply does beyond the marks: as much as the command line would, told before and kept in the history."""

from __future__ import annotations

import contextlib
import os
import shutil
import sqlite3
from pathlib import Path
from typing import Dict, List, Optional

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import BACKEND, HISTORY, by_library
from program import Collection, Program
from rpmestate import Estate, install_options, run, spec
from vemyum import choice

# Removals alone -----------------------------------------------------------------------------------------


def test_removal_takes_along_what_needs_it_and_brings_nothing_in_instead(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lib-2.0", "tool-2.0", "battery-1.0"))
    estate.repository("base", rpms.some("lib-1.0", "tool-1.0"))
    found = program.collect()
    found.yumio.apply([], [], [found.there("lib")])
    assert estate.installed() == {"battery-1.0-1.noarch"}


def test_dependency_of_an_excluded_package_goes_along_with_it(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lib-1.0", "app-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    estate.write_main_config(excludepkgs="app")
    found = program.collect()
    found.yumio.apply([], [], [found.there("app")])
    assert estate.installed() == set()


@pytest.mark.parametrize("option, names", [("excludepkgs", "app"), ("includepkgs", "lib lone")])
def test_dependency_of_an_excluded_package_goes_along_where_something_comes_in(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, option: str, names: str
) -> None:
    estate.repository("base", rpms.some("lib-1.0", "app-1.0", "lone-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    estate.write_main_config(**{option: names})
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [found.there("app")])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_excluded_package_that_nothing_needs_any_more_stays(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lib-1.0", "app-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    estate.write_main_config(excludepkgs="lib")
    found = program.collect()
    found.yumio.apply([], [], [found.there("app")])
    assert estate.installed() == {"lib-1.0-1.noarch"}


def test_excluded_package_is_not_taken_along(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lib-1.0", "app-1.0"))
    estate.write_main_config(excludepkgs="app")
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="app-1.0-1.noarch.* requires lib"):
        found.yumio.apply([], [], [found.there("lib")])
    assert len(estate.installed()) == 2


def test_removal_of_one_of_several_versions_side_by_side_takes_along_what_needs_it(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    (old,) = estate.build(spec("peg", "1.0", requires=["core = 1.0"]))
    (new,) = estate.build(spec("peg", "2.0"))
    estate.rpm("-i", *install_options(), *rpms.some("core-1.0", "core-2.0"), old)
    estate.repository("base", [new])
    found = program.collect()
    (first,) = [package for package in found.installed if str(package.po).startswith("core-1.0")]
    found.yumio.apply([], [], [first])
    assert estate.installed() == {"core-2.0-1.noarch"}


def test_one_of_several_versions_side_by_side_is_as_protected_as_all(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.rpm("-i", *install_options(), *rpms.some("core-1.0", "core-2.0"))
    estate.write_main_config(protected_packages="core")
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    (first,) = [package for package in found.installed if str(package.po).startswith("core-1.0")]
    with pytest.raises(program.errors.YumBaseError, match="protected packages: core"):
        found.yumio.apply([], [], [first])


def test_removal_needs_no_repository(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0"))
    directory = estate.repository("base", rpms.some("lib-1.0"))
    found = program.collect()
    shutil.rmtree(directory)
    for cached in (estate.root / "var/cache/yum").glob("base*"):
        shutil.rmtree(cached) if cached.is_dir() else cached.unlink()
    found.yumio.apply([], [], [found.there("lone")])
    assert estate.installed() == set()


@pytest.mark.parametrize(("option", "stays"), [(None, False), ("0", True)])
def test_dependency_that_nothing_needs_any_more_goes_as_the_configuration_says(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, option: Optional[str], stays: bool
) -> None:
    estate.write_main_config(clean_requirements_on_remove=option)
    estate.repository("base", rpms.some("lib-1.0", "app-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    assert len(estate.installed()) == 2
    listed: List[str] = []
    host.on_list = lambda apply: listed.extend(member.name for member in apply.tsInfo.depremoved)
    found = program.collect()
    found.yumio.apply([], [], [found.there("app")])
    assert estate.installed() == ({"lib-1.0-1.noarch"} if stays else set())
    assert listed == ([] if stays else ["lib"])


# Removals beside other marks ------------------------------------------------------------------------------


def test_removal_lets_an_install_push_nothing_else_out(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lone-1.0", "battery-1.0"))
    estate.repository("base", rpms.some("rival-1.0"))
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="rival.* conflicts with lone|conflicts with lone provided by rival"):
        found.yumio.apply([found.offered("rival")], [], [found.there("battery")])
    assert estate.installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_removal_beside_an_install_takes_along_what_needs_it(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("lib-1.0", "app-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("battery-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [found.there("lib")])
    assert estate.installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_what_conflicts_with_a_new_package_may_go_where_it_needs_what_is_removed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    """And something third is still kept: both solutions are looked at."""
    first, second, other = estate.build(
        [
            spec("first", requires=["lib"]),
            spec("second", conflicts=["first"]),
            spec("third", requires=["battery", "lib"]),
        ]
    )
    estate.install([*rpms.some("lib-1.0", "battery-1.0"), first, other])
    estate.repository("base", [second])
    found = program.collect()
    found.yumio.apply([found.offered("second")], [], [found.there("lib")])
    assert estate.installed() == {"battery-1.0-1.noarch", "second-1.0-1.noarch"}


# The repositories of the collection -----------------------------------------------------------------------


def test_repository_that_appears_behind_the_collection_has_no_part(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0"))
    found = program.collect()
    estate.repository("later", rpms.some("lib-2.0"))
    estate.write_repo_file("broken", baseurl="file:///nowhere")
    found.yumio.apply([found.offered("app")], [], [])
    assert estate.installed() == {"app-1.0-1.noarch", "lib-1.0-1.noarch"}


def test_repository_file_that_changes_or_goes_behind_the_collection_has_no_effect(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("app-1.0"))
    estate.repository("more", rpms.some("lib-1.0"))
    found = program.collect()
    estate.write_repo_file("base", baseurl="file:///nowhere", enabled=False)
    (estate.root / "etc/yum.repos.d/more.repo").unlink()
    found.yumio.apply([found.offered("app")], [], [])
    assert estate.installed() == {"app-1.0-1.noarch", "lib-1.0-1.noarch"}


def test_second_section_of_an_id_counts_neither_in_the_table_nor_in_the_apply(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    with open(estate.root / "etc/yum.repos.d/later.repo", "w", encoding="utf-8") as repos:
        repos.write("[base]\nname=another base\nbaseurl=file:///nowhere\ngpgcheck=0\n")
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_repository_that_is_switched_for_this_session_alone_is_so_for_the_apply(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-2.0"))
    estate.repository("off", rpms.some("lib-1.0"), enabled=False, extra={"priority": "1"})
    program.start().repos.enableRepo("off")
    program.yumio.setupRepos()
    found = Collection(program.yumio)
    found.yumio.apply([found.offered("app")], [], [])
    assert estate.installed() == {"app-1.0-1.noarch", "lib-1.0-1.noarch"}


# The whole transaction is told ----------------------------------------------------------------------------


def told(host: FakeHost) -> Dict[str, List[str]]:
    """What the confirmation is made of, by its lists, once the apply is over."""
    lists: Dict[str, List[str]] = {}

    def read(apply: object) -> None:
        info = apply.tsInfo  # type: ignore[attr-defined]
        for name, members in vars(info).items():
            if members:
                lists[name] = [
                    one if isinstance(one, str) else f"{one.name}-{one.pkgtup[3]}.{one.pkgtup[1]}" for one in members
                ]

    host.on_list = read
    return lists


def test_twins_that_give_way_to_one_package_for_all_are_both_told(
    estate: Estate, program: Program, host: FakeHost
) -> None:
    (native,) = estate.build(spec("pair", "1.0", arch=None), arch="x86_64")
    (foreign,) = estate.build(spec("pair", "1.0", arch=None), arch="i686")
    (both,) = estate.build(spec("pair", "2.0"))
    estate.install([native, foreign])
    estate.repository("base", [both])
    found = program.collect()
    lists = told(host)
    found.yumio.apply([], [found.pair("pair")], [])
    assert lists == {"updated": ["pair-2.0.noarch"], "depremoved": ["pair-1.0.i686"]}
    assert not any("marked as erase" in line for line in host.tsinfo())
    assert estate.installed() == {"pair-2.0-1.noarch"}


MODULES = """\
---
document: modulemd
version: 2
data:
  name: lamp
  stream: "{stream}"
  version: 1
  context: c0ffee
  arch: x86_64
  summary: Light
  description: Light
  license: {{module: [MIT]}}
  artifacts: {{rpms: [{artifact}]}}
...
"""


def test_module_stream_that_an_install_enables_is_told(
    estate: Estate, program: Program, host: FakeHost
) -> None:
    """dnf 5 enables one only when that is asked for."""
    (bulb,) = estate.build(
        "%define modularitylabel lamp:5:1:c0ffee\n" + spec("bulb", tags={"ModularityLabel": "lamp:5:1:c0ffee"})
    )
    directory = estate.repository("base", [bulb])
    modules = directory / "modules.yaml"
    defaults = "---\ndocument: modulemd-defaults\nversion: 1\ndata: {module: lamp, stream: \"5\"}\n...\n"
    modules.write_text(MODULES.format(stream="5", artifact="bulb-0:1.0-1.noarch") + defaults)
    run(["modifyrepo_c", "--mdtype=modules", modules, directory / "repodata"])
    found = program.collect()
    lists = told(host)
    found.yumio.apply([found.offered("bulb")], [], [])
    enabled = estate.root / by_library("etc/dnf/modules.d/lamp.module", "usr/lib/sysimage/libdnf5/modules.toml")
    if BACKEND == choice.DNF4:
        assert lists == {"installed": ["bulb-1.0.noarch"], "enabledStreams": ["lamp:5"]}
        assert "stream=5" in enabled.read_text()
    else:
        assert lists == {"installed": ["bulb-1.0.noarch"]}
        assert "lamp" not in enabled.read_text()


# The history ----------------------------------------------------------------------------------------------


def test_history_tells_who_did_it_with_which_command_and_what_was_marked(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum import processes

    monkeypatch.setattr(processes, "command_line", lambda pid: "vem --enablerepo=extra")
    estate.install(rpms.some("lib-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "battery-1.0", "clock-1.0"))
    estate.write_main_config(comment="by hand")
    found = program.collect()
    found.yumio.apply(
        [found.offered("battery"), found.offered("clock")], [found.pair("lib")], [found.there("lone")]
    )
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as history:
        columns = f"{by_library('cmdline', 'description')}, comment, user_id"
        ((command, comment, user),) = history.execute(f"select {columns} from trans")
    assert command == "vem --enablerepo=extra"
    marks = "install battery-1.0-1.noarch, clock-3:1.0-1.noarch; upgrade lib-2.0-1.noarch; remove lone-1.0-1.noarch"
    assert comment == f"by hand; {marks}"
    # SQLite's numbers have a sign.
    logged_in = int(Path("/proc/self/loginuid").read_text())
    if BACKEND == choice.DNF5 and logged_in == 0xFFFFFFFF:
        # It then takes the process's.
        logged_in = os.getuid()
    assert user & 0xFFFFFFFF == logged_in
