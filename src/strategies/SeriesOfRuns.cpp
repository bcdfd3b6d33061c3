#include "strategies/SeriesOfRuns.h"

#include "engine/DayStep.h"
#include "model/Session.h"
#include "strategies/ControlledStart.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

// No value yet: a ratio whose divisor is 0 is not formed.
constexpr double kNoValue = -1;

bool sampled(const Model& m, int stage) { return m.SamplingStageFrom <= stage && stage <= m.SamplingStageTo; }

// What run T keeps of the day whose results stand at day Day + 1.
void recordsOfTheRun(Session& session) {
  Model& m = session.model();
  const int t = m.Day;
  const int day = t + 1;
  const int run = m.SeriesIndex;
  const bool treatmentDay = day == run;
  // With no interval the size at sampling is that of the day of treatment.
  const bool samplingDay = m.SamplingInterval <= 0 ? treatmentDay : t == m.SamplingInterval + run - 1;
  for (int j = 1; j <= m.NrStage; ++j) {
    m.RunWID(run) += m.StageSize(j, day) * m.WeighCoef(j);
    if (treatmentDay) {
      m.RunTotalBefore(run) = m.TotalSize(day);
      if (sampled(m, j))
        m.RunStageBefore(run) += m.StageSize(j, day);
    }
    if (samplingDay) {
      m.RunTotalAfter(run) = m.TotalSize(day);
      if (sampled(m, j))
        m.RunStageAfter(run) += m.StageSize(j, day);
    }
  }
  m.RunWIDCritical(run) = m.RunWID(run);
  if (m.WeighedAtCritical != 0)
    m.RunWIDToCritical(run) = m.RunWIDCritical(run) / m.WeighedAtCritical;
}

} // namespace

void VorlexG(Session& session) {
  Model& m = session.model();
  session.controls["lblRunSummary"].caption = "In program: VORLEX-G";
  const int lastRun = checkedInt16(m.SimTime + 1);
  for (int run = 1; run <= lastRun; ++run) {
    m.RunWIDToCritical(run) = kNoValue;
    m.RunWIDToFinal(run) = kNoValue;
  }
  for (int run = 1; run <= lastRun; ++run) {
    m.SeriesIndex = static_cast<i16>(run);
    if (session.flags.GrowthMode != "VARIOUS")
      VorlexGGosub770(session);
    else
      VorlexGGosub900(session);
    VorlexGGosub120(session);
    VorlexGGosub1210(session);
  }
}

void VorlexGGosub770(Session& session) {
  Model& m = session.model();
  for (int i = m.SimTime; i >= 1; --i)
    for (int j = 1; j <= m.NrStage; ++j)
      m.StageSurvivalDay(j, i + 1) = m.StageSurvivalDay(j, i);
  if (m.SeriesIndex <= 2)
    for (int j = 1; j <= m.NrStage; ++j)
      m.StageSurvivalDay(j, 1) = 1;
}

void VorlexGGosub900(Session& session) {
  Model& m = session.model();
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int j = 1; j <= m.NrStage; ++j)
    for (int t = 1; t <= lastDay; ++t)
      m.StageSurvivalDay(j, t) = 1;
  m.ScheduleTitle =
      "Various interval between treatments, 1st at day " + blankLed(m.ControlDate(1)) + ", 2nd at day T.";
  // A treatment's d-th effective day takes the survival of that day; the
  // step of day t reads the survival written at t + 1.
  const auto treat = [&](int control, int firstDay) {
    const int last = firstDay + toInt32(m.ControlDuration(control)) - 1;
    int d = 0;
    for (int day = firstDay; day <= last && day <= lastDay; ++day) {
      ++d;
      for (int j = 1; j <= m.NrStage; ++j)
        m.StageSurvivalDay(j, day + 1) = (1 - m.ControlMortality(j, d, control)) * m.StageSurvivalDay(j, day + 1);
    }
  };
  if (m.NrControl >= 1)
    treat(1, m.ControlDate(1));
  if (m.NrControl >= 2)
    treat(2, m.ControlDate(1) + m.SeriesIndex - 1);
}

void VorlexGGosub120(Session& session) { seriesRunDayZero(session); }

void VorlexGGosub1210(Session& session) {
  DayStepRules rules;
  rules.eggsTakeParentSurvival = false;
  rules.resultsOneDayAhead = true;
  rules.dayRecords = false;
  rules.densityDependence = false;
  rules.cumulativeWeighedSize = false;
  rules.deaths = false;
  rules.criticalDay = false;
  rules.afterStageRecords = &recordsOfTheRun;
  runDaySteps(session, rules);

  Model& m = session.model();
  const bool reachedTheEnd = m.Day > m.SimTime + 1;
  if (reachedTheEnd && m.SeriesIndex > 0 && m.DailyWID(m.Day) != 0)
    m.RunWIDToFinal(m.SeriesIndex) = m.RunWID(m.SeriesIndex) / m.DailyWID(m.Day);
}

} // namespace vorlex
