#include "engine/DominantEigenvalue.h"

#include "engine/AgeStageStep.h"

#include <cmath>

namespace vorlex {

namespace {

constexpr int kMaxIterations = 20000;
constexpr int kAgreeingIterations = 3;
constexpr double kTolerance = 1e-14;

} // namespace

EigenvalueEstimate dominantEigenvalue(Model& m) {
  const int lastAge = m.LastAge;
  const int stages = m.NrStage;
  if (lastAge < 0 || lastAge > kLastAgeSlot || stages < 1 || stages > kLastStageSlot)
    raise(ErrorCode::SubscriptOutOfRange);
  Table2<double> vector{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot},
      projected{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  const Cells v(vector), w(projected), growth(m.GrowthRate), develop(m.DevelopRate), fecundity(m.Fecundity);
  double size = 0;
  for (int x = 0; x <= lastAge; ++x)
    for (int j = 1; j <= stages; ++j) {
      v(x, j) = 1;
      size += 1;
    }

  EigenvalueEstimate estimate;
  double previous = 0;
  int agreeing = 0;
  for (int i = 1; i <= kMaxIterations; ++i) {
    double eggs = 0;
    for (int j = 1; j <= stages; ++j)
      for (int x = 0; x <= lastAge; ++x)
        eggs += fecundity(x, j) * v(x, j);
    for (int j = 1; j <= stages; ++j)
      w(0, j) = 0;
    w(0, 1) = eggs;
    developAges(lastAge, stages, growth, develop, v, w, kAllOnes, kAllOnes);

    double shiftedSize = 0;
    for (int x = 0; x <= lastAge; ++x)
      for (int j = 1; j <= stages; ++j) {
        w(x, j) += v(x, j);
        shiftedSize += w(x, j);
      }
    const double shifted = shiftedSize / size;
    for (int x = 0; x <= lastAge; ++x)
      for (int j = 1; j <= stages; ++j)
        v(x, j) = w(x, j) / shiftedSize;
    size = 1;

    estimate.lambda = shifted - 1;
    estimate.iterations = i;
    agreeing = std::abs(shifted - previous) <= kTolerance * shifted ? agreeing + 1 : 0;
    previous = shifted;
    if (agreeing >= kAgreeingIterations) {
      estimate.settled = true;
      break;
    }
  }
  return estimate;
}

} // namespace vorlex
