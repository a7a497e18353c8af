#!/usr/bin/python3
"""Plays the game in a real browser, and looks at everything that a player meets there.

    tour.py PAGE PROGRAM DIRECTORY    PAGE is a folder to serve, PROGRAM the same game on the desktop

Leaves pictures of both in the directory.
"""
import os
import sys

sys.path[:0] = ["tools", "web/tests"]
from chromium import BAR, Chromium
from player import SHOT_SECONDS
from server import Server
from session import play, play_in
from visitor import require
from watch import SOUNDS
from window import HEIGHT, WIDTH, differs, rgb, water

# Written into every page before its own scripts: how far the music comes.
MUSIC = """
window.music = {};
const playMedia = HTMLMediaElement.prototype.play;
HTMLMediaElement.prototype.play = function () {
  this.ontimeupdate = () => {
    const file = new URL(this.src).pathname.split('/').pop();
    music[file] = Math.max(this.currentTime, music[file] || 0);
  };
  return playMedia.apply(this);
};
"""

# What a phone, a tablet, and desktops may be: width, height, pixels for each of them, fingers.
SIZES = [(360, 640, 3, True), (640, 360, 3, True), (768, 1024, 2, True), (1024, 768, 1, False), (1920, 1080, 1, False)]


def alike(directory):
    """The same picture in both: what is opaque in a picture of the game shows the same there, whatever ground it is on."""
    def shown(platform, name):
        return rgb("convert", os.path.join(directory, platform, name + ".png"))

    def opaque(picture, width, height):
        alpha = rgb("convert", "Assets/img/" + picture, "-resize", f"{width}x{height}!", "-alpha", "extract")
        return [alpha[3 * i] > 250 for i in range(width * height)]

    field = [shown(platform, "2-field") for platform in ("browser", "desktop")]
    title = [shown(platform, "1-title") for platform in ("browser", "desktop")]
    for what, pictures, mask, left, top, width, height in (
            ("the title", title, "TitleScreen.jpg", 0, 0, WIDTH, HEIGHT),
            ("the shop", field, "WeaponPanel_128x256.png", 896, 100, 128, 256),
            ("the gauge", field, "BottleGauge_128x1024.png", 0, 256, 64, 512),
            ("the tower", field, "VorelTower_front_128.PNG", 448, 352, 128, 128)):
        places = [3 * ((top + i // width) * WIDTH + left + i % width)
                  for i, solid in enumerate(opaque(mask, width, height)) if solid]
        difference = sum(abs(pictures[0][place + part] - pictures[1][place + part])
                         for place in places for part in range(3)) / (3 * len(places))
        print(f"{what}: differs by {difference:.2f} of 255 in {len(places)} pixels", flush=True)
        require(places and difference < 3, f"In the browser {what} looks different.")


def heard(browser):
    """The shot was played, and both pieces of music went on."""
    sounds, music = browser.value("[audio.begun, music]")
    print(f"heard: {len(sounds)} sounds, music {music}", flush=True)
    require(any(abs(sound["seconds"] - SHOT_SECONDS) < 0.001 for sound in sounds), "No shot was heard.")
    require(all(sound["state"] == "running" for sound in sounds), "Sounds are played, but the audio does not run.")
    require(len(music) == 2 and min(music.values()) > 0.5, "The music does not go on.")


def fits(browser, width, height, buttons):
    """The canvas is as large as can be and not distorted; every button is in the window, and nothing lies on it."""
    seen = browser.value("""(() => {
      const box = element => { const {left, top, right, bottom} = element.getBoundingClientRect(); return {left, top, right, bottom}; };
      return {
        canvas: box(document.getElementById('canvas')),
        drawn: [document.getElementById('canvas').width, document.getElementById('canvas').height],
        scrolls: document.documentElement.scrollWidth > innerWidth || document.documentElement.scrollHeight > innerHeight,
        buttons: %s.map(name => {
          const button = document.getElementById(name);
          const area = box(button);
          const top = document.elementFromPoint((area.left + area.right) / 2, (area.top + area.bottom) / 2);
          return {name, ...area, reached: button.contains(top)};
        })
      };
    })()""" % buttons)
    where = f"in a window of {width} x {height}: {seen}"
    canvas = seen["canvas"]
    across, down = canvas["right"] - canvas["left"], canvas["bottom"] - canvas["top"]
    require(abs(across / down - WIDTH / HEIGHT) < 0.01, "The canvas is distorted " + where)
    require(abs(seen["drawn"][0] / seen["drawn"][1] - WIDTH / HEIGHT) < 0.01, "What is drawn is distorted " + where)
    require(across > width - BAR - 1 or down > height - BAR - 1, "The canvas does not fill the window " + where)
    require(not seen["scrolls"], "The page scrolls " + where)
    for button in seen["buttons"]:
        inside = 0 <= button["left"] and button["right"] <= width and 0 <= button["top"] and button["bottom"] <= height
        large = min(button["right"] - button["left"], button["bottom"] - button["top"]) >= 44
        require(inside and large and button["reached"], f"{button['name']} can't be pressed {where}")


def set_size(browser, width, height, density, fingers):
    browser.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=density, mobile=fingers)
    browser.call("Emulation.setTouchEmulationEnabled", enabled=fingers)
    browser.wait_for("the new size", lambda: browser.value("innerWidth") == width and browser.value("innerHeight") == height)
    browser.value("new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done)))")


def sizes(browser, directory, name, buttons):
    for width, height, density, fingers in SIZES:
        set_size(browser, width, height, density, fingers)
        fits(browser, width, height, buttons)
        browser.keep_page(os.path.join(directory, f"{name}-{width}x{height}.png"))


def touched(browser, directory):
    """A game with fingers alone, on a phone: starts again, buys a turret, fires, pauses by the button, restarts."""
    set_size(browser, *SIZES[0])
    browser.touch(*browser.place("start"))
    title = rgb("convert", "Assets/img/TitleScreen.jpg", "-resize", f"{WIDTH}x{HEIGHT}!")

    browser.until_canvas("the title, on a phone", lambda p: differs(p, title) < 20)
    browser.touch(*browser.on_canvas(500, 100))
    field = browser.until_canvas("the field, on a phone", lambda p: differs(p, title) > 30 and water(p) > 300)
    browser.touch(*browser.on_canvas(992, 600))
    browser.touch(*browser.on_canvas(640, 480))
    browser.until_canvas("a turret that a finger placed", lambda p: differs(p, field, 624, 272, 656, 304) > 15)
    browser.press(*browser.on_canvas(800, 400))
    browser.until_canvas("the water that a finger fires", lambda p: 0 < water(p) < 300)
    browser.lift(*browser.on_canvas(800, 400))
    browser.keep_page(os.path.join(directory, "finger.png"))
    browser.touch(*browser.place("pause"))
    browser.until_canvas("the pause sign, by its button", lambda p: differs(p, field, 484, 356, 540, 410) > 15)
    require(browser.value("[scrollX, scrollY, visualViewport.scale].join()") == "0,0,1", "The page moved under the finger.")
    browser.touch(*browser.place("restart"))
    browser.touch(*browser.place("again"))
    browser.until_canvas("the title, by the button", lambda p: differs(p, title) < 20)


def main(page, program, directory):
    os.environ["SDL_AUDIODRIVER"] = "dummy"
    os.makedirs(directory, exist_ok=True)
    play(program, os.path.join(directory, "desktop"))

    with Server(page) as server, Chromium() as browser:
        browser.call("Page.addScriptToEvaluateOnNewDocument", source=SOUNDS + MUSIC)
        browser.open(server.address)
        sizes(browser, directory, "front", ["start"])
        set_size(browser, WIDTH + BAR, HEIGHT, 1, False)
        browser.start()
        browser.wait_for("the music of the title", lambda: browser.value("Object.values(music).some(time => time > 0.5)"))
        play_in(browser, os.path.join(directory, "browser"))
        heard(browser)
        alike(directory)

        touched(browser, directory)
        sizes(browser, directory, "game", ["pause", "restart", "sound", "full"])
        require(not browser.complaints, "The browser complained:\n" + "\n".join(browser.complaints))
    print("The game in the browser is as it should be.")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
