#!/usr/bin/env python3
"""Derive the data files of the end-to-end runs from examples/moth.txt.

  moth-cxj.txt       the form with the consumption block C(x,j): larvae eat
                     more as they grow, the other stages not at all
  moth-releases.txt  two additional releases: 40 eggs on day 5, 15 larvae of
                     age 6 on day 12
  moth-controls.txt  three controls instead of one: on day 5 for 3 days, on
                     day 6 for 2 days (overlapping the first) and on day 19
                     for 4 days (past the end of a 20-day run)
  moth-auto.txt      a stepwise threshold of three periods (1 up to day 2.5,
                     25 from day 3.5 to day 30.5, 40 after that; the ends
                     round to whole days, ties to even, so days 3 and 31
                     keep 0) and a control lasting 3 days

Usage: python3 tests/data/make_variants.py   (from the top of the source tree)
"""

from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MOTH = (ROOT / "examples" / "moth.txt").read_bytes().decode("ascii")
LINES = MOTH.split("\r\n")
OUT = Path(__file__).resolve().parent

STAGES = [(0, 4), (3, 20), (15, 28), (22, 45), (22, 45)]


def consumption(stage, age):
    if stage != 2:
        return 0
    return round(0.4 + 0.15 * (age - 3), 2)


def number(value):
    text = repr(float(value))
    if text.endswith(".0"):
        text = text[:-2]
    if text.startswith("0."):
        text = text[1:]
    return text


def consumption_block():
    lines = ['"Description: decrease coefficient (MODIFY next data to decrease the consumption rate. 0<=D<=1)"',
             "1",
             '"Description: the next lines are the consumption (predation or parasitism) rates c(x,j) for '
             'each stage."']
    for stage, (first, last) in enumerate(STAGES, start=1):
        values = [number(consumption(stage, age)) for age in range(first, last + 1)]
        for start in range(0, len(values), 10):
            lines.append(",".join(values[start:start + 10]))
    return lines


def write(name, lines):
    (OUT / name).write_bytes("\r\n".join(lines).encode("ascii"))


def with_cxj():
    lines = list(LINES)
    at = next(i for i, line in enumerate(lines) if line.startswith('"Description: next lines are initial'))
    lines[at:at] = consumption_block()
    et = next(i for i, line in enumerate(lines) if "economical threshold equation" in line)
    lines[et] = ('"Description: b, c, d (<0), a for the economical threshold equation '
                 'y=a+b/[1+c*exp(d*x)] (logistic curve)"')
    write("moth-cxj.txt", lines)


def with_releases():
    lines = list(LINES)
    at = next(i for i, line in enumerate(lines) if line.startswith('"Description: Number of additional releases'))
    assert lines[at + 1] == "0" and lines[at + 3] == "1" and lines[at + 8] == "2"
    lines[at + 1] = "2"
    lines[at + 3] = "5"
    lines[at + 5] = "0, 1, 40"
    lines[at + 8] = "12"
    lines[at + 10] = "6, 2, 15"
    write("moth-releases.txt", lines)


def control(day, name, mortalities):
    """One control record: its day, critical day, name and duration, then one
    line of stage mortalities for each day it acts."""
    return ['"Description: treatment on day %d"' % day,
            str(day),
            '"Description: Critical cumulative insect day"',
            str(day + 5),
            '"Description: Code of the treatment and its effective duration in days"',
            '"%s",%d' % (name, len(mortalities)),
            '"Description: stage mortality due to treatment, one line for each effective day"'] + \
        [" , ".join(day_values) for day_values in mortalities]


def replace_controls(lines, controls):
    """The control block of moth.txt, from its count to its last mortality
    line, replaced by the records given."""
    at = next(i for i, line in enumerate(lines) if line.startswith('"Description: number of treatment'))
    end = next(i for i, line in enumerate(lines) if line.startswith('"Description: time interval between'))
    assert lines[at + 1] == "1" and end == at + 10
    lines[at:end] = ['"Description: number of treatment = %d"' % len(controls), str(len(controls))] + \
        [line for record in controls for line in control(*record)]


def with_controls():
    lines = list(LINES)
    replace_controls(lines, [
        (5, "First", [["0", ".5", ".2", ".2", ".2"], ["0", ".3", ".1", ".1", ".1"], ["0", ".1", "0", "0", "0"]]),
        (6, "Second", [["0", ".4", ".4", ".4", ".4"], ["0", ".2", ".2", ".2", ".2"]]),
        (19, "Late", [["0", ".5", ".5", ".5", ".5"], ["0", ".4", ".4", ".4", ".4"],
                      ["0", ".3", ".3", ".3", ".3"], ["0", ".2", ".2", ".2", ".2"]]),
    ])
    write("moth-controls.txt", lines)


def with_stepwise_threshold():
    lines = list(LINES)
    et = next(i for i, line in enumerate(lines) if "economical threshold equation" in line)
    lines[et] = ('"Descrip: b, c, d, e, f, g. There are b ETs. 0-c day, ET is d. c+1-e day, ET is f. '
                 'After that, ET is g."')
    lines[et + 1] = "3,2.5,1,30.5,25,40"
    replace_controls(lines, [
        (10, "Pyrethrins", [["0", ".6", ".3", ".3", ".3"], ["0", ".4", ".2", ".2", ".2"],
                            ["0", ".2", ".1", ".1", ".1"]]),
    ])
    write("moth-auto.txt", lines)


if __name__ == "__main__":
    with_cxj()
    with_releases()
    with_controls()
    with_stepwise_threshold()
