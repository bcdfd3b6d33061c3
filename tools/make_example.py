#!/usr/bin/env python3
"""Build the example project data file examples/moth.txt.

The example is the age-stage, two-sex life table of a moth with five stages
(egg, larva, pupa, female, male), one age class per day, ages 0..LAST_AGE.
The script

  1. chooses the survival g(x,j), development d(x,j) and fecundity f(x,female)
     of every age and stage, all with few decimals so that the file holds the
     very values the statistics are computed from;
  2. builds l(x,j), l(x) and m(x) with the same recursion that Vorlex uses
     when it loads a data file;
  3. computes the life-table statistics F, R0, r, lambda and T;
  4. writes the plain data file (no C(x,j) block), every line ended by CR LF;
  5. reads the file back item by item and checks that it gives the same
     tables and statistics.

Usage: python3 tools/make_example.py [output path]
The default output path is examples/moth.txt next to this tools folder.

Standard library only.
"""

import math
import sys
from pathlib import Path

# ---------------------------------------------------------------------------
# Life table
# ---------------------------------------------------------------------------

LAST_AGE = 45
NR_STAGE = 5
EGG, LARVA, PUPA, FEMALE, MALE = 1, 2, 3, 4, 5

# (first age, last age, name, weighing coefficient, density coefficient)
STAGES = {
    EGG: (0, 4, "Egg", 0, 0.2),
    LARVA: (3, 20, "Larv", 1, 1),
    PUPA: (15, 28, "Pupa", 0, 0.2),
    FEMALE: (22, 45, "Fema", 0.5, 0.5),
    MALE: (22, 45, "Male", 0.5, 0.5),
}

# Survival and development of the immature stages, by age inside the stage:
# s = probability of surviving the day, p = fraction of the survivors that
# moves on to the next stage.  g = s (1 - p), d = s p, both to four places.
EGG_SURVIVAL = 0.955
EGG_MOVE = {2: 0.2, 3: 0.7, 4: 1.0}

LARVA_SURVIVAL_YOUNG = 0.955       # ages 3..6, first instars
LARVA_SURVIVAL_OLD = 0.97          # ages 7..20
LARVA_MOVE = {14: 0.05, 15: 0.15, 16: 0.3, 17: 0.45, 18: 0.6, 19: 0.75,
              20: 1.0}

PUPA_SURVIVAL = 0.98
PUPA_MOVE = {21: 0.05, 22: 0.15, 23: 0.3, 24: 0.45, 25: 0.6, 26: 0.75,
             27: 0.9, 28: 1.0}

# Adult daily survival: constant at first, then declining with age.
FEMALE_SURVIVAL = (0.97, 28, 0.012)    # base, age where decline starts, slope
MALE_SURVIVAL = (0.96, 27, 0.013)

# Fecundity: bell-shaped daily egg production of the female, scaled so that
# the mean fecundity F is near TARGET_F eggs per female.
FECUNDITY_PEAK_AGE = 30
FECUNDITY_SPREAD = 4.0
TARGET_F = 250.0

# Initial population: (age, stage, number)
INITIAL_POPULATION = [(0, EGG, 10), (8, LARVA, 5), (12, LARVA, 3)]

PROJECT_NAME = "Moth demonstration"
PROJECT_DATE = "2026-11-21"
PROJECT_USER = "Vorlex team"

RATE_SCALE = 10000        # growth and development rates: four decimals
FECUNDITY_SCALE = 100     # fecundity: two decimals


def quantise(value, scale):
    """The value rounded to 1/scale, as the double nearest to k/scale."""
    return round(value * scale) / scale


def stage_ages(stage):
    first, last = STAGES[stage][0], STAGES[stage][1]
    return range(first, last + 1)


def new_table():
    return [[0.0] * (NR_STAGE + 1) for _ in range(LAST_AGE + 1)]


def adult_survival(age, params):
    base, start, slope = params
    return base - slope * max(0, age - start)


