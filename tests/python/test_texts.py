# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script's words in the user's language."""
from __future__ import annotations

import os
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

HOUSE = Path(__file__).resolve().parents[2]
TEXT = "Nothing was installed."
GERMAN = "Nichts wurde installiert."
SPANISH = "No se ha instalado nada."


@pytest.fixture(scope="module")
def share(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A share directory with the module alone and two languages."""
    share = tmp_path_factory.mktemp("share")
    package = share / "python/vemyum"
    package.mkdir(parents=True)
    (package / "__init__.py").write_text("")
    shutil.copy(HOUSE / "share/python/vemyum/texts.py", package)
    for language in ("de", "es"):
        folder = share / f"locale/{language}/LC_MESSAGES"
        folder.mkdir(parents=True)
        source = HOUSE / f"translations/script_{language}.po"
        subprocess.run(["msgfmt", f"--output-file={folder}/vem.mo", source], check=True)
    return share


@pytest.mark.parametrize(
    ("environment", "said"),
    [
        ({}, TEXT),
        ({"LANG": "de_DE.UTF-8"}, GERMAN),
        ({"LC_ALL": "es_MX.UTF-8", "LANG": "de_DE.UTF-8"}, SPANISH),
        ({"LANG": "C.UTF-8", "LANGUAGE": "de"}, GERMAN),
        ({"LANG": "de_DE.UTF-8", "LANGUAGE": "pt_BR:es"}, SPANISH),
        ({"LANG": "de_DE.UTF-8", "LANGUAGE": "en_GB:de"}, TEXT),
        ({"LANG": "pt_BR.UTF-8"}, TEXT),
    ],
    ids=str,
)
def test_the_first_language_that_has_texts_is_taken(
    share: Path, environment: dict[str, str], said: str
) -> None:
    surroundings = {
        name: value for name, value in os.environ.items() if name != "LANGUAGE" and not name.startswith("LC_")
    }
    surroundings.pop("LANG", None)
    answer = subprocess.run(
        [sys.executable, "-B", "-c", f"from vemyum.texts import _; print(_({TEXT!r}))"],
        check=True,
        stdout=subprocess.PIPE,
        text=True,
        cwd=share / "python",
        env={**surroundings, **environment, "PYTHONIOENCODING": "UTF-8"},
    )
    assert answer.stdout.strip() == said


def test_the_number_decides_the_words(share: Path) -> None:
    script = (
        "from vemyum.texts import ngettext\n"
        "for count in (0, 1, 2):\n"
        "    print(ngettext('{count} file removed', '{count} files removed', count).format(count=count))\n"
    )
    answer = subprocess.run(
        [sys.executable, "-B", "-c", script],
        check=True,
        stdout=subprocess.PIPE,
        text=True,
        cwd=share / "python",
        env={**os.environ, "LC_ALL": "de_DE.UTF-8", "LANGUAGE": "", "PYTHONIOENCODING": "UTF-8"},
    )
    assert answer.stdout.split("\n")[:3] == ["0 Dateien entfernt", "1 Datei entfernt", "2 Dateien entfernt"]
