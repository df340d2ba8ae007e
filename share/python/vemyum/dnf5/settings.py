# SPDX-License-Identifier: GPL-2.0-or-later
"""The configuration of the managed root, as libdnf5 takes it.

Every path of the configuration lies below the root. The main file, the repository directories and the cache are where
the configuration editor takes them to be, so that both speak of the same files.
"""

from __future__ import annotations

import contextlib
import itertools
import logging
import os
from typing import Dict, Iterable, Iterator, List, Optional, Sequence, Tuple

import libdnf5.base
import libdnf5.conf
import libdnf5.exception

from .. import rights
from ..configuration import (
    LOG_DIRECTORY,
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
from ..root import as_configured, below, files, managed_root
from .failures import FAILURES, words
from .log import LOGGER, Log

_DEFAULT = libdnf5.conf.Option.Priority_DEFAULT
_RUNTIME = libdnf5.conf.Option.Priority_RUNTIME

_CHECKS = {
    "gpgcheck": "pkg_gpgcheck",
    "pkg_gpgcheck": "pkg_gpgcheck",
    "repo_gpgcheck": "repo_gpgcheck",
    "localpkg_gpgcheck": "localpkg_gpgcheck",
}
"""Options for the check of signatures, with the names by which the library wants them to be set."""
METADATA = ("comps", "updateinfo", "filelists")
"""What is fetched beside the packages, unless the configuration says something else."""
_DROP_INS = ("/usr/share/dnf5/libdnf.conf.d", "/etc/dnf/libdnf5.conf.d")
_PROTECTED = "dnf5"
_COMMENT = "#"
_CLASSIC_VARIABLES = "/etc/yum/vars"
_BUILT_IN = ("arch", "basearch", "releasever", "releasever_major", "releasever_minor")
_FROM_ENVIRONMENT = "DNF_VAR_"
_NUMBERED = tuple(f"DNF{number}" for number in range(10))


class Settings:
    """See `backend.Settings`."""

    def __init__(self, root: str, main: MainFile) -> None:
        self.root = root
        self.main_path = below(root, main.path)
        """The main file as a path of this process, whether it is there or not."""
        self.variables: Dict[str, str] = {}
        self.defined: Dict[str, str] = {}
        """Those variables that the managed system defines itself."""
        self.cache_directory = ""
        self.persistent_directory = ""
        self.log_directory = ""
        self.repository_directories: List[str] = []
        self.checks: List[str] = []
        """Options of the main section that count as switched on."""
        self._main = main

    def load_into(self, library: libdnf5.base.Base) -> None:
        """Has a new Base of the library read the configuration; its paths are those of the managed system, up to
        `put_into`. The library's failures."""
        config = library.get_config()
        config.installroot = self.root
        self._set_defaults(config)
        # Of a file that is missing it would complain.
        config.config_file_path = self.main_path if can_be_read(self.main_path) else os.devnull
        library.load_config()
        for name in self.checks:
            setattr(config, name, True)
        if self.root != "/":
            # Where plugins themselves lie is this machine's business; its settings for them are not the root's.
            folders = [below(self.root, path) for path in config.plugin_conf_dir]
            config.get_plugin_conf_dir_option().set(_RUNTIME, folders)

    def put_into(self, library: libdnf5.base.Base) -> None:
        """Behind `load_into`, before the library's `setup`: the paths and variables that were found out."""
        config = library.get_config()
        for name, path in (
            ("cachedir", self.cache_directory),
            # What it finds there it would take in place of a user's own cache.
            ("system_cachedir", self.cache_directory),
            ("persistdir", self.persistent_directory),
            ("logdir", self.log_directory),
        ):
            getattr(config, f"get_{name}_option")().set(_RUNTIME, path)
        _read_nothing_below(config)
        variables = library.get_vars().get()
        for name, value in self.defined.items():
            _define(variables, name, value)

    def _set_defaults(self, config: libdnf5.conf.ConfigMain) -> None:
        protected = protected_packages(self.root)
        if protected:
            protected.append(_PROTECTED)
        config.get_protected_packages_option().set(_DEFAULT, protected)
        config.get_reposdir_option().set(_DEFAULT, list(self._main.repository_directories))
        config.get_logdir_option().set(_DEFAULT, LOG_DIRECTORY)
        config.get_optional_metadata_types_option().set(_DEFAULT, list(METADATA))
        folders = list(config.varsdir)
        config.get_varsdir_option().set(_DEFAULT, [*folders[:-1], _CLASSIC_VARIABLES, *folders[-1:]])
        if not can_be_read(self.main_path):
            # Else nobody would ask for signatures: the library does it where it is told to.
            config.get_pkg_gpgcheck_option().set(_DEFAULT, True)


def _read_nothing_below(config: libdnf5.conf.ConfigMain) -> None:
    """Variables and repositories are read in a way of our own."""
    config.get_varsdir_option().set(_RUNTIME, [])
    config.get_reposdir_option().set(_RUNTIME, [])


def read_settings() -> Settings:
    """See `backend.Library`."""
    root = managed_root()
    own = rights.own_directory(root) if rights.keeps_own_directory(root) else None
    main = main_file(root)
    path = regular_main_file(root)
    settings = Settings(root, main)
    point_rpm_at(root)
    library = libdnf5.base.Base()
    log = Log(library)
    try:
        stated = _main_section(path)
        settings.checks = _unclear_in_main(root, stated)
        settings.load_into(library)
        config = library.get_config()
        variables = _variables(root, config.varsdir)
        directories = {name: getattr(config, name) for name in ("persistdir", "logdir")}
        # The library passes over what the main file states, for the administrator.
        directories["cachedir"] = (
            stated.get_value("main", "cachedir")
            if stated.has_option("main", "cachedir")
            else main.cache_directory or config.system_cachedir
        )
        settings.repository_directories = list(config.reposdir)
        # They have nothing to do as long as nothing is read.
        config.plugins = False
        _read_nothing_below(config)
        library.setup()
    except FAILURES as error:
        raise YumBaseError(as_configured(words(error))) from error
    finally:
        log.tell()
    settings.defined = _defined(library, root, variables)
    settings.variables = _all_variables(library, settings.defined)
    substituted = library.get_vars().get().substitute
    places = {name: below(root, substituted(path)) for name, path in directories.items()}
    settings.repository_directories = [below(root, substituted(path)) for path in settings.repository_directories]
    if own is not None:
        places = {name: os.path.join(own, rights.OWN_FOLDERS[name]) for name in places}
    settings.cache_directory = places["cachedir"]
    settings.persistent_directory = places["persistdir"]
    settings.log_directory = places["logdir"]
    for directory in (settings.log_directory, settings.cache_directory):
        os.makedirs(directory, exist_ok=True)
    return settings


def unclear(parser: libdnf5.conf.ConfigParser, section: str, variables: Optional[libdnf5.conf.Vars]) -> List[str]:
    """The options for the check of signatures for which a section says something else than yes or no, as the library
    calls them."""
    found = []
    for name, option in _CHECKS.items():
        if parser.has_option(section, name):
            value = parser.get_value(section, name)
            try:
                libdnf5.conf.OptionBool(True).from_string(value if variables is None else variables.substitute(value))
            except libdnf5.exception.OptionError:
                found.append(option)
                logging.getLogger(LOGGER).error("%s", unclear_check(section, name))
    return found


def _unclear_in_main(root: str, main: libdnf5.conf.ConfigParser) -> List[str]:
    """The same of the main file and the files that the library reads before it; what comes later counts."""
    found: List[str] = []
    for parser in (*_drop_ins(root), main):
        stated = {option for name, option in _CHECKS.items() if parser.has_option("main", name)}
        found = [option for option in found if option not in stated] + unclear(parser, "main", None)
    return found


def _drop_ins(root: str) -> Iterator[libdnf5.conf.ConfigParser]:
    found: Dict[str, str] = {}
    for folder in _DROP_INS:
        # One of the system's own takes the place of its like.
        found.update((os.path.basename(path), place) for path, place in files(root, folder, "*.conf"))
    for _name, place in sorted(found.items()):
        parser = libdnf5.conf.ConfigParser()
        # The library tells of one that it cannot read.
        with contextlib.suppress(*FAILURES):
            parser.read(place)
        yield parser


def options(section: Iterable[Tuple[str, str]]) -> Dict[str, str]:
    """What a section of a parsed file states. Its comments stand among that, each under a name of the parser's own."""
    return {name: value for name, value in section if not name.startswith(_COMMENT)}


def _main_section(path: str) -> libdnf5.conf.ConfigParser:
    """What the main file states. YumBaseError for a section that isn't UTF-8."""
    parser = libdnf5.conf.ConfigParser()
    if can_be_read(path):
        parser.read(path)
        for name, section in parser.get_data():
            if name == "main" and not all(map(_is_text, itertools.chain(*options(section).items()))):
                # Paths may be among what it says; they are not to be guessed.
                require_utf8(path, ValueError(name))
    return parser


def _is_text(text: str) -> bool:
    """Whether it was UTF-8; the library gives other bytes as lone surrogates."""
    return text.isascii() or not any("\udc80" <= character <= "\udcff" for character in text)


# Variables -------------------------------------------------------------------------------------------------------


def _variables(root: str, directories: Sequence[str]) -> Dict[str, str]:
    """Those that the managed system defines. YumBaseError names a file that isn't UTF-8."""
    found: Dict[str, str] = {}
    for name, file in variable_files(root, directories):
        try:
            found[name] = variable(file)
        except OSError as error:
            # One that may not be read.
            logging.getLogger(LOGGER).warning("%s", error)
    return found


def _defined(library: libdnf5.base.Base, root: str, variables: Dict[str, str]) -> Dict[str, str]:
    """Those of these variables that can be, and the release, which the managed system's packages tell."""
    held = library.get_vars().get()
    defined = {name: value for name, value in variables.items() if _define(held, name, value)}
    if not held.contains("releasever"):
        release = _release(library, root)
        _define(held, "releasever", release)
        defined["releasever"] = release
    return defined


def _define(variables: libdnf5.conf.Vars, name: str, value: str) -> bool:
    try:
        if not variables.is_read_only(name):
            variables.set(name, value)
            return True
    except FAILURES as error:
        logging.getLogger(LOGGER).warning("%s", words(error))
    return False


def _release(library: libdnf5.base.Base, root: str) -> str:
    # The library has read rpm's configuration anew meanwhile.
    point_rpm_at(root)
    try:
        return str(libdnf5.conf.Vars.detect_release(library.get_weak_ptr(), root).get() or "")
    except FAILURES as error:
        # A database that cannot be read is told when its packages are wanted.
        logging.getLogger(LOGGER).warning("%s", words(error))
        return ""


def _all_variables(library: libdnf5.base.Base, defined: Dict[str, str]) -> Dict[str, str]:
    """The library lists none; it tells what somebody asks for."""
    outside = [name[len(_FROM_ENVIRONMENT) :] for name in os.environ if name.startswith(_FROM_ENVIRONMENT)]
    variables = library.get_vars().get()
    names = dict.fromkeys((*_BUILT_IN, *_NUMBERED, *outside, *defined))
    return {name: variables.get_value(name) for name in names if name and variables.contains(name)}
