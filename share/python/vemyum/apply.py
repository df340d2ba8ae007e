# SPDX-License-Identifier: GPL-2.0-or-later
"""One apply."""

from __future__ import annotations

from typing import Any, Sequence

from .errors import YumBaseError
from .session import Session


class Apply:
    def __init__(self, session: Session) -> None:
        self._session = session

    def run(self, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> None:
        raise YumBaseError("Not there yet")
