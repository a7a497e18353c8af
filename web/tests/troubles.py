#!/usr/bin/python3
"""Gives the page trouble in Chromium, and looks at what its player meets then.

    troubles.py PAGE DIRECTORY [WORD]    PAGE is a folder to serve; with a word only troubles that have it in their name

Leaves pictures in the directory.
"""
import pathlib
import shutil
import sys
import tempfile
import time

sys.path[:0] = ["tools", "web/tests"]
from browser import Refusal, Wrong, require
from chromium import BAR
from player import AIM, LEFT, PLACE, PURCHASE, RIGHT, SHOP, Player
from server import Server
from session import play_in
from window import HEIGHT, WIDTH

# What a phone, a tablet, and desktops may be: width, height, pixels for each of them, fingers.
SIZES = [(360, 640, 3, True), (640, 360, 3, True), (768, 1024, 2, True), (1024, 768, 1, False), (1920, 1080, 1, False)]

TROUBLE = (pathlib.Path(__file__).parent / "trouble.js").read_text(encoding="utf-8")
TROUBLES = []


def trouble(done, seen):
    """A row of the table: what is done to the page, and what must be seen then."""
    def add(row):
        TROUBLES.append((done, seen, row))
        return row
    return add


# Faults of others, and ours.

@trouble("sound, music, full screen and its direction are refused",
         "the game goes on, no word is said, every promise is answered")
def refused(page):
    page.before("trouble.refuse()")
    page.title()
    page.click("full")
    page.key("a", "KeyA")
    page.click_at(*page.on_canvas(*AIM))
    time.sleep(0.5)
    page.goes_on()
    with page.another_tab():
        time.sleep(0.3)
    page.click("goOn")
    page.goes_on()
    require("failed" not in page.text(), page.text())
    require(not page.complaints, page.complaints)


def ended_properly(page, *words):
    """The words stand, the button has the focus, and nothing goes on behind them or writes over them."""
    page.says(*words)
    page.offered("reload", "Load again")
    require(page.value("document.activeElement.id") == "reload", "The button has no focus.")
    page.is_silent()
    page.stands()
    page.value("document.activeElement.blur()")
    begun = page.value("watch.begun.length")
    page.key("a", "KeyA")
    page.escape()
    page.stands()
    page.says(*words)
    require(page.value("watch.begun.length") == begun, "A sound behind the words.")
    loads_again(page)


def loads_again(page):
    page.offered("reload", "Load again")
    page.value("window.old = true")
    page.click("reload")
    page.wait_for("the page loaded again", lambda: page.value("window.old") is None)
    page.offered("play", "Play")


@trouble("the program fails in a frame",
         "the error's text and the version; nothing behind it; the page can be loaded again")
def fault(page):
    page.field()
    page.is_loud()
    version = page.value("document.querySelector('footer').textContent.match(/[0-9.]+/)[0]")
    page.value("watch.fault = 'out of paint'")
    ended_properly(page, "out of paint", version)


LOSE = """window.graphics = document.getElementById('canvas').getContext('webgl2').getExtension('WEBGL_lose_context'),
  graphics.loseContext()"""


@trouble("the graphics are lost and come back", "the game waits, and goes on where it was")
def graphics_back(page):
    page.turret()
    page.goes_on()
    before = page.look()
    page.value(LOSE)
    page.says("graphics")
    page.stands()
    page.value("graphics.restoreContext()")
    page.asks()
    page.click("goOn")
    page.goes_on()
    page.is_loud()
    after = page.look()
    wrong = sum(abs(one - other) > 30 for one, other in zip(before, after)) / len(before)
    require(wrong < 0.01, f"{wrong:.1%} of the picture has changed.")
    page.hold_fire()
    page.fires()


@trouble("the graphics are lost and stay away", "says so; nothing behind the words; the page can be loaded again")
def graphics_lost(page):
    page.field()
    page.is_loud()
    page.value(LOSE)
    ended_properly(page, "graphics", "did not restore")