def build_rates():
    """Return growth, develop and fecundity tables indexed [age][stage].

    develop[age][MALE - 1] is the extra column: the move of the pupa into
    the male, filled at the ages of the pupal stage.
    """
    growth, develop, fecundity = new_table(), new_table(), new_table()

    def immature(stage, survival, move):
        for age in stage_ages(stage):
            s = survival(age)
            p = move.get(age, 0.0)
            growth[age][stage] = quantise(s * (1.0 - p), RATE_SCALE)
            develop[age][stage] = quantise(s * p, RATE_SCALE)

    immature(EGG, lambda age: EGG_SURVIVAL, EGG_MOVE)
    immature(LARVA,
             lambda age: LARVA_SURVIVAL_YOUNG if age <= 6 else LARVA_SURVIVAL_OLD,
             LARVA_MOVE)

    # Pupa: the survivors that emerge become female or male, 50:50.
    for age in stage_ages(PUPA):
        s = PUPA_SURVIVAL
        p = PUPA_MOVE.get(age, 0.0)
        growth[age][PUPA] = quantise(s * (1.0 - p), RATE_SCALE)
        half = quantise(s * p / 2.0, RATE_SCALE)
        develop[age][PUPA] = half            # into the female
        develop[age][PUPA + 1] = half        # into the male (extra column)

    for stage, params in ((FEMALE, FEMALE_SURVIVAL), (MALE, MALE_SURVIVAL)):
        last = STAGES[stage][1]
        for age in stage_ages(stage):
            if age < last:
                growth[age][stage] = quantise(adult_survival(age, params),
                                              RATE_SCALE)

    # Fecundity shape first, then scaled to the wanted mean fecundity.
    shape = new_table()
    for age in stage_ages(FEMALE):
        z = (age - FECUNDITY_PEAK_AGE) / FECUNDITY_SPREAD
        shape[age][FEMALE] = math.exp(-0.5 * z * z)
    lxj = build_lxj(growth, develop)
    f_shape = mean_fecundity(shape, develop, lxj)
    factor = TARGET_F / f_shape
    for age in stage_ages(FEMALE):
        fecundity[age][FEMALE] = quantise(shape[age][FEMALE] * factor,
                                          FECUNDITY_SCALE)
    return growth, develop, fecundity


# ---------------------------------------------------------------------------
# l(x,j), l(x), m(x) and the statistics
# ---------------------------------------------------------------------------

def build_lxj(growth, develop):
    """l(x,j) exactly as the loader builds it: stage outer, age inner."""
    lxj = new_table()
    lxj[0][1] = 1.0
    for stage in range(1, NR_STAGE + 1):
        for age in range(1, LAST_AGE + 1):
            lxj[age][stage] = (growth[age - 1][stage] * lxj[age - 1][stage]
                               + lxj[age][stage])
            if stage < NR_STAGE - 1:
                if stage >= NR_STAGE - 2:
                    lxj[age][stage + 2] = (develop[age - 1][stage + 1]
                                           * lxj[age - 1][stage])
                lxj[age][stage + 1] = (develop[age - 1][stage]
                                       * lxj[age - 1][stage])
    return lxj


def build_lx_mx(fecundity, lxj):
    lx, mx = [], []
    for age in range(LAST_AGE + 1):
        total = 0.0
        eggs = 0.0
        for stage in range(1, NR_STAGE + 1):
            total += lxj[age][stage]
            eggs += fecundity[age][stage] * lxj[age][stage]
        lx.append(total)
        mx.append(eggs / total)
    return lx, mx


def female_newborns(develop, lxj):
    """Fraction of the newborns that ever reaches the female stage."""
    return sum(develop[age][FEMALE - 1] * lxj[age][FEMALE - 1]
               for age in range(LAST_AGE + 1))


def mean_fecundity(fecundity, develop, lxj):
    eggs = sum(fecundity[age][FEMALE] * lxj[age][FEMALE]
               for age in range(LAST_AGE + 1))
    return eggs / female_newborns(develop, lxj)


