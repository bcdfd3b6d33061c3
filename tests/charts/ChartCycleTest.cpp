#include "charts/ChartCycle.h"
#include "ChartFixture.h"
#include "mainform/MainForm.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"

#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace vorlex::testing {
namespace {

constexpr const char* kUnchanged = "chart before the activation";
constexpr const char* kNothing = "-";

/// What identifies a chart here: its title and its number of curves (two
/// members share the title of stage growth rates and differ in curves).
std::string shownAs(const ChartContent& chart) {
  return chart.title + " /" + std::to_string(chart.seriesCount());
}

/// One lap of the main form's cycle from position 0: positions 1..34, then
/// 0. For each position what it showed, kNothing when the chart stayed, and
/// the error number when the entry stopped.
std::vector<std::string> lap(Session& session) {
  std::vector<std::string> shown(kChartCycleLength);
  for (int step = 1; step <= kChartCycleLength; ++step) {
    session.mainChart = ChartContent{};
    session.mainChart.title = kUnchanged;
    const int expectedAt = step % kChartCycleLength;
    std::string seen;
    try {
      const bool changed = MSChart1_Activate(session);
      EXPECT_EQ(changed, session.mainChart.title != kUnchanged) << "at " << expectedAt;
      seen = changed ? shownAs(session.mainChart) : kNothing;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(session.mainChart.title, kUnchanged) << "at " << expectedAt;
      seen = "error " + std::to_string(error.number());
    }
    EXPECT_EQ(session.ChartCycleIndex, expectedAt);
    shown[static_cast<std::size_t>(expectedAt)] = seen;
  }
  return shown;
}

class ChartCycleLap : public ChartTest {
protected:
  /// Every entry of the cycle as its member shows it when called directly.
  std::vector<std::string> everyEntry() {
    const ShowRoutine members[] = {
        ShowStageStructure, // 0
        ShowLogStageStructure,
        ShowStageSizeWithTotalAdults,
        ShowStageGrowthRate,
        ShowStageGrowthRatewithR,
        ShowTotalSizeAndWeighedSize,
        ShowLogTotalAndWeighed,
        ShowTotalGrowthRate,
        ShowVulnerableAndTotal,
        ShowLogVulnerableAndTotal,
        ShowSij, // 10
        ShowGij,
        ShowDij,
        ShowFij,
        ShowLx,
        ShowMx,
        ShowLxMx,
        ShowTotalLogConsume, // 17
        ShowTotalConsume,
        ShowTotalConsumeAndPopu,
        ShowTotalConsumeAndPopuInLog,
        ShowTotalConsumeAfterRelease,
        ShowTotalLogConsumeAfterRelease,
        ShowTotalDifference, // 23
        ShowLogTotalDifference,
        ShowTotalDeath,
        ShowLogTotalDeath,
        ShowStageDeath,
        ShowLogStageDeath,
        ShowCumuStageDeath,
        ShowLogCumuStageDeath,
        ShowTotalDeathDuetoPredation, // 31
        ShowLogTotalDeathDuetoPredation,
        ShowLogTotalDeathDuetoPredation, // 33: extra mortality
    };
    std::vector<std::string> shown;
    for (ShowRoutine member : members)
      shown.push_back(shownAs(member(session)));
    shown.push_back(kNothing); // 34
    return shown;
  }
};

TEST_F(ChartCycleLap, EachEntryShowsItsMemberInTurn) {
  const std::vector<std::string> every = everyEntry();
  // The lap tells every entry 0..32 apart.
  EXPECT_EQ(std::set<std::string>(every.begin(), every.begin() + 33).size(), 33u);

  struct Setting {
    const char* withCxj;
    i16 lag;
    const char* strategy;
    std::set<int> left;
  };
  const std::vector<Setting> settings{
      {"Yes", 3, "OptGrowthUnderPredation", {33, 34}},
      {"No", 3, "OptNoControl", {17, 18, 19, 20, 21, 22, 31, 32, 33, 34}},
      {"yes", 3, "OptNoControl", {17, 18, 19, 20, 21, 22, 31, 32, 33, 34}},
      {"Yes", 0, "OptNoControl", {21, 31, 32, 33, 34}},
      {"Yes", 1, "OptNoControl", {21, 31, 32, 33, 34}},
      {"Yes", 2, "OptNoControl", {31, 32, 33, 34}},
      {"Yes", -1, "OptNoControl", {31, 32, 33, 34}},
      {"No", 3, "OptGrowthWithExtraMortality", {17, 18, 19, 20, 21, 22, 31, 32, 34}},
  };
  for (const Setting& setting : settings) {
    SCOPED_TRACE(::testing::Message()
                 << setting.withCxj << " lag " << setting.lag << " " << setting.strategy);
    session.flags.WithCxj = setting.withCxj;
    session.flags.OptManagement = setting.strategy;
    m.PredationLag = setting.lag;
    std::vector<std::string> expected;
    for (const std::string& entry : everyEntry())
      expected.push_back(setting.left.contains(static_cast<int>(expected.size())) ? kNothing : entry);
    EXPECT_EQ(lap(session), expected);
    EXPECT_EQ(session.ChartCycleIndex, 0);
  }
}

TEST_F(ChartCycleLap, StageEntryFollowsTheReleaseDate) {
  session.ChartCycleIndex = 34;
  ASSERT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.mainChart.title, "Stage size");
  EXPECT_EQ(session.mainChart.rowCount(), 2);

  m.ReleaseDate = 2;
  session.ChartCycleIndex = 34;
  ASSERT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.mainChart.title, "Stage size (release date: 2)");
  EXPECT_EQ(session.mainChart.rowCount(), 4); // days 0..1 and the 2 before release
  EXPECT_EQ(session.ChartCycleIndex, 0);
}

