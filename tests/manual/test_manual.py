# SPDX-License-Identifier: GPL-2.0-or-later
"""The manuals as they were built, held against the program's sources and its own help.

VEM_MANUAL is the build folder of the manuals, VEM_PROGRAM the binary.
"""
from __future__ import annotations

import ast
import os
import re
import subprocess
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser
from pathlib import Path
from typing import Dict, List, Optional, Set, Tuple

import pytest

ROOT = Path(__file__).resolve().parents[2]
SOURCE = ROOT / "manual"
BUILT = Path(os.environ["VEM_MANUAL"])
FOLDERS = [path.parent for path in sorted(ROOT.glob("*/CMakeLists.txt")) if "vem_library(" in path.read_text()]
FOLDERS += [ROOT / "share/python"]
CHAPTERS = sorted((SOURCE / "chapters").glob("*.adoc"))


class Page(HTMLParser):
    """What a page of HTML refers to, and what can be referred to in it."""

    def __init__(self, text: str) -> None:
        super().__init__()
        self.anchors: List[str] = []
        self.links: List[str] = []
        self.pictures: Dict[str, str] = {}
        self.fetched: List[str] = []
        self.feed(text)

    def handle_starttag(self, tag: str, attrs: List[Tuple[str, Optional[str]]]) -> None:
        values = {name: value or "" for name, value in attrs}
        if "id" in values:
            self.anchors.append(values["id"])
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        elif tag == "img":
            self.pictures[values["src"]] = values.get("alt", "")
        else:
            self.fetched += [values[name] for name in ("src", "href", "data") if name in values]


@pytest.fixture(scope="module")
def html() -> str:
    return (BUILT / "html/index.html").read_text(encoding="utf-8")


@pytest.fixture(scope="module")
def page(html: str) -> Page:
    return Page(html)


@pytest.fixture(scope="module")
def words() -> str:
    """All texts of the program, each in one piece, blanks and line feeds as single blanks."""
    texts = []
    for folder in FOLDERS:
        for path in sorted(folder.rglob("*")):
            if path.suffix in {".cpp", ".h", ".py"}:
                texts.append(re.sub(r'"\s*\n\s*[frb]{0,2}"', "", path.read_text(encoding="utf-8")))
    return plain("\n".join(texts).replace(r"\n", " ").replace(r"\t", " ").replace(r"\"", '"'))


def plain(text: str) -> str:
    return re.sub(r"\s+", " ", text)


def chapter_text() -> str:
    return "\n".join(path.read_text(encoding="utf-8") for path in CHAPTERS)


def missing(phrase: str, words: str) -> List[str]:
    """The parts of a phrase, which may leave out what differs, that are no text of the program."""
    parts = [plain(part).strip() for part in phrase.split("...")]
    return [part for part in parts if part and part not in words]


def options_of_help() -> Set[str]:
    run = subprocess.run([os.environ["VEM_PROGRAM"], "--help"], capture_output=True, text=True, check=False)
    assert run.returncode == 1, run.stderr
    options = set(re.findall(r"(?<![\w-])(--?[a-zA-Z][\w-]*)", run.stdout))
    assert {"-h", "--log"} <= options
    return options


def described(text: str) -> Set[str]:
    """The options that description lists explain, in the form of the manual's source."""
    terms = re.findall(r"^(\*-.*)::$", text, re.MULTILINE)
    return {option for term in terms for option in re.findall(r"\*(-[\w-]+)\*", term)}


# The pages for reading.


def test_every_link_leads_somewhere(page: Page) -> None:
    assert len(page.links) > 50
    assert len(set(page.anchors)) == len(page.anchors)
    for link in page.links:
        assert link.startswith("#"), f"{link} needs something from elsewhere"
        assert link[1:] in page.anchors, link


def test_the_html_needs_nothing_from_elsewhere(html: str, page: Page) -> None:
    assert page.fetched == []
    style = re.sub(r"/\*.*?\*/", "", "".join(re.findall(r"<style>(.*?)</style>", html, re.DOTALL)), flags=re.DOTALL)
    assert "font-family" in style
    assert "@import" not in style and "url(" not in style
    assert "<script" not in html


def test_every_picture_is_there_used_and_described(page: Page) -> None:
    committed = {f"pictures/{path.name}" for path in (SOURCE / "pictures").iterdir()}
    assert set(page.pictures) == committed
    for picture, alternative in page.pictures.items():
        assert (BUILT / "html" / picture).is_file()
        assert len(alternative) > 20, f"{picture} isn't described to those who don't see it"


def test_the_pdf_has_all_chapters_in_its_outline(page: Page) -> None:
    pdf = BUILT / "manual.pdf"
    assert pdf.read_bytes().startswith(b"%PDF-")
    run = subprocess.run(["pdftohtml", "-xml", "-stdout", "-i", "-q", str(pdf)], capture_output=True, check=True)
    outline = ElementTree.fromstring(re.sub(rb"<page .*?</page>", b"", run.stdout, flags=re.DOTALL)).find("outline")
    assert outline is not None
    entries = [plain("".join(item.itertext())) for item in outline.iter("item")]
    titles = re.findall(r"^== (.*)$", chapter_text(), re.MULTILINE)
    assert len(titles) == len(CHAPTERS) > 10
    for title in titles:
        assert any(title in entry for entry in entries), title


