# SPDX-License-Identifier: GPL-2.0-or-later
"""Keeps passwords that stand in addresses out of every text that a user, or whoever looks on, gets to see.

A buffet address is ".../buffet?<key>=<name>&<key>=<password>&path=..."; any address may begin with
"<scheme>://<name>:<password>@". Libraries put whole addresses into their messages.
"""

from __future__ import annotations

import re

MASK = "***"
"""Always as long, since the length of a password tells something, too."""

_USER_INFO = re.compile(r"(\w://[^/\s:@]*:)[^/\s@]+(?=@)")
_PASSWORD = re.compile(r"(/buffet[^?\s]*\?[^&\s]*=[^&\s]*&[^&\s=]*=)[^&\s]+(?=&path=)")


def masked(text: str) -> str:
    """`text` with the password of each address replaced, be it a buffet address or one of a user and a host."""
    if "/buffet" in text:
        text = _PASSWORD.sub(rf"\1{MASK}", text)
    return _USER_INFO.sub(rf"\1{MASK}", text) if "@" in text and "://" in text else text
