# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands in for the helper script and the package library, in the form of any yum release.

A script in <version>/python/YumIO.py names the forms of its release by an Era and calls install(). Tests
change `world` or replace methods of YumIO, and reset() takes all of that back.
"""
from __future__ import annotations

import builtins
import os
import sys
import traceback
import types
from collections.abc import Callable, Mapping
from dataclasses import dataclass, replace
from typing import Any

import yumIOC


@dataclass(frozen=True)
class Era:
    """The forms in which one release hands over its data."""

    version: str
    version_module: str = "yum"  # the module whose __version__ tells the release
    texts: type = str  # str, or bytes
    sizes: str = "number"  # "number", "text", "method": a number, "text method": a text
    groups: str = "objects"  # "objects", or "by name": one object with dictionaries by group name
    lists: str = "attributes"  # of tsInfo; or "tuple": the answer of makelists()
    obsoleting: str = "member"  # how relatedto names a package; or "pkgtup"
    changelog: str = "method"  # or "attribute"
    prco: str = "method"  # or "dictionary"
    headers: bool = False  # solving fetches a header of each package that isn't on disk
    one_pass: bool = True  # each repository is read to its end before the next one
    sqlite: bool = True
    pickles: bool = False  # there is a pickled cache to clean
    test_progress: bool = False  # the test transaction reports by tsCallback
    events: bool = False  # the transaction reports by tsEvent
    presto: bool = False  # rpms may be rebuilt from deltas
    rebuilds: bool = False  # and are, in the transaction of the test

    def text(self, value: str | None) -> Any:
        return value if value is None or self.texts is str else value.encode()


era: Era
release: Era  # what `era` goes back to
namespace: dict[str, Any]
world: Any = None
calls: list[str] = []
calls_file = ""  # where set, calls are also written there, for a process that may be killed
_methods: dict[str, Any] = {}


class YumBaseError(Exception):
    """The root of the library's errors; as in yum, `value` holds the words."""

    def __init__(self, value: object = "") -> None:
        super().__init__(value)
        self.value = value


class RepoError(YumBaseError):
    pass


class LockError(YumBaseError):
    pass


class GroupsError(YumBaseError):
    pass


class Stream:
    """Takes what Python prints to the program."""

    def __init__(self, write: Callable[[str], None]) -> None:
        self.write = write

    def flush(self) -> None:
        pass


def note(call: str) -> None:
    """Remembers that the program called."""
    calls.append(call)
    if calls_file:
        with open(calls_file, "a", encoding="utf-8") as file:
            file.write(call + "\n")


def instead(method: str, answer: Callable[..., Any]) -> None:
    """Has calls of a method of YumIO answered by `answer`, which gets the arguments without self."""

    def replacement(_self: Any, *args: Any) -> Any:
        note(method)
        return answer(*args)

    setattr(namespace["YumIO"], method, replacement)


def fail(method: str, exception: BaseException) -> None:
    """Has calls of a method of YumIO raise."""

    def answer(*_args: Any) -> None:
        raise exception

    instead(method, answer)


def without(method: str) -> None:
    """Takes a method of YumIO away."""
    delattr(namespace["YumIO"], method)


def replacing(name: str, *replaced: str) -> None:
    """Has an update tell which installed packages it replaces."""
    update = world.find("updates", name)
    packages = [world.find("installed", one) for one in replaced]
    update.__class__ = type("Replacing", (type(update),), {"replaces": packages})


def run(statements: str) -> str:
    """Runs statements of a test; answers the traceback of what they raised, else nothing."""
    try:
        exec(compile(statements, "<test>", "exec"), namespace)
    except BaseException:
        return traceback.format_exc()
    return ""


def value(expression: str) -> str:
    """The value of an expression of a test, as text."""
    try:
        return str(eval(compile(expression, "<test>", "eval"), namespace))
    except BaseException:
        return traceback.format_exc()


def become(**forms: Any) -> None:
    """Changes forms of the release, and makes the world anew in these."""
    import standinpackages

    global era, world
    era = replace(era, **forms)
    world = standinpackages.World(era)


def reset() -> None:
    """Puts the forms, the world, the methods and the memory of calls back to where a test starts."""
    global era
    era = release
    become()
    calls.clear()
    for name, method in _methods.items():
        setattr(namespace["YumIO"], name, method)
    namespace["usesSqlite"] = lambda: era.sqlite


def install(script: dict[str, Any], forms: Era) -> None:
    """Puts everything that the program requires into the script's namespace."""
    global era, release, namespace
    era = release = forms
    namespace = script
    errors = types.ModuleType("yum.Errors")
    for error in (YumBaseError, RepoError, LockError, GroupsError):
        setattr(errors, error.__name__, error)
    modules: Mapping[str, Any] = {name: types.ModuleType(name) for name in ("yum", era.version_module)}
    modules[era.version_module].__version__ = era.version
    modules["yum"].Errors = errors
    sys.modules.update(modules)
    sys.modules["yum.Errors"] = errors
    sys.modules["exceptions"] = builtins
    sys.stdout = Stream(yumIOC.stdoutWrite)
    sys.stderr = Stream(yumIOC.stderrWrite)

    from standinscript import YumIO

    script.update(modules, YumIO=YumIO, standin=sys.modules[__name__], yumIOC=yumIOC)
    _methods.update({name: method for name, method in vars(YumIO).items() if callable(method)})
    reset()
    # What a test wants before anything is asked.
    exec(os.environ.get("VEM_TEST_STATEMENTS", ""), script)
