# SPDX-License-Identifier: GPL-2.0-or-later
"""The history of transactions for whoever looks at it: a list, each transaction in full, a search, and a text of it.

Needs no rights and no collection; nothing is changed. A transaction is a dictionary:

    number      int
    begun       int, seconds since the epoch; 0 where nobody knows
    ended       int, likewise
    user        int, the number of the user who had logged in; None for somebody who never did
    userName    str, the user's name, or the number where it has none; "" for None
    command     str, the command line that began it; "" where it isn't known
    comment     str
    result      str: "done"; "failed", at least in part; "running"; "cut off", without an end and nobody works on it
    counts      dict, by "install", "upgrade", "downgrade", "reinstall", "remove", "obsoleted" and "reason": how many
                packages (int, > 0), without those that gave way to another version; and by "groups" of groups

In full it has also:

    packages    list of dict, in the order of the transaction:
                name, arch      str
                old, new        str, "[epoch:]version-release"; "" where there is none
                action          str, as in `counts`; or "replaced" for a version that gave way to one in another line
                reason          str, why it is installed: "user", "dependency", "weak", "group", "clean" (nothing needed
                                it any more), "external" (by another program) or "unknown"
                repository      str, where it came from; "@System" for what went; "" where it isn't known
                state           str: "done", "failed", "open" where no end was noted, or "unknown", where the library
                                doesn't tell which ones of a transaction have failed
    groups      list of dict: id, name, action (str, as in `counts`), environment (bool)
    output      list of str, the lines that scriptlets wrote to their standard output; None where the library keeps none
    errors      list of str, the same of their standard error
"""

from __future__ import annotations

import fnmatch
import json
import re
import time
from typing import Any, Callable, Dict, List, Optional

from .. import stop
from ..database import transaction_is_at_work
from ..errors import YumBaseError
from ..people import logged_in, user_name
from ..texts import _
from ..transactions import DONE, FAILED, OPEN, Change, Head, Reader, Records, changes

Told = Dict[str, Any]

_RUNNING, _CUT_OFF = "running", "cut off"
_PATTERN = re.compile(r"[*?\[]")


def listed(records: Records, root: str) -> List[Told]:
    """All transactions, the latest first. YumBaseError, Stopped."""
    with records.reading() as reader:
        counts = reader.counts()
        heads = reader.heads()
    latest = _open_state(root) if heads and heads[0].result == OPEN else _CUT_OFF
    return [_head(head, counts.get(head.number, {}), latest if head is heads[0] else _CUT_OFF) for head in heads]


def told(records: Records, root: str, number: int) -> Told:
    """One transaction in full. YumBaseError, also where there is no such one."""
    with records.reading() as reader:
        return _Whole(reader, root).told(number)


def concerning(records: Records, text: str) -> List[int]:
    """The numbers of the transactions, the latest first, in which a package had a part whose name, version and
    architecture, "name-[epoch:]version-release.arch", hold the text, or where that has wildcards (*, ?, [) match it, be
    it as a whole or the name alone. Case doesn't count. YumBaseError, Stopped."""
    with records.reading() as reader:
        return reader.concerning(_matching(text))


def exported(records: Records, root: str, number: int, form: str) -> str:
    """A transaction, or for 0 all of them, as a "text" to be read, or as "json": a transaction is an object as above,
    all of them a list. YumBaseError, Stopped; KeyError for another form."""
    write = {"text": _text, "json": _json}[form]
    with records.reading() as reader:
        whole = _Whole(reader, root)
        if number:
            return write([whole.told(number)], False)
        return write(whole.all(), True)


def _matching(text: str) -> Callable[[str], bool]:
    wanted = text.casefold()
    if not _PATTERN.search(wanted):
        return lambda package: wanted in package.casefold()
    fits = re.compile(fnmatch.translate(wanted)).match

    def matches(package: str) -> bool:
        folded = package.casefold()
        return bool(fits(folded) or fits(folded.rsplit("-", 2)[0]))

    return matches


# Values ---------------------------------------------------------------------------------------------------------


def _open_state(root: str) -> str:
    """Of the last transaction, which has no end."""
    return _RUNNING if transaction_is_at_work(root) else _CUT_OFF


def _head(head: Head, counts: Dict[str, int], open_state: str) -> Told:
    return {
        "number": head.number,
        "begun": head.begun,
        "ended": head.ended,
        "user": head.user if logged_in(head.user) else None,
        "userName": user_name(head.user),
        "command": head.command,
        "comment": head.comment,
        "result": open_state if head.result == OPEN else head.result,
        "counts": counts,
    }


