# SPDX-License-Identifier: GPL-2.0-or-later
"""Which package library does the work, and what it must give.

There are two, and a process uses one of them, which `choice` has chosen before anything of a library is imported.
All other modules here know a library by the protocols below alone; the packages that drive the two use these modules,
and neither knows of the other.

Every method runs on whatever thread calls it, one at a time. It may raise one of `errors.FAILURES` and OSError,
beside what its text names.
"""

from __future__ import annotations

import enum
import functools
import importlib
from typing import (
    TYPE_CHECKING,
    Any,
    Callable,
    Collection,
    ContextManager,
    Dict,
    Iterator,
    List,
    Mapping,
    NamedTuple,
    Optional,
    Protocol,
    Sequence,
    Set,
    Tuple,
    cast,
)

from . import choice
from .sections import RepositorySection

if TYPE_CHECKING:
    from .transactions import Records

PkgTup = Tuple[str, str, str, str, str]
"""Name, architecture, epoch ("0" for none), version, release."""

Dependency = Tuple[str, Optional[str], Tuple[Optional[str], Optional[str], Optional[str]]]
"""Name, flag ("GT", "GE", "LT", "LE", "EQ"; None for any version), and epoch, version, release."""

Plain = Tuple[str, str, str, int, str, str, int, str]
"""What the table reads of every row: the members of `Row` that `PLAIN` names."""
PLAIN = ("name", "arch", "evr", "size", "group", "summary", "buildtime", "reponame")

PRIMARY, FILE_LISTS, CHANGELOGS, GROUPS = "primary", "filelists", "other", "group"
"""Kinds of a repository's metadata, as repomd.xml calls them."""


class Row(Protocol):
    """A package of a library, as the table reads it: plain attributes, each quick. Texts may raise UnicodeDecodeError
    or hold lone surrogates, where a header isn't UTF-8. Two rows of one package compare equal."""

    name: str
    arch: str
    epoch: int
    version: str
    release: str
    evr: str
    """"[epoch:]version-release", the epoch only where it isn't 0."""
    size: int
    """Bytes to download, of an installed package those that it takes."""
    installsize: int
    """Bytes that it takes once it is installed."""
    reponame: str
    summary: str
    description: str
    group: str
    vendor: Optional[str]
    sourcerpm: Optional[str]
    license: Optional[str]
    packager: Optional[str]
    url: Optional[str]
    buildtime: int
    location: Optional[str]
    """The file's path below the repository's address."""


class Offer(Collection[Row], Protocol):
    """Tens of thousands of rows. Each is to be read before the next is taken: later, that takes longer and more
    memory."""

    def with_plain(self) -> Iterator[Tuple[Row, Optional[Plain]]]:
        """The rows with what the table reads of them, which takes less time than to ask each; None where a text raises
        UnicodeDecodeError."""


class Settings(Protocol):
    """The configuration of the managed system, with all directories as paths of this process."""

    root: str
    variables: Mapping[str, str]
    """The variables that addresses may hold, with their values."""
    cache_directory: str
    persistent_directory: str
    """Where what outlives a start of the machine is kept: the journal of a transaction, locks."""


class RepositoryState(NamedTuple):
    """A configured repository."""

    id: str
    name: str
    enabled: bool


class Reason(enum.Enum):
    """Why a package is installed."""

    USER = enum.auto()
    GROUP = enum.auto()
    DEPENDENCY = enum.auto()
    WEAK = enum.auto()
    UNKNOWN = enum.auto()


class Advised(NamedTuple):
    """A package that an advisory names."""

    name: str
    arch: str
    epoch: str
    version: str
    release: str
    advisory: str
    """The advisory's identifier."""


class Advice(NamedTuple):
    """An advisory, by one of the versions that it names of a package."""

    id: str
    kind: str
    """"security", "bugfix", "enhancement", "newpackage" or whatever the repository says."""
    severity: str
    title: str
    issued: int
    """Seconds since the epoch; 0 where nobody says."""
    epoch: str
    version: str
    release: str


