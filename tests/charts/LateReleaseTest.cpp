#include "ChartFixture.h"

#include <cmath>
#include <string>
#include <vector>

namespace vorlex::testing {
namespace {

TEST_F(ChartTest, EveryTwinCarriesItsReleaseTitleAndLongerRows) {
  struct Twin {
    ShowRoutine show;
    std::string title;
    int rows; // SimTime 1 and release day 7: form A 2 + 7, forms B and P 1 + 7
  };
  const std::vector<Twin> twins{
      {ShowStageStructureLateRelease, "Stage size (release date: 7)", 9},
      {ShowStageSizeWithTotalAdultsLateRelease, "Curves of stage size. Release date 7", 9},
      {ShowStageGrowthRateLateRelease, "Curves of stage growth rates. Release date 7", 9},
      {ShowTotalSizeAndWeighedSizeLateRelease, "Total size (T), weighed size (W), CWID, and ET", 9},
      {ShowTotalGrowthRateLateRelease, "Growth rate of total population. Release date 7", 9},
      {ShowTotalConsumeLateRelease, "Total consumption based on c(x,j). Release datae 7", 9},
      {ShowTotalLogConsumeLateRelease, "log(Total consumption+1) based on c(x,j). Release date 7", 8},
      {ShowTotalConsumeAndPopuLateRelease,
       "Total consumption based on c(x,j) and total population. Release date 7", 9},
      {ShowTotalConsumeAndPopuInLogLateRelease,
       "Total consumption based on c(x,j) and total population (in log scale). Release date7", 9},
      {ShowTotalConsumeAfterReleaseLateRelease,
       "Total consumption based on c(x,j) (Released at time 3). Release date7", 9},
      {ShowTotalLogConsumeAfterReleaseLateRelease, "log(Total consumption+1) based on c(x,j) (Released at 3)",
       9},
      {ShowTotalDifferenceLateRelease,
       "Total difference in population size between time t and t-1. Release date 7", 8},
      {ShowLogTotalDifferenceLateRelease, "log[Total(t)-Total(t-1)+1]. Release date 7", 8},
      {ShowLogTotalDeathLateRelease, "log(Total death+1) observed at time t. Release date 7", 8},
      {ShowStageDeathLateRelease, "Stage death curves. Release date7", 8},
      {ShowLogStageDeathLateRelease, "log(Stage death +1)). Release date 7", 8},
      {ShowCumuStageDeathLateRelease, "Cumulative stage death curves. Release date 7", 8},
      {ShowLogCumuStageDeathLateRelease, "log(Cumulative stage death + 1), release date 7", 8},
      {ShowTotalDeathDuetoPredationLateRelease, "Predation potential of predator at time t. Release date 7",
       8},
      {ShowLogTotalDeathDuetoPredationLateRelease,
       "log(Predation potential of predator +1) at time t. Release date 7", 8},
  };
  m.ReleaseDate = 7;
  for (const Twin& twin : twins) {
    SCOPED_TRACE(twin.title);
    const ChartContent chart = twin.show(session);
    EXPECT_EQ(chart.title, twin.title);
    EXPECT_EQ(chart.rowCount(), twin.rows);
    for (int n = 1; n <= chart.seriesCount(); ++n)
      EXPECT_EQ(chart.y(n, 1), 0);
  }
}

// Days 0..5 show 0; day 6 shows the series of day 1, so day 0 of the
// series is never drawn.
TEST_F(ChartTest, ReleaseOnDayFiveLeavesSixRowsOfZerosAhead) {
  m.ReleaseDate = 5;
  m.TimeUnit = .5;
  const ChartContent chart = ShowStageStructureLateRelease(session);
  ASSERT_EQ(chart.rowCount(), 7);
  const double dayOne[] = {70, 22.5, 20};
  for (int n = 1; n <= 3; ++n) {
    for (int row = 1; row <= 6; ++row) {
      EXPECT_EQ(chart.x(n, row), (row - 1) * .5);
      EXPECT_EQ(chart.y(n, row), 0);
    }
    EXPECT_EQ(chart.x(n, 7), 3);
    EXPECT_EQ(chart.y(n, 7), dayOne[n - 1]);
  }
  EXPECT_EQ(ShowStageStructure(session).title, "Stage size"); // the plain member is not shifted
  EXPECT_EQ(ShowStageStructure(session).y(1, 1), 100);
}

// Rows one lower than the state form: days 1..2 show 0, day 3 day 1.
TEST_F(ChartTest, ChangeTwinShiftsFromDayOne) {
  m.ReleaseDate = 2;
  m.SimTime = 2;
  m.TimeUnit = .5;
  const ChartContent chart = ShowStageDeathLateRelease(session);
  ASSERT_EQ(chart.rowCount(), 4);
  EXPECT_EQ(chart.x(2, 1), .5);
  EXPECT_EQ(chart.y(2, 2), 0);
  EXPECT_EQ(chart.x(2, 3), 1.5);
  EXPECT_DOUBLE_EQ(chart.y(2, 3), 6.5);
  EXPECT_DOUBLE_EQ(chart.y(2, 4), 11.3);
}

TEST_F(ChartTest, PredationTwinDropsItsLastWrittenRowToo) {
  m.ReleaseDate = 1;
  m.SimTime = 2;
  const ChartContent chart = ShowTotalDeathDuetoPredationLateRelease(session);
  ASSERT_EQ(chart.rowCount(), 3);
  EXPECT_EQ(chart.y(1, 2), 0);
  EXPECT_EQ(chart.y(1, 3), 4);
}

// A twin's rows take their time from the day, not from the lagged rows.
TEST_F(ChartTest, ConsumptionAfterReleaseTwinUsesThePlainTime) {
  m.ReleaseDate = 1;
  m.TimeUnit = .5;
  for (int day = 0; day <= 2; ++day)
    m.LaggedTime(day) = 40;
  const ChartContent chart = ShowTotalConsumeAfterReleaseLateRelease(session);
  EXPECT_EQ(chart.x(1, 3), 1);
  EXPECT_EQ(chart.y(1, 3), 99);
}

TEST_F(ChartTest, LogTwinKeepsItsZerosAndLogsTheRest) {
  m.ReleaseDate = 1;
  const ChartContent chart = ShowLogTotalDifferenceLateRelease(session);
  ASSERT_EQ(chart.rowCount(), 2);
  EXPECT_EQ(chart.y(1, 1), 0);
  EXPECT_DOUBLE_EQ(chart.y(1, 2), std::log10(8.5));
}

TEST_F(ChartTest, ReleaseDateBeyondSixteenBitsOfRowsOverflows) {
  m.ReleaseDate = 32767;
  EXPECT_EQ(errorOf([&] { ShowStageStructureLateRelease(session); }).code(), ErrorCode::Overflow);
}

} // namespace
} // namespace vorlex::testing
