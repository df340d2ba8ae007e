# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's check of packages' signatures, and what rpm's own program says of those that fail it."""

from __future__ import annotations

import os
from typing import Any, Dict, List

import libdnf5.rpm

from ..backend import KeySource
from ..packages import COMMAND_LINE
from ..signatures import DAMAGED, NO_KEYS, Fault, checksig, keys_below, lines, missing_keys
from ..text import valid
from ..texts import _
from .base import Base
from .download import shown
from .keys import Source

_Signature = libdnf5.rpm.RpmSignature

_GOOD = (_Signature.CheckResult_OK, _Signature.CheckResult_SKIPPED)


def signature_faults(base: Base, packages: List[Any]) -> List[Fault]:
    """Those of the packages that have no good signature where the configuration asks for one."""
    check = _Signature(base.library)
    where = keys_below(base.settings.root)
    sources: Dict[str, KeySource] = {}
    found = []
    for package in packages:
        result = check.check_package_signature(package)
        if result in _GOOD:
            continue
        path = package.get_package_path()
        said = lines(checksig(where, path))
        missing = missing_keys(said)
        damaged = [line for line in said if DAMAGED.search(line)]
        if result == _Signature.CheckResult_FAILED and not damaged and not missing:
            damaged = said
        id = package.get_repo_id()
        if id not in sources:
            sources[id] = NO_KEYS if id == COMMAND_LINE else Source(base, base.repository(id))
        file = valid(os.path.basename(path))
        found.append(Fault(shown(package), path, sources[id], _message(result, file), damaged, missing))
    return found


def _message(result: int, file: str) -> str:
    """The library's words for it don't name the file."""
    if result == _Signature.CheckResult_FAILED_KEY_MISSING:
        return _("The public key for {file} is not installed").format(file=file)
    if result == _Signature.CheckResult_FAILED_NOT_TRUSTED:
        return _("The public key for {file} is not trusted").format(file=file)
    if result == _Signature.CheckResult_FAILED_NOT_SIGNED:
        return _("{file} is not signed").format(file=file)
    return valid(_Signature.check_result_to_string(result))
