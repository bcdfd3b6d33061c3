#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

double ln1(double v) { return std::log(v + 1); }
// As the files take it: ln(v + 1) / ln(10). A difference of two such values
// is small beside them, so std::log10 in its place, a few units in the last
// place off, fails an exact comparison with some compilers.
double log1(double v) { return std::log(v + 1) / std::log(10.0); }

// The hand-made table: eggs at ages 0-1, female and male at ages 1-3; on
// day 0, 100 eggs of age 0 and 5 females of age 2. Day 1 by hand:
//   eggs 4 x 5 = 20; (1,1) 100 x .5 = 50; (1,2) .2 x 100 = 20;
//   (3,2) 5 x .5 = 2.5; (1,3) .2 x 100 = 20.
class PopulationGrowth : public ::testing::Test {
protected:
  RecordingPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  void SetUp() override {
    loadTestData(session, "tiny3.txt");
  }
  // Day 0 from the file's initial population; controls switched off.
  void start(int simTime = 1) {
    m.SimTime = static_cast<i16>(simTime);
    VorlexBSetStageSurvivalRto1(session);
  }
  void grow() { VorlexDGosub160PopulationGrowth(session); }
  void releaseOn(int r, double day) { m.ReleaseDay(r) = day; }
};

TEST_F(PopulationGrowth, FirstDayByHand) {
  start(0);
  grow();
  EXPECT_EQ(m.PopN(0, 1), 20);
  EXPECT_EQ(m.PopN(1, 1), 50);
  EXPECT_EQ(m.PopN(1, 2), 20);
  EXPECT_EQ(m.PopN(3, 2), 2.5);
  EXPECT_EQ(m.PopN(1, 3), 20);
  EXPECT_EQ(m.TotalSize(1), 112.5);
  EXPECT_EQ(m.AgeSize(1, 1), 90);
  EXPECT_EQ(m.StageSize(1, 1), 70);
  EXPECT_EQ(m.StageSize(2, 1), 22.5);
  EXPECT_EQ(m.StageSum(1), 112.5);
  // Deaths 1-g-d: eggs 20 x .1 + 50 x .6; females 20 x .2 + 2.5 x 1; males 20 x .4.
  EXPECT_DOUBLE_EQ(m.StageDeath(1, 1), 32);
  EXPECT_DOUBLE_EQ(m.StageDeath(1, 2), 6.5);
  EXPECT_DOUBLE_EQ(m.CumuStageDeath(1, 3), 8);
  EXPECT_DOUBLE_EQ(m.LogStageDeath(1, 3), std::log10(9));
  EXPECT_DOUBLE_EQ(m.TotalDeath(1), 46.5);
  EXPECT_EQ(m.DailyWID(1), 32.5); // 22.5 x 1 + 20 x .5
  EXPECT_EQ(m.WeighedSize(1), 32.5);
  EXPECT_EQ(m.CUMWID(1), 50);
  EXPECT_EQ(m.WeakSize(1, 1), 42.5);
  EXPECT_EQ(m.WeakSize(2, 1), 21.25);
  EXPECT_EQ(m.VulnerableSize(1), 42.5);
  EXPECT_EQ(m.VulnerableTotal(1), 112.5);
  EXPECT_EQ(m.StageFraction(2, 1), .2);
  EXPECT_EQ(m.TotalDifference(1), 7.5);
  EXPECT_DOUBLE_EQ(m.TotalGrowthLn(0), ln1(112.5) - ln1(105));
  EXPECT_DOUBLE_EQ(m.StageSumGrowthLog(0), log1(112.5) - log1(105));
  EXPECT_DOUBLE_EQ(m.StageGrowthLn(1, 0), ln1(70) - ln1(100));
}

