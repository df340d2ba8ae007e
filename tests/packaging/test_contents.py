# SPDX-License-Identifier: GPL-2.0-or-later
"""Looks into both packages: every file where it belongs, of the right owner and mode, and no trace of the build."""
from __future__ import annotations

import re
import subprocess
from pathlib import Path

import pytest

from conftest import PACKAGES, WITH_MANUALS
from contents import LANGUAGES, Package, output_of, rpm_query

TOP = Path(__file__).resolve().parents[2]
VERSION = "1.7.2"
PROGRAMS = {"/usr/bin/vem", *(f"/usr/share/vem/{name}" for name in ("as-root", "launch", "mimeviewer", "webbrowser"))}
MANUALS = f"/usr/share/doc/vem-{VERSION}"
MAN_PAGE = "/usr/share/man/man8/vem.8.gz"
WANTED = {
    *PROGRAMS,
    "/usr/share/applications/org.example.vem.desktop",
    f"{MANUALS}/html/index.html",
    f"{MANUALS}/manual.pdf",
    "/usr/share/icons/hicolor/scalable/apps/org.example.vem.svg",
    MAN_PAGE,
    "/usr/share/metainfo/org.example.vem.metainfo.xml",
    "/usr/share/polkit-1/actions/org.example.vem.policy",
    "/usr/share/vem/opener.sh",
    "/usr/share/vem/pixmaps/vem.icon.png",
    "/usr/share/vem/pixmaps/vem.icon@2x.png",
    *(f"/usr/share/vem/translations/vem_{language}.qm" for language in LANGUAGES),
    *(f"/usr/share/vem/locale/{language}/LC_MESSAGES/vem.mo" for language in LANGUAGES),
    *(f"{MANUALS}/html/pictures/{picture.name}" for picture in (TOP / "manual/pictures").glob("*.png")),
    *(
        f"/usr/share/vem/icons/{drawing.stem}{scale}.png"
        for drawing in (TOP / "share/icons").glob("*.svg")
        for scale in ("", "@2x")
    ),
    *(f"/usr/share/vem/{file.relative_to(TOP / 'share')}" for file in (TOP / "share/python").rglob("*.py")),
}
if not WITH_MANUALS:
    WANTED = {path for path in WANTED if not path.startswith((MANUALS, MAN_PAGE))}


def test_rpm_holds_every_file_its_modules_compiled_and_the_licence(rpm_package: Package) -> None:
    compiled = {path for path in rpm_package.files() if path.endswith(".pyc")}
    # Whether rpmbuild compresses man pages is up to the distribution.
    other = {f"{path}.gz" if path == MAN_PAGE.removesuffix(".gz") else path for path in rpm_package.files() - compiled}
    assert WANTED - other == set()
    assert other - WANTED == {f"/usr/share/licenses/vem-{VERSION}/COPYING", "/usr/lib/tmpfiles.d/vem.conf"}
    sources = {path for path in WANTED if path.endswith(".py")}
    assert {re.sub(r"__pycache__/(.*)\.cpython-\d+\.pyc$", r"\1.py", path) for path in compiled} == sources


def test_deb_holds_every_file_and_the_licence(deb_package: Package) -> None:
    assert WANTED - deb_package.files() == set()
    assert deb_package.files() - WANTED == {"/usr/share/doc/vem/copyright"}
    assert output_of(["gzip", "--decompress", "--stdout", deb_package.place(MAN_PAGE)]).count(".SH") > 3


def test_only_programs_may_be_run_and_all_belongs_to_root(package: Package) -> None:
    for path, entry in package.entries.items():
        assert entry.owner == "root:root", path
        if entry.kind != "link":
            assert entry.mode == (0o755 if entry.kind == "folder" or path in PROGRAMS else 0o644), path


def test_rpm_owns_its_folders(rpm_package: Package) -> None:
    folders = {str(parent) for path in WANTED for parent in Path(path).parents}
    own = {folder for folder in folders if folder.startswith(("/usr/share/vem", MANUALS))}
    assert {path for path, entry in rpm_package.entries.items() if entry.kind == "folder"} >= own


def test_program_is_stripped_and_takes_libraries_from_the_system_only(package: Package) -> None:
    program = package.place("/usr/bin/vem")
    dynamic = output_of(["readelf", "--dynamic", program])
    assert "libQt6Widgets.so.6" in dynamic
    assert "RPATH" not in dynamic and "RUNPATH" not in dynamic
    assert ".debug_info" not in output_of(["readelf", "--sections", "--wide", program])


def test_no_file_tells_where_it_was_built(package: Package) -> None:
    for path in package.files():
        content = package.place(path).read_bytes()
        for folder in (str(PACKAGES), "/rpmbuild/", "BUILDROOT"):
            assert folder.encode() not in content, f"{path} names {folder}"
        # Not as a part of another path, such as that of the program: the sources may lie in a folder with a short name.
        assert not re.search(rb"(?<![\w.-])" + re.escape(f"{TOP}/".encode()), content), f"{path} names {TOP}"


def test_the_desktop_is_pointed_to_what_is_installed(package: Package) -> None:
    entry = package.place("/usr/share/applications/org.example.vem.desktop").read_text(encoding="utf-8")
    assert "\nExec=/usr/share/vem/launch %U\n" in entry
    assert "\nTryExec=/usr/bin/vem\n" in entry
    policy = package.place("/usr/share/polkit-1/actions/org.example.vem.policy").read_text(encoding="utf-8")
    assert ">/usr/share/vem/as-root<" in policy


