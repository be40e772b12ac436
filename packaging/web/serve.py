# SPDX-License-Identifier: Apache-2.0
"""Gives out a folder on this machine alone, as any web server would.

    serve.py FOLDER [PORT]      port 8000, or 0 for any that is free; the address is printed"""
import functools
import http.server
import sys


class Handler(http.server.SimpleHTTPRequestHandler):
    extensions_map = {**http.server.SimpleHTTPRequestHandler.extensions_map, ".wasm": "application/wasm", ".js": "text/javascript",
                      ".gz": "application/gzip", ".svg": "image/svg+xml"}

    def end_headers(self):
        # A new package is seen at the next reload.
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_arguments):
        pass


def main():
    port = int(sys.argv[2]) if len(sys.argv) > 2 else 8000
    with http.server.ThreadingHTTPServer(("127.0.0.1", port), functools.partial(Handler, directory=sys.argv[1])) as server:
        print(f"http://127.0.0.1:{server.server_port}/", flush=True)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            pass


if __name__ == "__main__":
    main()
