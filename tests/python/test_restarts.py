# SPDX-License-Identifier: GPL-2.0-or-later
"""What still works with what has been replaced, by the rpm database and a folder like /proc; services that are restarted."""

from __future__ import annotations

import json
import os
import re
import shutil
import sqlite3
import struct
import subprocess
import time
from pathlib import Path
from typing import Any, Dict, List, Optional, Sequence

import pytest
from advisories import UPDATE, UPDATEINFO
from commandline import _command
from libraries import by_library
from program import Program
from rpmestate import Estate, run, spec
from stopping import Stopper
from users import NOBODY, other_users_exist

from vemyum import backend, processes, services
from vemyum.errors import YumBaseError
from vemyum.matters import restarts

HERE = Path(__file__).resolve().parent
TICKS = os.sysconf("SC_CLK_TCK")
BOOT = 1_600_000_000
MONTHS = 400 * 24 * 3600
"""Longer than this machine runs."""
CORE = {
    "kernel", "kernel-core", "kernel-rt", "glibc", "linux-firmware", "systemd", "dbus", "dbus-broker", "dbus-daemon",
    "microcode_ctl",
}


@pytest.fixture(scope="module")
def things(tmp_path_factory: pytest.TempPathFactory) -> Dict[str, Path]:
    """Packages by name, each with a file of its own, and one that only provides a name."""
    estate = Estate(tmp_path_factory.mktemp("things"))
    names = [*sorted(CORE), "kernel-64k", "desk", "tool", "libtool"]
    specs = [
        spec(name, files={f"/usr/lib/{name}.so": name}, provides=["kernel"] if name == "kernel-64k" else [])
        for name in names
    ]
    return dict(zip(names, estate.build(specs)))


@pytest.fixture
def proc(tmp_path: Path) -> "Proc":
    return Proc(tmp_path / "proc", tmp_path / "estate/root")


class Proc:
    """A folder like /proc. The system has begun at BOOT."""

    def __init__(self, folder: Path, root: Path) -> None:
        self.folder, self.root = folder, root
        folder.mkdir()
        (folder / "stat").write_text(f"cpu 1 2 3\nbtime {BOOT}\n")
        (folder / "uptime").write_text("1 1\n")
        self.add(1, 0, [])

    def add(
        self,
        pid: int,
        begun: float,
        files: Sequence[str],
        group: str = "/",
        user: int = 0,
        flags: int = 0,
        command: Sequence[str] = ("/usr/bin/tool", "--now"),
    ) -> Path:
        """`begun` is in seconds since BOOT; a file is a path of the managed system with the kernel's words behind it."""
        place = self.folder / str(pid)
        place.mkdir()
        fields = ["S", "1", "1", "1", "0", "-1", str(flags), *"0" * 12, str(int(begun * TICKS)), "0", "0"]
        (place / "stat").write_text(f"{pid} (a) b ({pid}) " + " ".join(fields) + "\n")
        (place / "status").write_text(f"Name:\ttool\nUid:\t{user}\t{user}\t{user}\t{user}\n")
        (place / "comm").write_text("tool\n")
        (place / "cmdline").write_bytes(b"".join(word.encode() + b"\0" for word in command))
        (place / "cgroup").write_text(f"0::{group}\n")
        lines = ["55d0-55d1 r-xp 00000000 fe:00 0    [vdso]", "55d0-55d1 rw-p 00000000 00:00 0 "]
        for file in files:
            lines.append(f"7f00-7f01 r-xp 00000000 fe:00 12       {self.root}{file}")
            lines.append(f"7f01-7f02 rw-p 00001000 fe:00 12       {self.root}{file}")
        (place / "maps").write_text("\n".join(lines) + "\n")
        return place


