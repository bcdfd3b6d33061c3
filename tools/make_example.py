#!/usr/bin/env python3
"""Build the example project data files in examples/.

Each example is the age-stage, two-sex life table of one species with one
age class per day, ages 0..last age: one or more immature stages, the first
of which receives the newborns, then the female and the male stage, both
reached from the last immature stage.

  moth        a moth: egg, larva, pupa, female, male (moth.txt)
  ladybeetle  a predatory lady beetle: egg, larva, pupa, female, male, with
              the consumption block C(x,j), the aphids an individual eats a
              day (ladybeetle.txt)
  aphid       its prey, an aphid: four nymphal instars, the female and a
              small share of males, every stage open to the lady beetle
              (aphid.txt)

For the moth the script also writes the files of the sampling buttons:
moth-0A4_Stage2StageTime.txt, the mean age at which a newborn cohort
enters each stage and, for each pair of stages, the mean time from the one
to the other and the ratio of their numbers; moth-larva-count.txt, one
field count of larvae (day, stage, count) to predict from and to project
from; and moth-field-counts.txt, weekly counts of larvae and moths in the
five-item form that the sampling chart reads.

The lady beetle and the aphid make a pair: a run of the beetle with its
consumption data writes the total predation of each day (the 10X file, with
the days before the release as a lag), and a run of the aphid under
predation reads it and takes the aphids eaten out of its stages with a
positive first susceptibility coefficient.

For each example the script

  1. chooses the survival g(x,j), development d(x,j) and fecundity f(x,female)
     of every age and stage, all with few decimals so that the file holds the
     very values the statistics are computed from;
  2. builds l(x,j), l(x) and m(x) with the same recursion that Vorlex uses
     when it loads a data file;
  3. computes the life-table statistics F, R0, r, lambda and T;
  4. writes the data file, every line ended by CR LF: the plain form, or the
     form with the consumption block C(x,j) for an example that eats;
  5. reads the file back item by item and checks that it gives the same
     tables and statistics.

Usage: python3 tools/make_example.py [--out-dir DIR] [NAME ...]
Without names it builds every example. The files go to the examples folder
next to this tools folder unless --out-dir names another one.

Standard library only.
"""

import argparse
import math
from pathlib import Path

RATE_SCALE = 10000        # growth and development rates: four decimals
FECUNDITY_SCALE = 100     # fecundity: two decimals
CONSUMPTION_SCALE = 10    # consumption: one decimal


def quantise(value, scale):
    """The value rounded to 1/scale, as the double nearest to k/scale."""
    return round(value * scale) / scale


def bell(peak_age, spread):
    """exp(-z^2/2) with z = (age - peak_age) / spread."""
    def shape(age):
        z = (age - peak_age) / spread
        return math.exp(-0.5 * z * z)
    return shape


def constant(value):
    return lambda age: value


# ---------------------------------------------------------------------------
# The examples
# ---------------------------------------------------------------------------

class Example:
    """One example data file: its life table and the items around it.

    stages            (first age, last age, name, weighing coefficient,
                      density coefficient) of stages 1..m; m-1 is the
                      female, m the male
    immature          (survival, move) of stages 1..m-2: survival(age) is
                      the probability of surviving the day, move[age] the
                      share of the survivors that moves on to the next
                      stage (absent: 0); g = s (1 - p), d = s p
    male_share        share of the individuals leaving the last immature
                      stage that become male
    female_survival,  adult daily survival (base, age where the decline
    male_survival     starts, slope): base - slope * max(0, age - start)
    fecundity_shape   relative daily births of the female at each age,
                      scaled so that the mean fecundity F is near target_f
    consumption       None (plain data file), or per stage a function of
                      age giving its C(x,j); stages not named eat nothing
    initial_population  (age, stage, number) records
    weak_factors      the two susceptible factors: (name, coefficient of
                      each stage)
    control_mortality stage mortality of the template treatment
    """

    def __init__(self, name, **fields):
        self.name = name
        self.consumption = None
        self.__dict__.update(fields)
        self.nr_stage = len(self.stages)
        self.female = self.nr_stage - 1
        self.male = self.nr_stage
        self.last_immature = self.nr_stage - 2

    def first(self, stage):
        return self.stages[stage - 1][0]

    def last(self, stage):
        return self.stages[stage - 1][1]

    def stage_name(self, stage):
        return self.stages[stage - 1][2]

    def stage_ages(self, stage):
        return range(self.first(stage), self.last(stage) + 1)

    def new_table(self):
        return [[0.0] * (self.nr_stage + 1) for _ in range(self.last_age + 1)]

    @property
    def with_cxj(self):
        return self.consumption is not None


