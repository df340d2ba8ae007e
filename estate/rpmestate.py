# SPDX-License-Identifier: GPL-2.0-or-later
"""Estates for tests, the sample and the benchmark: real rpms, real repositories, a real rpm database.

An estate is a directory with everything that the program needs to work on something other than the
host::

    <directory>/root/                    what VEMROOT names: the managed system
    <directory>/root/etc/yum.conf        main configuration
    <directory>/root/etc/yum.repos.d/    one <id>.repo per repository
    <directory>/root/var/lib/rpm/        the rpm database
    <directory>/repos/<id>/              the repositories' rpms and metadata
    <directory>/rpmbuild/                where rpms are built

A first estate::

    estate = Estate(tmp_path)
    (old,) = estate.build(spec("lamp", "1.0"))
    (new,) = estate.build(spec("lamp", "1.1"))
    estate.write_main_config()
    estate.repository("base", [new])
    estate.install([old])
    assert estate.installed() == {"lamp-1.0-1.noarch"}

Where the rpm database lies
    Always at /var/lib/rpm below the root, whatever the host's rpm is configured for. The root says so in
    a macro file of its own, as a system's own rpm would, and the commands that this module runs are told
    (`--dbpath`). Plain `rpm --root` and `dnf --installroot` read the host's macros and those of the user,
    never the root's: they find the database with the variables of `Estate.command_environment`.

Who may
    rpm changes its root directory while it installs: the module runs it directly as root (also the root
    of a user namespace), otherwise inside a user namespace of its own (`unshare --map-root-user`).

Nothing here reads or writes the host's rpm database, and nothing uses the network.
"""

from __future__ import annotations

import functools
import os
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import Mapping, Optional, Sequence, Union

DB_PATH = "/var/lib/rpm"
"""The rpm database below the root."""

_MACROS = f"%_dbpath {DB_PATH}\n"

BUILD_JOBS = 2

SpecSource = Union[str, Path]
"""The text of a spec file, or the path of one."""


class EstateError(RuntimeError):
    """A tool failed; the text holds the command line and everything that the tool wrote."""


def spec(
    name: str,
    version: str = "1.0",
    release: str = "1",
    *,
    epoch: Optional[int] = None,
    arch: Optional[str] = "noarch",
    summary: Optional[str] = None,
    description: Optional[str] = None,
    group: Optional[str] = None,
    requires: Sequence[str] = (),
    provides: Sequence[str] = (),
    conflicts: Sequence[str] = (),
    obsoletes: Sequence[str] = (),
    files: Optional[Mapping[str, str]] = None,
    scriptlets: Optional[Mapping[str, str]] = None,
    changelog: Optional[str] = None,
    tags: Optional[Mapping[str, str]] = None,
) -> str:
    """Text of a spec file for one package.

    `files` maps absolute paths to texts, put there literally, each ended by a line feed. `scriptlets` maps
    a section heading without "%", such as "post" or "pre -p <lua>", to its body; double a "%" that rpmbuild
    shall not expand. `tags` are further preamble lines. `arch` None leaves the architecture to the build
    (`Estate.build`'s argument or the host's).
    """
    preamble = {"Name": name, "Epoch": epoch, "Version": version, "Release": release}
    preamble["Summary"] = summary or f"The {name} package"
    preamble["License"] = "MIT"
    preamble["Group"] = group
    preamble["BuildArch"] = "noarch" if arch == "noarch" else None
    preamble["AutoReqProv"] = "no"
    preamble.update(tags or {})
    lines = [f"{tag}: {value}" for tag, value in preamble.items() if value is not None]
    for tag, values in (
        ("Requires", requires),
        ("Provides", provides),
        ("Conflicts", conflicts),
        ("Obsoletes", obsoletes),
    ):
        lines += [f"{tag}: {value}" for value in values]
    lines += ["%description", description or f"The {name} package."]
    lines.append("%install")
    for number, (path, text) in enumerate((files or {}).items()):
        target = f"%{{buildroot}}{path}"
        mark = f"END_OF_FILE_{number}"
        lines.append(f'mkdir -p "{os.path.dirname(target)}"')
        lines += [f"cat > \"{target}\" <<'{mark}'", text.removesuffix("\n").replace("%", "%%"), mark]
    for heading, body in (scriptlets or {}).items():
        lines += [f"%{heading}", body]
    lines.append("%files")
    lines += [f'"{path}"' for path in files or {}]
    if changelog:
        lines += ["%changelog", changelog]
    return "\n".join(lines) + "\n"


