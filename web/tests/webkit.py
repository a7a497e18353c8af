"""The game's page in WebKitGTK, steered over WebDriver."""
import json
import socket
import urllib.error
import urllib.request

from browser import Browser, Refusal, actions
from window import Window


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class WebKit(Browser):
    """WebKitGTK's own small browser without a page."""

    def launch(self, made):
        port = free_port()
        self.session = f"http://127.0.0.1:{port}"
        self.window = made.enter_context(Window("/usr/bin/WebKitWebDriver", quiet=True, arguments=[f"--port={port}"]))
        self.wait_for("WebKit", lambda: self.call("GET", "/status")["ready"])
        self.session += "/session/" + self.call("POST", "/session", capabilities={})["sessionId"]
        made.callback(self.call, "DELETE", "")

    def call(self, method, path, **parameters):
        """One command of the WebDriver protocol; its path starts at the session, once there is one."""
        request = urllib.request.Request(self.session + path, method=method,
                                         data=json.dumps(parameters).encode() if method == "POST" else None)
        try:
            with urllib.request.urlopen(request, timeout=300) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as reason:
            raise Refusal(f"{method} {path}: {reason.read().decode()}")
        except OSError as reason:
            raise Refusal(f"{method} {path}: {reason}")

    def open(self, address):
        self.call("POST", "/url", url=address)

    def value(self, expression):
        return self.call("POST", "/execute/sync", script=f"return {expression}", args=[])

    def screenshot(self):
        return self.call("GET", "/screenshot")

    def press(self, x, y):
        self.call("POST", "/actions", actions=actions(x, y, "pointerDown"))

    def lift(self, x, y):
        self.call("POST", "/actions", actions=actions(x, y, "pointerUp"))
