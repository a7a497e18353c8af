#!/usr/bin/python3
"""How fast a busy scene is in the browser, and what the page's own script takes of it: measure starts it.

    frames.py PAGE SECONDS ROUNDS
"""
import json
import os
import pathlib
import statistics
import sys

sys.path[:0] = ["tools", "web/tests"]
from chromium import Chromium
from server import Server
from window import Window

COUNT = (pathlib.Path(__file__).parent / "count.js").read_text(encoding="utf-8")


def frames_a_second(browser, seconds):
    frames, passed = browser.value(f"""new Promise(done => {{
      const first = framesDrawn, begin = performance.now();
      setTimeout(() => done([framesDrawn - first, performance.now() - begin]), {1000 * seconds});
    }})""")
    return 1000 * frames / passed, frames


def processor_time(browser):
    """The milliseconds that the page's main thread has had of a processor: its script, and the browser's own work there."""
    browser.call("Performance.enable")
    metrics = {metric["name"]: metric["value"] for metric in browser.call("Performance.getMetrics")["metrics"]}
    return 1000 * metrics["ThreadTime"]


def script_per_frame(browser, seconds):
    """The milliseconds of the page's own script and program in a frame, and which functions take the most."""
    browser.call("Profiler.enable")
    browser.call("Profiler.setSamplingInterval", interval=200)
    browser.call("Profiler.start")
    frames = frames_a_second(browser, seconds)[1]
    profile = browser.call("Profiler.stop")["profile"]
    browser.call("Profiler.disable")
    name = {node["id"]: node["callFrame"]["functionName"] or "(unnamed)" for node in profile["nodes"]}
    spent = {}
    for node, delta in zip(profile["samples"], profile["timeDeltas"]):
        spent[name[node]] = spent.get(name[node], 0) + delta / 1000
    own = {function: time for function, time in spent.items() if function not in ("(idle)", "(program)", "(root)")}
    most = sorted(own.items(), key=lambda item: -item[1])[:6]
    share = {part: spent.get(part, 0) / sum(spent.values()) for part in ("(idle)", "(program)")}
    return sum(own.values()) / frames, ", ".join(f"{function} {time / frames:.2f}" for function, time in most), share


def main(page, seconds, rounds):
    print("load of the machine before: %.2f" % os.getloadavg()[0])
    print("on the desktop, in a window of its own:", flush=True)
    with Window("build/release/tools/vorel-stage", arguments=["busy", seconds], SDL_AUDIODRIVER="dummy") as window:
        window.ended(10 * float(seconds))
    ratios, scripts, threads = [], [], []
    with Server(page) as server:
        for _ in range(int(rounds)):
            with Chromium() as browser:
                browser.before(COUNT)
                browser.open(server.address)
                browser.play()
                browser.wait_for("frames", lambda: browser.value("framesDrawn > 100"))
                before = processor_time(browser)
                game, frames = frames_a_second(browser, float(seconds))
                thread = (processor_time(browser) - before) / frames
                script, most, share = script_per_frame(browser, float(seconds))
                browser.value("seen.recording = true")
                browser.wait_for("a frame", lambda: browser.value("Boolean(seen.last)"))
                frame = browser.value("seen.last")
                browser.call("Page.navigate", url=server.address + "bare.html")
                browser.wait_for("the bare page", lambda: browser.value("document.readyState === 'complete' && typeof draw === 'function'"))
                browser.value(f"draw({json.dumps(frame)})")
                browser.wait_for("frames", lambda: browser.value("framesDrawn > 100"))
                bare = frames_a_second(browser, float(seconds))[0]
            triangles = sum(batch["count"] for batch in frame["batches"]) // 3
            print(f"{triangles} triangles in {len(frame['batches'])} batches: game {game:.1f}, bare {bare:.1f} frames a second, "
                  f"ratio {game / bare:.2f}; main thread {thread:.2f} ms of a processor a frame; "
                  f"script {script:.2f} ms a frame ({most}), idle {share['(idle)']:.0%}, "
                  f"browser's own {share['(program)']:.0%}", flush=True)
            ratios.append(game / bare)
            scripts.append(script)
            threads.append(thread)
    print(f"median: ratio {statistics.median(ratios):.2f}, script {statistics.median(scripts):.2f} ms a frame, "
          f"main thread {statistics.median(threads):.2f} ms of a processor a frame")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
