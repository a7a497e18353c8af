"""The game's page in Chromium, on a virtual display: a window like that of the program, and what the browser tells."""
import json
import os
import tempfile
import urllib.request

import websocket

from visitor import Refusal, SocketVisitor
from window import HEIGHT, WIDTH

BAR = 56  # the column of buttons beside the canvas

# The flags: root has no sandbox, nothing is looked for outside this machine, and pictures are drawn on the processor.
FLAGS = """--no-sandbox --kiosk --no-first-run --disable-quic --disable-background-networking --disable-component-update
  --disable-sync --disable-default-apps --disable-dev-shm-usage --use-angle=swiftshader --enable-unsafe-swiftshader --remote-allow-origins=*
  --remote-debugging-port=0""".split()


class Chromium(SocketVisitor):
    """Chromium without a page. It fills the display, so that the canvas is as large as the window of the program and
    lies where that would."""

    def __init__(self, *flags, screen=(WIDTH + BAR, HEIGHT)):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.complaints = []
        # A window without a frame is a pixel smaller than its display.
        screen = screen[0] + 1, screen[1] + 1
        super().__init__("/usr/bin/chromium", screen=screen, quiet=True, arguments=[
            *FLAGS, *flags, "--window-position=0,0", "--window-size=%d,%d" % screen,
            "--user-data-dir=" + self.profile.name, "about:blank"])
        try:
            known = os.path.join(self.profile.name, "DevToolsActivePort")
            self.wait_for("a browser", lambda: os.path.exists(known) and open(known).read().count("\n"), 120)
            self.port = open(known).readline().strip()
            self.connect(self.wait_for("a tab", lambda: [tab for tab in self.tabs() if tab["type"] == "page"], 120)[0])
        except BaseException:
            self.__exit__()
            raise

    def connect(self, tab):
        self.tab = tab
        self.use_socket(websocket.create_connection(tab["webSocketDebuggerUrl"], timeout=120))
        for domain in "Runtime", "Log", "Network", "Page":
            self.call(domain + ".enable")

    def tabs(self, command="", method="GET"):
        """Asks the browser something about its tabs; without a command it tells which there are."""
        request = urllib.request.Request(f"http://127.0.0.1:{self.port}/json{command}", method=method)
        with urllib.request.urlopen(request) as answer:
            told = answer.read()
        return json.loads(told) if told.startswith((b"[", b"{")) else told

    def __exit__(self, *_):
        super().__exit__()
        self.profile.cleanup()

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
            details = answer["exceptionDetails"]
            raise Refusal(details.get("exception", {}).get("description") or details["text"])
        return answer["result"].get("value")

    def open(self, address):
        self.call("Page.navigate", url=address)
        self.offered("Play")

    def start(self):
        self.do("mousemove", *self.place("start"), "click", 1)

    def until(self, what, seen, seconds=60):
        """A frame that is drawn on the processor takes its time."""
        return super().until(what, seen, 3 * seconds)

    def ended(self):
        self.offered("Play again")

    def screenshot(self):
        return self.call("Page.captureScreenshot")["data"]

    def press(self, x, y):
        self.call("Input.dispatchTouchEvent", type="touchStart", touchPoints=[{"x": x, "y": y}])

    def lift(self, x, y):
        self.call("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])
