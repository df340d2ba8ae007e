# SPDX-License-Identifier: GPL-2.0-or-later
"""Runs what is measured: the program with the driver in it, and dnf on the same estate."""

from __future__ import annotations

import contextlib
import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Iterator, Mapping, Optional, Sequence

from rpmestate import Estate
from vemyum import choice

DNF_MODULE = "import sys; from dnf.cli import main; main.user_main(sys.argv[1:], exit_code=True)"
LONGEST_RUN_SECONDS = 600
HELPER = Path(__file__).resolve().parents[1] / "helper/YumIO.py"

Step = Mapping[str, Any]
Line = Mapping[str, Any]


class BenchError(RuntimeError):
    """A run that can't be counted; the text says why."""


@dataclass(frozen=True)
class DnfRun:
    """One run of dnf: wall clock in seconds, peak resident memory in MiB, lines of standard output."""

    seconds: float
    mebibytes: float
    lines: int


@dataclass(frozen=True)
class Build:
    """A build of the program: the executable, and the share directory that belongs to it."""

    program: Path

    @property
    def share(self) -> Path:
        return self.program.resolve().parent.parent / "share/vem"


class Ground:
    """What runs of one benchmark share: the driver, a display, a home without settings, and the package library, which
    is that of the dnf beside, too."""

    def __init__(self, driver: Path, home: Path, environment: Mapping[str, str], backend: str) -> None:
        self.driver = driver
        self.home = home
        self.backend = backend
        self.environment = {**os.environ, "LC_ALL": "C.UTF-8", choice.VARIABLE: backend}
        self._shown = dict(environment)

    def dnf(self, estate: Estate, *words: str) -> DnfRun:
        """Runs dnf on an estate to its end. BenchError when it fails."""
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as said:
            start = time.monotonic()
            process = subprocess.Popen(
                dnf_command(self.backend, estate.root, *words),
                env={**estate.command_environment(), "LC_ALL": "C.UTF-8"},
                stdin=subprocess.DEVNULL,
                stdout=output,
                stderr=said,
            )
            # wait4 and not wait(): it gives the usage of this one child.
            _, status, usage = os.wait4(process.pid, 0)
            seconds = time.monotonic() - start
            process.returncode = os.waitstatus_to_exitcode(status)
            if process.returncode != 0:
                said.seek(0)
                text = said.read().decode(errors="replace").strip()[-800:]
                command = f"{self.backend} {' '.join(words)}"
                raise BenchError(f"{command} ended with status {process.returncode}. {text}")
            output.seek(0)
            lines = sum(block.count(b"\n") for block in iter(lambda: output.read(1 << 20), b""))
        return DnfRun(seconds, usage.ru_maxrss / 1024, lines)

    def program(
        self, build: Build, estate: Estate, steps: Sequence[Step], helper: Optional[Mapping[str, str]] = None
    ) -> list[Line]:
        """Starts a build on an estate, lets the driver do the steps, and gives its lines, the start first.

        In the first line "seconds" is the time from exec to the table. `helper` holds the variables of
        helper/YumIO.py, which then stands before the program's own script. BenchError when something fails.
        """
        with tempfile.TemporaryDirectory() as directory:
            place = Path(directory)
            environment = {
                **self.environment,
                **self._shown,
                "HOME": str(self.home),
                "XDG_CONFIG_HOME": str(place),
                "LD_PRELOAD": str(self.driver),
                "VEMROOT": str(estate.root),
                "VEMSHARE": str(build.share),
                "VEM_BENCH_STEPS": str(place / "steps"),
                "VEM_BENCH_OUTPUT": str(place / "output"),
            }
            if helper is not None:
                environment["VEMSHARE"] = str(share_with_helper(build.share, place / "share"))
                environment.update(
                    helper,
                    VEM_BENCH_SCRIPT=str(build.share / "python/YumIO.py"),
                    VEM_BENCH_HELPER=str(HELPER.parent),
                )
            (place / "steps").write_text(json.dumps(list(steps)), encoding="utf-8")
            (place / "output").touch()
            with open(place / "said", "wb") as said:
                start = time.monotonic()
                process = subprocess.Popen(
                    [str(build.program)],
                    env=environment,
                    stdin=subprocess.DEVNULL,
                    stdout=said,
                    stderr=subprocess.STDOUT,
                )
                try:
                    status = process.wait(LONGEST_RUN_SECONDS)
                except subprocess.TimeoutExpired:
                    process.kill()
                    status = process.wait()
            lines = parsed((place / "output").read_text(encoding="utf-8"))
            tail = (place / "said").read_text(encoding="utf-8", errors="replace").strip()[-800:]
        for line in lines:
            if "error" in line:
                raise BenchError(f"{build.program}: {line['error']}")
        if status != 0:
            raise BenchError(f"{build.program} ended with status {status}. {tail}")
        if len(lines) != len(steps) + 1:
            raise BenchError(f"{build.program}: {len(lines)} lines for {len(steps)} steps. {tail}")
        return [{**lines[0], "seconds": lines[0]["at"] - start}, *lines[1:]]


def parsed(text: str) -> list[dict[str, Any]]:
    """The driver's lines. BenchError for what isn't one."""
    try:
        lines = [json.loads(line) for line in text.splitlines()]
    except ValueError as error:
        raise BenchError(f"The driver wrote something odd: {error}") from error
    for line in lines:
        if not isinstance(line, dict):
            raise BenchError(f"The driver wrote something odd: {line}")
    return lines


def backends() -> list[str]:
    """The package libraries that this machine has, each with the command line that it is measured beside."""
    return [one for one in choice.BACKENDS if choice.can_be_imported(one) and (one == choice.DNF4 or _command(one))]


def _command(backend: str) -> Optional[str]:
    return shutil.which({choice.DNF4: "dnf-3", choice.DNF5: "dnf5"}[backend], path="/usr/bin:/bin")


def dnf_command(backend: str, root: Path, *words: str) -> list[str]:
    dnf = _command(backend)
    # dnf 4's is a wrapper around this call, in a package that need not be installed.
    start = [dnf] if dnf else ["/usr/bin/python3", "-c", DNF_MODULE]
    where = [f"--installroot={root}", f"--config={root}/etc/yum.conf"]
    where += [f"--setopt=reposdir={root}/etc/yum.repos.d"]
    return [*start, *where, "--releasever=1", "-q", *words]


def share_with_helper(share: Path, place: Path) -> Path:
    """A share directory in which helper/YumIO.py stands where the program's own script stands in `share`."""
    (place / "python").mkdir(parents=True)
    for source, target in ((share, place), (share / "python", place / "python")):
        for entry in source.iterdir():
            if entry.name not in ("python", "YumIO.py"):
                (target / entry.name).symlink_to(entry)
    (place / "python/YumIO.py").symlink_to(HELPER)
    return place


@contextlib.contextmanager
def display() -> Iterator[dict[str, str]]:
    """Environment with a display: the present one, else that of an X server without a screen."""
    if os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY") or os.environ.get("QT_QPA_PLATFORM"):
        yield {}
        return
    if not shutil.which("Xvfb"):
        yield {"QT_QPA_PLATFORM": "offscreen"}
        return
    reading, writing = os.pipe()
    options = ["-displayfd", str(writing), "-screen", "0", "1280x900x24", "-nolisten", "tcp"]
    server = subprocess.Popen(["Xvfb", *options], pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        with os.fdopen(reading) as stream:
            number = stream.readline().strip()
        if not number:
            raise BenchError("Xvfb did not start.")
        yield {"DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb"}
    finally:
        server.send_signal(signal.SIGTERM)
        server.wait()
