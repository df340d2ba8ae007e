# SPDX-License-Identifier: GPL-2.0-or-later
"""The process that applies changes: what the program hears of it, and what is left when one of the two dies."""

from __future__ import annotations

import contextlib
import os
import signal
import sqlite3
import subprocess
import sys
import time
from pathlib import Path
from typing import Any, Callable, Iterator, List, Optional, Set, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import BACKEND, HISTORY, by_library
from program import Program
from rpmestate import Estate
from vemyum import choice

HERE = Path(__file__).resolve().parent
SCRIPT = HERE.parent.parent / "share/python/YumIO.py"

REFRESH = "A part of the transaction may have been done: please refresh the list of packages."

Scripted = Callable[[str], Callable[[], None]]


def fails(program: Program, apply: Callable[[], None]) -> str:
    with pytest.raises(program.errors.YumBaseError) as caught:
        apply()
    return str(caught.value)


def eventually(condition: Callable[[], Any], seconds: float = 60) -> None:
    deadline = time.monotonic() + seconds
    while not condition():
        assert time.monotonic() < deadline, "it did not happen"
        time.sleep(0.02)


def lock_files(estate: Estate) -> List[Path]:
    return [
        estate.root / "var/cache/yum/metadata_lock.pid",
        estate.root / "var/cache/yum/download_lock.pid",
        estate.root / "var/lib/dnf/rpmdb_lock.pid",
    ]


def holders(estate: Estate) -> List[Optional[str]]:
    return [file.read_text() if file.exists() else None for file in lock_files(estate)]


@pytest.fixture
def ready(estate: Estate, rpms: Catalogue, program: Program) -> Tuple[Estate, Program]:
    """battery is installed, base has lone."""
    estate.install(rpms.some("battery-1.0"))
    estate.repository("base", rpms.some("lone-1.0"))
    return estate, program


# A child that says what a test wants -----------------------------------------------------------------------


