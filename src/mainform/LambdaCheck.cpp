#include "mainform/LambdaCheck.h"

#include "engine/DominantEigenvalue.h"
#include "mainform/ParameterText.h"
#include "model/Arithmetic.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <cmath>

namespace vorlex {

namespace {

std::string rate(double value) { return parameterText(value, 5); }

} // namespace

std::string lambdaCheck(Session& session) {
  Model& m = session.model();
  const int day = session.lastDayReached;
  std::string text;
  if (day >= 1) {
    const double reached = m.TotalGrowthLn(day - 1);
    text += "Day " + digits(day) + ": r = " + rate(reached) + ", lambda = " + rate(std::exp(reached)) + "\n";
  }
  text += "Data file: r = " + rate(m.IntrinsicRate) + ", lambda = " + rate(m.FiniteRate) + "\n";
  const EigenvalueEstimate dominant = dominantEigenvalue(m);
  text += "Dominant eigenvalue of the table: lambda = " + rate(dominant.lambda);
  if (dominant.lambda > 0)
    text += " (r = " + rate(std::log(dominant.lambda)) + ")";
  if (!dominant.settled)
    text += ", not settled after " + digits(dominant.iterations) + " iterations";
  return text;
}

} // namespace vorlex
