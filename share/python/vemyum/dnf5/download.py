# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloading the packages of a transaction."""

from __future__ import annotations

import os
from typing import Any, Collection, List, Optional

import libdnf5.repo

from ..download import Causes, File, Meter, Place, failure, require_files
from ..errors import YumBaseError
from ..packages import COMMAND_LINE
from ..repomd import digest, join
from ..text import valid
from ..texts import _
from .base import Base
from .failures import FAILURES, words
from .metadata import base_addresses, downloaded

_EXISTS = libdnf5.repo.DownloadCallbacks.TransferStatus_ALREADYEXISTS
_FAILED = libdnf5.repo.DownloadCallbacks.TransferStatus_ERROR
_GIVEN_UP = "Not finished - interrupted by error"
"""Begins what librepo, which isn't translated, says of a file that is given up over another one."""


class _File(File):
    def __init__(self, package: Any, fetched: bool) -> None:
        """`fetched` is False for one that the library copies from this machine, which is quick, and no download."""
        super().__init__(valid(os.path.basename(package.get_location())), int(package.get_download_size()))
        self.fetched = fetched
        self.package = shown(package)
        self.good = False
        self.causes = Causes()
        self.said = ""
        """What the library says of its end."""


class DownloadMeter:
    """What the library tells of downloads. It tells files by what they were given to it with: here their places in the
    list of packages, counted from 1."""

    def __init__(self, packages: List[Any], local: Collection[str] = ()) -> None:
        """`local` are the repositories that lie on this machine."""
        self._files = [_File(package, package.get_repo_id() not in local) for package in packages]
        self._meter = Meter()

    def begin(self, place: int, _what: str, _size: int) -> int:
        return place

    def progress(self, place: int, _size: int, done: int) -> None:
        file = self._file(place)
        # Each file begins with nothing, be it there already.
        if file is not None and file.fetched and (done or file.begun):
            file.done = done
            self._meter.tell(file)

    def end(self, place: int, status: int, message: str) -> None:
        file = self._file(place)
        if file is None:
            return
        file.ended = True
        file.good = status != _FAILED
        file.said = message.strip()
        if not file.fetched or (not file.begun and status in (_EXISTS, _FAILED)):
            # In the cache already: the engine's plan of the download leaves it out, too.
            return
        if file.good:
            file.done = file.size
        self._meter.tell(file)

    def mirror_failed(self, place: int, message: str, address: str) -> None:
        file = self._file(place)
        if file is not None:
            file.causes.add(file.name, message, address)

    def failures(self) -> List[str]:
        """A line for each cause of each package that couldn't be had; those that were given up over another one have
        none."""
        return [
            f"{file.package}: {cause}"
            for file in self._files
            if not file.good
            for cause in file.causes.lines() or [file.said]
            if cause and not cause.startswith(_GIVEN_UP)
        ]

    def finish(self) -> None:
        self._meter.finish()

    def _file(self, place: int) -> Optional[_File]:
        return self._files[place - 1] if 0 < place <= len(self._files) else None


def download(base: Base, packages: List[Any]) -> None:
    """Fetches what isn't on this machine yet. YumBaseError names each package that failed, and why."""
    # What the user has opened is there, and the library would not know where to look for it.
    packages = [package for package in packages if package.get_repo_id() != COMMAND_LINE]
    local = {repo.get_id() for repo in base.repositories(enabled_only=True) if repo.is_local()}
    meter = DownloadMeter(packages, local)
    try:
        _fetch_by_query(base, packages, meter)
        _fetch(base, packages, meter)
    finally:
        base.downloads.listener = None
        meter.finish()
    require_files(map(_place_of, packages))


def _fetch(base: Base, packages: List[Any], meter: DownloadMeter) -> None:
    downloader = libdnf5.repo.PackageDownloader(base.library)
    for place, package in enumerate(packages, 1):
        downloader.add(package, place)
    base.downloads.listener = meter
    try:
        downloader.download()
    except FAILURES as error:
        raise _failure(packages, meter, words(error)) from error


def _failure(packages: List[Any], meter: DownloadMeter, said: str) -> YumBaseError:
    return failure(meter.failures() or said.splitlines(), map(_place_of, packages))


class _One:
    """Passes on what is told of one file, whose place in the list the library doesn't know."""

    def __init__(self, meter: DownloadMeter, place: int) -> None:
        self._meter = meter
        self._place = place

    def begin(self, _repository: int, _what: str, _size: int) -> int:
        return self._place

    def progress(self, place: int, size: int, done: int) -> None:
        self._meter.progress(place, size, done)

    def end(self, place: int, status: int, message: str) -> None:
        # Its end is known once its checksum is.
        pass

    def mirror_failed(self, place: int, message: str, address: str) -> None:
        self._meter.mirror_failed(place, message, address)


def _fetch_by_query(base: Base, packages: List[Any], meter: DownloadMeter) -> None:
    """Brings the packages of repositories whose address ends in a query to where the library looks for them. It would
    put what is asked for in front of the question mark."""
    for place, package in enumerate(packages, 1):
        repo = base.repository(package.get_repo_id())
        addresses = base_addresses(repo)
        if not addresses or package.get_baseurl() or _place_of(package).is_whole():
            continue
        path = package.get_package_path()
        os.makedirs(os.path.dirname(path), exist_ok=True)
        base.downloads.listener = _One(meter, place)
        for number, address in enumerate(addresses):
            # What another address gave would be gone on with.
            if os.path.exists(path):
                os.unlink(path)
            try:
                downloaded(base, repo, join(address, package.get_location()), path)
                _verify(package, path)
                break
            except (*FAILURES, _Wrong) as error:
                if isinstance(error, _Wrong):
                    os.unlink(path)
                    meter.mirror_failed(place, str(error), address)
                if number + 1 == len(addresses):
                    meter.end(place, _FAILED, "")
                    raise _failure(packages, meter, words(error)) from error
        meter.end(place, libdnf5.repo.DownloadCallbacks.TransferStatus_SUCCESSFUL, "")


class _Wrong(Exception):
    """A file isn't the announced one."""


def _verify(package: Any, path: str) -> None:
    announced = package.get_checksum()
    found = digest(path, announced.get_type_str())
    # One of another kind the library looks at, and says so.
    if found is not None and found != announced.get_checksum().lower():
        raise _Wrong(_("{file}: the checksum is not the announced one").format(file=package.get_location()))


def shown(package: Any) -> str:
    """Name and version, the epoch only where it isn't 0."""
    return valid(package.get_nevra())


def not_in_cache(packages: List[Any]) -> List[Any]:
    """The packages that the repositories still have to give: all but those that the download cache has as a whole."""
    return [package for package in packages if not _place_of(package).is_whole()]


def _place_of(package: Any) -> Place:
    return Place(shown(package), package.get_package_path(), int(package.get_download_size()))
