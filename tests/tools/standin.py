# SPDX-License-Identifier: GPL-2.0-or-later
"""Stands in for the package managers' commands, under whose names it is linked. A folder, VEM_STANDINS, holds what a
system would: `installed`, names; `archive`, names that a Debian can have; `repository.ID`, the names that lie there, first of all its state (enabled or
disabled); `version`, what dnf says of itself; `fails`, words of commands that fail. Each call is noted in `calls`.
"""
from __future__ import annotations

import os
import sys
from pathlib import Path

STATE = Path(os.environ["VEM_STANDINS"])


def lines(name: str) -> list[str]:
    file = STATE / name
    return file.read_text().splitlines() if file.exists() else []


def repositories() -> dict[str, list[str]]:
    return {file.name.partition(".")[2]: lines(file.name) for file in sorted(STATE.glob("repository.*"))}


def install(names: list[str], offered: set[str]) -> None:
    with (STATE / "installed").open("a") as file:
        file.writelines(f"{name}\n" for name in names if name in offered)


def rpm(words: list[str]) -> int:
    """Answers as rpm does: what a found package provides and holds, and words for what it doesn't know."""
    installed = lines("installed")
    asked = words[words.index("--whatprovides") + 1:]
    for name in asked:
        if "--quiet" not in words:
            print(f"{name}\n/usr/share/doc/{name}" if name in installed else f"no package provides {name}")
    return sum(name not in installed for name in asked)


def dnf_install(words: list[str]) -> int:
    used = {word.partition("=")[2] for word in words if word.startswith("--enablerepo=")}
    content = repositories()
    offered = {name for id, (state, *names) in content.items() if state == "enabled" or id in used for name in names}
    asked = [word for word in words[words.index("install") + 1:] if not word.startswith("--")]
    # A file on the network is there whatever the repositories have.
    if any(name.startswith("https:") for name in asked):
        asked, offered = ["epel-release"], {"epel-release"}
    fifth = lines("version")[0].startswith("dnf5")
    lenient = "--skip-unavailable" if fifth else "--setopt=strict=0"
    if {"--skip-unavailable", "--setopt=strict=0"} - {lenient} & set(words):
        return 2
    if lenient not in words and not set(asked) <= offered:
        return 1
    if "epel-release" in asked:
        (STATE / "hidden.epel").rename(STATE / "repository.epel")
    install(asked, offered)
    return 0


def dnf(words: list[str]) -> int:
    if words == ["--version"]:
        print("\n".join(lines("version")))
        return 0
    if "repolist" in words:
        print("repo id      repo name       status")
        for id, (state, *_) in repositories().items():
            if f"--{state}" in words:
                print(f"{id}   Repository named {id}")
        return 0
    return dnf_install(words)


def dpkg_query(words: list[str]) -> int:
    installed = lines("installed")
    asked = words[2:]
    for name in asked:
        if name in installed:
            print(f"installed {name}")
    return int(not set(asked) <= set(installed))


def apt_cache(words: list[str]) -> int:
    """madison answers in silence for what it doesn't know."""
    for name in words[1:]:
        if name in lines("archive"):
            print(f" {name} | 1.0-1 | http://archive/debian forky/main amd64 Packages")
    return 0


def apt_get(words: list[str]) -> int:
    if "install" in words:
        asked = words[words.index("install") + 1:]
        install(asked, set(asked))
    return 0


def main() -> int:
    command, words = Path(sys.argv[0]).name, sys.argv[1:]
    with (STATE / "calls").open("a") as file:
        print(command, *words, file=file)
    if command == "id":
        print((lines("user") or ["0"])[0])
        return 0
    if command == "sudo":
        os.execvp(words[0], words)
    if any(word in words for word in lines("fails")):
        return 1
    answers = {"rpm": rpm, "dnf": dnf, "dnf5": dnf, "dpkg-query": dpkg_query, "apt-get": apt_get,
               "apt-cache": apt_cache}
    return answers[command](words)


if __name__ == "__main__":
    sys.exit(main())