class _Whole:
    def __init__(self, reader: Reader, root: str) -> None:
        self._reader = reader
        last = reader.last()
        self._last = last.number if last is not None else 0
        self._latest = _open_state(root) if last is not None and last.result == OPEN else _CUT_OFF

    def all(self) -> List[Told]:
        """The latest first."""
        found = []
        for head in self._reader.heads():
            stop.check()
            found.append(self._of(head))
        return found

    def told(self, number: int) -> Told:
        head = self._reader.head(number)
        if head is None:
            raise YumBaseError(_("The history has no transaction {number}.").format(number=number))
        return self._of(head)

    def _of(self, head: Head) -> Told:
        packages = changes(self._reader.items(head.number))
        groups = [group for _number, group in self._reader.groups(head.number)]
        output = self._reader.output(head.number)
        counts: Dict[str, int] = {}
        for package in packages:
            if package.action in _VERBS:
                counts[package.action] = counts.get(package.action, 0) + 1
        if groups:
            counts["groups"] = len(groups)
        whole = _head(head, counts, self._latest if head.number == self._last else _CUT_OFF)
        whole["packages"] = [_package(package, head) for package in packages]
        whole["groups"] = [group._asdict() for group in groups]
        for name, descriptor in (("output", 1), ("errors", 2)):
            whole[name] = None if output is None else [line for number, line in output if number == descriptor]
        return whole


def _package(change: Change, head: Head) -> Told:
    package = change._asdict()
    if change.state == OPEN and head.result != OPEN:
        # One of the libraries notes no more than the whole's end.
        package["state"] = DONE if head.result == DONE else "unknown"
    return package


# Texts ----------------------------------------------------------------------------------------------------------

_VERBS = {
    "install": _("Installed"),
    "upgrade": _("Updated"),
    "downgrade": _("Downgraded"),
    "reinstall": _("Reinstalled"),
    "remove": _("Removed"),
    "obsoleted": _("Obsoleted"),
    "reason": _("Reason changed"),
}
_ACTIONS = {**_VERBS, "replaced": _("Replaced")}
_RESULTS = {
    DONE: _("done"),
    FAILED: _("failed"),
    _RUNNING: _("running"),
    _CUT_OFF: _("cut off"),
}
_REASONS = {
    "user": _("user"),
    "group": _("group"),
    "dependency": _("dependency"),
    "weak": _("weak dependency"),
    "clean": _("no longer needed"),
    "external": _("another program"),
}


def _json(transactions: List[Told], several: bool) -> str:
    return json.dumps(transactions if several else transactions[0], ensure_ascii=False, indent=1) + "\n"


def _text(transactions: List[Told], several: bool) -> str:
    return "\n".join(_told_in_text(one) for one in transactions)


def _told_in_text(one: Told) -> str:
    lines = [_("Transaction {number}").format(number=one["number"])]
    for heading, value in (
        (_("Begin"), _moment(one["begun"])),
        (_("End"), _moment(one["ended"])),
        (_("User"), one["userName"]),
        (_("Command"), one["command"]),
        (_("Comment"), one["comment"]),
        (_("Result"), _RESULTS[one["result"]]),
    ):
        if value:
            lines.append(f"  {heading}: {value}")
    if one["packages"]:
        lines.append("  " + _("Packages:"))
        lines += [f"    {_package_in_text(package)}" for package in one["packages"]]
    if one["groups"]:
        lines.append("  " + _("Groups:"))
        lines += [f"    {_ACTIONS.get(group['action'], '')} {group['name']} ({group['id']})" for group in one["groups"]]
    for heading, written in ((_("Output of scriptlets:"), one["output"]), (_("Errors of scriptlets:"), one["errors"])):
        if written:
            lines += [f"  {heading}", *(f"    {line}" for line in written)]
    return "\n".join(lines) + "\n"


def _package_in_text(package: Told) -> str:
    versions = " -> ".join(dict.fromkeys(filter(None, (package["old"], package["new"]))))
    notes = [_REASONS.get(package["reason"], ""), package["repository"] if package["new"] else ""]
    if package["state"] == FAILED:
        notes.append(_RESULTS[FAILED])
    noted = ", ".join(filter(None, notes))
    text = f"{_ACTIONS.get(package['action'], '')} {package['name']}.{package['arch']} {versions}".strip()
    return f"{text} ({noted})" if noted else text


def _moment(seconds: int) -> str:
    try:
        return time.strftime("%Y-%m-%d %H:%M:%S", time.localtime(seconds)) if seconds else ""
    except (ValueError, OverflowError, OSError):
        # A damaged history.
        return str(seconds)
