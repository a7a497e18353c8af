#!/usr/bin/python3
"""Records the game from the virtual display, and makes the pictures of README from it.

    record.py       makes docs/pictures/ anew, and build/record/play.mp4, the film with its sound

The stage sets up a wave close to its end; everything else is done with the pointer, as a player does it: a turret is bought
and placed, then the button is held and the pointer follows whoever is next to the tower. What comes between the first
volleys and the last grunts is cut out. Record while the machine has nothing else to do: the game keeps its pace then.
"""
import math
import os
import subprocess
import sys
import time

from Xlib import X, display
from Xlib.ext import xtest

from window import HEIGHT, WIDTH, Window, differs, water

SCENE, STAGE = "play4", "build/release/tools/vorel-stage"
GROUND = "9"                # a meadow around the tower and two beside it
TOWER = 512, HEIGHT - 352   # from here on y counts downwards, as the display does
SHOP = 992, HEIGHT - 600
PLACE = 720, 400            # for the turret that is bought
STARTS = 0.9                # seconds into the recording
PLACED = 1                  # seconds that are shown after the turret was placed,
FIGHT = 4.2                 # of the moments in which most grunts burst,
PANEL = 0.5, 3.3            # and before and after the panel shows
PICTURES_A_SECOND = 25
SECONDS_BETWEEN_SHOTS, VOLLEYS_ON_THEIR_WAY = 1, 3
FOLDER = "build/record"
BYTES_A_SECOND = 44100 * 2 * 2


class Hand:
    """The pointer, moved as a hand does."""

    def __init__(self, window):
        self.screen = display.Display(window.display)
        self.root = self.screen.screen().root
        self.place = 700, 300
        self.move(self.place)

    def move(self, place):
        self.place = place
        xtest.fake_input(self.screen, X.MotionNotify, x=round(place[0]), y=round(place[1]))
        self.screen.sync()

    def glide(self, goal, seconds):
        start, begin = self.place, time.monotonic()
        while (share := (time.monotonic() - begin) / seconds) < 1:
            share = share * share * (3 - 2 * share)
            self.move(tuple(a + (b - a) * share for a, b in zip(start, goal)))
            time.sleep(0.015)
        self.move(goal)

    def button(self, event):
        xtest.fake_input(self.screen, event, 1)
        self.screen.sync()

    def click(self):
        self.button(X.ButtonPress)
        time.sleep(0.08)
        self.button(X.ButtonRelease)

    def grunts(self):
        """Points of their hats: nothing else is violet."""
        pixels = self.root.get_image(0, 0, WIDTH, HEIGHT, X.ZPixmap, 0xFFFFFFFF).data
        for y in range(0, HEIGHT, 3):
            row = pixels[4 * WIDTH * y:4 * WIDTH * (y + 1)]
            for x, (blue, green, red) in enumerate(zip(row[0::12], row[1::12], row[2::12])):
                if blue > red > green + 25 and 60 < green < 140 and red > 100:
                    yield 3 * x, y


def aim(grunts, aimed):
    """Where the next volley goes: a little before the grunt next to the tower who has none on its way to him yet."""
    def near(one):
        return math.dist(one, TOWER)
    waiting = [grunt for grunt in grunts if all(math.dist(grunt, place) > 40 for place in aimed)]
    grunt = min(waiting or grunts, key=near)
    aimed.append(grunt)
    lead = min(0.3, 14 / max(1, near(grunt)))
    return tuple(a + (b - a) * lead for a, b in zip(grunt, TOWER))


def play(window, hand, field):
    """Buys and places a turret and fires until the panel shows; returns when it was placed, how much was to be
    seen of grunts when, and when the panel showed."""
    hand.glide(SHOP, 0.8)
    hand.click()
    time.sleep(0.2)
    hand.glide(PLACE, 0.9)
    time.sleep(0.3)
    hand.click()
    placed = time.monotonic()
    time.sleep(0.3)
    hand.button(X.ButtonPress)
    end, aimed, seen = time.monotonic() + 90, [], []
    while time.monotonic() < end:
        if grunts := list(hand.grunts()):
            seen.append((time.monotonic(), len(grunts)))
            volley = time.monotonic() + SECONDS_BETWEEN_SHOTS
            hand.glide(aim(grunts, aimed), 0.2)
            del aimed[:-VOLLEYS_ON_THEIR_WAY]
            time.sleep(max(0, volley - time.monotonic()))
        elif differs(window.look(), field, 200, 300, 400, 400) > 20:
            panel = time.monotonic()
            hand.button(X.ButtonRelease)
            hand.glide((512, 690), 0.6)
            return placed, seen, panel
    sys.exit("The wave did not end. Is the machine busy with something else?")


def ffmpeg(*words):
    subprocess.run(["ffmpeg", "-v", "error", "-y", *map(str, words)], check=True)