@trouble("the page is opened as a file", "says that it needs a web server")
def as_file(page):
    page.open(f"file://{pathlib.Path(page.server.folder).absolute()}/index.html")
    page.says("server")
    require("Loading" not in page.text(), "Loads for ever.")


for missing in "page.js", "sound.js", "vorel-defense.wasm", "PauseButton_64":
    @trouble(f"{missing} does not arrive", "says so, and the page can be loaded again")
    def not_arrived(page, missing=missing):
        page.block(f"*{missing}*")
        page.visit()
        page.says("did not load")
        page.block()
        loads_again(page)


for what, script, words in (
        ("an old browser without Array.prototype.at", "delete Array.prototype.at", "too old"),
        ("an old browser without modules", "delete HTMLScriptElement.prototype.noModule", "too old"),
        ("a browser without WebAssembly", "delete window.WebAssembly", "no WebAssembly"),
        ("a browser that forbids WebAssembly", "WebAssembly.Module = () => { throw new Error(); }",
         "no WebAssembly"),
        ("a browser without WebGL 2", "HTMLCanvasElement.prototype.getContext = () => null", "no WebGL 2")):
    @trouble(what, f"says: {words}")
    def lacking(page, script=script, words=words):
        page.before(script)
        page.visit()
        page.wait_for("an answer", lambda: words in page.text() or page.reached("play"))
        if words not in page.text():
            page.play()
        page.says(words)
        require("failed" not in page.text() and "did not load" not in page.text(), page.text())


@trouble("a browser can't open sound", "the game is played in silence, twice")
def no_sound(page):
    page.before("window.AudioContext = class { constructor() { throw new Error('no sound'); } };")
    page.turret()
    page.goes_on()
    page.escape()
    page.asks()
    page.click("leave")
    page.offered("play", "Play again")
    page.click("play")
    page.goes_on()


# Hands.

@trouble("Escape is pressed once too often, and Restart by a slip", "the game asks, and goes on")
def slips(page):
    page.turret()
    page.escape()
    page.asks()
    page.escape()
    page.escape()
    page.asks()
    page.click("goOn")
    page.hold_fire()
    page.fires()
    page.mouse("Released", *page.on_canvas(*AIM))
    restart = page.place("restart")
    page.click_at(*restart)
    page.click_at(*restart)
    page.asks()
    page.click("goOn")
    page.hold_fire()
    page.fires()


@trouble("the question is answered with Restart", "the game begins again")
def start_over(page):
    page.turret()
    page.click("restart")
    page.asks()
    page.click("startOver")
    page.goes_on()
    page.hold_fire()  # leaves the title
    page.is_still()


@trouble("Pause and Restart are pressed on the title", "it stays, and so does its music")
def buttons_on_title(page):
    page.title()
    page.wait_for("its music", lambda: page.value("watch.music?.currentTime > 1"))
    before = page.value("watch.music.src")
    page.click("pause")
    page.click("restart")
    page.goes_on()
    src, seconds = page.value("[watch.music.src, watch.music.currentTime]")
    require(src == before and seconds > 1, f"{src} at {seconds} s instead of {before}")


@trouble("a turret is selected, and the left button pressed beside the canvas that the right one holds",
         "nothing is bought")
def purchase_beside(page):
    page.turret()
    page.hold_fire()
    page.fires()
    page.mouse("Released", *page.on_canvas(*AIM))
    bought = page.heard(PURCHASE)
    page.click_at(*page.on_canvas(*SHOP))
    page.mouse("Pressed", *page.on_canvas(300, 300), button=RIGHT, held=RIGHT)
    page.mouse("Moved", 690, 470, button=RIGHT, held=RIGHT)
    page.mouse("Pressed", 690, 470, button=LEFT, held=LEFT | RIGHT)
    page.mouse("Released", 690, 470, button=LEFT, held=RIGHT)
    page.mouse("Released", 690, 470, button=RIGHT)
    time.sleep(1)
    require(page.heard(PURCHASE) == bought, "A turret is bought.")
    page.click_at(*page.on_canvas(400, 300))
    page.wait_for("a purchase on the field", lambda: page.heard(PURCHASE) == bought + 1)


