# SPDX-License-Identifier: GPL-2.0-or-later
"""Rows: the library's objects with attributes, which hold the Base that they are of."""

from __future__ import annotations

import gc
import subprocess
import weakref
from typing import Any, Callable, List

import pytest
from catalogue import Catalogue
from reading import loaded, opened, shown  # noqa: F401 - fixtures
from rpmestate import Estate, spec


def by_name(rows: List[Any], name: str) -> Any:
    (row,) = [row for row in rows if row.name == name]
    return row


def listed(estate: Estate, *options: str) -> List[str]:
    """What the command line lists, as name.arch and version."""
    command = [
        "dnf5",
        f"--installroot={estate.root}",
        f"--config={estate.root}/etc/yum.conf",
        f"--setopt=reposdir={estate.root}/etc/yum.repos.d",
        f"--setopt=cachedir={estate.root}/tmp/cache",
        f"--setopt=system_cachedir={estate.root}/tmp/cache",
        "--setopt=plugins=0",
        "--quiet",
        "list",
        *options,
    ]
    done = subprocess.run(command, capture_output=True, text=True)
    return sorted(" ".join(line.split()[:2]) for line in done.stdout.splitlines() if len(line.split()) == 3)


def as_listed(rows: List[Any]) -> List[str]:
    return sorted(f"{row.name}.{row.arch} {row.evr}" for row in rows)


