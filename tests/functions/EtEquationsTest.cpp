#include "functions/EtEquations.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorlex::testing {
namespace {

TEST(EtEquations, FillDaysZeroToOnePastTheSimulationTime) {
  struct Case {
    EtEquation equation;
    EtParameters p;
    int day;
    double et;
  };
  const Case cases[] = {
      {EtEquation::Constant, {10}, 0, 10},
      {EtEquation::Constant, {10}, 101, 10},
      {EtEquation::Linear, {10, .5}, 0, 10},
      {EtEquation::Linear, {10, .5}, 101, 60.5},
      {EtEquation::Logistic, {20, 100, -.25, 1}, 0, 1 + 20.0 / 101},
      {EtEquation::Logistic, {20, 100, -.25, 1}, 20, 1 + 20 / (1 + 100 * std::exp(-5.0))},
      {EtEquation::Hyperbola, {100, 20}, 0, 0},
      {EtEquation::Hyperbola, {100, 20}, 20, 50},
      {EtEquation::Hyperbola, {100, 20}, 101, 10100.0 / 121},
  };
  for (const Case& c : cases) {
    TestSession fresh{100};
    fresh.m.EtDay(102) = -1;
    fillEtFromEquation(fresh.m, c.equation, c.p);
    EXPECT_DOUBLE_EQ(fresh.m.EtDay(c.day), c.et) << int(c.equation) << " day " << c.day;
    EXPECT_EQ(fresh.m.EtDay(102), -1) << "day SimTime+2 is left alone";
  }
}

// The logistic of the form rises towards L + a when c is negative.
TEST(EtEquations, LogisticRisesTowardsItsUpperLevel) {
  TestSession fresh{1000};
  fillEtFromEquation(fresh.m, EtEquation::Logistic, {20, 100, -.25, 1});
  for (int t = 1; t <= 1001; ++t)
    ASSERT_GE(fresh.m.EtDay(t), fresh.m.EtDay(t - 1)) << t;
  EXPECT_DOUBLE_EQ(fresh.m.EtDay(1001), 21);
}

TEST(EtEquations, FailuresKeepTheDaysFilledBeforeThem) {
  struct Case {
    const char* what;
    int simTime;
    EtEquation equation;
    EtParameters p;
    ErrorCode code;
    int lastFilled;
  };
  const Case cases[] = {
      {"hyperbola b = 0 at t = 0", 10, EtEquation::Hyperbola, {100, 0}, ErrorCode::Overflow, -1},
      {"logistic 1 + b exp(ct) = 0 at t = 0",
       10,
       EtEquation::Logistic,
       {20, -1, -.25, 1},
       ErrorCode::DivisionByZero,
       -1},
      {"hyperbola t + b = 0 at t = 3", 10, EtEquation::Hyperbola, {100, -3}, ErrorCode::DivisionByZero, 2},
      {"day 1006", 1005, EtEquation::Constant, {7}, ErrorCode::SubscriptOutOfRange, 1005},
  };
  for (const Case& c : cases) {
    TestSession fresh{c.simTime};
    try {
      fillEtFromEquation(fresh.m, c.equation, c.p);
      ADD_FAILURE() << c.what << " did not stop";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.code(), c.code) << c.what;
    }
    if (c.lastFilled >= 0) {
      EXPECT_NE(fresh.m.EtDay(c.lastFilled), 0) << c.what;
    }
    if (c.lastFilled < kLastDaySlot) {
      EXPECT_EQ(fresh.m.EtDay(c.lastFilled + 1), 0) << c.what;
    }
  }
}

} // namespace
} // namespace vorlex::testing
