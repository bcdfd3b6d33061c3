#pragma once

#include "textio/RuntimeError.h"

#include <cmath>

namespace vorlex {

// Floating-point arithmetic that stops the work where the program's users
// expect it to stop, instead of carrying infinities and NaNs into files.

/// A finite result, or Overflow.
inline double finite(double value) {
  if (!std::isfinite(value))
    raise(ErrorCode::Overflow);
  return value;
}

/// a / b; Division by zero for b = 0, Overflow for 0 / 0 or a result beyond
/// the range of a double.
inline double divide(double a, double b) {
  if (b == 0.0)
    raise(a == 0.0 || std::isnan(a) ? ErrorCode::Overflow : ErrorCode::DivisionByZero);
  return finite(a / b);
}

/// Natural logarithm; Invalid procedure call or argument for v <= 0.
inline double naturalLog(double v) {
  if (!(v > 0.0))
    raise(ErrorCode::InvalidProcedureCall);
  return std::log(v);
}

/// e to the power v; Overflow beyond the range of a double.
inline double exponential(double v) { return finite(std::exp(v)); }

/// A natural logarithm turned base 10 as the files have it: ln / ln(10).
inline double lnToLog10(double ln) { return ln / std::log(10.0); }

/// The base-10 logarithm of v + 1 as the files have it: ln(v + 1) / ln(10).
inline double log10Plus1(double v) { return lnToLog10(naturalLog(v + 1.0)); }

} // namespace vorlex
