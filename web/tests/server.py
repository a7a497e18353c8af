"""Serves the game's page on the loopback address."""
import http.server
import os
import pathlib
import re
import threading

from browser import WATCH

AROUND = pathlib.Path(__file__).parent / "around.html"


class Handler(http.server.SimpleHTTPRequestHandler):
    """The page may stand in a frame of any origin. Around it stands /around.html; /watched is the page with the script
    that watches it, for browsers that can't be told to put it there."""

    def __init__(self, *given, owner):
        self.owner = owner
        super().__init__(*given, directory=owner.folder)

    def log_message(self, *_):
        pass

    def end_headers(self):
        self.send_header("Access-Control-Allow-Origin", "*")
        super().end_headers()

    def send_error(self, *about):
        self.owner.missed.append(self.path)
        super().send_error(*about)

    def do_GET(self):
        if self.path == "/around.html":
            self.answer("text/html", AROUND.read_text(encoding="utf-8"))
        elif self.path == "/watched":
            page = (pathlib.Path(self.owner.folder) / "index.html").read_text(encoding="utf-8")
            self.answer("text/html", page.replace("<head>", "<head><script src='/watch.js'></script>", 1))
        elif self.path == "/watch.js":
            self.answer("text/javascript", WATCH)
        elif "Range" in self.headers and os.path.isfile(self.translate_path(self.path)):
            self.answer_range()
        else:
            super().do_GET()

    def answer_range(self):
        """Music that goes on at its place asks for a part of its file."""
        data = pathlib.Path(self.translate_path(self.path)).read_bytes()
        begin, end = re.match(r"bytes=(\d+)-(\d*)", self.headers["Range"]).groups()
        part = data[int(begin):int(end or len(data)) + 1]
        self.send_response(206)
        self.send_header("Content-Type", self.guess_type(self.path))
        self.send_header("Content-Range", f"bytes {begin}-{int(begin) + len(part) - 1}/{len(data)}")
        self.send_header("Content-Length", str(len(part)))
        self.end_headers()
        self.wfile.write(part)

    def answer(self, kind, text):
        self.send_response(200)
        self.send_header("Content-Type", kind)
        self.end_headers()
        self.wfile.write(text.encode())


class Loopback(http.server.ThreadingHTTPServer):
    def handle_error(self, *_):  # the browser took no more of a file: it plays other music now
        pass


class Server:
    """Serves a folder; ends with the `with` block. What is asked for and isn't there is kept in `missed`."""

    def __init__(self, folder):
        self.folder = folder
        self.missed = []
        self.server = Loopback(("127.0.0.1", 0), lambda *given: Handler(*given, owner=self))
        self.address = "http://127.0.0.1:%d/" % self.server.server_port
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()
