#!/usr/bin/python3
"""Sees and hears the real program.

    endToEnd.py PROGRAM SCENE    wholeSession, noFiles or brokenFiles
"""
import pathlib
import shutil
import sys
import tempfile

sys.path.insert(0, "tools")
from session import play, play_shortly
from window import loudest_of


def wholeSession(program, scratch):
    assert loudest_of(play, program, scratch / "pictures") > 100, "the session was silent"


def noFiles(program, scratch):
    """Without any file the game is white and silent."""
    assert loudest_of(play_shortly, program, scratch) == 0, "a sound from nowhere"


def brokenFiles(program, scratch):
    """Without music the only sound is that of the turret; the pictures are empty, cut in half or noise."""
    shutil.copytree("Assets", scratch / "Assets")
    shutil.rmtree(scratch / "Assets/music")
    for number, path in enumerate(sorted((scratch / "Assets/img").iterdir())):
        whole = path.read_bytes()
        path.write_bytes([b"", whole[: len(whole) // 2], b"noise" * 1000][number % 3])
    assert loudest_of(play_shortly, program, scratch) > 100, "the purchase was not heard"


SCENES = {scene.__name__: scene for scene in (wholeSession, noFiles, brokenFiles)}

if __name__ == "__main__":
    if len(sys.argv) != 3 or sys.argv[2] not in SCENES:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as name:
        SCENES[sys.argv[2]](sys.argv[1], pathlib.Path(name))
