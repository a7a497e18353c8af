"""The game's page in Firefox, steered over WebDriver BiDi."""
import json
import os
import pathlib
import subprocess

import websocket

from browser import Browser, Refusal, Socket, actions
from window import Window

# Nothing is looked for outside this machine, and nothing covers the page.
PREFERENCES = """
user_pref("app.normandy.enabled", false);
user_pref("browser.aboutwelcome.enabled", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
"""


class Firefox(Browser):
    """Firefox without a page."""

    def launch(self, made):
        profile = pathlib.Path(self.profile)
        (profile / "user.js").write_text(PREFERENCES, encoding="utf-8")
        # A sound server with a loudspeaker that nobody hears: without one Firefox lets no sound begin. It ends when it
        # has not been needed for ten minutes, whatever has happened to who started it.
        loudspeaker = made.enter_context(subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=600",
             "--load=module-null-sink", f"--load=module-native-protocol-unix socket={profile}/loudspeaker"],
            env={**os.environ, "HOME": self.profile, "XDG_RUNTIME_DIR": self.profile}, stderr=subprocess.DEVNULL))
        made.callback(loudspeaker.kill)
        self.window = made.enter_context(Window(
            "/usr/bin/firefox-esr", quiet=True, HOME=self.profile, PULSE_SERVER=f"unix:{profile}/loudspeaker",
            arguments=["--kiosk", "--remote-debugging-port", "0", "--profile", self.profile, "about:blank"]))
        known = profile / "WebDriverBiDiServer.json"
        self.wait_for("Firefox", lambda: known.exists() and known.stat().st_size, 120)
        port = json.loads(known.read_text(encoding="utf-8"))["ws_port"]
        self.call = Socket(websocket.create_connection(f"ws://127.0.0.1:{port}/session", timeout=300,
                                                       suppress_origin=True)).call
        self.call("session.new", capabilities={})
        self.tab = self.wait_for("a tab", lambda: self.call("browsingContext.getTree")["contexts"])[0]["context"]

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