def test_the_man_page_is_sound() -> None:
    run = subprocess.run(
        ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", str(BUILT / "vem.8")],
        capture_output=True, text=True, check=True, env={**os.environ, "MANWIDTH": "80", "LC_ALL": "C.UTF-8"},
    )
    assert run.stderr == ""


# What they say.


def test_exactly_the_options_of_the_program_are_described(html: str) -> None:
    options = options_of_help()
    assert described((SOURCE / "facts/options.adoc").read_text(encoding="utf-8")) == options
    text = subprocess.run(
        ["man", "-E", "UTF-8", "-P", "cat", "-l", str(BUILT / "vem.8")],
        capture_output=True, text=True, check=True, env={**os.environ, "MAN_KEEP_FORMATTING": "", "LC_ALL": "C.UTF-8"},
    ).stdout
    for option in options:
        pattern = rf"(?<![\w-]){option}(?![\w-])"
        assert re.search(pattern, text), f"the man page lacks {option}"
        assert f"<strong>{option}</strong>" in html, f"the manual lacks {option}"


def test_the_help_menu_opens_what_is_installed(tmp_path: Path) -> None:
    prefix = tmp_path / "usr"
    subprocess.run(["cmake", "--install", str(BUILT), "--prefix", str(prefix)], check=True, stdout=subprocess.DEVNULL)
    code = (ROOT / "shell/MainWindow.cpp").read_text(encoding="utf-8")
    place = re.search(r'QLatin1String documentation\("(.*?)"\)', code)
    assert place is not None
    files = [form.replace("%1", place.group(1)) for form in re.findall(r'QStringLiteral\("(%1/[^"]+)"\)', code)]
    assert len(files) == 2
    for file in files:
        assert Path(f"{tmp_path}{file}").is_file(), file
    assert (prefix / "share/man/man8/vem.8").is_file()
    html = Path(f"{tmp_path}{files[0]}")
    for picture in Page(html.read_text(encoding="utf-8")).pictures:
        assert (html.parent / picture).is_file()


def test_every_message_of_the_troubleshooting_is_one_of_the_program(words: str) -> None:
    text = (SOURCE / "chapters/troubleshooting.adoc").read_text(encoding="utf-8")
    messages = re.findall(r"^`(.+)`::$", text, re.MULTILINE)
    assert len(messages) > 40
    assert [message for message in messages if missing(message, words)] == []


def test_every_report_of_a_failure_stands_in_the_troubleshooting() -> None:
    """The captions and last lines of the boxes: what a user looks for in the manual."""
    text = plain((SOURCE / "chapters/troubleshooting.adoc").read_text(encoding="utf-8"))
    reports = set()
    for path in [*(ROOT / "engine").glob("*.cpp"), *(ROOT / "repo").glob("*.cpp"), *(ROOT / "services").glob("*.cpp")]:
        code = re.sub(r'"\s*\n\s*"', "", path.read_text(encoding="utf-8"))
        reports |= set(re.findall(r'tr\(\s*"((?:Unable|Error|VEM .* (?:Error|Warning))[^"]*)"', code))
    assert len(reports) > 20
    inner = {  # Of marks that could not be handed on: no user can do anything about them.
        "Unable to add package %1 to removes list", "Unable to add package %1 to installs list",
        "Unable to add package %1 to updates list", "Unable to add new package to pair for updated package %1",
        "Unable to add old package to pair for updated package %1",
    }
    assert [report for report in sorted(reports - inner) if report.replace("%1", "...") not in text] == []


def test_buttons_and_menus_have_the_names_that_the_manual_uses(words: str) -> None:
    labels = set(text.replace("&", "") for text in re.findall(r'\btr\(\s*"([^"]*)"', words))
    labels |= {"Yes", "No"}  # The toolkit's own.
    text = chapter_text()
    named = set(re.findall(r"btn:\[([^\]]+)\]", text))
    for menu, entry in re.findall(r"menu:([^\[\n]+)\[([^\]]*)\]", text):
        named |= {menu, entry} - {""}
    assert len(named) > 30
    assert named - labels == set()


def test_quoted_words_are_words_of_the_program(words: str) -> None:
    """Whatever has two words or more between quotes is a text on the screen, or a heading of the manual."""
    known = words + " ".join(re.findall(r"^=+ (.*)$", chapter_text(), re.MULTILINE))
    text = re.sub(r"^image::.*$", "", chapter_text(), flags=re.MULTILINE)
    phrases = {phrase for phrase in re.findall(r'"([^"\n]+)"', text) if " " in phrase.strip()}
    assert len(phrases) > 10
    assert [phrase for phrase in sorted(phrases) if missing(phrase, known)] == []


def test_each_difference_from_the_command_line_that_is_meant_is_told() -> None:
    """The tests that look for others have a rule for each; the first text of a rule is its name."""
    tree = ast.parse((ROOT / "tests/oracle/rules.py").read_text(encoding="utf-8"))
    calls = [node for node in ast.walk(tree) if isinstance(node, ast.Call) and isinstance(node.func, ast.Name)]
    rules = [call for call in calls if call.func.id in ("Rule", "ReadingRule")]
    names = [ast.literal_eval(call.args[0]) for call in rules]
    chapter = (SOURCE / "chapters/marking-and-applying.adoc").read_text(encoding="utf-8")
    told = [line[:-2] for line in chapter.partition("[[as-the-command-line]]")[2].splitlines() if line.endswith("::")]
    assert told == [name[0].upper() + name[1:] for name in names]
