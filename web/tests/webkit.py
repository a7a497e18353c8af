"""The game's page in WebKitGTK, steered over WebDriver."""
import contextlib
import json
import socket
import urllib.error
import urllib.request

from visitor import Refusal, Visitor, actions


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class WebKit(Visitor):
    """WebKitGTK's own small browser without a page."""

    def __init__(self):
        port = free_port()
        self.complaints = []
        self.session = f"http://127.0.0.1:{port}"
        super().__init__("/usr/bin/WebKitWebDriver", quiet=True, arguments=[f"--port={port}"])
        try:
            self.wait_for("WebKit", lambda: self.call("GET", "/status")["ready"])
            self.session += "/session/" + self.call("POST", "/session", capabilities={})["sessionId"]
        except BaseException:
            super().__exit__()
            raise

    def __exit__(self, *_):
        with contextlib.suppress(Refusal):
            self.call("DELETE", "")
        super().__exit__()

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
