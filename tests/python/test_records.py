# SPDX-License-Identifier: GPL-2.0-or-later
"""Records of packages in a repository's file lists and changelogs."""

from __future__ import annotations

import bz2
import errno
import gzip
import hashlib
import importlib
import lzma
import re
import shutil
import subprocess
from pathlib import Path
from typing import Any, Callable, Dict, Iterator

import pytest
from fake_host import FakeHost
from libraries import by_library
from program import Program
from rpmestate import Estate, spec

ONE, TWO, THREE = ((bytes([number]) * 32).hex() for number in (1, 2, 3))


def metadata(records: Dict[str, str]) -> str:
    packages = "\n".join(
        f'<package pkgid="{checksum}" name="n" arch="noarch"><version epoch="0" ver="1" rel="1"/>{content}</package>'
        for checksum, content in records.items()
    )
    return f'<?xml version="1.0" encoding="UTF-8"?>\n<metadata packages="{len(records)}">\n{packages}\n</metadata>\n'


@pytest.fixture(params=[1 << 20, 7])
def chunk_size(request: pytest.FixtureRequest, monkeypatch: pytest.MonkeyPatch) -> Iterator[int]:
    """Also chunks so small that every tag is cut in several."""
    from vemyum import records

    monkeypatch.setattr(records, "_CHUNK", request.param)
    yield request.param


def zstd(data: bytes, path: Path) -> None:
    import rpm

    stream = rpm.fd(str(path), "w", "zstdio")
    stream.write(data)
    stream.close()


def zchunk(data: bytes, path: Path) -> None:
    plain = path.with_suffix("")
    plain.write_bytes(data)
    if shutil.which("zck") is not None:
        subprocess.run(["zck", "--output", path, plain], check=True)
    else:
        # Beside the stand-in for unzck that reads it again.
        path.write_bytes(data[::-1])
    plain.unlink()


@pytest.fixture
def unzck(tmp_path_factory: pytest.TempPathFactory, monkeypatch: pytest.MonkeyPatch) -> None:
    """The program, or where a system lacks it a stand-in."""
    if shutil.which("unzck") is None or shutil.which("zck") is None:
        command = tmp_path_factory.mktemp("bin") / "unzck"
        command.write_text(
            "#!/usr/bin/python3\nimport sys\nassert sys.argv[1] == '--stdout'\n"
            "sys.stdout.buffer.write(open(sys.argv[2], 'rb').read()[::-1])\n"
        )
        command.chmod(0o755)
        monkeypatch.setenv("PATH", str(command.parent), prepend=":")


WRITERS: Dict[str, Callable[[bytes, Path], object]] = {
    "xml": lambda data, path: path.write_bytes(data),
    "xml.gz": lambda data, path: path.write_bytes(gzip.compress(data)),
    "xml.bz2": lambda data, path: path.write_bytes(bz2.compress(data)),
    "xml.xz": lambda data, path: path.write_bytes(lzma.compress(data)),
    "xml.zst": zstd,
    "xml.zck": zchunk,
}


@pytest.mark.usefixtures("chunk_size", "unzck")
@pytest.mark.parametrize("ending", WRITERS)
def test_each_package_has_its_record(tmp_path: Path, ending: str) -> None:
    from vemyum.records import Records, changes, files

    text = metadata({ONE: "<file>/one</file>", TWO: "", THREE: '<file>/a</file><changelog author="A" date="7">t</changelog>'})
    path = tmp_path / f"filelists.{ending}"
    WRITERS[ending](text.encode(), path)
    records = Records(str(path))
    path.unlink()
    found = [records.record(checksum) for checksum in (ONE, TWO, THREE, "unknown")]
    records.close()
    assert [None if record is None else files(record) for record in found] == [["/one"], [], ["/a"], None]
    assert [None if record is None else changes(record) for record in found] == [[], [], [(7, "A", "t")], None]


