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

void VorlexDAutoControlGosub1600(Session& session) {
  Model& m = session.model();
  if (!m.AutoControlTestInFlow && session.flowOn()) {
    session.flow("In Public Sub VorlexDAutoControlGosub1600");
    m.AutoControlTestInFlow = true;
  }
  const int t = m.Day;
  m.AutoWeighedSum = weighedInStageRanges(m);
  m.SizeBeforeControl(t) = m.AutoWeighedSum;
  if (m.AutoWeighedSum >= m.EtDay(t)) {
    ++m.NrAutoControl;
    m.AutoControlDay(m.NrAutoControl) = static_cast<i16>(t);
    // Each day a control reaches takes its mortality of that effective
    // day on top of what earlier controls left there.
    for (int k = 0; k <= m.ControlDuration(1) - 1; ++k) {
      const int d = k + 1;
      for (int j = 1; j <= m.NrStage; ++j)
        m.StageSurvivalDay0(j, t + k) = (1 - m.ControlMortality(j, d, 1)) * m.StageSurvivalDay0(j, t + k);
    }
  }
  Cells next(m.NextN);
  double after = 0;
  for (int j = 1; j <= m.NrStage; ++j) {
    const double survival = m.StageSurvivalDay0(j, t);
    const double weigh = m.WeighCoef(j);
    const int first = m.StageAge(j, 1);
    const int last = m.StageAge(j, 2);
    checkRange(m, first, last);
    for (int x = first; x <= last; ++x) {
      next(x, j) = survival * next(x, j);
      after += next(x, j) * weigh;
    }
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
