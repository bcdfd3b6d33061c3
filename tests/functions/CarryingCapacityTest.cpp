#include "functions/CarryingCapacity.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace vorlex::testing {
namespace {

struct Capacity : ::testing::Test {
  TestSession fresh{100};
  Model& m = fresh.m;
  Capacity() {
    m.DensityCoefBelowK = .2;
    m.DensityCoefOverK = 1;
  }
};

const PolynomialBoxes kPolynomialDefaults{10, 50, -.6, 2, 0, 50};
const ParabolaBoxes kParabolaDefaults{10, 600, 45, 10, 60};

// The x grid runs from 0 to 50 in steps of .5 and one step beyond; K peaks
// near x = 41.7 at 1051.67, but the table's largest value, at x = 41.5, is
// what scales the coefficients.
TEST_F(Capacity, PolynomialDefaultsOverOneHundredDays) {
  fillPolynomialCapacity(m, kPolynomialDefaults);
  EXPECT_EQ(m.XStep, .5);
  EXPECT_EQ(m.PolyX(0), 0);
  EXPECT_EQ(m.PolyX(100), 50);
  EXPECT_EQ(m.PolyX(101), 50.5);
  EXPECT_EQ(m.CarryingCapacity(0), 10);
  EXPECT_DOUBLE_EQ(m.CarryingCapacity(83), 1051.65);
  EXPECT_DOUBLE_EQ(m.KTableMaximum, 1051.65);
  EXPECT_EQ(m.DensityCoefOverKDay(83), 1);
  EXPECT_DOUBLE_EQ(m.DensityCoefBelowKDay(0), .2 * 10 / 1051.65);
  EXPECT_DOUBLE_EQ(m.DensityCoefOverKDay(101), (10 + 50 * 50.5 - .6 * 50.5 * 50.5) / 1051.65);
  EXPECT_EQ(m.PolyA, "10");
  EXPECT_EQ(m.PolyB, "50");
}

// The quadratic term is multiplied by zero: the "parabola" is the line
// through (0, y(0)) with the parabola's slope there, and passes max. y.
TEST_F(Capacity, ParabolaDefaultsRiseInAStraightLine) {
  fillParabolaCapacity(m, kParabolaDefaults);
  EXPECT_NEAR(m.ParabolaA, -.291358, 1e-6);
  EXPECT_NEAR(m.ParabolaB, 26.2222, 1e-4);
  EXPECT_EQ(m.ParabolaC, 10);
  EXPECT_EQ(m.ParabolaX(0), 10);
  EXPECT_EQ(m.ParabolaX(100), 60);
  EXPECT_NEAR(m.CarryingCapacity(0), 272.22, 1e-2);
  EXPECT_NEAR(m.CarryingCapacity(100), 1583.33, 1e-2);
  EXPECT_DOUBLE_EQ(m.CarryingCapacity(50) - m.CarryingCapacity(49),
                   m.CarryingCapacity(1) - m.CarryingCapacity(0));
  EXPECT_EQ(m.KTableMaximum, m.CarryingCapacity(101));
  EXPECT_EQ(parabolaEquation(m), "y = 10+26.2222x+0x^2");
}

TEST_F(Capacity, ParabolaEquationTakesTheSignOfItsSlope) {
  struct Case {
    ParabolaBoxes boxes;
    const char* equation;
  };
  const Case cases[] = {
      {{10, 600, 45, 0, 1}, "y = 10+26.2222x+0x^2"},
      {{600, 10, 45, 0, 1}, "y = 600-26.2222x+0x^2"},
      {{.5, .5, 3, 0, 1}, "y = .5+0x+0x^2"},
      {{-2.25, 1, -1.5, 0, 1}, "y = -2.25-4.3333x+0x^2"},
  };
  for (const Case& c : cases) {
    OptimalFit(m, c.boxes);
    EXPECT_EQ(parabolaEquation(m), c.equation);
  }
}

TEST_F(Capacity, LogisticStartingAtItsMaximumStaysThere) {
  fillLogisticCapacity(m, 5000, 5000, .3);
  for (int t : {0, 1, 50, 101}) {
    EXPECT_EQ(m.CarryingCapacity(t), 5000) << t;
    EXPECT_EQ(m.DensityCoefBelowKDay(t), .2) << t;
    EXPECT_EQ(m.DensityCoefOverKDay(t), 1) << t;
  }
}

TEST_F(Capacity, LogisticDefaultsGrowFromK0TowardsKmax) {
  fillLogisticCapacity(m, 10000, 100, .2);
  EXPECT_EQ(m.CarryingCapacity(0), 100);
  EXPECT_NEAR(m.CarryingCapacity(10), 694.53, 1e-2); // 10000 / (1 + 99 e^-2)
  EXPECT_NEAR(m.CarryingCapacity(101), 9999.998, 1e-3);
  EXPECT_NEAR(m.DensityCoefBelowKDay(10), .2 * .069453, 1e-6);
  EXPECT_EQ(m.KMax, 10000);
  EXPECT_EQ(m.KRate, .2);
}

// Preview draws K(t) and leaves the engine's coefficients alone; a
// Calculate after it gives what Calculate alone gives.
TEST_F(Capacity, PreviewLeavesTheCoefficientsUnset) {
  fillPolynomialGrid(m, kPolynomialDefaults);
  EXPECT_DOUBLE_EQ(m.CarryingCapacity(83), 1051.65);
  EXPECT_EQ(m.KTableMaximum, 0);
  EXPECT_EQ(m.DensityCoefBelowKDay(0), 0);
  fillPolynomialCapacity(m, kPolynomialDefaults);
  TestSession alone{100};
  alone.m.DensityCoefBelowK = .2;
  alone.m.DensityCoefOverK = 1;
  fillPolynomialCapacity(alone.m, kPolynomialDefaults);
  for (int t = 0; t <= 101; ++t) {
    EXPECT_EQ(m.CarryingCapacity(t), alone.m.CarryingCapacity(t)) << t;
    EXPECT_EQ(m.DensityCoefBelowKDay(t), alone.m.DensityCoefBelowKDay(t)) << t;
  }
}

// The polynomial's a and b are kept as the text of the number read, to 15
// significant digits, and used as that text says.
TEST_F(Capacity, PolynomialTermsAreKeptAsText) {
  fillPolynomialGrid(m, {0.1234567890123456789, -0.5, 0, 1, 0, 50});
  EXPECT_EQ(m.PolyA, ".123456789012346");
  EXPECT_EQ(m.PolyB, "-.5");
  EXPECT_EQ(m.CarryingCapacity(0), .123456789012346);
}

TEST(CapacityFailures, StopWithThePlatformsError) {
  struct Case {
    const char* what;
    int simTime;
    void (*fill)(Model&);
    ErrorCode code;
  };
  const Case cases[] = {
      {"simulation time 0", 0, [](Model& m) { fillPolynomialCapacity(m, kPolynomialDefaults); },
       ErrorCode::DivisionByZero},
      {"K(0) = 0", 60, [](Model& m) { fillLogisticCapacity(m, 10000, 0, .2); }, ErrorCode::DivisionByZero},
      {"Kmax = 0", 60, [](Model& m) { fillLogisticCapacity(m, 0, 100, .2); }, ErrorCode::Overflow},
      {"x(max. y) = 0", 60,
       [](Model& m) {
         fillParabolaCapacity(m, {10, 600, 0, 10, 60});
       },
       ErrorCode::DivisionByZero},
      {"negative x, d = 2.5", 60,
       [](Model& m) {
         fillPolynomialCapacity(m, {10, 50, -.6, 2.5, -5, 50});
       },
       ErrorCode::InvalidProcedureCall},
      {"no positive K", 60,
       [](Model& m) {
         fillPolynomialCapacity(m, {-10, 0, 0, 1, 0, 50});
       },
       ErrorCode::DivisionByZero},
      {"day 1006", 1005, [](Model& m) { fillLogisticCapacity(m, 10000, 100, .2); },
       ErrorCode::SubscriptOutOfRange},
  };
  for (const Case& c : cases) {
    TestSession fresh{c.simTime};
    fresh.m.DensityCoefBelowK = .2;
    try {
      c.fill(fresh.m);
      ADD_FAILURE() << c.what << " did not stop";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.code(), c.code) << c.what;
    }
  }
}

// A negative x under a whole power is formed as usual.
TEST(CapacityPower, NegativeXUnderAWholePower) {
  EXPECT_EQ(power(-3, 2), 9);
  EXPECT_EQ(power(-2, 3), -8);
  EXPECT_EQ(power(4, .5), 2);
}

} // namespace
} // namespace vorlex::testing
