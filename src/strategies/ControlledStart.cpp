#include "strategies/ControlledStart.h"

#include "engine/AutoControl.h"
#include "engine/DayStep.h"
#include "model/DayZero.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

enum class Start { Predefined, ByThreshold, RunOfSeries };

void controlledDayZero(Session& session, Start start) {
  Model& m = session.model();
  const bool byThreshold = start == Start::ByThreshold;
  const bool runOfSeries = start == Start::RunOfSeries;
  // A run of a series writes its last day's results one day further on.
  const int lastDay = checkedInt16(m.SimTime + (runOfSeries ? 2 : 1));

  m.TotalSize(0) = 0;
  m.InitialSize = 0;
  m.Day = 0;
  m.StageSum(0) = 0;
  // Only sizes that hold something are cleared: the rest is zero already,
  // and a large table stays untouched. A session that doesn't keep them
  // has none.
  if (session.keepsAgeSizes)
    for (int t = 0; t <= lastDay; ++t)
      for (int x = 0; x <= m.LastAge; ++x)
        if (m.AgeSize(x, t) != 0)
          m.AgeSize(x, t) = 0;
  // The start by threshold clears the ages' sizes that day 0 sums; the
  // predefined start clears a copy that nothing sums.
  if (byThreshold)
    for (int x = 0; x <= m.LastAge; ++x)
      m.InitialAgeN(x) = 0;
  for (int j = 1; j <= m.NrStage; ++j)
    for (int t = 0; t <= lastDay; ++t)
      m.StageSize(j, t) = 0;

  startPopulationOfDayZero(session, byThreshold);

  if (byThreshold || session.flags.ControlAutoMark == "AUTOCONTROL") {
    m.DailyWID(0) = 0;
    for (int i = 1; i <= 3; ++i)
      for (int t = 0; t <= lastDay; ++t)
        m.WeakSize(i, t) = 0;
    for (int t = 0; t <= lastDay; ++t) {
      m.WeighedSize(t) = 0;
      m.VulnerableTotal(t) = 0;
      m.VulnerableSize(t) = 0;
    }
  }
  if (byThreshold)
    VorlexF2AutoControlGosub1340(session);

  recordAgesOfDayZero(session);
  m.TotalSizeStart = m.TotalSize(0);
  recordStagesOfDayZero(session, false, runOfSeries);
  m.CUMWID(0) = m.PreviousCumWID + m.DailyWID(0);
  recordFractionsOfDayZero(session, false);
  if (m.TotalSize(0) <= 0)
    throw ProgramEnd("Initial population size= 0 !  Nonsense!");
}

} // namespace

void VorlexF1(Session&) {}

void VorlexF2(Session& session) {
  controlledDayZero(session, Start::Predefined);
  if (session.flowOn()) {
    session.flow("End of F2:         NrControl =", session.model().NrControl);
    flowControlSchedule(session);
  }
}

void seriesRunDayZero(Session& session) { controlledDayZero(session, Start::RunOfSeries); }

void VorlexF2AutoControl(Session& session) {
  session.flow("In Public Sub VorlexF2AutoControl");
  VorlexF2AutoControlGosub430(session);
}

void VorlexF2AutoControlGosub430(Session& session) {
  session.flow("In Public Sub VorlexF2AutoControlGosub430");
  controlledDayZero(session, Start::ByThreshold);
}

void VorlexF2AutoControlGosub1340(Session& session) {
  session.flow("In Public Sub VorlexF2AutoControlGosub1340");
  Model& m = session.model();
  for (int x = 0; x <= m.LastAge; ++x)
    for (int j = 1; j <= m.NrStage; ++j)
      m.NextN(x, j) = m.PopN(x, j);
  m.AutoWeighedSum = weighedInStageRanges(m);
  if (m.AutoWeighedSum >= m.EtDay(0)) {
    ++m.NrAutoControl;
    m.AutoControlDay(m.NrAutoControl) = 0;
    int written = 0;
    for (int k = 0; k <= m.ControlDuration(1) - 1; ++k, ++written)
      for (int j = 1; j <= m.NrStage; ++j)
        m.StageSurvivalDay0(j, k) = 1 - m.ControlMortality(j, k + 1, 1);
    // The survival taken is that of the entry after the last one written,
    // not that of day 0: the start keeps its size.
    for (int j = 1; j <= m.NrStage; ++j)
      for (int x = m.StageAge(j, 1); x <= m.StageAge(j, 2); ++x)
        m.NextN(x, j) = m.StageSurvivalDay0(j, written) * m.NextN(x, j);
  }
  for (int x = 0; x <= m.LastAge; ++x)
    for (int j = 1; j <= m.NrStage; ++j)
      m.PopN(x, j) = m.NextN(x, j);
}

} // namespace vorlex