def intrinsic_rate(lx, mx):
    """r from sum_x exp(-r (x+1)) l(x) m(x) = 1, by bisection to the last bit."""
    lm = [lx[age] * mx[age] for age in range(LAST_AGE + 1)]

    def excess(r):
        return sum(math.exp(-r * (age + 1)) * lm[age]
                   for age in range(LAST_AGE + 1)) - 1.0

    lo, hi = -1.0, 1.0
    if not (excess(lo) > 0.0 > excess(hi)):
        raise ValueError("no root of the Euler-Lotka equation in [-1, 1]")
    while True:
        mid = (lo + hi) / 2.0
        if mid == lo or mid == hi:
            break
        if excess(mid) > 0.0:
            lo = mid
        else:
            hi = mid
    return lo if abs(excess(lo)) <= abs(excess(hi)) else hi


def statistics(growth, develop, fecundity):
    lxj = build_lxj(growth, develop)
    lx, mx = build_lx_mx(fecundity, lxj)
    r0 = 0.0
    for age in range(LAST_AGE + 1):
        r0 += lx[age] * mx[age]
    r = intrinsic_rate(lx, mx)
    return {
        "lxj": lxj,
        "lx": lx,
        "mx": mx,
        "F": mean_fecundity(fecundity, develop, lxj),
        "Nf": female_newborns(develop, lxj),
        "R0": r0,
        "r": r,
        "lambda": math.exp(r),
        "T": math.log(r0) / r,
    }


def check_table(growth, develop, fecundity, stats):
    """Plausibility of the table; raises AssertionError on a fault."""
    lxj, lx = stats["lxj"], stats["lx"]
    for age in range(LAST_AGE + 1):
        assert lx[age] > 0.0, "nobody alive at age %d" % age
        for stage in range(1, NR_STAGE + 1):
            first, last = STAGES[stage][0], STAGES[stage][1]
            inside = first <= age <= last
            g = growth[age][stage]
            d = develop[age][stage] if stage <= PUPA else 0.0
            if stage == PUPA:
                d += develop[age][PUPA + 1]
            assert 0.0 <= g and 0.0 <= d and g + d <= 1.0, (age, stage)
            if not inside:
                assert g == 0.0 and d == 0.0 and lxj[age][stage] == 0.0, \
                    (age, stage)
                assert fecundity[age][stage] == 0.0, (age, stage)
            if g > 0.0:
                assert age + 1 <= last, (age, stage)
            if d > 0.0:
                assert age + 1 <= STAGES[stage + 1][1], (age, stage)
        for stage in (EGG, LARVA, PUPA, FEMALE, MALE):
            if age == STAGES[stage][0]:
                assert lxj[age][stage] > 0.0, "empty first age of stage %d" % stage
    for stage in (FEMALE, MALE):
        assert growth[STAGES[stage][1]][stage] == 0.0
    # R0 is the mean fecundity times the share of newborns that become female
    # (one newborn here, l(0,1) = 1).
    f_nf = stats["F"] * stats["Nf"] / 1.0
    assert abs(f_nf - stats["R0"]) <= 1e-12 * stats["R0"], (f_nf, stats["R0"])


# ---------------------------------------------------------------------------
# Number and line forms of the data file
# ---------------------------------------------------------------------------

def digits(value):
    """Up to 15 significant digits, no trailing zeros, no leading zero."""
    if isinstance(value, int) or (float(value).is_integer()
                                  and abs(value) < 1e15):
        return str(int(value))
    text = "%.15g" % value
    if "e" in text:
        mantissa, exponent = text.split("e")
        sign = exponent[0]
        return "%sE%s%02d" % (mantissa, sign, int(exponent[1:]))
    if text.startswith("0."):
        text = text[1:]
    elif text.startswith("-0."):
        text = "-" + text[2:]
    return text


def blank_led(value):
    text = digits(value)
    return text if text.startswith("-") else " " + text


def stripped(value):
    return blank_led(value)[1:]


def print_form(value):
    return blank_led(value) + " "


def item(value):
    if isinstance(value, str):
        return '"' + value + '"'
    return digits(value)


def write_line(*values):
    return ",".join(item(v) for v in values)