@trouble("a thumb rests beside the canvas", "another finger plays")
def thumb(page):
    page.title()
    left, top, width, height = page.area("canvas")
    beside = {1: (left + width + 10, top + height - 10)}
    page.fingers("Start", beside)
    for place in PLACE, SHOP, PLACE:
        page.fingers("Start", {2: page.on_canvas(*place)})
        page.fingers("End", {2: page.on_canvas(*place)})
    page.fingers("Start", {2: page.on_canvas(*AIM)})
    page.fires()
    page.fingers("End", {2: page.on_canvas(*AIM)})
    page.is_still()


@trouble("a second finger comes on the canvas and goes", "the first one fires on, until it is lifted")
def second_finger(page):
    page.turret()
    first, second = {1: page.on_canvas(*AIM)}, {2: page.on_canvas(300, 300)}
    page.fingers("Start", first)
    page.fires()
    page.fingers("Start", second)
    page.fires()
    page.fingers("End", second)
    page.fires()
    page.fingers("End", first)
    page.is_still()


@trouble("the pointer that fires is taken from the canvas", "the fire ends")
def lost_pointer(page):
    page.before("addEventListener('pointerdown', event => window.pointer = event.pointerId, true)")
    page.turret()
    page.hold_fire()
    page.mouse("Moved", *page.on_canvas(*AIM), held=LEFT)
    page.fires()
    page.value("document.getElementById('canvas').releasePointerCapture(pointer)")
    page.mouse("Moved", 690, 470, held=LEFT)
    page.mouse("Released", 690, 470)
    page.is_still()


@trouble("two fingers close on the canvas of a page that is enlarged", "it becomes smaller again")
def pinch_out(page):
    page.resize(360, 640)
    page.title()
    page.call("Emulation.setPageScaleFactor", pageScaleFactor=2)
    page.wait_for("a page that is enlarged", lambda: page.value("visualViewport.scale") == 2)
    page.pinch(((20, 320), (160, 320)), ((340, 320), (200, 320)))
    page.wait_for("its usual size", lambda: page.value("visualViewport.scale") == 1)


# Leaving and coming back.

@trouble("another tab is looked at, and the window becomes smaller", "the game rests, silent, and waits for Go on")
def away(page):
    page.field()
    page.is_loud()
    with page.another_tab():
        page.stands()
        page.is_silent()
    page.asks()
    page.is_silent()
    page.resize(600, 420)
    below = page.look()[3 * WIDTH * 700:]
    require(sum(below) / len(below) > 20, "The field is black behind the question.")
    page.click("goOn")
    page.goes_on()
    page.is_loud()


@trouble("a call interrupts the sound for ever", "Go on brings it back, the music at its place")
def new_context(page):
    page.turret()
    page.is_loud()
    page.wait_for("a place in the music", lambda: page.value("watch.music.currentTime > 2"))
    page.value("trouble.interrupt()")
    with page.another_tab():
        page.stands()
    page.asks()
    page.click("goOn")
    page.is_loud()
    require(page.value("watch.music.currentTime > 2"), "The music begins again.")
    page.hold_fire()
    page.fires()
    require(page.value("watch.begun[watch.begun.length - 1].state") == "running", "No shot is heard.")


for what, action in (
        ("a click", lambda page: page.click_at(*page.on_canvas(*AIM))),
        ("a key", lambda page: page.key("a", "KeyA")),
        ("a finger", lambda page: page.touch(*page.on_canvas(*AIM)))):
    @trouble(f"sound is taken away, and may come back with {what}", "it comes back")
    def woken(page, action=action):
        page.before("trouble.resumeOnPress()")
        page.title()
        page.is_loud()
        page.value("trouble.refusing = true, watch.contexts[0].suspend()")
        page.is_silent()
        time.sleep(0.5)
        action(page)
        page.is_loud()


@trouble("the sound is switched off, and the page loaded again",
         "it is off, and no music is fetched, until it is switched on")