TEST_F(PopulationGrowth, SecondDayByHandWithoutTheOldest) {
  start();
  grow();
  EXPECT_EQ(m.PopN(0, 1), 5);  // 2 x 2.5 from the oldest females
  EXPECT_EQ(m.PopN(2, 2), 21); // .1 x 50 + 20 x .8
  EXPECT_EQ(m.PopN(3, 2), 0);  // the 2.5 of age 3 are gone
  EXPECT_EQ(m.PopN(2, 3), 27); // .3 x 50 + 20 x .6
  EXPECT_EQ(m.TotalSize(2), 71);
  EXPECT_DOUBLE_EQ(m.StageDeath(2, 2), 11.3); // the oldest left no death
  EXPECT_DOUBLE_EQ(m.CumuStageDeath(2, 2), 17.8);
  EXPECT_EQ(m.CUMWID(2), 90.5);
  EXPECT_DOUBLE_EQ(m.TotalGrowthLn(1), ln1(71) - ln1(112.5));
  EXPECT_DOUBLE_EQ(m.StageGrowthLog(2, 1), log1(25) - log1(22.5));
  EXPECT_EQ(m.Day, 3);
  EXPECT_EQ(m.TotalSize(3), 0);
}

TEST_F(PopulationGrowth, EggsTakeTheParentsSurvivalAndTheLoweredFecundity) {
  start();
  m.StageSurvivalDay(1, 1) = .5;
  m.StageSurvivalDay(2, 1) = .5;
  m.LowFecundity = "Yes";
  m.LowFecundityFrom = 1;
  m.LowFecundityTo = 1;
  m.LowFecundityFactor = .5;
  grow();
  // Day 1: 4 x 5 x .5 x .5, not lowered by the egg stage's own survival.
  EXPECT_EQ(m.AgeSize(0, 1), 5);
  EXPECT_EQ(m.AgeSize(1, 1), 25 + 10 + 20); // eggs 100 x .5 x .5, females 20 x .5, males 20
  EXPECT_EQ(m.PopN(0, 1), 2.5);             // day 2 at full fecundity: 2 x 1.25
}

TEST_F(PopulationGrowth, ExtraMortalityStrikesTheInflowOnly) {
  start();
  m.ExtraStage1 = 2;
  m.ExtraFrom1 = 1;
  m.ExtraTo1 = 1;
  m.ExtraMortality1 = .5;
  grow();
  EXPECT_EQ(m.StageSize(2, 1), 10 + 2.5); // the 2.5 that stay are spared
  EXPECT_EQ(m.PopN(2, 2), 13);            // day 2 is past the period: .1 x 50 + 10 x .8
  EXPECT_EQ(m.StageSize(3, 1), 20);
}

TEST_F(PopulationGrowth, FirstExtraMortalityPeriodSilencesTheSecond) {
  start();
  m.ExtraStage1 = 3; // the male stage is out of reach
  m.ExtraFrom1 = 1;
  m.ExtraTo1 = 1;
  m.ExtraMortality1 = .9;
  m.ExtraStage2 = 2;
  m.ExtraFrom2 = 1;
  m.ExtraTo2 = 2;
  m.ExtraMortality2 = .5;
  grow();
  EXPECT_EQ(m.TotalSize(1), 112.5);
  EXPECT_EQ(m.PopN(2, 2), 2.5 + 16); // day 2, second alone: .1 x 50 x .5 + 20 x .8
  EXPECT_EQ(m.PopN(1, 2), 2);
}

TEST_F(PopulationGrowth, EggStageIsOutOfReachOfExtraMortality) {
  start();
  m.ExtraStage2 = 1;
  m.ExtraFrom2 = 1;
  m.ExtraTo2 = 2;
  m.ExtraMortality2 = .5;
  grow();
  EXPECT_EQ(m.TotalSize(1), 112.5);
  EXPECT_EQ(m.TotalSize(2), 71);
}

TEST_F(PopulationGrowth, ReleasesComeAfterTheSurvivalOfTheDay) {
  start();
  releaseOn(1, 2);  // 4 males of age 2, as the file has it
  releaseOn(10, 1); // slot 10 counts although only one release is set
  m.ReleaseN(10, 0, 1) = 7;
  m.ReleaseDay(9) = Value("1"); // a day held as text never comes
  m.ReleaseN(9, 0, 1) = 1000;
  m.StageSurvivalDay(3, 2) = .5;
  grow();
  EXPECT_EQ(m.PopN(0, 1) + m.PopN(1, 1), 5 + (20 + 7) * .5);
  EXPECT_EQ(m.AgeSize(0, 1), 27);
  EXPECT_EQ(m.PopN(2, 3), 27 * .5 + 4);
}

