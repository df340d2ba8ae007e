# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys that sign packages."""

from __future__ import annotations

import shutil
import subprocess
import tempfile
from pathlib import Path

UID = "Estate Signing <signing@estate.example>"


class Key:
    """A signing key in a keyring of its own, for the length of a with block."""

    def __init__(self, expires: str = "never", at: str = "") -> None:
        """`at` is the time at which it is made, and signs, as gpg writes times."""
        # gpg's agent listens on a socket, whose path must be short.
        self.home = Path(tempfile.mkdtemp(prefix="vem-keys-", dir="/tmp"))
        self.public = self.home / "public.asc"
        if at:
            (self.home / "gpg.conf").write_text(f"faked-system-time {at}\n")
        self._gpg("--quick-generate-key", UID, "rsa2048", "sign", expires)
        self.public.write_bytes(self._gpg("--armor", "--export", UID))
        listing = self._gpg("--list-keys", "--with-colons").decode()
        self.id = next(line.split(":")[4] for line in listing.splitlines() if line.startswith("pub"))
        self.fingerprint = next(line.split(":")[9] for line in listing.splitlines() if line.startswith("fpr"))

    def _gpg(self, *arguments: str) -> bytes:
        command = ["gpg", "--homedir", str(self.home), "--batch", "--passphrase", "", *arguments]
        return subprocess.run(command, check=True, capture_output=True).stdout

    def revoke(self) -> None:
        """From now on `public` says that the key is not to be used."""
        certificate = self.home / "openpgp-revocs.d" / f"{self.fingerprint}.rev"
        # A colon keeps it from being used by mistake.
        certificate.write_text(certificate.read_text().replace(":-----BEGIN", "-----BEGIN"))
        self._gpg("--import", str(certificate))
        self.public.write_bytes(self._gpg("--armor", "--export", UID))

    def sign_metadata(self, repository: Path) -> None:
        repomd = repository / "repodata" / "repomd.xml"
        self._gpg("--yes", "--armor", "--detach-sign", "--output", f"{repomd}.asc", str(repomd))

    def sign(self, rpm: Path, directory: Path) -> Path:
        signed = directory / rpm.name
        shutil.copy2(rpm, signed)
        command = ["rpmsign", "--addsign"]
        for macro in (f"_gpg_name {UID}", f"_gpg_path {self.home}", f"__gpg {shutil.which('gpg')}"):
            command += ["--define", macro]
        subprocess.run([*command, str(signed)], check=True, capture_output=True)
        return signed

    def __enter__(self) -> "Key":
        return self

    def __exit__(self, *_: object) -> None:
        subprocess.run(["gpgconf", "--homedir", str(self.home), "--kill", "all"], check=True)
        shutil.rmtree(self.home, ignore_errors=True)
