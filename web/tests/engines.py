#!/usr/bin/python3
"""Plays the start of a game in browsers other than Chromium.

    engines.py PAGE DIRECTORY    PAGE is a folder to serve

Leaves pictures of it in the directory.
"""
import os
import sys

sys.path[:0] = ["tools", "web/tests"]
from browser import require
from firefox import Firefox
from server import Server
from webkit import WebKit
from window import HEIGHT, WIDTH, differs, rgb, water


def visit(browser, server, directory):
    """Play, the title and its music, the field, a turret."""
    name = type(browser).__name__
    title = rgb("convert", "Assets/img/TitleScreen.jpg", "-resize", f"{WIDTH}x{HEIGHT}!")

    def hear(what):
        # Every piece of music begins softly, and has its rests.
        loudness = browser.wait_for(what, lambda: (level := browser.value("watch.loudness()")) > 0.001 and level)
        print(f"{name}: {what}, {loudness:.4f} of 1", flush=True)

    browser.open(server.address + "watched")
    browser.offered("play", "Play")
    browser.touch(*browser.place("play"))
    browser.until("the title", lambda p: differs(p, title) < 20)
    hear("the music of the title")
    browser.touch(*browser.on_canvas(500, 100))
    field = browser.until("the field", lambda p: differs(p, title) > 30 and water(p) > 300)
    hear("the music of the game")
    browser.until("another frame", lambda p: p != field)
    browser.touch(*browser.on_canvas(992, 600))
    browser.touch(*browser.on_canvas(640, 480))
    browser.until("a turret", lambda p: differs(p, field, 624, 272, 656, 304) > 15)
    browser.keep_page(os.path.join(directory, name + ".png"))
    complaints = browser.value("watch.complaints") + [f"missed: {path}" for path in server.missed]
    require(not complaints, f"{name} complained: {complaints}")


def main(page, directory):
    os.makedirs(directory, exist_ok=True)
    with Server(page) as server:
        for kind in Firefox, WebKit:
            with kind() as browser:
                visit(browser, server, directory)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
