#!/usr/bin/python3
"""Starts the game once for every file of Assets/ and every way that a disk can break it.

    brokenDisk.py PROGRAM

Each game must reach its first wave, take a click and end with status 0. Prints the table of cases tried and survived.
Run as root, the unreadable files are tried as the user "nobody".
"""
import collections
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "packaging"))
from session import Window


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


def survives(program, home):
    """Whether a game in the folder `home` leaves its title, takes a click and ends with status 0."""
    with Window(program, home, SDL_AUDIODRIVER="dummy") as window:
        window.until("a window", lambda picture: window.windows()[1])
        window.do("key", "a")
        window.click(992, 600)
        window.click(640, 480)
        window.do("sleep", 0.8)
        window.do("key", "Escape")
        window.ended()
    return True


def main():
    program = os.path.abspath(sys.argv[1])
    assets = pathlib.Path("Assets")
    files = sorted(path.relative_to(assets) for path in assets.rglob("*.*"))
    tried, survived = collections.Counter(), collections.Counter()
    for fault, breaks in FAULTS.items():
        for case in [*([file] for file in files), files]:
            with tempfile.TemporaryDirectory() as home:
                shutil.copytree(assets, os.path.join(home, "Assets"))
                os.chmod(home, 0o755)
                for file in case:
                    breaks(pathlib.Path(home, "Assets", file))
                tried[fault] += 1
                try:
                    survived[fault] += survives(program, home)
                except SystemExit as complaint:
                    print(f"{fault}: {', '.join(map(str, case))}: {complaint}", flush=True)
    for fault in FAULTS:
        print(f"{fault:14} {survived[fault]:3} of {tried[fault]:3}")
    return survived != tried


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main())
