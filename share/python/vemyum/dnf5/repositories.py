# SPDX-License-Identifier: GPL-2.0-or-later
"""The configured repositories, read in a way of our own: the library refuses all files for a fault in one of them.

As the configuration editor, each file and directory is read once, whatever its paths are, and regular files only.
"""

from __future__ import annotations

import fnmatch
import logging
import os
from typing import Dict, Iterable, Iterator, List, NamedTuple

import libdnf5.base
import libdnf5.conf
import libdnf5.exception
import libdnf5.repo

from ..configuration import repository_files
from ..latin1 import content_of, decoded
from ..root import files
from ..sections import RepositorySection
from ..text import valid
from .failures import FAILURES, words
from .log import LOGGER
from .settings import Settings, options, unclear

_OVERRIDES = ("/usr/share/dnf5/repos.override.d", "/etc/dnf/repos.override.d")
"""Where the command line keeps what it is told to change about repositories, apart from their files."""


class _Section(NamedTuple):
    name: str
    options: Dict[str, str]
    file: str


class RepositoryReader:
    """Puts repositories into a Base of the library."""

    def __init__(self, settings: Settings, library: libdnf5.base.Base) -> None:
        self.refused: List[str] = []
        """What cannot be used, as far as it was read: files, and sections that aren't switched off."""
        self.sections: Dict[str, RepositorySection] = {}
        """What the repositories were built of, by their ids."""
        self._settings = settings
        self._library = library
        self._variables = library.get_vars().get()
        self._logger = library.get_logger().get()
        self._said = logging.getLogger(LOGGER)

    def read(self) -> None:
        """All that are configured. The library's failures when the main file has become unreadable meanwhile: it may
        hold repositories, too."""
        overrides = list(self._overrides())
        for section in self._sections():
            id = self._variables.substitute(section.name)
            for override in overrides:
                if fnmatch.fnmatchcase(id, override.name):
                    section.options.update(override.options)
            self._add(section, RepositorySection(section.name, section.options, False), False)

    def rebuild(self, sections: Iterable[RepositorySection]) -> None:
        """Those of sections that were read before."""
        for section in sections:
            self._add(_Section(section.name, section.options, ""), section, True)

    def _add(self, read: _Section, section: RepositorySection, as_it_was: bool) -> None:
        parser = _parser_of(read)
        try:
            repo = self._library.get_repo_sack().create_repo(self._variables.substitute(read.name)).get()
        except FAILURES as error:
            self._said.warning("%s", words(error))
            if _is_switched_on(parser, read.name, self._variables):
                self.refused.append(f"{valid(read.file)}: {words(error)}")
            # Two sections may claim the same id, of which the first counts.
            return
        config = repo.get_config()
        config.load_from_parser(parser, read.name, self._variables, self._logger)
        for name in unclear(parser, read.name, self._variables):
            if hasattr(config, name):
                setattr(config, name, True)
        repo.set_repo_file_path(valid(read.file))
        if as_it_was:
            (repo.enable if section.enabled else repo.disable)()
        self.sections[repo.get_id()] = RepositorySection(read.name, read.options, repo.is_enabled())

    # Files -------------------------------------------------------------------------------------------------------

    def _sections(self) -> Iterator[_Section]:
        settings = self._settings
        yield from self._sections_of(settings.main_path)
        for path in repository_files(settings.root, settings.main_path, settings.repository_directories):
            try:
                yield from self._sections_of(path)
            except FAILURES as error:
                self._said.warning("%s", words(error))
                self.refused.append(words(error))

    def _overrides(self) -> Iterator[_Section]:
        root = self._settings.root
        found: Dict[str, str] = {}
        for folder in _OVERRIDES:
            # One of the system's own takes the place of its like.
            found.update((os.path.basename(path), place) for path, place in files(root, folder, "*.repo"))
        for _name, place in sorted(found.items()):
            try:
                yield from self._sections_of(place)
            except FAILURES as error:
                self._said.warning("%s", words(error))
                self.refused.append(words(error))

    def _sections_of(self, path: str) -> Iterator[_Section]:
        """The library's failures name the file."""
        found = content_of(path, self.refused)
        if found is None:
            return
        for section in _parsed(path, *found):
            if section.name != "main":
                yield section


def _parsed(path: str, content: bytes, odd: bool) -> List[_Section]:
    """The library's failures name the file."""
    parser = libdnf5.conf.ConfigParser()
    if not odd:
        parser.read(path)
        return _sections_in(parser, path)
    # In memory: an address may hold a password.
    with open(os.memfd_create("repo"), "w+b") as copy:
        copy.write(decoded(content).encode("utf-8"))
        copy.flush()
        stand_in = f"/proc/self/fd/{copy.fileno()}"
        try:
            parser.read(stand_in)
        except libdnf5.exception.Error as error:
            # Of the copy that is read in its place nobody knows.
            raise RuntimeError(words(error).replace(stand_in, valid(path))) from error
    return _sections_in(parser, path)


def _sections_in(parser: libdnf5.conf.ConfigParser, path: str) -> List[_Section]:
    return [_Section(name, options(section), path) for name, section in parser.get_data()]


def _parser_of(section: _Section) -> libdnf5.conf.ConfigParser:
    parser = libdnf5.conf.ConfigParser()
    parser.add_section(section.name)
    for name, value in section.options.items():
        parser.set_value(section.name, name, value, "")
    return parser


def _is_switched_on(parser: libdnf5.conf.ConfigParser, section: str, variables: libdnf5.conf.Vars) -> bool:
    try:
        value = variables.substitute(parser.get_value(section, "enabled"))
        return bool(libdnf5.conf.OptionBool(True).from_string(value))
    except libdnf5.exception.Error:
        # It doesn't say, or says what the library doesn't understand.
        return True
