#!/usr/bin/python3
"""Plays the real program at random, with keys, clicks, wheel and motion, but never Escape; then closes its window.

    randomPlayer.py PROGRAM SECONDS [SEED]

Prints the resident memory, in kilobytes, some ten times on the way.
"""
import pathlib
import random
import subprocess
import sys
import time

from window import Window


def deed():
    """A few words for xdotool: one thing that a hand on a keyboard and a mouse may do."""
    place = ["mousemove", str(random.randrange(1024)), str(random.randrange(768))]
    return random.choice([
        ["key", random.choice(["space", "r", "a", "Return", "F1", "Left"])],
        [*place, "click", random.choice("111112345")],
        ["mousemove", "992", "168", "click", "1", *place, "click", "1"],  # buys a turret, or tries to
        [*place, random.choice(["mousedown", "mouseup"]), "1"],
    ])


def resident(process):
    """The memory that a process holds, in kilobytes."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return int(status.split("VmRSS:")[1].split()[0])


def main(program, seconds, seed="1"):
    random.seed(seed)
    with Window(program, SDL_AUDIODRIVER="dummy") as window:
        window.until("a window", lambda picture: window.windows()[1])
        for _ in range(10):
            end = time.monotonic() + float(seconds) / 10
            while time.monotonic() < end:
                subprocess.run(["xdotool", *deed()], check=True)
            print(resident(window.program), flush=True)
        window.close()
        window.ended()


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(*sys.argv[1:])
