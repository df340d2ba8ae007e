# SPDX-License-Identifier: GPL-2.0-or-later
"""The configuration: dnf's settings for the managed root.

Every path of the configuration lies below the root. The main file, the repository directories and the
cache are where the configuration editor takes them to be, so that both speak of the same files.
"""

from __future__ import annotations

import contextlib
import logging
import os
from typing import Any, Dict, Iterator, List, NamedTuple, Optional, Tuple

import dnf.conf
import dnf.conf.config
import dnf.exceptions
import dnf.rpm
import dnf.util
import libdnf.conf

from . import rights
from .database import point_rpm_at
from .errors import YumBaseError
from .root import as_configured, below, files, managed_root, within
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


def library_words(error: dnf.exceptions.ConfigError) -> str:
    """What is wrong with a file of the configuration, told once: dnf repeats what its library says."""
    return str(error.__context__ if isinstance(error.__context__, RuntimeError) else error)


def misread(error: dnf.exceptions.ConfigError) -> YumBaseError:
    return YumBaseError(as_configured(library_words(error)))


def main_file(root: str) -> MainFile:
    """The main configuration file that counts below the root, whether it exists or not."""
    return next((file for file in MAIN_FILES if _is_there(root, file.path)), WITHOUT_ANY)


def existing_main_file(root: str) -> str:
    """The path of the main configuration file that counts below the root; empty where there is none."""
    path = main_file(root).path
    return path if _is_there(root, path) else ""


def require_main_file(path: str) -> None:
    """YumBaseError when this file of the managed system is gone; an empty path asks for none."""
    if path and not _is_there(managed_root(), path):
        raise YumBaseError(
            _("The main configuration file {file} is no longer there. Please refresh the list of packages.").format(
                file=path
            )
        )


def _is_there(root: str, path: str) -> bool:
    with contextlib.suppress(OSError):
        return os.path.exists(below(root, path))
    return False


def read_configuration() -> dnf.conf.MainConf:
    """Reads the main file of the managed root.

    Makes the log and cache directories where they are missing; whoever isn't the administrator has them
    below a folder of the user. Raises dnf.exceptions.Error for a file that cannot be understood, or for a
    root or a home that cannot be used, OSError.
    """
    root = managed_root()
    own = rights.own_directory(root) if rights.keeps_own_directory(root) else None
    conf = dnf.conf.Conf()
    conf.installroot = root
    main = main_file(root)
    _set_defaults(conf, root, main)
    path = below(root, main.path)
    if os.path.exists(path) and not (os.path.isfile(path) or os.path.isdir(path)):
        # To open a pipe would wait for ever.
        raise YumBaseError(_("{file} is not a regular file").format(file=main.path))
    try:
        with undecodable_named(path):
            conf.read(path, dnf.conf.config.PRIO_MAINCONFIG)
        parser = libdnf.conf.ConfigParser()
        if os.path.exists(path):
            parser.read(path)
    except dnf.exceptions.ConfigError as error:
        raise misread(error) from error
    check_signatures_unless_told(conf, parser, "main", dnf.conf.config.PRIO_MAINCONFIG)
    point_rpm_at(root)
    _read_variables(conf, root)
    if "releasever" not in conf.substitutions:
        conf.substitutions["releasever"] = _release(root)
    _put_below_root(conf, root)
    if own is not None:
        rights.use_directories(conf, own)
    conf.exit_on_lock = True
    # The rebuild of delta packages waits for any child of the process, and so takes the exit codes of
    # children that are not its own.
    conf.deltarpm = False
    for directory in (conf.logdir, conf.cachedir):
        dnf.util.ensure_dir(directory)
    return conf


def check_signatures_unless_told(settings: Any, parser: libdnf.conf.ConfigParser, section: str, priority: int) -> None:
    """Switches the check of signatures on where the configuration says something else than yes or no.

    dnf reports such a value and goes on as if it weren't there, which may mean without a check.
    """
    for name in SIGNATURE_OPTIONS:
        if parser.hasSection(section) and name in parser.options(section):
            try:
                libdnf.conf.OptionBool(True).fromString(parser.getSubstitutedValue(section, name))
            except RuntimeError:
                settings._set_value(name, True, priority)
                text = _("[{section}]: {option} counts as switched on, since its value is neither yes nor no")
                logging.getLogger("dnf").error("%s", text.format(section=section, option=name))


