// One day's predation on a prepared next-day matrix of the three-stage
// table: females (stage 2, ages 1-3) and males (stage 3, ages 1-3).
#include "engine/GrowthUnderPredation.h"
#include "support/CaseNames.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

struct PredationCase {
  const char* name;
  double predation;
  double femaleCoef, maleCoef;
  double females, males; // left at age 2
  double vulnerable, ratio;
};

std::ostream& operator<<(std::ostream& out, const PredationCase& c) { return out << c.name; }

class PredationDay : public ::testing::TestWithParam<PredationCase> {};

// 100 females and 40 males of age 2, 7 eggs; day 1.
TEST_P(PredationDay, RemovesTheSameShareOfEveryVulnerableAge) {
  const PredationCase& c = GetParam();
  TestSession run;
  run.read(fileText(dataPath("tiny3.txt")));
  Model& m = run.m;
  m.Day = 1;
  m.NextN(0, 1) = 7;
  m.NextN(2, 2) = 100;
  m.NextN(2, 3) = 40;
  m.WeakCoef(1, 2) = c.femaleCoef;
  m.WeakCoef(1, 3) = c.maleCoef;
  m.PredationTotal(1) = c.predation;
  m.PredationVulnerable(1) = -1; // what a day without predation keeps
  VorlexDGosub160PredationCausedDeath(*run.session);
  EXPECT_DOUBLE_EQ(m.NextN(2, 2), c.females);
  EXPECT_DOUBLE_EQ(m.NextN(2, 3), c.males);
  EXPECT_EQ(m.NextN(0, 1), 7) << "eggs are out of the predator's reach";
  EXPECT_DOUBLE_EQ(m.PredationVulnerable(1), c.vulnerable);
  EXPECT_DOUBLE_EQ(m.PredationDeathRatio(1), c.ratio);
}

const PredationCase kCases[] = {
    // Only the females count, weighed by .5: 50 vulnerable, 25 eaten
    // takes half of every female.
    {"half", 25, .5, 0, 50, 40, 50, .5},
    // Both sexes count; the ratio is the same for all, whatever the weight.
    {"shared", 28, 1, .1, (1 - 28.0 / 104) * 100, (1 - 28.0 / 104) * 40, 104, 28.0 / 104},
    // Predation that reaches the vulnerable size wipes them out.
    {"overrun", 50, .5, 0, 0, 40, 50, 0},
    // A negative weight adds nothing but is struck all the same.
    {"negative", 25, .5, -1, 50, 20, 50, .5},
    // No predation: nothing happens, nothing is recorded.
    {"none", 0, 1, 1, 100, 40, -1, 0},
};

INSTANTIATE_TEST_SUITE_P(Cases, PredationDay, ::testing::ValuesIn(kCases), CaseName{});

} // namespace
} // namespace vorlex::testing
