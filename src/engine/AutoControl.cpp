#include "engine/AutoControl.h"

#include "engine/Cells.h"
#include "engine/DayStep.h"
#include "model/Session.h"

namespace vorlex {

namespace {

// The ages of stage j that the rule sees and hits. A range beyond the
// matrix is a subscript failure, as every access outside a table.
void checkRange(const Model& m, int first, int last) {
  if (m.NrStage > m.NextN.upper(1) || (first <= last && (first < 0 || last > m.NextN.upper(0))))
    raise(ErrorCode::SubscriptOutOfRange);
}

std::string extinctionWithoutDay(const Model&, int) { return "Population size=0 (B)! Stop simulation!"; }

} // namespace

double weighedInStageRanges(Model& m) {
  Cells next(m.NextN);
  double weighed = 0;
  for (int j = 1; j <= m.NrStage; ++j) {
    const int first = m.StageAge(j, 1);
    const int last = m.StageAge(j, 2);
    checkRange(m, first, last);
    double stageSize = 0;
    for (int x = first; x <= last; ++x)
      stageSize += next(x, j);
    weighed += m.WeighCoef(j) * stageSize;
  }
  return weighed;
}

namespace {

// One walk over the stages' age ranges that fills each stage's size and,
// side by side, the weighed size the ranges will have once multiplied by
// the day's survival: both sums keep their stage-by-stage, age-by-age
// order, and the two chains of additions overlap.
double sizesInRanges(Model& m, const Cells& next, int t, double* stageSizes) {
  double after = 0;
  for (int j = 1; j <= m.NrStage; ++j) {
    const double survival = m.StageSurvivalDay0(j, t);
    const double weigh = m.WeighCoef(j);
    const int first = m.StageAge(j, 1);
    const int last = m.StageAge(j, 2);
    checkRange(m, first, last);
    double size = 0;
    for (int x = first; x <= last; ++x) {
      size += next(x, j);
      after += survival * next(x, j) * weigh;
    }
    stageSizes[j] = size;
  }
  return after;
}

} // namespace

void VorlexDAutoControlGosub1600(Session& session) {
  Model& m = session.model();
  if (!m.AutoControlTestInFlow && session.flowOn()) {
    session.flow("In Public Sub VorlexDAutoControlGosub1600");
    m.AutoControlTestInFlow = true;
  }
  const int t = m.Day;
  const Cells next(m.NextN);
  double stageSizes[kLastStageSlot + 1] = {};
  double after = sizesInRanges(m, next, t, stageSizes);
  m.AutoWeighedSum = 0;
  for (int j = 1; j <= m.NrStage; ++j)
    m.AutoWeighedSum += m.WeighCoef(j) * stageSizes[j];
  m.SizeBeforeControl(t) = m.AutoWeighedSum;

  if (m.AutoWeighedSum >= m.EtDay(t)) {
    ++m.NrAutoControl;
    m.AutoControlDay(m.NrAutoControl) = static_cast<i16>(t);
    // Each day a control reaches takes its mortality of that effective
    // day on top of what earlier controls left there.
    bool todayChanged = false;
    for (int k = 0; k <= m.ControlDuration(1) - 1; ++k) {
      const int d = k + 1;
      for (int j = 1; j <= m.NrStage; ++j) {
        const double before = m.StageSurvivalDay0(j, t + k);
        m.StageSurvivalDay0(j, t + k) = (1 - m.ControlMortality(j, d, 1)) * before;
        todayChanged = todayChanged || (k == 0 && m.StageSurvivalDay0(j, t) != before);
      }
    }
    if (todayChanged)
      after = sizesInRanges(m, next, t, stageSizes);
  }

  // A survival of 1 leaves a stage as it is.
  for (int j = 1; j <= m.NrStage; ++j) {
    const double survival = m.StageSurvivalDay0(j, t);
    if (survival == 1)
      continue;
    for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x)
      next(x, j) = survival * next(x, j);
  }
  m.SizeAfterControl(t) = after;
}

void VorlexDAutoControl(Session& session) {
  session.model().SeriesIndex = 0;
  DayStepRules rules;
  rules.eggsTakeParentSurvival = false;
  rules.weighedSizeFromZero = false;
  rules.criticalDay = false;
  rules.keepMatrixOnSimTime = true;
  rules.skipAfterEmptyDay = true;
  rules.afterDensity = &VorlexDAutoControlGosub1600;
  rules.extinctionText = &extinctionWithoutDay;
  runDaySteps(session, rules);
}

} // namespace vorlex
