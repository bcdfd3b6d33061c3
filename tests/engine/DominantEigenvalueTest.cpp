#include "engine/DominantEigenvalue.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

// Eggs of age 0 become females (half) and males (half) of age 1; females
// lay 2 eggs at age 1, half of them live to age 2 and lay 4. The eggs obey
// N(t+1) = 2 F1(t) + 4 F2(t), F1(t+1) = N(t) / 2, F2(t+1) = F1(t) / 2, so
// lambda^3 = lambda + 1: lambda is the real root, 1.3247179572447460.
TEST(DominantEigenvalue, OfATableWithAKnownRoot) {
  TestSession run;
  Model& m = run.m;
  m.LastAge = 2;
  m.NrStage = 3;
  m.DevelopRate(0, 1) = .5; // into the female
  m.DevelopRate(0, 2) = .5; // into the male
  m.Fecundity(1, 2) = 2;
  m.Fecundity(2, 2) = 4;
  m.GrowthRate(1, 2) = .5;
  const EigenvalueEstimate estimate = dominantEigenvalue(m);
  EXPECT_TRUE(estimate.settled);
  EXPECT_NEAR(estimate.lambda, 1.3247179572447460, 1e-12);
}

// The example's own lambda, computed from its table when it was made.
TEST(DominantEigenvalue, OfTheExampleIsItsFilesLambda) {
  TestSession run;
  run.read(fileText(examplePath("moth.txt")));
  const EigenvalueEstimate estimate = dominantEigenvalue(run.m);
  EXPECT_TRUE(estimate.settled);
  EXPECT_NEAR(estimate.lambda, run.m.FiniteRate, 1e-9);
}

} // namespace
} // namespace vorlex::testing
