#include "model/LifeTableStatistics.h"

#include "model/Model.h"

#include <cmath>

namespace vorlex {

namespace {

// The left side of the Euler-Lotka equation at r; it falls as r grows.
double eulerLotka(const Model& m, double r) {
  double sum = 0;
  for (int x = 0; x <= m.LastAge; ++x)
    sum += std::exp(-r * (x + 1)) * m.Lx(x) * m.Mx(x);
  return sum;
}

// r by bisection: first a bracket that doubles away from 0 until the sum
// crosses 1, then halving until the two ends are neighbouring doubles.
double intrinsicRate(const Model& m, double R0) {
  if (R0 == 1)
    return 0;
  double lo = 0, hi = 0;
  if (R0 > 1) {
    hi = 1;
    while (eulerLotka(m, hi) > 1)
      hi *= 2;
  } else {
    lo = -1;
    while (eulerLotka(m, lo) < 1)
      lo *= 2;
  }
  for (;;) {
    const double mid = lo + (hi - lo) / 2;
    if (mid <= lo || mid >= hi)
      return std::abs(eulerLotka(m, lo) - 1) <= std::abs(eulerLotka(m, hi) - 1) ? lo : hi;
    (eulerLotka(m, mid) > 1 ? lo : hi) = mid;
  }
}

} // namespace

LifeTableStatistics lifeTableStatistics(const Model& m) {
  LifeTableStatistics s;
  double R0 = 0, ageWeighed = 0;
  for (int x = 0; x <= m.LastAge; ++x) {
    R0 += m.Lx(x) * m.Mx(x);
    ageWeighed += (x + 1) * m.Lx(x) * m.Mx(x);
  }
  s.R0 = R0;

  const int lastImmature = m.NrStage - 2;
  if (lastImmature >= 1) {
    double becomesFemale = 0;
    for (int x = 0; x < m.LastAge; ++x)
      becomesFemale += m.DevelopRate(x, lastImmature) * m.Lxj(x, lastImmature);
    if (becomesFemale > 0)
      s.F = R0 / becomesFemale;
  }

  // Without reproduction no rate of increase solves the equation.
  if (R0 > 0) {
    const double r = intrinsicRate(m, R0);
    s.r = r;
    s.lambda = std::exp(r);
    s.T = r != 0 ? std::log(R0) / r : ageWeighed / R0;
  }
  return s;
}

} // namespace vorlex
