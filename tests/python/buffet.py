# SPDX-License-Identifier: GPL-2.0-or-later
"""A web server on loopback that gives files to those only who name themselves in the query.

"/buffet?login=NAME&key=PASSWORD&path=FILE" is the one kind of address that it knows; the keys may have any
name. It is a process of its own: dnf keeps the interpreter lock while it fetches metadata, and a thread of
this interpreter could not answer.
"""

from __future__ import annotations

import json
import subprocess
import sys
import tempfile
import urllib.parse
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from typing import Any, List


class Buffet:
    """Serves a directory at `url`. Leave it by `close` or the context manager."""

    def __init__(self, directory: Path, name: str, password: str) -> None:
        self._state = tempfile.TemporaryDirectory(prefix="buffet")
        self._requests = Path(self._state.name, "requests")
        self._closed = Path(self._state.name, "closed")
        self._process = subprocess.Popen(
            [sys.executable, __file__, str(directory), self._state.name], text=True,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE,
        )
        assert self._process.stdin is not None and self._process.stdout is not None
        # Not in the arguments, which the whole machine can read.
        self._process.stdin.write(json.dumps([name, password]))
        self._process.stdin.close()
        self.url = f"http://127.0.0.1:{int(self._process.stdout.readline())}"

    def requests(self) -> List[str]:
        """All that was asked for, in order, as it came."""
        return self._requests.read_text().splitlines() if self._requests.exists() else []

    def forget_requests(self) -> None:
        self._requests.unlink(missing_ok=True)

    def refuse_everybody(self) -> None:
        self._closed.touch()

    def close(self) -> None:
        self._process.terminate()
        self._process.wait()
        assert self._process.stdout is not None
        self._process.stdout.close()
        self._state.cleanup()

    def __enter__(self) -> "Buffet":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()


def serve(directory: Path, state: Path, name: str, password: str) -> None:
    class Handler(BaseHTTPRequestHandler):
        def do_GET(self) -> None:
            with open(state / "requests", "a", encoding="utf-8") as log:
                log.write(self.path + "\n")
            place, _, query = self.path.partition("?")
            # A blank may be written as a plus sign only in forms, which these addresses are none of.
            pairs = [part.partition("=")[::2] for part in query.split("&")]
            # The bytes of the request come as characters of the same value.
            coded = [value.encode("latin-1") for _, value in pairs]
            values = [urllib.parse.unquote_to_bytes(value).decode("utf-8", "replace") for value in coded]
            if place != "/buffet" or len(pairs) != 3 or pairs[2][0] != "path" or "+" in pairs[2][1]:
                self.send_error(404)
            elif values[:2] != [name, password] or (state / "closed").exists():
                self.send_error(403)
            else:
                self._give(directory / values[2].lstrip("/"))

        def _give(self, file: Path) -> None:
            if not file.is_file():
                self.send_error(404)
                return
            body = file.read_bytes()
            self.send_response(200)
            self.send_header("Content-Length", str(len(body)))
            self.end_headers()
            self.wfile.write(body)

        def log_message(self, *args: Any) -> None:
            """Quiet."""

    server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    print(server.server_port, flush=True)
    server.serve_forever()


if __name__ == "__main__":
    serve(Path(sys.argv[1]), Path(sys.argv[2]), *json.load(sys.stdin))
