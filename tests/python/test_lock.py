# SPDX-License-Identifier: GPL-2.0-or-later
"""The lock: for the life of the process, respected by others and respecting them."""

from __future__ import annotations

import errno
import os
import subprocess
import sys
import threading
import time
from pathlib import Path
from typing import Any, Iterator, List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import NO_INI_FILE
from program import Program
from rpmestate import Estate

HERE = Path(__file__).resolve().parent

HOLDER = """
import sys
sys.path[:0] = [sys.argv[2], sys.argv[3]]
import fake_host, program
from pathlib import Path
program = program.Program(Path(sys.argv[1]))
try:
    program.start()
    answer = "locked"
except program.errors.LockError as error:
    answer = str(error)
sys.__stdout__.write(answer + "\\n")
sys.__stdout__.flush()
sys.stdin.readline()
"""


class Other:
    """A second process that tries to take the lock and keeps it until `end`."""

    def __init__(self) -> None:
        script = HERE.parent.parent / "share/python/YumIO.py"
        arguments = [sys.executable, "-c", HOLDER, str(script), str(HERE), str(script.parent)]
        self.process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        assert self.process.stdout is not None
        self.answer = self.process.stdout.readline().strip()

    @property
    def pid(self) -> int:
        return self.process.pid

    def end(self) -> None:
        self.process.communicate("\n")


@pytest.fixture
def others() -> Iterator[List[Other]]:
    started: List[Other] = []
    yield started
    for other in started:
        other.end()


def lock_files(estate: Estate) -> List[Path]:
    return [
        estate.root / "var/cache/yum/metadata_lock.pid",
        estate.root / "var/cache/yum/download_lock.pid",
        estate.root / "var/lib/dnf/rpmdb_lock.pid",
    ]


def test_second_process_is_refused_with_the_holders_pid(
    lamp: Tuple[Estate, Program], others: List[Other]
) -> None:
    lamp[1].start()
    others.append(Other())
    name = Path("/proc/self/comm").read_text().strip()
    assert others[0].answer == f"The yum lock is held by process {os.getpid()} ({name})."


def test_this_process_is_refused_and_may_try_again(lamp: Tuple[Estate, Program], others: List[Other]) -> None:
    program = lamp[1]
    other = Other()
    assert other.answer == "locked"
    yumio = program.namespace["YumIO"]()
    with pytest.raises(program.errors.LockError, match=f"held by process {other.pid} "):
        yumio.lock()
    other.end()
    yumio.lock()
    yumio.flush()


def test_session_without_a_configuration_takes_no_lock(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    """The engine takes a lock() that returns for a lock that holds."""
    estate, program = lamp
    other = Other()
    with pytest.raises(program.errors.LockError, match=f"held by process {other.pid} "):
        program.start()
    main = estate.root / "etc/yum.conf"
    readable = main.read_text()
    main.write_text("no ini file")
    host.reset()
    yumio = program.namespace["YumIO"]()
    with pytest.raises(program.errors.LockError, match=NO_INI_FILE):
        yumio.lock()
    assert NO_INI_FILE in host.text("errorlog")
    main.write_text(readable)
    yumio = program.namespace["YumIO"]()
    with pytest.raises(program.errors.LockError, match=f"held by process {other.pid} "):
        yumio.lock()
    other.end()
    yumio.lock()
    assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))


def test_lock_that_is_held_outlives_a_configuration_that_cannot_be_read(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    program.start()
    (estate.root / "etc/yum.conf").write_text("no ini file")
    program.namespace["YumIO"]().lock()
    assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))


def test_lock_outlives_sessions_and_applies(
    estate: Estate, rpms: Catalogue, program: Program, others: List[Other]
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    program.collect()
    program.clear()
    yumio = program.namespace["YumIO"]()
    assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))
    others.append(Other())
    assert f"held by process {os.getpid()} " in others[0].answer
    yumio.unlock()
    others.append(Other())
    assert others[1].answer == "locked"
    yumio.flush()


def test_lock_of_a_dead_process_does_not_count(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    dead = subprocess.Popen(["true"])
    dead.wait()
    for file in lock_files(estate):
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(str(dead.pid))
    program.start()
    assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))


def held_by(estate: Estate, pid: int, age: float = 0) -> None:
    """Lock files of that process, as old as that many seconds."""
    for file in lock_files(estate):
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(str(pid))
        os.utime(file, (time.time() - age, time.time() - age))


def test_lock_of_a_process_that_only_waits_to_be_seen_off_does_not_count(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    with subprocess.Popen(["true"]) as zombie:
        os.waitid(os.P_PID, zombie.pid, os.WEXITED | os.WNOWAIT)
        held_by(estate, zombie.pid)
        program.start()
        assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))


def test_lock_of_a_process_that_is_younger_than_it_does_not_count(lamp: Tuple[Estate, Program]) -> None:
    """The number of a dead process has come to another one."""
    estate, program = lamp
    with subprocess.Popen(["sleep", "60"]) as other:
        try:
            held_by(estate, other.pid, age=3600)
            program.start()
            assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))
        finally:
            other.kill()


