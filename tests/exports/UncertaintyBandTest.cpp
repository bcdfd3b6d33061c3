#include "exports/UncertaintyBand.h"

#include "support/RunFolder.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <fstream>

namespace vorlex::testing {
namespace {

TEST(Quantile, JoinsTheOrderStatisticsByStraightLines) {
  struct Case {
    std::vector<double> values;
    double p, expected;
  };
  const Case kCases[] = {
      {{5, 1, 4, 2, 3}, 0, 1},     {{5, 1, 4, 2, 3}, .025, 1.1}, {{5, 1, 4, 2, 3}, .25, 2},
      {{5, 1, 4, 2, 3}, .5, 3},    {{5, 1, 4, 2, 3}, .75, 4},    {{5, 1, 4, 2, 3}, .975, 4.9},
      {{5, 1, 4, 2, 3}, 1, 5},     {{0, 10}, .025, .25},         {{0, 10}, .975, 9.75},
      {{10, 0, 0, 10}, .5, 5},     {{7}, .025, 7},               {{7}, 1, 7},
  };
  for (const Case& c : kCases)
    EXPECT_DOUBLE_EQ(quantile(c.values, c.p), c.expected) << c.values.size() << " values at " << c.p;
  EXPECT_EQ(errorOf([] { quantile({}, .5); }).code(), ErrorCode::InvalidProcedureCall);
}

// Forty runs whose total on day t is t times the run's number (1..40),
// whose weighed size is 1000 minus that, and one run that stops a day early.
std::vector<DailySizes> fortyRuns() {
  std::vector<DailySizes> runs(40);
  for (int r = 0; r < 40; ++r)
    for (int t = 0; t <= (r == 17 ? 1 : 2); ++t) {
      runs[r].time.push_back(t * .5);
      runs[r].total.push_back(t * (r + 1.0));
      runs[r].weighed.push_back(1000 - t * (r + 1.0));
    }
  return runs;
}

TEST(UncertaintyBand, TakesEachDayAcrossTheRunsOverTheDaysAllOfThemHave) {
  const UncertaintyBand band = bandOf(fortyRuns());
  EXPECT_EQ(band.runs, 40);
  ASSERT_EQ(band.time, (std::vector<double>{0, .5}));
  // Day 1: the values 1..40; h = 39 p.
  const std::array<double, 7> day1 = {1, 1.975, 10.75, 20.5, 30.25, 39.025, 40};
  for (std::size_t i = 0; i < 7; ++i) {
    EXPECT_DOUBLE_EQ(band.total[1][i], day1[i]) << kBandLevelNames[i];
    EXPECT_DOUBLE_EQ(band.weighed[1][i], 1000 - day1[6 - i]) << kBandLevelNames[i];
    EXPECT_EQ(band.total[0][i], 0);
  }
  EXPECT_TRUE(bandOf({}).time.empty());
}

TEST(UncertaintyBand, ItsFileReadsBackAsWritten) {
  RunFolder folder("band");
  const UncertaintyBand band = bandOf(fortyRuns());
  writeBand(band, folder.path("band.csv"));
  EXPECT_EQ(fileText(folder.path("band.csv")), fileText(dataPath("band-forty-runs.expected")));
  const UncertaintyBand again = readBand(folder.path("band.csv"));
  EXPECT_EQ(again.time, band.time);
  EXPECT_EQ(again.total, band.total);
  EXPECT_EQ(again.weighed, band.weighed);
}

TEST(UncertaintyBand, AFileWithoutItsHeadingIsNoBand) {
  RunFolder folder("band");
  std::ofstream(folder.path("other.csv"), std::ios::binary) << "Time,Total min,Total 5%\r\n0,1,2\r\n";
  EXPECT_EQ(errorOf([&] { readBand(folder.path("other.csv")); }).code(), ErrorCode::TypeMismatch);
}

TEST(UncertaintyBand, ItsChartShadesTheSpreadsAroundTheMedian) {
  const UncertaintyBand band = bandOf(fortyRuns());
  for (const bool weighed : {false, true}) {
    const ChartContent chart = bandChart(band, "b.csv", weighed);
    ASSERT_EQ(chart.labels(), (std::vector<std::string>{"2.5 %", "97.5 %", "25 %", "75 %", "Median"}));
    EXPECT_EQ(chart.areas.size(), 2u);
    EXPECT_EQ(chart.areas[0].lowerSeries, 1);
    EXPECT_EQ(chart.areas[0].upperSeries, 2);
    EXPECT_EQ(chart.areas[1].lowerSeries, 3);
    EXPECT_EQ(chart.areas[1].upperSeries, 4);
    const auto& levels = weighed ? band.weighed : band.total;
    for (int series = 1; series <= 5; ++series) {
      const std::size_t level[] = {1, 5, 2, 4, 3};
      EXPECT_EQ(chart.x(series, 2), .5);
      EXPECT_EQ(chart.y(series, 2), levels[1][level[series - 1]]) << chart.label(series);
    }
  }
}

} // namespace
} // namespace vorlex::testing