@contextlib.contextmanager
def undecodable_named(file: str) -> Iterator[None]:
    """Names a main file that isn't UTF-8 where dnf stumbles over its bytes with an error of its own inside.

    Paths may be among what it says; they are not to be guessed.
    """
    try:
        yield
    except TypeError as error:
        _require_utf8(file, error)
        raise


def _read_variables(conf: dnf.conf.MainConf, root: str) -> None:
    """The variables that the managed system defines, a file each. YumBaseError names one that isn't UTF-8."""
    # As dnf does it, which would follow links of the managed system out of the root.
    for path, file in (pair for directory in conf.varsdir for pair in files(root, directory, "*")):
        try:
            with open(file, encoding="utf-8") as stream:
                value = stream.readline()
            conf.substitutions[os.path.basename(path)] = value.removesuffix("\n")
        except UnicodeDecodeError as error:
            _require_utf8(file, error)
            raise
        except (OSError, dnf.exceptions.Error) as error:
            # One that may not be read, or not be set in this version of dnf.
            logging.getLogger("dnf").warning("%s", error)


def _require_utf8(file: str, stumble: Exception) -> None:
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


def _release(root: str) -> str:
    try:
        return dnf.rpm.detect_releasever(root) or ""
    except dnf.exceptions.Error as error:
        # A database that cannot be read is told when its packages are wanted.
        logging.getLogger("dnf").warning("%s", error)
        return ""


def _set_defaults(conf: dnf.conf.MainConf, root: str, main: MainFile) -> None:
    defaults = {
        "reposdir": list(main.repository_directories),
        # Whoever can't remove packages may not even be able to read which ones are protected.
        "protected_packages": _protected_packages(root) if rights.is_administrator() else [],
        "logdir": LOG_DIRECTORY,
    }
    if main.cache_directory is not None:
        defaults["cachedir"] = main.cache_directory
    if not _is_there(root, main.path):
        # Else nobody would ask for signatures: the library does it where it is told to.
        defaults["gpgcheck"] = True
    for name, value in defaults.items():
        conf._set_value(name, value, dnf.conf.config.PRIO_DEFAULT)
    if conf._has_option("optional_metadata_types"):
        # Later versions of dnf load file lists only when asked.
        conf._set_value("optional_metadata_types", ["filelists"], dnf.conf.config.PRIO_DEFAULT)


def _protected_packages(root: str) -> List[str]:
    """The packages that the managed system says must stay; dnf itself would ask this machine's files."""
    names = list(ALWAYS_PROTECTED)
    for directory in PROTECTED_DIRECTORIES:
        for _path, place in files(root, directory, "*.conf"):
            with open(place, encoding="utf-8", errors="replace") as file:
                lines = (line.partition("#")[0].strip() for line in file)
                names += [name for line in lines for name in line.replace(",", " ").split()]
    return list(dict.fromkeys(names))


def _put_below_root(conf: dnf.conf.MainConf, root: str) -> None:
    for name in ("cachedir", "logdir", "persistdir"):
        path = libdnf.conf.ConfigParser.substitute(conf._get_value(name), conf.substitutions)
        conf._set_value(name, below(root, path))
    directories = [
        below(root, libdnf.conf.ConfigParser.substitute(path, conf.substitutions)) for path in conf.reposdir
    ]
    conf._set_value("reposdir", directories)
    # Where the plugins themselves lie is this machine's business.
    conf._set_value("pluginconfpath", [below(root, path) for path in conf.pluginconfpath])


class Configuration:
    """The engine's view, `YumIO.conf`: `yumvar` maps the names of yum's variables to their values."""

    def __init__(self, substitutions: Dict[str, str]) -> None:
        self.yumvar = dict(substitutions)
