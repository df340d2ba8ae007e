# SPDX-License-Identifier: GPL-2.0-or-later
"""Records of packages in a repository's file lists and changelogs."""

from __future__ import annotations

import gzip
from pathlib import Path
from typing import Dict, Iterator

import pytest
from program import Program
from rpmestate import Estate, spec

ONE, TWO, THREE = (bytes([number]) * 32 for number in (1, 2, 3))


def metadata(records: Dict[bytes, str]) -> str:
    packages = "\n".join(
        f'<package pkgid="{checksum.hex()}" name="n" arch="noarch"><version epoch="0" ver="1" rel="1"/>{content}</package>'
        for checksum, content in records.items()
    )
    return f'<?xml version="1.0" encoding="UTF-8"?>\n<metadata packages="{len(records)}">\n{packages}\n</metadata>\n'


@pytest.fixture(params=[1 << 20, 7])
def chunk_size(request: pytest.FixtureRequest, monkeypatch: pytest.MonkeyPatch) -> Iterator[int]:
    """Also chunks so small that every tag is cut in several."""
    from vemyum import records

    monkeypatch.setattr(records, "_CHUNK", request.param)
    yield request.param


@pytest.mark.usefixtures("chunk_size")
@pytest.mark.parametrize("ending", ["xml", "xml.gz"])
def test_each_package_has_its_record(tmp_path: Path, ending: str) -> None:
    from vemyum.records import Records, changes, files

    text = metadata({ONE: "<file>/one</file>", TWO: "", THREE: '<file>/a</file><changelog author="A" date="7">t</changelog>'})
    path = tmp_path / f"filelists.{ending}"
    path.write_bytes(gzip.compress(text.encode()) if ending == "xml.gz" else text.encode())
    records = Records(str(path))
    path.unlink()
    found = [records.record(checksum) for checksum in (ONE, TWO, THREE, b"unknown")]
    records.close()
    assert [None if record is None else files(record) for record in found] == [["/one"], [], ["/a"], None]
    assert [None if record is None else changes(record) for record in found] == [[], [], [(7, "A", "t")], None]


def test_a_checksum_with_a_digit_too_few_harms_no_other_package(tmp_path: Path) -> None:
    from vemyum.records import Records, files

    text = metadata({ONE: "<file>/one</file>", TWO: "<file>/two</file>", b"\xab" * 32: "<file>/three</file>"})
    path = tmp_path / "filelists.xml"
    path.write_text(text.replace(TWO.hex(), TWO.hex()[1:]).replace("ab" * 32, "AB" * 32))
    records = Records(str(path))
    found = [records.record(checksum) for checksum in (ONE, TWO, b"\xab" * 32)]
    records.close()
    assert [None if record is None else files(record) for record in found] == [["/one"], None, ["/three"]]


def test_nothing_is_left_beside_the_metadata(tmp_path: Path) -> None:
    from vemyum.records import Records

    path = tmp_path / "filelists.xml"
    path.write_text(metadata({ONE: "<file>/one</file>"}))
    records = Records(str(path))
    assert list(tmp_path.iterdir()) == [path]
    records.close()


def test_missing_metadata_is_told(tmp_path: Path) -> None:
    from vemyum.records import Records

    with pytest.raises(OSError):
        Records(str(tmp_path / "absent.xml.gz"))


def test_directories_and_ghosts_are_no_files() -> None:
    from vemyum.records import files

    record = '<file type="dir">/d</file><file>/d/f</file><file type="ghost">/g</file><file type="file">/h</file>'
    assert files(record.encode()) == ["/d/f", "/h"]


def test_coded_letters_are_decoded() -> None:
    from vemyum.records import changes, files

    assert files("<file>/a &amp;lt; b&#233;</file><file>/\u00e9</file>".encode()) == ["/a &lt; b\u00e9", "/\u00e9"]
    record = '<changelog author="A &lt;a@b&gt; &quot;x&quot;" date="1">- 1 &lt; 2 &amp; 3</changelog>'
    assert changes(record.encode()) == [(1, 'A <a@b> "x"', "- 1 < 2 & 3")]


def test_changes_come_newest_first_in_any_form() -> None:
    from vemyum.records import changes

    record = """<changelog author="Ada" date="-5">first
line</changelog><changelog date="20" author="Bob">second</changelog>
<changelog author="Cid" date="30"/>"""
    assert changes(record.encode()) == [(30, "Cid", ""), (20, "Bob", "second"), (-5, "Ada", "first\nline")]


def test_file_lists_tell_what_the_sack_told(estate: Estate, program: Program) -> None:
    package = spec("shed", "1.0", files={"/usr/share/shed/door": "x", "/usr/share/shed/lock & key": "y"})
    estate.repository("base", estate.build([package]))
    found = program.collect()
    shed = found.offered("shed")
    before = sorted(shed.returnFileEntries("file"))
    found.yumio.collectFileLists()
    assert sorted(shed.returnFileEntries("file")) == before
    assert any(name.endswith("/door") for name in before)


def test_file_lists_that_cannot_be_read_are_left_to_the_sack(
    estate: Estate, program: Program, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate.repository("base", estate.build([spec("shed", "1.0", files={"/usr/share/shed/door": "x"})]))
    found = program.collect()
    for path in (estate.root / "var/cache").rglob("*filelists.xml*"):
        path.unlink()
    assert found.yumio.collectFileLists()
    assert found.offered("shed").returnFileEntries("file") == ["/usr/share/shed/door"]
