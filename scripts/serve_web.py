#!/usr/bin/env python3
"""Serves a built page on the loopback interface and prints its address.

Usage: serve_web.py FOLDER [PORT]      without a port a free one is taken; Ctrl+C ends it

A file that lies beside a compressed one, "name.br", goes over the wire as that where the browser reads it.
"""
import functools
import http.server
import os
import sys

TYPES = {".wasm": "application/wasm", ".js": "text/javascript", ".webmanifest": "application/manifest+json",
         ".pack": "application/octet-stream", ".data": "application/octet-stream"}


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    extensions_map = {**http.server.SimpleHTTPRequestHandler.extensions_map, **TYPES}
    compressed = False

    def send_head(self):
        path = self.translate_path(self.path)
        if os.path.isdir(path):
            path = os.path.join(path, "index.html")
        self.compressed = "br" in self.headers.get("Accept-Encoding", "") and os.path.isfile(path + ".br")
        if not self.compressed:
            return super().send_head()
        file = open(path + ".br", "rb")
        self.send_response(http.HTTPStatus.OK)
        self.send_header("Content-Type", self.guess_type(path))
        self.send_header("Content-Encoding", "br")
        self.send_header("Content-Length", str(os.fstat(file.fileno()).st_size))
        self.end_headers()
        return file

    def end_headers(self):
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_):
        pass


def main():
    if len(sys.argv) not in (2, 3) or not os.path.isdir(sys.argv[1]):
        sys.exit(__doc__)
    port = int(sys.argv[2]) if len(sys.argv) == 3 else 0
    server = http.server.ThreadingHTTPServer(("127.0.0.1", port),
                                             functools.partial(Handler, directory=sys.argv[1]))
    print(f"http://127.0.0.1:{server.server_port}/", flush=True)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()
