// The charts of a run as a script saves them: which are drawn, which are
// skipped and why, and the names of their files.
#include "mainform/RunCharts.h"
#include "cli/RunCommand.h"
#include "support/RunFolder.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vorlex::testing {
namespace {

struct NameCase {
  std::string prefix;
  int number;
  std::string title;
  std::string name;
};

const NameCase kNames[] = {
    {"cycle", 0, "Stage size", "cycle-00-Stage-size"},
    {"cycle", 24, "log[Total(t)-Total(t-1)+1]", "cycle-24-log-Total-t-Total-t-1-+1"},
    {"cycle", 16, "Age-specific maternity (lx*mx)", "cycle-16-Age-specific-maternity-lx-mx"},
    {"large", 6, "Total population (T) =1234.5 and vulnerable size (V)",
     "large-06-Total-population-T-1234.5-and-vulnerable-size-V"},
    {"cycle", 7, "", "cycle-07"},
    {"cycle", 5, "  Total size / weighed size  ", "cycle-05-Total-size-weighed-size"},
    {"large", 7, "Total population (T)= 1.5E+16. Vuln.", "large-07-Total-population-T-1.5E+16-Vuln"},
    // Cut at the last "-" within 80 characters.
    {"cycle", 21,
     "Total consumption based on c(x,j) (Released at time 3). Release date 5, and more words here",
     "cycle-21-Total-consumption-based-on-c-x-j-Released-at-time-3-Release-date-5-and"},
};

TEST(RunCharts, FileNamesKeepLettersDigitsPointsAndPlusSigns) {
  for (const NameCase& c : kNames) {
    EXPECT_EQ(chartFileName(c.prefix, c.number, c.title), c.name) << c.title;
    EXPECT_LE(chartFileName(c.prefix, c.number, c.title).size(), 80u);
  }
}

struct RunCase {
  std::string name;
  std::string dataFile;
  std::string strategy;
  int simTime;
  std::vector<std::string> answers;
  /// The name of entry 0, the stage chart or its late-release twin.
  std::string stageChart;
  /// The entries of the cycle that are skipped.
  std::vector<int> skipped;
};

/// How the reason for skipping an entry starts.
std::string reasonFor(int entry) {
  if (entry == 21)
    return "shown only when the data file holds consumption data C(x,j) and the predation lag is other than "
           "0 and 1";
  if (entry >= 17 && entry <= 22)
    return "shown only when the data file holds consumption data C(x,j)";
  if (entry == 24)
    return "Run-time error '5': Invalid procedure call or argument";
  if (entry == 31 || entry == 32)
    return "shown only when the strategy is population growth under predation";
  return "shown only when the strategy is extra mortality, which its driver sets back to no control";
}

// The example's 60 days without control are the golden list of the saved
// charts (tests/data/moth-save-charts.expected).
const RunCase kRuns[] = {
    {"consumption data and a lag of 3: every consumption chart",
     "moth-cxj.txt",
     "no-control",
     20,
     {"Attention=No", "Attention=Yes", "Add time to total predation data.=3",
      "Predator? Parasitoid? Pest?=moths"},
     "cycle-00-Stage-size",
     {31, 32, 33}},
    // The driver of extra mortality runs it as no control and says so in
    // the strategy mark, so the entry kept for it never shows after a run.
    {"extra mortality: the entry kept for it stays hidden",
     "moth.txt",
     "extra-mortality",
     10,
     {},
     "cycle-00-Stage-size",
     {17, 18, 19, 20, 21, 22, 24, 31, 32, 33}},
    {"a late release: the stage chart from the release day",
     "moth-releases.txt",
     "no-control",
     12,
     {"Initial population released date?=4"},
     "cycle-00-Stage-size-release-date-4",
     {17, 18, 19, 20, 21, 22, 24, 31, 32, 33}},
};

TEST(RunCharts, EveryChartOfTheCycleAndTheLargeGraphsIsDrawnOrSaysWhyNot) {
  for (const RunCase& c : kRuns) {
    SCOPED_TRACE(c.name);
    RunFolder folder("run-charts");
    const std::string source =
        std::filesystem::exists(dataPath(c.dataFile)) ? dataPath(c.dataFile) : examplePath(c.dataFile);
    std::vector<std::string> args{folder.copy(source, c.dataFile), "--strategy", c.strategy, "--sim-time",
                                  std::to_string(c.simTime)};
    for (const std::string& answer : c.answers)
      args.insert(args.end(), {"--answer", answer});
    std::vector<RunChart> charts;
    std::ostringstream out, err;
    const int status = cli::runCommand(args, out, err, [&](Session& session) {
      charts = chartsOfRun(session);
      return 0;
    });
    ASSERT_EQ(status, 0) << err.str();

    // Entries 0 to 33 of the cycle, then the sixteen large graphs.
    ASSERT_EQ(charts.size(), 34u + 16u);
    EXPECT_EQ(charts[0].name, c.stageChart);
    std::vector<int> skipped;
    for (std::size_t i = 0; i < charts.size(); ++i) {
      const RunChart& chart = charts[i];
      const std::string place = i < 34 ? "cycle" : "large";
      const int number = static_cast<int>(i < 34 ? i : i - 34);
      if (chart.content) {
        EXPECT_EQ(chart.name, chartFileName(place, number, chart.content->title));
        EXPECT_TRUE(chart.whyNot.empty());
        continue;
      }
      EXPECT_EQ(chart.name, chartFileName(place, number, ""));
      skipped.push_back(number);
      EXPECT_EQ(chart.whyNot.rfind(reasonFor(number), 0), 0u) << chart.whyNot;
      // One line, whatever the reason holds.
      EXPECT_EQ(skippedLine(chart).find('\n'), std::string::npos);
      EXPECT_EQ(skippedLine(chart).rfind(chart.name + " skipped: ", 0), 0u);
    }
    EXPECT_EQ(skipped, c.skipped);
  }
}

} // namespace
} // namespace vorlex::testing
