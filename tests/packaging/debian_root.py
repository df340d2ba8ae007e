# SPDX-License-Identifier: GPL-2.0-or-later
"""A small Debian in a folder: the host's release, made by mmdebstrap, with programs run in it by chroot.

For root only. What is mounted there is mounted in a name space of the one command that needs it, and so gone with
that command; where name spaces or mounts are refused, as in many containers, it goes without /proc.
"""
from __future__ import annotations

import os
import re
import shutil
import subprocess
import tempfile
from pathlib import Path
from typing import Mapping, Optional, Sequence, Union

SHELL_PATH = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"

# $1 the root, $2 sockets outside of it that the command has to reach, then the command. Ends as that command, so
# that its process has the number of this shell's.
STEP_IN = """
root=$1 sockets=$2
shift 2
mount -t proc proc "$root/proc" 2>/dev/null
for socket in $sockets; do
    mkdir -p "$root${socket%/*}"
    : >"$root$socket"
    mount --bind "$socket" "$root$socket" 2>/dev/null || ln -f "$socket" "$root$socket" || exit 1
done
exec chroot "$root" "$@"
"""


def other_users_exist() -> bool:
    """Whether this is root, and not one of a user namespace that has only one user."""
    return os.geteuid() == 0 and Path("/proc/self/uid_map").read_text().split()[2] != "1"


def own_mounts() -> list[str]:
    """What to put before a command so that its mounts are its own."""
    wrapper = ["unshare", "--mount"]
    return wrapper if subprocess.run([*wrapper, "true"], capture_output=True, check=False).returncode == 0 else []


def debian_sources() -> str:
    """The Debian archives that this machine uses, as lines of a sources.list; those of others left out."""
    known = _known_sources([])
    if known:
        return known
    # Nothing was fetched here yet, or what was has been cleaned away, as images and folders of a system come.
    with tempfile.TemporaryDirectory(prefix="vem-apt-") as lists:
        options = [f"--option=Dir::State::Lists={lists}", "--option=Acquire::Check-Valid-Until=false"]
        subprocess.run(["apt-get", *options, "--quiet=2", "update"], check=True)
        return _known_sources(options)


def _known_sources(options: Sequence[str]) -> str:
    shape = "deb $(REPO_URI) $(RELEASE) $(COMPONENT)"
    lines = subprocess.run(
        ["apt-get", *options, "indextargets", "--format", shape, "Created-By: Packages", "Origin: Debian"],
        check=True, capture_output=True, text=True,
    ).stdout.splitlines()
    return "".join(f"{line}\n" for line in sorted(set(lines)))


def codename() -> str:
    found = re.search(r"^VERSION_CODENAME=(\w+)$", Path("/etc/os-release").read_text(), re.MULTILINE)
    assert found, "this Debian has no name"
    return found[1]


class DebianRoot:
    """Made by the constructor, which downloads some 150 MB and takes a minute; `remove` it in the end."""

    def __init__(self, deb: Path) -> None:
        self.work = Path(tempfile.mkdtemp(prefix="vem-debian-"))
        self.work.chmod(0o755)
        self.root = self.work / "root"
        sources = self.work / "sources.list"
        sources.write_text(debian_sources())
        try:
            done = subprocess.run(
                [
                    *own_mounts(), "mmdebstrap", "--mode=root", "--variant=apt", "--format=directory",
                    # A mirror's list of a release in the making may be older than it says it may become.
                    '--aptopt=Acquire::Check-Valid-Until "false"',
                    f"--customize-hook=copy-in {deb} /root",
                    # As an administrator installs a package that isn't in the archive.
                    f'--customize-hook=chroot "$1" apt-get -q -y --no-install-recommends install /root/{deb.name}',
                    codename(), self.root, sources,
                ],
                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
            )
            assert done.returncode == 0, done.stdout[-6000:]
        except BaseException:
            self.remove()
            raise

    def remove(self) -> None:
        # Should anything be mounted there after all, it stays.
        subprocess.run(["rm", "-rf", "--one-file-system", self.work], check=True)

    @staticmethod
    def command(
        root: Path, words: Sequence[str], environment: Mapping[str, str], sockets: Sequence[Path] = ()
    ) -> list[str]:
        """The words that run a command in the root, with this environment and no other."""
        assigned = ["/usr/bin/env", "-i", f"PATH={SHELL_PATH}", "HOME=/root", "LC_ALL=C.UTF-8"]
        assigned += [f"{name}={value}" for name, value in environment.items()]
        places = " ".join(str(socket) for socket in sockets)
        return [*own_mounts(), "sh", "-c", STEP_IN, "sh", str(root), places, *assigned, *words]

    def run(self, *words: str, environment: Optional[Mapping[str, str]] = None) -> str:
        """Runs a command and gives what it printed."""
        command = self.command(self.root, words, environment or {})
        done = subprocess.run(
            command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False
        )
        assert done.returncode == 0, f"{' '.join(words)}: status {done.returncode}\n{done.stdout}"
        return done.stdout


def screen_sockets() -> tuple[dict[str, str], list[Path]]:
    """The environment by which a program finds this display and its accessibility bus, and their sockets."""
    number = os.environ["DISPLAY"].lstrip(":").partition(".")[0]
    sockets = [Path(f"/tmp/.X11-unix/X{number}")]
    # Everything that tools/on-virtual-display sets.
    names = ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "QT_QPA_PLATFORM")
    environment = {name: os.environ[name] for name in names}
    answer = subprocess.run(
        ["dbus-send", "--session", "--print-reply=literal", "--dest=org.a11y.Bus", "/org/a11y/bus",
         "org.a11y.Bus.GetAddress"],
        check=True, capture_output=True, text=True,
    ).stdout
    for address in (environment["DBUS_SESSION_BUS_ADDRESS"], answer.strip()):
        path = re.match(r"unix:path=([^,;]+)", address)
        if path:
            sockets.append(Path(path[1]))
    return environment, sockets