# The rpm's header.


def test_rpm_marks_languages_licence_and_documents(rpm_file: Path, rpm_package: Package) -> None:
    languages = {path: language for path, language in rpm_query(rpm_file, "%{FILENAMES}\t%{FILELANGS}") if language}
    assert languages == {
        **{f"/usr/share/vem/translations/vem_{name}.qm": name for name in LANGUAGES},
        # rpm takes the country of a language out of such a path.
        **{f"/usr/share/vem/locale/{name}/LC_MESSAGES/vem.mo": name.partition("_")[0] for name in LANGUAGES},
    }
    marks = dict(rpm_query(rpm_file, "%{FILENAMES}\t%{FILEFLAGS:fflags}"))
    assert {path for path in marks if "l" in marks[path]} == {f"/usr/share/licenses/vem-{VERSION}/COPYING"}
    documents = {path for path in marks if path.startswith((MANUALS, "/usr/share/man/"))}
    assert {path for path in marks if "d" in marks[path]} == documents & rpm_package.files()


def test_rpm_requires_what_the_program_starts_and_imports(rpm_file: Path) -> None:
    required = {name for (name,) in rpm_query(rpm_file, "%{REQUIRENAME}")}
    libraries = {name for name in required if re.search(r"\.so(\.|\()|^rtld\(", name)}
    own = {name for name in required if name.startswith("rpmlib(")}
    assert required - libraries - own == {
        "(python3-libdnf5 or python3-dnf >= 4)", "/bin/sh", "hicolor-icon-theme", "polkit", "python3", "python3-rpm",
        "qt6-qtbase-gui",
        "rpm",
    }
    plain = {re.sub(r"[\d.]*\.so.*", "", name) for name in libraries}
    assert plain >= {"libQt6Core", "libQt6DBus", "libQt6Gui", "libQt6Widgets", "libpython"}


def test_rpm_runs_one_script_after_it_is_gone(rpm_file: Path) -> None:
    scripts = output_of(["rpm", "-qp", "--scripts", rpm_file])
    assert re.findall(r"^(\w+) (?:scriptlet|program)", scripts, re.MULTILINE) == ["postuninstall"]
    assert output_of(["rpm", "-qp", "--triggers", "--filetriggers", rpm_file]) == ""


def test_source_rpm_holds_description_and_archive(source_rpm: Path) -> None:
    assert output_of(["rpm", "-qpl", source_rpm]).split() == [f"vem-{VERSION}.tar.gz", "vem.spec"]


# The Debian package's control files.


def fields(deb: Path) -> dict[str, str]:
    lines = output_of(["dpkg-deb", "--field", deb]).splitlines()
    return dict(line.split(": ", 1) for line in lines if ": " in line and line[0] != " ")


def test_deb_names_itself(deb_file: Path) -> None:
    control = fields(deb_file)
    assert control["Package"] == "vem"
    assert control["Version"].startswith(f"{VERSION}-")
    assert control["Section"] == "admin"
    assert control["Priority"] == "optional"
    assert re.fullmatch(r".+ <.+@.+>", control["Maintainer"])
    assert control["Architecture"] == output_of(["dpkg", "--print-architecture"]).strip()
    assert int(control["Installed-Size"]) > 500


def test_rpm_prefers_the_library_by_which_the_system_is_managed() -> None:
    def weak(*defines: str) -> set[str]:
        words = [word for define in defines for word in ("-D", define)]
        asked = ["rpmspec", *words, "-q", "--qf", "[r %{RECOMMENDNAME}\n][s %{SUGGESTNAME}\n]", TOP / "packaging/vem.spec"]
        return {line for line in output_of(asked).splitlines() if "dnf" in line}

    assert weak("fedora 43") == {"r python3-libdnf5"}
    assert weak("fedora 40") == weak("rhel 10") == {"s python3-dnf"}


def test_deb_depends_on_what_the_program_starts_and_imports(deb_file: Path) -> None:
    names = {re.split(r"[ (|]", word.strip())[0] for word in fields(deb_file)["Depends"].split(",")}
    assert "python3-dnf (>= 4) | python3-libdnf5, " in fields(deb_file)["Depends"]
    names = {re.sub(r"^libpython3\.\d+$", "libpython3", name) for name in names}
    # Libraries that were built anew for 64 bits of time.
    names = {name.removesuffix("t64") for name in names}
    assert names == {
        "hicolor-icon-theme", "libc6", "libgcc-s1", "libpython3", "libqt6core6", "libqt6dbus6", "libqt6gui6", "libqt6widgets6",
        "libstdc++6", "pkexec", "python3", "python3-dnf", "python3-rpm", "rpm",
    }


def test_deb_sums_and_scripts_are_right(deb_file: Path, deb_package: Package, tmp_path: Path) -> None:
    subprocess.run(["dpkg-deb", "--control", deb_file, tmp_path], check=True)
    for script in ("postinst", "prerm"):
        assert (tmp_path / script).stat().st_mode & 0o7777 == 0o755
    sums = (tmp_path / "md5sums").read_text()
    assert len(sums.splitlines()) == len(deb_package.files())
    subprocess.run(["md5sum", "--check", "--quiet"], input=sums, text=True, cwd=deb_package.unpacked, check=True)


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