def value_lines(values, rounded=False, extra_row=False):
    """Lines of one stage's values, ten a line, stripped form."""
    if rounded:
        values = [round(v * RATE_SCALE) / RATE_SCALE for v in values]
    lines = []
    for start in range(0, len(values), 10):
        chunk = values[start:start + 10]
        text = ",".join(stripped(v) for v in chunk)
        is_last = start + 10 >= len(values)
        full = len(chunk) == 10
        if rounded and not extra_row and is_last and not full:
            text += " "
        if extra_row and full and not (is_last and start + 10 == len(values)):
            text += " "
        lines.append(text)
    return lines


ORDINALS = ["1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th", "9th",
            "10th"]

ET_LOGISTIC = ("Description: b (20), c (1), d (-0.2) (<0), a (10) for the "
               "economical threshold equation y=a+b/[1+c*exp(d*x)] "
               "(logistic curve)")


def release_block():
    lines = [item("Description: Number of additional releases (n>=0). "
                  "0 = no release. Change 0 to 1 , 2, .., 10 for 1, 2,... "
                  "releases"),
             item(0)]
    for r in range(1, 11):
        if r == 1:
            ask = "1st release: Enter day for the 1st additional release. (d1>=1)"
            structure = ("Description: Popu. structure (age = integer time "
                         "unit, stage, number) of the 1st add. release. "
                         "End with 0,0,0")
        else:
            ask = "%s release: Enter day for the %s release. (d%d>d%d)" % (
                ORDINALS[r - 1], ORDINALS[r - 1], r, r - 1)
            structure = ("Description: Popu. structure (age = integer time "
                         "unit, stage, number) of next release. "
                         "End with 0,0,0")
        lines += [item(ask), item(r), item(structure), "0, 1, 10", "0, 0, 0"]
    return lines


def data_file_lines(growth, develop, fecundity, stats):
    out = []
    add = out.append

    add(item("Description: the next three lines are project, date and user name."))
    add(item(PROJECT_NAME))
    add(item(PROJECT_DATE))
    add(item(PROJECT_USER))
    add(item("Description: Last age group is " + blank_led(LAST_AGE)
             + ", number of stages is " + blank_led(NR_STAGE)))
    add(stripped(LAST_AGE) + "," + stripped(NR_STAGE))

    add(item("Description: next lines are age intervals, stage name, "
             "weighing (cost) coefficient,density-dependent mortality"))
    for stage in range(1, NR_STAGE + 1):
        first, last, name, weigh, density = STAGES[stage]
        add(write_line(first, last, name[:4], weigh, density))

    add(item("Description: the female stage is" + blank_led(NR_STAGE - 1)))
    add(stripped(NR_STAGE - 1))
    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the fecundity."))
    add(item(1))
    count = len(stage_ages(FEMALE))
    add(item("Description: there are " + blank_led(count)
             + " fecundity data for female"))
    out += value_lines([fecundity[a][FEMALE] for a in stage_ages(FEMALE)])

    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the growth rate."))
    add(item(1))
    add(item("Description: the next lines are the growth rates for each stage."))
    for stage in range(1, NR_STAGE + 1):
        out += value_lines([growth[a][stage] for a in stage_ages(stage)])

    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the developmental rate."))
    add(item(1))
    add(item("Description: next lines are developmental rates"))
    for stage in range(1, NR_STAGE - 1):
        out += value_lines([develop[a][stage] for a in stage_ages(stage)],
                           rounded=True)
    out += value_lines([develop[a][NR_STAGE - 1]
                        for a in stage_ages(NR_STAGE - 2)],
                       rounded=True, extra_row=True)

    add(item("Description: next lines are initial population structure "
             "(age, stage, number), end with 0,0,0"))
    for stage in range(1, NR_STAGE + 1):
        for age in stage_ages(stage):
            for a, s, n in INITIAL_POPULATION:
                if a == age and s == stage and n != 0:
                    add(write_line(a, s, n))
    add(write_line(0, 0, 0))

    out += release_block()

    add(item("Description: There are two susceptible (weak) factors (the 1st "
             "for parasitoid and 2nd for rainfall, etc.)"))
    add(item(2))
    add(item("Description: Susceptible factor and the susceptibility "
             "coefficients for each stage."))
    for name, other in (("Parasitoid or predator", 1), ("Rainfall", 0.5)):
        coefs = [0] + [other] * (NR_STAGE - 1)
        add(item(name) + "," + ",".join(print_form(c) for c in coefs))

    add(item(ET_LOGISTIC))
    add(write_line(20, 1, -0.2, 10))
    add(item("Description: Density-dependent mortality coefficient for "
             "density below K and over K"))
    add(write_line(0.2, 1))

    add(item("Description: number of treatment = 1"))
    add(item(1))
    add(item("Description: first treatment at 10th day"))
    add(item(10))
    add(item("Description: Critical cumulative insect day is on 15th day"))
    add(item(15))
    add(item("Description: Code treatment is DDT, effective duration is one "
             "day, interval to next treatment is 10 days"))
    add(write_line("Pyrethrins", 1))
    add(item("Description: stage mortality due to treatment"))
    add(",".join(print_form(m) for m in [0] + [0.9] * (NR_STAGE - 1)))

    add(item("Description: time interval between treatment and sampling"))
    add(item(7))
    add(item("Description: Sampling stage is " + blank_led(NR_STAGE - 1)
             + " to " + blank_led(NR_STAGE)))
    add(write_line(NR_STAGE - 1, NR_STAGE))
    add(item("Previous cumulative weighed insect days"))
    add(item(0))
    add(item("Mean fecundity"))
    add(item(stats["F"]))
    add(item("Net reproductive rate"))
    add(item(stats["R0"]))
    add(item("Intrinsic rate of increase"))
    add(item(stats["r"]))
    add(item("Finite rate of increase"))
    add(item(stats["lambda"]))
    add(item("Mean generation time"))
    add(item(stats["T"]))
    add(item("Last age"))
    add(item(LAST_AGE))
    return out


