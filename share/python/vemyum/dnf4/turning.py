# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf makes of a wish about its history: as `dnf history` does it, by a replay of the transaction or of its
opposite. Only for rolling back the opposite is found here: what dnf merges of several transactions is wrong once a
package has gone and come again among them.
"""

from __future__ import annotations

from typing import Any, Dict, Iterable, List, Set

import dnf.exceptions
import dnf.transaction
import hawkey
import libdnf.transaction as lt
from dnf.transaction_sr import VERSION, TransactionReplay, TransactionReplayError, serialize_transaction

from ..apply.messages import REDO, ROLL_BACK, UNDO, Past
from ..apply.turning import Aim, require_unobstructed
from ..backend import PkgTup
from ..packages import pkgtup, shown, whole_evr
from .base import Base

_KINDS = ("rpms", "groups", "environments")
Part = Dict[str, Any]
"""A package or group of a serialized transaction."""

_OPPOSITES = {
    "Install": "Removed",
    "Removed": "Install",
    "Upgrade": "Downgraded",
    "Upgraded": "Downgrade",
    "Downgrade": "Upgraded",
    "Downgraded": "Upgrade",
    "Reinstall": "Reinstalled",
    "Reinstalled": "Reinstall",
    "Obsoleted": "Install",
    "Obsolete": "Obsoleted",
    "Reason Change": "Reason Change",
}
_FORWARD = ("Install", "Upgrade", "Downgrade")


def turn(base: Base, aim: Aim) -> None:
    """Has the Base solve it, see `apply.turning.Turner`."""
    data = _rolled_back(base, aim) if aim.past.kind == ROLL_BACK else _data(base, aim.past)
    data["rpms"] = [part for part in data.get("rpms", ()) if _is_to_be_done(part, aim)]
    if data.get("groups") or data.get("environments"):
        base.read_comps(arch_filter=True)
    obstacles: Iterable[str] = ()
    try:
        # It warns of what isn't as the transaction has left it, which is known.
        replay = _marked(base, data, skip=False)
    except TransactionReplayError as error:
        # Marks stay behind a failure.
        base.reset(goal=True)
        obstacles = map(str, error.errors)
        replay = _marked(base, data, skip=True)
    require_unobstructed(aim, obstacles)
    base._goal.add_protected(base.sack.query(flags=hawkey.IGNORE_EXCLUDES).filter(name=base.conf.protected_packages))
    try:
        base.resolve(allow_erasing=False)
    except dnf.exceptions.DepsolveError:
        base.resolve(allow_erasing=True)
    replay.post_transaction()
    if aim.past.kind == ROLL_BACK:
        _give_reasons(base, aim)


def _marked(base: Base, data: Part, skip: bool) -> TransactionReplay:
    replay = TransactionReplay(base, data=data, ignore_installed=True, ignore_extras=True, skip_unavailable=skip)
    replay.run()
    return replay


def _data(base: Base, past: Past) -> Part:
    """The transaction, or its opposite."""
    (transaction,) = base.history.old([past.number])
    data = serialize_transaction(transaction)
    if past.kind == UNDO:
        for kind in _KINDS:
            data[kind] = [_opposite(base, part, past.number - 1) for part in data.get(kind, ())]
    return data


def _opposite(base: Base, part: Part, before: int) -> Part:
    """`before` is the number of the transaction behind which all was still as it is to be."""
    opposite = {**part, "action": _OPPOSITES[part["action"]]}
    if opposite.get("repo_id") == hawkey.SYSTEM_REPO_NAME:
        # Nothing comes in from there.
        opposite["repo_id"] = None
    if opposite["action"] == "Install" and opposite.get("reason") == "clean":
        opposite["reason"] = "dependency"
    if opposite["action"] == "Reason Change":
        name, arch, *_version = _parsed(part["nevra"])
        opposite["reason"] = _reason(base, name, arch, before)
    return opposite


def _reason(base: Base, name: str, arch: str, number: int) -> str:
    """Why it was installed behind that transaction."""
    reason = base.history.swdb.resolveRPMTransactionItemReason(name, arch, number)
    return str(lt.TransactionItemReasonToString(reason))


def _is_to_be_done(part: Part, aim: Aim) -> bool:
    """Not what is as it is to be already, nor what somebody has changed since."""
    package = _parsed(part["nevra"])
    if part["action"] in _FORWARD:
        return package not in aim.present and package not in aim.changed
    return package in aim.present or (part["action"] == "Reinstall" and aim.past.kind == REDO)


def _rolled_back(base: Base, aim: Aim) -> Part:
    """What it takes to have a system as it was behind a transaction."""
    number = aim.past.number

    def parts(packages: Iterable[PkgTup], action: str, instead: str, others: Set[PkgTup]) -> List[Part]:
        names = {one[:2] for one in others}
        return [
            {
                "action": instead if one[:2] in names else action,
                "nevra": shown(one),
                "repo_id": None,
                "reason": _reason(base, *one[:2], number),
            }
            for one in sorted(packages)
        ]

    stays = {one for one in aim.named & aim.present if one not in aim.leaving}
    changed = [one for one in stays if _reason(base, *one[:2], number) != _reason(base, *one[:2], aim.numbers[0])]
    data: Part = {"version": VERSION, "rpms": parts(aim.leaving, "Removed", "Upgraded", aim.wanted)}
    data["rpms"] += parts(aim.wanted, "Install", "Upgrade", aim.leaving) + parts(changed, "Reason Change", "", set())
    for kind, known in (("groups", base.history.group), ("environments", base.history.env)):
        found = {}
        for one in aim.numbers:
            (transaction,) = base.history.old([one])
            # What happened first to each counts.
            found.update((part["id"], _opposite(base, part, number)) for part in serialize_transaction(transaction).get(kind, ()))
        data[kind] = [
            part for id, part in found.items() if (known.get(id) is None) == (part["action"] == "Install")
        ]
    return data


def _give_reasons(base: Base, aim: Aim) -> None:
    """The replay lets a reason of more weight stand."""
    for item in base.transaction or ():
        if item.action in dnf.transaction.FORWARD_ACTIONS and pkgtup(item.pkg) in aim.wanted:
            name, arch, *_version = pkgtup(item.pkg)
            item.reason = base.history.swdb.resolveRPMTransactionItemReason(name, arch, aim.past.number)


def _parsed(nevra: str) -> PkgTup:
    """Of "name-[epoch:]version-release.arch"."""
    rest, _dot, arch = nevra.rpartition(".")
    name, version, release = rest.rsplit("-", 2)
    return (name, arch, *whole_evr(f"{version}-{release}"))
