#!/usr/bin/python3
"""Plays the game of build/web/ at random in a real browser, as tools/randomPlayer.py plays the program.

    bench/web/randomVisitor.py SECONDS [SEED]

Prints twenty times on the way how many bytes the page's script and the game itself hold; fails if the browser complains, or
if after the first tenth either grows.
"""
import random
import subprocess
import sys
import time

sys.path[:0] = ["tools", "web"]
from browser import Browser, Server
from randomPlayer import deed

# Keeps the memory of the program, whose size nothing else tells, and counts the frames.
MEMORY = """
window.drawn = 0;
const request = window.requestAnimationFrame;
window.requestAnimationFrame = next => request(time => {
  ++window.drawn;
  next(time);
});
const instantiate = WebAssembly.instantiate;
WebAssembly.instantiate = async (...given) => {
  const made = await instantiate.apply(WebAssembly, given);
  window.memory = Object.values((made.instance || made).exports).find(part => part instanceof WebAssembly.Memory);
  return made;
};
"""


def main(seconds, seed="1"):
    random.seed(seed)
    held = []
    with Server("build/web") as server, Browser() as browser:
        browser.call("Page.addScriptToEvaluateOnNewDocument", source=MEMORY)
        browser.open(server.address)
        browser.start()
        browser.wait_for("the game", lambda: browser.value("Boolean(window.memory)"))
        for _ in range(20):
            end = time.monotonic() + float(seconds) / 20
            while time.monotonic() < end:
                # The browser's own help would cover the page, which then rests.
                if "F1" not in (words := deed()):
                    subprocess.run(["xdotool", *words], check=True)
            browser.call("HeapProfiler.collectGarbage")
            held.append((round(browser.call("Runtime.getHeapUsage")["usedSize"]), browser.value("memory.buffer.byteLength")))
            print(*held[-1], browser.value("drawn"), "frames", flush=True)
            if browser.value("document.hidden || !document.getElementById('front').hidden"):
                sys.exit("The game is not seen any more.")
        if browser.complaints:
            sys.exit("The browser complained:\n" + "\n".join(browser.complaints))
    script, program = zip(*held[2:])
    if max(program) > program[0]:
        sys.exit("The memory of the game grows.")
    if sum(script[-5:]) / 5 > 1.1 * sum(script[:5]) / 5:
        sys.exit("The heap of the page grows.")
    print("No complaint, and nothing grows.")


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    main(*sys.argv[1:])
