# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloading the packages of a transaction."""

from __future__ import annotations

import os
from collections import OrderedDict
from typing import Any, Dict, List, Optional

import dnf.callback
import dnf.exceptions
import dnf.package

from .. import host
from .base import Base
from ..errors import YumBaseError
from ..space import scarce_space
from ..texts import _


_GOOD_ENDS = (
    None,
    dnf.callback.STATUS_OK,
    dnf.callback.STATUS_ALREADY_EXISTS,
    dnf.callback.STATUS_DRPM,
)


class _File:
    def __init__(self, name: str, size: int) -> None:
        self.name = name
        self.size = size
        self.done = 0
        self.ended = False


class DownloadMeter(dnf.callback.DownloadProgress):
    """Tells the engine of one file after the other, though several are fetched at a time.

    A file that is fetched beside the one on show waits for its turn and is then told with what it has.
    dnf logs and drops what is raised here.
    """

    def __init__(self) -> None:
        super().__init__()
        self._files: "OrderedDict[str, _File]" = OrderedDict()
        self._shown = ""
        self._causes: Dict[str, Dict[str, None]] = {}

    def start(self, total_files: int, total_size: int, total_drpms: int = 0) -> None:
        self._files.clear()
        self._shown = ""

    def progress(self, payload: Any, done: float) -> None:
        file = self._file(payload)
        file.done = int(done)
        self._tell(file)

    def end(self, payload: Any, status: Any, msg: Any) -> None:
        if status == dnf.callback.STATUS_MIRROR:
            # `mirror_failed` has told it, with the address.
            return
        if status == dnf.callback.STATUS_ALREADY_EXISTS and self._name(payload) not in self._files:
            # In the cache already: the engine's plan of the download leaves it out, too.
            return
        file = self._file(payload)
        if status in _GOOD_ENDS:
            file.done = file.size
        file.ended = True
        self._tell(file)

    def mirror_failed(self, payload: Any, message: str, address: str) -> None:
        """Why a file couldn't be had from one place. The library tries each several times."""
        cause = message.strip() if address in message else f"{address}: {message.strip()}"
        causes = self._causes.setdefault(str(payload.pkg), {})
        if cause not in causes:
            causes[cause] = None
            host.log(host.LEVEL_NOTICE, f"{payload}: {cause}")

    def causes(self, package: Any) -> List[str]:
        """What has been told of a package that failed, each once."""
        return list(self._causes.get(str(package), ()))

    def finish(self) -> None:
        """Ends the files that dnf has left without an end: siblings of one that failed."""
        for file in list(self._files.values()):
            file.ended = True
        self._tell(None)

    @staticmethod
    def _name(payload: Any) -> str:
        return os.path.basename(payload.pkg.location) if hasattr(payload, "pkg") else str(payload)

    def _file(self, payload: Any) -> _File:
        name = self._name(payload)
        if name not in self._files:
            self._files[name] = _File(name, int(payload.download_size))
        return self._files[name]

    def _tell(self, moved: Optional[_File]) -> None:
        while self._files:
            first = next(iter(self._files.values()))
            if first.name != self._shown:
                self._shown = first.name
                host.apply_meter_start(first.name, first.size)
                if first is not moved or first.done:
                    host.apply_meter_update(first.done)
            elif first is moved:
                host.apply_meter_update(first.done)
            if not first.ended:
                return
            host.apply_meter_end(first.done)
            del self._files[first.name]


def download(base: Base, packages: List[dnf.package.Package]) -> None:
    """Fetches what isn't on this machine yet. YumBaseError names each package that failed, and why."""
    _require_files([package for package in packages if package._is_local_pkg()])
    meter = DownloadMeter()
    try:
        base.download_packages(packages, meter)
    except dnf.exceptions.DownloadError as error:
        lines = []
        for package, messages in error.errmap.items():
            # The library says that all mirrors were tried without success, whatever was wrong.
            causes = meter.causes(package) or messages
            lines += [f"{package}: {cause}" if package else str(cause) for cause in causes]
        lines += _scarce_space(packages)
        raise YumBaseError("\n".join([_("Unable to download packages:"), *lines])) from error
    finally:
        meter.finish()
    _require_files(packages)


def _scarce_space(packages: List[dnf.package.Package]) -> List[str]:
    """A line for each directory that has no room for the largest of the files that go there."""
    wanted: Dict[str, int] = {}
    for package in packages:
        if not package._is_local_pkg():
            directory = os.path.dirname(package.localPkg())
            wanted[directory] = max(wanted.get(directory, 0), int(package.size))
    return [line for directory, size in wanted.items() for line in scarce_space(directory, size)]


def _require_files(packages: List[dnf.package.Package]) -> None:
    for package in packages:
        path = package.localPkg()
        if not os.path.exists(path):
            raise YumBaseError(
                _("The file of package {package} is missing: {path}").format(package=package, path=path)
            )


def not_in_cache(packages: List[dnf.package.Package]) -> List[dnf.package.Package]:
    """The packages that the repositories still have to give: all but those that the download cache has as a whole."""
    return [package for package in packages if package._is_local_pkg() or not _is_whole(package)]


def _is_whole(package: dnf.package.Package) -> bool:
    """Not by its checksum: dnf looks at that when it comes to the download."""
    try:
        return os.path.getsize(package.localPkg()) == package.downloadsize
    except OSError:
        return False
