"""A player at the game's page in Chromium, and those who disturb the play."""
import contextlib
import time
import wave

from browser import WATCH
from chromium import Chromium

LEFT, RIGHT = 1, 2  # the buttons of a mouse that are held, as the browser counts them together
BUTTONS = {LEFT: "left", RIGHT: "right"}

# Places of the game: the turret in the shop, where one is placed, and a field in its reach.
SHOP, PLACE, AIM = (992, 600), (640, 480), (780, 420)


def seconds(name):
    with wave.open(f"Assets/sfx/{name}.wav") as sound:
        return sound.getnframes() / sound.getframerate()


SHOT, PURCHASE = seconds("WaterStream"), seconds("TurretConstruction")


class Player(Chromium):
    def __init__(self, server, pictures):
        self.server = server
        self.pictures = pictures  # the folder for them
        self.held = []  # requests that are not answered yet
        self.contexts = {}  # where scripts of the page's frames run, by the name of the frame
        self.frame = None  # in which the game is, if it is not alone
        super().__init__()

    def note(self, method, about):
        super().note(method, about)
        if method == "Fetch.requestPaused":
            self.held.append(about)
        elif method == "Runtime.executionContextCreated":
            self.contexts[about["context"]["auxData"]["frameId"]] = about["context"]["id"]

    def renew(self):
        """Another tab, so that nothing is left of the trouble before."""
        old = self.tab
        self.connect(self.tabs("/new?about:blank", "PUT"))
        self.tabs("/close/" + old["id"])
        self.held.clear()
        self.complaints.clear()
        self.frame = None
        self.call("Storage.clearDataForOrigin", origin=self.server.address.rstrip("/"), storageTypes="local_storage")
        self.call("Network.setCacheDisabled", cacheDisabled=True)
        self.call("Emulation.setTouchEmulationEnabled", enabled=True, maxTouchPoints=5)
        self.resize(696, 480)
        self.before(WATCH)

    def resize(self, width, height, density=1, mobile=False):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=density,
                  mobile=mobile)

    def visit(self):
        self.open(self.server.address)

    def visit_in_frame(self, sandbox=""):
        """The game stands in a frame below the fold of another page."""
        self.open(self.server.address + "around.html")
        self.wait_for("the page around", lambda: self.value("document.readyState === 'complete'"))
        self.value(f"""(frame => {{
          {sandbox and f"frame.sandbox = '{sandbox}';"}
          frame.src = '.';
        }})(document.querySelector('iframe'))""")
        inner = self.call("Page.getFrameTree")["frameTree"]["childFrames"][0]["frame"]["id"]
        self.frame = inner
        self.wait_for("the game in the frame", lambda: self.value("location.pathname === '/'"))

    def value(self, expression):
        """What an expression comes to, in the game's frame."""
        return super().value(expression, **({"contextId": self.contexts[self.frame]} if self.frame else {}))

    def value_around(self, expression):
        return super().value(expression)

    def area(self, element):
        left, top, width, height = super().area(element)
        if self.frame:
            x, y = self.value_around("(({x, y}) => [x, y])(document.querySelector('iframe').getBoundingClientRect())")
            return left + x, top + y, width, height
        return left, top, width, height

    def hold(self, *patterns):
        """The files of such names are on their way for ever, or until `release`."""
        self.call("Fetch.enable", patterns=[{"urlPattern": pattern} for pattern in patterns])

    def is_asked_for(self, what):
        """Waits until such a file is asked for."""
        self.wait_for(what, lambda: self.value("true") and self.held)

    def release(self):
        while self.held:
            self.call("Fetch.continueRequest", requestId=self.held.pop()["requestId"])

    def block(self, *patterns):
        """The files of such names do not arrive."""
        self.call("Network.setBlockedURLs", urls=patterns)

    # What is seen and heard.

    def text(self):
        return self.value("document.body ? document.body.innerText : ''")

    def says(self, *words):
        self.wait_for(f"the words {words}", lambda: all(word.lower() in self.text().lower() for word in words))

    def frames(self):
        return self.value("watch.frames")

    def goes_on(self):
        """The game is seen and moves."""
        begin = self.frames()
        self.wait_for("the game going on", lambda: self.frames() > begin + 5 and self.reached("canvas"))

    def stands(self):
        self.stays("The game goes on", self.frames)

    def asks(self):
        """The question is there, and the game waits for the answer."""
        self.wait_for("the question", lambda: self.reached("goOn"))
        self.stands()

    def heard(self, sound):
        """How often a sound was begun that is as long as this one."""
        return self.value(f"watch.begun.filter(({{seconds}}) => Math.abs(seconds - {sound}) < 0.001).length")

    def fires(self):
        begin = self.heard(SHOT)
        self.wait_for("a shot", lambda: self.heard(SHOT) > begin)

    def is_still(self):
        self.stays("Fires on", lambda: self.heard(SHOT), 1.5)

    def is_silent(self):
        self.wait_for("silence", lambda: self.value("watch.loudness()") == 0)

    def is_loud(self):
        self.wait_for("music", lambda: self.value("watch.loudness()") > 0.001)

    # What a player does.

    def play(self):
        self.offered("play", "Play")
        self.click("play")

    def title(self):
        self.visit()
        self.play()
        self.goes_on()

    def field(self):
        self.title()
        self.key("a", "KeyA")

    def buy(self):
        self.click_at(*self.on_canvas(*SHOP))
        self.click_at(*self.on_canvas(*PLACE))

    def turret(self):
        """The field with a turret."""
        self.field()
        self.buy()

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

    def hold_fire(self):
        self.mouse("Pressed", *self.on_canvas(*AIM), held=LEFT)

    def click_at(self, x, y):
        self.mouse("Moved", x, y)
        self.mouse("Pressed", x, y, held=LEFT)
        self.mouse("Released", x, y)

    def click(self, element):
        self.click_at(*self.place(element))

    def key(self, key, code):
        text = {"text": key} if len(key) == 1 else {}
        number = {"Escape": 27}.get(key, ord(key[0].upper()))
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, code=code, windowsVirtualKeyCode=number, **text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key, code=code, windowsVirtualKeyCode=number)

    def escape(self):
        self.key("Escape", "Escape")

    def fingers(self, kind, places):
        """Fingers, by their numbers, come down ("Start"), move, or are lifted ("End"); the others stay."""
        self.call("Input.dispatchTouchEvent", type="touch" + kind,
                  touchPoints=[{"id": number, "x": x, "y": y} for number, (x, y) in places.items()])

    def pinch(self, *fingers):
        """Two fingers, each from one place to another."""
        places = [{number: tuple(a + (b - a) * step / 14 for a, b in zip(begin, end))
                   for number, (begin, end) in enumerate(fingers)} for step in range(15)]
        self.fingers("Start", places[0])
        for place in places:
            self.fingers("Move", place)
            time.sleep(0.02)
        self.fingers("End", {})
