# SPDX-License-Identifier: GPL-2.0-or-later
"""Systems made of stand-in commands (standin.py), each with a small list of packages."""
from __future__ import annotations

import shutil
import subprocess
import sys
from pathlib import Path
from typing import Iterable

HOUSE = Path(__file__).resolve().parents[2]
STANDIN = Path(__file__).with_name("standin.py")
TOOLS = ("bash", "cat", "comm", "dirname", "env", "grep", "mkdir", "rm", "sed", "sort", "true", "uname", "unshare")
LIST = """# SPDX-License-Identifier: GPL-2.0-or-later
# Debian   Fedora      Enterprise Linux
rudder-dev rudder-devel =
# oars
oars       oars         sculls             crb
sail       sail         =                  epel
-          keel         =
dinghy     -            -
anchor?    -            -
pennant    pennant      /usr/bin/pennant
"""
SYSTEMS = {
    "debian": "ID=debian\nVERSION_ID=12\n",
    "ubuntu": "ID=elementary\nID_LIKE=ubuntu\n",
    "fedora": "ID=fedora\nVERSION_ID=43\n",
    "rhel": 'ID="rhel"\nID_LIKE="fedora"\nVERSION_ID="9.6"\n',
    "rocky": 'ID="rocky"\nID_LIKE="rhel centos fedora"\nVERSION_ID="10.1"\n',
    "ol": 'ID="ol"\nID_LIKE="fedora"\nVERSION_ID="9.5"\n',
    "other": "ID=slackware\n",
}
RPM_NAMES = {"fedora": ["keel", "oars", "pennant", "rudder-devel", "sail"]}
RPM_NAMES["el"] = ["/usr/bin/pennant", "keel", "rudder-devel", "sail", "sculls"]


class System:
    """A machine with these commands and this list of packages; everything lies below one folder."""

    def __init__(self, folder: Path, kind: str, commands: Iterable[str]) -> None:
        self.state = folder / "state"
        self.commands = folder / "bin"
        self.list = folder / "packages.list"
        self.release = folder / "os release"
        self.crb = ""  # how an Enterprise Linux names that repository
        for made in (self.state, self.commands):
            made.mkdir()
        for tool in TOOLS:
            (self.commands / tool).symlink_to(str(shutil.which(tool)))
        for command in ("id", *commands):
            file = self.commands / command
            file.write_text(f"#!{sys.executable} -IS\n{STANDIN.read_text()}")
            file.chmod(0o755)
        self.list.write_text(LIST)
        self.release.write_text(SYSTEMS[kind])
        self.has("version", "4.14.0", "  Installed: dnf-0:4.14.0-1.noarch")

    def has(self, what: str, *lines: str) -> None:
        (self.state / what).write_text("".join(f"{line}\n" for line in lines))

    def run(self, words: str, status: int = 0) -> str:
        """Runs words of the shell after sourcing the script, as ./run does, and gives what they said."""
        return self.bash("-c", f'set -euo pipefail; source "{HOUSE}/tools/packages.sh"; {words}', status=status)

    def bash(self, *words: str, status: int = 0) -> str:
        environment = {"PATH": str(self.commands), "VEM_OS_RELEASE": str(self.release), "LC_ALL": "C.UTF-8",
                       "VEM_STANDINS": str(self.state)}
        done = subprocess.run(
            [self.commands / "bash", *words], env=environment, stdin=subprocess.DEVNULL, text=True,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False,
        )
        assert done.returncode == status, done.stdout
        return done.stdout

    def install(self, status: int = 0) -> str:
        return self.run(f'install_packages "{self.list}"', status)

    def calls(self, *with_word: str) -> list[str]:
        """The calls of commands, but for those that only ask, in which all these words stand."""
        file = self.state / "calls"
        calls = file.read_text().splitlines() if file.exists() else []
        asking = ("id ", "rpm ", "dpkg-query ", "apt-cache ")
        return [call for call in calls if not call.startswith(asking) and all(word in call for word in with_word)]

    def installed(self) -> list[str]:
        return sorted((self.state / "installed").read_text().split())