def installed_at(estate: Estate, times: Dict[str, int]) -> None:
    """Lets packages have been installed at other times."""
    rpm = estate.rpm("-qa", "--qf", "%{name} %{installtime}\n").splitlines()
    before = {name: int(moment) for name, moment in (line.split() for line in rpm)}
    with sqlite3.connect(estate.root / "var/lib/rpm/rpmdb.sqlite") as database:
        for number, blob in database.execute("SELECT hnum, blob FROM Packages").fetchall():
            for name, moment in times.items():
                if b"\0" + name.encode() + b"\0" + b"1.0\0" in blob:
                    new = blob.replace(struct.pack(">I", before[name]), struct.pack(">I", moment))
                    assert new != blob
                    database.execute("UPDATE Packages SET blob = ? WHERE hnum = ?", (new, number))
    rpm = estate.rpm("--nodigest", "--nosignature", "-qa", "--qf", "%{name} %{installtime}\n").splitlines()
    after = {name: int(moment) for name, moment in (line.split() for line in rpm)}
    assert after == {**before, **times}


def installed_for_the_command_line(estate: Estate, packages: Sequence[Path]) -> None:
    """Behind any start of the system: in a container, the command lines take the moment at which somebody first looks
    at the first process for its start, and count the time since the kernel's from there."""
    estate.repository("base", packages[:1])
    estate.install(packages)
    later = int(time.time()) + MONTHS
    installed_at(estate, {path.name[: -len("-1.0-1.noarch.rpm")]: later for path in packages})


def advice(estate: Estate, proc: Optional["Proc"] = None) -> Dict[str, Any]:
    folder = processes.PROC if proc is None else str(proc.folder)
    return restarts.advice(str(estate.root), backend.library().REBOOT_LISTS, proc=folder)


def needs_restarting(estate: Estate, *words: str) -> "subprocess.CompletedProcess[str]":
    if os.path.exists("/run/systemd/system"):
        pytest.skip("it would ask this machine's systemd")
    # Without the plugins there is no such command, and with the host's settings dnf 5 reads the host's lists.
    command = [word for word in _command(estate) if word not in ("--noplugins", "--no-plugins", "--use-host-config")]
    done = subprocess.run(
        [*command, "needs-restarting", *words],
        env={**estate.command_environment(), "LC_ALL": "C.UTF-8", "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/none"},
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
    )
    if "No such command" in done.stdout or "Unknown argument" in done.stdout:
        pytest.skip("the command line lacks it")
    return done


def by_command_line(estate: Estate) -> List[str]:
    """The packages for whose sake it wants a new start."""
    done = needs_restarting(estate, *by_library(["-r"], []))
    assert "since boot-up" in done.stdout, done.stdout
    found = re.findall(r"^  \* (\S+)$", done.stdout, re.M)
    assert done.returncode == (1 if found else 0), done.stdout
    return sorted(found)


def names(found: Dict[str, Any]) -> List[str]:
    return [one["name"] for one in found["reboot"]]


# A new start ----------------------------------------------------------------------------------------------------


def test_core_packages_of_this_run_of_the_system_want_a_new_start_as_the_command_line_has_it(
    estate: Estate, things: Dict[str, Path]
) -> None:
    installed_for_the_command_line(estate, list(things.values()))
    found = advice(estate)
    assert names(found) == sorted({*CORE, "kernel-64k"})
    # Only newer ones of dnf 4 heed what a package provides; older ones know less names, too.
    new = by_library({"kernel-64k", "kernel-core", "microcode_ctl"}, {"kernel-64k"})
    told = set(by_command_line(estate))
    assert set(names(found)) - new <= told <= set(names(found))
    first = found["reboot"][0]
    assert (first["name"], first["version"]) == ("dbus", "1.0-1") and abs(first["installed"] - time.time() - MONTHS) < 600
    assert 0 < found["since"] < time.time()


def test_packages_of_an_earlier_run_and_others_want_none(estate: Estate, things: Dict[str, Path], proc: Proc) -> None:
    estate.install([things[name] for name in ("glibc", "systemd", "tool")])
    installed_at(estate, {"glibc": BOOT - 1, "systemd": BOOT + 5})
    assert names(advice(estate, proc)) == ["systemd"]
    (proc.folder / "1/stat").write_text((proc.folder / "1/stat").read_text().replace(" 0 0 0\n", f" {9 * TICKS} 0 0\n"))
    # In a container the first process comes later than the kernel.
    assert advice(estate, proc)["since"] == BOOT + 9
    assert names(advice(estate, proc)) == []


