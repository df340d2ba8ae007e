# SPDX-License-Identifier: GPL-2.0-or-later
"""What the engine finds in `__main__` after the script has run: modules, streams, exceptions."""

from __future__ import annotations

import contextlib
import io
import os
import re
import subprocess
import sys
from pathlib import Path
from typing import Callable, Iterator, Tuple

import pytest
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

HERE = Path(__file__).resolve().parent
SCRIPT = HERE.parent.parent / "share/python/YumIO.py"


@contextlib.contextmanager
def host_streams() -> Iterator[None]:
    """As the script leaves them: pytest puts its own in place before each test."""
    from vemyum.streams import replace_streams

    before = sys.stdout, sys.stderr
    replace_streams()
    try:
        yield
    finally:
        sys.stdout, sys.stderr = before


def test_names_in_main(program: Program) -> None:
    names = program.namespace
    assert callable(names["YumIO"]) and names["usesSqlite"]() is False
    assert names["yum"] is sys.modules["yum"]
    assert re.fullmatch(r"\d+\.\d+\.\d+", names["yum"].__version__)
    # The engine walks over module dictionaries only.
    assert "__version__" in vars(names["yum"]) and vars(names["yum"])["Errors"] is sys.modules["yum.Errors"]


@pytest.mark.dnf4
def test_version_is_dnfs(program: Program) -> None:
    import dnf.const

    assert program.namespace["yum"].__version__ == dnf.const.VERSION


@pytest.mark.dnf5
def test_version_is_libdnf5s(program: Program) -> None:
    import libdnf5.conf

    version = libdnf5.conf.get_library_version()
    assert program.namespace["yum"].__version__ == f"{version.prime}.{version.major}.{version.minor}"


# With dnf 5 yum's names are classes of this program's own.
@pytest.mark.dnf4
def test_exceptions_by_yums_names_catch_dnfs(program: Program) -> None:
    import dnf.exceptions

    errors = program.errors
    assert issubclass(dnf.exceptions.DepsolveError, errors.YumBaseError)
    assert issubclass(dnf.exceptions.DownloadError, errors.YumBaseError)
    assert issubclass(dnf.exceptions.RepoError, errors.RepoError)
    assert issubclass(dnf.exceptions.ProcessLockError, errors.LockError)
    assert issubclass(dnf.exceptions.CompsError, errors.GroupsError)


def test_modules_that_the_engine_imports(program: Program) -> None:
    assert sys.modules["exceptions"].SystemExit is SystemExit  # type: ignore[attr-defined]
    assert sys.modules["bdb"].BdbQuit  # type: ignore[attr-defined]


def test_printing_goes_to_the_host(program: Program, host: FakeHost) -> None:
    with host_streams():
        print("one", "two")
        sys.stderr.write("caf\udce9 \0")
        sys.stdout.buffer.write(b"bytes \xe9\n")
    assert host.text("stdoutWrite") == "one two\nbytes \ufffd\n"
    assert host.text("stderrWrite") == "caf\ufffd \ufffd"


def test_streams_behave_as_files(program: Program, host: FakeHost) -> None:
    with host_streams():
        streams = (sys.stdout, 1), (sys.stderr, 2)
    for stream, descriptor in streams:
        stream.flush()
        assert (stream.fileno(), stream.isatty(), stream.encoding) == (descriptor, False, "utf-8")
        assert (stream.writable(), stream.readable()) == (True, False)
        stream.close()
        assert stream.write("still open") == len("still open")
        with pytest.raises(io.UnsupportedOperation):
            stream.read()


def test_traceback_goes_to_the_host(program: Program, host: FakeHost) -> None:
    import traceback

    try:
        raise ValueError("oops")
    except ValueError:
        with host_streams():
            traceback.print_exc()
    assert "ValueError: oops" in host.text("stderrWrite")


def test_presto_is_not_used(lamp: Tuple[Estate, Program]) -> None:
    assert lamp[1].start().usesPresto() is False


ENGINE_WAY = """
import os, sys
sys.path.insert(0, os.environ["TEST_FOLDER"])
import fake_host
del sys.path[0]
os.chdir("/")
import __main__
source = open(os.environ["TEST_SCRIPT"]).read()
__main__.__dict__["__file__"] = "YumIO.py"
exec(compile(source, "YumIO.py", "exec"), __main__.__dict__)
sys.__stdout__.write(sys.modules["vemyum"].__file__)
"""


def test_package_is_found_through_the_share_directory() -> None:
    """The engine gives the interpreter an open file and the bare name "YumIO.py"."""
    environment = {
        **os.environ,
        "VEMSHARE": str(SCRIPT.parent.parent),
        "TEST_FOLDER": str(HERE),
        "TEST_SCRIPT": str(SCRIPT),
    }
    done = subprocess.run(
        [sys.executable, "-c", ENGINE_WAY], env=environment, capture_output=True, text=True, check=True
    )
    assert done.stdout == str(SCRIPT.parent / "vemyum/__init__.py")


