"""What all browsers have in common that visit the game's page on a virtual display."""
import base64
import contextlib
import json
import pathlib
import subprocess
import tempfile
import time

from window import HEIGHT, WIDTH

WATCH = (pathlib.Path(__file__).parent / "watch.js").read_text(encoding="utf-8")


class Wrong(Exception):
    """The page is not as it should be."""


class Refusal(Exception):
    """The browser can't do what it was asked to, or the page can't answer."""


def require(condition, complaint):
    if not condition:
        raise Wrong(complaint)


def actions(x, y, kind):
    """WebDriver's words for a mouse that comes to a point of the page and presses or lifts its left button there."""
    return [{"type": "pointer", "id": "mouse", "actions": [
        {"type": "pointerMove", "x": x, "y": y}, {"type": kind, "button": 0}]}]


class Socket:
    """Takes commands, and between the answers tells of events, which go to `note`."""

    def __init__(self, connection, note=lambda method, about: None):
        self.connection = connection
        self.note = note
        self.calls = 0

    def call(self, method, **parameters):
        self.calls += 1
        self.connection.send(json.dumps({"id": self.calls, "method": method, "params": parameters}))
        while True:
            message = json.loads(self.connection.recv())
            if message.get("id") == self.calls:
                if "error" in message:
                    raise Refusal(f"{method}: {message}")
                return message["result"]
            self.note(message.get("method"), message.get("params"))


class Browser:
    """A browser in its `window`. Its kinds know how to `launch` it, how to `open` an address, how to ask the page for a
    `value`, how to take a `screenshot`, in base64, and how to `press` the left button or a finger at a point of the
    page and `lift` it again."""

    def __init__(self):
        with contextlib.ExitStack() as made:
            self.profile = made.enter_context(tempfile.TemporaryDirectory(ignore_cleanup_errors=True))
            self.launch(made)
            self.made = made.pop_all()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.made.close()

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
        raise Wrong(f"Not there within {seconds} seconds: {what}{refusal}")

    def stays(self, what, number, seconds=1):
        """What is under way comes to its end, and then a number stays as it is."""
        time.sleep(0.3)
        before = number()
        time.sleep(seconds)
        require(number() == before, f"{what}: from {before} to {number()}")

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

    def reached(self, element):
        """Whether an element can be pressed: it is there, and nothing lies on it."""
        return self.value(f"""(() => {{
          const found = document.getElementById('{element}');
          if (!found || found.disabled)
            return false;
          const {{x, y, width, height}} = found.getBoundingClientRect();
          return width > 0 && found.contains(document.elementFromPoint(x + width / 2, y + height / 2));
        }})()""")

    def offered(self, button, label):
        """Waits until a button can be pressed and has this label."""
        self.wait_for(f"the button '{label}'", lambda: self.reached(button) and self.value(
            f"document.getElementById('{button}').textContent") == label)

    def keep_page(self, file):
        pathlib.Path(file).write_bytes(base64.b64decode(self.screenshot()))
        print(file, flush=True)

    def look(self):
        """The canvas as the page shows it at any size, brought to the size of the game."""
        density = self.value("devicePixelRatio")
        left, top, width, height = (round(side * density) for side in self.area("canvas"))
        return subprocess.run(["convert", "png:-", "-crop", f"{width}x{height}+{left}+{top}", "+repage",
                               "-resize", f"{WIDTH}x{HEIGHT}!", "-depth", "8", "rgb:-"],
                              input=base64.b64decode(self.screenshot()), stdout=subprocess.PIPE, check=True).stdout

    def until(self, what, seen):
        """Waits until a picture of the canvas satisfies `seen`, and returns it."""
        return self.wait_for(what, lambda: seen(picture := self.look()) and picture)
