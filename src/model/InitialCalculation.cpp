#include "model/InitialCalculation.h"

#include "model/Arithmetic.h"
#include "model/DayZero.h"
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

void startPopulationOfDayZero(Session& session, bool addCoefficientsAboveK) {
  Model& m = session.model();
  if (!carryingCapacityInForce(session)) {
    for (int age = 0; age <= m.LastAge; ++age)
      for (int stage = 1; stage <= m.NrStage; ++stage)
        m.PopN(age, stage) = m.InitialN(age, stage);
    return;
  }
  m.WeighedSize(0) = 0;
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = 0; age <= m.LastAge; ++age)
      m.WeighedSize(0) += m.InitialN(age, stage) * m.WeighCoefAgeStage(age, stage);
  WorkOutDensityMortality(session, 0);
  const double weighed = m.WeighedSize(0);
  const double capacity = m.CarryingCapacity(0);
  if (addCoefficientsAboveK && weighed > capacity) {
    m.DensityMortality(0) =
        m.DensityCoefBelowKDay(0) + divide(m.DensityCoefOverKDay(0) * (weighed - capacity), weighed);
    if (m.DensityMortality(0) > 1)
      m.DensityMortality(0) = 1;
  }
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.PopN(age, stage) =
          (1 - m.DensityCoefAgeStage(age, stage) * m.DensityMortality(0)) * m.InitialN(age, stage);
}

void recordAgesOfDayZero(Session& session) {
  Model& m = session.model();
  // The size of an age adds to what the day holds; a session that doesn't
  // keep the sizes holds nothing there.
  const bool kept = session.keepsAgeSizes;
  for (int age = 0; age <= m.LastAge; ++age) {
    double ageSize = kept ? m.AgeSize(age, 0) : 0;
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      ageSize += m.PopN(age, stage) * m.StageSurvivalDay(stage, 0);
      m.InitialAgeN(age) += m.PopN(age, stage);
    }
    if (kept)
      m.AgeSize(age, 0) = ageSize;
    m.InitialSize += m.InitialAgeN(age);
    m.TotalSize(0) += ageSize;
  }
}

void recordStagesOfDayZero(Session& session, bool physogastry, bool runOfSeries) {
  Model& m = session.model();
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    for (int age = 0; age <= m.LastAge; ++age)
      m.StageSize(stage, 0) += m.PopN(age, stage);
    m.StageSum(0) += m.StageSize(stage, 0);
    if (runOfSeries) {
      m.RunWID(m.SeriesIndex) += m.StageSize(stage, 0) * m.WeighCoef(stage);
      continue;
    }
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
    if (m.SamplingStageFrom <= stage && stage <= m.SamplingStageTo) {
      m.VulnerableTotal(0) = m.TotalSize(0);
      m.VulnerableSize(0) += m.StageSize(stage, 0);
    }
  }
}

void recordFractionsOfDayZero(Session& session, bool physogastry) {
  Model& m = session.model();
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    m.StageFraction(stage, 0) = divide(m.StageSize(stage, 0), m.StageSum(0));
    if (physogastry)
      m.PhysoStageFraction(stage, 0) = divide(m.PhysoStageSize(stage, 0), m.PhysoStageSum(0));
  }
}

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

  startPopulationOfDayZero(session);
  recordAgesOfDayZero(session);
  if (session.flags.Physogastry != "No")
    m.PhysoTotalSize(0) = m.TotalSize(0);
  m.TotalSizeStart = m.TotalSize(0);
  m.TotalSizeBase = m.TotalSize(0);

  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.TotalConsumption(0) += m.Consumption(age, stage) * m.PopN(age, stage);
  m.CumuConsumption(0) = m.TotalConsumption(0);

  recordStagesOfDayZero(session, physogastry);
  m.CUMWID(0) = m.PreviousCumWID + m.DailyWID(0);
  m.PhysoCUMWID(0) = m.CUMWID(0);

  // The fractions come before the guard below: an empty population stops
  // here, with 0 / 0, before its message can show.
  recordFractionsOfDayZero(session, physogastry);

  if (m.TotalSize(0) <= 0) {
    const std::string text = "Initial population size = 0 !  Nonsense!";
    session.prompter().inform(text, "Attention");
    throw ProgramEnd(text);
  }
}

} // namespace vorlex