TEST_F(ChartCycleLap, PositionsOutsideTheCycle) {
  // The position is a 16-bit number; at its largest it wraps without overflow.
  static_assert(std::is_same_v<decltype(session.ChartCycleIndex), std::int16_t>);
  static_assert(std::is_same_v<decltype(session.LargeChartCycleIndex), std::int16_t>);
  session.ChartCycleIndex = 32767;
  EXPECT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.ChartCycleIndex, 0);
  EXPECT_EQ(session.mainChart.title, "Stage size");

  // Below 0 nothing shows until the position is back at 0.
  session.mainChart.title = kUnchanged;
  session.ChartCycleIndex = -2;
  EXPECT_FALSE(MSChart1_Activate(session));
  EXPECT_EQ(session.ChartCycleIndex, -1);
  EXPECT_EQ(session.mainChart.title, kUnchanged);
  EXPECT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.mainChart.title, "Stage size");

  session.LargeChartCycleIndex = -1;
  grafform::MSChart1_Activate(session);
  EXPECT_EQ(session.largeChart.title, "Stage size curves");

  EXPECT_EQ(errorOf([] { chartCycleEntry(35); }).number(), 9);
  EXPECT_EQ(errorOf([] { largeChartCycleEntry(-1); }).number(), 9);
}

TEST_F(ChartCycleLap, AnEntryThatStopsKeepsTheChartButMovesOn) {
  m.TotalDifference(1) = -2; // log(-2 + 1) has no value
  session.mainChart.title = kUnchanged;
  session.ChartCycleIndex = 23;
  EXPECT_EQ(errorOf([&] { MSChart1_Activate(session); }).number(), 5);
  EXPECT_EQ(session.ChartCycleIndex, 24);
  EXPECT_EQ(session.mainChart.title, kUnchanged);
  EXPECT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.mainChart.title, "Total death observed at time t");
}

TEST_F(ChartCycleLap, LargeChartCyclesOnItsOwn) {
  session.mainChart.title = kUnchanged;
  const char* titles[] = {
      "Curves of log(n+1)",
      "Curves of stage growth rates",
      "Total size (T), weighed size (W), CWID, and ET",
      "Total size, weighed size (W), CWID, and ET",
      "Growth rate of total population",
      "Total population (T) and vulnerable size (V)",
      "Total population (T) and vulnerable size (V) in log scale",
      "Stage size curves", // 7 -> 0
      "Curves of log(n+1)",
  };
  int at = 0;
  for (const char* title : titles) {
    at = (at + 1) % kLargeChartCycleLength;
    grafform::MSChart1_Activate(session);
    EXPECT_EQ(session.LargeChartCycleIndex, at);
    EXPECT_EQ(session.largeChart.title, title);
    EXPECT_EQ(session.largeChart.xAxis.title, "time");
  }
  EXPECT_EQ(session.ChartCycleIndex, 0);
  EXPECT_EQ(session.mainChart.title, kUnchanged);

  MSChart1_Activate(session);
  MSChart1_Activate(session);
  EXPECT_EQ(session.ChartCycleIndex, 2);
  EXPECT_EQ(session.LargeChartCycleIndex, 1);
  EXPECT_EQ(session.largeChart.title, "Curves of log(n+1)");
}

TEST(ChartCycleBeforeARun, EveryEntryShowsZerosOrStops) {
  TestSession fresh;
  Session& session = *fresh.session;
  std::vector<std::string> shown = lap(session);
  // Only the adult curve stops: with no table, stage NrStage - 1 is -1.
  EXPECT_EQ(shown[2], "error 9");
  EXPECT_EQ(shown[1], "Curves of log(n+1) /0");
  EXPECT_EQ(shown[5], "Total size (T), weighed size (W), CWID, and ET /4");
  EXPECT_EQ(shown[0], "Stage size /0");
  for (std::size_t at = 0; at < shown.size(); ++at)
    EXPECT_EQ(shown[at].find("error"), at == 2 ? 0 : std::string::npos) << at;

  session.ChartCycleIndex = 4;
  ASSERT_TRUE(MSChart1_Activate(session));
  const ChartContent& totals = session.mainChart;
  ASSERT_EQ(totals.rowCount(), 61);
  for (int series = 1; series <= totals.seriesCount(); ++series)
    for (int row = 1; row <= totals.rowCount(); ++row)
      EXPECT_EQ(totals.y(series, row), 0) << series << " " << row;

  grafform::MSChart1_Activate(session);
  EXPECT_EQ(session.largeChart.title, "Curves of log(n+1)");
}

TEST(ChartCycleAcrossARun, ARunLeavesBothPositions) {
  RunFolder folder{"chartcycle"};
  ScriptedPrompts prompts;
  Session session{prompts};
  MainForm form{session};
  prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" +
                 folder.copy(dataPath("tiny3.txt"), "tiny3.txt"));
  form.Form_Load();
  session.controls["txtSimuT"].caption = "3";
  form.Command2_Click();
  form.cmdInputLTdata_Click();
  form.Option1_Click();
  session.ChartCycleIndex = 12;
  session.LargeChartCycleIndex = 5;
  form.cmdRun_Click();
  EXPECT_EQ(session.ChartCycleIndex, 12);
  EXPECT_EQ(session.LargeChartCycleIndex, 5);
  EXPECT_EQ(session.mainChart.title, "Stage size");

  EXPECT_TRUE(MSChart1_Activate(session));
  EXPECT_EQ(session.mainChart.title, "Fecundity for each age-stage unit");
  grafform::MSChart1_Activate(session);
  EXPECT_EQ(session.largeChart.title, "Total population (T) and vulnerable size (V)");
}

} // namespace
} // namespace vorlex::testing
