# SPDX-License-Identifier: GPL-2.0-or-later
"""The names of libdnf5 that the package uses, as its sources have them.

A test that fails here tells which name a new version has taken away, before anything else breaks in ways that are
harder to read.
"""

from __future__ import annotations

import ast
import importlib
import inspect
import os
import re
from typing import Any, Dict, Iterator, List, Optional, Set, Tuple

import pytest
from conftest import TOP

SOURCES = sorted((TOP / "share/python/vemyum/dnf5").glob("*.py"))
MODULES = ("advisory", "base", "common", "comps", "conf", "exception", "logger", "repo", "rpm", "transaction")
METHOD = re.compile(r"(get|set|is|filter|add|load|read|create|enable|disable|check)_\w+")
OF_THIS_PROGRAM = re.compile(r"class (\w+)|def (\w+)|self\.(\w+) = |^ +(\w+): |import (\w+)", re.M)


def library() -> Any:
    for module in MODULES:
        importlib.import_module(f"libdnf5.{module}")
    return importlib.import_module("libdnf5")


def dotted(node: ast.AST) -> Optional[List[str]]:
    """The parts of a name such as a.b.c."""
    if isinstance(node, ast.Name):
        return [node.id]
    if isinstance(node, ast.Attribute):
        before = dotted(node.value)
        return None if before is None else [*before, node.attr]
    return None


class Source:
    """One of the sources, with what its own names mean in the library."""

    def __init__(self, tree: ast.Module) -> None:
        self.tree = tree
        self._aliases: Dict[str, List[str]] = {"libdnf5": ["libdnf5"]}
        for node in ast.walk(tree):
            if isinstance(node, ast.ImportFrom) and node.module == "libdnf5":
                self._aliases.update({one.asname or one.name: ["libdnf5", one.name] for one in node.names})
        for node in tree.body:
            if isinstance(node, ast.Assign) and isinstance(node.targets[0], ast.Name):
                meant = self.meant(node.value)
                if meant is not None:
                    self._aliases[node.targets[0].id] = meant

    def meant(self, node: ast.AST) -> Optional[List[str]]:
        """The library's name for it."""
        parts = dotted(node)
        if parts is None or parts[0] not in self._aliases:
            return None
        return [*self._aliases[parts[0]], *parts[1:]]


def sources() -> Iterator[Source]:
    for path in SOURCES:
        yield Source(ast.parse(path.read_text(encoding="utf-8")))


def names() -> List[str]:
    found = {tuple(source.meant(node) or ()) for source in sources() for node in ast.walk(source.tree)}
    return sorted(".".join(parts) for parts in found if len(parts) > 1)


def callbacks() -> List[Tuple[str, str]]:
    """The classes of the library that ours derive from, with the methods that it calls."""
    return sorted(
        (".".join(meant), member.name)
        for source in sources()
        for node in ast.walk(source.tree)
        if isinstance(node, ast.ClassDef)
        for meant in filter(None, map(source.meant, node.bases))
        for member in node.body
        if isinstance(member, ast.FunctionDef) and not member.name.startswith("_")
    )


def methods() -> List[str]:
    """What objects are asked for that is none of our own."""
    shared = [*SOURCES, *(TOP / "share/python/vemyum").glob("*.py"), *(TOP / "share/python/vemyum/apply").glob("*.py")]
    text = "\n".join(path.read_text(encoding="utf-8") for path in shared)
    ours = {name for found in OF_THIS_PROGRAM.findall(text) for name in found}
    asked = {
        node.func.attr
        for source in sources()
        for node in ast.walk(source.tree)
        if isinstance(node, ast.Call) and isinstance(node.func, ast.Attribute)
    }
    return sorted(name for name in asked - ours if METHOD.fullmatch(name))


def resolved(name: str) -> Any:
    library()
    found: Any = importlib.import_module("libdnf5")
    for part in name.split(".")[1:]:
        found = getattr(found, part)
    return found


@pytest.mark.parametrize("name", names())
def test_name_exists(name: str) -> None:
    assert resolved(name) is not None


@pytest.mark.parametrize("owner, method", callbacks())
def test_method_that_the_library_calls_exists(owner: str, method: str) -> None:
    assert callable(getattr(resolved(owner), method))


@pytest.mark.parametrize("name", methods())
def test_method_exists(name: str) -> None:
    known: Set[str] = set(dir(os.DirEntry))
    for module in (getattr(library(), name) for name in MODULES):
        known.update(dir(module), *(dir(kind) for _name, kind in inspect.getmembers(module, inspect.isclass)))
    assert name in known