TEST_F(PopulationGrowth, NoReleaseWithoutANumberOfReleases) {
  start();
  m.NrRelease = 0;
  releaseOn(1, 1);
  grow();
  EXPECT_EQ(m.TotalSize(1), 112.5);
}

TEST_F(PopulationGrowth, ReleaseOnADayOfExcessIsReducedWithTheOthers) {
  session.flags.WithCarryingCapacity = "Yes";
  m.CarryingCapacity(0) = 1000;
  start(0);
  releaseOn(1, 1);
  m.CarryingCapacity(1) = 17.25; // weighed 32.5 + 4 x .5 = 34.5, twice K
  m.DensityCoefOverKDay(1) = 1;
  grow();
  EXPECT_EQ(m.SizeToK(1), 2);
  EXPECT_EQ(m.DensityMortality(1), .5);
  // Factors 1 - coef x .5: eggs .9, females .5, males .75.
  EXPECT_DOUBLE_EQ(m.PopN(0, 1), 18);
  EXPECT_DOUBLE_EQ(m.PopN(1, 1), 45);
  EXPECT_EQ(m.PopN(1, 2), 10);
  EXPECT_EQ(m.PopN(1, 3), 15);
  EXPECT_EQ(m.PopN(2, 3), 3);
  EXPECT_EQ(m.WeighedSize(1), 20.25); // the stage records weigh again
}

TEST_F(PopulationGrowth, WeighedSizeAtKUsesTheBelowKCoefficient) {
  session.flags.WithCarryingCapacity = "Yes";
  m.CarryingCapacity(0) = 1000;
  start(0);
  m.CarryingCapacity(1) = 32.5;
  m.DensityCoefBelowKDay(1) = .5;
  m.DensityCoefOverKDay(1) = 9;
  grow();
  EXPECT_EQ(m.SizeToK(1), 1);
  EXPECT_EQ(m.DensityMortality(1), .5);
  EXPECT_EQ(m.PopN(1, 2), 10);
}

TEST_F(PopulationGrowth, ExtinctionStopsWithAMessageOnItsDay) {
  start(3);
  for (int j = 1; j <= 3; ++j)
    m.StageSurvivalDay(j, 1) = 0;
  grow();
  EXPECT_EQ(session.files.output(kReportFile).text(), " Population size = 0 !!! Stop! \r\n");
  EXPECT_EQ(prompts.lastTitle, "Population size=0");
  EXPECT_EQ(prompts.lastText, "Simulation time = 3. At t= 1. Population size=0 (D)! Stop simulation!");
  EXPECT_EQ(m.Day, 1);
  EXPECT_EQ(m.TotalDifference(1), -105);
  EXPECT_DOUBLE_EQ(m.StageSumGrowthLn(0), -std::log(106)); // filled before the test
  EXPECT_EQ(m.TotalGrowthLn(0), 0);                        // not after it
}

TEST_F(PopulationGrowth, ReleaseOnADayWithoutSurvivorsKeepsThePopulation) {
  start();
  for (int j = 1; j <= 3; ++j)
    m.StageSurvivalDay(j, 1) = 0;
  releaseOn(1, 1);
  grow();
  EXPECT_EQ(m.TotalSize(1), 4);
  EXPECT_EQ(prompts.lastTitle, "");
  EXPECT_EQ(m.Day, 3);
}

