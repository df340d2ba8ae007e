# SPDX-License-Identifier: GPL-2.0-or-later
"""The user's wish that what is going on be given up.

The program tells it by a descriptor that can be read for as long as the wish stands: whoever waits for something else
can wait for it, too. A process that has been told of none, such as the one that applies, is never asked to stop here.
"""

from __future__ import annotations

import select
from typing import Optional

from .errors import YumBaseError
from .texts import _

_descriptor: Optional[int] = None
_asked: Optional[select.poll] = None


class Stopped(YumBaseError):
    """What was going on has been given up. No RepoError: the next repository would be gone on with."""


def listen_to(descriptor: int) -> None:
    global _descriptor, _asked
    _descriptor = descriptor
    _asked = select.poll()
    _asked.register(descriptor, select.POLLIN)


def descriptor() -> Optional[int]:
    return _descriptor


def wanted() -> bool:
    return _asked is not None and bool(_asked.poll(0))


def check() -> None:
    """Stopped, where that is wanted. For each turn of what takes long, and behind the failure of a download: it may
    have been given up for that."""
    if wanted():
        raise Stopped(_("Stopped"))
