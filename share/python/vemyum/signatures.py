# SPDX-License-Identifier: GPL-2.0-or-later
"""Signatures: nothing is installed whose key the rpm database doesn't hold, where gpgcheck asks for it."""

from __future__ import annotations

import contextlib
import os
import re
import shutil
import subprocess
import tempfile
from typing import Any, Dict, Iterator, List, NamedTuple, Optional, Tuple

import dnf.package
import dnf.rpm.miscutils
import rpm

from . import host
from .base import Base
from .database import database_directory
from .errors import YumBaseError
from .keys import Agreed, Missing, Search, imported, key_file
from .openpgp import Key
from .text import valid
from .texts import _

_SIGNATURES = ("OPENPGP", "RSAHEADER", "DSAHEADER", "SIGPGP", "SIGGPG")
"""rpm's tags of signatures; the first one came with its sixth version."""
_FATAL = 2
_MAY_LACK_A_KEY = 1
_DAMAGED = re.compile(r": BAD\b|^error:")
_LACKS_A_KEY = re.compile(r"\b([0-9a-f]{8,64}): NO(?:KEY|TTRUSTED)$", re.I)
_ISSUER = re.compile(r"\b[0-9a-f]{16,64}\b", re.I)


class _Fault(NamedTuple):
    """A package without a good signature, what dnf says of it, and what rpm says. `missing` are the keys that the rpm
    database lacks, as rpm calls them."""

    package: dnf.package.Package
    result: int
    message: str
    wrong: List[str]
    missing: List[str]


def check_signatures(base: Base, packages: List[dnf.package.Package]) -> None:
    """Raises YumBaseError that names each package without a good signature, its key and the locations
    of the repository's keys. The user is asked about keys that are missing, about each before the first is imported."""
    faults = _faults(base, packages)
    told: List[str] = []
    # Where something else is wrong as well, no key would help.
    if faults and all(fault.result == _MAY_LACK_A_KEY for fault in faults):
        try:
            keys = _agreed_keys(base, faults)
        except Missing as missing:
            told = str(missing).splitlines()
        else:
            for key in keys:
                _import(base.conf.installroot, key)
            faults = _faults(base, packages)
    if faults:
        lines = [line for fault in faults for line in _text(base, fault)]
        lines += [f"    {line}" for line in told]
        raise YumBaseError("\n".join([*lines, _("Nothing was installed.")]))


def _text(base: Base, fault: _Fault) -> List[str]:
    package = fault.package
    if fault.wrong:
        # dnf calls it a problem of opening the file.
        damaged = _("Package {package} is damaged: {file}").format(package=package, file=package.localPkg())
        return [damaged, *(f"    {line}" for line in fault.wrong)]
    locations = ", ".join(base.repos[package.reponame].gpgkey) or _("none")
    key = next(iter(_signatures(package.localPkg())), _("not signed"))
    return [
        _("Package {package}: {message}").format(package=package, message=fault.message),
        "    " + _("key: {key}").format(key=key),
        "    " + _("gpgkey of repository {id}: {locations}").format(id=package.reponame, locations=locations),
    ]


# The check -------------------------------------------------------------------------------------------------------


def _faults(base: Base, packages: List[dnf.package.Package]) -> List[_Fault]:
    found = []
    with _checking_below(base.conf.installroot) as (wrong, missing):
        for package in packages:
            wrong.clear()
            missing.clear()
            result, message = base.package_signature_check(package)
            if result != 0:
                found.append(_Fault(package, result, message, list(wrong), list(missing)))
    return found


@contextlib.contextmanager
def _checking_below(root: str) -> Iterator[Tuple[List[str], List[str]]]:
    """Lets dnf's check look for keys where the root's database is. The lists that it gives are filled with what is
    wrong with a damaged package, and with the keys that are missing.

    dnf leaves the check to the program rpmkeys, which doesn't know of this process's settings, and doesn't tell what
    that says of damage.
    """
    where = ["--root", root, "--dbpath", database_directory(root)]
    wrong: List[str] = []
    missing: List[str] = []

    def check(_: Any, path: str) -> int:
        verdict, said = _verdict(where, path)
        if verdict == _FATAL:
            wrong.extend([line for line in said if _DAMAGED.search(line)] or said)
        missing.extend(_missing(said))
        return verdict

    original = dnf.rpm.miscutils.checkSig
    dnf.rpm.miscutils.checkSig = check
    try:
        yield wrong, missing
    finally:
        dnf.rpm.miscutils.checkSig = original


