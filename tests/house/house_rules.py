#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Rules of the house: who may include and import whom, licence lines, and who may know the interpreter.

Usage: house_rules.py RULE SOURCE_DIRECTORY. Prints each breach and ends with status 1 when there is one.
"""
from __future__ import annotations

import ast
import re
import sys
from pathlib import Path

# Folder -> folders that its files may include.
EDGES: dict[str, set[str]] = {
    "base": set(),
    "widgets": {"base"},
    "bridge": set(),
    "services": {"base", "widgets"},
    "engine": {"base", "bridge", "services"},
    "repo": {"base", "widgets", "engine"},
    "packagetable": {"base", "widgets", "engine", "repo"},
    "matters": {"widgets", "engine"},
    "history": {"widgets", "services", "engine", "matters"},
    "advisories": {"widgets", "engine", "matters"},
    "restarts": {"widgets", "services", "engine", "matters"},
    "shell": {"base", "widgets", "bridge", "services", "engine", "repo", "packagetable", "matters", "history", "advisories", "restarts"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([a-z]+)/', re.MULTILINE)
PYTHON_API = re.compile(r'^\s*#\s*include\s+["<](Python\.h|bridge/PythonApi\.h)[">]', re.MULTILINE)
# What drives a package library: folder of the script package -> the modules that nobody else imports.
LIBRARIES: dict[str, set[str]] = {"dnf4": {"dnf", "hawkey", "libdnf"}, "dnf5": {"libdnf5"}}
SCRIPTS = Path("share/python/vemyum")
SOURCES = {".cpp", ".h", ".py", ".sh", ".svg", ".spec", ".cmake", ".adoc", ".po", ".toml"}
NAMES = {"CMakeLists.txt", "run", "check", "packages.list", ".clang-format", ".clang-tidy"}


def files_of(root: Path, folder: str) -> list[Path]:
    return sorted(path for path in (root / folder).rglob("*") if path.suffix in {".cpp", ".h"})


def include_edges(root: Path) -> list[str]:
    breaches = []
    for folder, allowed in EDGES.items():
        for path in files_of(root, folder):
            for other in INCLUDE.findall(path.read_text(encoding="utf-8")):
                if other in EDGES and other != folder and other not in allowed:
                    breaches.append(f"{path.relative_to(root)} includes {other}/")
    return breaches


def interpreter_folders(root: Path) -> list[str]:
    """Only the bridge and the engine include the interpreter's header, and only in source files."""
    breaches = []
    for folder in EDGES:
        for path in files_of(root, folder):
            found = PYTHON_API.search(path.read_text(encoding="utf-8"))
            if found and folder not in {"bridge", "engine"}:
                breaches.append(f"{path.relative_to(root)} includes {found.group(1)}")
    return breaches


def library_imports(root: Path) -> list[str]:
    """A process holds one package library: what isn't about it imports neither it nor what drives it."""
    breaches = []
    for path in sorted((root / SCRIPTS).rglob("*.py")):
        inside = path.relative_to(root / SCRIPTS).parts
        own = inside[0] if len(inside) > 1 else ""
        foreign = {folder: modules for folder, modules in LIBRARIES.items() if folder != own}
        for node in ast.walk(ast.parse(path.read_text(encoding="utf-8"))):
            for name in _imported(node):
                parts = name.split(".")
                if any(parts[0] in modules or folder in parts for folder, modules in foreign.items()):
                    breaches.append(f"{path.relative_to(root)} imports {name}")
    return breaches


def _imported(node: ast.AST) -> list[str]:
    if isinstance(node, ast.Import):
        return [alias.name for alias in node.names]
    if isinstance(node, ast.ImportFrom):
        return [".".join(filter(None, (node.module, alias.name))) for alias in node.names]
    return []


def licence_lines(root: Path) -> list[str]:
    breaches = []
    for path in sorted(root.rglob("*")):
        relative = path.relative_to(root)
        if relative.parts[0] in {".git", "build"} or not path.is_file():
            continue
        if path.suffix in SOURCES or path.name in NAMES:
            head = path.read_text(encoding="utf-8", errors="replace").splitlines()[:6]
            if not any("SPDX-License-Identifier:" in line for line in head):
                breaches.append(f"{relative} has no SPDX line")
    return breaches


def main() -> int:
    rules = {rule.__name__: rule for rule in (include_edges, interpreter_folders, library_imports, licence_lines)}
    breaches = rules[sys.argv[1]](Path(sys.argv[2]))
    for breach in breaches:
        print(breach)
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
