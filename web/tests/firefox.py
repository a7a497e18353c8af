"""The game's page in Firefox, steered over WebDriver BiDi."""
import json
import os
import subprocess
import tempfile

import websocket

from visitor import Refusal, SocketVisitor, actions

# Nothing is looked for outside this machine, and nothing covers the page.
PREFERENCES = """
user_pref("app.normandy.enabled", false);
user_pref("browser.aboutwelcome.enabled", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
"""


def start_loudspeaker(folder):
    """A sound server with a loudspeaker that nobody hears: without one Firefox lets no sound begin. It ends when it has
    not been needed for ten minutes, whatever has happened to who started it."""
    return subprocess.Popen(
        ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=600", "--load=module-null-sink",
         f"--load=module-native-protocol-unix socket={folder}/loudspeaker"],
        env={**os.environ, "HOME": folder, "XDG_RUNTIME_DIR": folder}, stderr=subprocess.DEVNULL)


class Firefox(SocketVisitor):
    """Firefox without a page."""

    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        with open(os.path.join(self.profile.name, "user.js"), "w", encoding="utf-8") as preferences:
            preferences.write(PREFERENCES)
        self.complaints = []
        self.loudspeaker = start_loudspeaker(self.profile.name)
        super().__init__("/usr/bin/firefox-esr", quiet=True, HOME=self.profile.name,
                         PULSE_SERVER=f"unix:{self.profile.name}/loudspeaker", arguments=[
                             "--kiosk", "--remote-debugging-port", "0", "--profile", self.profile.name, "about:blank"])
        try:
            self.connect()
        except BaseException:
            self.__exit__()
            raise

    def connect(self):
        known = os.path.join(self.profile.name, "WebDriverBiDiServer.json")
        self.wait_for("Firefox", lambda: os.path.exists(known) and os.path.getsize(known), 120)
        with open(known, encoding="utf-8") as file:
            port = json.load(file)["ws_port"]
        self.use_socket(websocket.create_connection(f"ws://127.0.0.1:{port}/session", timeout=300, suppress_origin=True))
        self.call("session.new", capabilities={})
        self.tab = self.wait_for("a tab", lambda: self.call("browsingContext.getTree")["contexts"])[0]["context"]
        self.call("session.subscribe", events=["log.entryAdded", "network.fetchError", "network.responseCompleted"])

    def __exit__(self, *_):
        super().__exit__()
        self.loudspeaker.kill()
        self.loudspeaker.wait()
        self.profile.cleanup()

    def note(self, method, about):
        if method == "log.entryAdded" and about["level"] in ("warn", "error"):
            self.complaints.append(about["text"])
        elif method == "network.responseCompleted" and about["response"]["status"] >= 400:
            self.complaints.append(f"{about['response']['status']} {about['request']['url']}")
        elif method == "network.fetchError":
            self.complaints.append(f"{about['errorText']} {about['request']['url']}")

    def open(self, address):
        self.call("browsingContext.navigate", context=self.tab, url=address, wait="complete")

    def value(self, expression):
        answer = self.call("script.evaluate", expression=f"JSON.stringify({expression})", target={"context": self.tab},
                           awaitPromise=False)
        if answer["type"] == "exception":
            raise Refusal(f"{expression}: {answer['exceptionDetails']['text']}")
        return json.loads(answer["result"].get("value", "null"))

    def screenshot(self):
        return self.call("browsingContext.captureScreenshot", context=self.tab)["data"]

    def press(self, x, y):
        self.call("input.performActions", context=self.tab, actions=actions(x, y, "pointerDown"))

    def lift(self, x, y):
        self.call("input.performActions", context=self.tab, actions=actions(x, y, "pointerUp"))