def test_zchunk_that_cannot_be_read_is_told(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    from vemyum.records import chunks

    path = tmp_path / "filelists.xml.zck"
    path.write_bytes(b"no zchunk")
    commands = tmp_path / "bin"
    commands.mkdir()
    monkeypatch.setenv("PATH", str(commands))
    with pytest.raises(FileNotFoundError, match="unzck"):
        list(chunks(path))
    (commands / "unzck").write_text("#!/bin/sh\necho part\nexit 1\n")
    (commands / "unzck").chmod(0o755)
    with pytest.raises(OSError, match="unzck cannot read it: .*filelists.xml.zck"):
        list(chunks(path))


@pytest.mark.usefixtures("chunk_size", "unzck")
@pytest.mark.parametrize("ending", ["xml", "xml.gz", "xml.zck"])
@pytest.mark.parametrize(
    "text",
    ["", "no markup at all", "<html>gone</html>", '<otherdata packages="1"><package id="1"/></otherdata>'],
    ids=["empty", "text", "page", "other form"],
)
def test_metadata_without_a_package_that_is_recognised_is_told(tmp_path: Path, text: str, ending: str) -> None:
    from vemyum.details import _build_hosts
    from vemyum.records import Records, Unrecognised

    path = tmp_path / f"other.{ending}"
    WRITERS[ending](text.encode(), path)
    for read in (Records, lambda path: list(_build_hosts(path))):
        with pytest.raises(Unrecognised, match=f"no package is recognised in it: '{re.escape(str(path))}'"):
            read(str(path))


@pytest.mark.usefixtures("chunk_size")
@pytest.mark.parametrize("root", ["metadata", "filelists", "otherdata"])
def test_metadata_that_lists_no_package_is_fine(tmp_path: Path, root: str) -> None:
    from vemyum.details import _build_hosts
    from vemyum.records import Records

    path = tmp_path / f"{root}.xml"
    path.write_text(f'<?xml version="1.0"?>\n<{root} xmlns="http://md.example/{root}" packages="0">\n</{root}>\n')
    assert list(_build_hosts(str(path))) == []
    records = Records(str(path))
    assert records.record(ONE) is None
    records.close()


def test_package_without_a_build_host_is_recognised(tmp_path: Path) -> None:
    from vemyum.details import _build_hosts

    package = "<package type='rpm'><checksum type='sha256' pkgid='YES'>{}</checksum>{}</package>"
    host = "<format><rpm:buildhost>a.example</rpm:buildhost></format>"
    path = tmp_path / "primary.xml"
    path.write_text(f"<metadata>{package.format('ab', '')}</metadata>")
    assert list(_build_hosts(str(path))) == []
    path.write_text(f"<metadata>{package.format('ab', '')}{package.format('cd', host)}</metadata>")
    assert list(_build_hosts(str(path))) == [("cd", "a.example")]


def recompress(repodata: Path, ending: str) -> None:
    """Writes a repository's metadata anew in this form, and what repomd.xml says of it."""
    repomd = repodata / "repomd.xml"
    entries = []
    for entry in re.findall(r"<data type=.*?</data>", repomd.read_text(), re.DOTALL):
        (name,) = re.findall(r'href="repodata/([^"]*)"', entry)
        if 'type="group_' in entry:
            continue
        from vemyum.records import chunks

        content = b"".join(chunks(str(repodata / name)))
        (repodata / name).unlink()
        new = repodata / f"{name.partition('.')[0]}.{ending}"
        WRITERS[ending](content, new)
        entry = entry.replace(f"repodata/{name}", f"repodata/{new.name}")
        for word, data in (("", new.read_bytes()), ("open-", content)):
            checksum = hashlib.sha256(data).hexdigest()
            entry = re.sub(rf"(<{word}checksum[^>]*>)[^<]*", rf"\g<1>{checksum}", entry)
            entry = re.sub(rf"(<{word}size>)[^<]*", rf"\g<1>{len(data)}", entry)
        entries.append(entry)
    head, _, tail = re.split(r"(<data.*</data>)", repomd.read_text(), flags=re.DOTALL)
    repomd.write_text(head + "\n".join(entries) + tail)


def test_metadata_whose_reader_is_missing_cost_no_more_than_they_tell(
    estate: Estate, program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    from vemyum import details

    def absent(path: str) -> None:
        raise FileNotFoundError(2, "No such file or directory", "unzck")

    estate.repository("base", estate.build([spec("shed", "1.0")]))
    found = program.collect()
    monkeypatch.setattr(details, "chunks", absent)
    monkeypatch.setattr(details, "Records", absent)
    shed = found.offered("shed")
    for _ in range(2):
        assert not shed.returnSimple("buildhost")
    assert found.yumio.collectOtherData() and shed.returnChangelog() == []
    sentence = "The metadata of base cannot be read: [Errno 2] No such file or directory: 'unzck'"
    assert (host.text("log").count(sentence), host.text("errorlog").count(sentence)) == (1, 1)


PLACES = by_library(
    ("dnf.repo", "Repo", "get_metadata_path"), ("vemyum.dnf5.metadata", "Metadata", "path")
)

LOG = "* Sat Nov 21 2026 Ada <ada@estate.example> - 1.0-1\n- First"


def change_places(monkeypatch: pytest.MonkeyPatch, changed: Callable[[str, str, str], str]) -> None:
    """Where the library says that metadata are: `changed` is asked with a repository's id, the kind and the path."""
    module, name, method = PLACES
    owner = getattr(importlib.import_module(module), name)
    place = getattr(owner, method)

    def elsewhere(*about: Any) -> Any:
        repo, kind = about[-2:]
        return changed(repo.id if hasattr(repo, "id") else repo.get_id(), kind, place(*about))

    monkeypatch.setattr(owner, method, elsewhere)


def test_repository_whose_metadata_is_not_recognised_costs_only_itself(
    estate: Estate, program: Program, host: FakeHost, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    odd = tmp_path / "odd.xml"
    odd.write_text("something else")
    for id, name in (("base", "shed"), ("more", "barn")):
        package = spec(name, "1.0", files={f"/usr/share/{name}/door": "x"}, changelog=LOG)
        estate.repository(id, estate.build([package]))
    found = program.collect()
    shed, barn = found.offered("shed"), found.offered("barn")
    change_places(monkeypatch, lambda id, _kind, path: str(odd) if id == "base" else path)
    assert found.yumio.collectFileLists() and found.yumio.collectOtherData()
    fault = f"[Errno {errno.EILSEQ}] no package is recognised in it: '{odd}'"
    assert host.text("errorlog").splitlines() == [
        f"The file lists of base are read slowly: {fault}",
        f"The metadata of base cannot be read: {fault}",
    ]
    assert shed.returnFileEntries("file") == ["/usr/share/shed/door"]
    assert barn.returnChangelog() and barn.returnSimple("buildhost") == "builder.estate.example"
    assert shed.returnChangelog() == [] and not shed.returnSimple("buildhost")
    assert f"The metadata of base cannot be read: {fault}" in host.text("log")


@pytest.mark.usefixtures("unzck")
def test_zchunk_metadata_tell_files_changes_and_build_host(
    estate: Estate, program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    """As where the library reads zchunk; where it doesn't, it fetches the other form."""
    from vemyum.records import chunks

    asked = set()

    def zchunk_place(_id: str, kind: str, path: str) -> str:
        copy = Path(path).with_suffix(".zck")
        if not copy.exists():
            zchunk(b"".join(chunks(path)), copy)
        asked.add(kind)
        return str(copy)

    package = spec("shed", "1.0", files={"/usr/share/shed/door": "x"}, changelog=LOG)
    estate.repository("base", estate.build([package]))
    found = program.collect()
    change_places(monkeypatch, zchunk_place)
    assert found.yumio.collectFileLists() and found.yumio.collectOtherData()
    shed = found.offered("shed")
    assert shed.returnFileEntries("file") == ["/usr/share/shed/door"]
    assert [change[2] for change in shed.returnChangelog()] == ["- First"]
    assert shed.returnSimple("buildhost") == "builder.estate.example"
    assert asked == {"filelists", "other", "primary"} and not host.text("errorlog")


@pytest.mark.parametrize("vanishes", ["before", "after"])
def test_metadata_that_vanished_leave_their_fields_empty(
    estate: Estate, program: Program, host: FakeHost, vanishes: str
) -> None:
    """As when the repository changed on its server, and another load fetched it anew."""
    estate.repository("base", estate.build([spec("shed", "1.0", changelog=LOG)]))
    found = program.collect()
    shed = found.offered("shed")
    if vanishes == "after":
        shed.localHdr()
    for path in (estate.root / "var/cache/yum").rglob("*.xml*"):
        path.unlink()
    for _ in range(2):
        assert not shed.returnSimple("buildhost")
    assert shed.returnSimple("license") and shed.returnPrco("provides") and shed.returnChangelog() == []
    assert host.text("log").count("The metadata of base cannot be read: [Errno 2]") == 1
    assert not host.text("errorlog")


@pytest.mark.parametrize("ending", [ending for ending in WRITERS if ending != "xml.zck"])
def test_repository_of_any_compression_tells_groups_files_changes_and_build_host(
    estate: Estate, program: Program, ending: str
) -> None:
    package = spec("shed", "1.0", files={"/usr/share/shed/door": "x"}, changelog=LOG)
    comps = "<comps><group><id>huts</id><name>Huts</name><packagelist><packagereq>shed</packagereq></packagelist></group></comps>"
    repository = estate.repository("base", estate.build([package]), comps=comps)
    recompress(repository / "repodata", ending)
    found = program.collect()
    assert [(group.name, list(group.mandatory_packages)) for group in found.groups] == [("Huts", ["shed"])]
    assert found.yumio.collectFileLists() and found.yumio.collectOtherData()
    shed = found.offered("shed")
    assert shed.returnFileEntries("file") == ["/usr/share/shed/door"]
    assert [change[2] for change in shed.returnChangelog()] == ["- First"]
    assert shed.returnSimple("buildhost") == "builder.estate.example"


def test_a_checksum_with_a_digit_too_few_harms_no_other_package(tmp_path: Path) -> None:
    from vemyum.records import Records, files

    text = metadata({ONE: "<file>/one</file>", TWO: "<file>/two</file>", "ab" * 32: "<file>/three</file>"})
    path = tmp_path / "filelists.xml"
    path.write_text(text.replace(TWO, TWO[1:]).replace("ab" * 32, "AB" * 32))
    records = Records(str(path))
    found = [records.record(checksum) for checksum in (ONE, TWO, "ab" * 32)]
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
