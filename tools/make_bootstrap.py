#!/usr/bin/env python3
"""Write bootstrap life tables of the example moth.

A bootstrap table is the life table of a resample of a cohort: the
individuals of the cohort drawn with replacement, as many as it has, and
the table built again from their life histories. Many such tables give the
spread of a projection (vorlex batch ... --band FILE).

  1. The cohort: SIZE newborns of the moth of tools/make_example.py, each
     followed day by day through the example's table with a seeded random
     draw: it stays in its stage with probability g(x,j), moves on with
     d(x,j) (the last immature stage to the female or the male) and dies
     otherwise; a female lays a Poisson number of eggs with mean f(x) a day.
  2. Each resample: g(x,j), d(x,j) and f(x) are the shares and means of the
     drawn individuals, to the decimals the example uses; the ages of each
     stage and the last age are those the drawn individuals reached.
  3. Its statistics F, R0, r, lambda and T are computed from that very
     table, the file is written in the example's form and read back item by
     item, and the statistics read must agree with the table.

A resample that leaves a stage empty, or no female, is drawn again.

Usage: python3 tools/make_bootstrap.py [--count N] [--cohort SIZE]
           [--seed S] [--out-dir DIR]
Writes DIR/moth-boot-001.txt ... (default: 100 tables of a cohort of 200
into examples/bootstrap). Standard library only.
"""

import argparse
import copy
import math
import random
from pathlib import Path

import make_example as example


def poisson(draw, mean):
    """A Poisson number with the given mean (Knuth's product of uniforms)."""
    if mean <= 0.0:
        return 0
    limit, count, product = math.exp(-mean), 0, draw.random()
    while product > limit:
        count += 1
        product *= draw.random()
    return count


def cohort(ex, size, draw):
    """Life histories: for each newborn, [(stage, eggs)] of ages 0, 1, ..."""
    growth, develop, fecundity = example.build_rates(ex)
    histories = []
    for _ in range(size):
        stage, life = 1, []
        for age in range(ex.last_age + 1):
            eggs = poisson(draw, fecundity[age][stage]) if stage == ex.female else 0
            life.append((stage, eggs))
            if age == ex.last_age:
                break
            u = draw.random()
            stay = growth[age][stage]
            move = develop[age][stage] if stage <= ex.last_immature else 0.0
            if u < stay:
                continue
            if u < stay + move:
                stage += 1
                continue
            if stage == ex.last_immature and u < stay + move + develop[age][stage + 1]:
                stage = ex.male
                continue
            break
        histories.append(life)
    return histories


def counted(value, scale):
    return round(value * scale)


def table_of(ex, histories, number):
    """The example for one resample, with its g, d and f; None if unusable."""
    last_age = max(len(life) for life in histories) - 1
    nr_stage = ex.nr_stage
    alive = [[0] * (nr_stage + 1) for _ in range(last_age + 2)]
    stay = [[0] * (nr_stage + 1) for _ in range(last_age + 1)]
    move = [[0] * (nr_stage + 2) for _ in range(last_age + 1)]
    eggs = [0] * (last_age + 1)
    for life in histories:
        for age, (stage, laid) in enumerate(life):
            alive[age][stage] += 1
            eggs[age] += laid
            if age + 1 < len(life):
                after = life[age + 1][0]
                if after == stage:
                    stay[age][stage] += 1
                elif stage == ex.last_immature and after == ex.male:
                    move[age][stage + 1] += 1
                else:
                    move[age][stage] += 1

    windows = []
    for stage in range(1, nr_stage + 1):
        ages = [a for a in range(last_age + 1) if alive[a][stage] > 0]
        if not ages:
            return None
        windows.append((ages[0], ages[-1]))
    if any(alive[a][ex.female] == 0 for a in range(windows[ex.female - 1][0], windows[ex.female - 1][1] + 1)):
        return None  # a gap in the female stage

    boot = copy.copy(ex)
    boot.last_age = last_age
    boot.stages = [(first, last) + ex.stages[j][2:] for j, (first, last) in enumerate(windows)]
    boot.file_name = "moth-boot-%03d.txt" % number
    boot.project = ("Moth bootstrap %03d" % number,) + tuple(ex.project[1:])

    rate, eggs_scale = example.RATE_SCALE, example.FECUNDITY_SCALE
    growth, develop, fecundity = boot.new_table(), boot.new_table(), boot.new_table()
    for age in range(last_age + 1):
        for stage in range(1, nr_stage + 1):
            n = alive[age][stage]
            if n == 0:
                continue
            # Shares in whole steps of the scale, never more than all.
            d = counted(move[age][stage] / n, rate) if stage <= ex.last_immature else 0
            dm = counted(move[age][stage + 1] / n, rate) if stage == ex.last_immature else 0
            g = min(counted(stay[age][stage] / n, rate), rate - d - dm)
            growth[age][stage] = g / rate
            if stage <= ex.last_immature:
                develop[age][stage] = d / rate
            if stage == ex.last_immature:
                develop[age][stage + 1] = dm / rate
        females = alive[age][ex.female]
        if females:
            fecundity[age][ex.female] = counted(eggs[age] / females, eggs_scale) / eggs_scale
    return boot, growth, develop, fecundity


def write_checked(boot, growth, develop, fecundity, folder):
    """Write one table with its own statistics and read it back."""
    stats = example.statistics(boot, growth, develop, fecundity)
    example.check_table(boot, growth, develop, fecundity, None, stats)
    lines = example.data_file_lines(boot, growth, develop, fecundity, None, stats)
    path = folder / boot.file_name
    with open(path, "w", encoding="ascii", newline="") as handle:
        handle.write("".join(line + "\r\n" for line in lines))
    g2, d2, f2, _, written = example.read_back(boot, path)
    assert (g2, d2, f2) == (growth, develop, fecundity), "tables differ"
    again = example.statistics(boot, g2, d2, f2)
    for key, value in written.items():
        assert value == float(example.digits(again[key])), (key, value, again[key])
    return stats


def main():
    parser = argparse.ArgumentParser(description="Write bootstrap life tables of the example moth.")
    parser.add_argument("--count", type=int, default=100, help="tables to write (default 100)")
    parser.add_argument("--cohort", type=int, default=200, help="newborns in the cohort (default 200)")
    parser.add_argument("--seed", type=int, default=2026, help="seed of the random draws (default 2026)")
    parser.add_argument("--out-dir", type=Path,
                        default=Path(__file__).resolve().parent.parent / "examples" / "bootstrap",
                        help="folder of the files (default: examples/bootstrap)")
    args = parser.parse_args()
    draw = random.Random(args.seed)
    ex = example.MOTH
    histories = cohort(ex, args.cohort, draw)
    args.out_dir.mkdir(parents=True, exist_ok=True)
    rates = []
    number, attempts = 1, 0
    while number <= args.count:
        attempts += 1
        if attempts > 50 * args.count:
            raise SystemExit("too many unusable resamples: is the cohort too small?")
        resample = [histories[draw.randrange(len(histories))] for _ in histories]
        made = table_of(ex, resample, number)
        if made is None:
            continue
        try:
            stats = write_checked(*made, args.out_dir)
        except (AssertionError, ValueError, ZeroDivisionError):
            continue  # an unusable resample: drawn again
        rates.append(stats["r"])
        number += 1
    rates.sort()
    print("wrote %d tables to %s" % (args.count, args.out_dir))
    print("r: min %.4f, median %.4f, max %.4f" % (rates[0], rates[len(rates) // 2], rates[-1]))


if __name__ == "__main__":
    main()