def test_lists_of_the_administrator_count_as_for_the_command_line(estate: Estate, things: Dict[str, Path]) -> None:
    installed_for_the_command_line(estate, [things[name] for name in ("tool", "desk", "libtool")])
    assert names(advice(estate)) == by_command_line(estate) == []
    folders = [estate.root / folder.lstrip("/") for folder in backend.library().REBOOT_LISTS]
    for folder in folders:
        folder.mkdir(parents=True)
    (folders[0] / "desk.conf").write_text("desk\nnone\n\n")
    (folders[0] / "tool.list").write_text("tool\n")
    assert names(advice(estate)) == ["desk"]
    if by_library(False, True):
        # Another file of that name lies where packages put theirs.
        (folders[1] / "desk.conf").write_text("tool\n")
        (folders[1] / "more.conf").write_text("# tool\n libtool \n")
        assert names(advice(estate)) == ["desk", "libtool"]
    assert by_command_line(estate) == names(advice(estate))
    (folders[0] / "garbage.conf").write_bytes(os.urandom(4000))
    (folders[0] / "folder.conf").mkdir()
    assert "desk" in names(advice(estate))


# Processes ------------------------------------------------------------------------------------------------------


def test_processes_with_files_of_packages_that_came_later_are_told(
    estate: Estate, things: Dict[str, Path], proc: Proc
) -> None:
    estate.install([things["tool"], things["libtool"]])
    installed_at(estate, {"tool": BOOT + 50, "libtool": BOOT + 100})
    both = ["/usr/lib/tool.so", "/usr/lib/libtool.so (deleted)", "/usr/lib/unowned.so"]
    proc.add(20, 10, both, "/system.slice/tool.service", command=("/usr/bin/tool", "a b"))
    proc.add(21, 60, ["/usr/lib/tool.so", "/usr/lib/libtool.so;6b04b9ac (deleted)"], user=NOBODY)
    proc.add(22, 110, both[:1] + ["/usr/lib/libtool.so"])
    found = advice(estate, proc)
    first, second = found["processes"]
    assert (first["pid"], first["user"], first["userName"], first["command"]) == (20, 0, "root", "tool a b")
    assert (first["started"], first["unit"], first["own"]) == (BOOT + 10, "tool.service", False)
    assert first["files"] == [
        {"path": "/usr/lib/libtool.so", "package": "libtool-1.0-1.noarch", "gone": True},
        {"path": "/usr/lib/tool.so", "package": "tool-1.0-1.noarch", "gone": False},
    ]
    assert (second["pid"], second["user"], second["unit"]) == (21, NOBODY, "")
    assert [one["path"] for one in second["files"]] == ["/usr/lib/libtool.so"]
    assert found["unread"] == 0
    json.dumps(found)


def test_a_process_whose_program_has_been_replaced_is_told_as_the_command_line_has_it(estate: Estate) -> None:
    program = os.path.realpath(shutil.which("sleep") or "")
    installed_for_the_command_line(estate, estate.build(spec("sleeper", files={program: "asleep"})))
    with subprocess.Popen([program, "60"]) as sleeper, subprocess.Popen(["cat"], stdin=subprocess.PIPE) as other:
        try:
            said = needs_restarting(estate, *by_library([], ["--processes"])).stdout
            with restarts._opened(str(estate.root)) as packages:
                # The command lines take the processes of this machine for those of any root.
                found = {one["pid"]: one for one in restarts._outdated(packages, "/", processes.PROC)[0]}
        finally:
            for process in (sleeper, other):
                process.kill()
    for process in (sleeper, other):
        assert (process.pid in found) == bool(re.search(rf"^{process.pid}\b", said, re.M)) == (process is sleeper), said
    assert found[sleeper.pid]["files"] == [{"path": program, "package": "sleeper-1.0-1.noarch", "gone": False}]
    assert found[sleeper.pid]["command"] == "sleep 60"


