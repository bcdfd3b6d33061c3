#include "ChartFixture.h"

#include <cmath>
#include <vector>

namespace vorlex::testing {
namespace {

TEST_F(ChartTest, SettingsOfEveryChart) {
  m.TimeUnit = .5;
  const ChartContent chart = ShowTotalDeath(session);
  EXPECT_EQ(static_cast<int>(chart.type), 16);
  EXPECT_EQ(static_cast<int>(chart.legendLocation), 4);
  EXPECT_FALSE(chart.uniformAxis);
  EXPECT_EQ(chart.titleFont.name, "Arial");
  EXPECT_EQ(chart.titleFont.points, 12);
  for (const ChartAxis* axis : {&chart.xAxis, &chart.yAxis}) {
    EXPECT_EQ(static_cast<int>(axis->scale), 0);
    EXPECT_TRUE(axis->automaticScale);
    EXPECT_EQ(static_cast<int>(axis->ticks), 3);
    EXPECT_TRUE(axis->titleVisible);
    EXPECT_EQ(axis->titleFont.name, "Arial");
    EXPECT_EQ(axis->titleFont.points, 12);
  }
  EXPECT_EQ(static_cast<int>(chart.yAxis.majorGridPen), 1);
  EXPECT_EQ(chart.yAxis.majorGridColour, (ChartColour{0, 0, 0}));
  EXPECT_FALSE(chart.yAxis.automaticGridColour);
  EXPECT_EQ(chart.xAxis.maximum, .5); // SimTime x TimeUnit
}

TEST_F(ChartTest, TimeColumnCountsInTimeUnitsButAgesStayAges) {
  m.TimeUnit = .5;
  m.SimTime = 2;
  const ChartContent stages = ShowStageStructure(session);
  EXPECT_EQ(stages.x(3, 3), 1);
  EXPECT_EQ(stages.y(3, 3), 31);
  const ChartContent deaths = ShowStageDeath(session);
  ASSERT_EQ(deaths.rowCount(), 2);
  EXPECT_EQ(deaths.x(2, 1), .5);
  EXPECT_DOUBLE_EQ(deaths.y(2, 2), 11.3); // female deaths of day 2
  const ChartContent ages = ShowLx(session);
  EXPECT_EQ(ages.x(1, 4), 3);
}

// The lagged rows hold day x TimeUnit already, and the chart multiplies
// again; the consumption itself is read unlagged.
TEST_F(ChartTest, ConsumptionAfterReleaseCountsTheTimeUnitTwice) {
  m.TimeUnit = .5;
  for (int day = 0; day <= 2; ++day)
    m.LaggedTime(day) = day * .5;
  const ChartContent chart = ShowTotalConsumeAfterRelease(session);
  EXPECT_EQ(chart.x(1, 2), .25);
  EXPECT_EQ(chart.y(1, 2), 99);
  EXPECT_EQ(ShowTotalLogConsumeAfterRelease(session).x(1, 2), .25);
}

TEST_F(ChartTest, PredationFormWritesTheLastDayIntoNoRow) {
  m.SimTime = 2;
  const ChartContent chart = ShowTotalDeathDuetoPredation(session);
  ASSERT_EQ(chart.rowCount(), 2);
  EXPECT_EQ(chart.y(1, 1), 3);
  EXPECT_EQ(chart.y(1, 2), 4); // day 2, with 5, is not shown
  EXPECT_EQ(ShowLogTotalDeathDuetoPredation(session).y(1, 2), .7);
}

TEST_F(ChartTest, PhysogastryAddsBurstReadyBehindTheLastStage) {
  session.flags.Physogastry = "Yes";
  m.BurstReadySize(1) = 6;
  const ChartContent sizes = ShowStageStructure(session);
  ASSERT_EQ(sizes.seriesCount(), 4);
  EXPECT_EQ(sizes.label(4), "BR");
  EXPECT_EQ(sizes.y(4, 2), 6);
  EXPECT_EQ(sizes.x(4, 2), 1);
  const ChartContent logs = ShowLogStageStructure(session);
  EXPECT_EQ(logs.label(4), "BR");
  EXPECT_DOUBLE_EQ(logs.y(4, 2), std::log10(7));
  EXPECT_EQ(ShowStageGrowthRate(session).seriesCount(), 3);
}

TEST_F(ChartTest, HalfDayStepsDrawHalfOfRAsWell) {
  m.TimeUnit = .5;
  const ChartContent chart = ShowStageGrowthRatewithR(session);
  ASSERT_EQ(chart.seriesCount(), 5);
  EXPECT_EQ(chart.label(4), "r");
  EXPECT_EQ(chart.label(5), "0.5 r");
  for (int row = 1; row <= 2; ++row) {
    EXPECT_EQ(chart.y(4, row), .1);
    EXPECT_EQ(chart.y(5, row), .05);
  }
  m.TimeUnit = .25;
  EXPECT_EQ(ShowStageGrowthRatewithR(session).seriesCount(), 4);
}

TEST_F(ChartTest, OneSusceptibilityFactorIsOneCurveV) {
  m.NrWeakFactor = 1;
  const ChartContent chart = ShowVulnerableAndTotal(session);
  ASSERT_EQ(chart.labels(), (std::vector<std::string>{"T", "V"}));
  EXPECT_EQ(chart.y(2, 2), 42.5);
  EXPECT_EQ(chart.y(1, 1), 105);
}

TEST_F(ChartTest, StateChartOfSimulationTimeZeroHasOneRow) {
  m.SimTime = 0;
  EXPECT_EQ(ShowStageStructure(session).rowCount(), 1);
  EXPECT_EQ(ShowTotalSizeAndWeighedSize(session).y(1, 1), 105);
  EXPECT_EQ(ShowTotalDifference(session).rowCount(), 0);
}

TEST_F(ChartTest, LogOfADropBeyondOneStops) {
  m.TotalDifference(1) = -.5;
  EXPECT_DOUBLE_EQ(ShowLogTotalDifference(session).y(1, 1), std::log10(.5));
  m.TotalDifference(1) = -1;
  EXPECT_EQ(errorOf([&] { ShowLogTotalDifference(session); }).code(), ErrorCode::InvalidProcedureCall);
}

// The title reads the total one day past the simulation.
TEST_F(ChartTest, TitleOfTheLastTotalNeedsADayPastTheSimulation) {
  m.SimTime = 1005;
  EXPECT_EQ(ShowStageStructure(session).rowCount(), 1006);
  EXPECT_EQ(errorOf([&] { ShowVulnerableAndTotal(session); }).code(), ErrorCode::SubscriptOutOfRange);
}

TEST_F(ChartTest, ShowingAChartHidesTheHintLabels) {
  session.controls[kMainChart].visible = false;
  session.controls[kLargeChart].visible = false;
  for (const char* label : kChartHintLabels)
    session.controls[label].visible = true;
  m.TotalDifference(1) = -2;
  EXPECT_EQ(errorOf([&] { ShowLogTotalDifference(session); }).code(), ErrorCode::InvalidProcedureCall);
  EXPECT_FALSE(session.controls[kMainChart].visible); // a chart that failed shows nothing

  ShowTotalDeath(session);
  EXPECT_TRUE(session.controls[kMainChart].visible);
  for (const char* label : kChartHintLabels)
    EXPECT_FALSE(session.controls[label].visible);
  EXPECT_FALSE(session.controls[kLargeChart].visible);
}

// Day or age of each row: form A from day 0, form B from day 1, form G by
// age, the predation form from day 0; with a time unit of 1 that is x.
TEST_F(ChartTest, RowsRunOverTheDaysOrAgesOfTheirForm) {
  struct Case {
    ShowRoutine show;
    const char* name;
    std::vector<double> x;
  };
  const std::vector<Case> cases{
      {ShowStageStructure, "A", {0, 1}},
      {ShowStageDeath, "B", {1}},
      {ShowSij, "G", {0, 1, 2, 3}},
      {ShowTotalDeathDuetoPredation, "P", {0}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const ChartContent chart = c.show(session);
    for (int n = 1; n <= chart.seriesCount(); ++n)
      for (int row = 1; row <= chart.rowCount(); ++row)
        EXPECT_EQ(chart.x(n, row), c.x[static_cast<std::size_t>(row - 1)]);
  }
}

} // namespace
} // namespace vorlex::testing
