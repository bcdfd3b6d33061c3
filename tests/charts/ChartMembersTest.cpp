#include "ChartFixture.h"

#include <cmath>
#include <string>
#include <vector>

namespace vorlex::testing {
namespace {

using Labels = std::vector<std::string>;
const Labels kStages{"Eggs", "Fema", "Male"};

Labels plus(Labels labels, const Labels& more) {
  labels.insert(labels.end(), more.begin(), more.end());
  return labels;
}

// One value of a row, worked out by hand from the projection of the fixture.
struct Probe {
  int row, series;
  double y;
};

struct Member {
  ShowRoutine show;
  const char* name;
  std::string title, yTitle, xTitle;
  bool legend;
  Labels labels;
  int rows;
  Probe probe;
};

const std::vector<Member>& members() {
  static const std::vector<Member> all{
      {ShowStageStructure,
       "StageStructure",
       "Stage size",
       "stage size",
       "Time",
       true,
       kStages,
       2,
       {2, 2, 22.5}},
      {ShowLogStageStructure,
       "LogStageStructure",
       "Curves of log(n+1)",
       "log(n+1)",
       "Time",
       true,
       kStages,
       2,
       {1, 1, std::log10(101)}},
      {ShowStageSizeWithTotalAdults,
       "StageSizeWithTotalAdults",
       "Curves of stage size",
       "stage size",
       "Time",
       true,
       plus(kStages, {"Adult"}),
       2,
       {2, 4, 42.5}},
      {ShowStageGrowthRate,
       "StageGrowthRate",
       "Curves of stage growth rates",
       "stage growth rate",
       "Time",
       true,
       kStages,
       2,
       {1, 1, std::log(71) - std::log(101)}},
      {ShowStageGrowthRatewithR,
       "StageGrowthRatewithR",
       "Curves of stage growth rates",
       "stage growth rate",
       "Time",
       true,
       plus(kStages, {"r"}),
       2,
       {2, 4, .1}},
      {ShowTotalSizeAndWeighedSize,
       "TotalSizeAndWeighedSize",
       "Total size (T), weighed size (W), CWID, and ET",
       "size",
       "Time",
       true,
       {"T", "W", "CWID", "ET"},
       2,
       {2, 3, 50}},
      {ShowLogTotalAndWeighed,
       "LogTotalAndWeighed",
       "Total size, weighed size (W), ET and CWID",
       "log(n+1)",
       "Time",
       true,
       {"T", "W", "CWID", "ET"},
       2,
       {2, 2, std::log10(33.5)}},
      {ShowTotalGrowthRate,
       "TotalGrowthRate",
       "Growth rate of total population",
       "Growth rate",
       "Time",
       false,
       {""},
       2,
       {1, 1, std::log(113.5) - std::log(106)}},
      {ShowVulnerableAndTotal,
       "VulnerableAndTotal",
       "Total population (T) =71 and vulnerable size (V)",
       "size",
       "Time",
       true,
       {"T", "Parasitoid or predator", "Rainfall"},
       2,
       {2, 3, 21.25}},
      {ShowLogVulnerableAndTotal,
       "LogVulnerableAndTotal",
       "Total population (T)= 71, vulnerable size (V), andCWID =90.5",
       "log(n+1)",
       "Time",
       true,
       {"T", "V", "CWID"},
       2,
       {2, 2, std::log10(43.5)}},
      {ShowSij,
       "Sij",
       "Survival rate to each age-stage unit",
       "s(x,j)",
       "age",
       true,
       kStages,
       4,
       {3, 2, .21}},
      {ShowGij,
       "Gij",
       "Growth transition probability for each age-stage unit",
       "g(x,j)",
       "age",
       true,
       kStages,
       4,
       {2, 2, .8}},
      {ShowDij, "Dij", "Developmental transition probability", "d(x,j)", "age", true, kStages, 4, {2, 2, .3}},
      {ShowFij, "Fij", "Fecundity for each age-stage unit", "f(x,j)", "age", true, kStages, 4, {3, 2, 4}},
      {ShowLx, "Lx", "Age-specific survival rate", "l(x)", "Age", false, {""}, 4, {3, 1, .48}},
      {ShowMx,
       "Mx",
       "Age-specific fecundity (offspring/individual)",
       "m(x)",
       "Age",
       false,
       {""},
       4,
       {3, 1, 1.75}},
      {ShowLxMx, "LxMx", "Age-specific maternity (lx*mx)", "l(x)*m(x)", "Age", false, {""}, 4, {3, 1, .84}},
      {ShowTotalConsume,
       "TotalConsume",
       "Total consumption based on c(x,j)",
       "Total consumption",
       "Time",
       false,
       {""},
       2,
       {2, 1, 99}},
      {ShowTotalLogConsume,
       "TotalLogConsume",
       "log(Total consumption+1) based on c(x,j)",
       "log(Total consumption+1)",
       "Time",
       false,
       {""},
       1,
       {1, 1, 2}},
      {ShowTotalConsumeAndPopu,
       "TotalConsumeAndPopu",
       "Total consumption based on c(x,j) and total population",
       "Total consumption and population",
       "Time",
       true,
       {"C", "T"},
       2,
       {2, 2, 112.5}},
      {ShowTotalConsumeAndPopuInLog,
       "TotalConsumeAndPopuInLog",
       "Total consumption based on c(x,j) and total population (in log scale)",
       "log(Total consumption+1) and log (population+1)",
       "Time",
       true,
       {"C", "T"},
       2,
       {1, 1, 1}},
      {ShowTotalConsumeAfterRelease,
       "TotalConsumeAfterRelease",
       "Total consumption based on c(x,j) (Released at time 3)",
       "Total consumption",
       "Time",
       false,
       {""},
       2,
       {2, 1, 99}},
      {ShowTotalLogConsumeAfterRelease,
       "TotalLogConsumeAfterRelease",
       "log(Total consumption+1) based on c(x,j) (Released at 3)",
       "log(Total consumption+1)",
       "Time",
       false,
       {""},
       2,
       {2, 1, .75}},
      {ShowTotalDifference,
       "TotalDifference",
       "Total difference in population size between time t and t-1",
       "Difference",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, 7.5}},
      {ShowLogTotalDifference,
       "LogTotalDifference",
       "log[Total(t)-Total(t-1)+1]",
       "log(difference+1)",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, std::log10(8.5)}},
      {ShowTotalDeath,
       "TotalDeath",
       "Total death observed at time t",
       "Total death",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, 46.5}},
      {ShowLogTotalDeath,
       "LogTotalDeath",
       "log(Total death+1) observed at time t",
       "log(total death+1)",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, std::log10(47.5)}},
      {ShowStageDeath,
       "StageDeath",
       "Stage death curves",
       "Stage death",
       "Time",
       true,
       kStages,
       1,
       {1, 2, 6.5}},
      {ShowLogStageDeath,
       "LogStageDeath",
       "log(Stage death +1))",
       "log(Stage death+1)",
       "Time",
       true,
       kStages,
       1,
       {1, 3, std::log10(9)}},
      {ShowCumuStageDeath,
       "CumuStageDeath",
       "Cumulative stage death curves",
       "Cumulative stage death",
       "Time",
       true,
       kStages,
       1,
       {1, 1, 32}},
      {ShowLogCumuStageDeath,
       "LogCumuStageDeath",
       "log(Cumulative stage death + 1)",
       "log(Cumulative stage death + 1)",
       "Time",
       true,
       kStages,
       1,
       {1, 1, std::log10(33)}},
      {ShowTotalDeathDuetoPredation,
       "TotalDeathDuetoPredation",
       "Predation potential of predator at time t",
       "Predation potential of predator",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, 3}},
      {ShowLogTotalDeathDuetoPredation,
       "LogTotalDeathDuetoPredation",
       "log(Predation potential of predator +1) at time t",
       "log(Predation potential of predator +1)",
       "Time",
       true,
       {"T"},
       1,
       {1, 1, .5}},
  };
  return all;
}

TEST_F(ChartTest, EveryMemberOfTheMainFormByHand) {
  ASSERT_EQ(members().size(), 33u);
  for (const Member& member : members()) {
    SCOPED_TRACE(member.name);
    const ChartContent chart = member.show(session);
    EXPECT_EQ(chart.title, member.title);
    EXPECT_EQ(chart.yAxis.title, member.yTitle);
    EXPECT_EQ(chart.xAxis.title, member.xTitle);
    EXPECT_EQ(chart.showLegend, member.legend);
    EXPECT_EQ(chart.labels(), member.labels);
    EXPECT_EQ(chart.columnCount(), 2 * static_cast<int>(member.labels.size()));
    EXPECT_EQ(chart.rowCount(), member.rows);
    EXPECT_NEAR(chart.y(member.probe.series, member.probe.row), member.probe.y, 1e-12);
  }
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
