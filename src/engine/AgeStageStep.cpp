#include "engine/AgeStageStep.h"

#include <algorithm>

namespace vorlex {

namespace {

// Rows first..last of stage j of `to`, from the rows before in `from`.
void developStage(int j, int stages, int first, int last, const Cells& growth, const Cells& develop,
                  const Cells& from, const Cells& to, const PerStage& survival, const PerStage& inflow) {
  const int m = stages;
  const double* n = from.stage(j);
  const double* g = growth.stage(j);
  double* next = to.stage(j);
  if (j == 1) {
    for (int x = first; x <= last; ++x)
      next[x] = n[x - 1] * g[x - 1] * survival[1];
    return;
  }
  // The male, the last stage, takes the inflow of the stage before the
  // female at the female's rate, and no extra mortality.
  const double* source = from.stage(j < m ? j - 1 : m - 2);
  const double* d = develop.stage(j - 1);
  if (j < m)
    for (int x = first; x <= last; ++x)
      next[x] = (d[x - 1] * source[x - 1] * inflow[j] + n[x - 1] * g[x - 1]) * survival[j];
  else
    for (int x = first; x <= last; ++x)
      next[x] = (d[x - 1] * source[x - 1] + n[x - 1] * g[x - 1]) * survival[m];
}

} // namespace

void developAges(int lastAge, int stages, const Cells& growth, const Cells& develop, const Cells& from,
                 const Cells& to, const PerStage& survival, const PerStage& inflow) {
  for (int j = 1; j <= stages; ++j)
    developStage(j, stages, 1, lastAge, growth, develop, from, to, survival, inflow);
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
  // Where most of the matrix is occupied, the walk over all of it is as
  // fast, and has nothing to clear.
  if (mostlyOccupied(lastAge, stages, fed)) {
    developAges(lastAge, stages, growth, develop, from, to, survival, inflow);
    toAges = fed;
    return;
  }
  for (int j = 1; j <= m; ++j) {
    double* next = to.stage(j);
    // The cells of the old window that the new one leaves out: those
    // before it and those after it.
    const AgeWindow stale = toAges[j].within(rows);
    const AgeWindow kept = fed[j].within(stale);
    const int before = kept.empty() ? stale.last + 1 : kept.first;
    const int after = kept.empty() ? stale.last + 1 : kept.last + 1;
    if (stale.first < before)
      std::fill(next + stale.first, next + before, 0.0);
    if (after <= stale.last)
      std::fill(next + after, next + stale.last + 1, 0.0);
    developStage(j, m, fed[j].first, fed[j].last, growth, develop, from, to, survival, inflow);
    toAges[j] = fed[j];
  }
}

} // namespace vorlex
