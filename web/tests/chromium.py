"""The game's page in Chromium, on a virtual display: a window like that of the program, and what the browser tells."""
import json
import os
import urllib.request

import websocket

from browser import Browser, Refusal, Socket
from window import HEIGHT, WIDTH, Window

BAR = 56  # the column of buttons beside the canvas

# A window without a frame is a pixel smaller than its display.
SCREEN = WIDTH + BAR + 1, HEIGHT + 1

# Root has no sandbox, nothing is looked for outside this machine, pictures are drawn on the processor, and all frames
# of a page stand in one process.
FLAGS = """--no-sandbox --kiosk --no-first-run --disable-quic --disable-background-networking --disable-component-update
  --disable-sync --disable-default-apps --disable-dev-shm-usage --use-angle=swiftshader --enable-unsafe-swiftshader
  --disable-features=IsolateSandboxedIframes --remote-allow-origins=* --remote-debugging-port=0""".split()


class Chromium(Browser):
    """Chromium without a page. It fills the display, so that the canvas is as large as the window of the program and
    lies where that would."""

    def launch(self, made):
        self.complaints = []
        self.window = made.enter_context(Window("/usr/bin/chromium", screen=SCREEN, quiet=True, arguments=[
            *FLAGS, "--window-position=0,0", "--window-size=%d,%d" % SCREEN, "--user-data-dir=" + self.profile,
            "about:blank"]))
        known = os.path.join(self.profile, "DevToolsActivePort")
        self.wait_for("a browser", lambda: os.path.exists(known) and open(known).read().count("\n"), 120)
        self.port = open(known).readline().strip()
        self.connect(self.wait_for("a tab", lambda: [tab for tab in self.tabs() if tab["type"] == "page"], 120)[0])

    def connect(self, tab):
        self.tab = tab
        self.call = Socket(websocket.create_connection(tab["webSocketDebuggerUrl"], timeout=120), self.note).call
        for domain in "Runtime", "Log", "Network", "Page":
            self.call(domain + ".enable")

    def tabs(self, command="", method="GET"):
        """Asks the browser something about its tabs; without a command it tells which there are."""
        request = urllib.request.Request(f"http://127.0.0.1:{self.port}/json{command}", method=method)
        with urllib.request.urlopen(request) as answer:
            told = answer.read()
        return json.loads(told) if told.startswith((b"[", b"{")) else told

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

    def value(self, expression, **where):
        """What an expression of the page's language comes to."""
        answer = self.call("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True, **where)
        if "exceptionDetails" in answer:
            details = answer["exceptionDetails"]
            raise Refusal(details.get("exception", {}).get("description") or details["text"])
        return answer["result"].get("value")

    def before(self, script):
        """Lets a script stand in every page before its own."""
        self.call("Page.addScriptToEvaluateOnNewDocument", source=script)

    def open(self, address):
        self.call("Page.navigate", url=address)

    def play(self):
        """Waits for the button and presses it."""
        self.offered("play", "Play")
        self.window.do("mousemove", *self.place("play"), "click", 1)

    def screenshot(self):
        return self.call("Page.captureScreenshot")["data"]

    def press(self, x, y):
        self.call("Input.dispatchTouchEvent", type="touchStart", touchPoints=[{"x": x, "y": y}])

    def lift(self, x, y):
        self.call("Input.dispatchTouchEvent", type="touchEnd", touchPoints=[])
