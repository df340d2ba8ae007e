# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloading the packages of a transaction."""

from __future__ import annotations

import hashlib
import os
from collections import OrderedDict
from typing import Any, Collection, Dict, List, Optional

import libdnf5.repo

from .. import host
from ..errors import YumBaseError
from ..space import scarce_space
from ..text import valid
from ..texts import _
from ..repomd import join
from .base import Base
from .failures import FAILURES, words
from .metadata import base_addresses, downloaded

_EXISTS = libdnf5.repo.DownloadCallbacks.TransferStatus_ALREADYEXISTS
_FAILED = libdnf5.repo.DownloadCallbacks.TransferStatus_ERROR


class _File:
    def __init__(self, package: Any, fetched: bool) -> None:
        """`fetched` is False for one that the library copies from this machine, which is quick, and no download."""
        self.fetched = fetched
        self.package = shown(package)
        self.name = valid(os.path.basename(package.get_location()))
        self.size = int(package.get_download_size())
        self.done = 0
        self.begun = False
        self.ended = False
        self.good = False
        self.causes: Dict[str, None] = {}


class DownloadMeter:
    """Tells the engine of one file after the other, though several are fetched at a time.

    A file that is fetched beside the one on show waits for its turn and is then told with what it has. The library
    tells files by what they were given to it with: here their places in the list of packages, counted from 1.
    """

    def __init__(self, packages: List[Any], local: Collection[str] = ()) -> None:
        """`local` are the repositories that lie on this machine."""
        self._files = [_File(package, package.get_repo_id() not in local) for package in packages]
        self._waiting: "OrderedDict[int, _File]" = OrderedDict()
        self._shown = 0

    def begin(self, place: int, _what: str, _size: int) -> int:
        return place

    def progress(self, place: int, _size: int, done: int) -> None:
        file = self._file(place)
        # Each file begins with nothing, be it there already.
        if file is not None and file.fetched and (done or file.begun):
            file.done = done
            self._tell(place, file)

    def end(self, place: int, status: int, message: str) -> None:
        file = self._file(place)
        if file is None:
            return
        file.ended = True
        file.good = status != _FAILED
        if not file.good and not file.causes:
            file.causes[message.strip()] = None
        if not file.fetched or (not file.begun and status in (_EXISTS, _FAILED)):
            # In the cache already: the engine's plan of the download leaves it out, too.
            return
        if file.good:
            file.done = file.size
        self._tell(place, file)

    def mirror_failed(self, place: int, message: str, address: str) -> None:
        """Why a file couldn't be had from one place. The library tries each several times."""
        file = self._file(place)
        if file is not None:
            cause = message.strip() if address in message else f"{address}: {message.strip()}"
            if cause not in file.causes:
                file.causes[cause] = None
                host.log(host.LEVEL_NOTICE, f"{file.name}: {cause}")

    def failures(self) -> List[str]:
        """A line for each cause of each package that couldn't be had; those that were given up over another one have
        none."""
        return [f"{file.package}: {cause}" for file in self._files if not file.good for cause in file.causes if cause]

    def finish(self) -> None:
        """Ends the files that the library has left without an end: siblings of one that failed."""
        for file in self._waiting.values():
            file.ended = True
        self._tell(0, None)

    def _file(self, place: int) -> Optional[_File]:
        return self._files[place - 1] if 0 < place <= len(self._files) else None

    def _tell(self, place: int, moved: Optional[_File]) -> None:
        if moved is not None and not moved.begun:
            moved.begun = True
            self._waiting[place] = moved
        while self._waiting:
            number, first = next(iter(self._waiting.items()))
            if number != self._shown:
                self._shown = number
                host.apply_meter_start(first.name, first.size)
                if first is not moved or first.done:
                    host.apply_meter_update(first.done)
            elif first is moved:
                host.apply_meter_update(first.done)
            if not first.ended:
                return
            host.apply_meter_end(first.done)
            del self._waiting[number]


def download(base: Base, packages: List[Any]) -> None:
    """Fetches what isn't on this machine yet. YumBaseError names each package that failed, and why."""
    local = {repo.get_id() for repo in base.repositories(enabled_only=True) if repo.is_local()}
    meter = DownloadMeter(packages, local)
    try:
        _fetch_by_query(base, packages, meter)
        _fetch(base, packages, meter)
    finally:
        base.downloads.listener = None
        meter.finish()
    for package in packages:
        path = package.get_package_path()
        if not os.path.exists(path):
            raise YumBaseError(
                _("The file of package {package} is missing: {path}").format(package=shown(package), path=path)
            )


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
    lines = meter.failures() or said.splitlines()
    return YumBaseError("\n".join([_("Unable to download packages:"), *lines, *_scarce_space(packages)]))


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
        if not addresses or package.get_baseurl() or _is_whole(package):
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
    name = announced.get_type_str()
    try:
        digest = hashlib.new("sha1" if name == "sha" else name)
    except ValueError:
        # The library looks at it, and says so.
        return
    with open(path, "rb") as file:
        for chunk in iter(lambda: file.read(1 << 20), b""):
            digest.update(chunk)
    if digest.hexdigest() != announced.get_checksum().lower():
        raise _Wrong(_("{file}: the checksum is not the announced one").format(file=package.get_location()))


def shown(package: Any) -> str:
    """Name and version, the epoch only where it isn't 0."""
    return valid(package.get_nevra())


def not_in_cache(packages: List[Any]) -> List[Any]:
    """The packages that the repositories still have to give: all but those that the download cache has as a whole."""
    return [package for package in packages if not _is_whole(package)]


def _is_whole(package: Any) -> bool:
    """Not by its checksum: the library looks at that when it comes to the download."""
    try:
        return os.path.getsize(package.get_package_path()) == package.get_download_size()
    except OSError:
        return False


def _scarce_space(packages: List[Any]) -> List[str]:
    """A line for each directory that has no room for the largest of the files that go there."""
    wanted: Dict[str, int] = {}
    for package in packages:
        directory = os.path.dirname(package.get_package_path())
        wanted[directory] = max(wanted.get(directory, 0), int(package.get_download_size()))
    return [line for directory, size in wanted.items() for line in scarce_space(directory, size)]
