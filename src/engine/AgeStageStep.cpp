#include "engine/AgeStageStep.h"

namespace vorlex {

void developAges(int lastAge, int stages, const Cells& growth, const Cells& develop, const Cells& from,
                 const Cells& to, const PerStage& survival, const PerStage& inflow) {
  const int m = stages;
  if (m < 1)
    return;
  for (int x = 1; x <= lastAge; ++x) {
    const double* n = from.row(x - 1);
    const double* g = growth.row(x - 1);
    const double* d = develop.row(x - 1);
    double* next = to.row(x);
    next[1] = n[1] * g[1] * survival[1];
    for (int j = 2; j < m; ++j)
      next[j] = (d[j - 1] * n[j - 1] * inflow[j] + n[j] * g[j]) * survival[j];
    if (m > 1)
      next[m] = (d[m - 1] * n[m - 2] + n[m] * g[m]) * survival[m];
  }
}

} // namespace vorlex

namespace vorlex {

namespace {

AgeWindow nonZeroAges(int lastAge, const Cells& table, int column) {
  AgeWindow window;
  for (int x = 0; x <= lastAge; ++x)
    if (table(x, column) != 0) {
      window.first = window.empty() ? x : window.first;
      window.last = x;
    }
  return window;
}

} // namespace

RateWindows rateWindowsOf(int lastAge, int stages, const Cells& growth, const Cells& develop) {
  RateWindows rates;
  for (int j = 1; j <= stages; ++j) {
    rates.stay[j] = nonZeroAges(lastAge - 1, growth, j);
    rates.move[j] = nonZeroAges(lastAge - 1, develop, j);
  }
  return rates;
}

AgeWindows occupiedAges(int lastAge, int stages, const Cells& matrix) {
  AgeWindows ages{};
  for (int j = 1; j <= stages; ++j)
    ages[j] = nonZeroAges(lastAge, matrix, j);
  return ages;
}

bool mostlyOccupied(int lastAge, int stages, const AgeWindows& ages) {
  long cells = 0;
  for (int j = 1; j <= stages; ++j)
    cells += ages[j].empty() ? 0 : ages[j].last - ages[j].first + 1;
  return 2 * cells >= static_cast<long>(lastAge + 1) * stages;
}

void developAgesInWindows(int lastAge, int stages, const Cells& growth, const Cells& develop,
                          const RateWindows& rates, const Cells& from, const AgeWindows& fromAges,
                          const Cells& to, AgeWindows& toAges, const PerStage& survival,
                          const PerStage& inflow) {
  const int m = stages;
  const AgeWindow rows{1, lastAge};
  // Stayers come from the ages before that hold individuals of the stage
  // and a growth rate; the inflow from those of the stage it develops out
  // of with a developmental rate. Any other cell is a sum of products with
  // a factor 0.
  AgeWindows fed{};
  for (int j = 1; j <= m; ++j) {
    fed[j] = fromAges[j].within(rates.stay[j]).older();
    const int source = j == m ? m - 2 : j - 1;
    if (j > 1 && source >= 1)
      fed[j] = fed[j].joinedWith(fromAges[source].within(rates.move[j - 1]).older());
    fed[j] = fed[j].within(rows);
  }
  // Where most of the matrix is occupied, the walk row by row over all of
  // it is the faster.
  if (mostlyOccupied(lastAge, stages, fed)) {
    developAges(lastAge, stages, growth, develop, from, to, survival, inflow);
    toAges = fed;
    return;
  }
  for (int j = 1; j <= m; ++j) {
    const AgeWindow stale = toAges[j].within(rows);
    for (int x = stale.first; x <= stale.last; ++x)
      if (!fed[j].holds(x))
        to(x, j) = 0;
    for (int x = fed[j].first; x <= fed[j].last; ++x) {
      const double* n = from.row(x - 1);
      const double* g = growth.row(x - 1);
      const double* d = develop.row(x - 1);
      if (j == 1)
        to(x, j) = n[1] * g[1] * survival[1];
      else if (j < m)
        to(x, j) = (d[j - 1] * n[j - 1] * inflow[j] + n[j] * g[j]) * survival[j];
      else
        to(x, j) = (d[m - 1] * n[m - 2] + n[m] * g[m]) * survival[m];
    }
    toAges[j] = fed[j];
  }
}

} // namespace vorlex
