#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

class DayZero : public ::testing::Test {
protected:
  TestSession t{5};
  void SetUp() override { t.read(fileText(dataPath("tiny3.txt"))); }
};

TEST_F(DayZero, FillsEverySeriesOfDayZero) {
  VorlexBSetStageSurvivalRto1(*t.session);
  EXPECT_EQ(t.m.PopN(0, 1), 100);
  EXPECT_EQ(t.m.TotalSize(0), 105);
  EXPECT_EQ(t.m.InitialSize, 105);
  EXPECT_EQ(t.m.InitialAgeN(2), 5);
  EXPECT_EQ(t.m.AgeSize(0, 0), 100);
  EXPECT_EQ(t.m.StageSize(2, 0), 5);
  EXPECT_EQ(t.m.StageSum(0), 105);
  EXPECT_EQ(t.m.DailyWID(0), 5);
  EXPECT_EQ(t.m.CUMWID(0), 12.5 + 5); // starts from the previous cumulative value
  EXPECT_EQ(t.m.WeakSize(1, 0), 5);
  EXPECT_EQ(t.m.WeakSize(2, 0), 2.5);
  EXPECT_EQ(t.m.VulnerableSize(0), 5); // stages 2 to 3 are sampled
  EXPECT_EQ(t.m.VulnerableTotal(0), 105);
  EXPECT_DOUBLE_EQ(t.m.StageFraction(1, 0), 100.0 / 105);
  EXPECT_EQ(t.m.TotalConsumption(0), 0);
  // The schedule read from the file no longer acts on days 1..SimTime+1.
  EXPECT_EQ(t.m.StageSurvivalDay(2, 2), 1);
  EXPECT_EQ(t.m.StageSurvivalDay(3, 3), 1);
  EXPECT_EQ(t.m.PhysoStageSize(2, 0), 0); // no shadow without physogastry
}

TEST_F(DayZero, SurvivalOfDayZeroStaysAndLowersTheTotalOnly) {
  t.m.StageSurvivalDay(1, 0) = .5;
  VorlexBSetStageSurvivalRto1(*t.session);
  EXPECT_EQ(t.m.TotalSize(0), 55);
  EXPECT_EQ(t.m.InitialSize, 105);
  EXPECT_EQ(t.m.StageSum(0), 105);
}

TEST_F(DayZero, CarryingCapacityActsOnTheStartingPopulation) {
  t.session->flags.WithCarryingCapacity = "Yes";
  t.m.CarryingCapacity(0) = 2;
  t.m.DensityCoefOverKDay(0) = 1;
  VorlexBGoS90BeginningCal(*t.session);
  // Weighed size 5 is over K = 2: mortality level (5 - 2) / 5.
  EXPECT_DOUBLE_EQ(t.m.SizeToK(0), 2.5);
  EXPECT_DOUBLE_EQ(t.m.DensityMortality(0), .6);
  EXPECT_DOUBLE_EQ(t.m.PopN(0, 1), (1 - .2 * .6) * 100);
  EXPECT_DOUBLE_EQ(t.m.PopN(2, 2), (1 - 1 * .6) * 5);
  EXPECT_DOUBLE_EQ(t.m.TotalSize(0), 90);
  EXPECT_DOUBLE_EQ(t.m.InitialSize, 90);
  // The weighed size of the day takes the stage addends on top of the
  // weighed size that set the mortality level.
  EXPECT_DOUBLE_EQ(t.m.WeighedSize(0), 5 + 2);
}

TEST_F(DayZero, WeighedSizeAtKUsesTheBelowKCoefficient) {
  t.session->flags.WithCarryingCapacity = "Yes";
  t.m.CarryingCapacity(0) = 5;
  t.m.DensityCoefBelowKDay(0) = .1;
  t.m.DensityCoefOverKDay(0) = 9;
  VorlexBGoS90BeginningCal(*t.session);
  EXPECT_EQ(t.m.SizeToK(0), 1);
  EXPECT_DOUBLE_EQ(t.m.DensityMortality(0), .1);
}

TEST_F(DayZero, PhysogastryCopiesDayZeroIntoTheShadow) {
  t.session->flags.Physogastry = "Yes";
  VorlexBGoS90BeginningCal(*t.session);
  EXPECT_EQ(t.m.PhysoTotalSize(0), 105);
  EXPECT_EQ(t.m.PhysoStageSize(1, 0), 100);
  EXPECT_EQ(t.m.PhysoStageSum(0), 105);
  EXPECT_EQ(t.m.PhysoWeighedSize(0), 5);
  EXPECT_EQ(t.m.PhysoCUMWID(0), 17.5);
  EXPECT_DOUBLE_EQ(t.m.PhysoStageFraction(2, 0), 5.0 / 105);
  EXPECT_EQ(t.m.PhysoN(0, 1), 0); // the shadow matrix itself starts empty
}

TEST_F(DayZero, AnyOtherCarryingCapacityFlagEndsTheProgram) {
  t.session->flags.WithCarryingCapacity = "yes";
  EXPECT_THROW(VorlexBGoS90BeginningCal(*t.session), ProgramEnd);
}

TEST_F(DayZero, EmptyPopulationStopsAtTheFractionsBeforeTheGuard) {
  t.m.InitialN(0, 1) = 0;
  t.m.InitialN(2, 2) = 0;
  EXPECT_EQ(errorOf([&] { VorlexBGoS90BeginningCal(*t.session); }).number(), 6);
}

TEST(DayZeroGuard, ZeroTotalWithIndividualsLeftEndsWithAMessage) {
  RecordingPrompts prompts;
  Session session(prompts);
  session.model().SimTime = 5;
  session.flags.WithCxj = "No";
  session.files.attachInput(kDataFile, ItemReader(fileText(dataPath("tiny3.txt"))), "tiny3.txt");
  VorlexA(session);
  for (int stage = 1; stage <= 3; ++stage)
    session.model().StageSurvivalDay(stage, 0) = 0;
  EXPECT_THROW(VorlexBSetStageSurvivalRto1(session), ProgramEnd);
  EXPECT_EQ(prompts.lastTitle, "Attention");
  EXPECT_EQ(prompts.lastText, "Initial population size = 0 !  Nonsense!");
}

} // namespace
} // namespace vorlex::testing