MOTH = Example(
    "moth",
    file_name="moth.txt",
    project=("Moth demonstration", "2026-11-21", "Vorlex team"),
    last_age=45,
    stages=[(0, 4, "Egg", 0, 0.2),
            (3, 20, "Larv", 1, 1),
            (15, 28, "Pupa", 0, 0.2),
            (22, 45, "Fema", 0.5, 0.5),
            (22, 45, "Male", 0.5, 0.5)],
    immature=[
        # egg
        (constant(0.955), {2: 0.2, 3: 0.7, 4: 1.0}),
        # larva: first instars (ages 3..6) die more often
        (lambda age: 0.955 if age <= 6 else 0.97,
         {14: 0.05, 15: 0.15, 16: 0.3, 17: 0.45, 18: 0.6, 19: 0.75,
          20: 1.0}),
        # pupa: the moths that emerge are half female, half male
        (constant(0.98),
         {21: 0.05, 22: 0.15, 23: 0.3, 24: 0.45, 25: 0.6, 26: 0.75, 27: 0.9,
          28: 1.0}),
    ],
    male_share=0.5,
    female_survival=(0.97, 28, 0.012),
    male_survival=(0.96, 27, 0.013),
    # bell-shaped egg laying around age 30
    fecundity_shape=bell(30, 4.0),
    target_f=250.0,
    initial_population=[(0, 1, 10), (8, 2, 5), (12, 2, 3)],
    weak_factors=[("Parasitoid or predator", [0, 1, 1, 1, 1]),
                  ("Rainfall", [0, 0.5, 0.5, 0.5, 0.5])],
    control_mortality=[0, 0.9, 0.9, 0.9, 0.9],
    # the field worker's count: 40 larvae on the day of sampling
    larva_count=40,
    # weekly counts (day, stage, count) of a field, larvae and moths
    field_counts=[(0, 2, 40), (7, 2, 36), (14, 2, 22), (21, 2, 6),
                  (21, 4, 9), (28, 4, 12), (35, 4, 7), (42, 4, 2)],
)


# The lady beetle at about 25 C: eggs hatch after 2-4 days, four larval
# instars take some 10-14 days, the pupa 3-6 days; adults emerge from about
# day 17 on and the females lay for some five weeks after a pre-oviposition
# period of about a week.

LADYBEETLE_LARVA_CONSUMPTION = {
    # aphids a larva eats on each day of age: the first instar takes a few,
    # the fourth some sixty; the oldest larvae, about to pupate, eat less
    3: 5, 4: 7, 5: 10, 6: 14, 7: 19, 8: 25, 9: 32, 10: 40, 11: 47, 12: 53,
    13: 57, 14: 60, 15: 60, 16: 58, 17: 54, 18: 48,
}

def ladybeetle_fecundity(age):
    """Eggs laid a day, relative to the most: none in the pre-oviposition
    period up to age 24, a peak at age 34, a long decline."""
    t = (age - 24) / 10.0
    return t ** 1.5 * math.exp(-1.5 * (t - 1.0)) if t > 0 else 0.0


def ladybeetle_female_consumption(age):
    """A female eats about 35 aphids a day, up to 60 while she lays most."""
    return 35 + 25 * ladybeetle_fecundity(age)


def ladybeetle_male_consumption(age):
    """A male eats about 35 aphids a day, less in old age."""
    return 35 - 0.3 * max(0, age - 50)


LADYBEETLE = Example(
    "ladybeetle",
    file_name="ladybeetle.txt",
    project=("Lady beetle, aphid predator", "2026-11-22", "Vorlex team"),
    last_age=75,
    stages=[(0, 4, "Egg", 0, 0.2),
            (3, 18, "Larv", 1, 1),
            (13, 25, "Pupa", 0, 0.2),
            (18, 75, "Fema", 0.5, 0.5),
            (18, 75, "Male", 0.5, 0.5)],
    immature=[
        # egg: some eggs never hatch or are eaten by siblings
        (constant(0.95), {2: 0.2, 3: 0.75, 4: 1.0}),
        # larva: the first instars die most often
        (lambda age: 0.93 if age <= 5 else 0.97,
         {12: 0.05, 13: 0.15, 14: 0.3, 15: 0.5, 16: 0.7, 17: 0.85, 18: 1.0}),
        # pupa: half female, half male
        (constant(0.985),
         {17: 0.1, 18: 0.2, 19: 0.35, 20: 0.5, 21: 0.7, 22: 0.85, 23: 0.9,
          24: 0.95, 25: 1.0}),
    ],
    male_share=0.5,
    female_survival=(0.99, 45, 0.01),
    male_survival=(0.985, 40, 0.01),
    fecundity_shape=ladybeetle_fecundity,
    target_f=600.0,
    consumption={2: LADYBEETLE_LARVA_CONSUMPTION.get,
                 4: ladybeetle_female_consumption,
                 5: ladybeetle_male_consumption},
    # the release: 10 females and 10 males, young adults about to lay
    initial_population=[(24, 4, 10), (24, 5, 10)],
    weak_factors=[("Parasitoid or predator", [0, 1, 1, 1, 1]),
                  ("Rainfall", [0, 0.5, 0.5, 0.5, 0.5])],
    control_mortality=[0, 0.9, 0.9, 0.9, 0.9],
)