# ---------------------------------------------------------------------------
# Read-back check
# ---------------------------------------------------------------------------

def read_items(text):
    """Items of a data file: quoted texts, numbers and unquoted texts."""
    items = []
    pos, end = 0, len(text)
    while True:
        while pos < end and text[pos] in " \r\n":
            pos += 1
        if pos >= end:
            return items
        if text[pos] == '"':
            close = text.index('"', pos + 1)
            items.append(("text", text[pos + 1:close]))
            pos = close + 1
        else:
            start = pos
            while pos < end and text[pos] not in ",\r\n":
                pos += 1
            raw = text[start:pos].strip()
            try:
                items.append(("number", float(raw)))
            except ValueError:
                items.append(("text", raw))
        while pos < end and text[pos] == " ":
            pos += 1
        if pos < end and text[pos] == ",":
            pos += 1
        elif text.startswith("\r\n", pos):
            pos += 2


def read_back(path):
    """Read the written file and return its tables and statistics."""
    raw = path.read_bytes()
    text = raw.decode("ascii")
    assert raw.endswith(b"\r\n")
    assert b"\n" not in raw.replace(b"\r\n", b""), "bare line feed"
    assert b"\r" not in raw.replace(b"\r\n", b""), "bare carriage return"
    items = read_items(text)
    pos = 0

    def take(kind=None):
        nonlocal pos
        k, v = items[pos]
        pos += 1
        if kind is not None:
            assert k == kind, (pos, k, v)
        return v

    def number():
        return take("number")

    take("text")
    assert take("text") == PROJECT_NAME
    assert take("text") == PROJECT_DATE
    assert take("text") == PROJECT_USER
    take("text")
    last_age, nr_stage = int(number()), int(number())
    assert (last_age, nr_stage) == (LAST_AGE, NR_STAGE)
    take("text")
    intervals = {}
    for stage in range(1, nr_stage + 1):
        first, last = int(number()), int(number())
        name = take("text")[:4]
        number()
        number()
        intervals[stage] = (first, last)
        assert (first, last, name) == STAGES[stage][:3]
    take("text")
    female = int(number())
    take("text")
    assert number() == 1
    take("text")
    growth, develop, fecundity = new_table(), new_table(), new_table()
    for age in range(intervals[female][0], intervals[female][1] + 1):
        fecundity[age][female] = number()
    take("text")
    assert number() == 1
    take("text")
    for stage in range(1, nr_stage + 1):
        for age in range(intervals[stage][0], intervals[stage][1] + 1):
            growth[age][stage] = number()
    take("text")
    assert number() == 1
    take("text")
    for stage in range(1, nr_stage - 1):
        for age in range(intervals[stage][0], intervals[stage][1] + 1):
            develop[age][stage] = number()
    for age in range(intervals[nr_stage - 2][0], intervals[nr_stage - 2][1] + 1):
        develop[age][nr_stage - 1] = number()
    take("text")
    triples = []
    while True:
        triple = (number(), number(), number())
        if triple[1] == 0:
            break
        triples.append(tuple(int(v) for v in triple))
    assert triples == INITIAL_POPULATION
    assert take("text").startswith("Description: Number of additional releases")
    nr_release = int(number())
    assert nr_release == 0
    release_items = items[pos:pos + 90]
    pos += 90
    assert [k for k, _ in release_items] == (
        ["text", "number", "text"] + ["number"] * 6) * 10
    assert take("text").startswith("Description: There are two susceptible")
    assert number() == 2
    take("text")
    for _ in range(2):
        take("text")
        for _ in range(nr_stage):
            number()
    assert take("text") == ET_LOGISTIC
    assert [number() for _ in range(4)] == [20, 1, -0.2, 10]
    take("text")
    assert [number(), number()] == [0.2, 1]
    take("text")
    assert number() == 1
    take("text")
    assert number() == 10
    take("text")
    assert number() == 15
    take("text")
    assert take("text") == "Pyrethrins"
    duration = int(number())
    take("text")
    assert [number() for _ in range(duration * nr_stage)] == \
        [0] + [0.9] * (nr_stage - 1)
    take("text")
    assert number() == 7
    take("text")
    assert [number(), number()] == [nr_stage - 1, nr_stage]
    assert take("text") == "Previous cumulative weighed insect days"
    assert number() == 0
    written = {}
    for label, key in (("Mean fecundity", "F"),
                       ("Net reproductive rate", "R0"),
                       ("Intrinsic rate of increase", "r"),
                       ("Finite rate of increase", "lambda"),
                       ("Mean generation time", "T")):
        assert take("text") == label
        written[key] = number()
    assert take("text") == "Last age"
    assert number() == LAST_AGE
    assert pos == len(items), "items left after the last age"
    return growth, develop, fecundity, written


