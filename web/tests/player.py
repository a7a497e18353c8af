"""The game's page in Chromium, and how to play it and to disturb it."""
import contextlib
import time
import wave

from chromium import Chromium
from visitor import Refusal, require
from watch import EARS, PROGRAM, SOUNDS

LEFT, RIGHT = 1, 2  # the buttons of a mouse that are held, as the browser counts them together
BUTTONS = {LEFT: "left", RIGHT: "right"}
CTRL = 2  # among the keys that modify others

# Places of the game: the turret in the shop, where one is placed, and a field in its reach.
SHOP, PLACE, AIM = (992, 600), (640, 480), (780, 420)

with wave.open("Assets/sfx/WaterStream.wav") as shot:
    SHOT_SECONDS = shot.getnframes() / shot.getframerate()


class Page(Chromium):
    """What is seen of the page, what a player does, and what others do to it."""

    def __init__(self, address, folder):
        self.address = address
        self.folder = folder
        self.held = []  # requests that are not answered yet
        super().__init__()

    def note(self, method, about):
        super().note(method, about)
        if method == "Fetch.requestPaused":
            self.held.append(about)

    def before(self, script):
        """Lets a script stand in the page before its own."""
        self.call("Page.addScriptToEvaluateOnNewDocument", source=script)

    def renew(self):
        """Another tab, so that nothing is left of the trouble before."""
        old = self.tab
        self.connect(self.tabs("/new?about:blank", "PUT"))
        self.tabs("/close/" + old["id"])
        self.held.clear()
        self.complaints.clear()
        self.call("Storage.clearDataForOrigin", origin=self.address.rstrip("/"), storageTypes="local_storage")
        self.call("Network.setCacheDisabled", cacheDisabled=True)
        self.call("Emulation.setTouchEmulationEnabled", enabled=True, maxTouchPoints=5)
        self.resize(696, 480)
        for script in EARS, PROGRAM, SOUNDS:
            self.before(script)

    def resize(self, width, height, density=1):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=density,
                  mobile=False)

    def visit(self):
        self.call("Page.navigate", url=self.address)

    def hold(self, *patterns):
        """The files of such names are on their way for ever, or until `release`."""
        self.call("Fetch.enable", patterns=[{"urlPattern": pattern} for pattern in patterns])

    def release(self):
        while self.held:
            self.call("Fetch.continueRequest", requestId=self.held.pop()["requestId"])

    # What is seen.

    def text(self):
        return self.value("document.body ? document.body.innerText : ''")

    def message(self):
        """What the page says over the game, for the reader of a failure."""
        try:
            return self.value("(message => message.checkVisibility() ? message.textContent : '')"
                              "(document.getElementById('message'))")
        except Refusal:
            return ""

    def reached(self, element):
        """Whether an element of this name is there, and nothing lies on it."""
        return self.value(f"""(() => {{
          const found = document.getElementById('{element}');
          if (!found)
            return false;
          const {{x, y, width, height}} = found.getBoundingClientRect();
          return width > 0 && found.contains(document.elementFromPoint(x + width / 2, y + height / 2));
        }})()""")

    def label(self):
        """What the large button says, if it can be pressed."""
        return self.value("""(button => button?.checkVisibility() && !button.disabled ? button.textContent : '')
          (document.getElementById('start'))""")

    def says(self, *words):
        self.wait_for(f"the words {words}", lambda: all(word.lower() in self.text().lower() for word in words))

    def steps(self):
        return self.value("program.steps")

    def goes_on(self):
        """The game is seen and moves."""
        begin = self.steps()
        self.wait_for("the game going on", lambda: self.steps() > begin + 5 and self.reached("canvas"))

    def stands(self):
        """Nothing moves any more."""
        time.sleep(0.3)
        begin = self.steps()
        time.sleep(0.7)
        require(self.steps() == begin, f"The game goes on: {self.steps() - begin} steps.")

    def shots(self):
        return self.value(f"audio.begun.filter(({{seconds}}) => Math.abs(seconds - {SHOT_SECONDS}) < 0.001).length")

    def fires(self):
        begin = self.shots()
        self.wait_for("a shot", lambda: self.shots() > begin)

    def is_still(self):
        """No shot is fired any more, once the last ones have been heard."""
        time.sleep(0.3)
        begin = self.shots()
        time.sleep(1.5)
        require(self.shots() == begin, f"Fires on: {self.shots() - begin} shots.")

    def is_silent(self):
        self.wait_for("silence", lambda: self.value("loudness()") == 0)

    def is_loud(self):
        self.wait_for("music", lambda: self.value("loudness()") > 0.001)

    # What a player does.

    def play(self):
        """Waits for the button and presses it."""
        self.offered("Play")
        self.click("start")

    def title(self):
        self.visit()
        self.play()
        self.goes_on()

    def field(self):
        self.title()
        self.key("a", "KeyA")

    def turret(self):
        """The field with a turret."""
        self.field()
        self.click_at(*self.on_canvas(*SHOP))
        self.click_at(*self.on_canvas(*PLACE))

    @contextlib.contextmanager
    def another_tab(self):
        """The page is hidden by another tab, and seen again at the end."""
        other = self.tabs("/new?about:blank", "PUT")["id"]
        self.wait_for("the page hidden", lambda: self.value("document.hidden"))
        yield
        self.tabs("/close/" + other)
        self.tabs("/activate/" + self.tab["id"])
        self.wait_for("the page seen", lambda: not self.value("document.hidden"))

    def mouse(self, kind, x, y, button=LEFT, held=0):
        self.call("Input.dispatchMouseEvent", type="mouse" + kind, x=x, y=y, button=BUTTONS[button], buttons=held,
                  clickCount=1)

    def click_at(self, x, y):
        self.mouse("Moved", x, y)
        self.mouse("Pressed", x, y, held=LEFT)
        self.mouse("Released", x, y)

    def click(self, element):
        self.click_at(*self.place(element))

    def key(self, key, code):
        text = {"text": key} if len(key) == 1 else {}
        number = {"Escape": 27, " ": 32}.get(key, ord(key[0].upper()) if len(key) == 1 else 0)
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, code=code, windowsVirtualKeyCode=number, **text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key, code=code, windowsVirtualKeyCode=number)

    def fingers(self, kind, places):
        """Fingers, by their numbers, come down ("Start"), move, or are lifted ("End"); the others stay."""
        self.call("Input.dispatchTouchEvent", type="touch" + kind,
                  touchPoints=[{"id": number, "x": x, "y": y} for number, (x, y) in places.items()])
