"""The real program in its window on a virtual display, with real keys and clicks: what its window shows, and its sound."""
import os
import subprocess
import sys
import tempfile
import time

from Xlib import X, display, error, protocol

WIDTH, HEIGHT = 1024, 768


def rgb(*source):
    """The pixels that an ImageMagick command writes, row by row from the top."""
    return subprocess.run([*source, "-depth", "8", "rgb:-"], stdout=subprocess.PIPE, check=True).stdout


def differs(one, other, left=0, top=0, right=WIDTH, bottom=HEIGHT):
    """How much two pictures differ in a rectangle: the mean difference, from 0 to 255, of every fourth pixel and row."""
    places = [3 * (WIDTH * y + x) + part for y in range(top, bottom, 4) for x in range(left, right, 4) for part in range(3)]
    return sum(abs(one[place] - other[place]) for place in places) / len(places)


def water(picture):
    """How many rows of the gauge are blue."""
    def blue(x, y):
        red, green, blue = picture[3 * (WIDTH * y + x):][:3]
        return blue > 100 and blue > red + 60
    return sum(sum(blue(x, y) for x in range(8, 56, 4)) >= 6 for y in range(HEIGHT - 512, HEIGHT))


def loudest_of(game, *arguments):
    """The loudest sample, of 32767, that the mixer makes while `game` is played. SDL writes the mix to a file in real
    time."""
    with tempfile.NamedTemporaryFile() as stream:
        game(*arguments, SDL_AUDIODRIVER="disk", SDL_DISKAUDIODELAY="23", SDL_DISKAUDIOFILE=stream.name)
        samples = stream.read()
    return max(map(abs, memoryview(samples[: len(samples) // 2 * 2]).cast("h")), default=0)


class Window:
    """A virtual display with the program in its upper left corner. Both end with the `with` block."""

    def __init__(self, program, directory=".", arguments=(), screen=(WIDTH, HEIGHT), quiet=False,
                 **environment):
        output = subprocess.DEVNULL if quiet else None
        read, write = os.pipe()
        size = "x".join(map(str, (*screen, 24)))
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", size],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.display = ":" + number.readline().strip()
        os.environ["DISPLAY"] = self.display
        try:
            self.program = subprocess.Popen([os.path.abspath(program), *arguments], cwd=directory,
                                            stdout=output, stderr=output, env={**os.environ, **environment})
        except OSError as reason:  # the `with` block, which would end the display, never begins
            self.server.kill()
            self.server.wait()
            sys.exit(f"The program can't be started: {reason}")

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
            sys.exit(f"The program exited by itself, with exit status {self.program.returncode}.")
        return rgb("import", "-window", "root", "-crop", f"{WIDTH}x{HEIGHT}+0+0")

    def until(self, what, seen, seconds=60):
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
        """Closes the window like its close button."""
        screen, windows = self.windows()
        if not windows:
            sys.exit("There is no window to close: the program has ended.")
        wish = screen.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0
        windows[0].send_event(protocol.event.ClientMessage(
            window=windows[0], client_type=screen.intern_atom("WM_PROTOCOLS"), data=(32, wish)))
        screen.flush()

    def ended(self, seconds=60):
        if status := self.program.wait(seconds):
            sys.exit(f"The program ended with exit status {status}.")
