#!/usr/bin/python3
"""Plays at random, with keys, clicks, wheel and motion, but never Escape.

    randomPlayer.py PROGRAM SECONDS [SEED]    the real program, whose window is closed at the end
    randomPlayer.py PAGE SECONDS [SEED]       the game in a browser; PAGE is the folder that web/build made

Prints twenty times how many bytes of memory are in use. Fails if that grows after the first tenth of the time, or if the
browser reports an error.
"""
import os
import pathlib
import random
import subprocess
import sys
import time

from window import Window

# Keeps a reference to the game's memory, as there is no other way to learn its size, and counts the frames.
MEMORY = """
window.drawn = 0;
const request = window.requestAnimationFrame;
window.requestAnimationFrame = next => request(time => {
  ++window.drawn;
  next(time);
});
const instantiate = WebAssembly.instantiate;
WebAssembly.instantiate = async (...given) => {
  const made = await instantiate.apply(WebAssembly, given);
  window.memory = Object.values((made.instance || made).exports).find(part => part instanceof WebAssembly.Memory);
  return made;
};
"""


def action():
    """One thing that a player may do with keyboard and mouse, as arguments of xdotool. No key that a browser uses itself,
    such as F1, is among them."""
    place = ["mousemove", str(random.randrange(1024)), str(random.randrange(768))]
    return random.choice([
        ["key", random.choice(["space", "r", "a", "Return", "F2", "Left"])],
        [*place, "click", random.choice("111112345")],
        ["mousemove", "992", "168", "click", "1", *place, "click", "1"],  # buys a turret, or tries to
        [*place, random.choice(["mousedown", "mouseup"]), "1"],
    ])


def keep_acting(seconds, held, **allowed):
    """`held` returns the bytes in use, a figure for each name in `allowed`, which gives the factor by which it may grow."""
    figures = []
    for _ in range(20):
        end = time.monotonic() + float(seconds) / 20
        while time.monotonic() < end:
            subprocess.run(["xdotool", *action()], check=True)
        figures.append(held())
        print(*figures[-1], flush=True)
    for (name, factor), course in zip(allowed.items(), zip(*figures[2:])):
        if sum(course[-5:]) > factor * sum(course[:5]):
            sys.exit(f"The memory of the {name} grows.")


def in_window(program, seconds):
    with Window(program, SDL_AUDIODRIVER="dummy") as window:
        def held():
            status = pathlib.Path(f"/proc/{window.program.pid}/status").read_text()
            return [1024 * int(status.split("VmRSS:")[1].split()[0])]
        window.until("a window", lambda picture: window.windows()[1])
        keep_acting(seconds, held, program=1.1)
        window.close()
        window.ended()


def in_browser(page, seconds):
    sys.path.append("web/tests")
    from chromium import Chromium  # needs more packages than a player of the program has
    from server import Server
    with Server(page) as server, Chromium() as browser:
        def held():
            if browser.value("document.hidden || !document.getElementById('front').hidden"):
                sys.exit("The game is no longer visible.")
            browser.call("HeapProfiler.collectGarbage")
            print(browser.value("drawn"), "frames:", end=" ")
            return browser.call("Runtime.getHeapUsage")["usedSize"], browser.value("memory.buffer.byteLength")
        browser.before(MEMORY)
        browser.open(server.address)
        browser.play()
        browser.wait_for("the game", lambda: browser.value("Boolean(window.memory)"))
        keep_acting(seconds, held, page=1.1, game=1)
        if browser.complaints:
            sys.exit("The browser complained:\n" + "\n".join(browser.complaints))


def main(game, seconds, seed="1"):
    random.seed(seed)
    (in_browser if os.path.isdir(game) else in_window)(game, seconds)
    print("No memory grows.")


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(*sys.argv[1:])
