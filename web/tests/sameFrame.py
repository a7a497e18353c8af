#!/usr/bin/python3
"""Compares a frame with everything that the game draws, on the desktop and in the browser.

    sameFrame.py PAGE PROGRAM DIRECTORY    the stage, as a folder to serve and as a program of the desktop

Leaves both pictures, and where they differ, in the directory.
"""
import os
import subprocess
import sys

sys.path[:0] = ["tools", "web/tests"]
from browser import WATCH, require
from chromium import Chromium
from server import Server
from window import HEIGHT, WIDTH, Window, rgb

# Renderers round edges in their own ways, and GLU makes the sides of pictures powers of two, which blurs some. Neither
# changes the mean colour of a tile by more than 7 of 255.
TILE = 8  # pixels
MOST = 10  # of 255


def on_desktop(program, picture):
    with Window(program, arguments=["everything", "0.1", picture], SDL_AUDIODRIVER="dummy") as window:
        window.ended()


def in_browser(page, picture):
    with Server(page) as server, Chromium() as browser:
        browser.before(WATCH)
        browser.open(server.address + "?scene=everything")
        browser.play()
        browser.wait_for("the frame", lambda: browser.value("watch.frames > 5"))
        seen = browser.until("a frame that stays", lambda p: p == browser.look())
    subprocess.run(["convert", "-size", f"{WIDTH}x{HEIGHT}", "-depth", "8", "rgb:-", picture], input=seen, check=True)


def main(page, program, directory):
    os.makedirs(directory, exist_ok=True)
    desktop, browser, difference = (os.path.join(directory, f"everything-{name}") for name in (
        "desktop.bmp", "browser.png", "difference.png"))
    on_desktop(program, desktop)
    in_browser(page, browser)
    subprocess.run(["convert", desktop, browser, "-compose", "difference", "-composite", difference], check=True)
    across, down = WIDTH // TILE, HEIGHT // TILE
    tiles = [rgb("convert", picture, "-scale", f"{across}x{down}!") for picture in (desktop, browser)]
    differs = [abs(one - other) for one, other in zip(*tiles)]
    most = max(differs)
    place = differs.index(most) // 3
    print(f"differs by {most} of 255 at most, around {place % across * TILE}, {place // across * TILE}", flush=True)
    require(most <= MOST, f"The browser shows another picture; see {difference}")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