TEST_F(PopulationGrowth, PhysogastryShadowsReleasesAndWeighsTheStagesTwice) {
  session.flags.Physogastry = "Yes";
  start(2);
  releaseOn(1, 1);
  m.ReleaseN(1, 0, 1) = 10;
  grow();
  // Day 1: 30 eggs of age 0, 4 released males of age 2 on top of the rest.
  EXPECT_EQ(m.DailyWID(1), 34.5);
  EXPECT_EQ(m.WeighedSize(1), 69);
  EXPECT_EQ(m.PhysoTotalSize(1), 14);
  EXPECT_EQ(m.PhysoDailyWID(1), 2);
  EXPECT_EQ(m.PhysoCUMWID(1), 19.5);
  EXPECT_EQ(m.VulnerableSize(1), 22.5 + 24 + 4); // the shadow's males too
  // Day 2: the shadow only ages; the main matrix never takes from it.
  EXPECT_EQ(m.PhysoTotalSize(2), 10 + 5 + 2 + 2 + 2);
  EXPECT_EQ(m.TotalSize(2), 71 + 11);
  EXPECT_EQ(m.BurstReadySize(2), 5); // .1 x 50 eggs of age 1 on day 1
  EXPECT_DOUBLE_EQ(m.BurstReadyGrowthLn(1), std::log(6));
  // Released eggs stay in the uncleared row of age 0 day after day.
  EXPECT_EQ(m.PhysoN(0, 1), 10);
  EXPECT_EQ(m.PhysoWeighedLast, m.PhysoDailyWID(3));
}

TEST_F(PopulationGrowth, OverwinterMortalityStrikesBeforeReproduction) {
  start();
  session.flags.ExtraMortalityOption = "Yes";
  m.OverwinterDay = 1;
  m.OverwinterStage = 2;
  m.OverwinterMortality = .5;
  grow();
  EXPECT_EQ(m.AgeSize(0, 1), 10); // 4 x 2.5
  EXPECT_EQ(m.PopN(0, 1), 2.5);   // day 2: 2 x 1.25
}

TEST_F(PopulationGrowth, OverwinterMortalitySparesAgeZero) {
  start();
  session.flags.ExtraMortalityOption = "Yes";
  m.OverwinterDay = 1;
  m.OverwinterStage = 1;
  m.OverwinterMortality = 1;
  grow();
  EXPECT_EQ(m.TotalSize(1), 112.5);
}

TEST_F(PopulationGrowth, RandomOverwinterMortalityIsDrawnOnceForAllAges) {
  start();
  session.flags.ExtraMortalityOption = "Yes";
  m.OverwinterDay = 1;
  m.OverwinterStage = 2;
  m.OverwinterMortality = .5;
  m.OverwinterRandom = "Yes";
  m.OverwinterDrawn = "No";
  m.PopN(1, 2) = 8;
  grow();
  const double drawn = m.OverwinterMortality;
  EXPECT_EQ(m.OverwinterDrawn, "Yes");
  EXPECT_GE(drawn, 0);
  EXPECT_LT(drawn, .5);
  EXPECT_EQ(m.StageSize(2, 1), 20 + (1 - drawn) * 8 * .8 + (1 - drawn) * 5 * .5);
}

TEST_F(PopulationGrowth, ConsumptionAndCriticalDay) {
  session.flags.WithCxj = "Yes";
  m.Consumption(0, 1) = .5;
  m.Consumption(1, 3) = 2;
  m.CriticalDay(2) = 1;
  start(1);
  grow();
  EXPECT_EQ(m.TotalConsumption(1), .5 * 20 + 2 * 20);
  EXPECT_EQ(m.CumuConsumption(1), 50 + 50);
  EXPECT_EQ(m.WeighedAtCritical, 32.5); // day 1, not the last day
}

TEST_F(PopulationGrowth, SecondProjectionAddsToTheSeries) {
  start();
  grow();
  start();
  grow();
  EXPECT_EQ(m.StageSize(1, 1), 140);
  EXPECT_EQ(m.AgeSize(1, 1), 180);
  EXPECT_EQ(m.TotalSize(1), 225); // zeroed, then summed over the ages' sizes
  EXPECT_EQ(m.WeighedSize(1), 65);
}

