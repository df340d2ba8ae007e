# SPDX-License-Identifier: GPL-2.0-or-later
"""A web server on loopback that counts requests and can fail on demand."""

from __future__ import annotations

import threading
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from typing import Any, Dict, List, Set


class Web:
    """Serves a directory. `pages` are further paths with their bodies, `missing` paths that are gone."""

    def __init__(self, directory: Path) -> None:
        self.requests: List[str] = []
        self.pages: Dict[str, bytes] = {}
        self.missing: Set[str] = set()
        web = self

        class Handler(SimpleHTTPRequestHandler):
            def __init__(self, *args: Any, **options: Any) -> None:
                super().__init__(*args, directory=str(directory), **options)

            def do_GET(self) -> None:
                web.requests.append(self.path)
                if self.path in web.missing:
                    self.send_error(404)
                elif self.path in web.pages:
                    body = web.pages[self.path]
                    self.send_response(200)
                    self.send_header("Content-Length", str(len(body)))
                    self.end_headers()
                    self.wfile.write(body)
                else:
                    super().do_GET()

            def log_message(self, *args: Any) -> None:
                """Quiet."""

        self._server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._thread = threading.Thread(target=self._server.serve_forever, args=(0.05,), daemon=True)

    @property
    def url(self) -> str:
        return f"http://127.0.0.1:{self._server.server_port}"

    def __enter__(self) -> "Web":
        self._thread.start()
        return self

    def __exit__(self, *_: object) -> None:
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()