def mute(page):
    page.title()
    page.is_loud()
    page.click("sound")
    page.is_silent()
    page.title()
    require(page.value("document.getElementById('sound').getAttribute('aria-pressed')") == "false",
            "The button says that it is on.")
    time.sleep(2)
    page.is_silent()
    music = page.value("performance.getEntriesByType('resource').map(({name}) => name).filter(name => /mp3/.test(name))")
    require(not music, f"Fetched: {music}")
    page.click("sound")
    page.is_loud()


# A bad line.

@trouble("the picture of the front is on its way for long", "no other file of the game is asked for before it is there")
def picture_first(page):
    page.hold("*/front-*")
    page.visit()
    page.is_asked_for("the picture")
    time.sleep(1)
    asked = page.value("""performance.getEntriesByType('resource').map(({name}) => new URL(name).pathname)
      .filter(path => /Assets|wasm/.test(path))""")
    require(not asked, asked)
    page.release()
    page.offered("play", "Play")


@trouble("the picture of the front never arrives", "the game can be played all the same")
def no_front_picture(page):
    page.hold("*/front-*")
    page.visit()
    page.play()
    require(page.held, "It was not asked for.")


@trouble("a piece of music is asked for while the line is down", "it is asked for again at the next press")
def no_music(page):
    page.title()
    page.is_loud()
    page.block("*.mp3*")
    page.key("a", "KeyA")
    page.is_silent()
    page.block()
    page.click_at(*page.on_canvas(*AIM))
    page.is_loud()


@trouble("the sounds do not arrive at first", "the game goes on, and asks again")
def no_sounds(page):
    page.block("*/sfx/*")
    page.turret()
    time.sleep(1)
    page.goes_on()
    require("did not load" not in page.text(), page.text())
    page.block()
    page.hold_fire()
    page.fires()


# Other pages and other builds.

@trouble("the reader of a page around the game types while the game is loaded", "every key goes to the reader's field")
def reader(page):
    page.hold("*.wasm*")
    page.visit_in_frame()
    left, top = page.value_around("(({x, y}) => [x, y])(document.getElementById('reader').getBoundingClientRect())")
    page.click_at(left + 5, top + 5)
    page.key("a", "KeyA")
    page.is_asked_for("the program")
    page.release()
    page.wait_for("Play", lambda: page.value("document.getElementById('play').textContent") == "Play")
    page.key("b", "KeyB")
    text, scrolled = page.value_around("[document.getElementById('reader').value, scrollY]")
    require((text, scrolled) == ("ab", 0), f"The field has '{text}', and the page is scrolled by {scrolled}.")


@trouble("the game in a frame is scrolled out of sight", "it rests, silent, takes no key, and waits for Go on")
def out_of_sight(page):
    page.visit_in_frame()
    page.value_around("document.querySelector('iframe').scrollIntoView()")
    page.play()
    page.goes_on()
    page.is_loud()
    page.value_around("scrollTo(0, 0), document.getElementById('reader').focus()")
    page.is_silent()
    page.stands()
    page.key("a", "KeyA")
    text, scrolled = page.value_around("[document.getElementById('reader').value, scrollY]")
    require((text, scrolled) == ("a", 0), f"The field has '{text}', and the page is scrolled by {scrolled}.")
    page.value_around("document.querySelector('iframe').scrollIntoView()")
    page.asks()
    page.click("goOn")
    page.goes_on()
    page.is_loud()


@trouble("the game is in a frame that has no origin, and may keep nothing", "it is played and heard")
def sandboxed(page):
    page.visit_in_frame("allow-scripts")
    page.value_around("document.querySelector('iframe').scrollIntoView()")
    page.play()
    page.goes_on()
    page.is_loud()
    page.key("a", "KeyA")
    page.buy()
    page.hold_fire()
    page.fires()
    page.mouse("Released", *page.on_canvas(*AIM))
    page.click("sound")
    page.is_silent()
    require(not page.complaints, page.complaints)