def shell_spec(name: str, version: str = "1.0", release: str = "1", **more: object) -> str:
    """Text of a spec file for a package that gives a root its /bin/sh.

    It carries the host's statically linked busybox, so that ordinary shell scriptlets run below the root
    without anything else there. `more` goes to `spec`.
    """
    busybox = shutil.which("busybox", path="/bin:/usr/bin:/usr/local/bin:/usr/sbin:/sbin")
    if busybox is None:
        raise EstateError("busybox is missing (packages.list names what holds it)")
    text = spec(name, version, release, arch=None, provides=("/bin/sh",), **more)  # type: ignore[arg-type]
    commands = ("sh", "cat", "echo", "ls", "mkdir", "rm", "sleep", "true", "false")
    install = [f"install -D -m 755 {busybox} %{{buildroot}}/bin/busybox"]
    install += [f"ln -s busybox %{{buildroot}}/bin/{command}" for command in commands]
    text = text.replace("%install\n", "\n".join(["%install", *install, ""]), 1)
    listing = "\n".join(["%files", "/bin/busybox", *(f"/bin/{command}" for command in commands), ""])
    return text.replace("%files\n", listing, 1)


def run(command: Sequence[Union[str, Path]], **options: object) -> str:
    """Runs a tool and gives its standard output; EstateError when it fails."""
    environment = {**os.environ, "LC_ALL": "C.UTF-8"}
    done = subprocess.run(  # type: ignore[call-overload]
        [str(part) for part in command],
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        env=environment,
        encoding="utf-8",
        errors="replace",
        **options,
    )
    if done.returncode != 0:
        words = " ".join(str(part) for part in command)
        raise EstateError(f"{words}: status {done.returncode}\n{done.stdout}{done.stderr}")
    return str(done.stdout)


