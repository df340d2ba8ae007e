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

    def __init__(self) -> None:
        # gpg's agent listens on a socket, whose path must be short.
        self.home = Path(tempfile.mkdtemp(prefix="vem-keys-", dir="/tmp"))
        self.public = self.home / "public.asc"
        self._gpg("--quick-generate-key", UID, "rsa2048", "sign", "never")
        self.public.write_bytes(self._gpg("--armor", "--export", UID))
        listing = self._gpg("--list-keys", "--with-colons").decode()
        self.id = next(line.split(":")[4] for line in listing.splitlines() if line.startswith("pub"))

    def _gpg(self, *arguments: str) -> bytes:
        command = ["gpg", "--homedir", str(self.home), "--batch", "--passphrase", "", *arguments]
        return subprocess.run(command, check=True, capture_output=True).stdout

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
