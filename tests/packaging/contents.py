# SPDX-License-Identifier: GPL-2.0-or-later
"""What lies in a package, of either kind: each path with owner and mode, and the unpacked files."""
from __future__ import annotations

import subprocess
import tarfile
from dataclasses import dataclass
from pathlib import Path
from typing import Mapping, Sequence, Union

LANGUAGES = ("de", "es", "fr", "ja", "zh_CN")


def output_of(command: Sequence[Union[str, Path]]) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


@dataclass(frozen=True)
class Entry:
    kind: str  # "file", "folder" or "link"
    mode: int  # permission bits
    owner: str  # "user:group"


@dataclass(frozen=True)
class Package:
    entries: Mapping[str, Entry]
    unpacked: Path

    def files(self) -> set[str]:
        return {path for path, entry in self.entries.items() if entry.kind == "file"}

    def place(self, path: str) -> Path:
        return self.unpacked / path.lstrip("/")


KINDS = {0o100000: "file", 0o040000: "folder", 0o120000: "link"}


def rpm_query(rpm: Path, shape: str) -> list[list[str]]:
    """A query format for each element, its parts divided by tabs, as lists of texts."""
    answer = output_of(["rpm", "-qp", "--nosignature", "--qf", f"[{shape}\n]", rpm])
    return [line.split("\t") for line in answer.splitlines()]


def rpm_contents(rpm: Path, unpacked: Path) -> Package:
    rows = rpm_query(rpm, "%{FILENAMES}\t%{FILEMODES}\t%{FILEUSERNAME}:%{FILEGROUPNAME}")
    # rpm holds modes as signed numbers of 16 bits.
    modes = {path: int(mode) & 0xFFFF for path, mode, _ in rows}
    entries = {
        path: Entry(KINDS[modes[path] & 0o170000], modes[path] & 0o7777, owner) for path, _, owner in rows
    }
    archive = subprocess.run(["rpm2archive", "-n", "-"], stdin=rpm.open("rb"), capture_output=True, check=True).stdout
    subprocess.run(["tar", "--extract", "--directory", unpacked], input=archive, check=True)
    return Package(entries, unpacked)


def deb_contents(deb: Path, unpacked: Path) -> Package:
    data = subprocess.Popen(["dpkg-deb", "--fsys-tarfile", deb], stdout=subprocess.PIPE)
    entries = {}
    with tarfile.open(fileobj=data.stdout, mode="r|") as archive:
        for member in archive:
            kind = "folder" if member.isdir() else "link" if member.issym() else "file"
            entries[member.name.removeprefix(".")] = Entry(kind, member.mode, f"{member.uname}:{member.gname}")
    assert data.wait() == 0
    return Package(entries, unpacked)
