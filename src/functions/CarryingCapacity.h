#pragma once

#include <string>

namespace vorlex {

class Session;
struct Model;

// The carrying capacity K(t) and the two coefficient tables of
// density-dependent mortality, filled for days 0..SimTime+1 from one of the
// three forms of K. The values are the numbers read from the form's boxes.
// A zero step count (SimTime = 0), K(0) = 0, a table without a positive K,
// x(max. y) = 0 and a negative x under a non-integer power stop with the
// platform's error, as arithmetic does everywhere.

/// The logistic K(t) = Kmax / (1 + ((Kmax - K0) / K0) * exp(-r t)), and the
/// day coefficients scaled by K(t) / Kmax.
void fillLogisticCapacity(Model& m, double kMax, double k0, double rate);

/// The polynomial's boxes, in their order on the form.
struct PolynomialBoxes {
  double a = 0, b = 0, c = 0, d = 0, xFrom = 0, xTo = 0;
};
/// The x grid and K(t) = a + b x + c x^d alone, as Preview draws them.
void fillPolynomialGrid(Model& m, const PolynomialBoxes& boxes);
/// The grid and K(t), then KTableMaximum and the day coefficients scaled
/// by K(t) / KTableMaximum.
void fillPolynomialCapacity(Model& m, const PolynomialBoxes& boxes);

/// The parabola's boxes: y(0), max. y, x(max. y), and the x range.
struct ParabolaBoxes {
  double y0 = 0, yMax = 0, xMax = 0, xFrom = 0, xTo = 0;
};
/// The coefficients of the parabola through (0, y(0)) with its vertex at
/// (x(max. y), max. y): ParabolaC, ParabolaA, ParabolaB.
void OptimalFit(Model& m, const ParabolaBoxes& boxes);
/// OptimalFit, the x grid and K(t). The quadratic coefficient that reaches
/// the table is 0, not ParabolaA: the curve is the straight line through
/// (0, y(0)) with the slope the parabola has there.
void fillParabolaGrid(Model& m, const ParabolaBoxes& boxes);
/// The grid and K(t), then KTableMaximum and the day coefficients.
void fillParabolaCapacity(Model& m, const ParabolaBoxes& boxes);

/// The quadratic coefficient of the parabola as the tables use it.
inline constexpr double kParabolaQuadratic = 0;

/// The equation of the parabola found, as its output box shows it:
/// "y = 10+26.2222x+0x^2" for the default boxes.
std::string parabolaEquation(const Model& m);

/// x ^ p as the program's power: a negative x with a non-integer p is an
/// invalid call, 0 to a negative power a division by zero.
double power(double x, double p);

} // namespace vorlex
