#!/usr/bin/python3
# The real program, seen and heard: a whole session, and games with broken files closed by their window.
#
#     endToEnd.py PROGRAM

import os
import pathlib
import shutil
import sys
import tempfile

sys.path.insert(0, "tools")
from session import play, play_shortly

# The mixer writes what it mixed, in real time.
DISK_AUDIO = {"SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIODELAY": "23"}


# The loudest sample of a recorded stream, of 32767.
def loudest(stream):
    with open(stream, "rb") as file:
        samples = file.read()
    return max(map(abs, memoryview(samples[: len(samples) // 2 * 2]).cast("h")), default=0)


# How loud a short game in a folder gets.
def loudest_of_a_game(program, directory, stream):
    play_shortly(program, directory, SDL_DISKAUDIOFILE=stream, **DISK_AUDIO)
    return loudest(stream)


program = os.path.abspath(sys.argv[1])
with tempfile.TemporaryDirectory() as scratch:
    song = os.path.join(scratch, "session.raw")
    play(program, os.path.join(scratch, "pictures"), SDL_DISKAUDIOFILE=song, **DISK_AUDIO)
    assert loudest(song) > 100, "the session was silent"

    # Nothing to load at all: white and silent.
    os.mkdir(nowhere := os.path.join(scratch, "nowhere"))
    assert loudest_of_a_game(program, nowhere, os.path.join(scratch, "nowhere.raw")) == 0

    # Without music the only sound is that of the turret; the other files are empty, cut or noise.
    shutil.copytree("Assets", os.path.join(broken := os.path.join(scratch, "broken"), "Assets"))
    shutil.rmtree(os.path.join(broken, "Assets/music"))
    for number, path in enumerate(sorted(pathlib.Path(broken, "Assets/img").iterdir())):
        whole = path.read_bytes()
        path.write_bytes([b"", whole[: len(whole) // 2], os.urandom(5000)][number % 3])
    assert loudest_of_a_game(program, broken, os.path.join(scratch, "broken.raw")) > 100, "the purchase was not heard"
