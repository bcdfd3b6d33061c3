#include "mainform/ParameterText.h"

#include "textio/NumberForms.h"

#include <cmath>

namespace vorlex {

std::string parameterText(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return digits(static_cast<double>(toInt32(value * scale)) / scale);
}

} // namespace vorlex
