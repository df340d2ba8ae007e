# SPDX-License-Identifier: GPL-2.0-or-later
"""The list of packages and the rpm's description call the same things by the same names on Fedora."""
from __future__ import annotations

import re
from pathlib import Path
from typing import NamedTuple

import pytest

HOUSE = Path(__file__).resolve().parents[2]

# Of the list's parts that a build is made with, what the rpm's description doesn't build with.
BESIDE_THE_BUILD = {
    "ccache": "only makes it faster",
    "clang": "makes the fuzz targets",
    "compiler-rt": "makes the fuzz targets",
    "lld": "only makes it faster",
    "clang-tools-extra": "looks at the sources",
    "ShellCheck": "looks at the sources",
    "libasan": "a checked build",
    "libubsan": "a checked build",
    "libtsan": "a checked build",
    "qt6-qttranslations": "used by the program that runs",
    "poppler-utils": "the manuals' tests",
    "man-db": "the manuals' tests",
}
# Of what the installed program needs, what an uninstalled one doesn't, or what a package of the list brings with it.
NOT_LISTED = {
    "hicolor-icon-theme": "the installed icon's folder",
    "polkit": "asked by the installed launcher",
    "python3": "python3-devel brings it",
    "qt6-qtbase-gui": "qt6-qtbase-devel brings it",
    "qt6-qtwayland": "builds and tests draw on X",
    "rpm": "rpm-build brings it",
    "xdg-utils": "opens the web browser of the desktop",
}


class Line(NamedTuple):
    part: str
    debian: str
    fedora: str
    enterprise: str
    repository: str


def lines() -> list[Line]:
    """The list, read without tools/packages.sh. Parts begin with a comment that follows an empty line."""
    found = []
    part = before = ""
    for text in (HOUSE / "packages.list").read_text(encoding="utf-8").splitlines():
        if text.startswith("# ") and not before:
            part = text[2:]
        elif text and not text.startswith("#"):
            words = text.split()
            assert 3 <= len(words) <= 4, text
            found.append(Line(part, *(words + [""])[:4]))
        before = text
    return found


def spec_names(tag: str) -> set[str]:
    text = (HOUSE / "packaging/vem.spec").read_text(encoding="utf-8")
    values = re.findall(rf"^{tag}: +(.+)", text, re.MULTILINE)
    # A value may be one name, or several in brackets, each with a version or without.
    return {name for value in values for name in re.findall(r"[A-Za-z][^\s()]*", value)} - {"or"}


FEDORA = {line.fedora for line in lines()} - {"-"}


def test_every_line_names_something_and_where_it_is() -> None:
    for line in lines():
        assert line.repository in {"", "crb", "epel"}, line
        assert (line.debian, line.fedora) != ("-", "-"), line
        assert line.fedora != "-" or line.enterprise == "-", line
        assert line.enterprise != line.fedora or line.fedora == "-", f"{line}: say ="


def test_the_list_has_all_that_the_rpm_is_built_with() -> None:
    assert spec_names("BuildRequires") - FEDORA == set()


@pytest.mark.parametrize("part", ["compiler and build", "toolkit and interpreter", "manuals"])
def test_the_rpm_is_built_with_what_the_list_has_for_building(part: str) -> None:
    listed = {line.fedora for line in lines() if line.part.startswith(part)}
    assert len(listed) > 3
    assert listed - spec_names("BuildRequires") - set(BESIDE_THE_BUILD) == set()


def test_the_list_has_what_the_program_needs() -> None:
    needed = spec_names("Requires") | spec_names("Recommends")
    assert needed - FEDORA == set(NOT_LISTED)


def test_no_exception_is_out_of_date() -> None:
    assert set(BESIDE_THE_BUILD) <= FEDORA - spec_names("BuildRequires")


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
