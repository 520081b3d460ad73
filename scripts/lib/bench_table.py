#!/usr/bin/env python3
"""Builds the figures of docs/PERFORMANCE.md from the benchmark programs' JSON.

Usage: bench_table.py OUT.md --machine MACHINE.txt --json A.json [B.json ...]
                      --memory MEMORY.jsonl

The figures go between the two marker lines of OUT.md; everything else in the
file (the reading of the figures) is kept as it stands. A new file gets a
heading and the markers.
"""
import argparse
import json
import os
import sys

BEGIN = "<!-- figures: begin (written by scripts/bench) -->"
END = "<!-- figures: end -->"

ENGINE = "Textzone"
PEERS = ["QScintilla", "QPlainTextEdit"]
SIZES = [10000, 1000000, 9990000]
TASKS = [
    ("Load", "Load the text"),
    ("GetText", "Read the text out"),
    ("InsertRemoveLine", "Insert and remove a line in the middle"),
    ("InsertRemoveLineTop", "Insert and remove a line near the top (line 10)"),
    ("Paste1000", "Paste 1000 lines in the middle"),
    ("Type", "Type 100 characters in the middle, one key at a time"),
    ("Undo", "Undo the 100 characters"),
    ("TypeApi", "Type 100 characters in the middle, one insert call each"),
    ("UndoApi", "Undo the 100 inserted characters"),
    ("Find", "Find a word near the end"),
    ("FindNoCase", "Find a word near the end, case folded"),
    ("Paint", "Paint one screen (800 x 600)"),
    ("HiddenFrame", "Paint a frame near the end, a closed block every 100 lines (ZS_VARHEIGHT)"),
    ("RestoreBlocks", "Restore 131070 closed blocks (65535 + 65535 alternate) from the block status string"),
    ("DemoOpen", "Demo: open a file, launch to first paint (offscreen)"),
    ("DemoClose", "Demo: close the file's window"),
    ("DefineColors", "Colour runs of 60 dense T-SQL lines (dialect 90)"),
    ("StartWithWhat", "Start state of the last line, from a cold start"),
    ("PaintColour", "Paint one screen of coloured SQL (800 x 600)"),
    ("TypeColour", "Coloured T-SQL: a letter typed in the middle, with its repaint (budget 1 ms)"),
    ("OpenComment", "Coloured T-SQL: the '*' that opens a comment at line 100, with the repaint (budget 3 ms)"),
    ("CtrlEnd", "Coloured T-SQL: Ctrl+End from the top, painted in colour (budget 1 s)"),
    ("TypeKeyword", "Keyword case (upper): a key of \"select \" typed in the middle, converted and repainted (budget 1 ms)"),
    ("RescanQuote", "Keyword case (upper): a quote typed in the middle, then Down, analysing every line below"),
    ("PrintPdf", "Print the text to a PDF file (A4, 300 dpi; each lays its pages out its own way)"),
]


def size_label(n):
    # The largest size is a little under 10M lines, the engine's limit.
    if n >= 1000000:
        return "%dM" % round(n / 1000000)
    return "%dk" % round(n / 1000)


def seconds(value, unit):
    return value * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}[unit]


def fmt_time(s):
    if s >= 1.0:
        return "%.2f s" % s
    if s >= 1e-3:
        return "%.3g ms" % (s * 1e3)
    return "%.3g µs" % (s * 1e6)


def fmt_ratio(r):
    if r >= 100:
        return "%.0f×" % r
    if r >= 10:
        return "%.1f×" % r
    if r >= 0.01:
        return "%.2f×" % r
    return "%.2g×" % r


def load_runs(paths):
    """(task, component, lines) -> seconds, or the error message as a str."""
    runs = {}
    for path in paths:
        with open(path, encoding="utf-8") as f:
            data = json.load(f)
        for b in data.get("benchmarks", []):
            if b.get("run_type", "iteration") != "iteration":
                continue
            parts = b["name"].split("/")
            if len(parts) < 3:
                continue
            key = (parts[0], parts[1], int(parts[2]))
            if b.get("error_occurred"):
                runs[key] = b.get("error_message", "error")
            else:
                runs[key] = seconds(b["real_time"], b["time_unit"])
    return runs


