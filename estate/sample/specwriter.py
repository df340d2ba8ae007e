# SPDX-License-Identifier: GPL-2.0-or-later
"""Turns a catalogue entry into a spec file and the tree of files that it packs.

Everything is derived from the entry's own words, so that two runs give the same packages.
"""

from __future__ import annotations

import datetime
import random
import textwrap
import zlib
from dataclasses import dataclass
from pathlib import Path
from typing import Optional, Union

from catalogue import Part, Source

VENDOR = "Fenmark Drainage Board"
SITE = "https://fenmark.example/packages"
FIRST_BUILD_DAY = datetime.date(2025, 1, 13)
FIRST_UPDATE_DAY = datetime.date(2025, 5, 5)

LICENSE_TEXT = (
    "You may use, copy, change and pass on this work under the terms of the license that its package names.\n"
    "It comes without any warranty, and no dyke was ever held by a disclaimer.\n"
)

OLD_CHANGES = (
    "Rebuild for the spring release",
    "Rebuild with the present compiler",
    "Correct two place names in the messages: Süderkoog, Østersluse",
    "Take the path of the day plan from the configuration",
    "Don't start before the clock is set",
    "Close files when a line breaks",
    "Say which station is meant in the alarm text",
    "Halve the memory that long series need",
    "Write readings before confirming them",
    "Repair the build on machines with one processor",
    "Accept a comma as the decimal mark",
    "Drop the format of the old relay station, which was dismantled",
    "Explain the error when the disk is full",
    "Update translations (Żuławy, Ísafjörður and Groningen spelled right)",
    "Shorten the start by reading tables when they are first needed",
    "Honour the quiet hours of the roster",
    "Add the sections that came to the board with Westeroog",
    "Don't round levels before they are compared",
    "Remove a message that nobody has ever understood",
    "Test with the readings of the great flood",
    "Keep file dates when converting",
    "Wait for the field bus for ten seconds instead of one",
    "Make the manual page say what the program does",
    "Stop counting an ice-bound float as slack water",
)


@dataclass(frozen=True)
class Build:
    """One build of a source package: which version, and what its newest changelog line says."""

    source: Source
    version: str
    release: str
    epoch: Optional[int]
    change: str
    repository: str
    is_update: bool


def builds(source: Source) -> list[Build]:
    """The build that belongs to the release, then the updates in their order."""
    first = Build(
        source, source.version, str(source.release), source.epoch, "", source.repository, is_update=False
    )
    result = [first]
    for update in source.updates:
        epoch_text, _, rest = update.evr.rpartition(":")
        version, _, release = rest.partition("-")
        epoch = int(epoch_text) if epoch_text else None
        newer = Build(source, version, release, epoch, update.change, update.repository, is_update=True)
        result.append(newer)
    return result


