#!/usr/bin/env python3
"""Derive the data files of the end-to-end runs from examples/moth.txt.

  moth-cxj.txt       the form with the consumption block C(x,j): larvae eat
                     more as they grow, the other stages not at all
  moth-releases.txt  two additional releases: 40 eggs on day 5, 15 larvae of
                     age 6 on day 12

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


if __name__ == "__main__":
    with_cxj()
    with_releases()
