// The automatic control on the hand-made three-stage table (eggs 0-1,
// female and male 1-3; weighing 0, 1 and .5; 100 eggs of age 0 and 5
// females of age 2 on day 0; ET 25 on days 0-1 and 35 later; the first
// control lasts two days with mortalities 0/.5/.5, then 0/.25/.25).
#include "engine/AutoControl.h"
#include "model/InitialCalculation.h"
#include "strategies/ControlledStart.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

class AutoControl : public ::testing::Test {
protected:
  RecordingPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  void SetUp() override {
    loadTestData(session, "tiny3.txt");
    session.flags.ControlAutoMark = "AUTOCONTROL";
  }
  // The start and the projection as the automatic strategy runs them.
  void run(int simTime) {
    m.SimTime = static_cast<i16>(simTime);
    for (int j = 1; j <= m.NrStage; ++j)
      for (int t = 1; t <= simTime + 1; ++t)
        m.StageSurvivalDay(j, t) = 1;
    VorlexF2AutoControl(session);
    VorlexDAutoControl(session);
  }
  void carryingCapacity(double k, double below, double over) {
    session.flags.WithCarryingCapacity = "Yes";
    for (int t = 0; t <= kLastDaySlot; ++t) {
      m.CarryingCapacity(t) = k;
      m.DensityCoefBelowKDay(t) = below;
      m.DensityCoefOverKDay(t) = over;
    }
  }
};

// Day 1 before control: eggs (0,1) 20, (1,1) 50; females (1,2) 20, (3,2)
// 2.5; males (1,3) 20. Weighed in the stages' ranges: 22.5 + 10 = 32.5,
// above ET 25: control 1 halves females and males on day 1 and leaves .75
// for day 2. After it: 10 + 1.25 + .5 x 10 = 16.25. Day 1 is SimTime, so
// its matrix is not taken over: day 2 is built again from day 0's, below
// ET 35, and takes the .75 left for it.
TEST_F(AutoControl, TwoDaysByHand) {
  run(1);
  EXPECT_EQ(m.NrAutoControl, 1);
  EXPECT_EQ(m.AutoControlDay(1), 1);
  EXPECT_EQ(m.SizeBeforeControl(0), 0);
  EXPECT_EQ(m.SizeBeforeControl(1), 32.5);
  EXPECT_EQ(m.SizeAfterControl(1), 16.25);
  for (int j : {2, 3}) {
    EXPECT_EQ(m.StageSurvivalDay0(j, 1), .5);
    EXPECT_EQ(m.StageSurvivalDay0(j, 2), .75);
  }
  EXPECT_EQ(m.StageSurvivalDay0(1, 1), 1);
  EXPECT_EQ(m.TotalSize(1), 91.25);
  EXPECT_EQ(m.StageSize(1, 1), 70);
  EXPECT_EQ(m.StageSize(2, 1), 11.25);
  EXPECT_EQ(m.StageSize(3, 1), 10);
  EXPECT_EQ(m.DailyWID(1), 16.25);
  EXPECT_EQ(m.WeighedSize(1), 16.25);
  EXPECT_EQ(m.CUMWID(1), 12.5 + 5 + 16.25);

  EXPECT_EQ(m.SizeBeforeControl(2), 32.5);
  EXPECT_EQ(m.SizeAfterControl(2), 15 + 1.875 + 7.5);
  EXPECT_EQ(m.TotalSize(2), 101.875);
  EXPECT_EQ(m.PopN(1, 2), 15);
  EXPECT_EQ(m.PopN(3, 2), 1.875);
  EXPECT_EQ(m.PopN(1, 3), 15);
  EXPECT_EQ(m.Day, 3);
}

