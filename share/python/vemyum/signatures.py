# SPDX-License-Identifier: GPL-2.0-or-later
"""Signatures: nothing is installed whose key the rpm database doesn't hold, where gpgcheck asks for it."""

from __future__ import annotations

from typing import List, Optional

import dnf.package
import rpm

from .base import Base
from .errors import YumBaseError

_FORMATS = ("%{RSAHEADER:pgpsig}", "%{DSAHEADER:pgpsig}", "%{SIGPGP:pgpsig}", "%{SIGGPG:pgpsig}")


def check_signatures(base: Base, packages: List[dnf.package.Package]) -> None:
    """Raises YumBaseError that names each package without a good signature, its key and the locations
    of the repository's keys. Keys are never imported here."""
    faults: List[str] = []
    for package in packages:
        result, message = base.package_signature_check(package)
        if result == 0:
            continue
        locations = ", ".join(base.repos[package.reponame].gpgkey) or "none"
        faults.append(
            f"Package {package}: {message}\n"
            f"    key: {_key(package.localPkg()) or 'not signed'}\n"
            f"    gpgkey of repository {package.reponame}: {locations}"
        )
    if faults:
        faults.append("Nothing was installed. Import the key into the rpm database, or correct the repository.")
        raise YumBaseError("\n".join(faults))


def _key(path: str) -> Optional[str]:
    """What the package file says of its signature: algorithm, date and key id."""
    transaction = rpm.TransactionSet()
    transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
    with open(path, "rb") as package:
        try:
            header = transaction.hdrFromFdno(package.fileno())
        except rpm.error:
            return None
    for form in _FORMATS:
        text = header.sprintf(form)
        if text and text != "(none)":
            return text
    return None
