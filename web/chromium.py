"""The game's page in Chromium, on a virtual display: a window like that of the program, and what the browser tells."""
import functools
import http.server
import json
import os
import subprocess
import sys
import tempfile
import threading
import time
import urllib.request

import websocket

sys.path.insert(0, "tools")
from window import HEIGHT, WIDTH, Window

BAR = 56  # the column of buttons beside the canvas

# The flags: root has no sandbox, nothing is looked for outside this machine, and pictures are drawn on the processor.
FLAGS = """--no-sandbox --kiosk --no-first-run --disable-quic --disable-background-networking --disable-component-update
  --disable-sync --disable-default-apps --disable-dev-shm-usage --use-angle=swiftshader --enable-unsafe-swiftshader --remote-allow-origins=*
  --remote-debugging-port=0""".split()


class Refusal(Exception):
    """The browser can't do what it was asked to, or the page can't answer."""


class Server:
    """Serves a folder on the loopback address; ends with the `with` block."""

    def __init__(self, folder):
        class Handler(http.server.SimpleHTTPRequestHandler):
            def log_message(self, *_):
                pass
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


class Chromium(Window):
    """Chromium without a page. It fills the display, so that the canvas is as large as the window of the program and
    lies where that would."""

    def __init__(self, *flags, screen=(WIDTH + BAR, HEIGHT)):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.complaints = []
        self.calls = 0
        # A window without a frame is a pixel smaller than its display.
        screen = screen[0] + 1, screen[1] + 1
        # What it says of services that this machine lacks is not about the game.
        super().__init__("/usr/bin/chromium", screen=screen, stderr=subprocess.DEVNULL, arguments=[
            *FLAGS, *flags, "--window-position=0,0", "--window-size=%d,%d" % screen,
            "--user-data-dir=" + self.profile.name, "about:blank"])
        try:
            self.connect()
        except BaseException:
            self.__exit__()
            raise

    def connect(self):
        known = os.path.join(self.profile.name, "DevToolsActivePort")
        self.wait_for("a browser", lambda: os.path.exists(known) and open(known).read().count("\n"), 120)
        port = open(known).readline().strip()
        def page():
            with urllib.request.urlopen(f"http://127.0.0.1:{port}/json") as answer:
                return [target for target in json.load(answer) if target["type"] == "page"]
        self.socket = websocket.create_connection(
            self.wait_for("a tab", page, 120)[0]["webSocketDebuggerUrl"], timeout=120)
        for domain in "Runtime", "Log", "Network", "Page":
            self.call(domain + ".enable")

    def __exit__(self, *_):
        super().__exit__()
        self.profile.cleanup()

    def wait_for(self, what, condition, seconds=100):
        end, refusal = time.monotonic() + seconds, ""
        while time.monotonic() < end:
            try:
                if answer := condition():
                    return answer
            except Refusal as reason:  # a page that is only coming up can't answer yet
                refusal = f" ({reason})"
            time.sleep(0.1)
        sys.exit(f"Not there within {seconds} seconds: {what}{refusal}")

    def call(self, method, **parameters):
        """One command of the browser's debugging interface; notes every complaint that comes before the answer."""
        self.calls += 1
        self.socket.send(json.dumps({"id": self.calls, "method": method, "params": parameters}))
        while True:
            message = json.loads(self.socket.recv())
            if message.get("id") == self.calls:
                if "error" in message:
                    raise Refusal(f"{method}: {message['error']}")
                return message["result"]
            self.note(message.get("method"), message.get("params"))

    def note(self, method, about):
        if method == "Runtime.exceptionThrown":
            details = about["exceptionDetails"]
            self.complaints.append(details.get("exception", {}).get("description") or details["text"])
        elif method == "Runtime.consoleAPICalled" and about["type"] in ("error", "warning", "assert"):
            self.complaints.append(" ".join(str(part.get("value")) for part in about["args"]))
        elif method == "Log.entryAdded" and about["entry"]["level"] in ("error", "warning"):
            self.complaints.append(about["entry"]["text"] + " " + about["entry"].get("url", ""))
        elif method == "Network.loadingFailed" and not about.get("canceled"):
            self.complaints.append("a request failed: " + about["errorText"])

    def value(self, expression):
        """What an expression of the page's language comes to."""
        answer = self.call("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in answer:
            raise Refusal(f"{expression}: {answer['exceptionDetails']}")
        return answer["result"].get("value")

    def place(self, element):
        """The middle of an element of the page."""
        return self.value(f"""(() => {{ const {{x, y, width, height}} = document.getElementById('{element}')
            .getBoundingClientRect(); return [x + width / 2, y + height / 2].map(Math.round); }})()""")

    def open(self, address):
        self.call("Page.navigate", url=address)
        self.offered("Play")

    def offered(self, label):
        """Waits until the large button can be pressed and has this label."""
        button = "document.getElementById('start')"
        self.wait_for(f"the button '{label}'",
                      lambda: self.value(f"{button} && !{button}.disabled && {button}.offsetParent && {button}.textContent") == label)

    def start(self):
        self.do("mousemove", *self.place("start"), "click", 1)

    def until(self, what, seen, seconds=60):
        """A frame that is drawn on the processor takes its time."""
        return super().until(what, seen, 3 * seconds)

    def ended(self):
        self.offered("Play again")

    def look_at_canvas(self):
        """The canvas as the page shows it at any size, brought to the size of the game."""
        area = self.value("(({x, y, width, height}) => ({x, y, width, height, scale: 1}))"
                          "(document.getElementById('canvas').getBoundingClientRect())")
        picture = self.call("Page.captureScreenshot", clip=area)["data"]
        return subprocess.run(f"base64 -d | convert png:- -resize {WIDTH}x{HEIGHT}! -depth 8 rgb:-", shell=True,
                              input=picture.encode(), stdout=subprocess.PIPE, check=True).stdout

    def keep_page(self, file):
        picture = self.call("Page.captureScreenshot")["data"]
        with open(file, "wb") as out:
            subprocess.run(["base64", "-d"], input=picture.encode(), stdout=out, check=True)
        print(file, flush=True)
