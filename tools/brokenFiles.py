#!/usr/bin/python3
"""Starts the game once for every file of Assets/ and every way that a disk can break it.

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


def main():
    program = os.path.abspath(sys.argv[1])
    assets = pathlib.Path("Assets")
    files = sorted(path.relative_to(assets) for path in assets.rglob("*.*"))
    tried, survived = collections.Counter(), collections.Counter()
    for fault, breaks in FAULTS.items():
        for case in [*([file] for file in files), files]:
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
    for fault in FAULTS:
        print(f"{fault:14} {survived[fault]:3} of {tried[fault]:3}")
    return survived != tried


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main())
