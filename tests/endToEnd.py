#!/usr/bin/python3
# Sees and hears the real program: a whole session, and games with broken files.
#
#     endToEnd.py PROGRAM

import pathlib
import shutil
import sys
import tempfile

sys.path.insert(0, "tools")
from session import play, play_shortly
from window import loudest_of

program = sys.argv[1]
with tempfile.TemporaryDirectory() as name:
    scratch = pathlib.Path(name)
    assert loudest_of(play, program, scratch / "pictures") > 100, "the session was silent"

    # Without any file the game is white and silent.
    (nowhere := scratch / "nowhere").mkdir()
    assert loudest_of(play_shortly, program, nowhere) == 0, "a sound from nowhere"

    # Without music the only sound is that of the turret; the pictures are empty, cut in half or noise.
    shutil.copytree("Assets", scratch / "Assets")
    shutil.rmtree(scratch / "Assets/music")
    for number, path in enumerate(sorted((scratch / "Assets/img").iterdir())):
        whole = path.read_bytes()
        path.write_bytes([b"", whole[: len(whole) // 2], b"noise" * 1000][number % 3])
    assert loudest_of(play_shortly, program, scratch) > 100, "the purchase was not heard"