def test_code_that_is_gone_counts_and_what_programs_make_and_drop_does_not(
    estate: Estate, things: Dict[str, Path], proc: Proc
) -> None:
    estate.install([things["tool"]])
    installed_at(estate, {"tool": BOOT - 50})
    proc.add(20, 10, ["/usr/lib/tool.so (deleted)", "/usr/lib/removed.so (deleted)"])
    data = proc.add(21, 10, ["/usr/lib/cache (deleted)"]) / "maps"
    data.write_text(data.read_text().replace("r-xp", "r--p"))
    proc.add(22, 10, ["/tmp/ffi12 (deleted)", "/dev/zero (deleted)", "/memfd:doublemapper (deleted)"])
    (one,) = advice(estate, proc)["processes"]
    assert one["files"] == [
        {"path": "/usr/lib/removed.so", "package": "", "gone": True},
        {"path": "/usr/lib/tool.so", "package": "tool-1.0-1.noarch", "gone": True},
    ]


def test_names_that_are_no_text_spoil_nothing(estate: Estate, things: Dict[str, Path], proc: Proc) -> None:
    estate.install([things["tool"]])
    maps = proc.add(20, 10, ["/usr/lib/tool.so", "/usr/lib/caf@.so"]) / "maps"
    maps.write_bytes(maps.read_bytes().replace(b"@", b"\xe9"))
    (one,) = advice(estate, proc)["processes"]
    assert [file["path"] for file in one["files"]] == ["/usr/lib/tool.so"]


def test_what_uses_files_outside_the_managed_root_is_left_out(
    estate: Estate, things: Dict[str, Path], proc: Proc
) -> None:
    estate.install([things["tool"]])
    # The system's own, and another root's whose path is as long.
    for pid, other in ((20, ""), (21, f"{str(estate.root)[:-1]}x")):
        place = proc.add(pid, 10, ["/usr/lib/tool.so"]) / "maps"
        place.write_text(place.read_text().replace(str(estate.root), other))
    found = advice(estate, proc)
    assert found["processes"] == [] and not found["running"]
    assert "is not the system that runs" in found["note"]