def test_row_tells_what_the_metadata_says(estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]) -> None:  # noqa: F811
    estate.install(rpms.some("clock-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    system = loaded()
    (lamp,), (clock,) = system.available(), system.installed()
    assert (lamp.name, lamp.arch, lamp.epoch, lamp.version, lamp.release) == ("lamp", "noarch", 0, "1.1", "1")
    assert (lamp.evr, lamp.reponame, lamp.location) == ("1.1-1", "base", "lamp-1.1-1.noarch.rpm")
    assert lamp.size == rpms["lamp-1.1"].stat().st_size and lamp.buildtime > 0
    assert (lamp.vendor, lamp.packager) == ("Estate Works", "Ada Nilsson")
    assert (lamp.summary, lamp.group) == ("The lamp package", "Applications/Light")
    assert (clock.epoch, clock.evr, clock.reponame) == (3, "3:1.0-1", "@System")
    assert (clock.vendor, clock.url, clock.packager, clock.location) == (None, None, None, None)
    assert str(lamp) == "lamp-1.1-1.noarch" and str(clock) == "clock-3:1.0-1.noarch"
    assert system.header(clock)["name"] == "clock"
    assert system.dependencies(lamp, "requires") and set(system.dependencies(lamp, "requires")) == {
        ("current", "GE", ("1", "2.0", None)),
        ("(socket or battery)", None, (None, None, None)),
        ("wire", None, (None, None, None)),
    }
    assert len(system.checksum(lamp)) == 64
    assert system.local_path(lamp) == str(estate.repos_dir / "base/lamp-1.1-1.noarch.rpm")


def test_row_is_no_larger_than_it_must_be(estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]) -> None:  # noqa: F811
    estate.install(rpms.some("clock-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    system = loaded()
    for row in (*system.available(), *system.installed()):
        assert not hasattr(row, "__dict__")


def test_dependencies_are_those_that_the_library_itself_goes_through(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    estate.repository("base", rpms.some("lamp-1.1"))
    from vemyum.packages import dependency

    system = loaded()
    (lamp,) = system.available()
    for kind in ("provides", "requires", "conflicts", "obsoletes"):
        found = [
            dependency(str(reldep), reldep.get_name(), reldep.get_relation(), reldep.get_version())
            for reldep in getattr(lamp, f"get_{kind}")()
        ]
        assert system.dependencies(lamp, kind) == found


def test_texts_are_valid_whatever_the_bytes(estate: Estate, loaded: Callable[..., Any]) -> None:  # noqa: F811
    source = estate.directory / "odd.spec"
    text = spec("odd", tags={"Vendor": "M\u00f6bel", "Packager": "M\u00f6bel"})
    source.write_bytes(text.encode("latin-1"))
    estate.install(estate.build([source], defines={"_invalid_encoding_terminates_build": "0"}))
    (odd,) = loaded().installed()
    assert (odd.vendor, odd.packager) == ("M\ufffdbel", "M\ufffdbel")


def test_rows_of_one_package_are_equal(estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]) -> None:  # noqa: F811
    estate.repository("base", rpms.some("lamp-1.1", "lib-1.0"))
    system = loaded()
    first, again = list(system.available()), list(system.available())
    assert first == again and set(first) == set(again) and first[0] != first[1]


def test_row_on_offer_holds_nothing_of_the_library_once_the_next_is_read(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    from vemyum.backend import PLAIN
    from vemyum.dnf5.rows import Row

    made = estate.build([spec(f"part{number:02}", "1") for number in range(70)])
    estate.repository("base", [*made, *rpms.some("lamp-1.1")])
    offered = loaded().available()
    assert len(offered) == 71
    held = Row.this
    told, rows = [], []
    for row in offered:
        assert held.__get__(row)
        told.append(str(row))
        rows.append(row)
    for row in rows:
        with pytest.raises(AttributeError):
            held.__get__(row)
    # In whatever order they are read later.
    assert [str(row) for row in reversed(rows)] == told[::-1]
    assert len(set(told)) == 71 and [str(row) for row in offered] == told
    # Nor does it before, where it comes with its values.
    pairs = list(offered.with_plain())
    for row, _plain in pairs:
        with pytest.raises(AttributeError):
            held.__get__(row)
    assert [str(row) for row, _plain in pairs] == told
    assert all(plain == tuple(getattr(row, name) for name in PLAIN) for row, plain in pairs)


def test_row_outlives_its_system_and_takes_the_base_along_at_last(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    estate.install(rpms.some("lib-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    system = loaded()
    rows = [*system.available(), *system.installed()]
    held = weakref.ref(system.base)
    system.close()
    system.close()
    del system
    gc.collect()
    assert [(row.name, row.summary) for row in rows] == [("lamp", "The lamp package"), ("lib", "The lib package")]
    # No garbage collector is needed for it.
    gc.disable()
    try:
        del rows
        assert held() is None
    finally:
        gc.enable()


@pytest.fixture
def mixed(estate: Estate, rpms: Catalogue) -> Estate:
    estate.install(rpms.some("lamp-1.0", "lib-1.0", "oldlamp-1.0", "twin-1.0"))
    estate.repository("base", rpms.some("lamp-1.1", "lib-2.0", "newlamp-1.0", "twin-1.5", "twin-2.0.i686", "app-1.0"))
    estate.repository("better", rpms.some("lib-1.0", "tool-1.0", "tool-2.0"), extra={"priority": "10"})
    return estate


@pytest.mark.parametrize("options", [{}, {"excludepkgs": "lamp tool"}, {"includepkgs": "tool lib"}])
def test_lists_are_those_of_the_command_line(mixed: Estate, loaded: Callable[..., Any], options: Any) -> None:  # noqa: F811
    mixed.write_main_config(**options)
    system = loaded()
    assert as_listed(system.available()) == listed(mixed, "--available")
    assert as_listed(system.upgrades()) == listed(mixed, "--upgrades")
    # Whatever is excluded.
    assert [row.name for row in sorted(system.installed())] == ["lamp", "lib", "oldlamp", "twin"]


def test_replacing_tells_whom(mixed: Estate, loaded: Callable[..., Any]) -> None:  # noqa: F811
    ((new, old),) = loaded().replacing(set())
    assert (str(new), shown(old)) == ("newlamp-1.0-1.noarch", ["oldlamp-1.0-1.noarch"])
    assert loaded().replacing({"newlamp"}) == []
    mixed.write_main_config(obsoletes="0")
    assert loaded().replacing(set()) == []


def test_excluded_installed_package_is_not_replaced(mixed: Estate, loaded: Callable[..., Any]) -> None:  # noqa: F811
    mixed.write_main_config(excludepkgs="oldlamp")
    assert loaded().replacing(set()) == []


def test_update_of_another_vendor_is_none_where_vendors_may_not_change(
    estate: Estate, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    old, ours, theirs = estate.build(
        [spec("desk", version, tags={"Vendor": vendor}) for version, vendor in (("1", "us"), ("2", "us"), ("3", "them"))]
    )
    (wish,) = estate.build([spec("chair", "1", tags={"Vendor": "them"}, obsoletes=("desk < 2",))])
    estate.install([old])
    estate.repository("base", [ours, theirs, wish])
    assert shown(loaded().upgrades()) == ["desk-3-1.noarch"]
    assert len(loaded().replacing(set())) == 1
    estate.write_main_config(allow_vendor_change="0")
    assert shown(loaded().upgrades()) == ["desk-2-1.noarch"]
    assert loaded().replacing(set()) == []


def test_duplicated_leaves_out_what_may_be_there_several_times(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    for name in ("tool-1.0", "tool-2.0", "lib-2.0", "lib-1.0", "core-1.0", "core-2.0"):
        estate.rpm("--install", "--justdb", "--nodeps", "--force", rpms[name])
    # Whichever came in first.
    assert sorted(list(map(str, found)) for found in loaded().duplicated()) == [
        ["lib-1.0-1.noarch", "lib-2.0-1.noarch"],
        ["tool-1.0-1.noarch", "tool-2.0-1.noarch"],
    ]


def test_installed_package_that_is_gone_has_no_header(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    estate.install(rpms.some("lib-1.0"))
    system = loaded()
    (lib,) = system.installed()
    estate.rpm("--erase", "lib")
    with pytest.raises(FileNotFoundError):
        system.header(lib)
