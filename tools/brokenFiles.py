#!/usr/bin/python3
"""Starts the game once for every file of Assets/ and every way that a disk can break it, and with music of other kinds.

    brokenFiles.py PROGRAM

Each game must open its window, take a key and clicks, and end with exit status 0 when the window is closed. Prints a
table of the cases tried and survived. Root can read every file, so only other users can try unreadable ones.
"""
import collections
import os
import pathlib
import shutil
import sys
import tempfile

from session import play_shortly


def half(path):
    path.write_bytes(path.read_bytes()[: path.stat().st_size // 2])


def directory(path):
    path.unlink()
    path.mkdir()


FAULTS = {
    "missing": pathlib.Path.unlink,
    "empty": lambda path: path.write_bytes(b""),
    "cut in half": half,
    "random bytes": lambda path: path.write_bytes(os.urandom(path.stat().st_size)),
    "a directory": directory,
    "unreadable": lambda path: path.chmod(0),
}
if os.geteuid() == 0:
    del FAULTS["unreadable"]


def music(before, content=None):
    """A way to replace a track: what comes before it, and another content if there is one."""
    return lambda path: path.write_bytes(before + (path.read_bytes() if content is None else content))


TEXT = bytes(range(32, 127))
TAG = b"ID3\3\0\0\0\0\0" + bytes([len(TEXT)]) + TEXT
TAG_WITH_FOOTER = b"ID3\4\0\x10\0\0\0" + bytes([len(TEXT)]) + TEXT + b"3DI\4\0\x10\0\0\0" + bytes([len(TEXT)])
ZEROS = bytes(5000)
NOISE = os.urandom(400000)
# Silent frames at 11.025 kHz.
MPEG_2_5 = (b"\xFF\xE3\x10\x04" + bytes(48)) * 8000
MUSIC = {
    "two tags": music(TAG + TAG),
    "footer": music(TAG_WITH_FOOTER),
    "zeros": music(ZEROS),
    "all of these": music(ZEROS + TAG_WITH_FOOTER + ZEROS + TAG + ZEROS),
    "noise, tags": music(TAG + TAG_WITH_FOOTER, NOISE),
    "noise, zeros": music(ZEROS, NOISE),
    "MPEG-2.5": music(b"", MPEG_2_5),
    "MPEG-2.5, tags": music(TAG + TAG_WITH_FOOTER, MPEG_2_5),
    "MPEG-2.5, zeros": music(ZEROS, MPEG_2_5),
}


def main():
    program = os.path.abspath(sys.argv[1])
    assets = pathlib.Path("Assets")
    files = sorted(path.relative_to(assets) for path in assets.rglob("*.*"))
    tried, survived = collections.Counter(), collections.Counter()
    tracks = [file for file in files if file.suffix == ".mp3"]
    every_fault = {**FAULTS, **MUSIC}
    for fault, breaks in every_fault.items():
        for case in [tracks] if fault in MUSIC else [*([file] for file in files), files]:
            with tempfile.TemporaryDirectory() as home:
                shutil.copytree(assets, os.path.join(home, "Assets"))
                for file in case:
                    breaks(pathlib.Path(home, "Assets", file))
                tried[fault] += 1
                try:
                    play_shortly(program, home, SDL_AUDIODRIVER="dummy")
                    survived[fault] += 1
                except SystemExit as complaint:
                    print(f"{fault}: {', '.join(map(str, case))}: {complaint}", flush=True)
    for fault in every_fault:
        print(f"{fault:15} {survived[fault]:3} of {tried[fault]:3}")
    return survived != tried


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main())
