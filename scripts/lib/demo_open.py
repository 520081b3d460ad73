#!/usr/bin/env python3
"""Times the demo opening a file, as a whole process on Qt's offscreen platform.

Usage: demo_open.py DEMO OUT.json FILE:LINES [FILE:LINES ...]

For each file: from the launch of `DEMO --time-open FILE` to the line it
prints after the editor's first paint, and the time it then takes to close
the window (the demo's own figure). Written in Google Benchmark's JSON form
(tasks DemoOpen and DemoClose), so bench_table.py reads it like the others.
The best of three runs counts: the machine is shared.
"""
import json
import subprocess
import sys
import time


def run_once(demo, path):
    start = time.monotonic()
    proc = subprocess.Popen([demo, "--time-open", path], stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True)
    painted = closed = None
    for line in proc.stdout:
        data = json.loads(line)
        if "first_paint_s" in data:
            painted = time.monotonic() - start
        if "close_s" in data:
            closed = data["close_s"]
    if proc.wait() != 0 or painted is None or closed is None:
        raise RuntimeError("%s --time-open %s failed" % (demo, path))
    return painted, closed


def main():
    demo, out = sys.argv[1], sys.argv[2]
    benchmarks = []
    for arg in sys.argv[3:]:
        path, lines = arg.rsplit(":", 1)
        runs = [run_once(demo, path) for _ in range(3)]
        for task, value in (("DemoOpen", min(r[0] for r in runs)),
                            ("DemoClose", min(r[1] for r in runs))):
            benchmarks.append({"name": "%s/Textzone/%s" % (task, lines), "run_type": "iteration",
                               "real_time": value, "time_unit": "s"})
            print("%s %s lines: %.3f s" % (task, lines, value))
    with open(out, "w", encoding="utf-8") as f:
        json.dump({"benchmarks": benchmarks}, f, indent=1)


if __name__ == "__main__":
    main()
