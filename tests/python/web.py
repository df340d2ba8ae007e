# SPDX-License-Identifier: GPL-2.0-or-later
"""A web server on loopback that notes requests, and can fail or be slow on demand.

It is a process of its own: dnf keeps the interpreter lock while it fetches metadata, and a thread of
this interpreter could not answer.
"""

from __future__ import annotations

import base64
import hashlib
import json
import re
import subprocess
import sys
import time
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from typing import Any, Dict, List, Set


class Web:
    """Serves a directory at `url`. `state` is a folder for the talk between the two processes."""

    def __init__(self, directory: Path, state: Path) -> None:
        self._state = state
        self._state.mkdir()
        self._missing: Set[str] = set()
        self._held: Set[str] = set()
        self._pages: Dict[str, bytes] = {}
        self._tell()
        self._process = subprocess.Popen(
            [sys.executable, __file__, str(directory), str(state)], stdout=subprocess.PIPE, text=True
        )
        assert self._process.stdout is not None
        self.url = f"http://127.0.0.1:{int(self._process.stdout.readline())}"

    def lose(self, *paths: str) -> None:
        """These paths are gone (404) from now on."""
        self._missing.update(paths)
        self._tell()

    def find_again(self) -> None:
        """All lost paths are back."""
        self._missing.clear()
        self._tell()

    def page(self, path: str, body: bytes) -> None:
        """Gives this body under the path."""
        self._pages[path] = body
        self._tell()

    def hold(self, *parts: str) -> None:
        """Paths that contain one of these are answered only after `let_go`."""
        self._held.update(parts)
        self._tell()

    def let_go(self, *parts: str) -> None:
        """Answers these; without an argument, everything that is held."""
        self._held -= set(parts) or self._held
        self._tell()

    def requests(self) -> List[str]:
        """All paths that were asked for, in order."""
        log = self._state / "requests"
        return log.read_text().splitlines() if log.exists() else []

    def forget_requests(self) -> None:
        (self._state / "requests").unlink(missing_ok=True)

    def __enter__(self) -> "Web":
        return self

    def __exit__(self, *_: object) -> None:
        self._process.terminate()
        self._process.wait()
        assert self._process.stdout is not None
        self._process.stdout.close()

    def _tell(self) -> None:
        pages = {path: base64.b64encode(body).decode() for path, body in self._pages.items()}
        new = self._state / "new"
        state = {"missing": sorted(self._missing), "held": sorted(self._held), "pages": pages}
        new.write_text(json.dumps(state))
        new.rename(self._state / "state.json")


def metalink(directory: Path, url: str) -> bytes:
    """The metalink file of a repository that lies in `directory` and is served at `url`."""
    repomd = (directory / "repodata/repomd.xml").read_bytes()
    stamp = re.search(rb"<timestamp>(\d+)", repomd)
    assert stamp is not None
    return f"""<?xml version="1.0" encoding="utf-8"?>
<metalink version="3.0" xmlns="http://www.metalinker.org/" xmlns:mm0="http://fedorahosted.org/mirrormanager">
 <files><file name="repomd.xml">
  <mm0:timestamp>{stamp.group(1).decode()}</mm0:timestamp>
  <size>{len(repomd)}</size>
  <verification><hash type="sha256">{hashlib.sha256(repomd).hexdigest()}</hash></verification>
  <resources maxconnections="1">
   <url protocol="http" type="http" location="US" preference="100">{url}/repodata/repomd.xml</url>
  </resources>
 </file></files>
</metalink>
""".encode()


def serve(directory: str, state: Path) -> None:
    class Handler(SimpleHTTPRequestHandler):
        def __init__(self, *args: Any, **options: Any) -> None:
            super().__init__(*args, directory=directory, **options)

        def do_GET(self) -> None:
            with open(state / "requests", "a", encoding="utf-8") as log:
                log.write(self.path + "\n")
            orders = self.orders()
            deadline = time.monotonic() + 60
            while any(part in self.path for part in orders["held"]) and time.monotonic() < deadline:
                time.sleep(0.02)
                orders = self.orders()
            if self.path in orders["missing"]:
                self.send_error(404)
            elif self.path in orders["pages"]:
                body = base64.b64decode(orders["pages"][self.path])
                self.send_response(200)
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)
            else:
                super().do_GET()

        @staticmethod
        def orders() -> Any:
            return json.loads((state / "state.json").read_text())

        def log_message(self, *args: Any) -> None:
            """Quiet."""

    server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    print(server.server_port, flush=True)
    server.serve_forever()


if __name__ == "__main__":
    serve(sys.argv[1], Path(sys.argv[2]))
