# SPDX-License-Identifier: GPL-2.0-or-later
"""Repository files: one that is at fault costs no other its place."""

from __future__ import annotations

import os
from typing import Any, Callable, Dict

from fake_host import FakeHost
from reading import loaded, opened, shown  # noqa: F401 - fixtures
from catalogue import Catalogue
from rpmestate import Estate


def write(estate: Estate, name: str, text: bytes) -> None:
    (estate.root / "etc/yum.repos.d" / name).write_bytes(text)


def states(system: Any) -> Dict[str, bool]:
    return {state.id: state.enabled for state in system.repositories()}


def test_files_and_sections_at_fault_are_told_and_the_others_count(
    estate: Estate, host: FakeHost, opened: Callable[..., Any]  # noqa: F811
) -> None:
    write(estate, "a.repo", b"# Ours\n[good]\n# and this\nbaseurl=file:///good\n")
    write(estate, "b.repo", b"[broken\n")
    write(estate, "c.repo", b"[two words]\nbaseurl=file:///x\n[off and on]\nenabled=0\n[good]\nname=Again\n")
    system = opened()
    assert states(system) == {"good": True}
    broken, words, again = system.lacking
    assert "b.repo" in broken and "Missing ']'" in broken
    assert "c.repo" in words and "two words" in words
    assert "c.repo" in again and '"good"' in again
    # What is switched off misses nothing.
    assert "off and on" in host.text("warninglog")
    assert system.sections["good"].options == {"baseurl": "file:///good"}


def test_name_is_the_id_where_none_is_stated(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    write(estate, "a.repo", b"[one]\nbaseurl=file:///one\n[two]\nname=Zwei\nbaseurl=file:///two\n")
    assert [state.name for state in opened().repositories()] == ["one", "Zwei"]


def test_file_that_is_not_utf8_is_read_as_latin1(
    estate: Estate, host: FakeHost, opened: Callable[..., Any]  # noqa: F811
) -> None:
    write(estate, "a.repo", "[one]\nname=B\u00fcro\nbaseurl=file:///x\n".encode("latin-1"))
    (state,) = opened().repositories()
    assert state.name == "B\u00fcro"
    assert "/etc/yum.repos.d/a.repo, line 2, is read as Latin-1" in host.text("warninglog")


def test_file_whose_name_is_not_utf8_is_read(
    estate: Estate, host: FakeHost, opened: Callable[..., Any]  # noqa: F811
) -> None:
    name = os.path.join(os.fsencode(estate.root), b"etc/yum.repos.d", "B\u00fcro.repo".encode("latin-1"))
    with open(name, "wb") as file:
        file.write(b"[one]\nbaseurl=file:///x\n")
    assert states(opened()) == {"one": True}
    assert "is read as Latin-1" in host.text("warninglog")


def test_broken_file_that_is_not_utf8_is_told_by_its_own_name(
    estate: Estate, opened: Callable[..., Any]  # noqa: F811
) -> None:
    write(estate, "a.repo", "[B\u00fcro\n".encode("latin-1"))
    (told,) = opened().lacking
    assert "/etc/yum.repos.d/a.repo" in told and "/proc/" not in told


def test_links_to_one_file_or_directory_are_one(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    write(estate, "a.repo", b"[one]\nbaseurl=file:///x\n")
    (estate.root / "etc/yum.repos.d/b.repo").symlink_to("a.repo")
    (estate.root / "etc/yum").mkdir()
    (estate.root / "etc/yum/repos.d").symlink_to("/etc/yum.repos.d")
    system = opened()
    assert states(system) == {"one": True} and system.lacking == []


def test_main_file_may_hold_repositories(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    with open(estate.root / "etc/yum.conf", "a") as file:
        file.write("[inside]\nbaseurl=file:///x\nenabled=0\n")
    assert states(opened()) == {"inside": False}


def test_overrides_of_the_command_line_hold(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    write(estate, "a.repo", b"[one]\nbaseurl=file:///x\n[two]\nbaseurl=file:///x\n")
    overrides = estate.root / "etc/dnf/repos.override.d"
    overrides.mkdir(parents=True)
    (overrides / "99-config_manager.repo").write_text("[tw*]\nenabled=0\n")
    system = opened()
    assert states(system) == {"one": True, "two": False}
    assert system.sections["two"].options["enabled"] == "0"


def test_sections_make_the_same_repositories_without_the_files(
    estate: Estate, rpms: Catalogue, loaded: Callable[..., Any], opened: Callable[..., Any]  # noqa: F811
) -> None:
    estate.repository("base", rpms.some("lamp-1.1"), extra={"priority": "7"})
    estate.repository("more", rpms.some("lib-1.0"))
    before = opened()
    before.enable("more", False)
    sections = list(before.sections.values())
    for file in (estate.root / "etc/yum.repos.d").iterdir():
        file.unlink()
    system = loaded(sections)
    assert states(system) == {"base": True, "more": False}
    assert system.base.repository("base").get_priority() == 7
    assert shown(system.available()) == ["lamp-1.1-1.noarch"]