def load_memory(path):
    memory = {}
    if path and os.path.exists(path):
        with open(path, encoding="utf-8") as f:
            for line in f:
                line = line.strip()
                if line.startswith("{"):
                    m = json.loads(line)
                    memory[(m["component"], m["lines"])] = m
    return memory


def cell(value):
    if value is None:
        return "—"
    if isinstance(value, str):
        return "n/a¹"
    return fmt_time(value)


def ratio(peer, engine):
    if isinstance(peer, float) and isinstance(engine, float) and engine > 0:
        return fmt_ratio(peer / engine)
    return "—"


def figures(runs, memory, machine):
    out = []
    out.append(machine.rstrip())
    out.append("")
    out.append("| Task | Lines | Textzone | QScintilla | QPlainTextEdit "
               "| QScintilla / Textzone | QPlainTextEdit / Textzone |")
    out.append("|---|---:|---:|---:|---:|---:|---:|")
    errors = {}
    for task, label in TASKS:
        for n in SIZES:
            engine = runs.get((task, ENGINE, n))
            peers = [runs.get((task, p, n)) for p in PEERS]
            if engine is None and all(p is None for p in peers):
                continue
            for comp, v in [(ENGINE, engine)] + list(zip(PEERS, peers)):
                if isinstance(v, str):
                    errors.setdefault(v, []).append("%s %s %s" % (task, comp, size_label(n)))
            row = [label, size_label(n), cell(engine)] + [cell(p) for p in peers]
            row += [ratio(p, engine) for p in peers]
            out.append("| " + " | ".join(row) + " |")
        if task == "Load":
            # The physical limit of a load: finding the line ends and nothing else.
            for n in SIZES:
                limit = runs.get(("Split", "memchr", n))
                if not isinstance(limit, float):
                    continue
                load = runs.get(("Load", ENGINE, n))
                share = (" (Textzone load = %s the limit)" % fmt_ratio(load / limit)
                         if isinstance(load, float) and limit > 0 else "")
                out.append("| Limit: split into lines with memchr alone%s | %s | %s | — | — | — | — |"
                           % (share, size_label(n), fmt_time(limit)))
    for n in SIZES:
        values = [memory.get((c, n)) for c in [ENGINE] + PEERS]
        if all(v is None for v in values):
            continue

        def mem(v):
            return "—" if v is None else "%.0f B" % v["peak_bytes_per_line"]

        def mem_ratio(v):
            e = values[0]
            if v is None or e is None or e["peak_bytes_per_line"] <= 0:
                return "—"
            return fmt_ratio(v["peak_bytes_per_line"] / e["peak_bytes_per_line"])

        out.append("| Peak memory per line while loading | %s | %s | %s | %s | %s | %s |"
                   % (size_label(n), mem(values[0]), mem(values[1]), mem(values[2]),
                      mem_ratio(values[1]), mem_ratio(values[2])))
    for n in SIZES:
        values = [memory.get((c, n)) for c in [ENGINE] + PEERS]
        if all(v is None or "resident_bytes_per_line" not in v for v in values):
            continue

        def resident(v):
            if v is None or "resident_bytes_per_line" not in v:
                return "—"
            return "%.0f B" % v["resident_bytes_per_line"]

        out.append("| Resident memory per line after loading | %s | %s | %s | %s | — | — |"
                   % (size_label(n), resident(values[0]), resident(values[1]), resident(values[2])))
    if errors:
        out.append("")
        for message, where in errors.items():
            out.append("¹ %s: %s." % (", ".join(where), message))
    return "\n".join(out) + "\n"


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("out")
    ap.add_argument("--machine", required=True)
    ap.add_argument("--json", nargs="+", required=True)
    ap.add_argument("--memory")
    args = ap.parse_args()

    with open(args.machine, encoding="utf-8") as f:
        machine = f.read()
    block = figures(load_runs(args.json), load_memory(args.memory), machine)

    if os.path.exists(args.out):
        with open(args.out, encoding="utf-8") as f:
            text = f.read()
    else:
        text = "# Performance\n\n%s\n%s\n" % (BEGIN, END)
    if BEGIN not in text or END not in text:
        sys.exit("%s: the figure markers are missing" % args.out)
    head, rest = text.split(BEGIN, 1)
    _, tail = rest.split(END, 1)
    with open(args.out, "w", encoding="utf-8") as f:
        f.write(head + BEGIN + "\n" + block + END + tail)


if __name__ == "__main__":
    main()
