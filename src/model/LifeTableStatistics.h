#pragma once

#include <optional>

namespace vorlex {

struct Model;

/// The population parameters of a life table, worked out from the table
/// itself rather than taken from the end of the data file. A parameter the
/// table gives no value for (r of a table without reproduction) is empty.
struct LifeTableStatistics {
  std::optional<double> F;      ///< mean fecundity of a female
  std::optional<double> R0;     ///< net reproductive rate
  std::optional<double> r;      ///< intrinsic rate of increase
  std::optional<double> lambda; ///< finite rate of increase, e^r
  std::optional<double> T;      ///< mean generation time
};

/// The parameters of the table as x, l(x) and m(x) hold it (so after the
/// set-up that builds them), per time step:
/// - R0 = sum over x = 0..LastAge of l(x) m(x);
/// - r solves the Euler-Lotka equation sum of e^(-r (x+1)) l(x) m(x) = 1:
///   an egg laid at age x joins age 0 one step later, as in the projection;
/// - lambda = e^r and T = ln(R0) / r, or the mean age of reproduction
///   sum (x+1) l(x) m(x) / R0 where r is 0;
/// - F = R0 divided by the probability that a new-born becomes a female,
///   the sum over ages of d(x, NrStage-2) l(x, NrStage-2).
LifeTableStatistics lifeTableStatistics(const Model& m);

} // namespace vorlex
