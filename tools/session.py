#!/usr/bin/python3
"""Plays the real program in its window, on a virtual display, with real keys and clicks.

    session.py PROGRAM DIRECTORY    one game from the title to its end; leaves pictures of it

The session waits for everything that must be seen. If the game does not show it, the session fails and says what is
missing.
"""
import os
import subprocess
import sys
import time

from window import HEIGHT, WIDTH, Window, differs, rgb, water


def play(program, directory, **environment):
    """One game in the program's own window."""
    with Window(program, **environment) as window:
        play_in(window, directory)
        window.do("key", "Escape")
        window.ended()


def play_in(window, directory):
    """One game: title, two turrets, fire, pause, the end of the wave or of the water, restart."""
    os.makedirs(directory, exist_ok=True)
    title = rgb("convert", "Assets/img/TitleScreen.jpg", "-resize", f"{WIDTH}x{HEIGHT}!")

    def on_title(picture):
        return differs(picture, title) < 10

    def keep(name, picture):
        file = os.path.join(directory, name + ".png")
        subprocess.run(["convert", "-size", f"{WIDTH}x{HEIGHT}", "-depth", "8", "rgb:-", file], input=picture, check=True)
        print(file, flush=True)

    keep("1-title", window.until("the title screen", on_title))

    window.do("key", "Return")
    window.do("mousemove", 500, 100)
    field = window.until("a full gauge beside the field", lambda p: not on_title(p) and water(p) > 310)
    keep("2-field", field)

    for x, y in ((640, 480), (640, 256)):
        window.click(992, 600)
        window.click(x, y)
    window.do("mousemove", 640, HEIGHT - 480)
    around = 700, 200, 860, 360
    keep("3-range", window.until("a turret and its range", lambda p: differs(p, field, 620, 270, 660, 300) > 15
                                 and 3 < differs(p, field, *around) < 60))

    window.do("mousemove", 800, HEIGHT - 368, "mousedown", 1)
    calm = window.look()
    keep("4-fire", window.until("jets, and the water falling", lambda p: water(p) < 300
                                and differs(p, calm, 660, 300, 790, 400) > 0.3))

    window.do("key", "space")
    still = window.until("the pause sign", lambda p: differs(p, field, 484, 356, 540, 410) > 15)
    time.sleep(0.5)
    if differs(still, window.look()) != 0:
        sys.exit("Something moved while the game was paused.")
    keep("5-pause", still)
    window.do("key", "space")
    window.until("the game going on", lambda p: water(p) < water(still) - 5)

    window.until("the round-end panel or the defeat", lambda p: differs(p, field, 200, 300, 820, 450) > 20, 300)
    time.sleep(2)
    keep("6-end", window.look())
    window.do("mouseup", 1, "key", "r")
    window.until("the title after a restart", on_title)


def play_shortly(program, directory, **environment):
    """A game that needs no file: leaves the title, buys a turret, and ends well when its window is closed."""
    with Window(program, directory, **environment) as window:
        # Before the first frame the window is black, and events would be kept until the loop begins: the one that closes
        # the window would come with the purchase.
        window.until("the first frame", any)
        window.do("key", "a")
        window.click(992, 600)
        window.click(640, 480)
        window.do("sleep", 3)  # on a busy machine the purchase may sound late
        window.close()
        window.ended()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    play(*sys.argv[1:])
