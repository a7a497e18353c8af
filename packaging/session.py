#!/usr/bin/python3
"""Plays the real program through its window, on a virtual display, with real keys and clicks.

    session.py PROGRAM DIRECTORY    one game from the title to its end; leaves pictures of it

What must be seen is waited for, so the session fails, and says at what, when the game does not show it.
"""
import os
import subprocess
import sys
import time

from Xlib import X, display, error, protocol

WIDTH, HEIGHT = 1024, 768


def rgb(*source):
    """The pixels that an ImageMagick command writes, row by row from the top."""
    return subprocess.run([*source, "-depth", "8", "rgb:-"], stdout=subprocess.PIPE, check=True).stdout


def differs(one, other, left=0, top=0, right=WIDTH, bottom=HEIGHT):
    """How much two pictures differ in a rectangle, as the mean of 0 to 255; looks at every fourth pixel and row."""
    places = [3 * (WIDTH * y + x) + part for y in range(top, bottom, 4) for x in range(left, right, 4) for part in range(3)]
    return sum(abs(one[place] - other[place]) for place in places) / len(places)


def water(picture):
    """The rows of the gauge that are blue."""
    def blue(x, y):
        red, green, blue = picture[3 * (WIDTH * y + x):][:3]
        return blue > 100 and blue > red + 60
    return sum(sum(blue(x, y) for x in range(8, 56, 4)) >= 6 for y in range(HEIGHT - 512, HEIGHT))


class Window:
    """A virtual display with the program in it; both end with the `with` block."""

    def __init__(self, program, directory=".", **environment):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", f"{WIDTH}x{HEIGHT}x24"],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        self.display = ":" + os.read(read, 16).decode().strip()
        os.environ["DISPLAY"] = self.display
        self.program = subprocess.Popen([os.path.abspath(program)], cwd=directory, env={**os.environ, **environment})

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in (self.program, self.server):
            process.kill()
            process.wait()

    def do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], check=True)
        time.sleep(0.1)

    def click(self, x, y):
        """Clicks at a point of the window, y upwards as the game counts."""
        self.do("mousemove", x, HEIGHT - y, "click", 1)

    def look(self):
        if self.program.poll() is not None:
            sys.exit(f"The program ended by itself with status {self.program.returncode}.")
        return rgb("import", "-window", "root")

    def until(self, what, seen, seconds=20):
        """Waits until a picture of the window satisfies `seen`, and returns it."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            picture = self.look()
            if seen(picture):
                return picture
            time.sleep(0.1)
        sys.exit(f"Not seen within {seconds} seconds: {what}")

    def windows(self):
        """The connection to the display, and its windows that have a name."""
        def name(window):
            try:
                return window.get_wm_name()
            except error.BadWindow:  # gone since it was listed
                return None
        screen = display.Display(self.display)
        return screen, [window for window in screen.screen().root.query_tree().children if name(window)]

    def close(self):
        """Closes the window as its own button does."""
        screen, windows = self.windows()
        wish = screen.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0
        windows[0].send_event(protocol.event.ClientMessage(
            window=windows[0], client_type=screen.intern_atom("WM_PROTOCOLS"), data=(32, wish)))
        screen.flush()

    def ended(self):
        if status := self.program.wait(20):
            sys.exit(f"The program ended with status {status}.")


def play(program, directory, **environment):
    """One game: title, two turrets, fire, pause, the end of the wave or of the water, restart, quit."""
    os.makedirs(directory, exist_ok=True)
    title = rgb("convert", "Assets/img/TitleScreen.jpg", "-resize", f"{WIDTH}x{HEIGHT}!")

    def on_title(picture):
        return differs(picture, title) < 10

    def keep(name, picture):
        file = os.path.join(directory, name + ".png")
        subprocess.run(["convert", "-size", f"{WIDTH}x{HEIGHT}", "-depth", "8", "rgb:-", file], input=picture, check=True)
        print(file, flush=True)

    with Window(program, **environment) as window:
        keep("1-title", window.until("the title screen", on_title))

        window.do("key", "Return")
        window.do("mousemove", 500, 100)
        field = window.until("a full gauge beside the field", lambda p: not on_title(p) and water(p) > 310)

        for x, y in ((640, 480), (640, 256)):
            window.click(992, 600)
            window.click(x, y)
        window.do("mousemove", 640, HEIGHT - 480)
        around = 700, 200, 860, 360
        keep("2-range", window.until("a turret and its range", lambda p: differs(p, field, 620, 270, 660, 300) > 15
                                     and 3 < differs(p, field, *around) < 60))

        window.do("mousemove", 800, HEIGHT - 368, "mousedown", 1)
        calm = window.look()
        keep("3-fire", window.until("jets, and the water falling", lambda p: water(p) < 300
                                    and differs(p, calm, 660, 300, 790, 400) > 0.3))

        window.do("key", "space")
        still = window.until("the pause sign", lambda p: differs(p, field, 484, 356, 540, 410) > 15)
        time.sleep(0.5)
        if differs(still, window.look()) != 0:
            sys.exit("Something moved while the game was paused.")
        keep("4-pause", still)
        window.do("key", "space")
        window.until("the game going on", lambda p: water(p) < water(still) - 5)

        window.until("the round-end panel or the defeat", lambda p: differs(p, field, 200, 300, 820, 450) > 20, 150)
        time.sleep(2)
        keep("5-end", window.look())
        window.do("mouseup", 1, "key", "r")
        window.until("the title after a restart", on_title)
        window.do("key", "Escape")
        window.ended()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    play(*sys.argv[1:])
