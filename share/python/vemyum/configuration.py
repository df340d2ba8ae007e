# SPDX-License-Identifier: GPL-2.0-or-later
"""Where the configuration of the managed system lies, and what holds where it says nothing.

The main file, the repository directories and the cache are where the configuration editor takes them to be, so that
both speak of the same files. Every path of them lies below the root.
"""

from __future__ import annotations

import contextlib
import os
from typing import Dict, Iterable, Iterator, List, Mapping, NamedTuple, Optional, Sequence, Tuple

from . import rights
from .errors import YumBaseError
from .root import below, files, managed_root, within
from .texts import _


class MainFile(NamedTuple):
    """A main configuration file, and what holds where it doesn't state these options itself."""

    path: str
    repository_directories: Tuple[str, ...]
    cache_directory: Optional[str]
    """None leaves dnf's own."""


_YUM_DIRECTORIES = ("/etc/yum/repos.d", "/etc/yum.repos.d")
_YUM_CACHE = "/var/cache/yum"

MAIN_FILES = (
    MainFile("/etc/yum/yum.conf", _YUM_DIRECTORIES, _YUM_CACHE),
    MainFile("/etc/yum.conf", _YUM_DIRECTORIES, _YUM_CACHE),
    MainFile("/etc/dnf/dnf.conf", ("/etc/yum.repos.d", "/etc/distro.repos.d"), None),
)
"""The first that exists is used."""
WITHOUT_ANY = MAIN_FILES[1]
"""The one that is missing where none exists."""

LOG_DIRECTORY = "/var/log"
SIGNATURE_OPTIONS = ("gpgcheck", "repo_gpgcheck", "localpkg_gpgcheck")
PROTECTED_DIRECTORIES = ("/etc/yum/protected.d", "/etc/dnf/protected.d")
ALWAYS_PROTECTED = ("dnf", "yum")


def main_file(root: str) -> MainFile:
    """The main configuration file that counts below the root, whether it exists or not."""
    return next((file for file in MAIN_FILES if is_there(root, file.path)), WITHOUT_ANY)


def existing_main_file(root: str) -> str:
    """The path of the main configuration file that counts below the root; empty where there is none."""
    path = main_file(root).path
    return path if is_there(root, path) else ""


def require_main_file(path: str) -> None:
    """YumBaseError when this file of the managed system is gone; an empty path asks for none."""
    if path and not is_there(managed_root(), path):
        raise YumBaseError(
            _("The main configuration file {file} is no longer there. Please refresh the list of packages.").format(
                file=path
            )
        )


def is_there(root: str, path: str) -> bool:
    with contextlib.suppress(OSError):
        return os.path.exists(below(root, path))
    return False


def can_be_read(path: str) -> bool:
    """Whether there is a main file at this path of the process that this user may read. One that is closed to the user
    counts as missing: the repositories can be looked at without it."""
    return os.access(path, os.R_OK)


def regular_main_file(root: str) -> str:
    """The path of the process for the main configuration file that counts below the root, whether it is there or not.
    YumBaseError for what is no file: to open a pipe would wait for ever."""
    main = main_file(root)
    path = below(root, main.path)
    if os.path.exists(path) and not (os.path.isfile(path) or os.path.isdir(path)):
        raise YumBaseError(_("{file} is not a regular file").format(file=main.path))
    return path


def require_utf8(file: str, stumble: Exception) -> None:
    """YumBaseError with the line, if a file over which something stumbled isn't UTF-8."""
    try:
        with open(file, "rb") as stream:
            stream.read().decode("utf-8")
    except OSError:
        # Nobody can have stumbled over it.
        return
    except UnicodeDecodeError as fault:
        line = fault.object.count(b"\n", 0, fault.start) + 1
        raise YumBaseError(
            _("{file}, line {line}: the text is not in UTF-8").format(file=file, line=line)
        ) from stumble


def unclear_check(section: str, option: str) -> str:
    """That a section says something else than yes or no about a check of signatures. A library reports such a value and
    goes on as if it weren't there, which may mean without a check."""
    text = _("[{section}]: {option} counts as switched on, since its value is neither yes nor no")
    return text.format(section=section, option=option)


def repository_files(root: str, main: str, directories: Iterable[str]) -> List[str]:
    """The repository files of these directories, in the order of their names without the ending.

    As with the configuration editor regular files only, and each once, whatever its paths are: not the main file either.
    """
    found = [pair for directory in directories for pair in files(root, within(root, directory), "*.repo")]
    found.sort(key=lambda pair: [name for name in pair[0][: -len(".repo")].split("/") if name])
    paths: Dict[Tuple[int, int], str] = {_identity(main): ""}
    for _path, place in found:
        paths.setdefault(_identity(place), place)
    return [path for path in paths.values() if path]


def _identity(path: str) -> Tuple[int, int]:
    """What tells files apart; the same for all that are gone."""
    try:
        status = os.stat(path)
    except OSError:
        return (0, 0)
    return (status.st_dev, status.st_ino)


def variable_files(root: str, directories: Sequence[str]) -> Iterator[Tuple[str, str]]:
    """The variables that the managed system defines, a file each: name and path of the process."""
    # Not as a library does it, which would follow links of the managed system out of the root.
    for path, place in (pair for directory in directories for pair in files(root, directory, "*")):
        yield os.path.basename(path), place


def variable(file: str) -> str:
    """The value that a variable's file gives. YumBaseError names one that isn't UTF-8; OSError."""
    try:
        with open(file, encoding="utf-8") as stream:
            return stream.readline().removesuffix("\n")
    except UnicodeDecodeError as error:
        require_utf8(file, error)
        raise


def protected_packages(root: str) -> List[str]:
    """The packages that the managed system says must stay; a library would ask this machine's files. None for whoever
    can't remove packages: it may not even be possible to read which ones they are."""
    if not rights.is_administrator():
        return []
    names = list(ALWAYS_PROTECTED)
    for directory in PROTECTED_DIRECTORIES:
        for _path, place in files(root, directory, "*.conf"):
            with open(place, encoding="utf-8", errors="replace") as file:
                lines = (line.partition("#")[0].strip() for line in file)
                names += [name for line in lines for name in line.replace(",", " ").split()]
    return list(dict.fromkeys(names))


class Configuration:
    """The engine's view, `YumIO.conf`: `yumvar` maps the names of yum's variables to their values."""

    def __init__(self, variables: Mapping[str, str]) -> None:
        self.yumvar = dict(variables)
