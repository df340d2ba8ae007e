# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloading the packages of a transaction."""

from __future__ import annotations

import os
from typing import Any, Dict, List

import dnf.callback
import dnf.exceptions
import dnf.package

from ..download import Causes, File, Meter, Place, failure, require_files
from .base import Base

_GOOD_ENDS = (
    None,
    dnf.callback.STATUS_OK,
    dnf.callback.STATUS_ALREADY_EXISTS,
    dnf.callback.STATUS_DRPM,
)


class DownloadMeter(dnf.callback.DownloadProgress):
    """What dnf tells of downloads. It logs and drops what is raised here."""

    def __init__(self) -> None:
        super().__init__()
        self._meter = Meter()
        self._files: Dict[str, File] = {}
        self._causes: Dict[str, Causes] = {}

    def start(self, total_files: int, total_size: int, total_drpms: int = 0) -> None:
        self._files.clear()
        self._meter.forget()

    def progress(self, payload: Any, done: float) -> None:
        file = self._file(payload)
        file.done = int(done)
        self._meter.tell(file)

    def end(self, payload: Any, status: Any, msg: Any) -> None:
        if status == dnf.callback.STATUS_MIRROR:
            # `mirror_failed` has told it, with the address.
            return
        file = self._file(payload)
        if status == dnf.callback.STATUS_ALREADY_EXISTS and not file.begun:
            # In the cache already: the engine's plan of the download leaves it out, too.
            return
        if status in _GOOD_ENDS:
            file.done = file.size
        file.ended = True
        self._meter.tell(file)

    def mirror_failed(self, payload: Any, message: str, address: str) -> None:
        self._causes.setdefault(str(payload.pkg), Causes()).add(str(payload), message, address)

    def causes(self, package: Any) -> List[str]:
        """What has been told of a package that failed."""
        causes = self._causes.get(str(package))
        return causes.lines() if causes is not None else []

    def finish(self) -> None:
        self._meter.finish()

    def _file(self, payload: Any) -> File:
        name = os.path.basename(payload.pkg.location) if hasattr(payload, "pkg") else str(payload)
        if name not in self._files:
            self._files[name] = File(name, int(payload.download_size))
        return self._files[name]


def download(base: Base, packages: List[dnf.package.Package]) -> None:
    """Fetches what isn't on this machine yet. YumBaseError names each package that failed, and why."""
    require_files(_place(package) for package in packages if package._is_local_pkg())
    meter = DownloadMeter()
    try:
        base.download_packages(packages, meter)
    except dnf.exceptions.DownloadError as error:
        lines = []
        for package, messages in error.errmap.items():
            # The library says that all mirrors were tried without success, whatever was wrong.
            causes = meter.causes(package) or messages
            lines += [f"{package}: {cause}" if package else str(cause) for cause in causes]
        raise failure(lines, (_place(one) for one in packages if not one._is_local_pkg())) from error
    finally:
        meter.finish()
    require_files(map(_place, packages))


def _place(package: dnf.package.Package) -> Place:
    return Place(str(package), package.localPkg(), int(package.downloadsize))


def not_in_cache(packages: List[dnf.package.Package]) -> List[dnf.package.Package]:
    """The packages that the repositories still have to give: all but those that the download cache has as a whole."""
    wanted = [package for package in packages if not package._from_cmdline]
    return [package for package in wanted if package._is_local_pkg() or not _place(package).is_whole()]
