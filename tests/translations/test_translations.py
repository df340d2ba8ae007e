# SPDX-License-Identifier: GPL-2.0-or-later
"""The translated texts: all are there, and each keeps what the program needs of its source."""
from __future__ import annotations

import gettext
import io
import re
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import NamedTuple

import pytest

HOUSE = Path(__file__).resolve().parents[2]
LANGUAGES = ("de", "es", "fr", "ja", "zh_CN")
# Names of colours and the units of sizes, which are the same everywhere.
UNCHANGED = {"Colors"}
UNITS = {"b", "Kb", "Mb", "Gb", "Tb", "Pb", "Eb"}


class Message(NamedTuple):
    context: str
    source: str
    translation: str
    finished: bool


def messages(file: Path) -> list[Message]:
    found = []
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            assert translation is not None
            found.append(
                Message(
                    context.findtext("name", ""),
                    message.findtext("source", ""),
                    translation.text or "",
                    translation.get("type") is None,
                )
            )
    return found


def ts_file(language: str) -> Path:
    return HOUSE / f"translations/vem_{language}.ts"


def keys(file: Path) -> set[tuple[str, str]]:
    return {(message.context, message.source) for message in messages(file)}


def po_file(language: str) -> Path:
    return HOUSE / f"translations/script_{language}.po"


@pytest.fixture(scope="module")
def extracted(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A directory of the files brought up to the sources."""
    directory = tmp_path_factory.mktemp("texts")
    for language in LANGUAGES:
        shutil.copy(ts_file(language), directory)
        shutil.copy(po_file(language), directory)
    subprocess.run([HOUSE / "tools/update-translations", directory], check=True)
    return directory


@pytest.mark.parametrize("language", LANGUAGES)
def test_each_text_of_the_sources_is_in_the_file_and_no_other(language: str, extracted: Path) -> None:
    assert keys(ts_file(language)) == keys(
        extracted / ts_file(language).name
    ), "run tools/update-translations"


@pytest.mark.parametrize("language", LANGUAGES)
def test_each_text_of_the_helper_script_is_in_its_file_and_translated(language: str, extracted: Path) -> None:
    own = po_file(language)
    assert own.read_text() == (extracted / own.name).read_text(), "run tools/update-translations"
    untranslated = subprocess.run(
        ["msgattrib", "--untranslated", own], check=True, stdout=subprocess.PIPE, text=True
    ).stdout
    assert untranslated == ""


@pytest.mark.parametrize("language", LANGUAGES)
def test_texts_of_the_helper_script_keep_what_is_filled_in(language: str) -> None:
    catalogue = gettext.GNUTranslations(
        io.BytesIO(
            subprocess.run(
                ["msgfmt", "--check-format", "--output-file=-", po_file(language)],
                check=True,
                stdout=subprocess.PIPE,
            ).stdout
        )
    )
    texts = {
        source: text for source, text in catalogue._catalog.items() if isinstance(source, str) and source
    }
    assert len(texts) > 40
    assert {source for source, text in texts.items() if fields(source) != fields(text)} == set()


@pytest.mark.parametrize("language", LANGUAGES)
def test_each_text_is_translated(language: str) -> None:
    assert [
        message for message in messages(ts_file(language)) if not (message.finished and message.translation)
    ] == []


def fields(text: str) -> list[str]:
    return sorted(re.findall(r"{\w*}", text))


def numbered(text: str) -> list[str]:
    return sorted(re.findall(r"%\d", text))


def tags(text: str) -> list[str]:
    return re.findall(r"</?[a-z][^>]*>", text)


def mnemonics(text: str) -> int:
    return len(re.findall(r"&[^&\s;]", re.sub(r"&[a-z#0-9]+;", "", text)))


def ends(text: str) -> tuple[str, str]:
    """The blank space before and behind the words."""
    core = text.strip()
    return text[: text.find(core)], text[text.find(core) + len(core) :]


@pytest.mark.parametrize("language", LANGUAGES)
@pytest.mark.parametrize("trait", [numbered, tags, mnemonics, ends], ids=lambda trait: trait.__name__)
def test_translations_keep_what_the_program_fills_in_and_reads(language: str, trait: object) -> None:
    assert callable(trait)
    different = [
        (message.source, message.translation)
        for message in messages(ts_file(language))
        if trait(message.source) != trait(message.translation)
    ]
    assert different == []


@pytest.mark.parametrize("language", LANGUAGES)
def test_colours_sizes_and_keys_are_the_same_everywhere(language: str) -> None:
    different = [
        message
        for message in messages(ts_file(language))
        if (
            message.context in UNCHANGED
            or message.source in UNITS
            or re.fullmatch(r"Ctrl\+.|F\d+", message.source)
        )
        and message.source != message.translation
    ]
    assert different == []


def test_there_is_a_file_for_each_language_and_no_other() -> None:
    folder = HOUSE / "translations"
    assert {file.stem for file in folder.glob("*.ts")} == {f"vem_{name}" for name in LANGUAGES}
    assert {file.stem for file in folder.glob("*.po")} == {f"script_{name}" for name in LANGUAGES}