class Quarry:
    """The stuff that files are cut from: lines of gauge readings, and bytes that don't compress."""

    SIZE = 10 << 20

    def __init__(self) -> None:
        chance = random.Random("quarry")
        level = 412
        lines = []
        for minute in range(1 << 17):
            level += chance.choice((-2, -1, -1, 0, 1, 1, 2))
            day, rest = divmod(minute, 1440)
            lines.append(f"{day:03d} {rest // 60:02d}:{rest % 60:02d} {level:5d} {chance.random():.6f}\n")
        text = "".join(lines).encode("ascii")
        self.readings = (text * (self.SIZE // len(text) + 1))[: self.SIZE]
        self.noise = chance.randbytes(self.SIZE)

    def cut(self, name: str, size: int, *, binary: bool) -> bytes:
        """`size` bytes that differ from name to name; binary ones compress to about a half."""
        start = zlib.crc32(name.encode()) % (self.SIZE // 2)
        if not binary:
            return self.readings[start : start + size]
        half = size // 2
        block = b"\x7fBLOCK\0\0" + self.noise[start : start + half]
        return block + self.readings[start : start + size - half]


def write_tree(build: Build, part: Part, quarry: Quarry, tree: Path, library_directory: str) -> list[str]:
    """Writes the part's files below `tree` and gives its lines for the %files section."""
    listing: list[str] = []

    def put(path: str, content: Union[bytes, str], mode: int = 0o644, mark: str = "") -> None:
        target = tree / path.lstrip("/")
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content.encode("utf-8") if isinstance(content, str) else content)
        target.chmod(mode)
        listing.append(mark + path)

    def fill(path: str, kb: int, *, binary: bool, mode: int = 0o644) -> None:
        put(path, quarry.cut(path + build.version, max(kb, 1) * 1024, binary=binary), mode)

    name, kb = part.name, part.kb
    share = f"/usr/share/{name}"
    for path, text in part.files.items():
        put(path, text.replace("@VERSION@", build.version))
    if part.kind == "suite":
        return listing
    paragraphs = f"{name} {build.version}\n\n{_filled(part.text)}\n"
    put(f"/usr/share/doc/{name}/README", paragraphs, mark="%doc ")
    put(f"/usr/share/licenses/{name}/LICENSE", LICENSE_TEXT, mark="%license ")
    if part.kind in ("tool", "daemon"):
        program = f"#!/bin/sh\nexec cat /usr/share/doc/{name}/README\n"
        put(f"/usr/bin/{name}", program, 0o755)
        fill(f"/usr/libexec/{name}/{name}", kb * 2 // 3, binary=True, mode=0o755)
        fill(f"{share}/{name}.table", kb // 3, binary=False)
        manual = f".TH {name} 1\n.SH NAME\n{name} \\- {part.summary}\n.SH DESCRIPTION\n{_filled(part.text)}\n"
        put(f"/usr/share/man/man1/{name}.1", manual, mark="%doc ")
    if part.kind in ("daemon", "config"):
        setting = f"# {part.summary}\n# Everything is at its default until a line says otherwise.\n"
        put(f"/etc/{name}.conf", setting, mark="%config(noreplace) ")
    if part.kind == "lib":
        fill(f"{library_directory}/{name}.so.{build.version}", kb, binary=True, mode=0o755)
    if part.kind == "devel":
        include = f"/usr/include/{name.removesuffix('-devel')}"
        for header in ("types", "open", "series", "errors"):
            fill(f"{include}/{header}.h", kb // 4, binary=False)
    if part.kind in ("data", "lang"):
        pieces = min(12, 2 + kb // 500)
        for number in range(1, pieces + 1):
            fill(f"{share}/{number:02d}.sheet", kb // pieces, binary=part.kind == "data")
    if part.kind == "doc":
        pieces = min(24, 4 + kb // 300)
        for number in range(1, pieces + 1):
            fill(f"/usr/share/doc/{name}/chapter-{number:02d}.txt", kb // pieces, binary=False)
    return listing


def spec_text(build: Build, quarry: Quarry, tree: Path, i686: bool = False) -> str:
    """The spec file of a build, whose files are written below `tree` on the way.

    With `i686` only the libraries are packed, in the directory that 32-bit libraries have.
    """
    source = build.source
    parts = [part for part in source.parts if not i686 or part.kind == "lib"]
    # A part with the source's own name is the main package; without one, rpmbuild makes no main package.
    main = next((part for part in parts if part.name == source.name), None)
    lines = [
        f"Name: {source.name}",
        f"Version: {build.version}",
        f"Release: {build.release}",
        f"License: {source.license}",
        f"URL: {SITE}/{source.name}",
        f"Vendor: {VENDOR}",
        f"Packager: {source.packager}",
    ]
    if build.epoch is not None:
        lines.append(f"Epoch: {build.epoch}")
    if source.arch == "noarch":
        lines.append("BuildArch: noarch")
    lines += _preamble(source, main or parts[0], i686)
    lines += ["%description", _description(source, main or parts[0])]
    lines += ["%install", f'mkdir -p "{tree}" && cp -a "{tree}/." %{{buildroot}}']
    for part in parts:
        option = ""
        if part is not main:
            option = f" -n {part.name}"
            lines += [f"%package{option}", *_preamble(source, part, i686)]
            if part.arch == "noarch" and source.arch != "noarch":
                lines.append("BuildArch: noarch")
            lines += [f"%description{option}", _description(source, part)]
        for heading, body in part.scriptlets.items():
            section, _, interpreter = heading.partition(" ")
            lines += [f"%{section}{option} {interpreter}".rstrip(), body]
        files = write_tree(build, part, quarry, tree, "/usr/lib" if i686 else "/usr/lib64")
        lines += [f"%files{option}", *files]
    lines += ["%changelog", _changelog(build)]
    return "\n".join(lines) + "\n"


def _preamble(source: Source, part: Part, i686: bool) -> list[str]:
    provides = [one for one in part.provides if not (i686 and "64bit" in one)]
    return [
        f"Summary: {part.summary}",
        f"Group: {part.group or source.group}",
        "AutoReqProv: no",
        *(f"Requires: {one}" for one in part.requires),
        *(f"Provides: {one}" for one in provides),
        *(f"Conflicts: {one}" for one in part.conflicts),
    ]


def _filled(text: str, width: int = 78) -> str:
    return "\n\n".join(textwrap.fill(paragraph, width) for paragraph in text.split("\n\n"))


def _description(source: Source, part: Part) -> str:
    paragraphs = [part.text, source.family] if source.family else [part.text]
    return _filled("\n\n".join(paragraphs))


def _changelog(build: Build) -> str:
    """Entries from the newest to the oldest, a week to four months apart."""
    source = build.source
    chance = random.Random(source.name)
    entries: list[str] = []
    day = FIRST_BUILD_DAY + datetime.timedelta(days=chance.randrange(60))
    version = [int(number) if number.isdigit() else 0 for number in source.version.split(".")]
    release = source.release

    def entry(date: datetime.date, evr: str, changes: list[str]) -> str:
        body = "\n".join(f"- {change}" for change in changes)
        # The package's build time is taken from here: a minute of a working day.
        date -= datetime.timedelta(days=max(0, date.weekday() - 4))
        time = f"{chance.randint(7, 17):02d}:{chance.randrange(60):02d}:{chance.randrange(60):02d}"
        return f"* {date.strftime('%a %b %d')} {time} UTC {date.year} {source.packager} - {evr}\n{body}\n"

    for _ in range(chance.randint(3, 14) + (18 if len(source.parts) > 2 else 0)):
        evr = ".".join(str(number) for number in version) + f"-{release}"
        entries.append(entry(day, evr, chance.sample(OLD_CHANGES, chance.choice((1, 1, 2, 3)))))
        day -= datetime.timedelta(days=chance.randint(7, 120))
        if release > 1:
            release -= 1
            continue
        place = next((i for i in range(len(version) - 1, -1, -1) if version[i] > 0), None)
        if place is None:
            break
        version[place] -= 1
        version[place + 1 :] = [chance.randint(0, 4) for _ in version[place + 1 :]]
        release = chance.randint(1, 3)
    if build.is_update:
        day = FIRST_UPDATE_DAY + datetime.timedelta(days=chance.randrange(130))
        entries.insert(0, entry(day, f"{build.version}-{build.release}", [build.change]))
    return "\n".join(entries)