# Translation of exceptions ----------------------------------------------------------------------------


@pytest.mark.parametrize(
    ("error", "text"),
    [
        (OSError(28, "No space left on device", "/a/b"), "/a/b: No space left on device"),
        (OSError(18, "Cross-device link", "/a", None, "/b"), "/a -> /b: Cross-device link"),
        (OSError(5, "Input/output error"), "[Errno 5] Input/output error"),
        (OSError("failed loading RPMDB"), "failed loading RPMDB"),
        (PermissionError(13, "Permission denied", b"/\xff"), "/\udcff: Permission denied"),
        (RuntimeError("SQLite error"), "SQLite error"),
    ],
)
def test_failures_of_libraries_become_the_expected_class(
    program: Program, error: Exception, text: str
) -> None:
    from vemyum.errors import RepoError, reported_as

    with pytest.raises(RepoError) as caught:
        with reported_as(RepoError):
            raise error
    assert caught.value.value == text or caught.value.value == text.encode("utf-8", "replace").decode()


@pytest.mark.dnf4
def test_failures_of_dnf_become_the_expected_class(program: Program) -> None:
    import dnf.exceptions

    test_failures_of_libraries_become_the_expected_class(
        program, dnf.exceptions.DownloadError({"lamp": ["gone", "away"]}), "lamp: gone\nlamp: away"
    )


@pytest.mark.dnf5
def test_failures_of_libdnf5_become_the_expected_class(program: Program, tmp_path: Path) -> None:
    import libdnf5.conf
    from vemyum.errors import RepoError, reported_as

    missing = tmp_path / "missing.repo"
    with pytest.raises(RepoError) as caught:
        with reported_as(RepoError):
            libdnf5.conf.ConfigParser().read(str(missing))
    # The outermost cause and those below it.
    assert str(missing) in caught.value.value and "No such file or directory" in caught.value.value


@pytest.mark.parametrize("error", [BrokenPipeError(32, "Broken pipe"), KeyError("x"), SystemExit(1)])
def test_other_exceptions_pass(program: Program, error: BaseException) -> None:
    from vemyum.errors import YumBaseError, reported_as

    with pytest.raises(type(error)):
        with reported_as(YumBaseError):
            raise error


# What dnf 5 raises has neither.
@pytest.mark.dnf4
def test_text_of_an_exception_is_its_value(program: Program) -> None:
    """The engine shows the attribute `value`; dnf leaves it empty in some of its classes."""
    import dnf.exceptions
    from vemyum.errors import YumBaseError, reported_as

    for error in (
        dnf.exceptions.DownloadError({"": ["no network"]}),
        dnf.exceptions.MarkingError("No match", "lamp"),
    ):
        with pytest.raises(YumBaseError) as caught:
            with reported_as(YumBaseError):
                raise error
        assert caught.value.value == str(error)


def test_nothing_is_imported_while_rpm_works(
    lamp: Tuple[Estate, Program], host: FakeHost, in_child: Callable[[str], None], tmp_path: Path
) -> None:
    """rpm changes the root directory of the process that works: every module must be there before."""
    in_child(
        f"""
from vemyum.apply import child
commit, end = child._Parent.commit, child._Parent.end
before = []
def note(*arguments):
    commit(*arguments)
    before.extend(sys.modules)
def tell(self, ended):
    with open({str(tmp_path / "new")!r}, "w") as file:
        file.write(f"{{len(before) > 0}} {{sorted(set(sys.modules) - set(before))}}")
    end(self, ended)
child._Parent.commit, child._Parent.end = note, tell
"""
    )
    found = lamp[1].collect()
    found.yumio.apply([], [], [found.there("lamp")])
    assert (tmp_path / "new").read_text() == "True []"
    assert lamp[0].installed() == set()


def test_program_ends_cleanly_with_everything_open(lamp: Tuple[Estate, Program]) -> None:
    code = (
        "import os, sys\n"
        "sys.path[:0] = [os.environ['TEST_FOLDER'], os.path.dirname(os.environ['TEST_SCRIPT'])]\n"
        "import fake_host, program\n"
        "from pathlib import Path\n"
        "program = program.Program(Path(os.environ['TEST_SCRIPT']))\n"
        "program.collect()\n"
        "sys.stdout, sys.stderr = sys.__stdout__, sys.__stderr__\n"
    )
    environment = {**os.environ, "TEST_FOLDER": str(HERE), "TEST_SCRIPT": str(SCRIPT)}
    done = subprocess.run([sys.executable, "-c", code], env=environment, capture_output=True, text=True)
    assert (done.returncode, done.stdout, done.stderr) == (0, "", "")


