#include "functions/CarryingCapacity.h"

#include "model/Arithmetic.h"
#include "model/Model.h"
#include "textio/NumberForms.h"

#include <cmath>

namespace vorlex {

namespace {

int lastDay(const Model& m) { return checkedInt16(m.SimTime + 1); }

// The x of day t runs in equal steps over the range, one step beyond its
// end on day SimTime+1; K of day t is the formula at that x.
template <typename Formula>
void fillCapacityOverGrid(Model& m, Table1<double>& grid, double from, double to, Formula k) {
  m.XTo = to;
  m.XStep = divide(m.XTo - from, m.SimTime);
  grid(0) = from;
  for (int t = 0; t <= lastDay(m); ++t)
    grid(t) = grid(0) + t * m.XStep;
  for (int t = 0; t <= lastDay(m); ++t)
    m.CarryingCapacity(t) = k(m, grid(t));
}

double polynomialAt(const Model& m, double x) {
  return numberEntry(m.PolyA) + numberEntry(m.PolyB) * x + m.PolyC * power(x, m.PolyD);
}

double parabolaAt(const Model& m, double x) {
  return m.ParabolaC + x * m.ParabolaB + kParabolaQuadratic * power(x, 2);
}

// The largest K of the table, and the day coefficients scaled by each day's
// share of it. The share is worked out from the formula again.
template <typename Formula> void scaleByTableMaximum(Model& m, const Table1<double>& grid, Formula k) {
  m.KTableMaximum = 0;
  for (int t = 0; t <= lastDay(m); ++t)
    if (m.CarryingCapacity(t) > m.KTableMaximum)
      m.KTableMaximum = m.CarryingCapacity(t);
  for (int t = 0; t <= lastDay(m); ++t) {
    m.DensityCoefBelowKDay(t) = m.DensityCoefBelowK * divide(k(m, grid(t)), m.KTableMaximum);
    m.DensityCoefOverKDay(t) = m.DensityCoefOverK * divide(k(m, grid(t)), m.KTableMaximum);
  }
}

// r(v): v to four decimals through a 32-bit integer, ties to even.
double fourDecimals(double v) { return toInt32(10000 * v) / 10000.0; }

} // namespace

double power(double x, double p) {
  if (x < 0 && p != std::floor(p))
    raise(ErrorCode::InvalidProcedureCall);
  if (x == 0 && p < 0)
    raise(ErrorCode::DivisionByZero);
  return finite(std::pow(x, p));
}

void fillLogisticCapacity(Model& m, double kMax, double k0, double rate) {
  m.KMax = kMax;
  m.CarryingCapacity(0) = k0;
  m.KRate = rate;
  for (int t = 0; t <= lastDay(m); ++t) {
    // K(0) is read back from the table on every pass.
    const double start = m.CarryingCapacity(0);
    const double k = divide(m.KMax, 1 + divide(m.KMax - start, start) * exponential(t * (-m.KRate)));
    m.CarryingCapacity(t) = k;
    m.DensityCoefBelowKDay(t) = m.DensityCoefBelowK * divide(k, m.KMax);
    m.DensityCoefOverKDay(t) = m.DensityCoefOverK * divide(k, m.KMax);
  }
}

void fillPolynomialGrid(Model& m, const PolynomialBoxes& boxes) {
  m.PolyA = digits(boxes.a);
  m.PolyB = digits(boxes.b);
  m.PolyC = boxes.c;
  m.PolyD = boxes.d;
  m.PolyXFrom = boxes.xFrom;
  fillCapacityOverGrid(m, m.PolyX, m.PolyXFrom, boxes.xTo, polynomialAt);
}

void fillPolynomialCapacity(Model& m, const PolynomialBoxes& boxes) {
  fillPolynomialGrid(m, boxes);
  scaleByTableMaximum(m, m.PolyX, polynomialAt);
}

void OptimalFit(Model& m, const ParabolaBoxes& boxes) {
  m.ParabolaC = boxes.y0;
  m.ParabolaY0 = boxes.y0;
  m.ParabolaXMax = boxes.xMax;
  m.ParabolaYMax = boxes.yMax;
  m.ParabolaA = divide(m.ParabolaY0 - m.ParabolaYMax, power(m.ParabolaXMax, 2));
  m.ParabolaB = -2 * m.ParabolaA * m.ParabolaXMax;
}

void fillParabolaGrid(Model& m, const ParabolaBoxes& boxes) {
  OptimalFit(m, boxes);
  m.ParabolaXFrom = boxes.xFrom;
  fillCapacityOverGrid(m, m.ParabolaX, m.ParabolaXFrom, boxes.xTo, parabolaAt);
}

void fillParabolaCapacity(Model& m, const ParabolaBoxes& boxes) {
  fillParabolaGrid(m, boxes);
  scaleByTableMaximum(m, m.ParabolaX, parabolaAt);
}

std::string parabolaEquation(const Model& m) {
  const double q = kParabolaQuadratic;
  std::string text = "y = " + digits(fourDecimals(m.ParabolaC));
  if (m.ParabolaB >= 0)
    text += "+";
  text += digits(fourDecimals(m.ParabolaB));
  text += q >= 0 ? "x+" : "x";
  return text + digits(fourDecimals(q)) + "x^2";
}

} // namespace vorlex
