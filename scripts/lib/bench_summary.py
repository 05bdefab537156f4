#!/usr/bin/env python3
"""Prints the standing of the benchmarks at a glance: every ratio against its anchor in the same
run, and the settings-store figures against their targets.

    bench_summary.py <folder of Google Benchmark JSON files (--benchmark_out)> [linux|win64]

The settings-store limits hold on Linux; for the Windows build under Wine its figures are
shown beside them without a verdict.

A figure is the median when the run had repetitions, else the single run's. Times are CPU
time (user and system; throughputs are computed from it), which other work on the machine
disturbs less than wall-clock time; only AddUser and DeleteUser are wall-clock, as they mostly
wait for the disk. A measure that the run did not produce prints as "n/a"; nothing here fails
the run.
"""
import glob
import json
import os
import statistics
import sys

SCALE = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}

# (label, ours, anchor, anchor's name, field, goal): speed against an anchor in the same run.
# Decimal arithmetic against GCC's _Decimal128 as a speed-up, the encoded texts' throughput as
# a share of a raw scan of the same bytes.
RATIOS = [
    (f"decimal {op}, {size} operands", f"TKDecimal/{op}/{arg}", f"_Decimal128/{op}/{arg}",
     "_Decimal128", "cpu_time", goal)
    for op, goal in (("add", 2.0), ("multiply", 2.0), ("divide", 1.0))
    for arg, size in ((0, "short"), (1, "wide"))
] + [
    (f"{action} of {kind}", f"{action.capitalize()}{kind.capitalize()}",
     f"RawScan{kind.capitalize()}", "raw scan", "bytes_per_second", 0.25)
    for kind in ("values", "qualifiers")
    for action in ("decode", "encode")
]

# (label, benchmark, time field, limit in ns or None, anchor or None): settings-store figures.
# A cached read is shown beside one stat() of the same file, the system call every read makes
# to see another process's change: on a machine where that call alone is slow, the limit says
# more about the machine than about the store.
STORE = [
    ("GetListOfUsers, 1,000 users", "GetListOfUsers/1000", "cpu_time", 1e6, None),
    ("FindHomeDirectory of the last of 1,000", "FindHomeDirectoryOfTheLastUser/1000", "cpu_time",
     0.3e6, None),
    ("one cached profile read (ReadCached)", "ReadCached", "cpu_time", 1e3, "StatOfTheFile"),
    ("AddUser, 1,000 users", "AddUser/1000", "real_time", None, None),
    ("DeleteUser, 1,000 users", "DeleteUser/1000", "real_time", None, None),
]


def load(folder):
    """Every run by name: its entries (iterations or the median aggregate)."""
    runs = {}
    for path in sorted(glob.glob(os.path.join(folder, "*.json"))):
        try:
            with open(path, encoding="utf-8") as file:
                data = json.load(file)
        except (OSError, ValueError):
            continue
        for entry in data.get("benchmarks", []):
            name = entry.get("run_name", entry.get("name"))
            runs.setdefault(name, []).append(entry)
    return runs


def figure(runs, name, field):
    """The run's field (times in ns), the median aggregate first; None when missing."""
    entries = runs.get(name, [])
    medians = [e for e in entries if e.get("aggregate_name") == "median"]
    chosen = medians or [e for e in entries if e.get("run_type", "iteration") == "iteration"]
    values = []
    for entry in chosen:
        if field not in entry:
            continue
        value = float(entry[field])
        if field.endswith("_time"):
            value *= SCALE.get(entry.get("time_unit", "ns"), 1.0)
        values.append(value)
    return statistics.median(values) if values else None


def time_text(ns):
    if ns is None:
        return "n/a"
    for unit, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if ns >= size:
            return f"{ns / size:.3g} {unit}"
    return f"{ns:.3g} ns"


def rate_text(rate):
    return "n/a" if rate is None else f"{rate / 1e6:.1f} MB/s"


def verdict(value, passed):
    return "" if value is None else ("ok" if passed else "MISSED")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    runs = load(sys.argv[1])
    on_linux = len(sys.argv) == 2 or sys.argv[2] == "linux"
    rows = [("measure", "ours", "anchor", "standing", "target", "")]
    for label, ours, anchor, anchor_name, field, goal in RATIOS:
        mine, theirs = figure(runs, ours, field), figure(runs, anchor, field)
        timed = field.endswith("_time")
        show = time_text if timed else rate_text
        ratio = None
        if mine and theirs:
            ratio = theirs / mine if timed else mine / theirs
        standing = "n/a" if ratio is None else (f"{ratio:.2f}x" if timed else f"{ratio:.0%}")
        target = f">= {goal:g}x" if timed else f">= {goal:.0%}"
        rows.append((label, show(mine), f"{anchor_name} {show(theirs)}", standing, target,
                     verdict(ratio, ratio is not None and ratio >= goal)))
    for label, name, field, limit, anchor in STORE:
        mine = figure(runs, name, field)
        beside = f"stat() {time_text(figure(runs, anchor, field))}" if anchor else ""
        if limit is None:
            rows.append((label, time_text(mine), beside, "", "-", ""))
        elif on_linux:
            rows.append((label, time_text(mine), beside, "", f"< {time_text(limit)}",
                         verdict(mine, mine is not None and mine < limit)))
        else:
            rows.append((label, time_text(mine), beside, "", f"Linux < {time_text(limit)}", ""))
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    for row in rows:
        print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


if __name__ == "__main__":
    main()