// A control on day 0 writes its survival into days 0 and 1 but takes the
// survival of day 2 for the start, which keeps its size. Day 1's control
// multiplies into what day 0's left.
TEST_F(AutoControl, ADayZeroControlLeavesDayZeroAndOverlapsMultiply) {
  m.EtDay(0) = 5;
  run(3);
  EXPECT_EQ(m.NrAutoControl, 2);
  EXPECT_EQ(m.AutoControlDay(1), 0);
  EXPECT_EQ(m.AutoControlDay(2), 1);
  EXPECT_EQ(m.StageSize(2, 0), 5);
  EXPECT_EQ(m.StageSurvivalDay0(2, 0), .5);
  EXPECT_EQ(m.StageSurvivalDay0(2, 1), .75 * .5);
  EXPECT_EQ(m.StageSurvivalDay0(2, 2), .75);
  EXPECT_EQ(m.SizeAfterControl(1), .375 * 32.5);
}

TEST_F(AutoControl, AControlWithoutEffectiveDaysIsOnlyCounted) {
  m.ControlDuration(1) = 0;
  run(1);
  EXPECT_EQ(m.NrAutoControl, 1);
  for (int t = 0; t <= 4; ++t)
    EXPECT_EQ(m.StageSurvivalDay0(2, t), 1) << t;
  EXPECT_EQ(m.SizeAfterControl(1), m.SizeBeforeControl(1));
}

// Ages outside a stage's range are neither weighed by the rule nor hit.
TEST_F(AutoControl, OnlyAgesInsideTheStageRangeCount) {
  m.StageAge(2, 2) = 2; // the female of age 3 falls outside
  run(1);
  EXPECT_EQ(m.SizeBeforeControl(1), 20 + 10);
  EXPECT_EQ(m.StageSize(2, 1), 10 + 2.5);
}

// Under K(t) the weighed size of the day keeps the density step's sum of
// the whole matrix before control, and the stage sums go on top.
TEST_F(AutoControl, UnderTheCarryingCapacityTheWeighedSizeIsNotReset) {
  carryingCapacity(1000, 0, 0);
  run(1);
  EXPECT_EQ(m.WeighedSize(1), 32.5 + 16.25);
  EXPECT_EQ(m.DailyWID(1), 16.25);
}

TEST_F(AutoControl, ExtinctionIsToldWithoutItsDay) {
  for (int x = 0; x <= m.LastAge; ++x)
    for (int j = 1; j <= m.NrStage; ++j)
      m.Fecundity(x, j) = 0;
  run(10);
  EXPECT_EQ(prompts.lastTitle, "Population size=0");
  EXPECT_EQ(prompts.lastText, "Population size=0 (B)! Stop simulation!");
  EXPECT_LT(m.Day, 10);
}

// Above K(0) the start by threshold adds both coefficients, capped at 1;
// the start without control scales the excess share by the over-K one.
TEST_F(AutoControl, DensityMortalityOfTheStartByThresholdIsCapped) {
  struct Case {
    bool byThreshold;
    double mortality, eggs, females;
  };
  // Weighed start 5 against K 1: .5 + 1 x 4/5 = 1.3, capped; or 1 x 4/5.
  for (const Case& c : {Case{true, 1, 80, 0}, Case{false, .8, 84, 1}}) {
    TestSession fresh;
    Session& s = *fresh.session;
    fresh.read(fileText(dataPath("tiny3.txt")));
    s.flags.WithCarryingCapacity = "Yes";
    s.flags.ControlAutoMark = "AUTOCONTROL";
    fresh.m.CarryingCapacity(0) = 1;
    fresh.m.DensityCoefBelowKDay(0) = .5;
    fresh.m.DensityCoefOverKDay(0) = 1;
    if (c.byThreshold)
      VorlexF2AutoControlGosub430(s);
    else
      VorlexBGoS90BeginningCal(s);
    EXPECT_DOUBLE_EQ(fresh.m.DensityMortality(0), c.mortality) << c.byThreshold;
    EXPECT_DOUBLE_EQ(fresh.m.PopN(0, 1), c.eggs) << c.byThreshold;
    EXPECT_DOUBLE_EQ(fresh.m.PopN(2, 2), c.females) << c.byThreshold;
  }
}

} // namespace
} // namespace vorlex::testing
