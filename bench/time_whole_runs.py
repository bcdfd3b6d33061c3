#!/usr/bin/env python3
"""Time whole runs of the command line as a user makes them.

Each case starts `vorlex run` as a process of its own, many times over, in a
temporary folder that holds a copy of its data file, and reports the
minimum and median wall-clock time of the whole process (start, load, run,
every file written, exit) and its peak resident memory.

  largest   the largest table the program takes (LastAge 1004, 11 stages),
            built by tools/make_example.py, 1003 days, every file written
  example   the bundled example at 60 days

On a shared machine the minimum says what the program costs, the median
what a user waits; run it with many repetitions.

Usage: python3 bench/time_whole_runs.py [--vorlex PATH] [--runs N] [CASE ...]
"""

import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

CASES = {
    "largest": ("beetle-largest.txt", 1003),
    "example": ("moth.txt", 60),
}


def data_file(name, folder):
    """The case's data file in folder: a bundled example is copied, the
    largest table is built."""
    if (ROOT / "examples" / name).exists():
        shutil.copy(ROOT / "examples" / name, folder / name)
    else:
        subprocess.run([sys.executable, str(ROOT / "tools" / "make_example.py"),
                        "--out-dir", str(folder), Path(name).stem],
                       check=True, stdout=subprocess.DEVNULL)
    return folder / name


def run_once(vorlex, path, sim_time):
    """Wall-clock seconds and peak resident kilobytes of one whole run."""
    command = [vorlex, "run", str(path), "--sim-time", str(sim_time),
               "--date", "2026-11-22"]
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE)
    _, status, usage = os.wait4(process.pid, 0)
    elapsed = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    error = process.stderr.read().decode(errors="replace")
    process.stderr.close()
    if process.returncode != 0:
        sys.exit("%s failed (%d): %s" % (" ".join(command), process.returncode,
                                         error))
    return elapsed, usage.ru_maxrss


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("cases", nargs="*", metavar="CASE",
                        help="cases to time: %s (default: all)"
                        % ", ".join(CASES))
    parser.add_argument("--vorlex", default=str(ROOT / "build" / "bin" /
                                                "vorlex"),
                        help="the command-line program (default: build/bin/vorlex)")
    parser.add_argument("--runs", type=int, default=100,
                        help="runs of each case (default: 100)")
    args = parser.parse_args()
    unknown = [c for c in args.cases if c not in CASES]
    if unknown:
        parser.error("no case named %s" % ", ".join(unknown))

    print("%-8s %5s %10s %10s %10s %6s" % ("case", "runs", "min ms",
                                            "median ms", "peak MB",
                                            "files"))
    for case in args.cases or list(CASES):
        name, sim_time = CASES[case]
        with tempfile.TemporaryDirectory(prefix="vorlex-timing-") as folder:
            path = data_file(name, Path(folder))
            run_once(args.vorlex, path, sim_time)  # warms the file cache
            times, peaks = [], []
            for _ in range(args.runs):
                elapsed, peak = run_once(args.vorlex, path, sim_time)
                times.append(elapsed)
                peaks.append(peak)
            files = len(os.listdir(folder)) - 1
        print("%-8s %5d %10.2f %10.2f %10.1f %6d" % (
            case, args.runs, 1000 * min(times),
            1000 * statistics.median(times), max(peaks) / 1024, files))


if __name__ == "__main__":
    main()