# The aphid at about 25 C: born live, four nymphal instars of one to two
# days each, adults from day 6 on; a female bears young for some three weeks,
# most in her first ten days as an adult.  Summer colonies are all female
# (parthenogenetic); the table keeps a male stage with a small share of the
# emerging adults.

def aphid_fecundity(age):
    """Nymphs born a day: a fast start after the last moult, a long tail."""
    t = age - 6
    return t * math.exp(-t / 4.0) if t > 0 else 0.0


APHID = Example(
    "aphid",
    file_name="aphid.txt",
    project=("Aphid, lady beetle prey", "2026-11-22", "Vorlex team"),
    last_age=35,
    stages=[(0, 3, "N1", 0.25, 1),
            (2, 5, "N2", 0.5, 1),
            (3, 7, "N3", 0.75, 1),
            (5, 10, "N4", 1, 1),
            (6, 35, "Fema", 1, 1),
            (6, 25, "Male", 1, 1)],
    immature=[
        (constant(0.96), {1: 0.6, 2: 0.9, 3: 1.0}),
        (constant(0.97), {2: 0.3, 3: 0.65, 4: 0.9, 5: 1.0}),
        (constant(0.97), {4: 0.45, 5: 0.75, 6: 0.9, 7: 1.0}),
        (constant(0.97), {5: 0.2, 6: 0.5, 7: 0.8, 8: 0.9, 9: 0.95,
                          10: 1.0}),
    ],
    male_share=0.02,
    female_survival=(0.98, 16, 0.025),
    male_survival=(0.95, 12, 0.03),
    fecundity_shape=aphid_fecundity,
    target_f=60.0,
    # a colony of 1000: 600 nymphs and 400 adults of several ages
    initial_population=[(1, 1, 200), (3, 2, 160), (5, 3, 130), (7, 4, 110),
                        (8, 5, 130), (11, 5, 140), (14, 5, 130)],
    weak_factors=[("Lady beetle", [1, 1, 1, 1, 1, 1]),
                  ("Rainfall", [0.5, 0.5, 0.5, 0.5, 0.5, 0.5])],
    control_mortality=[0.9, 0.9, 0.9, 0.9, 0.9, 0.9],
)

EXAMPLES = {example.name: example for example in (MOTH, LADYBEETLE, APHID)}


# Long-lived tables, not bundled: the largest table the program takes, for
# timing whole runs, and a smaller one of the same kind for a long golden
# run. An egg stage, larval instars and a pupa share three quarters of the
# life evenly, each overlapping its neighbours by a quarter of its length;
# the adults live on to the last age.

