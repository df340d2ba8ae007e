# SPDX-License-Identifier: GPL-2.0-or-later
"""The desktop's files, judged by the tools of those who read them."""

from __future__ import annotations

import configparser
import os
import struct
import subprocess
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent.parent / "desktop"
CONFIGURED = Path(os.environ["VEM_DESKTOP"])
LANGUAGES = {"de", "es", "fr", "ja", "zh_CN"}
XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def entry() -> configparser.SectionProxy:
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str  # type: ignore[assignment,method-assign]
    parser.read(CONFIGURED / "org.example.vem.desktop", encoding="utf-8")
    return parser["Desktop Entry"]


def test_desktop_entry_is_valid() -> None:
    subprocess.run(["desktop-file-validate", str(CONFIGURED / "org.example.vem.desktop")], check=True)


def test_desktop_entry_speaks_every_language() -> None:
    for key in ("GenericName", "Comment", "Keywords"):
        for language in LANGUAGES:
            assert entry()[f"{key}[{language}]"]


def test_desktop_entry_starts_the_launcher() -> None:
    assert entry()["Exec"].endswith("/share/vem/launch %U")
    assert entry()["TryExec"].endswith("/bin/vem")


def test_desktop_entry_offers_to_open_package_files() -> None:
    assert entry()["MimeType"].split(";") == ["application/x-rpm", "application/x-redhat-package-manager", ""]


def test_metainfo_is_valid_and_names_the_desktop_entry() -> None:
    file = SOURCE / "org.example.vem.metainfo.xml"
    subprocess.run(["appstreamcli", "validate", "--no-net", "--pedantic", str(file)], check=True)
    assert ElementTree.parse(file).findtext("launchable") == "org.example.vem.desktop"


def test_metainfo_shows_pictures_of_the_manual() -> None:
    pictures = SOURCE.parent / "manual/pictures"
    images = ElementTree.parse(SOURCE / "org.example.vem.metainfo.xml").findall("screenshots/screenshot/image")
    assert len(images) > 2
    for image in images:
        place, _, name = str(image.text).rpartition("/")
        assert place == "https://vem.example.org/manual/pictures"
        # Width and height stand behind the name of a PNG's first chunk.
        size = struct.unpack(">II", (pictures / name).read_bytes()[16:24])
        assert (str(size[0]), str(size[1])) == (image.get("width"), image.get("height")), name


def test_metainfo_speaks_every_language() -> None:
    tree = ElementTree.parse(SOURCE / "org.example.vem.metainfo.xml").getroot()
    for parent, what in (
        (tree, "summary"),
        (tree.find("description"), "p"),
        (tree.find("description/ul"), "li"),
        *((screenshot, "caption") for screenshot in tree.iter("screenshot")),
    ):
        assert parent is not None
        languages = [text.get(XML_LANGUAGE) for text in parent.findall(what)]
        assert languages
        # A translation stands behind its source.
        assert languages == [None, *sorted(LANGUAGES)] * languages.count(None), what


def test_policy_asks_for_an_administrator_and_starts_one_program() -> None:
    tree = ElementTree.parse(CONFIGURED / "org.example.vem.policy")
    actions = tree.findall("action")
    assert len(actions) == 1
    for who in ("allow_any", "allow_inactive", "allow_active"):
        assert actions[0].findtext(f"defaults/{who}") == "auth_admin"
    annotations = {note.get("key"): note.text for note in actions[0].findall("annotate")}
    assert list(annotations) == ["org.freedesktop.policykit.exec.path"]
    assert str(annotations["org.freedesktop.policykit.exec.path"]).endswith("/share/vem/as-root")


def test_policy_speaks_every_language() -> None:
    for what in ("action/description", "action/message"):
        texts = ElementTree.parse(CONFIGURED / "org.example.vem.policy").findall(what)
        assert {text.get(XML_LANGUAGE) for text in texts} == {None, *LANGUAGES}