def test_lock_changes_hands_and_comes_back(lamp: Tuple[Estate, Program]) -> None:
    from vemyum.lock import LOCK, ProcessLock

    estate, program = lamp
    yumio = program.start()
    # As long as this process's own number, and then shorter.
    for other in (os.getppid(), 1):
        held_by(estate, other)
        LOCK.take_back(other)
        assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))
    held_by(estate, os.getppid())
    taker = ProcessLock()
    taker.take_over(yumio._session._settings, os.getppid())
    assert all(file.read_text() == str(os.getpid()) for file in lock_files(estate))
    taker.give_over(os.getppid())
    assert all(file.read_text() == str(os.getppid()) for file in lock_files(estate))
    held_by(estate, os.getpid())


def test_lock_of_a_third_process_is_never_taken(lamp: Tuple[Estate, Program]) -> None:
    from vemyum.lock import LOCK, ProcessLock

    estate, program = lamp
    yumio = program.start()
    with subprocess.Popen(["sleep", "60"]) as third:
        held_by(estate, third.pid)
        with pytest.raises(program.errors.LockError, match="metadata_lock.pid has been changed"):
            LOCK.take_back(os.getppid())
        with pytest.raises(program.errors.LockError, match="has been changed"):
            ProcessLock().take_over(yumio._session._settings, os.getppid())
        assert all(file.read_text() == str(third.pid) for file in lock_files(estate))
        third.kill()
    held_by(estate, os.getpid())


def test_running_transaction_of_dnf_is_respected(lamp: Tuple[Estate, Program]) -> None:
    """dnf, with a cache of its own, holds just the rpm database's lock."""
    estate, program = lamp
    other = subprocess.Popen(["sleep", "60"])
    try:
        rpmdb_lock = lock_files(estate)[2]
        rpmdb_lock.parent.mkdir(parents=True, exist_ok=True)
        rpmdb_lock.write_text(str(other.pid))
        with pytest.raises(program.errors.LockError, match=f"process {other.pid} \\(sleep\\)"):
            program.start()
        assert not lock_files(estate)[0].exists()
    finally:
        other.terminate()
        other.wait()


# The command line of dnf 5 waits: see tests/dnf5/test_locks.py.
@pytest.mark.dnf4
def test_dnf_is_refused_meanwhile(lamp: Tuple[Estate, Program]) -> None:
    import dnf.lock
    from vemyum.lock import LOCK

    estate, program = lamp
    program.collect()
    code = (
        "import dnf.lock, sys\n"
        "try:\n"
        "    with dnf.lock.build_rpmdb_lock(sys.argv[1], True): print('entered')\n"
        "except dnf.exceptions.ProcessLockError as error: print(error.pid)\n"
    )
    command = [sys.executable, "-c", code, str(estate.root / "var/lib/dnf")]
    done = subprocess.run(command, capture_output=True, text=True, check=True)
    assert done.stdout.strip() == str(os.getpid())
    assert LOCK.held and dnf.lock.build_rpmdb_lock("/nowhere", True) is not None


def test_malformed_lock_file_is_told(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    file = lock_files(estate)[0]
    file.parent.mkdir(parents=True)
    file.write_text("not a number")
    with pytest.raises(program.errors.LockError, match="metadata_lock.pid"):
        program.start()


def test_full_disk_is_told_with_the_file(
    lamp: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum import lock

    def refuse(*_: Any) -> None:
        raise OSError(errno.ENOSPC, os.strerror(errno.ENOSPC))

    with monkeypatch.context() as patch:
        patch.setattr(lock.os, "pwrite", refuse)
        with pytest.raises(lamp[1].errors.LockError, match="metadata_lock.pid: No space left on device"):
            lamp[1].start()


def test_unlock_on_another_thread(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    failures: List[Any] = []

    def call(method: Any) -> None:
        def work() -> None:
            try:
                method()
            except Exception as error:  # noqa: BLE001 - told by the test
                failures.append(error)

        thread = threading.Thread(target=work)
        thread.start()
        thread.join()

    yumio = program.namespace["YumIO"]()
    call(yumio.lock)
    assert all(file.exists() for file in lock_files(estate))
    call(yumio.setupRepos)
    yumio.unlock()
    assert failures == [] and not any(file.exists() for file in lock_files(estate))
    call(yumio.lock)
    assert failures == [] and all(file.exists() for file in lock_files(estate))
    yumio.flush()


def test_whole_job_on_changing_threads(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    results: List[Any] = []

    def on_thread(work: Any) -> Any:
        thread = threading.Thread(target=lambda: results.append(work()))
        thread.start()
        thread.join()
        return results.pop()

    found = on_thread(program.collect)
    on_thread(lambda: found.yumio.apply([found.offered("lone")], [], []))
    assert estate.installed() == {"lone-1.0-1.noarch"}
    program.clear()
    assert on_thread(program.collect).merged() == {"lone": "UpToDate"}