def long_lived(name, last_age, immature_count):
    span = (3 * last_age // 4) // immature_count
    overlap = span // 4
    names = (["Egg"] + ["L%d" % k for k in range(1, immature_count - 1)]
             + ["Pupa"])
    stages, immature = [], []
    first = 0
    for stage in range(1, immature_count + 1):
        ramp = stage * span - overlap
        last = stage * span + overlap
        weigh = 0 if stage in (1, immature_count) else 1
        stages.append((first, last, names[stage - 1], weigh, 1))
        width = last - ramp + 1
        immature.append((constant(0.998),
                         {age: (age - ramp + 1) / width
                          for age in range(ramp, last + 1)}))
        first = ramp + 1
    stages += [(first, last_age, "Fema", 0.5, 0.5),
               (first, last_age, "Male", 0.5, 0.5)]
    adult_life = last_age - first
    m = immature_count + 2
    return Example(
        name,
        file_name=name + ".txt",
        project=("Long-lived beetle", "2026-11-22", "Vorlex team"),
        last_age=last_age,
        stages=stages,
        immature=immature,
        male_share=0.5,
        female_survival=(0.999, last_age - 150, 0.0033),
        male_survival=(0.998, last_age - 150, 0.0033),
        fecundity_shape=bell(first + adult_life // 3, adult_life / 6.0),
        target_f=40.0,
        # a few of every stage, in the middle of its ages
        initial_population=[((s[0] + s[1]) // 2, stage, 20)
                            for stage, s in enumerate(stages, start=1)],
        weak_factors=[("Parasitoid or predator", [0] + [1] * (m - 1)),
                      ("Rainfall", [0] + [0.5] * (m - 1))],
        control_mortality=[0] + [0.9] * (m - 1),
    )


LONG_LIVED = {table.name: table for table in (
    # the largest table: 1005 ages, nine immature stages and two sexes
    long_lived("beetle-largest", 1004, 9),
    # the table of the long golden run
    long_lived("beetle-long", 300, 6),
)}


# ---------------------------------------------------------------------------
# Life table
# ---------------------------------------------------------------------------

def adult_survival(age, params):
    base, start, slope = params
    return base - slope * max(0, age - start)


def build_rates(ex):
    """Return growth, develop and fecundity tables indexed [age][stage].

    develop[age][female] is the extra column: the move of the last immature
    stage into the male, filled at the ages of that stage.
    """
    growth, develop, fecundity = ex.new_table(), ex.new_table(), ex.new_table()

    for stage in range(1, ex.last_immature + 1):
        survival, move = ex.immature[stage - 1]
        for age in ex.stage_ages(stage):
            s = survival(age)
            p = move.get(age, 0.0)
            growth[age][stage] = quantise(s * (1.0 - p), RATE_SCALE)
            if stage < ex.last_immature:
                develop[age][stage] = quantise(s * p, RATE_SCALE)
            else:
                # the survivors that emerge become female or male
                develop[age][stage] = quantise(
                    s * p * (1.0 - ex.male_share), RATE_SCALE)
                develop[age][stage + 1] = quantise(s * p * ex.male_share,
                                                   RATE_SCALE)

    for stage, params in ((ex.female, ex.female_survival),
                          (ex.male, ex.male_survival)):
        last = ex.last(stage)
        for age in ex.stage_ages(stage):
            if age < last:
                growth[age][stage] = quantise(adult_survival(age, params),
                                              RATE_SCALE)

    # Fecundity shape first, then scaled to the wanted mean fecundity.
    shape = ex.new_table()
    for age in ex.stage_ages(ex.female):
        shape[age][ex.female] = ex.fecundity_shape(age)
    lxj = build_lxj(ex, growth, develop)
    f_shape = mean_fecundity(ex, shape, develop, lxj)
    factor = ex.target_f / f_shape
    for age in ex.stage_ages(ex.female):
        fecundity[age][ex.female] = quantise(shape[age][ex.female] * factor,
                                             FECUNDITY_SCALE)
    return growth, develop, fecundity


def build_consumption(ex):
    """C(x,j) of the example, indexed [age][stage], or None."""
    if not ex.with_cxj:
        return None
    table = ex.new_table()
    for stage, rate in ex.consumption.items():
        for age in ex.stage_ages(stage):
            table[age][stage] = quantise(rate(age), CONSUMPTION_SCALE)
    return table


# ---------------------------------------------------------------------------
# l(x,j), l(x), m(x) and the statistics
# ---------------------------------------------------------------------------

def build_lxj(ex, growth, develop):
    """l(x,j) exactly as the loader builds it: stage outer, age inner."""
    m = ex.nr_stage
    lxj = ex.new_table()
    lxj[0][1] = 1.0
    for stage in range(1, m + 1):
        for age in range(1, ex.last_age + 1):
            lxj[age][stage] = (growth[age - 1][stage] * lxj[age - 1][stage]
                               + lxj[age][stage])
            if stage < m - 1:
                if stage >= m - 2:
                    lxj[age][stage + 2] = (develop[age - 1][stage + 1]
                                           * lxj[age - 1][stage])
                lxj[age][stage + 1] = (develop[age - 1][stage]
                                       * lxj[age - 1][stage])
    return lxj


def build_lx_mx(ex, fecundity, lxj):
    lx, mx = [], []
    for age in range(ex.last_age + 1):
        total = 0.0
        eggs = 0.0
        for stage in range(1, ex.nr_stage + 1):
            total += lxj[age][stage]
            eggs += fecundity[age][stage] * lxj[age][stage]
        lx.append(total)
        mx.append(eggs / total)
    return lx, mx


def female_newborns(ex, develop, lxj):
    """Fraction of the newborns that ever reaches the female stage."""
    return sum(develop[age][ex.female - 1] * lxj[age][ex.female - 1]
               for age in range(ex.last_age + 1))


def mean_fecundity(ex, fecundity, develop, lxj):
    eggs = sum(fecundity[age][ex.female] * lxj[age][ex.female]
               for age in range(ex.last_age + 1))
    return eggs / female_newborns(ex, develop, lxj)


def intrinsic_rate(ex, lx, mx):
    """r from sum_x exp(-r (x+1)) l(x) m(x) = 1, by bisection to the last bit."""
    lm = [lx[age] * mx[age] for age in range(ex.last_age + 1)]

    def excess(r):
        return sum(math.exp(-r * (age + 1)) * lm[age]
                   for age in range(ex.last_age + 1)) - 1.0

    # exp(-r (x+1)) must stay within the double range at the last age
    bound = min(1.0, 700.0 / (ex.last_age + 1))
    lo, hi = -bound, bound
    if not (excess(lo) > 0.0 > excess(hi)):
        raise ValueError("no root of the Euler-Lotka equation in [-bound, bound]")
    while True:
        mid = (lo + hi) / 2.0
        if mid == lo or mid == hi:
            break
        if excess(mid) > 0.0:
            lo = mid
        else:
            hi = mid
    return lo if abs(excess(lo)) <= abs(excess(hi)) else hi


def statistics(ex, growth, develop, fecundity):
    lxj = build_lxj(ex, growth, develop)
    lx, mx = build_lx_mx(ex, fecundity, lxj)
    r0 = 0.0
    for age in range(ex.last_age + 1):
        r0 += lx[age] * mx[age]
    r = intrinsic_rate(ex, lx, mx)
    return {
        "lxj": lxj,
        "lx": lx,
        "mx": mx,
        "F": mean_fecundity(ex, fecundity, develop, lxj),
        "Nf": female_newborns(ex, develop, lxj),
        "R0": r0,
        "r": r,
        "lambda": math.exp(r),
        "T": math.log(r0) / r,
    }


def check_table(ex, growth, develop, fecundity, consumption, stats):
    """Plausibility of the table; raises AssertionError on a fault."""
    lxj, lx = stats["lxj"], stats["lx"]
    assert ex.first(1) == 0, "the newborns enter the first stage at age 0"
    assert len(ex.immature) == ex.last_immature >= 1
    for age in range(ex.last_age + 1):
        assert lx[age] > 0.0, "nobody alive at age %d" % age
        for stage in range(1, ex.nr_stage + 1):
            first, last = ex.first(stage), ex.last(stage)
            assert 0 <= first <= last <= ex.last_age, stage
            inside = first <= age <= last
            g = growth[age][stage]
            d = develop[age][stage] if stage <= ex.last_immature else 0.0
            if stage == ex.last_immature:
                d += develop[age][stage + 1]
            assert 0.0 <= g and 0.0 <= d and g + d <= 1.0, (age, stage)
            if not inside:
                assert g == 0.0 and d == 0.0 and lxj[age][stage] == 0.0, \
                    (age, stage)
                assert fecundity[age][stage] == 0.0, (age, stage)
                if consumption is not None:
                    assert consumption[age][stage] == 0.0, (age, stage)
            if consumption is not None:
                assert consumption[age][stage] >= 0.0, (age, stage)
            if g > 0.0:
                assert age + 1 <= last, (age, stage)
            if d > 0.0:
                targets = [stage + 1]
                if stage == ex.last_immature:
                    targets.append(ex.male)
                for target in targets:
                    assert (ex.first(target) <= age + 1
                            <= ex.last(target)), (age, stage, target)
        for stage in range(1, ex.nr_stage + 1):
            if age == ex.first(stage):
                assert lxj[age][stage] > 0.0, "empty first age of stage %d" % stage
    for stage in (ex.female, ex.male):
        assert growth[ex.last(stage)][stage] == 0.0
    # R0 is the mean fecundity times the share of newborns that become female
    # (one newborn here, l(0,1) = 1).
    f_nf = stats["F"] * stats["Nf"] / 1.0
    assert abs(f_nf - stats["R0"]) <= 1e-12 * stats["R0"], (f_nf, stats["R0"])


def consumption_figures(ex, consumption, stats):
    """Mean daily consumption of each eating stage (weighed by l(x,j)) and
    the lifetime consumption of a newborn and of a newly emerged adult."""
    lxj = stats["lxj"]
    means = {}
    for stage in range(1, ex.nr_stage + 1):
        alive = sum(lxj[age][stage] for age in ex.stage_ages(stage))
        eaten = sum(consumption[age][stage] * lxj[age][stage]
                    for age in ex.stage_ages(stage))
        if eaten > 0.0:
            means[stage] = eaten / alive
    newborn = sum(consumption[age][stage] * lxj[age][stage]
                  for age in range(ex.last_age + 1)
                  for stage in range(1, ex.nr_stage + 1))
    return means, newborn


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

# The selector of the logistic threshold differs between the two forms of the
# data file; each reader knows only its own.
ET_LOGISTIC = ("Description: b (20), c (1), d (-0.2) (<0), a (10) for the "
               "economical threshold equation y=a+b/[1+c*exp(d*x)] "
               "(logistic curve)")
ET_LOGISTIC_WITH_CXJ = ("Description: b, c, d (<0), a for the economical "
                        "threshold equation y=a+b/[1+c*exp(d*x)] "
                        "(logistic curve)")

CONSUMPTION_DECREASE = ("Description: decrease coefficient (MODIFY next data "
                        "to decrease the consumption rate. 0<=D<=1)")
CONSUMPTION_RATES = ("Description: the next lines are the consumption "
                     "(predation or parasitism) rates c(x,j) for each stage.")


def et_selector(ex):
    return ET_LOGISTIC_WITH_CXJ if ex.with_cxj else ET_LOGISTIC


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


def data_file_lines(ex, growth, develop, fecundity, consumption, stats):
    out = []
    add = out.append
    m = ex.nr_stage

    add(item("Description: the next three lines are project, date and user name."))
    for text in ex.project:
        add(item(text))
    add(item("Description: Last age group is " + blank_led(ex.last_age)
             + ", number of stages is " + blank_led(m)))
    add(stripped(ex.last_age) + "," + stripped(m))

    add(item("Description: next lines are age intervals, stage name, "
             "weighing (cost) coefficient,density-dependent mortality"))
    for first, last, name, weigh, density in ex.stages:
        add(write_line(first, last, name[:4], weigh, density))

    add(item("Description: the female stage is" + blank_led(ex.female)))
    add(stripped(ex.female))
    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the fecundity."))
    add(item(1))
    count = len(ex.stage_ages(ex.female))
    add(item("Description: there are " + blank_led(count)
             + " fecundity data for female"))
    out += value_lines([fecundity[a][ex.female]
                        for a in ex.stage_ages(ex.female)])

    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the growth rate."))
    add(item(1))
    add(item("Description: the next lines are the growth rates for each stage."))
    for stage in range(1, m + 1):
        out += value_lines([growth[a][stage] for a in ex.stage_ages(stage)])

    add(item("Description: modify the following decrease rate for Vorlex "
             "program to lower the developmental rate."))
    add(item(1))
    add(item("Description: next lines are developmental rates"))
    for stage in range(1, ex.last_immature + 1):
        out += value_lines([develop[a][stage] for a in ex.stage_ages(stage)],
                           rounded=True)
    out += value_lines([develop[a][ex.female]
                        for a in ex.stage_ages(ex.last_immature)],
                       rounded=True, extra_row=True)

    if consumption is not None:
        add(item(CONSUMPTION_DECREASE))
        add(item(1))
        add(item(CONSUMPTION_RATES))
        for stage in range(1, m + 1):
            out += value_lines([consumption[a][stage]
                                for a in ex.stage_ages(stage)])

    add(item("Description: next lines are initial population structure "
             "(age, stage, number), end with 0,0,0"))
    for stage in range(1, m + 1):
        for age in ex.stage_ages(stage):
            for a, s, n in ex.initial_population:
                if a == age and s == stage and n != 0:
                    add(write_line(a, s, n))
    add(write_line(0, 0, 0))

    out += release_block()

    add(item("Description: There are two susceptible (weak) factors (the 1st "
             "for parasitoid and 2nd for rainfall, etc.)"))
    add(item(len(ex.weak_factors)))
    add(item("Description: Susceptible factor and the susceptibility "
             "coefficients for each stage."))
    for name, coefs in ex.weak_factors:
        add(item(name) + "," + ",".join(print_form(c) for c in coefs))

    add(item(et_selector(ex)))
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
    add(",".join(print_form(c) for c in ex.control_mortality))

    add(item("Description: time interval between treatment and sampling"))
    add(item(7))
    add(item("Description: Sampling stage is " + blank_led(ex.female)
             + " to " + blank_led(ex.male)))
    add(write_line(ex.female, ex.male))
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
    add(item(ex.last_age))
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


def read_back(ex, path):
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
    for text in ex.project:
        assert take("text") == text
    take("text")
    last_age, nr_stage = int(number()), int(number())
    assert (last_age, nr_stage) == (ex.last_age, ex.nr_stage)
    take("text")
    intervals = {}
    for stage in range(1, nr_stage + 1):
        first, last = int(number()), int(number())
        name = take("text")[:4]
        number()
        number()
        intervals[stage] = (first, last)
        assert (first, last, name) == tuple(ex.stages[stage - 1][:3])
    take("text")
    female = int(number())
    assert female == nr_stage - 1
    take("text")
    assert number() == 1
    take("text")
    growth, develop, fecundity = ex.new_table(), ex.new_table(), ex.new_table()
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
    consumption = None
    if ex.with_cxj:
        assert take("text") == CONSUMPTION_DECREASE
        assert number() == 1
        assert take("text") == CONSUMPTION_RATES
        consumption = ex.new_table()
        for stage in range(1, nr_stage + 1):
            for age in range(intervals[stage][0], intervals[stage][1] + 1):
                consumption[age][stage] = number()
    assert take("text").startswith("Description: next lines are initial")
    triples = []
    while True:
        triple = (number(), number(), number())
        if triple[1] == 0:
            break
        triples.append(tuple(int(v) for v in triple))
    assert triples == sorted(ex.initial_population, key=lambda r: (r[1], r[0]))
    assert take("text").startswith("Description: Number of additional releases")
    nr_release = int(number())
    assert nr_release == 0
    release_items = items[pos:pos + 90]
    pos += 90
    assert [k for k, _ in release_items] == (
        ["text", "number", "text"] + ["number"] * 6) * 10
    assert take("text").startswith("Description: There are two susceptible")
    assert number() == len(ex.weak_factors)
    take("text")
    for name, coefs in ex.weak_factors:
        assert take("text") == name
        assert [number() for _ in range(nr_stage)] == coefs
    assert take("text") == et_selector(ex)
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
        ex.control_mortality
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
    assert number() == ex.last_age
    assert pos == len(items), "items left after the last age"
    return growth, develop, fecundity, consumption, written


# ---------------------------------------------------------------------------

# ---------------------------------------------------------------------------
# Stage-to-stage times and sampling files
# ---------------------------------------------------------------------------

TIME_SCALE = 100          # stage entry ages and times: two decimals
RATIO_SCALE = 10000       # ratios of numbers: four decimals


def stage_entries(ex, develop, lxj):
    """Per stage the number of a newborn cohort (l(0,1) = 1) that ever
    enters it and their mean age of entry: newborns enter stage 1 at age 0,
    stage j > 1 at age x with d(x-1, j-1) l(x-1, j-1); the male comes out
    of the last immature stage through the extra develop column."""
    numbers, ages = {1: 1.0}, {1: 0.0}
    for stage in range(2, ex.nr_stage + 1):
        source = ex.last_immature if stage == ex.male else stage - 1
        column = ex.female if stage == ex.male else stage - 1
        entering = [develop[age - 1][column] * lxj[age - 1][source]
                    for age in range(1, ex.last_age + 1)]
        number = sum(entering)
        numbers[stage] = number
        ages[stage] = sum((age + 1) * n for age, n in enumerate(entering)) / number
    return numbers, ages


def stage_pairs(ex):
    """The pairs in the order of the file: i = 1..m-3 with j = i+1..m, then
    the last immature stage with the two adult stages."""
    m = ex.nr_stage
    pairs = [(i, j) for i in range(1, m - 2) for j in range(i + 1, m + 1)]
    return pairs + [(m - 2, m - 1), (m - 2, m)]


def stage_time_lines(ex, numbers, ages):
    entry = {stage: quantise(ages[stage], TIME_SCALE) for stage in ages}
    lines = [item("%s: mean age of entry into each stage, then the mean time "
                  "from stage to stage and the ratio of their numbers, for a "
                  "cohort of newborn eggs" % ex.project[0])]
    for stage in range(1, ex.nr_stage + 1):
        lines.append(write_line(ex.stage_name(stage), entry[stage]))
    lines.append(item("From stage, to stage, time, ratio"))
    for i, j in stage_pairs(ex):
        lines.append(write_line(ex.stage_name(i), ex.stage_name(j),
                                quantise(entry[j] - entry[i], TIME_SCALE),
                                quantise(numbers[j] / numbers[i], RATIO_SCALE)))
    return lines


def build_sampling(ex, folder, develop, lxj):
    """Write the moth's stage-to-stage file and its two sampling files."""
    numbers, ages = stage_entries(ex, develop, lxj)
    files = {
        "moth-0A4_Stage2StageTime.txt": stage_time_lines(ex, numbers, ages),
        # three-item records: day, stage, count; then the end record
        "moth-larva-count.txt": [
            item("Moth demonstration: larvae counted in the field"),
            item("Day, stage, count"),
            write_line(0, 2, ex.larva_count),
            write_line(0, 0, 0)],
        # five-item records: field, day, place, stage, count; then a record
        # of field 0 and count 0, the last line
        "moth-field-counts.txt": [
            item("Moth demonstration: weekly counts of larvae and moths"),
            item("Field, day, place, stage, count")]
        + [write_line(1, day, "North edge", stage, count)
           for day, stage, count in ex.field_counts]
        + [write_line(0, 0, "", 0, 0)],
    }
    for name, lines in files.items():
        with open(folder / name, "w", encoding="ascii", newline="") as handle:
            handle.write("".join(line + "\r\n" for line in lines))
        print("  wrote %s (%d lines)" % (folder / name, len(lines)))
    for stage in range(1, ex.nr_stage + 1):
        print("  %-4s entered by %.4f of the cohort at mean age %.2f"
              % (ex.stage_name(stage), numbers[stage], ages[stage]))


def build(ex, folder):
    """Write the example's data file into folder, check it, report it."""
    path = folder / ex.file_name
    growth, develop, fecundity = build_rates(ex)
    consumption = build_consumption(ex)
    stats = statistics(ex, growth, develop, fecundity)
    check_table(ex, growth, develop, fecundity, consumption, stats)

    lines = data_file_lines(ex, growth, develop, fecundity, consumption, stats)
    path.parent.mkdir(parents=True, exist_ok=True)
    with open(path, "w", encoding="ascii", newline="") as handle:
        handle.write("".join(line + "\r\n" for line in lines))

    # The file must give back exactly the tables, and statistics that agree
    # with the written ones to the 15 digits the file carries.
    g2, d2, f2, c2, written = read_back(ex, path)
    assert (g2, d2, f2) == (growth, develop, fecundity), "tables differ"
    assert c2 == consumption, "consumption differs"
    again = statistics(ex, g2, d2, f2)
    for key, value in written.items():
        assert value == float(digits(again[key])), (key, value, again[key])

    print("%s:" % ex.name)
    for stage in range(1, ex.nr_stage + 1):
        print("  stage %d %-4s ages %2d..%2d" % (
            stage, ex.stage_name(stage), ex.first(stage), ex.last(stage)))
    for key in ("F", "R0", "r", "lambda", "T"):
        print("  %-6s = %s" % (key, digits(stats[key])))
    print("  Nf     = %s  (F * Nf = %r, R0 = %r)"
          % (digits(stats["Nf"]), stats["F"] * stats["Nf"], stats["R0"]))
    print("  LastAge = %d" % ex.last_age)
    if consumption is not None:
        means, newborn = consumption_figures(ex, consumption, stats)
        for stage, mean in means.items():
            print("  mean daily consumption of %-4s = %.1f"
                  % (ex.stage_name(stage), mean))
        print("  lifetime consumption of a newborn = %.1f" % newborn)
    print("  wrote %s (%d lines)" % (path, len(lines)))
    if hasattr(ex, "larva_count"):
        build_sampling(ex, folder, develop, stats["lxj"])


def main():
    parser = argparse.ArgumentParser(
        description="Build the example project data files.")
    parser.add_argument("names", nargs="*", metavar="NAME",
                        help="examples to build: %s (default: all), "
                        "or one of the long-lived tables that are not "
                        "bundled: %s"
                        % (", ".join(EXAMPLES), ", ".join(LONG_LIVED)))
    parser.add_argument("--out-dir", type=Path,
                        default=Path(__file__).resolve().parent.parent
                        / "examples",
                        help="folder of the files (default: examples/)")
    args = parser.parse_args()
    tables = dict(EXAMPLES, **LONG_LIVED)
    unknown = [name for name in args.names if name not in tables]
    if unknown:
        parser.error("no example named %s" % ", ".join(unknown))
    for name in args.names or list(EXAMPLES):
        build(tables[name], args.out_dir)


if __name__ == "__main__":
    main()
