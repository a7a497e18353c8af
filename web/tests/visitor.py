"""What a browser has in common with every other, when it visits the game's page on a virtual display."""
import base64
import json
import subprocess
import sys
import time

from window import HEIGHT, WIDTH, Window


class Refusal(Exception):
    """The browser can't do what it was asked to, or the page can't answer."""


def require(condition, complaint):
    if not condition:
        sys.exit(str(complaint))


def actions(x, y, kind):
    """WebDriver's words for a mouse that comes to a point of the page and presses or lifts its left button there."""
    return [{"type": "pointer", "id": "mouse", "actions": [
        {"type": "pointerMove", "x": x, "y": y}, {"type": kind, "button": 0}]}]


class Visitor(Window):
    """A browser. Its kinds know how to ask the page for a `value`, how to take a `screenshot`, in base64, and how to
    `press` the left button or a finger at a point of the page and `lift` it again."""

    def wait_for(self, what, condition, seconds=100):
        end, refusal = time.monotonic() + seconds, ""
        while time.monotonic() < end:
            try:
                if answer := condition():
                    return answer
                refusal = ""
            except Refusal as reason:  # a page that is only coming up can't answer yet
                refusal = f" ({reason})"
            time.sleep(0.1)
        sys.exit(f"Not there within {seconds} seconds: {what}{refusal}")

    def area(self, element):
        """Left, top, width and height of an element of the page."""
        return self.value(f"""(({{x, y, width, height}}) => [x, y, width, height])
            (document.getElementById('{element}').getBoundingClientRect())""")

    def place(self, element):
        """The middle of an element of the page."""
        left, top, width, height = self.area(element)
        return round(left + width / 2), round(top + height / 2)

    def on_canvas(self, x, y):
        """Where a point of the game is on the page, y upwards as the game counts."""
        left, top, width, _ = self.area("canvas")
        return round(left + x * width / WIDTH), round(top + (HEIGHT - y) * width / WIDTH)

    def touch(self, x, y):
        """Presses and lifts at a point of the page."""
        self.press(x, y)
        time.sleep(0.1)
        self.lift(x, y)

    def offered(self, label):
        """Waits until the large button can be pressed and has this label."""
        button = "document.getElementById('start')"
        self.wait_for(f"the button '{label}'", lambda: self.value(
            f"{button} && !{button}.disabled && {button}.offsetParent && {button}.textContent") == label)

    def keep_page(self, file):
        with open(file, "wb") as out:
            out.write(base64.b64decode(self.screenshot()))
        print(file, flush=True)

    def look_at_canvas(self):
        """The canvas as the page shows it at any size, brought to the size of the game."""
        density = self.value("devicePixelRatio")
        left, top, width, height = (round(side * density) for side in self.area("canvas"))
        return subprocess.run(["convert", "png:-", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                               "-resize", f"{WIDTH}x{HEIGHT}!", "-depth", "8", "rgb:-"],
                              input=base64.b64decode(self.screenshot()), stdout=subprocess.PIPE, check=True).stdout

    def until_canvas(self, what, seen, seconds=100):
        """Waits until a picture of the canvas satisfies `seen`, and returns it."""
        pictures = []

        def satisfied():
            pictures[:] = [self.look_at_canvas()]
            return seen(pictures[0])
        self.wait_for(what, satisfied, seconds)
        return pictures[0]


class SocketVisitor(Visitor):
    """A browser that takes commands over its `socket`, and between the answers tells of events, which its kinds `note`.
    """

    def use_socket(self, socket):
        self.socket = socket
        self.calls = 0

    def call(self, method, **parameters):
        """One command; notes every event that comes before its answer."""
        self.calls += 1
        self.socket.send(json.dumps({"id": self.calls, "method": method, "params": parameters}))
        while True:
            message = json.loads(self.socket.recv())
            if message.get("id") == self.calls:
                if "error" in message:
                    raise Refusal(f"{method}: {message}")
                return message["result"]
            self.note(message.get("method"), message.get("params"))