class Reference(NamedTuple):
    """What an advisory refers to."""

    kind: str
    """"cve", "bugzilla", "vendor" or whatever the repository says."""
    id: str
    title: str
    address: str


class AdvisoryPackage(NamedTuple):
    """A version of a package that an advisory names."""

    name: str
    arch: str
    epoch: str
    version: str
    release: str
    open: bool
    """Whether the command line counts it as available: it is newer than the latest that is installed of its name and
    architecture, or than what is there of the running kernel, whether a repository has it or not."""


class Advisory(NamedTuple):
    """An advisory in full."""

    id: str
    kind: str
    """As `Advice` has it."""
    severity: str
    title: str
    issued: int
    """Seconds since the epoch; 0 where nobody says. One of the libraries tells the last change instead, if any."""
    text: str
    references: List[Reference]
    count: int
    """How many versions of packages it names."""
    packages: List[AdvisoryPackage]


class PutIn(NamedTuple):
    """A transaction of the library's history that put a version of a package in."""

    number: int
    begun: int
    """Seconds since the epoch."""
    user: Optional[int]
    """Who it was by number; -1 or 4294967295 for somebody who has never logged in."""
    command: str
    evr: str
    """"epoch:version-release"."""
    first: bool
    """Whether no version of it was there before."""


class OpenEntry(NamedTuple):
    """The last transaction of the library's history, where that has no end: its head, and what was to go in and to go
    out, as name, "epoch:version-release" and architecture."""

    number: int
    begun: int
    """Seconds since the epoch."""
    command: str
    incoming: Set[Tuple[str, str, str]]
    outgoing: Set[Tuple[str, str, str]]


class KeySource(Protocol):
    """A repository, as far as its keys are concerned."""

    id: str
    gpgkey: Sequence[str]
    verified: bool
    """Whether a server must prove its name where it can."""

    def fetch(self, address: str) -> bytes:
        """By the repository's own settings: proxy, certificates, time limits. RuntimeError with the library's words."""


