# SPDX-License-Identifier: GPL-2.0-or-later
"""The configuration: dnf's settings for the managed root. Every path of the configuration lies below the root."""

from __future__ import annotations

import contextlib
import logging
import os
from typing import Any, Iterator, Mapping

import dnf.conf
import dnf.conf.config
import dnf.exceptions
import dnf.rpm
import dnf.util
import dnf.yum.misc
import libdnf.conf

from .. import rights
from ..configuration import (
    LOG_DIRECTORY,
    SIGNATURE_OPTIONS,
    MainFile,
    can_be_read,
    main_file,
    protected_packages,
    regular_main_file,
    require_utf8,
    unclear_check,
    variable,
    variable_files,
)
from ..database import point_rpm_at
from ..errors import YumBaseError
from ..root import as_configured, below, managed_root


class Settings:
    """One reading of the configuration. `conf` is dnf's."""

    def __init__(self) -> None:
        """Makes the log and cache directories where they are missing; whoever isn't the administrator has them below
        a folder of the user. Raises dnf.exceptions.Error for a file that cannot be understood, YumBaseError for a root
        or a home that cannot be used, OSError."""
        root = managed_root()
        own = rights.own_directory(root) if rights.keeps_own_directory(root) else None
        self.conf = _read(root)
        self.system_persistent_directory: str = self.conf.persistdir
        """The managed system's, whoever looks at it."""
        if own is not None:
            # What dnf itself keeps for a user, its locks above all; it would make a folder of a random name.
            dnf.yum.misc.getCacheDir = lambda: own
            for option, folder in rights.OWN_FOLDERS.items():
                self.conf._set_value(option, os.path.join(own, folder))
        for directory in (self.conf.logdir, self.conf.cachedir):
            dnf.util.ensure_dir(directory)

    @property
    def root(self) -> str:
        return self.conf.installroot

    @property
    def variables(self) -> Mapping[str, str]:
        return self.conf.substitutions

    @property
    def cache_directory(self) -> str:
        return self.conf.cachedir

    @property
    def persistent_directory(self) -> str:
        return self.conf.persistdir


def library_words(error: dnf.exceptions.ConfigError) -> str:
    """What is wrong with a file of the configuration, told once: dnf repeats what its library says."""
    return str(error.__context__ if isinstance(error.__context__, RuntimeError) else error)


def misread(error: dnf.exceptions.ConfigError) -> YumBaseError:
    return YumBaseError(as_configured(library_words(error)))


def _read(root: str) -> dnf.conf.MainConf:
    """Reads the main file of the root."""
    conf = dnf.conf.Conf()
    conf.installroot = root
    main = main_file(root)
    path = regular_main_file(root)
    _set_defaults(conf, root, main, path)
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
    conf.exit_on_lock = True
    # The rebuild of delta packages waits for any child of the process, and so takes the exit codes of
    # children that are not its own.
    conf.deltarpm = False
    return conf


def check_signatures_unless_told(settings: Any, parser: libdnf.conf.ConfigParser, section: str, priority: int) -> None:
    """Switches the check of signatures on where the configuration says something else than yes or no."""
    for name in SIGNATURE_OPTIONS:
        if parser.hasSection(section) and name in parser.options(section):
            try:
                libdnf.conf.OptionBool(True).fromString(parser.getSubstitutedValue(section, name))
            except RuntimeError:
                settings._set_value(name, True, priority)
                logging.getLogger("dnf").error("%s", unclear_check(section, name))


@contextlib.contextmanager
def undecodable_named(file: str) -> Iterator[None]:
    """Names a main file that isn't UTF-8 where dnf stumbles over its bytes with an error of its own inside.

    Paths may be among what it says; they are not to be guessed.
    """
    try:
        yield
    except TypeError as error:
        require_utf8(file, error)
        raise


def _read_variables(conf: dnf.conf.MainConf, root: str) -> None:
    """The variables that the managed system defines, a file each. YumBaseError names one that isn't UTF-8."""
    for name, file in variable_files(root, conf.varsdir):
        try:
            conf.substitutions[name] = variable(file)
        except (OSError, dnf.exceptions.Error) as error:
            # One that may not be read, or not be set in this version of dnf.
            logging.getLogger("dnf").warning("%s", error)


def _release(root: str) -> str:
    try:
        return dnf.rpm.detect_releasever(root) or ""
    except dnf.exceptions.Error as error:
        # A database that cannot be read is told when its packages are wanted.
        logging.getLogger("dnf").warning("%s", error)
        return ""


def _set_defaults(conf: dnf.conf.MainConf, root: str, main: MainFile, path: str) -> None:
    defaults = {
        "reposdir": list(main.repository_directories),
        "protected_packages": protected_packages(root),
        "logdir": LOG_DIRECTORY,
    }
    if main.cache_directory is not None:
        defaults["cachedir"] = main.cache_directory
    if not can_be_read(path):
        # Else nobody would ask for signatures: the library does it where it is told to.
        defaults["gpgcheck"] = True
    for name, value in defaults.items():
        conf._set_value(name, value, dnf.conf.config.PRIO_DEFAULT)
    if conf._has_option("optional_metadata_types"):
        # Later versions of dnf load file lists only when asked.
        conf._set_value("optional_metadata_types", ["filelists"], dnf.conf.config.PRIO_DEFAULT)


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