def _verdict(where: List[str], path: str) -> Tuple[int, List[str]]:
    """What rpm says of a package: dnf's number for that, and the lines."""
    options = ["--define=_pkgverify_level signature", "--define=_pkgverify_flags 0x0"]
    with open(path, "rb") as package:
        done = _rpmkeys([*where, "--checksig", "--verbose", *options, "-"], package)
    verdict = int(dnf.rpm.miscutils._process_rpm_output(done.stdout.split(b"\n")))
    if done.returncode not in (0, 1) or (done.returncode and not verdict):
        verdict = _FATAL
    return verdict, _lines(done)


def _rpmkeys(arguments: List[str], package: Any = subprocess.DEVNULL) -> "subprocess.CompletedProcess[bytes]":
    rpmkeys = shutil.which("rpmkeys")
    if rpmkeys is None:
        raise YumBaseError(_("The program rpmkeys is missing: signatures cannot be checked"))
    environment = {**os.environ, "LC_ALL": "C"}
    pipe = subprocess.PIPE
    return subprocess.run([rpmkeys, *arguments], stdin=package, stdout=pipe, stderr=pipe, env=environment, cwd="/")


def _lines(done: "subprocess.CompletedProcess[bytes]") -> List[str]:
    return list(filter(None, (line.strip() for line in valid(done.stdout + done.stderr).splitlines())))


def _missing(said: List[str]) -> List[str]:
    """The keys, by id or fingerprint, that rpm's lines call missing or not trusted."""
    return [found.group(1) for found in map(_LACKS_A_KEY.search, said) if found]


def _signatures(path: str) -> List[str]:
    """What the package file says of its signatures: algorithm, date and key id of each."""
    transaction = rpm.TransactionSet()
    transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
    with open(path, "rb") as package:
        try:
            header = transaction.hdrFromFdno(package.fileno())
        except rpm.error:
            return []
    tags = [tag for tag in _SIGNATURES if hasattr(rpm, f"RPMTAG_{tag}")]
    texts = [text for tag in tags for text in header.sprintf(f"[%{{{tag}:pgpsig}}\n]").splitlines()]
    return [text for text in texts if text and text != "(none)"]


# Keys that are missing -------------------------------------------------------------------------------------------


def _agreed_keys(base: Base, faults: List[_Fault]) -> List[Agreed]:
    """The keys that these packages want; all of them are agreed to. Raises Missing."""
    wanting: Dict[str, List[_Fault]] = {}
    for fault in faults:
        for issuer in _issuers(fault):
            wanting.setdefault(issuer, []).append(fault)
    search = Search()
    for issuer, signed in wanting.items():
        repos = list({fault.package.reponame: base.repos[fault.package.reponame] for fault in signed}.values())
        path = signed[0].package.localPkg()
        search.find(
            [issuer], repos, [str(fault.package) for fault in signed], lambda key: _refusal(key, issuer, path)
        )
    return list(search.agreed.values())


def _issuers(fault: _Fault) -> List[str]:
    """Whose signatures cannot be checked: what rpm says is missing, as long as the package's own words for it."""
    found = [issuer for text in _signatures(fault.package.localPkg()) for issuer in _ISSUER.findall(text)]
    missing = [issuer for issuer in found if any(_same(issuer, key) for key in fault.missing)]
    if not missing:
        raise Missing("")
    return missing


def _same(one: str, other: str) -> bool:
    """Whether two hexadecimal names, each a fingerprint or a part of one, may mean the same key."""
    one, other = sorted((one.lower(), other.lower()), key=len)
    return other.endswith(one) or other.startswith(one)


def _refusal(key: Key, issuer: str, path: str) -> Optional[str]:
    """Why rpm would not accept the package though it had this key, None if it would. A database of its own is used."""
    with tempfile.TemporaryDirectory(prefix="vem-keys-") as database, key_file([key]) as file:
        done = _rpmkeys(["--dbpath", database, "--import", file])
        said = _lines(done)
        if done.returncode == 0:
            _number, said = _verdict(["--dbpath", database], path)
            missing = any(_same(issuer, one) for one in _missing(said))
            damaged = [line for line in said if _DAMAGED.search(line)]
            if not missing and not damaged:
                return None
    words = "; ".join(line for line in said if line != "-:" and not line.endswith(": OK"))
    return _("rpm does not accept the key {key}: {words}").format(key=key.primary.fingerprint, words=words)


def _import(root: str, agreed: Agreed) -> None:
    with key_file([agreed.key]) as file:
        done = _rpmkeys(["--root", root, "--dbpath", database_directory(root), "--import", file])
    if done.returncode != 0:
        key = agreed.key.primary.fingerprint
        refused = _("The key {key} could not be imported:").format(key=key)
        raise YumBaseError("\n".join([refused, *_lines(done), _("Nothing was installed.")]))
    host.log(host.LEVEL_NOTICE, imported(agreed))
