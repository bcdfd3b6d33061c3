// The efficacy pages: marks of a row, and the efficacies worked out from
// the series of runs, on a model filled by hand.
#include "reports/EfficacyPages.h"
#include "strategies/EfficacyEvaluation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace vorlex::testing {
namespace {

struct RowCase {
  const char* what;
  double v, t, efficacy, u;
  const char* row; // the plot line of day 1
};

std::ostream& operator<<(std::ostream& out, const RowCase& c) { return out << c.what; }

class EfficacyRow1 : public ::testing::TestWithParam<RowCase> {};

// 100 % stands at column 51, 0 % at column 1, two per cent a column; a
// ratio above 1 and a day without value get no mark; the sizes go on the
// logarithmic scale (9 is column 11), and marks that meet are counted.
TEST_P(EfficacyRow1, MarksStandWhereTheirValuesSay) {
  const RowCase& c = GetParam();
  TestSession ts(1);
  ts.session->files.attachOutput(kReportFile, OutputFile::inMemory());
  VorlexHGosub1800(*ts.session);
  ts.m.PlotV(1) = c.v;
  ts.m.PlotT(1) = c.t;
  ts.m.PlotEfficacy(1) = c.efficacy;
  ts.m.PlotU(1) = c.u;
  ts.m.PlotScale = "+----+----+----+----+----+----+----+----+----+----+----+";
  VorlexHGosub440(*ts.session);
  const std::string text = ts.session->files.output(kReportFile).text();
  const std::string dayOne = " 1   " + std::string(c.row) + "\r\n";
  EXPECT_NE(text.find(dayOne), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EfficacyRow1,
    ::testing::Values(
        RowCase{"no values", -1, -1, -1, -1, "+                                                      +"},
        RowCase{"full efficacy", -1, -1, 0, -1, "+                                                 $    +"},
        RowCase{"no efficacy", -1, -1, 1, -1, "$                                                      +"},
        RowCase{"half", -1, -1, .5, -1, "+                        $                             +"},
        RowCase{"ratio above 1", -1, -1, 1.2, -1, "+                                                      +"},
        RowCase{"sizes", 9, 99, -1, 0, "U         V         *                                  +"},
        RowCase{"meeting", 9, 9, .8, 9, "+         4                                            +"}));

constexpr double kNone = -1;

struct RatioCase {
  const char* what;
  double untreatedOnT, untreatedAfter, treatedBefore, treatedAfter;
  std::optional<double> abbott, hendersonTilton;
};

std::ostream& operator<<(std::ostream& out, const RatioCase& c) { return out << c.what; }

class EfficacyOfTheDay : public ::testing::TestWithParam<RatioCase> {};

// Day 2, sampled 3 days later: Abbott is 1 - T/V, Henderson-Tilton
// 1 - (TA x UB) / (TB x UA); a divisor of 0 leaves the day without value.
TEST_P(EfficacyOfTheDay, IsWorkedOutByAbbottAndHendersonTilton) {
  const RatioCase& c = GetParam();
  TestSession ts(6);
  Model& m = ts.m;
  m.SamplingInterval = 3;
  m.VulnerableTotal(2) = c.untreatedOnT;
  m.VulnerableTotal(5) = c.untreatedAfter;
  m.RunTotalBefore(2) = c.treatedBefore;
  m.RunTotalAfter(2) = c.treatedAfter;
  m.RunWIDToFinal(2) = kNone;
  m.RunWIDToCritical(2) = .25;
  const auto rows = efficacyRows(m);
  ASSERT_EQ(rows.size(), 7u);
  const EfficacyRow& row = rows[1];
  EXPECT_EQ(row.day, 2);
  EXPECT_EQ(row.abbottEfficacy, c.abbott);
  EXPECT_EQ(row.hendersonTiltonEfficacy, c.hendersonTilton);
  EXPECT_EQ(row.weighedEfficacy, std::nullopt);
  EXPECT_EQ(row.toCritical, .25);
  // Days whose sampling falls beyond the last run are not evaluated.
  EXPECT_EQ(rows[4].abbottEfficacy, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Days, EfficacyOfTheDay,
                         ::testing::Values(RatioCase{"both", 10, 40, 20, 10, 75, 87.5},
                                           RatioCase{"more than untreated", 10, 10, 10, 20, -100, -100},
                                           RatioCase{"nothing before", 10, 40, 0, 10, 75, std::nullopt},
                                           RatioCase{"untreated gone", 10, 0, 20, 10, std::nullopt, std::nullopt}));

} // namespace
} // namespace vorlex::testing
