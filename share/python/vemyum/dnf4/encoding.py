# SPDX-License-Identifier: GPL-2.0-or-later
"""The configured repositories as dnf reads them, and files among them that aren't UTF-8, over which it stumbles."""

from __future__ import annotations

import contextlib
import logging
import tempfile
from typing import Any, Iterator, List

import dnf.conf
import dnf.conf.config
import dnf.conf.read
import dnf.exceptions
import libdnf.conf

from ..configuration import repository_files
from ..latin1 import content_of, decoded
from ..sections import RepositorySection
from ..text import valid
from .configuration import check_signatures_unless_told, library_words


class RepositoryReader(dnf.conf.read.RepoReader):
    """dnf's reader of all configured repositories.

    As the configuration editor it reads each file and directory once, whatever its paths are, and regular files
    only.
    """

    def __init__(self, conf: Any, opts: Any) -> None:
        super().__init__(conf, opts)
        self.section = RepositorySection("", {}, False)
        """What the last repository was built of."""
        self.refused: List[str] = []
        """What cannot be used, as far as it was read: files, and sections that aren't switched off."""
        self._file = ""

    def __iter__(self) -> Iterator[Any]:
        yield from self._get_repos(self.conf.config_file_path)
        for path in repository_files(self.conf.installroot, self.conf.config_file_path, self.conf.reposdir):
            try:
                yield from self._get_repos(path)
            except dnf.exceptions.ConfigError as error:
                logging.getLogger("dnf").warning("%s", library_words(error))
                self.refused.append(library_words(error))

    def refuse(self, file: str, error: Exception) -> None:
        """Takes down why a section of this file is not used."""
        self.refused.append(f"{file}: {error}")

    def _build_repo(self, parser: Any, id_: str, repofn: str) -> Any:
        try:
            repo = super()._build_repo(parser, id_, repofn)
        except (dnf.exceptions.ConfigError, dnf.exceptions.RepoError) as error:
            if _is_switched_on(parser, id_):
                self.refuse(self._file, error)
            raise
        check_signatures_unless_told(repo, parser, id_, dnf.conf.config.PRIO_REPOCONFIG)
        options = {name: parser.getValue(id_, name) for name in parser.options(id_)}
        self.section = RepositorySection(id_, options, bool(repo.enabled))
        return repo

    def rebuilt(self, section: RepositorySection) -> Any:
        """The repository of a section that was read before. dnf.exceptions.ConfigError."""
        parser = libdnf.conf.ConfigParser()
        parser.setSubstitutions(self.conf.substitutions)
        parser.addSection(section.name)
        for name, value in section.options.items():
            parser.setValue(section.name, name, value)
        repo = self._build_repo(parser, section.name, "")
        repo._configure_from_options(self.opts)
        self.section = section
        return repo

    def _get_repos(self, repofn: str) -> Iterator[Any]:
        with _utf8_file(repofn, self.refused) as file:
            self._file = valid(repofn)
            try:
                for repo in super()._get_repos(file):
                    repo.repofile = valid(repofn)
                    yield repo
            except dnf.exceptions.ConfigError as error:
                # Of the copy that is read in its place nobody knows.
                raise dnf.exceptions.ConfigError(library_words(error).replace(file, valid(repofn))) from error


def _is_switched_on(parser: libdnf.conf.ConfigParser, section: str) -> bool:
    try:
        return libdnf.conf.OptionBool(True).fromString(parser.getSubstitutedValue(section, "enabled"))
    except (RuntimeError, IndexError):
        # It doesn't say, or says what dnf doesn't understand.
        return True


@contextlib.contextmanager
def _utf8_file(path: str, refused: List[str]) -> Iterator[str]:
    """The name of a file in UTF-8 with the text of `path`: `path` itself, or else a copy for the time being.

    Only those bytes that can't be UTF-8 count as Latin-1. A file that can't be opened is left to the reader,
    for whom it is an empty one; why is added to `refused`.
    """
    content, is_odd = content_of(path, refused) or (b"", False)
    if not is_odd:
        yield path
        return
    # For its owner's eyes only: an address may hold a password.
    with tempfile.NamedTemporaryFile(prefix="vem-", suffix=".repo") as copy:
        copy.write(decoded(content).encode("utf-8"))
        copy.flush()
        yield copy.name
