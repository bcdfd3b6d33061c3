#!/usr/bin/env python3
"""Time whole runs of the command line as a user makes them.

Each case starts `vorlex run` as a process of its own, many times over, in a
temporary folder that holds a copy of its data file, and reports the
minimum and median wall-clock time of the whole process (start, load, run,
every file written, exit), the minimum and median processor time it took
(user and system), and its peak resident memory as /usr/bin/time measures
it (the peak a process forked from this script reports would be the
script's own).

  largest   the largest table the program takes (LastAge 1004, 11 stages),
            built by tools/make_example.py, 1003 days, every file written
  example   the bundled example at 60 days

On a shared machine the minimum says what the program costs, the median
what a user waits, and the processor time is the least disturbed by the
others; run it with many repetitions. With --against OTHER the runs of the
two programs alternate, so that both meet the same load of the machine:
the way to compare a change with the program before it.

Usage: python3 bench/time_whole_runs.py [--vorlex PATH] [--against PATH]
                                        [--runs N] [CASE ...]
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


def command_of(vorlex, path, sim_time):
    return [vorlex, "run", str(path), "--sim-time", str(sim_time),
            "--date", "2026-11-22"]


def run_once(command):
    """Wall-clock and processor seconds of one whole run."""
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
    return elapsed, usage.ru_utime + usage.ru_stime


def peak_kilobytes(command):
    """Peak resident memory of one whole run, None without /usr/bin/time."""
    if not Path("/usr/bin/time").exists():
        return None
    with tempfile.NamedTemporaryFile("r") as report:
        subprocess.run(["/usr/bin/time", "-f", "%M", "-o", report.name]
                       + command, check=True, stdout=subprocess.DEVNULL)
        return int(report.read().split()[-1])


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("cases", nargs="*", metavar="CASE",
                        help="cases to time: %s (default: all)"
                        % ", ".join(CASES))
    parser.add_argument("--vorlex", default=str(ROOT / "build" / "bin" /
                                                "vorlex"),
                        help="the command-line program (default: build/bin/vorlex)")
    parser.add_argument("--against", metavar="PATH",
                        help="another build of the program, run in turn with it")
    parser.add_argument("--runs", type=int, default=100,
                        help="runs of each case (default: 100)")
    args = parser.parse_args()
    unknown = [c for c in args.cases if c not in CASES]
    if unknown:
        parser.error("no case named %s" % ", ".join(unknown))

    programs = [args.vorlex] + ([args.against] if args.against else [])
    print("%-8s %-10s %5s %9s %9s %9s %9s %8s %6s" % (
        "case", "program", "runs", "wall min", "median", "cpu min", "median",
        "peak MB", "files"))
    for case in args.cases or list(CASES):
        name, sim_time = CASES[case]
        with tempfile.TemporaryDirectory(prefix="vorlex-timing-") as folder:
            path = data_file(name, Path(folder))
            commands = [command_of(program, path, sim_time) for program in programs]
            for command in commands:
                run_once(command)  # warms the file cache
            walls = [[] for _ in commands]
            cpus = [[] for _ in commands]
            for _ in range(args.runs):
                for i, command in enumerate(commands):
                    wall, cpu = run_once(command)
                    walls[i].append(wall)
                    cpus[i].append(cpu)
            peaks = [[peak_kilobytes(command) for _ in range(3)] for command in commands]
            files = len(os.listdir(folder)) - 1
        for i, program in enumerate(programs):
            peak = "-" if None in peaks[i] else "%.1f" % (max(peaks[i]) / 1024)
            label = "this" if i == 0 else "against"
            print("%-8s %-10s %5d %9.2f %9.2f %9.2f %9.2f %8s %6d" % (
                case, label, args.runs, 1000 * min(walls[i]),
                1000 * statistics.median(walls[i]), 1000 * min(cpus[i]),
                1000 * statistics.median(cpus[i]), peak, files))
        sys.stdout.flush()


if __name__ == "__main__":
    main()
