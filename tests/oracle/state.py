# SPDX-License-Identifier: GPL-2.0-or-later
"""What there is below a root after a wish was carried out, as plain values that can be compared."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Dict, List

import rpm

from commands import COMMANDS

State = Dict[str, List[str]]

_KEPT_APART = ("var/cache", "var/log", "var/lib/rpm", "var/tmp", "etc", "run", "tmp", *COMMANDS.KEPT_APART)
"""What a package manager writes for itself; the packages of an estate have nothing there."""


def state_of(root: Path) -> State:
    """Sorted lists of texts by what they tell: packages, reasons, keys, files, modules."""
    packages: List[str] = []
    keys: List[str] = []
    present = set()
    transaction = rpm.TransactionSet(str(root))
    try:
        transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
        for header in transaction.dbMatch():
            if header["name"] == "gpg-pubkey":
                keys.append(f"{header['version']}-{header['release']}")
                continue
            present.add((header["name"], header["arch"]))
            evr = f"{header['epoch'] or 0}:{header['version']}-{header['release']}"
            packages.append(f"{header['name']}-{evr}.{header['arch']}")
    finally:
        transaction.closeDB()
    return {
        "packages": sorted(packages),
        "reasons": COMMANDS.reasons(root, present),
        "keys": sorted(keys),
        "files": _files(root),
        "modules": COMMANDS.streams(root),
    }


def _files(root: Path) -> List[str]:
    found: List[str] = []
    for folder, names, files in os.walk(root):
        place = os.path.relpath(folder, root)
        names[:] = [name for name in names if os.path.normpath(f"{place}/{name}") not in _KEPT_APART]
        for name in files:
            path = Path(folder, name)
            found.append(f"{os.path.normpath(f'{place}/{name}')}: {path.read_text(encoding='utf-8')}")
    return sorted(found)


def differences(one: State, other: State, kind: str) -> List[str]:
    """What only one of them has, each line with a sign in front: - for the first, + for the second."""
    first, second = one[kind], other[kind]
    lines = [f"-{line}" for line in first if line not in second]
    return lines + [f"+{line}" for line in second if line not in first]
