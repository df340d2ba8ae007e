# SPDX-License-Identifier: GPL-2.0-or-later
"""The words of this package in the user's language.

The catalogues lie in "locale" of the share directory. What the engine reads again, the solver's lines above
all, is never translated.
"""

from __future__ import annotations

import gettext
import os
from typing import List

_DOMAIN = "vem"
_CATALOGUES = os.path.join(os.path.dirname(__file__), os.pardir, os.pardir, "locale")


def _wanted() -> List[str]:
    """The user's languages, the most wanted first, up to English: that is what stands in the sources."""
    languages = os.environ.get("LANGUAGE", "").split(":")
    for name in ("LC_ALL", "LC_MESSAGES", "LANG"):
        if os.environ.get(name):
            languages.append(os.environ[name])
            break
    wanted = []
    for language in filter(None, languages):
        if language.split("_")[0].split(".")[0] in ("en", "C", "POSIX"):
            break
        wanted.append(language)
    return wanted


def _catalogue() -> gettext.NullTranslations:
    languages = _wanted()
    if not languages:
        return gettext.NullTranslations()
    return gettext.translation(_DOMAIN, _CATALOGUES, languages, fallback=True)


_chosen = _catalogue()
_ = _chosen.gettext
ngettext = _chosen.ngettext
