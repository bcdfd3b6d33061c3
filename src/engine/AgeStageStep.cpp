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
