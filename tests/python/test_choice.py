# SPDX-License-Identifier: GPL-2.0-or-later
"""Which package library does the work: who may say so, in which order, and what is told where none can."""

from __future__ import annotations

import json
import os
import subprocess
import sys
from importlib.machinery import ModuleSpec
from pathlib import Path
from typing import Callable, Iterable, Optional, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

SHARE = Path(__file__).resolve().parents[2] / "share/python"
sys.path.insert(0, str(SHARE))

from vemyum import choice  # noqa: E402


@pytest.fixture
def root(tmp_path: Path) -> Path:
    """A system that tells nothing, on a machine that tells nothing either."""
    root = tmp_path / "root"
    root.mkdir()
    return root


@pytest.fixture(autouse=True)
def nothing_chosen(monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(choice, "_chosen", None)
    monkeypatch.delenv(choice.VARIABLE, raising=False)


@pytest.fixture
def machine(monkeypatch: pytest.MonkeyPatch) -> Callable[..., None]:
    """What there is to be imported, and what this machine itself uses."""

    def has(*backends: str, uses: Optional[str] = None) -> None:
        monkeypatch.setattr(choice, "can_be_imported", lambda backend: backend in backends)
        ask = choice.__dict__["used_by"]
        monkeypatch.setattr(choice, "used_by", lambda root: uses if root == "/" else ask(root))

    has("dnf4", "dnf5")
    return has


def configure(root: Path, text: str) -> None:
    (root / "etc/vem").mkdir(parents=True, exist_ok=True)
    (root / "etc/vem/vem.conf").write_text(text)


def link(root: Path, path: str, target: str) -> None:
    (root / path).parent.mkdir(parents=True, exist_ok=True)
    (root / path).symlink_to(target)


def uses(root: Path, backend: str) -> None:
    command = {"dnf4": "dnf-3", "dnf5": "dnf5"}[backend]
    link(root, "usr/bin/dnf", command)
    (root / "usr/bin" / command).write_text("")


def refusal(root: Path) -> str:
    with pytest.raises(choice.Unusable) as refused:
        choice.choose(str(root))
    assert "\n" not in str(refused.value)
    return str(refused.value)


# Who may say so ----------------------------------------------------------------------------------------------


def test_the_environment_goes_before_everything(
    root: Path, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch
) -> None:
    configure(root, "backend=dnf4\n")
    uses(root, "dnf4")
    monkeypatch.setenv("VEMBACKEND", "dnf5")
    assert choice.choose(str(root)) == ("dnf5", "")


@pytest.mark.parametrize("named, used", [("dnf4", "dnf5"), ("dnf5", "dnf4")])
def test_the_managed_systems_file_goes_before_what_it_uses(
    root: Path, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch, named: str, used: str
) -> None:
    configure(root, f"backend={named}\n")
    uses(root, used)
    # Empty is as good as unset.
    monkeypatch.setenv("VEMBACKEND", "")
    assert choice.choose(str(root)) == (named, "")


@pytest.mark.parametrize("used", ["dnf4", "dnf5"])
def test_what_the_managed_system_uses_goes_before_what_is_there(
    root: Path, machine: Callable[..., None], used: str
) -> None:
    uses(root, used)
    machine("dnf4", "dnf5", uses={"dnf4": "dnf5", "dnf5": "dnf4"}[used])
    assert choice.choose(str(root)) == (used, "")


@pytest.mark.parametrize("used, expected", [("dnf4", "dnf4"), ("dnf5", "dnf5"), (None, "dnf4")])
def test_a_system_that_uses_neither_gets_what_this_machine_uses(
    root: Path, machine: Callable[..., None], used: Optional[str], expected: str
) -> None:
    machine("dnf4", "dnf5", uses=used)
    assert choice.choose(str(root)) == (expected, "")


@pytest.mark.parametrize("backend", ["dnf4", "dnf5"])
def test_what_is_there_is_taken_where_nothing_else_tells(
    root: Path, machine: Callable[..., None], backend: str
) -> None:
    machine(backend)
    assert choice.choose(str(root)) == (backend, "")


def test_the_libraries_that_are_there(machine: Callable[..., None]) -> None:
    assert choice.present() == ("dnf4", "dnf5")
    machine("dnf5")
    assert choice.present() == ("dnf5",)
    machine()
    assert choice.present() == ()


# What a system uses ------------------------------------------------------------------------------------------


@pytest.mark.parametrize(
    ("paths", "expected"),
    [
        ([("usr/bin/dnf", "dnf5"), ("usr/bin/dnf5", "")], "dnf5"),
        ([("usr/bin/dnf", "/usr/bin/dnf5"), ("usr/bin/dnf5", "")], "dnf5"),
        ([("usr/bin/yum", "dnf5"), ("usr/bin/dnf5", "")], "dnf5"),
        ([("usr/bin/dnf", "dnf-3"), ("usr/bin/dnf-3", ""), ("usr/bin/dnf5", "")], "dnf4"),
        ([("usr/bin/dnf", "")], "dnf4"),
        # The command tells, whatever lies about.
        ([("usr/bin/dnf", "dnf-3"), ("usr/bin/dnf-3", ""), ("usr/lib/sysimage/libdnf5/packages.toml", "")], "dnf4"),
        ([("usr/bin/dnf", "dnf5"), ("usr/bin/dnf5", ""), ("var/lib/dnf/history.sqlite", "")], "dnf5"),
        # Without one, the state.
        ([("usr/lib/sysimage/libdnf5/packages.toml", "")], "dnf5"),
        ([("var/lib/dnf/history.sqlite", "")], "dnf4"),
        ([("usr/lib/sysimage/libdnf5/packages.toml", ""), ("var/lib/dnf/history.sqlite", "")], "dnf4"),
        # A command that leads nowhere is none, and neither is one that leads to itself.
        ([("usr/bin/dnf", "dnf5")], None),
        ([("usr/bin/dnf", "dnf"), ("usr/lib/sysimage/libdnf5/packages.toml", "")], "dnf5"),
        # dnf 5 beside what the system is managed with is only beside it.
        ([("usr/bin/dnf5", "")], None),
        ([], None),
    ],
)
def test_a_system_tells_by_its_command_or_its_state(
    root: Path, paths: Iterable[Tuple[str, str]], expected: Optional[str]
) -> None:
    for path, target in paths:
        if target:
            link(root, path, target)
        else:
            (root / path).parent.mkdir(parents=True, exist_ok=True)
            (root / path).write_text("")
    assert choice.used_by(str(root)) == expected


def test_links_do_not_lead_out_of_the_managed_system(root: Path, tmp_path: Path) -> None:
    (tmp_path / "dnf5").write_text("")
    link(root, "usr/bin/dnf", str(tmp_path / "dnf5"))
    link(root, "etc/vem", str(tmp_path))
    (tmp_path / "vem.conf").write_text("backend=dnf5\n")
    assert choice.used_by(str(root)) is None
    assert choice._named_by_file(str(root)) is None


# The file ----------------------------------------------------------------------------------------------------


@pytest.mark.parametrize(
    ("text", "expected"),
    [
        ("backend=dnf5", "dnf5"),
        ("\ufeff# a comment\r\n; another\r\n\r\n[main]\r\n  Backend = dnf5  # why\r\n", "dnf5"),
        ("backend=dnf5;why\n", "dnf5"),
        ("backend=dnf5\nbackend=dnf4\n", "dnf4"),
        ("backend=dnf5\nbackend=\n", "dnf5"),
        ("#backend=dnf5\nbackends=dnf5\ncolour=red\nnonsense\nbackend\n", None),
        ("", None),
    ],
)
def test_the_file_is_read_with_patience(root: Path, text: str, expected: Optional[str]) -> None:
    configure(root, text)
    assert choice._named_by_file(str(root)) == expected


def test_bytes_of_another_encoding_are_no_obstacle(root: Path) -> None:
    configure(root, "")
    (root / "etc/vem/vem.conf").write_bytes(b"# \xe4\xf6\nbackend=dnf5\n")
    assert choice._named_by_file(str(root)) == "dnf5"


# What is told ------------------------------------------------------------------------------------------------


def test_a_bad_value_is_named_with_its_place(
    root: Path, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch
) -> None:
    words = '"yum" is none of the package libraries that can be named, dnf4 and dnf5.'
    configure(root, "# first\nbackend = yum\nbackend=dnf4\n")
    assert refusal(root) == f"/etc/vem/vem.conf, line 2: {words}"
    monkeypatch.setenv("VEMBACKEND", "yum")
    assert refusal(root) == f"VEMBACKEND: {words}"


def test_a_file_that_cannot_be_read_is_told(root: Path, machine: Callable[..., None]) -> None:
    (root / "etc/vem").mkdir(parents=True)
    os.mkfifo(root / "etc/vem/vem.conf")
    assert refusal(root) == "/etc/vem/vem.conf is not a regular file"
    (root / "etc/vem/vem.conf").unlink()
    (root / "etc/vem/vem.conf").symlink_to("vem.conf")
    assert refusal(root) == "/etc/vem/vem.conf: Too many levels of symbolic links"


@pytest.mark.parametrize(
    ("backend", "words"),
    [
        ("dnf4", "The library of dnf 4 is missing: please install the package python3-dnf."),
        ("dnf5", "The library of dnf 5 is missing: please install the package python3-libdnf5."),
    ],
)
def test_a_library_that_is_named_and_missing_is_told_with_its_package(
    root: Path, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch, backend: str, words: str
) -> None:
    machine({"dnf4": "dnf5", "dnf5": "dnf4"}[backend])
    configure(root, f"backend={backend}\n")
    assert refusal(root) == words
    configure(root, "")
    monkeypatch.setenv("VEMBACKEND", backend)
    assert refusal(root) == words


@pytest.mark.parametrize(
    ("used", "packages"),
    [("dnf4", "python3-dnf or python3-libdnf5"), ("dnf5", "python3-libdnf5 or python3-dnf")],
)
def test_neither_library_is_told_with_the_package_that_the_system_wants_first(
    root: Path, machine: Callable[..., None], used: str, packages: str
) -> None:
    machine()
    uses(root, used)
    assert refusal(root) == f"There is no library to manage packages with: please install the package {packages}."


def test_the_library_that_the_system_does_not_use_is_taken_with_a_doubt(
    root: Path, machine: Callable[..., None]
) -> None:
    uses(root, "dnf5")
    machine("dnf4")
    assert choice.choose(str(root)) == (
        "dnf4",
        "This system uses dnf 5, whose library is missing, and dnf 4 does the work, with a history of its own: to "
        "change that, install the package python3-libdnf5.",
    )


# Once a process ----------------------------------------------------------------------------------------------


def test_a_process_chooses_once(
    root: Path, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setenv("VEMROOT", str(root))
    monkeypatch.setenv("VEMBACKEND", "yum")
    with pytest.raises(choice.Unusable):
        choice.chosen()
    monkeypatch.setenv("VEMBACKEND", "dnf4")
    assert choice.chosen().backend == "dnf4"
    monkeypatch.setenv("VEMBACKEND", "dnf5")
    assert choice.chosen().backend == "dnf4"


def test_what_has_been_settled_is_not_chosen(machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setenv("VEMBACKEND", "dnf4")
    choice.settle("dnf5")
    assert choice.chosen() == ("dnf5", "")


def test_what_is_there_is_told_without_importing_it(tmp_path: Path) -> None:
    (tmp_path / "libdnf5").mkdir()
    (tmp_path / "libdnf5/__init__.py").write_text("raise SystemError")
    # What a removed package has left.
    (tmp_path / "dnf/__pycache__").mkdir(parents=True)
    lines = (
        "import json, sys; sys.path[:0] = sys.argv[1:]\n"
        "from vemyum import choice\n"
        "found = [choice.can_be_imported(backend) for backend in choice.BACKENDS]\n"
        "modules = [name for name in sys.modules if name.split('.')[0] in ('dnf', 'hawkey', 'libdnf', 'libdnf5')]\n"
        "print(json.dumps([found, modules]))\n"
    )
    # -S leaves this machine's own packages out.
    done = subprocess.run(
        [sys.executable, "-BIS", "-c", lines, str(tmp_path), str(SHARE)], capture_output=True, text=True, check=True
    )
    assert json.loads(done.stdout) == [[False, True], []]


def test_a_module_without_a_place_is_none(monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr("importlib.util.find_spec", lambda name: ModuleSpec(name, None))
    assert not choice.can_be_imported("dnf4")


# What the engine sees of it ----------------------------------------------------------------------------------


def test_a_library_that_cannot_be_used_ends_the_start_with_its_sentence_in_the_log(
    program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setenv("VEMBACKEND", "yum")
    # As if the script were only now read.
    monkeypatch.setattr(choice, "_chosen", None)
    with pytest.raises(SystemExit):
        program.namespace["YumIO"]()
    assert host.text("errorlog").startswith('VEMBACKEND: "yum" is none of')


@pytest.mark.parametrize(("backends", "start"), [("()", "There is no library"), ("('dnf4',)", "The library of dnf 5")])
def test_a_program_without_a_library_starts_far_enough_to_tell_it(estate: Estate, backends: str, start: str) -> None:
    lines = (
        "import sys; sys.path[:0] = sys.argv[1:3]\n"
        "from vemyum import choice\n"
        f"choice.can_be_imported = lambda backend: backend in {backends}\n"
        "import fake_host, pathlib, program\n"
        "script = program.Program(pathlib.Path(sys.argv[1], 'YumIO.py'))\n"
        "try: script.namespace['YumIO']()\n"
        "except SystemExit: sys.__stdout__.write(fake_host.HOST.text('errorlog'))\n"
        "assert not {'dnf', 'libdnf5'} & set(sys.modules)\n"
    )
    done = subprocess.run(
        [sys.executable, "-B", "-c", lines, str(SHARE), str(Path(__file__).parent)],
        env={**os.environ, choice.VARIABLE: "dnf5" if "dnf4" in backends else ""}, capture_output=True, text=True,
        check=True,
    )
    assert done.stdout.startswith(start) and "\n" not in done.stdout


def test_a_doubt_is_logged_once(
    estate: Estate, program: Program, host: FakeHost, machine: Callable[..., None], monkeypatch: pytest.MonkeyPatch
) -> None:
    machine("dnf4")
    uses(estate.root, "dnf5")
    monkeypatch.setattr(choice, "_chosen", None)
    for _ in range(2):
        program.collect()
    assert host.text("warninglog").count("install the package python3-libdnf5") == 1


def test_the_library_is_named_with_its_version(program: Program) -> None:
    version = program.namespace["yum"].__version__
    for backend, name in (("dnf4", "dnf"), ("dnf5", "libdnf5")):
        choice.settle(backend)
        assert program.namespace["packageLibrary"]() == f"{name} {version}"


def test_the_process_that_applies_is_told_and_does_not_choose(
    estate: Estate, rpms: Catalogue, program: Program, in_child: Callable[[str], None], tmp_path: Path,
    monkeypatch: pytest.MonkeyPatch,
) -> None:
    estate.repository("base", rpms.some("lone-1.0"))
    told = tmp_path / "told"
    in_child(f"open({str(told)!r}, 'w').write(choice.chosen().backend)")
    found = program.collect()
    # It would not take this for an answer.
    monkeypatch.setenv("VEMBACKEND", "yum")
    found.yumio.apply([found.offered("lone")], [], [])
    assert told.read_text() == choice.chosen().backend
    assert estate.installed() == {"lone-1.0-1.noarch"}


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
