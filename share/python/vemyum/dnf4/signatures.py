# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's check of packages' signatures."""

from __future__ import annotations

import contextlib
from typing import Any, Iterator, List, Tuple

import dnf.package
import dnf.rpm.miscutils

from ..packages import COMMAND_LINE
from ..signatures import DAMAGED, NO_KEYS, Fault, checksig, keys_below, lines, missing_keys
from .base import Base
from .keys import RepositoryKeys

_FATAL = 2


def signature_faults(base: Base, packages: List[dnf.package.Package]) -> List[Fault]:
    """Those of the packages that have no good signature where the configuration asks for one."""
    found = []
    with _checking_below(base.conf.installroot) as (wrong, missing):
        for package in packages:
            wrong.clear()
            missing.clear()
            result, message = base.package_signature_check(package)
            if result != 0:
                repository = package.reponame
                of_file = repository == COMMAND_LINE
                source = NO_KEYS if of_file else RepositoryKeys(base.repos[repository])
                found.append(Fault(str(package), package.localPkg(), source, message, list(wrong), list(missing)))
    return found


@contextlib.contextmanager
def _checking_below(root: str) -> Iterator[Tuple[List[str], List[str]]]:
    """Lets dnf's check look for keys where the root's database is. The lists that it gives are filled with what is
    wrong with a damaged package, and with the keys that are missing.

    dnf leaves the check to the program rpmkeys, which doesn't know of this process's settings, and doesn't tell what
    that says of damage.
    """
    where = keys_below(root)
    wrong: List[str] = []
    missing: List[str] = []

    def check(_: Any, path: str) -> int:
        done = checksig(where, path)
        said = lines(done)
        verdict = int(dnf.rpm.miscutils._process_rpm_output(done.stdout.split(b"\n")))
        if done.returncode not in (0, 1) or (done.returncode and not verdict):
            verdict = _FATAL
        if verdict == _FATAL:
            wrong.extend([line for line in said if DAMAGED.search(line)] or said)
        missing.extend(missing_keys(said))
        return verdict

    original = dnf.rpm.miscutils.checkSig
    dnf.rpm.miscutils.checkSig = check
    try:
        yield wrong, missing
    finally:
        dnf.rpm.miscutils.checkSig = original
