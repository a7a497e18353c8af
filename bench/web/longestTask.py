#!/usr/bin/python3
"""How long the page stands still between Play and the title, in seconds: the longest task of each of five starts.

    longestTask.py PAGE    PAGE is a folder that web/build made
"""
import sys

sys.path[:0] = ["tools", "web/tests"]
from chromium import Chromium
from server import Server

TASKS = """
const tasks = [];
new PerformanceObserver(list => tasks.push(...list.getEntries().map(({duration}) => duration)))
  .observe({type: 'longtask'});
"""


def main(page):
    with Server(page) as server, Chromium() as browser:
        browser.before(TASKS)
        for _ in range(5):
            browser.open(server.address)
            browser.offered("play", "Play")
            browser.value("tasks.length = 0")
            browser.play()
            browser.wait_for("the title", lambda: browser.reached("canvas"))
            print(f"{max(browser.value('tasks'), default=0) / 1000:.2f}", flush=True)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(*sys.argv[1:])
