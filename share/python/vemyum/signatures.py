# SPDX-License-Identifier: GPL-2.0-or-later
"""Signatures: nothing is installed whose key the rpm database doesn't hold, where gpgcheck asks for it.

A library checks; what it finds is told here, the user is asked about keys that are missing, and rpm's own program
gets those that are agreed to.
"""

from __future__ import annotations

import os
import re
import shutil
import subprocess
import tempfile
from typing import Any, Callable, Dict, List, NamedTuple, Optional, Sequence

import rpm

from . import host
from .backend import KeySource
from .database import database_directory
from .errors import YumBaseError
from .keys import Agreed, Missing, Search, imported, key_file
from .openpgp import Key
from .packages import FILES
from .text import valid
from .texts import _

_SIGNATURES = ("OPENPGP", "RSAHEADER", "DSAHEADER", "SIGPGP", "SIGGPG")
"""rpm's tags of signatures; the first one came with its sixth version."""
DAMAGED = re.compile(r": BAD\b|^error:")
"""Stands in what rpmkeys says of a package that isn't as it was signed."""
_LACKS_A_KEY = re.compile(r"\b([0-9a-f]{8,64}): NO(?:KEY|TTRUSTED)$", re.I)
_ISSUER = re.compile(r"\b[0-9a-f]{16,64}\b", re.I)
_DELETES_KEYS = 6
"""The version of rpm from which on it calls it deprecated to remove a key as a package."""


class _NoKeys:
    """Where package files come from that the user has opened (`backend.KeySource`): nobody has named a key for them."""

    id = FILES
    gpgkey: Sequence[str] = ()
    verified = True

    def fetch(self, address: str) -> bytes:
        raise RuntimeError(address)


NO_KEYS = _NoKeys()


class Fault(NamedTuple):
    """A package without a good signature: its name and version, file and repository, what the library says of it, and
    what rpm says. `missing` are the keys that the rpm database lacks, as rpm calls them."""

    package: str
    path: str
    source: KeySource
    message: str
    wrong: List[str]
    missing: List[str]

    @property
    def lacks_keys_alone(self) -> bool:
        """A library may give up where the package's own repository names none; one for a package of another
        repository may be the same."""
        return bool(self.missing) and not self.wrong


def require_signatures(root: str, check: Callable[[], List[Fault]]) -> None:
    """Raises YumBaseError that names each package without a good signature, its key and the locations
    of the repository's keys. The user is asked about keys that are missing, about each before the first is imported;
    then `check` is called again."""
    faults = check()
    told: List[str] = []
    # Where something else is wrong as well, no key would help.
    if faults and all(fault.lacks_keys_alone for fault in faults):
        try:
            keys = _agreed_keys(faults)
        except Missing as missing:
            told = str(missing).splitlines()
        else:
            for key in keys:
                _import(root, key)
            faults = check()
    if faults:
        lines = [line for fault in faults for line in _text(fault)]
        lines += [f"    {line}" for line in told]
        raise YumBaseError("\n".join([*lines, _("Nothing was installed.")]))


def _text(fault: Fault) -> List[str]:
    if fault.wrong:
        # A library calls it a problem of opening the file.
        damaged = _("Package {package} is damaged: {file}").format(package=fault.package, file=fault.path)
        return [damaged, *(f"    {line}" for line in fault.wrong)]
    locations = ", ".join(fault.source.gpgkey) or _("none")
    key = next(iter(_signatures(fault.path)), _("not signed"))
    return [
        _("Package {package}: {message}").format(package=fault.package, message=fault.message),
        "    " + _("key: {key}").format(key=key),
        "    " + _("gpgkey of repository {id}: {locations}").format(id=fault.source.id, locations=locations),
    ]


def checksig(where: List[str], path: str) -> "subprocess.CompletedProcess[bytes]":
    """What rpm's program says of a package and its signatures; `where` are its options for the database of keys."""
    options = ["--define=_pkgverify_level signature", "--define=_pkgverify_flags 0x0"]
    with open(path, "rb") as package:
        return _rpmkeys([*where, "--checksig", "--verbose", *options, "-"], package)


