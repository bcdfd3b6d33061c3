#include "ChartFixture.h"

#include <string>
#include <vector>

namespace vorlex::testing {
namespace {

TEST_F(ChartTest, LargeGraphRepeatsTheMainChartsWithItsOwnTitles) {
  struct Large {
    ShowRoutine show;
    std::string title;
    int rows;
  };
  const std::vector<Large> charts{
      {grafform::ShowStageStructure, "Stage size curves", 2},
      {grafform::ShowLogStageStructure, "Curves of log(n+1)", 2},
      {grafform::ShowStageGrowthRate, "Curves of stage growth rates", 2},
      {grafform::ShowTotalSizeAndWeighedSize, "Total size (T), weighed size (W), CWID, and ET", 2},
      {grafform::ShowLogTotalAndWeighed, "Total size, weighed size (W), CWID, and ET", 2},
      {grafform::ShowTotalGrowthRate, "Growth rate of total population", 2},
      {grafform::ShowVulnerableAndTotal, "Total population (T) and vulnerable size (V)", 2},
      {grafform::ShowLogVulnerableAndTotal, "Total population (T) and vulnerable size (V) in log scale", 2},
      {grafform::ShowTotalConsume, "Total consumption based on c(x,j)", 2},
      {grafform::ShowTotalLogConsume, "log(Total consumption+1) based on c(x,j)", 1},
      {grafform::ShowTotalConsumeAndPopu, "Total consumption based on c(x,j) and total population", 2},
      {grafform::ShowTotalConsumeAndPopuInLog,
       "Total consumption based on c(x,j) and total population (in log scale)", 2},
      {grafform::ShowTotalConsumeAfterRelease, "Total consumption based on c(x,j) (Released at time 3)", 2},
      {grafform::ShowTotalLogConsumeAfterRelease, "log(Total consumption+1) based on c(x,j) (Released at 3)",
       2},
      {grafform::ShowStageDeath, "Stage death curves", 1},
      {grafform::ShowLogStageDeath, "log(Stage death +1))", 1},
  };
  m.ReleaseDate = 4; // grafform has no twins: nothing shifts
  for (const Large& large : charts) {
    SCOPED_TRACE(large.title);
    const ChartContent chart = large.show(session);
    EXPECT_EQ(chart.title, large.title);
    EXPECT_EQ(chart.xAxis.title, "time");
    EXPECT_EQ(chart.rowCount(), large.rows);
  }
}

TEST_F(ChartTest, LargeStageChartHoldsTheSameCurves) {
  const ChartContent chart = grafform::ShowStageStructure(session);
  EXPECT_EQ(chart.labels(), (std::vector<std::string>{"Eggs", "Fema", "Male"}));
  EXPECT_EQ(chart.y(1, 1), 100);
  EXPECT_EQ(chart.y(3, 2), 20);
  EXPECT_EQ(chart.yAxis.title, "stage size");
}

TEST_F(ChartTest, LargeGraphShowsItsOwnChart) {
  session.controls[kMainChart].visible = false;
  session.controls[kLargeChart].visible = false;
  grafform::ShowStageDeath(session);
  EXPECT_TRUE(session.controls[kLargeChart].visible);
  EXPECT_FALSE(session.controls[kMainChart].visible);
  for (const char* label : kChartHintLabels)
    EXPECT_FALSE(session.controls[label].visible);
}

} // namespace
} // namespace vorlex::testing