def test_entries_that_vanish_or_make_no_sense_are_no_error(
    estate: Estate, things: Dict[str, Path], proc: Proc, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate.install([things["tool"]])
    file = ["/usr/lib/tool.so"]
    for pid, name in enumerate(("maps", "stat", "status", "cmdline", "cgroup", "comm"), 20):
        (proc.add(pid, 10, file) / name).unlink()
    for pid, name in enumerate(("maps", "stat", "status", "cmdline", "cgroup"), 30):
        (proc.add(pid, 10, file) / name).write_bytes(os.urandom(500))
    shutil.rmtree(proc.add(40, 10, file))
    for pid in (41, 42):
        proc.add(pid, 10, file)
    (proc.folder / "42/cmdline").write_bytes(b"")
    real = processes.started

    def vanishes(pid: int, folder: str = processes.PROC) -> Optional[float]:
        if pid == 41:
            shutil.rmtree(proc.folder / "41", ignore_errors=True)
        return real(pid, folder)

    monkeypatch.setattr(processes, "started", vanishes)
    found = {one["pid"]: one for one in advice(estate, proc)["processes"]}
    assert sorted(found) == [22, 23, 24, 25, 32, 33, 34, 42]
    assert (found[22]["user"], found[22]["userName"]) == (None, "")
    assert found[23]["command"] == found[42]["command"] == "tool"
    json.dumps(found)
    (proc.folder / "stat").unlink()
    assert advice(estate, proc)["processes"] == []


@pytest.mark.skipif(not other_users_exist(), reason="no other user")
def test_processes_that_may_not_be_read_are_counted(
    estate: Estate, things: Dict[str, Path], proc: Proc, tmp_path: Path
) -> None:
    estate.install([things["tool"]])
    proc.add(20, 10, ["/usr/lib/tool.so"])
    for pid, flags in ((21, 0), (22, 0), (23, 0x200000)):
        (proc.add(pid, 10, ["/usr/lib/tool.so"], flags=flags) / "maps").chmod(0)
    for above in (tmp_path, tmp_path.parent, tmp_path.parent.parent):
        above.chmod(0o755)
    reading, writing = os.pipe()
    child = os.fork()
    if child == 0:
        try:
            os.setgid(NOBODY)
            os.setuid(NOBODY)
            said: Any = advice(estate, proc)
        except BaseException as error:  # noqa: BLE001 - told below
            said = f"{type(error)}: {error}"
        os.write(writing, json.dumps(said).encode())
        os._exit(0)
    os.close(writing)
    with open(reading, "rb") as pipe:
        said = json.loads(pipe.read())
    os.waitpid(child, 0)
    # Threads of the kernel use no files.
    assert (said["unread"], [one["pid"] for one in said["processes"]]) == (2, [20]), said


def test_units_are_told_with_their_processes_and_what_speaks_against_a_restart(
    estate: Estate, things: Dict[str, Path], proc: Proc, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate.install([things["tool"]])
    groups = [
        "/system.slice/tool.service",
        "/system.slice/tool.service/worker",
        "/system.slice/system-tool.slice/_tool@one.service",
        "/user.slice/user-0.slice/user@0.service/app.slice/desk.service",
        "/user.slice/user-0.slice/user@0.service/init.scope",
        "/user.slice/user-0.slice/session-2.scope",
        "/system.slice/dbus.service",
        "/init.scope",
        "/",
        "/system.slice/gdm.service",
        "/system.slice/vncserver@:1.service",
        "/system.slice/odd-screens.service",
        "/system.slice/terminal.service",
    ]
    for pid, group in enumerate(groups, 20):
        proc.add(pid, 10, ["/usr/lib/tool.so"], group)
    # Beside other hierarchies, as older systems have it.
    (proc.folder / "21/cgroup").write_text("4:memory:/\n1:name=systemd:/system.slice/tool.service/worker\n0::/\n")
    # Whatever shows the screens, and what this program runs in.
    monkeypatch.setattr(services, "_SCREENS_OWN", str(proc.folder / "odd-screens.service"))
    monkeypatch.setattr(services, "_own_units", lambda: ["terminal.service"])
    found = advice(estate, proc)
    assert all("system that runs" in one["obstacle"] for one in found["units"])
    units = {one["unit"]: one for one in restarts._units(found["processes"], True)}
    assert units["tool.service"]["pids"] == [20, 21]
    assert {name for name, one in units.items() if not one["obstacle"]} == {"tool.service", "tool@one.service"}
    assert (units["desk.service"]["own"], units["desk.service"]["user"]) == (True, "root")
    assert "log out" in units["user@0.service"]["obstacle"] and "log out" in units["session-2.scope"]["obstacle"]
    assert "start the system anew" in units["dbus.service"]["obstacle"]
    for name in ("gdm", "vncserver@:1", "odd-screens", "terminal"):
        assert "end the sessions" in units[f"{name}.service"]["obstacle"], name
    assert set(units) >= {"init.scope"} and len(units) == 11


def test_damaged_database_is_told(estate: Estate, things: Dict[str, Path], proc: Proc) -> None:
    estate.install([things["tool"]])
    database = estate.root / "var/lib/rpm/rpmdb.sqlite"
    for name in ("rpmdb.sqlite-wal", "rpmdb.sqlite-shm"):
        (database.parent / name).unlink(missing_ok=True)
    database.write_bytes(b"garbage " * 4096)
    with pytest.raises(YumBaseError, match="cannot be read"):
        advice(estate, proc)


def test_the_script_gives_the_advice_before_anything_is_collected(
    estate: Estate, program: Program, things: Dict[str, Path]
) -> None:
    estate.install([things["glibc"]])
    yumio = program.namespace["YumIO"]()
    found = yumio.restartAdvice()
    assert names(found) == ["glibc"] and found["processes"] == []
    with pytest.raises(program.errors.YumBaseError, match="is not the system that runs: no services"):
        yumio.restartServices(["tool.service"])


@pytest.mark.dnf5
def test_an_advisory_may_want_a_new_start_too(estate: Estate, program: Program, things: Dict[str, Path]) -> None:
    installed_for_the_command_line(estate, [things["tool"], things["desk"]])
    tool = UPDATE.format(id="S-1", name="tool", version="1.0")
    tool = tool.replace("</filename>", "</filename><reboot_suggested>True</reboot_suggested>")
    # Of a version that isn't there.
    desk = tool.replace("S-1", "S-2").replace("tool", "desk").replace("1.0", "2.0")
    base = estate.repos_dir / "base"
    (base / "updateinfo.xml").write_text(UPDATEINFO.format(tool + desk))
    run(["modifyrepo_c", "--mdtype=updateinfo", base / "updateinfo.xml", base / "repodata"])
    yumio = program.namespace["YumIO"]()
    assert names(yumio.restartAdvice()) == []
    yumio = program.collect().yumio
    assert names(yumio.restartAdvice()) == by_command_line(estate) == ["tool"]


# Services -------------------------------------------------------------------------------------------------------


@pytest.fixture
def systemctl(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Path:
    """A stand-in that notes how it is called; the only one that can be found."""
    folder = tmp_path / "bin"
    folder.mkdir()
    program = folder / "systemctl"
    program.write_text(
        f"""#!/bin/sh
echo "$@" >>{tmp_path}/calls
case "$*" in
  *try-restart*bad.service) echo "Job for bad.service failed." >&2; exit 1;;
  *try-restart*slow.service) exec {shutil.which("sleep")} 60;;
  *is-failed*short.service) exit 0;;
  *is-failed*) exit 1;;
esac
"""
    )
    program.chmod(0o755)
    monkeypatch.setenv("PATH", str(folder))
    return tmp_path / "calls"


def test_services_are_restarted_one_by_one_and_each_result_is_told(systemctl: Path, host: Any) -> None:
    done = services.restarted("/", ["good.service", "bad.service", "short.service", "good.service", "a@b.service"])
    assert [(one["unit"], one["done"]) for one in done] == [
        ("good.service", True),
        ("bad.service", False),
        ("short.service", False),
        ("a@b.service", True),
    ]
    assert done[0]["text"] == "" and "Job for bad.service failed." in done[1]["text"]
    assert "has failed after its restart" in done[2]["text"]
    calls = [line for line in systemctl.read_text().splitlines() if "try-restart" in line]
    assert calls[0] == "--no-ask-password --no-pager try-restart -- good.service" and len(calls) == 4
    assert "Restarted good.service" in host.text("log") and "bad.service" in host.text("errorlog")


@pytest.mark.parametrize(
    "unit",
    ["--now", "*.service", "a.service b.service", "$(id).service", "-a.service", "a.target", "x", "", "dbus.service",
     "user@0.service", "session-1.scope", "a\n.service", "../a.service"],
)  # fmt: skip
def test_what_is_no_service_to_be_restarted_is_refused_before_anything_is_done(systemctl: Path, unit: str) -> None:
    with pytest.raises(YumBaseError):
        services.restarted("/", ["good.service", unit])
    assert not systemctl.exists()


def test_services_of_another_root_are_never_restarted(systemctl: Path, estate: Estate) -> None:
    with pytest.raises(YumBaseError, match="is not the system that runs: no services are restarted"):
        services.restarted(str(estate.root), ["good.service"])
    assert not systemctl.exists()


def test_only_the_administrator_restarts(systemctl: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(os, "geteuid", lambda: NOBODY)
    with pytest.raises(YumBaseError, match="Only the administrator can restart services"):
        services.restarted("/", ["good.service"])
    assert not systemctl.exists()


def test_a_service_that_takes_too_long_does_not_keep_the_next_one(
    systemctl: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(services, "LONGEST", 1.0)
    slow, good = services.restarted("/", ["slow.service", "good.service"])
    assert "was not restarted within 1 seconds" in slow["text"] and good["done"]


def test_the_wish_to_stop_leaves_the_others_alone(
    systemctl: Path, program: Program, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    stopper = Stopper(program, tmp_path)
    try:
        with stopper.once(systemctl, "slow.service"):
            slow, good = services.restarted("/", ["slow.service", "good.service"])
    finally:
        stopper.close()
    assert "systemd goes on" in slow["text"] and good["text"] == "good.service: Stopped"
    assert "good.service" not in systemctl.read_text()


def test_a_machine_without_systemd_says_so(
    tmp_path: Path, monkeypatch: pytest.MonkeyPatch, host: Any
) -> None:
    monkeypatch.setenv("PATH", str(tmp_path))
    (one,) = services.restarted("/", ["good.service"])
    assert not one["done"] and "systemctl" in one["text"]
