# SPDX-License-Identifier: GPL-2.0-or-later
"""Fetching a file that no repository has."""

from __future__ import annotations

import os
from typing import Callable, Optional

import dnf.conf
import libdnf.error
import libdnf.repo

from .. import stop
from ..errors import YumBaseError


class _Callbacks(libdnf.repo.PackageTargetCB):  # type: ignore[misc]
    """An exception that left one of these would be lost."""

    def __init__(self, enough: Optional[Callable[[int], bool]]) -> None:
        super().__init__()
        self.cause = ""
        self._enough = enough

    def progress(self, _total: float, done: float) -> int:
        return int(stop.wanted() or (self._enough is not None and self._enough(int(done))))

    def end(self, status: int, message: str) -> int:
        if status == self.TransferStatus_ERROR:
            self.cause = message
        return 0

    def mirrorFailure(self, message: str, _address: str) -> int:
        self.cause = message
        return 0


def fetch(
    address: str, path: str, conf: dnf.conf.MainConf, enough: Optional[Callable[[int], bool]] = None
) -> None:
    """See `backend.System`."""
    callbacks = _Callbacks(enough)
    place, name = os.path.split(address)
    # The library makes a file of the name in the address.
    folder = os.path.dirname(path)
    target = libdnf.repo.PackageTarget(conf._config, name, folder, 0, None, 0, place, False, 0, 0, callbacks)
    try:
        libdnf.repo.PackageTarget.downloadPackages(libdnf.repo.VectorPPackageTarget([target]), True)
    except (RuntimeError, libdnf.error.Error) as error:
        stop.check()
        raise YumBaseError(callbacks.cause or str(error)) from error
    stop.check()
    made = os.path.join(folder, name)
    if callbacks.cause or not os.path.exists(made):
        raise YumBaseError(callbacks.cause or address)
    if made != path:
        os.replace(made, path)
