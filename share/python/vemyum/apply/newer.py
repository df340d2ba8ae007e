# SPDX-License-Identifier: GPL-2.0-or-later
"""What has changed between the installed versions and those that take their places, by the changelogs of both."""

from __future__ import annotations

import time
from typing import Any, Callable, List, Sequence, Tuple

import rpm

from ..database import point_rpm_at
from ..text import valid
from .messages import UPGRADE, Detail

Entry = Tuple[int, str, str]
"""Time, author, text."""

_MOST = 4096
"""Characters of one package: a version may be years away."""
_MOST_OF_ALL = 1 << 20


def newer_changes(
    details: Sequence[Detail], root: str, offered: Callable[[str, str], List[Entry]]
) -> List[str]:
    """A text for each row, empty for anything but an update and where nothing is known. `offered` gives a changelog by
    repository and checksum. rpm.error, OSError where the rpm database cannot be read."""
    texts = [""] * len(details)
    left = _MOST_OF_ALL
    point_rpm_at(root)
    transaction = rpm.TransactionSet(root)
    try:
        transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
        for at, row in enumerate(details):
            entries = offered(row.repository, row.checksum) if row.action == UPGRADE else []
            if entries and left > 0:
                texts[at] = _told(_newer(entries, _installed(transaction, row)))[: min(left, _MOST)]
                left -= len(texts[at])
    finally:
        transaction.closeDB()
    return texts


def _installed(transaction: Any, row: Detail) -> List[Entry]:
    for header in transaction.dbMatch("name", row.name):
        epoch = f"{header['epoch']}:" if header["epoch"] else ""
        if f"{epoch}{header['version']}-{header['release']}" == row.old:
            parts = (header["changelogtime"], header["changelogname"], header["changelogtext"])
            return [(int(date), valid(name), valid(text)) for date, name, text in zip(*(part or [] for part in parts))]
    return []


def _newer(entries: Sequence[Entry], known: Sequence[Entry]) -> List[Entry]:
    """Those of the entries, newest first, that stand before all that is known. Somebody may have changed an old entry,
    which is none the newer for it."""
    there = {(date, text.strip()) for date, _author, text in known}
    newest = max((date for date, _author, _text in known), default=None)
    found = []
    for date, author, text in entries:
        if newest is not None and (date < newest or (date, text.strip()) in there):
            break
        found.append((date, author, text))
    return found


def _told(entries: Sequence[Entry]) -> str:
    days = (time.strftime("%Y-%m-%d", time.gmtime(date)) for date, _author, _text in entries)
    return "\n\n".join(f"{day} {author}\n{text.strip()}" for day, (_date, author, text) in zip(days, entries))
