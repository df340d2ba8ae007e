# SPDX-License-Identifier: GPL-2.0-or-later
"""The packages that the tests use, built once."""

from __future__ import annotations

from pathlib import Path
from typing import Dict, List

from rpmestate import Estate, shell_spec, spec

CHANGELOG = """\
* Tue Mar 05 2024 Ada Nilsson <ada@estate.example> - 1.1-1
- Brighter

* Mon Jan 08 2024 J\u00f6rg M\u00fcller <jm@estate.example> - 1.0-1
- First light"""

NOARCH: Dict[str, str] = {
    "lamp-1.0": spec(
        "lamp", "1.0", changelog=CHANGELOG.split("\n\n")[1], files={"/usr/share/lamp/shade": "old"}
    ),
    "lamp-1.1": spec(
        "lamp",
        "1.1",
        changelog=CHANGELOG,
        files={"/usr/share/lamp/shade": "new", "/usr/share/lamp/bulb": "bulb", "/etc/lamp.conf": "on"},
        provides=("light = 2:3.0-1", "shine"),
        requires=("current >= 1:2.0", "(socket or battery)", "wire"),
        conflicts=("darkness < 3",),
        tags={"Vendor": "Estate Works", "Packager": "Ada Nilsson", "URL": "http://lamp.example/"},
        group="Applications/Light",
    ),
    "current-2.5": spec("current", "2.5", epoch=1, provides=("wire",)),
    "battery-1.0": spec("battery", "1.0"),
    "app-1.0": spec("app", "1.0", requires=("lib >= 1",)),
    "lib-1.0": spec("lib", "1.0"),
    "lib-2.0": spec("lib", "2.0"),
    "tool-1.0": spec("tool", "1.0", requires=("lib",)),
    "tool-2.0": spec("tool", "2.0", requires=("lib >= 2",)),
    "lost-1.0": spec("lost", "1.0", requires=("nowhere = 7",)),
    "oldlamp-1.0": spec("oldlamp", "1.0"),
    "newlamp-1.0": spec("newlamp", "1.0", obsoletes=("oldlamp < 2",)),
    "desk-1.0": spec("desk", "1.0", group="Suite", requires=("lib",)),
    "clock-1.0": spec("clock", "1.0", epoch=3),
    "same-one-1.0": spec("same-one", files={"/usr/share/same": "one"}),
    "same-two-1.0": spec("same-two", files={"/usr/share/same": "two"}),
    "badpre-1.0": spec(
        "badpre", scriptlets={"pre -p <lua>": 'error("no entry")'}, files={"/usr/share/badpre": ""}
    ),
    "badpost-1.0": spec("badpost", scriptlets={"post -p <lua>": 'error("half way")'}),
    "badpreun-1.0": spec("badpreun", scriptlets={"preun -p <lua>": 'error("staying")'}),
    "talk-1.0": spec("talk", requires=("/bin/sh",), scriptlets={"post": "echo first line\necho second line"}),
    "slow-1.0": spec(
        "slow",
        requires=("/bin/sh",),
        scriptlets={"post": ": > /running\nwhile ! [ -e /go-on ]; do sleep 0.05; done"},
    ),
    "slow-lua-1.0": spec(
        "slow-lua",
        requires=("/bin/sh",),
        scriptlets={
            "post -p <lua>": "os.execute(': > /running; while ! [ -e /go-on ]; do sleep 0.05; done')"
        },
    ),
    "core-1.0": spec("core", "1.0", provides=("installonlypkg(kernel)",), files={"/boot/core-1.0": "1"}),
    "core-2.0": spec("core", "2.0", provides=("installonlypkg(kernel)",), files={"/boot/core-2.0": "2"}),
    "core-3.0": spec("core", "3.0", provides=("installonlypkg(kernel)",), files={"/boot/core-3.0": "3"}),
    "panel-2.0": spec("panel", "2.0"),
    "oldapp-1.0": spec("oldapp", "1.0", requires=("lib < 2",)),
    "moebel-1.0": spec("moebel", "1.0", summary="Tische und St\u00fchle \u2014 \u6728"),
    "rival-1.0": spec("rival", conflicts=("lone",)),
    "lone-1.0": spec("lone", files={"/usr/share/lone": "alone"}),
}

NATIVE: Dict[str, str] = {
    "twin-1.0": spec("twin", "1.0", arch=None),
    "needs-twin32-1.0": spec("needs-twin32", "1.0", arch=None, requires=("twin(x86-32)",)),
    "panel-1.0": spec("panel", "1.0", arch=None),
    "twin-1.5": spec("twin", "1.5", arch=None),
    "shell-1.0": shell_spec("shell"),
}
FOREIGN: Dict[str, str] = {
    "twin-1.0.i686": spec("twin", "1.0", arch=None, provides=("twin(x86-32)",)),
    "twin-2.0.i686": spec("twin", "2.0", arch=None),
}


class Catalogue:
    """The rpms by name-version (and architecture, for foreign ones), built when they are first wanted."""

    def __init__(self, estate: Estate) -> None:
        self.estate = estate
        self._rpms: Dict[str, Path] = {}

    def __getitem__(self, key: str) -> Path:
        return self.some(key)[0]

    def some(self, *keys: str) -> List[Path]:
        for specs, arch in ((NOARCH, None), (NATIVE, "x86_64"), (FOREIGN, "i686")):
            lacking = [key for key in dict.fromkeys(keys) if key in specs and key not in self._rpms]
            self._rpms.update(zip(lacking, self.estate.build([specs[key] for key in lacking], arch=arch)))
        return [self._rpms[key] for key in keys]
