# SPDX-License-Identifier: GPL-2.0-or-later
"""Emptying the caches."""

from __future__ import annotations

from typing import List, Optional, Tuple

from . import backend, host, stop
from .errors import YumBaseError, reported_as
from .texts import _, ngettext


def clean(cache_directory: Optional[str], *kinds: str) -> Tuple[int, List[str]]:
    """Removes the cache's files of these kinds: "packages", "metadata", "dbcache" (other forms of the metadata).

    Gives 0 and a sentence, or 1 and the reason, which is in the log as well. Raises nothing of the library's; Stopped.
    Files of repositories that lie on this machine are no cache, and stay.
    """
    if cache_directory is None:
        return (1, [_("The configuration cannot be read")])
    try:
        with reported_as(YumBaseError, _("Unable to clean")):
            count = backend.library().clean(cache_directory, kinds)
    except stop.Stopped:
        raise
    except YumBaseError as error:
        host.errorlog(host.LEVEL_ERROR, str(error))
        return (1, [str(error)])
    text = ngettext("{count} file removed", "{count} files removed", count).format(count=count)
    host.log(host.LEVEL_NOTICE, text)
    return (0, [text])
