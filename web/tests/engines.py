#!/usr/bin/python3
"""Plays the start of a game in browsers other than Chromium.

    engines.py PAGE DIRECTORY    PAGE is a folder to serve

Leaves pictures of it in the directory.
"""
import os
import sys

sys.path[:0] = ["tools", "web/tests"]
from firefox import Firefox
from server import Server
from watch import COMPLAINTS, EARS
from webkit import WebKit
from window import HEIGHT, WIDTH, differs, rgb, water

def visit(browser, server, directory):
    """Play, the title and its music, the field, a turret."""
    name = type(browser).__name__
    title = rgb("convert", "Assets/img/TitleScreen.jpg", "-resize", f"{WIDTH}x{HEIGHT}!")
    loudness = 0

    def hear(what):
        # Every piece of music begins softly, and has its rests.
        nonlocal loudness
        loudest = browser.wait_for(what, lambda: (level := browser.value("loudness()")) > 0.001 and level)
        loudness = max(loudness, loudest)

    browser.open(server.address)
    browser.offered("Play")
    browser.touch(*browser.place("start"))
    browser.until_canvas("the title", lambda p: differs(p, title) < 20)
    hear("the music of the title")
    browser.touch(*browser.on_canvas(500, 100))
    field = browser.until_canvas("the field", lambda p: differs(p, title) > 30 and water(p) > 300)
    hear("the music of the game")
    browser.until_canvas("another frame", lambda p: p != field)
    browser.touch(*browser.on_canvas(992, 600))
    browser.touch(*browser.on_canvas(640, 480))
    browser.until_canvas("a turret", lambda p: differs(p, field, 624, 272, 656, 304) > 15)
    file = os.path.join(directory, name + ".png")
    browser.keep_page(file)
    complaints = browser.complaints + browser.value("complaints") + [f"missed: {path}" for path in server.missed]
    if complaints:
        sys.exit(f"{name} complained:\n" + "\n".join(complaints))
    print(f"played in {name}, the music's loudest sample is {loudness:.4f} of 1", flush=True)


def main(page, directory):
    os.makedirs(directory, exist_ok=True)
    with Server(page, EARS + COMPLAINTS) as server:
        for kind in Firefox, WebKit:
            with kind() as browser:
                visit(browser, server, directory)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