@trouble("a release comes while the page is loaded", "the page goes on with the files of its own build")
def release(page):
    own = page.server.folder
    with tempfile.TemporaryDirectory() as site:
        # A release takes no file from the folders of other builds.
        shutil.copytree(own, site, dirs_exist_ok=True)
        for file in "index.html", "page.js", "vorel-defense.js":
            pathlib.Path(site, file).write_text("throw new Error('another build');", encoding="utf-8")
        page.hold("*vorel-defense.js*")
        page.visit()
        page.is_asked_for("the program")
        page.server.folder = site
        try:
            page.release()
            page.play()
            page.goes_on()
        finally:
            page.server.folder = own


# The canvas.

def fits(page, width, height):
    """The canvas is as large as can be and not distorted; every button is in the window, and nothing lies on it."""
    left, top, across, down = page.area("canvas")
    drawn, scrolls = page.value("""(({width, height}, {scrollWidth, scrollHeight}) =>
      [width / height, scrollWidth > innerWidth || scrollHeight > innerHeight])
      (document.getElementById('canvas'), document.documentElement)""")
    require(abs(across / down - WIDTH / HEIGHT) < 0.01 and abs(drawn - WIDTH / HEIGHT) < 0.01, "Distorted")
    require(across > width - BAR - 1 or down > height - BAR - 1, f"The canvas has only {across} x {down} pixels.")
    require(not scrolls, "The page scrolls.")
    for button in "pause", "restart", "sound", "full":
        left, top, across, down = page.area(button)
        inside = left >= 0 and top >= 0 and left + across <= width and top + down <= height
        require(inside and min(across, down) >= 44 and page.reached(button), f"{button} can't be pressed.")


for size in SIZES:
    @trouble("the window has {} x {} points of {} x {} pixels".format(*size[:3], size[2]),
             "the front and the game fit in, and a finger can press what is there")
    def sizes(page, size=size):
        width, height, density, fingers = size
        page.resize(width, height, density, mobile=fingers)
        page.visit()
        page.offered("play", "Play")
        page.keep_page(f"{page.pictures}/front-{width}x{height}.png")
        page.touch(*page.place("play"))
        page.goes_on()
        fits(page, width, height)
        require(page.value("document.getElementById('canvas').width") >= page.area("canvas")[2] * min(density, 2),
                "The canvas has too few pixels.")
        page.keep_page(f"{page.pictures}/game-{width}x{height}.png")


@trouble("a whole game is played, with keys and mouse", "everything is seen that the program's own window shows")
def whole_game(page):
    page.call("Emulation.clearDeviceMetricsOverride")
    page.title()
    play_in(page.window, page.pictures)
    page.window.do("key", "Escape")
    page.asks()
    page.click("leave")
    page.offered("play", "Play again")
    require(not page.complaints, page.complaints)


@trouble("a display has a notch and round corners", "canvas and buttons keep clear of them")
def notch(page):
    insets = {"top": 10, "left": 44, "bottom": 21, "right": 44}
    page.call("Emulation.setSafeAreaInsetsOverride", insets=insets)
    page.resize(640, 360)
    page.title()
    for element in "canvas", "pause", "restart", "sound", "full":
        left, top, width, height = page.area(element)
        require(left >= 44 and top >= 10 and left + width <= 640 - 44 and top + height <= 360 - 21,
                f"{element} lies at {left}, {top}, {width} x {height}.")


def main(folder, pictures, word=""):
    met = failed = 0
    pathlib.Path(pictures).mkdir(parents=True, exist_ok=True)
    with Server(folder) as server, Player(server, pictures) as page:
        for done, seen, row in TROUBLES:
            if word not in row.__name__ + done + seen:
                continue
            met += 1
            begin = time.monotonic()
            page.renew()
            page.before(TROUBLE)
            try:
                row(page)
                how = "as it should be"
            except (Refusal, Wrong) as reason:
                failed += 1
                how = f"WRONG: {reason}"
            print(f"{done} -> {seen}: {how} ({time.monotonic() - begin:.1f} s)", flush=True)
    if met == 0:
        sys.exit(f"No trouble has '{word}' in its name.")
    if failed:
        sys.exit(f"{failed} troubles are not met.")


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(*sys.argv[1:])