class System(Protocol):
    """One view of the managed system: configured repositories, and once they are loaded, packages.

    Whoever opens one closes it. Rows answer as long as somebody holds the System, closed or not.
    """

    settings: Settings
    lacking: List[str]
    """What is configured and had to be left out, each with its reason."""
    sections: Dict[str, RepositorySection]
    """What the repositories were built of, by their ids."""

    def repositories(self) -> List[RepositoryState]: ...

    def enable(self, id: str, enabled: bool) -> None:
        """Before `load`."""

    def stay_on_disk(self) -> None:
        """Before `load`: nothing is fetched, however old what the cache holds is; a repository of which it holds nothing
        is left out."""

    def load(self) -> None:
        """Reads the enabled repositories and the rpm database, with progress; asks about keys of metadata that are
        missing. RepoError that names the repository, its address and the cause. Of no use after a failure."""

    def load_changelogs(self, read: Callable[[str, Optional[str]], None]) -> None:
        """Instead of `load`: fetches the enabled repositories' changelogs, with progress, and gives each repository's
        id and file, None where it has none, to `read`. Raises as `load`, and what `read` raises."""

    def installed(self) -> List[Row]:
        """All there are, excluded or not."""

    def available(self) -> Offer:
        """The newest of each name and architecture that fits this machine, by the repositories' priorities, without
        what is excluded. Of each name, a native one comes before others, and the newest of these first. Here and in the
        next two lists, the same package comes first from where it costs least."""

    def upgrades(self) -> List[Row]:
        """The newest of those that would take the place of an installed version, as the solver allows it."""

    def replacing(self, upgrades: Set[str]) -> List[Tuple[Row, List[Row]]]:
        """Packages that make installed ones of other names obsolete, each with those; without what is installed
        itself, and without these names. Nothing where the configuration switches that off."""

    def duplicated(self) -> List[List[Row]]:
        """Installed packages of which there is more than one version for one architecture and there may be only one;
        each with all of them, oldest first."""

    def reasons(self) -> List[Tuple[Row, Reason]]:
        """Of everything that is installed."""

    def advised(self) -> List[Advised]:
        """Versions that advisories name and that are newer than what is installed of their name and architecture,
        whether a repository has them or not."""

    def wanting(self, rows: Sequence[Row], kind: str, installed_only: bool = False) -> List[Row]:
        """What is installed, and unless `installed_only` the newest that is offered, and has a dependency of this kind,
        "requires" or "recommends", that one of the rows satisfies."""

    def satisfying(self, row: Row, kind: str) -> List[Tuple[str, List[Row]]]:
        """Each dependency of this kind as the package words it, with all that satisfies it, installed or offered in
        whatever version."""

    def versions(self, name: str) -> List[Row]:
        """All that is installed or offered of that name."""

    def advice(self, row: Row) -> List[Advice]:
        """Of the advisories that name the package's name and architecture, in any version."""

    def advisories(self, id: Optional[str] = None) -> List[Advisory]:
        """Those that name an installed package by name and architecture, in any version; or the one of them with that
        identifier. Only this one has all of its packages, the others those whose name and architecture are installed:
        thousands of advisories name tens of thousands. Of several repositories' ones of an identifier, the first, with
        the packages that concern the system of each."""

    def has_advisories(self) -> bool:
        """Whether any enabled repository's metadata tells of advisories."""

    def reboot_advised(self) -> List[str]:
        """The names of installed packages whose version wants the system started anew, as far as the library tells of
        advisories that say so; there may be others among them that do anyway."""

    def put_in(self, row: Row) -> List[PutIn]:
        """The transactions that brought a version of the package's name and architecture, the latest first; none for a
        history that cannot be read."""

    def architectures(self) -> Sequence[str]:
        """Those of packages that fit this machine."""

    def add_file(self, path: str) -> Row:
        """Behind `load`: takes a package file for a package that a repository "@commandline" offers, whose location is
        the path."""

    def fetch(self, address: str, path: str, enough: Optional[Callable[[int], bool]] = None) -> None:
        """Makes a file of what an address gives, by the main configuration's settings. `enough` is told now and then
        how many bytes there are, and gives it up by a true answer. YumBaseError with the library's words, also where
        the user wants to stop."""

    def key_sources(self) -> List[KeySource]:
        """The configured repositories, enabled or not, loaded or not."""

    def native(self) -> Sequence[str]:
        """The architectures that go before others."""

    def metadata_file(self, repository: str, kind: str) -> Optional[str]:
        """The file of a loaded repository's metadata; None where there is none, for groups also where the
        configuration wants none of it."""

    def checksum(self, row: Row) -> Optional[str]:
        """By which the metadata tells an available package, in lower-case hexadecimal digits."""

    def files(self, row: Row) -> List[str]:
        """What the metadata in memory tells; directories may be among them."""

    def dependencies(self, row: Row, kind: str) -> List[Dependency]:
        """`kind` is "provides", "requires", "conflicts" or "obsoletes"."""

    def header(self, row: Row) -> Any:
        """The rpm header of an installed package. rpm.error, OSError or a failure when it is gone."""

    def local_path(self, row: Row) -> Optional[str]:
        """Where an available package's file is, or will be once it is fetched."""

    def open_entry(self) -> Optional[OpenEntry]:
        """None where the last transaction has come to its end, and for a history that cannot be read."""

    def close(self) -> None:
        """A second call does nothing."""


class Wish(Protocol):
    """A package that is marked. `repository` is "@System" for one that is to go."""

    repository: str
    name: str
    arch: str
    evr: str


