# SPDX-License-Identifier: GPL-2.0-or-later
"""Signatures: nothing is installed whose key the rpm database doesn't hold, where gpgcheck asks for it."""

from __future__ import annotations

import contextlib
import os
import re
import shutil
import subprocess
from typing import Any, Iterator, List, Optional

import dnf.package
import dnf.rpm.miscutils
import rpm

from .base import Base
from .database import database_directory
from .errors import YumBaseError
from .text import valid
from .texts import _

_SIGNATURES = ("OPENPGP", "RSAHEADER", "DSAHEADER", "SIGPGP", "SIGGPG")
"""rpm's tags of signatures; the first one came with its sixth version."""
_FATAL = 2
_DAMAGED = re.compile(r": BAD\b|^error:")


def check_signatures(base: Base, packages: List[dnf.package.Package]) -> None:
    """Raises YumBaseError that names each package without a good signature, its key and the locations
    of the repository's keys. Keys are never imported here."""
    faults: List[str] = []
    with _checking_below(base.conf.installroot) as wrong:
        for package in packages:
            wrong.clear()
            result, message = base.package_signature_check(package)
            if result != 0:
                faults += _fault(base, package, message, wrong)
    if faults:
        faults.append(_("Nothing was installed."))
        raise YumBaseError("\n".join(faults))


def _fault(base: Base, package: dnf.package.Package, message: str, wrong: List[str]) -> List[str]:
    if wrong:
        # dnf calls it a problem of opening the file.
        damaged = _("Package {package} is damaged: {file}").format(package=package, file=package.localPkg())
        return [damaged, *(f"    {line}" for line in wrong)]
    locations = ", ".join(base.repos[package.reponame].gpgkey) or _("none")
    key = _key(package.localPkg()) or _("not signed")
    return [
        _("Package {package}: {message}").format(package=package, message=message),
        "    " + _("key: {key}").format(key=key),
        "    " + _("gpgkey of repository {id}: {locations}").format(id=package.reponame, locations=locations),
    ]


@contextlib.contextmanager
def _checking_below(root: str) -> Iterator[List[str]]:
    """Lets dnf's check look for keys where the root's database is. What it gives is filled with what is wrong with a
    damaged package.

    dnf leaves the check to the program rpmkeys, which doesn't know of this process's settings, and doesn't tell what
    that says of damage.
    """
    database = database_directory(root)
    wrong: List[str] = []

    def check(_: Any, path: str) -> int:
        rpmkeys = shutil.which("rpmkeys")
        if rpmkeys is None:
            raise YumBaseError(_("The program rpmkeys is missing: signatures cannot be checked"))
        command = [rpmkeys, "--checksig", "--root", root, "--dbpath", database, "--verbose"]
        command += ["--define=_pkgverify_level signature", "--define=_pkgverify_flags 0x0", "-"]
        with open(path, "rb") as package:
            environment = {**os.environ, "LC_ALL": "C"}
            pipe = subprocess.PIPE
            done = subprocess.run(command, stdin=package, stdout=pipe, stderr=pipe, env=environment, cwd="/")
        verdict = dnf.rpm.miscutils._process_rpm_output(done.stdout.split(b"\n"))
        if done.returncode not in (0, 1) or (done.returncode and not verdict):
            verdict = _FATAL
        if verdict == _FATAL:
            said = [line.strip() for line in valid(done.stdout + done.stderr).splitlines()]
            wrong.extend([line for line in said if _DAMAGED.search(line)] or filter(None, said))
        return verdict

    original = dnf.rpm.miscutils.checkSig
    dnf.rpm.miscutils.checkSig = check
    try:
        yield wrong
    finally:
        dnf.rpm.miscutils.checkSig = original


def _key(path: str) -> Optional[str]:
    """What the package file says of its signature: algorithm, date and key id."""
    transaction = rpm.TransactionSet()
    transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
    with open(path, "rb") as package:
        try:
            header = transaction.hdrFromFdno(package.fileno())
        except rpm.error:
            return None
    for tag in _SIGNATURES:
        if not hasattr(rpm, f"RPMTAG_{tag}"):
            continue
        text = header.sprintf(f"%{{{tag}:pgpsig}}")
        if text and text != "(none)":
            return text
    return None
