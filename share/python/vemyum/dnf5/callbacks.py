# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library calls back: nothing may be raised there, and nothing that is called may be gone.

An exception in one of its callbacks ends the process, in the middle of a transaction too; so does an object that
Python has freed.
"""

from __future__ import annotations

import contextlib
import functools
import logging
import traceback
from typing import Any, Callable, TypeVar

from ..messages import LOGGER

_Method = TypeVar("_Method", bound=Callable[..., Any])


def guarded(answer: Any = None) -> Callable[[_Method], _Method]:
    """For a method that the library calls: what it raises goes into the log, and the library gets this answer."""

    def decorate(method: _Method) -> _Method:
        @functools.wraps(method)
        def safe(*arguments: Any) -> Any:
            try:
                return method(*arguments)
            except BaseException:  # noqa: BLE001 - the process would end
                with contextlib.suppress(BaseException):
                    logging.getLogger(LOGGER).error("%s", traceback.format_exc())
                return answer

        return safe  # type: ignore[return-value]

    return decorate