class Transaction(Protocol):
    """The packages' way into the system, in the process that works. In the order of the methods."""

    def load(self) -> None:
        """Reads what the marks rest on: no newer metadata than the table shows, no plugin left out."""

    def installed_names(self) -> List[str]:
        """The name of every installed package, as often as there are versions of it."""

    def solve(self) -> Any:
        """What the marks come to (`solving.Solved`). YumBaseError with the solver's problems, or for a marked package
        that isn't there any more or that nothing is done about."""

    def streams(self) -> List[str]:
        """The module streams that it enables, each as "name:stream"."""

    def downloads(self) -> List[int]:
        """The sizes of the files that are still to be fetched."""

    def download(self) -> None:
        """With progress. YumBaseError names each package that failed, and why."""

    def check_signatures(self) -> None:
        """Asks about keys that are missing. YumBaseError names each package without a good signature."""

    def incoming(self) -> List[PkgTup]: ...

    def outgoing(self) -> List[PkgTup]:
        """Everything that leaves, for a newer version too."""

    def run(self, begins: Callable[[], None]) -> None:
        """The test transaction and the real one, with progress; `begins` is called between the two."""

    def faults(self) -> List[str]:
        """The library's sentences about elements that failed in `run`."""

    def warnings(self) -> List[str]:
        """rpm's own error and warning lines, as far as it said any in `run`."""

    def failed(self) -> List[PkgTup]:
        """The elements that the library itself calls failed."""

    def only_tested(self) -> bool:
        """Whether the configuration wants `run` to be a test alone."""

    def close(self) -> None: ...


class Library(Protocol):
    """A package library: the module `library` of the package that drives it."""

    NAME: str
    VERSION: str
    NEEDED_LATER: Tuple[str, ...]
    """Modules that it would import while rpm works, when nothing can be imported."""
    REBOOT_LISTS: Tuple[str, ...]
    """Folders of the managed system whose `*.conf` name packages, one in a line, behind whose update the system is to
    be started anew. A file in one folder counts instead of one of its name in a later one."""

    def read_settings(self) -> Settings:
        """Makes the log and cache directories where they are missing; whoever isn't the administrator has them below a
        folder of the user. YumBaseError for a configuration that cannot be used."""

    def open_system(
        self, settings: Settings, sections: Optional[Sequence[RepositorySection]] = None
    ) -> System:
        """The repositories are those of the sections, else those of the configuration as it is now."""

    def open_transaction(self, settings: Settings, request: Any) -> Transaction:
        """`request` is a `messages.Request`."""

    def usable_history(self, settings: Settings) -> ContextManager[None]:
        """Lets a block use the history. YumBaseError where it cannot be used, by then or in the block."""

    def records(self, settings: Settings) -> "Records":
        """The managed system's history, there or not, for whoever only looks."""

    def lock_files(self, settings: Settings) -> List[str]:
        """The pid files by which programs keep each other off."""

    def hold(self, settings: Settings) -> None:
        """The pid files are this process's: the library's own locks are taken, or give way. LockError names the holder
        of one that somebody has."""

    def take_over(self, settings: Settings) -> None:
        """The same in the process that works: the program that started it holds the library's own locks still."""

    def let_go(self) -> None:
        """The other way round."""

    def open_log_files(self, settings: Settings) -> None:
        """From here on the library's logs have what is done, to the end of the process. Never raises."""

    def tell_command(self, settings: Settings, command: str) -> None: ...

    def tell_end(self, done: bool, fault: str) -> None:
        """How the apply ended; without a fault, and not done, the user didn't agree."""

    def clean(self, cache_directory: str, kinds: Collection[str]) -> int:
        """Removes these kinds ("packages", "metadata", "dbcache") from the cache; how many files that were."""


def _part(name: str) -> Any:
    return importlib.import_module(f"{__package__}.{choice.chosen().backend}.{name}")


try:
    exceptions: Any = _part("exceptions")
    """What it raises, as `errors` tells it; by itself, since everything else that drives a library rests on that."""
except choice.Unusable:
    # `library` says why, to somebody who listens.
    exceptions = importlib.import_module(f"{__package__}.exceptions")


@functools.lru_cache(maxsize=None)
def library() -> Library:
    """The library of this process, imported by the first call. choice.Unusable."""
    return cast(Library, _part("library"))


def version() -> str:
    """The library's; "0" where there is none, whatever the reason."""
    try:
        return library().VERSION
    except choice.Unusable:
        return "0"
