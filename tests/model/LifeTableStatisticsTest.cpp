#include "model/LifeTableStatistics.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

// tiny3.txt by hand: of a new-born, .2 becomes a female at age 1 and .05
// at age 2 (the eggs of age 1: .5 survive, .1 of them develop), so
// l(x) m(x) = 0, 4 x .21, 2 x .105 at ages 1, 2, 3: R0 = 1.05 and F =
// 1.05 / .25 = 4.2. The decrease rate of the fecundity scales R0 and F.
TEST(LifeTableStatistics, OfATableWorkedOutByHand) {
  struct Case {
    const char* fecundityDecrease;
    double R0, F;
    bool hasRate;
  };
  const Case cases[] = {{"1", 1.05, 4.2, true}, {".5", .525, 2.1, true}, {"0", 0, 0, false}};
  const std::string text = fileText(dataPath("tiny3.txt"));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fecundityDecrease);
    TestSession t;
    t.read(replaced(text, "lower the fecundity.\"\r\n1\r\n",
                    std::string("lower the fecundity.\"\r\n") + c.fecundityDecrease + "\r\n"));
    const LifeTableStatistics s = lifeTableStatistics(t.m);
    ASSERT_TRUE(s.R0 && s.F);
    EXPECT_NEAR(*s.R0, c.R0, 1e-15);
    EXPECT_NEAR(*s.F, c.F, 1e-14);
    ASSERT_EQ(s.r.has_value(), c.hasRate);
    if (!c.hasRate) {
      EXPECT_FALSE(s.lambda || s.T);
      continue;
    }
    // r solves the Euler-Lotka equation; it is negative where R0 < 1.
    const double r = *s.r;
    EXPECT_NEAR(4 * .21 * c.R0 / 1.05 * std::exp(-3 * r) + 2 * .105 * c.R0 / 1.05 * std::exp(-4 * r), 1,
                1e-14);
    EXPECT_EQ(r < 0, c.R0 < 1);
    EXPECT_DOUBLE_EQ(*s.lambda, std::exp(r));
    EXPECT_DOUBLE_EQ(*s.T, std::log(c.R0) / r);
  }
}

// The bundled example's closing statistics come from the life-table
// analysis of the same table.
TEST(LifeTableStatistics, OfTheExampleAreThoseItsFileGives) {
  TestSession t;
  t.read(fileText(examplePath("moth.txt")));
  const LifeTableStatistics s = lifeTableStatistics(t.m);
  EXPECT_NEAR(*s.F, t.m.MeanFecundity, 1e-10);
  EXPECT_NEAR(*s.R0, t.m.NetReproductiveRate, 1e-11);
  EXPECT_NEAR(*s.r, t.m.IntrinsicRate, 1e-13);
  EXPECT_NEAR(*s.lambda, t.m.FiniteRate, 1e-13);
  EXPECT_NEAR(*s.T, t.m.GenerationTime, 1e-11);
}

} // namespace
} // namespace vorlex::testing