class Estate:
    """One estate; see the module's text for its layout. Not for use from two threads at once."""

    def __init__(self, directory: Union[str, Path]) -> None:
        """Makes the directories; what is there already stays, so that an estate can be opened again."""
        self.directory = Path(directory).resolve()
        self.root = self.directory / "root"
        self.repos_dir = self.directory / "repos"
        self.build_dir = self.directory / "rpmbuild"
        (self.root / "etc/yum.repos.d").mkdir(parents=True, exist_ok=True)
        (self.root / DB_PATH.lstrip("/")).mkdir(parents=True, exist_ok=True)
        # rpm's %_tmppath: Lua and shell scriptlets are put there before they run.
        (self.root / "var/tmp").mkdir(parents=True, exist_ok=True)
        self.repos_dir.mkdir(exist_ok=True)
        macros = self.root / "etc/rpm/macros.estate"
        macros.parent.mkdir(parents=True, exist_ok=True)
        macros.write_text(_MACROS, encoding="utf-8")

    def command_environment(self) -> dict[str, str]:
        """The present variables, changed so that plain rpm and dnf commands on the root find its database.

        They name a home whose macros say where it is.
        """
        home = self.directory / "home"
        # rpm's place for them has moved.
        for place in (home / ".rpmmacros", home / ".config/rpm/macros"):
            place.parent.mkdir(parents=True, exist_ok=True)
            place.write_text(_MACROS, encoding="utf-8")
        return {**os.environ, "HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config")}

    # Packages ----------------------------------------------------------------------------------------

    def build(
        self,
        specs: Union[SpecSource, Sequence[SpecSource]],
        arch: Optional[str] = None,
        defines: Optional[Mapping[str, str]] = None,
    ) -> list[Path]:
        """Builds spec files, two at a time, and gives the rpms in the order of the specs.

        `arch` is rpmbuild's target ("x86_64", "i686", ...); packages that state noarch stay noarch.
        `defines` are further rpm macros. EstateError names the first build that failed.
        """
        listed = [specs] if isinstance(specs, (str, Path)) else list(specs)
        return [rpm for rpms in self.build_each(listed, arch, defines) for rpm in rpms]

    def build_each(
        self,
        specs: Sequence[SpecSource],
        arch: Optional[str] = None,
        defines: Optional[Mapping[str, str]] = None,
    ) -> list[list[Path]]:
        """Like `build`, but keeps the rpms of each spec together."""
        with ThreadPoolExecutor(BUILD_JOBS) as pool:
            return list(pool.map(lambda one: self._build(one, arch, defines or {}), specs))

    def _build(self, source: SpecSource, arch: Optional[str], defines: Mapping[str, str]) -> list[Path]:
        top = self._new_build_directory()
        if isinstance(source, Path):
            path = source.resolve()
        else:
            path = top / "package.spec"
            path.write_text(source, encoding="utf-8")
        macros = {
            "_topdir": str(top),
            "_sourcedir": str(path.parent),
            "_dbpath": str(self.build_dir / "rpmdb"),
            "_tmppath": str(top),
            "_buildhost": "builder.estate.example",
            "_binary_payload": "w3.gzdio",
            # The packages hold texts and foreign binaries: nothing to strip, compress or split off.
            "__os_install_post": "%{nil}",
            "debug_package": "%{nil}",
            "_build_id_links": "none",
            **defines,
        }
        command: list[Union[str, Path]] = ["rpmbuild", "-bb", "--nodeps"]
        for name, value in macros.items():
            command += ["--define", f"{name} {value}"]
        if arch is not None:
            command += ["--target", arch]
        output = run([*command, path], cwd=top)
        shutil.rmtree(top / "BUILD", ignore_errors=True)
        wrote = "Wrote: "
        return [Path(line[len(wrote) :]) for line in output.splitlines() if line.startswith(wrote)]

    def _new_build_directory(self) -> Path:
        self.build_dir.mkdir(exist_ok=True)
        number = sum(1 for _ in self.build_dir.iterdir())
        while True:
            top = self.build_dir / f"{number:04d}"
            try:
                top.mkdir()
                return top
            except FileExistsError:
                number += 1

    # Repositories and configuration --------------------------------------------------------------------

    def repository(
        self,
        id: str,  # noqa: A002 - the word that the .repo files use
        rpms: Sequence[Path],
        name: Optional[str] = None,
        enabled: bool = True,
        comps: Optional[str] = None,
        baseurl: Optional[str] = None,
        extra: Optional[Mapping[str, Optional[str]]] = None,
        updateinfo: Optional[str] = None,
    ) -> Path:
        """Makes (or remakes) a repository of these rpms and its .repo file; gives its directory.

        `comps` is the text of the groups file, `updateinfo` that of the advisories. `baseurl` defaults to the directory's file:// address.
        `extra` are further keys of the section; a value None leaves that key out of the file.
        """
        directory = self.repos_dir / id
        shutil.rmtree(directory, ignore_errors=True)
        directory.mkdir(parents=True)
        for rpm in rpms:
            _link_or_copy(rpm, directory / rpm.name)
        command: list[Union[str, Path]] = ["createrepo_c", "--quiet", "--workers", "2"]
        if comps is not None:
            (directory / "comps.xml").write_text(comps, encoding="utf-8")
            command += ["--groupfile", "comps.xml"]
        run([*command, directory])
        if updateinfo is not None:
            add_updateinfo(directory, updateinfo)
        self.write_repo_file(id, name, enabled, baseurl, extra)
        return directory

    def write_repo_file(
        self,
        id: str,  # noqa: A002
        name: Optional[str] = None,
        enabled: bool = True,
        baseurl: Optional[str] = None,
        extra: Optional[Mapping[str, Optional[str]]] = None,
    ) -> Path:
        """Writes only <root>/etc/yum.repos.d/<id>.repo, with the arguments of `repository`."""
        keys: dict[str, Optional[str]] = {
            "name": name if name is not None else id,
            "baseurl": baseurl if baseurl is not None else (self.repos_dir / id).as_uri(),
            "enabled": "1" if enabled else "0",
            "gpgcheck": "0",
            **(extra or {}),
        }
        path = self.root / "etc/yum.repos.d" / f"{id}.repo"
        path.write_text(_section(id, keys), encoding="utf-8")
        return path

    def write_main_config(self, **options: Optional[str]) -> Path:
        """Writes <root>/etc/yum.conf; an option None leaves out that default."""
        keys: dict[str, Optional[str]] = {
            "gpgcheck": "0",
            "keepcache": "0",
            "obsoletes": "1",
            **options,
        }
        path = self.root / "etc/yum.conf"
        path.write_text(_section("main", keys), encoding="utf-8")
        return path

    # The managed system --------------------------------------------------------------------------------

    def rpm(self, *arguments: Union[str, Path]) -> str:
        """Runs rpm on the estate's database and gives what it printed.

        Packages need no signature here, whatever the host demands of its own.
        """
        where = ["--root", str(self.root), "--dbpath", DB_PATH, "--define", "_pkgverify_level digest"]
        return run([*_as_root(), "rpm", *where, *arguments])

    def install(self, rpms: Sequence[Path], options: Sequence[str] = ()) -> str:
        """Installs or updates rpms in the root, scriptlets and dependency check included.

        `options` go to rpm as well ("--nodeps", "--justdb", "--noscripts", ...). Gives the output, in
        which the scriptlets' own lines stand. Without rpms nothing is done.
        """
        if not rpms:
            return ""
        return self.rpm("--upgrade", "--oldpackage", *install_options(), *options, *rpms)

    def installed(self) -> set[str]:
        """The installed packages as name-[epoch:]version-release.arch; keys of the database left out."""
        shape = "%{NAME}\t%|EPOCH?{%{EPOCH}:}|%{VERSION}-%{RELEASE}.%{ARCH}\n"
        rows = (line.split("\t") for line in self.rpm("-qa", "--qf", shape).splitlines())
        return {f"{name}-{rest}" for name, rest in rows if name != "gpg-pubkey"}


def add_updateinfo(repository: Path, text: str) -> None:
    """Gives the metadata of a repository, its directory, this text as its advisories."""
    file = repository / "updateinfo.xml"
    file.write_text(text, encoding="utf-8")
    run(["modifyrepo_c", "--mdtype=updateinfo", file, repository / "repodata"])


@functools.lru_cache(maxsize=None)
def install_options() -> tuple[str, ...]:
    """What the rpm at hand wants to be told before it installs anything.

    Where another package manager rules the host, rpm may refuse unless it is forced, be it below another root.
    """
    force = "--force-debian"
    return (force,) if force in run(["rpm", "--help"]) else ()


def _section(title: str, keys: Mapping[str, Optional[str]]) -> str:
    lines = [f"[{title}]"] + [f"{key}={value}" for key, value in keys.items() if value is not None]
    return "\n".join(lines) + "\n"


def _link_or_copy(source: Path, target: Path) -> None:
    try:
        os.link(source, target)
    except OSError:
        shutil.copy2(source, target)


def _as_root() -> list[str]:
    return [] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user"]