def record():
    """The whole recording, and the seconds after its start at which the turret was placed and the panel showed."""
    sound, pictures = os.path.abspath(f"{FOLDER}/sound.raw"), f"{FOLDER}/whole.mkv"
    with Window(STAGE, arguments=(SCENE, "200", f"{FOLDER}/last.bmp", GROUND), SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=sound,
                SDL_DISKAUDIODELAY="23") as window:
        field = window.until("the field", lambda picture: water(picture) > 200)
        hand = Hand(window)
        camera = subprocess.Popen(["ffmpeg", "-v", "error", "-y", "-f", "x11grab", "-framerate", str(PICTURES_A_SECOND),
                                   "-video_size", f"{WIDTH}x{HEIGHT}", "-i", window.display, "-c:v", "libx264",
                                   "-preset", "ultrafast", "-qp", "0", pictures], stdin=subprocess.PIPE)
        time.sleep(1)
        begun, heard_then = time.monotonic(), os.path.getsize(sound)
        placed, seen, panel = play(window, hand, field)
        time.sleep(PANEL[1] + 0.2)
        heard = os.path.getsize(sound)
        pace = (heard - heard_then) / BYTES_A_SECOND / (time.monotonic() - begun)
        camera.stdin.write(b"q")
        camera.stdin.flush()
        stopped = time.monotonic()
        camera.wait(20)
    shown = float(subprocess.check_output(["ffprobe", "-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                                           pictures]))
    # What writes the sound to a file keeps time less well than a sound card: its seconds are stretched to real ones.
    rate = round(44100 * pace)
    ffmpeg("-f", "s16le", "-ar", rate, "-ac", 2, "-ss", max(0, heard / (4 * rate) - shown), "-i", sound, "-i", pictures,
           "-c:v", "copy", "-ar", 44100, "-c:a", "flac", f"{FOLDER}/both.mkv")
    start = stopped - shown
    return f"{FOLDER}/both.mkv", placed - start, [(moment - start, hats) for moment, hats in seen], panel - start


def still():
    """The panel after a wave that went badly; it stays until someone clicks."""
    picture = f"{FOLDER}/panel.bmp"
    with Window(STAGE, arguments=("roundend3", "40", picture, GROUND), SDL_AUDIODRIVER="dummy") as window:
        window.ended(300)
    subprocess.run(["convert", picture, "-quality", "88", "docs/pictures/round-end-pollution.jpg"], check=True)


def cut(whole, placed, seen, panel):
    """The film: how the turret is bought, where the fight is fiercest, and the panel."""
    def burst(end):
        then, now = (min(seen, key=lambda one: abs(one[0] - moment))[1] for moment in (end - FIGHT, end))
        return then - now
    ends = [moment for moment, _ in seen if placed + PLACED + FIGHT < moment < panel - PANEL[0]]
    parts = [(STARTS, placed + PLACED), (panel - PANEL[0], panel + PANEL[1])]
    if ends:
        fiercest = max(ends, key=burst)
        parts.insert(1, (fiercest - FIGHT, fiercest))
    print("Shown of the recording, in seconds:", ", ".join(f"{begin:.1f} to {end:.1f}" for begin, end in parts))
    trims = "".join(f"[0:v]trim={begin}:{end},setpts=PTS-STARTPTS[v{i}];[0:a]atrim={begin}:{end},asetpts=PTS-STARTPTS[a{i}];"
                    for i, (begin, end) in enumerate(parts))
    names = "".join(f"[v{i}][a{i}]" for i in range(len(parts)))
    film = f"{FOLDER}/play.mp4"
    ffmpeg("-i", whole, "-filter_complex", f"{trims}{names}concat=n={len(parts)}:v=1:a=1[v][a]", "-map", "[v]", "-map", "[a]",
           "-c:v", "libx264", "-crf", 16, "-pix_fmt", "yuv420p", "-c:a", "aac", "-b:a", "160k", film)
    # The ground stands still: without dithering only what moves is stored anew. It would take all the colours for its
    # greens, too, so the grunts are shown for some seconds to whom chooses the colours.
    rate = "fps=16.667,scale=512:384:flags=lanczos,setsar=1,format=rgb24"
    ffmpeg("-i", film, "-loop", 1, "-t", 4, "-i", "Assets/img/VorelDefense_grunts.PNG", "-filter_complex",
           f"[0:v]{rate},split[a][b];[1:v]{rate}[grunts];[a][grunts]concat,palettegen=stats_mode=full[p];"
           "[b][p]paletteuse=dither=none:diff_mode=rectangle", "docs/pictures/play.gif")
    for file in ("docs/pictures/play.gif", film):
        print(f"{file}: {os.path.getsize(file) / 1e6:.2f} MB")


if __name__ == "__main__":
    os.chdir(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    subprocess.run(["tools/need", "build", "session", "record"], check=True)
    subprocess.run(["tools/buildPreset", "release", "--target", "vorel-stage"], check=True, stdout=subprocess.DEVNULL)
    os.makedirs(FOLDER, exist_ok=True)
    cut(*record())
    still()
