#pragma once

#include <string>

namespace vorlex {

/// A life-table parameter as its box shows it, to n decimals: scaled by
/// 10^n, rounded to a 32-bit integer ties to even (Overflow beyond it),
/// scaled back and written in the digits form, ".1332" for r = 0.133206.
std::string parameterText(double value, int decimals);

} // namespace vorlex
