#include "model/InitialCalculation.h"

#include "model/Arithmetic.h"
#include "model/DensityMortality.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

void VorlexBSetStageSurvivalRto1(Session& session) {
  Model& m = session.model();
  const int lastDay = checkedInt16(m.SimTime + 1);
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int t = 1; t <= lastDay; ++t)
      m.StageSurvivalDay(stage, t) = 1;
  VorlexBGoS90BeginningCal(session);
}

namespace {

// Day 0 under the carrying capacity: density mortality already acts on the
// starting population.
void startUnderCarryingCapacity(Session& session) {
  Model& m = session.model();
  m.WeighedSize(0) = 0;
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = 0; age <= m.LastAge; ++age)
      m.WeighedSize(0) += m.InitialN(age, stage) * m.WeighCoefAgeStage(age, stage);
  WorkOutDensityMortality(session, 0);
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.PopN(age, stage) =
          (1 - m.DensityCoefAgeStage(age, stage) * m.DensityMortality(0)) * m.InitialN(age, stage);
}

bool isSampledStage(const Model& m, int stage) {
  return m.SamplingStageFrom <= stage && stage <= m.SamplingStageTo;
}

} // namespace

void VorlexBGoS90BeginningCal(Session& session) {
  Model& m = session.model();
  session.flow("In Public Sub VorlexBGoS90BeginningCal");
  const bool physogastry = session.flags.Physogastry == "Yes";

  m.TotalSize(0) = 0;
  m.InitialSize = 0;
  m.Day = 0;
  m.TotalConsumption(0) = 0;
  m.CumuConsumption(0) = 0;
  m.StageSum(0) = 0;

  if (carryingCapacityInForce(session)) {
    startUnderCarryingCapacity(session);
  } else {
    for (int age = 0; age <= m.LastAge; ++age)
      for (int stage = 1; stage <= m.NrStage; ++stage)
        m.PopN(age, stage) = m.InitialN(age, stage);
  }

  for (int age = 0; age <= m.LastAge; ++age) {
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      m.AgeSize(age, 0) += m.PopN(age, stage) * m.StageSurvivalDay(stage, 0);
      m.InitialAgeN(age) += m.PopN(age, stage);
    }
    m.InitialSize += m.InitialAgeN(age);
    m.TotalSize(0) += m.AgeSize(age, 0);
  }
  if (session.flags.Physogastry != "No")
    m.PhysoTotalSize(0) = m.TotalSize(0);
  m.TotalSizeStart = m.TotalSize(0);
  m.TotalSizeBase = m.TotalSize(0);

  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.TotalConsumption(0) += m.Consumption(age, stage) * m.PopN(age, stage);
  m.CumuConsumption(0) = m.TotalConsumption(0);

  for (int stage = 1; stage <= m.NrStage; ++stage) {
    for (int age = 0; age <= m.LastAge; ++age)
      m.StageSize(stage, 0) += m.PopN(age, stage);
    m.StageSum(0) += m.StageSize(stage, 0);
    if (physogastry) {
      m.PhysoStageSize(stage, 0) = m.StageSize(stage, 0);
      m.PhysoStageSum(0) = m.StageSum(0);
    }
    const double weighed = m.WeighCoef(stage) * m.StageSize(stage, 0);
    m.DailyWID(m.Day) += weighed;
    m.WeighedSize(0) += weighed;
    for (int factor = 1; factor <= m.NrWeakFactor; ++factor)
      m.WeakSize(factor, 0) += m.StageSize(stage, 0) * m.WeakCoef(factor, stage);
    if (physogastry) {
      m.PhysoDailyWID(m.Day) = m.DailyWID(m.Day);
      m.PhysoWeighedSize(0) = m.WeighedSize(0);
    }
    if (isSampledStage(m, stage)) {
      m.VulnerableTotal(0) = m.TotalSize(0);
      m.VulnerableSize(0) += m.StageSize(stage, 0);
    }
  }

  m.CUMWID(0) = m.PreviousCumWID + m.DailyWID(0);
  m.PhysoCUMWID(0) = m.CUMWID(0);

  // The fractions come before the guard below: an empty population stops
  // here, with 0 / 0, before its message can show.
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    m.StageFraction(stage, 0) = divide(m.StageSize(stage, 0), m.StageSum(0));
    if (physogastry)
      m.PhysoStageFraction(stage, 0) = divide(m.PhysoStageSize(stage, 0), m.PhysoStageSum(0));
  }

  if (m.TotalSize(0) <= 0) {
    const std::string text = "Initial population size = 0 !  Nonsense!";
    session.prompter().inform(text, "Attention");
    throw ProgramEnd(text);
  }
}

} // namespace vorlex