# ---------------------------------------------------------------------------

def main(argv):
    if len(argv) > 1:
        path = Path(argv[1])
    else:
        path = Path(__file__).resolve().parent.parent / "examples" / "moth.txt"

    growth, develop, fecundity = build_rates()
    stats = statistics(growth, develop, fecundity)
    check_table(growth, develop, fecundity, stats)

    lines = data_file_lines(growth, develop, fecundity, stats)
    path.parent.mkdir(parents=True, exist_ok=True)
    with open(path, "w", encoding="ascii", newline="") as handle:
        handle.write("".join(line + "\r\n" for line in lines))

    # The file must give back exactly the tables, and statistics that agree
    # with the written ones to the 15 digits the file carries.
    g2, d2, f2, written = read_back(path)
    assert (g2, d2, f2) == (growth, develop, fecundity), "tables differ"
    again = statistics(g2, d2, f2)
    for key, value in written.items():
        assert value == float(digits(again[key])), (key, value, again[key])

    for stage in range(1, NR_STAGE + 1):
        first, last, name = STAGES[stage][:3]
        print("stage %d %-4s ages %2d..%2d" % (stage, name, first, last))
    for key in ("F", "R0", "r", "lambda", "T"):
        print("%-6s = %s" % (key, digits(stats[key])))
    print("Nf     = %s  (F * Nf = %r, R0 = %r)"
          % (digits(stats["Nf"]), stats["F"] * stats["Nf"], stats["R0"]))
    print("LastAge = %d" % LAST_AGE)
    print("wrote %s (%d lines)" % (path, len(lines)))


if __name__ == "__main__":
    main(sys.argv)