@pytest.fixture
def scripted(
    ready: Tuple[Estate, Program], tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> Callable[[str], Callable[[], None]]:
    """An apply whose other process runs these lines; `say` writes bytes, `hear` reads a line."""
    from vemyum.apply import messages, parent

    script = tmp_path / "scripted.py"

    def apply_with(lines: str) -> Callable[[], None]:
        script.write_text(
            "import os, signal, socket, sys, time\n"
            "connection = socket.socket(fileno=int(sys.argv[1]))\n"
            "reader = connection.makefile('rb')\n"
            "say, hear = connection.sendall, reader.readline\n"
            f"hello = lambda: say({messages.to_line(messages.Hello(messages.PROTOCOL))!r}) or hear()\n"
            f"{lines}\n"
        )
        monkeypatch.setattr(parent, "COMMAND", [sys.executable, "-B", str(script)])
        found = ready[1].collect()
        return lambda: found.yumio.apply([found.offered("lone")], [], [])

    return apply_with


ENDED = b'{"is":"Ended","outcome":"%s","text":"%s","installed":-1}\n'


def test_end_is_all_that_is_needed(scripted: Scripted, host: FakeHost) -> None:
    scripted(f"hello(); say({ENDED % (b'done', b'')!r})")()
    assert host.calls[-1][0] == "postTransactionOutput"


def test_request_names_the_marks_and_the_repositories(scripted: Scripted, tmp_path: Path) -> None:
    line = tmp_path / "line"
    scripted(f"open({str(line)!r}, 'wb').write(hello()); say({ENDED % (b'refused', b'')!r})")()
    from vemyum.apply import messages

    request = messages.from_line(line.read_bytes())
    assert isinstance(request, messages.Request)
    assert [(section.name, section.enabled) for section in request.repositories] == [("base", True)]
    assert request.repositories[0].options["baseurl"].startswith("file:///")
    assert (request.incoming, request.removes) == ([messages.Wish("base", "lone", "noarch", "1.0-1")], [])
    assert (request.installed, request.main_file) == (1, "/etc/yum.conf")
    assert request.comment == "install lone-1.0-1.noarch"


@pytest.mark.parametrize(
    "lines, words",
    [
        ("sys.exit(3)", "has died (exit status 3).\nNothing was changed."),
        ("hello(); sys.exit(3)", "has died (exit status 3).\nNothing was changed."),
        ("hello(); os.kill(os.getpid(), 9)", "has died (signal 9, Killed).\nNothing was changed."),
        ("hello(); say(b'{\"is\":\"Sol')", "has died (exit status 0).\nNothing was changed."),
        ("hello(); connection.close(); reader.close(); time.sleep(0.3); sys.exit(4)", "has died (exit status 4)"),
        ("hello(); say(b'{\"is\":\"TransactionStarts\",\"real\":false}\\n')", "Nothing was changed."),
        ("hello(); say(b'{\"is\":\"TransactionStarts\",\"real\":true}\\n')", REFRESH),
        ("say(b'garbage\\n'); hear()", "said what cannot be understood: 'garbage\\n'\nNothing was changed."),
        ("hello(); say(b'\\0' * 3000 + b'\\n'); hear()", "said what cannot be understood: '\\x00"),
        ("hello(); say(b'{\"is\":\"Answer\",\"confirmed\":true}\\n'); hear()", "cannot be understood: Answer"),
        (
            "hello(); say(b'{\"is\":\"TransactionStarts\",\"real\":true}\\n{}\\n')",
            f"cannot be understood: '{{}}\\n'\n{REFRESH}",
        ),
        ("say(b'{\"is\":\"Hello\",\"protocol\":0}\\n'); hear()", "files have been changed since it was started"),
    ],
)
def test_child_that_dies_or_talks_nonsense_is_one_clear_error(
    ready: Tuple[Estate, Program], scripted: Scripted, host: FakeHost, lines: str, words: str
) -> None:
    assert words in fails(ready[1], scripted(lines))
    assert holders(ready[0]) == [str(os.getpid())] * 3


def test_silence_is_waited_out(ready: Tuple[Estate, Program], scripted: Scripted) -> None:
    assert fails(ready[1], scripted(f"time.sleep(0.5); hello(); say({ENDED % (b'failed', b'at last')!r})")) == "at last"


def test_child_that_cannot_be_started_is_told(
    ready: Tuple[Estate, Program], scripted: Scripted, monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum.apply import parent

    apply = scripted("")
    monkeypatch.setattr(parent, "COMMAND", ["/nowhere/python3"])
    assert "/nowhere/python3: No such file or directory" in fails(ready[1], apply)


def test_fault_of_the_program_itself_comes_with_its_traceback(
    ready: Tuple[Estate, Program], in_child: Callable[[str], None]
) -> None:
    in_child("import vemyum.configuration as one\ndef fail(): return 1 // 0\none.main_file = lambda root: fail()")
    found = ready[1].collect()
    with pytest.raises(Exception, match="ZeroDivisionError") as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    assert type(caught.value).__name__ == "ChildFault" and "in fail" in str(caught.value)


def test_exception_of_the_host_ends_an_apply_that_has_not_begun(
    ready: Tuple[Estate, Program], host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    def refuse() -> int:
        raise ZeroDivisionError

    found = ready[1].collect()
    monkeypatch.setattr(host, "userconfirm", refuse)
    with pytest.raises(ZeroDivisionError):
        found.yumio.apply([found.offered("lone")], [], [])
    assert ready[0].installed() == {"battery-1.0-1.noarch"}
    assert holders(ready[0]) == [str(os.getpid())] * 3
    monkeypatch.undo()


def test_exception_of_the_host_leaves_what_has_begun_to_its_end(
    ready: Tuple[Estate, Program], host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    def refuse(*_: Any) -> None:
        raise ZeroDivisionError

    found = ready[1].collect()
    with monkeypatch.context() as patch:
        patch.setattr(host, "tsEvent", refuse)
        found.yumio.apply([found.offered("lone")], [], [])
    assert "ZeroDivisionError" in host.text("errorlog")
    assert ready[0].installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


# Who works and who holds the lock --------------------------------------------------------------------------


def test_lock_is_the_childs_while_it_works_and_the_programs_behind_it(
    ready: Tuple[Estate, Program], host: FakeHost
) -> None:
    estate, program = ready
    seen: List[List[Optional[str]]] = []
    host.on_confirm = lambda: seen.append(holders(estate))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    ((one, *others),) = seen
    assert one is not None and others == [one, one] and one != str(os.getpid())
    assert holders(estate) == [str(os.getpid())] * 3
    assert not (estate.root / "var/lib/dnf/vem-transaction").exists()


def test_program_never_changes_its_root_and_has_no_child_left(
    ready: Tuple[Estate, Program], host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    roots = set()
    event = host.tsEvent
    monkeypatch.setattr(host, "tsEvent", lambda *some: (roots.add(os.readlink("/proc/self/root")), event(*some))[1])
    found = ready[1].collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert roots == {"/"}
    with pytest.raises(ChildProcessError):
        os.waitpid(-1, os.WNOHANG)
    monkeypatch.undo()


# Deaths ----------------------------------------------------------------------------------------------------

WINDOW = """
import signal, sys
# As the engine has it.
signal.signal(signal.SIGINT, signal.SIG_DFL)
sys.path[:0] = [sys.argv[2], sys.argv[3]]
import fake_host, program
from pathlib import Path
program = program.Program(Path(sys.argv[1]))
say = lambda text: (sys.__stdout__.write(text + "\\n"), sys.__stdout__.flush())
found = program.collect()
fake_host.HOST.on_confirm = lambda: (say("asked"), sys.stdin.readline())
found.yumio.apply(list(found.available), [], [])
say("done")
"""


class Window:
    """A program of its own that installs all there is, once `agree` is called."""

    def __init__(self) -> None:
        command = [sys.executable, "-B", "-c", WINDOW, str(SCRIPT), str(HERE), str(SCRIPT.parent)]
        self.process = subprocess.Popen(
            command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, start_new_session=True
        )
        assert self.process.stdout is not None
        assert self.process.stdout.readline() == "asked\n"

    def agree(self) -> None:
        assert self.process.stdin is not None
        self.process.stdin.write("\n")
        self.process.stdin.flush()

    def child(self) -> int:
        (pid,) = children(self.process.pid)
        return pid


def children(pid: int) -> List[int]:
    """Those that its main thread has started."""
    return [int(child) for child in Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]


def outputs(pid: int) -> Set[str]:
    """Where its output and its errors go to."""
    return {os.readlink(f"/proc/{pid}/fd/{number}") for number in (1, 2)}


@pytest.fixture
def waiting(estate: Estate, rpms: Catalogue) -> Iterator[Tuple[Estate, Path, Path]]:
    """base has a package whose %post waits; the files by which it says that it runs, and by which it goes on."""
    estate.install(rpms.some("shell-1.0"))
    estate.repository("base", rpms.some("slow-1.0", "lone-1.0"))
    running, goes_on = estate.root / "running", estate.root / "go-on"
    yield estate, running, goes_on
    goes_on.touch()


def finished(estate: Estate) -> List[bool]:
    """Whether each transaction of the library's history came to its end."""
    done = by_library("state = 1", "state_id = 2")
    with contextlib.closing(sqlite3.connect(estate.root / HISTORY)) as history:
        return [bool(one) for (one,) in history.execute(f"select {done} from trans order by id")]


def dead(pid: int) -> bool:
    from vemyum import processes

    return not processes.lives(pid)


def test_output_of_the_transaction_leads_nowhere_once_the_program_is_gone(
    waiting: Tuple[Estate, Path, Path]
) -> None:
    """The root has no /dev; and what a scriptlet writes must not end it. dnf 5, which lets nothing else work meanwhile,
    has it write to a pipe that it reads itself."""
    estate, running, goes_on = waiting
    window = Window()
    child = window.child()
    window.agree()
    eventually(running.exists)
    if BACKEND == choice.DNF5:
        (scriptlet,) = children(child)
        assert not outputs(scriptlet) & outputs(child)
    window.process.kill()
    window.process.wait()
    if BACKEND == choice.DNF4:
        eventually(lambda: outputs(child) == {"/dev/null"})
    goes_on.touch()
    eventually(lambda: dead(child))


def test_scriptlets_do_not_keep_the_connection_alive(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    """A Lua scriptlet starts a command by itself, where rpm closes nothing; the process dies meanwhile."""
    estate.install(rpms.some("shell-1.0"))
    estate.repository("base", rpms.some("slow-lua-1.0"))
    found = program.collect()
    killer = (
        f"while ! [ -e {estate.root}/running ]; do sleep 0.05; done; "
        f"read -r pid < {lock_files(estate)[2]} || :; kill -9 $pid"
    )
    with subprocess.Popen(["sh", "-c", killer]):
        text = fails(program, lambda: found.yumio.apply(list(found.available), [], []))
    (estate.root / "go-on").touch()
    assert text.startswith("The process that applies the changes has died (signal 9, Killed).")


def test_children_that_leave_nothing_to_wait_for_are_no_fault(ready: Tuple[Estate, Program]) -> None:
    found = ready[1].collect()
    before = signal.signal(signal.SIGCHLD, signal.SIG_IGN)
    try:
        found.yumio.apply([found.offered("lone")], [], [])
    finally:
        signal.signal(signal.SIGCHLD, before)
    assert ready[0].installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_safe_path_of_the_interpreter_is_no_fault(
    ready: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setenv("PYTHONSAFEPATH", "1")
    found = ready[1].collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert ready[0].installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_lock_file_that_vanished_meanwhile_is_made_anew(ready: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = ready
    host.on_confirm = lock_files(estate)[0].unlink
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert holders(estate) == [str(os.getpid())] * 3


def test_lock_that_somebody_took_meanwhile_hides_no_death(
    ready: Tuple[Estate, Program], scripted: Scripted, host: FakeHost
) -> None:
    estate, program = ready
    apply = scripted("hello(); sys.exit(3)")
    lock_files(estate)[1].write_text("1")
    assert "has died (exit status 3)" in fails(program, apply)
    assert "download_lock.pid has been changed" in host.text("errorlog")
    assert holders(estate) == [str(os.getpid()), "1", str(os.getpid())]
    program.yumio.unlock()
    assert holders(estate) == [None, "1", None]


def test_password_in_a_traceback_is_masked(
    ready: Tuple[Estate, Program], in_child: Callable[[str], None]
) -> None:
    address = "http://host/buffet?login=me&key=secret&path=/os"
    in_child(f"import vemyum.configuration as one\ndef fail(root): raise KeyError({address!r})\none.main_file = fail")
    found = ready[1].collect()
    with pytest.raises(Exception, match="key=\\*\\*\\*&path") as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    assert "secret" not in str(caught.value)


def test_full_disk_ends_the_journal_and_not_the_transaction(
    ready: Tuple[Estate, Program], in_child: Callable[[str], None], host: FakeHost
) -> None:
    in_child(
        "import errno\n"
        "from vemyum.apply import child\n"
        "commit = child._Parent.commit\n"
        "def full(self, conf, changes):\n"
        "    from vemyum.apply import journal\n"
        "    write, journal.os = journal.os.write, type(sys)('os')\n"
        "    import os\n"
        "    journal.os.__dict__.update(os.__dict__)\n"
        "    def refuse(*_): raise OSError(errno.ENOSPC, 'No space left on device')\n"
        "    journal.os.write = refuse\n"
        "    commit(self, conf, changes)\n"
        "child._Parent.commit = full"
    )
    found = ready[1].collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert ready[0].installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}
    assert "The journal of the transaction cannot be written: /var/lib/dnf/vem-transaction: No space left" in host.text("log")
    assert not (ready[0].root / "var/lib/dnf/vem-transaction").exists()


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGHUP, signal.SIGINT, signal.SIGKILL])
def test_transaction_comes_to_its_end_without_the_program(
    waiting: Tuple[Estate, Path, Path], number: signal.Signals
) -> None:
    estate, running, goes_on = waiting
    window = Window()
    child = window.child()
    window.agree()
    eventually(running.exists)
    os.killpg(window.process.pid, number)
    window.process.wait()
    assert not dead(child) and holders(estate) == [str(child)] * 3
    os.kill(child, signal.SIGTERM)
    goes_on.touch()
    eventually(lambda: dead(child))
    assert {"slow-1.0-1.noarch", "lone-1.0-1.noarch"} < estate.installed()
    assert finished(estate) == [True]
    assert holders(estate) == [None] * 3


def test_program_that_dies_at_the_question_changes_nothing(waiting: Tuple[Estate, Path, Path]) -> None:
    estate, _, _ = waiting
    window = Window()
    child = window.child()
    window.process.kill()
    window.process.wait()
    eventually(lambda: dead(child))
    assert len(estate.installed()) == 1
    assert holders(estate) == [None] * 3


def test_child_that_is_killed_in_a_scriptlet_is_told_with_the_refresh(
    waiting: Tuple[Estate, Path, Path], program: Program, host: FakeHost
) -> None:
    estate, running, goes_on = waiting
    found = program.collect()
    killer = (
        f"while ! [ -e {running} ]; do sleep 0.05; done; "
        f"read -r pid < {lock_files(estate)[2]} || :; kill -9 $pid; touch {goes_on}"
    )
    with subprocess.Popen(["sh", "-c", killer]):
        text = fails(program, lambda: found.yumio.apply(list(found.available), [], []))
    assert text == f"The process that applies the changes has died (signal 9, Killed).\n{REFRESH}"
    assert holders(estate) == [str(os.getpid())] * 3


def test_failure_that_nobody_heard_is_told_by_the_next_start(
    ready: Tuple[Estate, Program], host: FakeHost
) -> None:
    from vemyum.apply import messages

    estate, program = ready
    journal = estate.root / "var/lib/dnf/vem-transaction"
    journal.parent.mkdir(parents=True, exist_ok=True)
    lines = [
        messages.Begun(messages.PROTOCOL, 2**22 + 1, 1, 2**22 + 2, []),
        messages.Ended(messages.FAILED, "the mast broke", -1),
    ]
    journal.write_bytes(b"".join(map(messages.to_line, lines)))
    words = "A transaction whose window was gone has failed: the mast broke"
    assert program.collect().yumio.unfinished() == (words, {}, [])
    assert words in host.text("errorlog")
    assert program.collect().yumio.unfinished() is None


# A program that starts meanwhile ---------------------------------------------------------------------------


def test_start_behind_a_window_that_died_waits_for_the_transaction_and_shows_it(
    waiting: Tuple[Estate, Path, Path], program: Program, host: FakeHost
) -> None:
    estate, running, goes_on = waiting
    window = Window()
    child = window.child()
    window.agree()
    eventually(running.exists)
    window.process.kill()
    window.process.wait()
    releaser = f"sleep 0.5; touch {goes_on}"
    with subprocess.Popen(["sh", "-c", releaser]):
        merged = program.collect().merged()
    assert dead(child)
    assert merged == {"slow": "UpToDate", "lone": "UpToDate", "shell": "UpToDate"}
    assert f"process {child} " in host.text("log")
    assert {call[1] for call in host.named("tsEvent")} == {"slow", "lone"}
    assert "has come to its end" in host.text("log")
    assert holders(estate) == [str(os.getpid())] * 3
    assert not (estate.root / "var/lib/dnf/vem-transaction").exists()
    host.reset()
    program.collect()
    assert not host.named("tsEvent")


def test_start_behind_a_child_that_was_killed_tells_of_it_once(
    waiting: Tuple[Estate, Path, Path], program: Program, host: FakeHost
) -> None:
    estate, running, goes_on = waiting
    window = Window()
    child = window.child()
    window.agree()
    eventually(running.exists)
    window.process.kill()
    window.process.wait()
    os.kill(child, signal.SIGKILL)
    goes_on.touch()
    program.collect()
    assert "was cut off" in host.text("errorlog")
    assert holders(estate) == [str(os.getpid())] * 3
    host.reset()
    program.collect()
    assert not host.text("errorlog")