def keys_below(root: str) -> List[str]:
    """rpmkeys' options for the database of a root: it doesn't know of this process's settings."""
    return ["--root", root, "--dbpath", database_directory(root)]


def _rpmkeys(arguments: List[str], package: Any = subprocess.DEVNULL) -> "subprocess.CompletedProcess[bytes]":
    rpmkeys = shutil.which("rpmkeys")
    if rpmkeys is None:
        raise YumBaseError(_("The program rpmkeys is missing: signatures cannot be checked"))
    return _run(rpmkeys, arguments, package)


def _run(program: str, arguments: List[str], package: Any = subprocess.DEVNULL) -> "subprocess.CompletedProcess[bytes]":
    environment = {**os.environ, "LC_ALL": "C"}
    pipe = subprocess.PIPE
    return subprocess.run([program, *arguments], stdin=package, stdout=pipe, stderr=pipe, env=environment, cwd="/")


def lines(done: "subprocess.CompletedProcess[bytes]") -> List[str]:
    return list(filter(None, (line.strip() for line in valid(done.stdout + done.stderr).splitlines())))


def missing_keys(said: List[str]) -> List[str]:
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


def _agreed_keys(faults: List[Fault]) -> List[Agreed]:
    """The keys that these packages want, from the repositories that have packages of theirs; all of them are agreed to.
    Raises Missing."""
    wanting: Dict[str, List[Fault]] = {}
    for fault in faults:
        for issuer in _issuers(fault):
            wanting.setdefault(issuer, []).append(fault)
    places = {
        issuer: list({fault.source.id: fault.source for fault in signed}.values())
        for issuer, signed in wanting.items()
    }
    if not all(any(source.gpgkey for source in sources) for sources in places.values()):
        # Nobody is asked about the other keys.
        raise Missing("")
    search = Search()
    for issuer, signed in wanting.items():
        path = signed[0].path
        search.find([issuer], places[issuer], [fault.package for fault in signed], lambda key: _refusal(key, issuer, path))
    return list(search.agreed.values())


def _issuers(fault: Fault) -> List[str]:
    """Whose signatures cannot be checked: what rpm says is missing, as long as the package's own words for it."""
    found = [issuer for text in _signatures(fault.path) for issuer in _ISSUER.findall(text)]
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
        said = lines(done)
        if done.returncode == 0:
            said = lines(checksig(["--dbpath", database], path))
            missing = any(_same(issuer, one) for one in missing_keys(said))
            damaged = [line for line in said if DAMAGED.search(line)]
            if not missing and not damaged:
                return None
    words = "; ".join(line for line in said if line != "-:" and not line.endswith(": OK"))
    return _("rpm does not accept the key {key}: {words}").format(key=key.primary.fingerprint, words=words)


def _import(root: str, agreed: Agreed) -> None:
    try:
        import_key(root, agreed)
    except YumBaseError as error:
        raise YumBaseError("\n".join([str(error), _("Nothing was installed.")])) from error


def import_key(root: str, agreed: Agreed) -> None:
    """Has rpm trust it, and the log tell that. YumBaseError with rpm's words."""
    with key_file([agreed.key]) as file:
        done = _rpmkeys([*keys_below(root), "--import", file])
    if done.returncode != 0:
        key = agreed.key.primary.fingerprint
        refused = _("The key {key} could not be imported:").format(key=key)
        raise YumBaseError("\n".join([refused, *lines(done)]))
    host.log(host.LEVEL_NOTICE, imported(agreed))


def remove_key(root: str, name: str, fingerprint: str) -> None:
    """Has rpm trust a key no more. `name` is that of what it counts as a package; `fingerprint` may be empty where
    the key cannot be read. YumBaseError with rpm's words."""
    if fingerprint and int(rpm.__version__.split(".")[0]) >= _DELETES_KEYS:
        done = _rpmkeys([*keys_below(root), "--delete", fingerprint])
    else:
        # There may be several entries of one key, and damaged ones.
        done = _run("rpm", [*keys_below(root), "--erase", "--allmatches", "--nodigest", "--nosignature", name])
    if done.returncode != 0:
        refused = _("The key {key} could not be removed:").format(key=fingerprint or name)
        raise YumBaseError("\n".join([refused, *lines(done)]))
