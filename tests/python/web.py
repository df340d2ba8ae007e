# SPDX-License-Identifier: GPL-2.0-or-later
"""A web server on loopback that notes requests, and can fail, lie or be slow on demand.

It is a process of its own: dnf keeps the interpreter lock while it fetches metadata, and a thread of
this interpreter could not answer.
"""

from __future__ import annotations

import base64
import contextlib
import hashlib
import json
import re
import subprocess
import sys
import time
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from typing import Any, Dict, Iterable, List, Optional, Set


class Web:
    """Serves a directory at `url`. `state` is a folder for the talk between the two processes."""

    def __init__(self, directory: Path, state: Path) -> None:
        self._state = state
        self._state.mkdir()
        self._faults: Dict[str, Dict[str, Any]] = {}
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
        self.fail(404, *paths)

    def fail(self, status: int, *paths: str) -> None:
        """These paths are answered with this status and no content."""
        self._go_wrong(paths, status=status)

    def redirect(self, target: str, *paths: str) -> None:
        """Whoever asks for these paths is sent to another one."""
        self._go_wrong(paths, status=302, location=target)

    def lie(self, body: bytes, *paths: str) -> None:
        """These paths have this body, whatever they had before."""
        self._go_wrong(paths, body=base64.b64encode(body).decode())

    def cut(self, size: int, *paths: str) -> None:
        """The connection ends after so many bytes of these, though all are announced."""
        self._go_wrong(paths, size=size)

    def stall(self, size: int, *paths: str) -> None:
        """So many bytes of these are given; the rest comes once `find_again` was called."""
        self._go_wrong(paths, size=size, stalls=True)

    def find_again(self) -> None:
        """All paths are answered as if nothing had been wrong with them."""
        self._faults.clear()
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

    def _go_wrong(self, paths: Iterable[str], **fault: Any) -> None:
        self._faults.update((path, fault) for path in paths)
        self._tell()

    def _tell(self) -> None:
        pages = {path: base64.b64encode(body).decode() for path, body in self._pages.items()}
        new = self._state / "new"
        state = {"faults": self._faults, "held": sorted(self._held), "pages": pages}
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
            # Whoever asked may have been killed meanwhile.
            with contextlib.suppress(ConnectionError):
                self.note_and_answer()

        def note_and_answer(self) -> None:
            with open(state / "requests", "a", encoding="utf-8") as log:
                log.write(self.path + "\n")
            orders = self.orders()
            deadline = time.monotonic() + 600
            while any(part in self.path for part in orders["held"]) and time.monotonic() < deadline:
                time.sleep(0.02)
                orders = self.orders()
            fault = orders["faults"].get(self.path)
            if fault is not None and "status" in fault:
                self.answer_without_content(**fault)
            elif fault is not None or self.path in orders["pages"]:
                self.answer(**{"body": orders["pages"].get(self.path), **(fault or {})})
            else:
                super().do_GET()

        def answer_without_content(self, status: int, location: Optional[str] = None) -> None:
            self.send_response(status)
            if location is not None:
                self.send_header("Location", location)
            self.send_header("Content-Length", "0")
            self.end_headers()

        def answer(self, body: Optional[str], size: Optional[int] = None, stalls: bool = False) -> None:
            content = Path(self.translate_path(self.path)).read_bytes() if body is None else base64.b64decode(body)
            self.send_response(200)
            self.send_header("Content-Length", str(len(content)))
            self.end_headers()
            self.wfile.write(content[:size])
            if stalls:
                while self.path in self.orders()["faults"]:
                    time.sleep(0.05)
                self.wfile.write(content[size:])

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
