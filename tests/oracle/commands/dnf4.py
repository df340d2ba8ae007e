# SPDX-License-Identifier: GPL-2.0-or-later
"""`dnf`, the command line of dnf 4.

It runs in a copy of the process that looks after the cases, which has loaded dnf but never used it: to start dnf from
nothing would take longer than what it does on an estate of this size.
"""

from __future__ import annotations

import contextlib
import shutil
from pathlib import Path
from typing import Dict, List, Sequence, Set, Tuple

import dnf
import dnf.cli.main
import dnf.const
import dnf.exceptions
import dnf.util
import libdnf.transaction

from processes import in_process
from sections import write_section

from . import Lock, Start

NAME = "dnf"
KEPT_APART = ("var/lib/dnf",)
LACKS_SIGNATURE = ("GPG check FAILED",)
REFUSED_BY_SOLVER = ("Problem",)
WITHOUT_EXCLUDES = ("--disableexcludes=main",)
LISTS_WHAT_IS_INSTALLED = False
FIRST_REPOSITORY_COUNTS = True

_LOCKING = Path(dnf.const.PLUGINPATH) / "versionlock.py"
"""The plugin that locks versions; not every system has it."""
_HISTORY = "var/lib/dnf/history.sqlite"


def can_lock() -> bool:
    return _LOCKING.exists()


def lock(locks: Sequence[Lock], root: Path, directory: Path, main: Dict[str, str]) -> List[str]:
    # Of all that this machine has, the one plugin alone.
    code, settings, listed = directory / "plugins", directory / "settings", "etc/dnf/plugins/versionlock.list"
    for folder in (code, settings):
        folder.mkdir()
    shutil.copy2(_LOCKING, code)
    main.update(plugins="1", pluginpath=str(code))
    # The command line looks for both files on this machine, whatever the root.
    for folder, place in ((root / "etc/dnf/plugins", Path("/")), (settings, root)):
        options = {"enabled": "1", "locklist": str(place / listed)}
        write_section(folder / "versionlock.conf", "main", options)
    (root / listed).write_text("".join(f"{line}\n" for line in locks), encoding="utf-8")
    return [f"--setopt=pluginconfpath={settings}"]


def enable(streams: Dict[str, str], root: Path) -> None:
    for module, stream in streams.items():
        options = {"name": module, "stream": stream, "profiles": "", "state": "enabled"}
        write_section(root / f"etc/dnf/modules.d/{module}.module", module, options)


def begin(start: Start, root: Path, repository: Path, said: Path) -> None:
    in_process(lambda: _begin(start, root, repository), said)


def _begin(start: Start, root: Path, repository: Path) -> None:
    conf = dnf.conf.Conf()
    conf.installroot = str(root)
    for option in ("cachedir", "logdir", "persistdir"):
        conf.prepend_installroot(option)
    conf.substitutions["releasever"] = ""
    conf.install_weak_deps = start.weak
    conf.installonly_limit = 0
    conf.cachedir = str(repository.parent / "old-cache")
    for directory in (conf.cachedir, conf.logdir, conf.persistdir):
        dnf.util.ensure_dir(directory)
    with dnf.Base(conf) as base:
        base.repos.add_new_repo("old", conf, baseurl=[repository.as_uri()])
        base.fill_sack()
        for wanted in (*start.wanted, *start.members):
            with contextlib.suppress(dnf.exceptions.MarkingError):
                base.install(wanted, strict=False)
        try:
            if base.resolve():
                for item in base.transaction:
                    if item.pkg.name in start.members:
                        # As an installation of the group, without the library that reads groups: some releases of it
                        # end the process.
                        item.reason = libdnf.transaction.TransactionItemReason_GROUP
                base.download_packages(list(base.transaction.install_set))
                base.do_transaction()
        except dnf.exceptions.Error as error:
            print(error)


def run(words: Sequence[str], said: Path) -> int:
    return int(in_process(lambda: _main(list(words)), said))


def _main(words: List[str]) -> int:
    try:
        return int(dnf.cli.main.main(words))
    except SystemExit as end:
        return int(end.code or 0)


def mixed(commands: Sequence[Sequence[str]], said: Path) -> List[str]:
    # Without "run": the shell runs what is marked at the end of its script, too, and tells by its status how it went.
    script = said.with_suffix(".script")
    lines = [" ".join(command) for command in commands]
    script.write_text("".join(f"{line}\n" for line in lines), encoding="utf-8")
    with open(said, "a", encoding="utf-8") as file:
        file.write("".join(f"> {line}\n" for line in lines))
    return ["shell", str(script)]


def separate(commands: Sequence[Sequence[str]], said: Path) -> List[List[str]]:
    return [mixed(commands, said)]


def reasons(root: Path, present: Set[Tuple[str, str]]) -> List[str]:
    if not (root / _HISTORY).exists():
        return []
    history = libdnf.transaction.Swdb(str(root / _HISTORY))
    found = []
    for name, arch in sorted(present):
        reason = history.resolveRPMTransactionItemReason(name, arch, -1)
        found.append(f"{name}.{arch} {libdnf.transaction.TransactionItemReasonToString(reason)}")
    return found


def streams(root: Path) -> List[str]:
    files = (root / "etc/dnf/modules.d").glob("*.module")
    return sorted(f"{path.name}: {path.read_text(encoding='utf-8')}" for path in files)
