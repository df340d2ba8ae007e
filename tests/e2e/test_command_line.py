# SPDX-License-Identifier: GPL-2.0-or-later
"""The command line: help and mistakes end the program with status 1 before any window shows."""
from __future__ import annotations

import os
import subprocess

USAGE = """usage: vem [options...]

VEM, Verified Estate Manager, is a graphical user interface which allows a user
to make modifications to the installed rpm packages on a system.

options:

   -h, -H, --help           display this help information
   -r,     --repo-editor    start by bringing up the repository configuration
                            editor
   -l,     --log            start with the log window displayed
           --disablerepo=r  disable the specified repository, r
           --enablerepo=r   enable the specified repository, r

arguments:

   file.rpm, https://...    show the packages of these files and addresses,
                            marked for installation

"""


def run(*arguments: str) -> "subprocess.CompletedProcess[str]":
    return subprocess.run(
        [os.environ["VEM_PROGRAM"], *arguments],
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, capture_output=True, text=True, timeout=60, check=False,
    )


def messages(answer: "subprocess.CompletedProcess[str]") -> list[str]:
    return [line for line in answer.stderr.splitlines() if line.startswith("vem:")]


def test_help_ends_with_status_1_and_prints_to_standard_output() -> None:
    for option in ("-h", "-H", "--help"):
        answer = run(option)
        assert (answer.returncode, answer.stdout, messages(answer)) == (1, USAGE, [])


def test_a_bare_word_is_refused() -> None:
    answer = run("package")
    assert answer.returncode == 1
    assert messages(answer) == ["vem: unrecognized argument: package"]


def test_options_behind_a_bare_word_are_not_looked_at() -> None:
    answer = run("foo", "-l")
    assert answer.returncode == 1
    assert messages(answer) == ["vem: unrecognized argument: foo"]


def test_an_unknown_letter_and_an_unknown_word_have_messages_of_their_own() -> None:
    assert messages(run("-x")) == ["vem: unrecognized option letter: x"]
    assert messages(run("--exclude")) == ["vem: unrecogized option: --exclude"]


def test_a_missing_value_takes_the_form_of_a_letter_that_cannot_be_printed() -> None:
    answer = run("--disablerepo")
    assert answer.returncode == 1
    assert messages(answer)[0].startswith("vem: unrecognized option letter: ")
    assert "\0" in answer.stderr


def test_mistakes_are_followed_by_the_usage_text() -> None:
    for mistake in ("package", "-x", "--exclude"):
        answer = run(mistake)
        assert answer.returncode == 1
        assert USAGE in answer.stdout + answer.stderr


def test_options_of_the_toolkit_are_not_the_programs() -> None:
    for style in (["-style", "windows"], ["-style=fusion"]):
        answer = run(*style, "-h")
        assert (answer.returncode, answer.stdout, messages(answer)) == (1, USAGE, [])
        assert messages(run("-h", *style)) == []
