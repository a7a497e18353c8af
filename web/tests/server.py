"""Serves the game's page on the loopback address."""
import functools
import http.server
import os
import threading


class Server:
    """Serves a folder; ends with the `with` block. A script `before` stands in its index.html before the page's own, as
    a file, for a page may refuse every other kind of script. What is asked for and isn't there is kept in `missed`."""

    def __init__(self, folder, before=""):
        missed = self.missed = []

        class Handler(http.server.SimpleHTTPRequestHandler):
            def log_message(self, *_):
                pass

            def send_error(self, *about):
                missed.append(self.path)
                super().send_error(*about)

            def do_GET(self):
                if before and self.path == "/":
                    with open(os.path.join(folder, "index.html"), encoding="utf-8") as file:
                        page = file.read()
                    self.answer("text/html", page.replace("<head>", "<head><script src='before.js'></script>", 1))
                elif before and self.path == "/before.js":
                    self.answer("text/javascript", before)
                else:
                    super().do_GET()

            def answer(self, kind, text):
                self.send_response(200)
                self.send_header("Content-Type", kind)
                self.end_headers()
                self.wfile.write(text.encode())

        class Loopback(http.server.ThreadingHTTPServer):
            def handle_error(self, *_):  # the browser took no more of a file: it plays other music now
                pass
        self.server = Loopback(("127.0.0.1", 0), functools.partial(Handler, directory=folder))
        self.address = "http://127.0.0.1:%d/" % self.server.server_port
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()