// A session that projects once and ends doesn't keep the sizes of the
// ages: each day's are summed afresh, to the same totals, with and without
// the shadow matrix of physogastry.
TEST_F(PopulationGrowth, TotalsAreTheSameWhenTheAgesSizesAreNotKept) {
  for (const char* physogastry : {"No", "Yes"}) {
    RecordingPrompts otherPrompts;
    Session kept{otherPrompts}, once{otherPrompts};
    once.keepsAgeSizes = false;
    for (Session* s : {&kept, &once}) {
      loadTestData(*s, "tiny3.txt");
      s->flags.Physogastry = physogastry;
      s->model().SimTime = 30;
      VorlexBSetStageSurvivalRto1(*s);
      VorlexDGosub160PopulationGrowth(*s);
    }
    const Model &k = kept.model(), &o = once.model();
    for (int t = 0; t <= 31; ++t) {
      EXPECT_EQ(o.TotalSize(t), k.TotalSize(t)) << physogastry << " day " << t;
      EXPECT_EQ(o.PhysoTotalSize(t), k.PhysoTotalSize(t)) << physogastry << " day " << t;
      for (int x = 0; x <= o.LastAge; ++x)
        EXPECT_EQ(o.AgeSize(x, t) + o.PhysoAgeSize(x, t), 0);
    }
    EXPECT_GT(k.AgeSize(1, 1), 0);
  }
}

TEST_F(PopulationGrowth, LongestProjectionFillsTheLastDaySlot) {
  start(1004);
  grow();
  EXPECT_EQ(m.Day, 1006);
  EXPECT_GT(m.TotalSize(1005), m.TotalSize(1004));
  EXPECT_EQ(m.TotalGrowthLn(1004), ln1(m.TotalSize(1005)) - ln1(m.TotalSize(1004)));
  start(1004);
  m.SimTime = 1005;
  EXPECT_EQ(errorOf([&] { grow(); }).code(), ErrorCode::SubscriptOutOfRange);
}

TEST_F(PopulationGrowth, EntryResetsTheSeriesIndexAndLeavesHarvestOut) {
  start();
  session.flags.FlowFlag = "Yes";
  session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  m.SeriesIndex = 7;
  VorlexDPopulationGrowth(session);
  EXPECT_EQ(m.SeriesIndex, 0);
  EXPECT_EQ(m.Day, 3);
  EXPECT_EQ(session.files.output(kFlowFile).text().rfind("In Public Sub VorlexDPopulationGrowth\r\n", 0), 0u);
  session.flags.GrowthMode = "Harvest";
  m.SeriesIndex = 7;
  EXPECT_EQ(errorOf([&] { VorlexDPopulationGrowth(session); }).code(), ErrorCode::InvalidProcedureCall);
  EXPECT_EQ(m.SeriesIndex, 0);
}

TEST_F(PopulationGrowth, FlowRecordListsTheControlsAndTheFirstControlDay) {
  start();
  m.ControlDuration(1) = 1;
  m.NrControl = 1;
  m.StageSurvivalDay(2, 2) = .5;
  session.flags.FlowFlag = "Yes";
  session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  grow();
  const std::string expected = "In Public Sub VorlexDGosub 160: Population is growing\r\n"
                               " Beginning of VorlexDGosub160PopulationGrowth           NrControl = 1 \r\n"
                               "            First control date = 2 \r\n"
                               "            Stage mortality rate = 0 \r\n"
                               "            Stage survival rate = 1 \r\n"
                               "            Stage mortality rate = .5 \r\n"
                               "            Stage survival rate = .5 \r\n"
                               "            Stage mortality rate = .5 \r\n"
                               "            Stage survival rate = 1 \r\n"
                               "Day = 2 Survival rat of stage  1  is  1 \r\n"
                               "Day = 2 Survival rat of stage  2  is  .5 \r\n"
                               "Day = 2 Survival rat of stage  3  is  1 \r\n"
                               "Day =  2 stage = 1 Stage; survival; Rate =  1 \r\n"
                               "Day =  2 stage = 2 Stage; survival; Rate =  .5 \r\n"
                               "Day =  2 stage = 3 Stage; survival; Rate =  1 \r\n";
  EXPECT_EQ(session.files.output(kFlowFile).text(), expected);
}

} // namespace
} // namespace vorlex::testing
