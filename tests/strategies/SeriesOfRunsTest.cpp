// The series of runs that moves a treatment over the days, on the
// hand-made three-stage table (eggs, female, male; two controls, on days 2
// and 3). A run of the series is checked against the plain projection of
// the same table with its schedule moved to where the run has it: each of
// its days must match, one day on.
#include "engine/PopulationGrowth.h"
#include "strategies/ControlledStart.h"
#include "strategies/SeriesOfRuns.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

constexpr int kSimTime = 8;

// Both controls strike every stage alike, so that eggs, which in a run of
// the series take the survival of their own stage, take the same as their
// mothers. Control 1 (2 days) starts on `first`, control 2 on `second`.
std::string tableWith(int first, int second, bool barren = false) {
  std::string text = fileText(dataPath("tiny3.txt"));
  text = replaced(text, " 0 , .5 , .5 \r\n 0 , .25 , .25 ", " .5 , .5 , .5 \r\n .25 , .25 , .25 ");
  text = replaced(text, " .1 , .2 , 1 ", " .2 , .2 , .2 ");
  // The second control's day first: the first one's may become a 3.
  const std::string dayOf = "first treatment at 10th day\"\r\n";
  text = replaced(text, dayOf + "3\r\n", dayOf + std::to_string(second) + "\r\n");
  text = replaced(text, dayOf + "2\r\n", dayOf + std::to_string(first) + "\r\n");
  if (barren)
    text = replaced(text, "0,4,2", "0,0,0");
  return text;
}

struct Loaded {
  RecordingPrompts prompts;
  Session session{prompts};
  Model& m = session.model();

  Loaded(const std::string& text, const char* growthMode) {
    session.flags.WithCxj = "No";
    session.files.attachInput(kDataFile, ItemReader(text), "tiny3.txt");
    VorlexA(session);
    session.files.attachOutput(kReportFile, OutputFile::inMemory());
    m.SimTime = kSimTime;
    // Releases do not reach the runs of a series.
    m.NrRelease = 0;
    session.flags.GrowthMode = growthMode;
    VorlexF2(session);
    VorlexDPopulationGrowth(session);
  }
  // The weighed insect days of the projection: its weighed size summed
  // over days 0..SimTime + 1.
  double weighedInsectDays() const {
    double sum = 0;
    for (int t = 0; t <= kSimTime + 1; ++t)
      sum += m.DailyWID(t);
    return sum;
  }
};

struct MovedCase {
  const char* growthMode;
  int run;
  int first, second; // where the plain projection has the two controls
};

std::ostream& operator<<(std::ostream& out, const MovedCase& c) { return out << c.growthMode << " T=" << c.run; }

class RunOfSeries : public ::testing::TestWithParam<MovedCase> {};

// Under "CONSTANT" run T has the whole schedule T - 1 days later; under
// "VARIOUS" the second control starts on day ControlDate(1) + T - 1.
TEST_P(RunOfSeries, MatchesTheProjectionWithTheScheduleMoved) {
  const MovedCase& c = GetParam();
  Loaded series(tableWith(2, 3), c.growthMode);
  VorlexG(series.session);
  Loaded plain(tableWith(c.first, c.second), c.growthMode);

  const double expected = plain.weighedInsectDays();
  EXPECT_NEAR(series.m.RunWID(c.run), expected, 1e-12 * expected);
  EXPECT_EQ(series.m.RunWIDCritical(c.run), series.m.RunWID(c.run));
  // Sizes on day T and seven days later stand one day on in the series.
  // Day 1 of the series is no result of a step: a treatment on it has no
  // size before.
  const double before = c.run > 1 ? plain.m.TotalSize(c.run - 1) : 0;
  EXPECT_NEAR(series.m.RunTotalBefore(c.run), before, 1e-12 * before);
  EXPECT_NEAR(series.m.RunTotalAfter(c.run), plain.m.TotalSize(c.run + 6), 1e-12 * plain.m.TotalSize(c.run + 6));
  const double sampledAfter = plain.m.StageSize(2, c.run + 6) + plain.m.StageSize(3, c.run + 6);
  EXPECT_NEAR(series.m.RunStageAfter(c.run), sampledAfter, 1e-12 * sampledAfter);
}

INSTANTIATE_TEST_SUITE_P(Schedules, RunOfSeries,
                         ::testing::Values(MovedCase{"CONSTANT", 2, 3, 4}, MovedCase{"CONSTANT", 3, 4, 5},
                                           MovedCase{"CONSTANT", 6, 7, 8}, MovedCase{"VARIOUS", 1, 2, 2},
                                           MovedCase{"VARIOUS", 2, 2, 3}, MovedCase{"VARIOUS", 5, 2, 6}));

// Without reproduction nothing the treatment spares grows back, so every
// day it comes later lets more insect days through: the best day is the
// first, and the population that dies out ends each run with the report's
// stop line, silently.
TEST(SeriesOfRuns, WithoutReproductionTheEarliestTreatmentIsBest) {
  Loaded barren(tableWith(2, 3, true), "CONSTANT");
  const std::string projectionReport = barren.session.files.output(kReportFile).text();
  barren.prompts.lastTitle.clear();
  VorlexG(barren.session);
  for (int run = 2; run <= kSimTime + 1; ++run)
    EXPECT_LE(barren.m.RunWID(run - 1), barren.m.RunWID(run)) << run;
  EXPECT_LT(barren.m.RunWID(1), barren.m.RunWID(kSimTime + 1));
  const std::string report = barren.session.files.output(kReportFile).text();
  EXPECT_NE(report.find(" Population size = 0 !!! Stop! ", projectionReport.size()), std::string::npos);
  EXPECT_EQ(barren.prompts.lastTitle, "");
  // A run that died out forms no ratio to the end of the run.
  EXPECT_EQ(barren.m.RunWIDToFinal(1), -1);
}

// The schedule moves one day on with each run, and the first day is free of
// control from the first run on.
TEST(SeriesOfRuns, TheScheduleMovesOneDayEachRun) {
  Loaded loaded(tableWith(1, 3), "CONSTANT");
  Model& m = loaded.m;
  const double onDayOne = m.StageSurvivalDay(2, 1);
  ASSERT_EQ(onDayOne, .5);
  for (int run = 1; run <= 3; ++run) {
    m.SeriesIndex = static_cast<i16>(run);
    VorlexGGosub770(loaded.session);
    EXPECT_EQ(m.StageSurvivalDay(2, 1), 1) << run;
    EXPECT_EQ(m.StageSurvivalDay(2, 1 + run), onDayOne) << run;
  }
}

} // namespace
} // namespace vorlex::testing
