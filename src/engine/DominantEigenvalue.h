#pragma once

namespace vorlex {

struct Model;

/// An estimate of the dominant eigenvalue of a life table's projection.
struct EigenvalueEstimate {
  double lambda = 0;
  int iterations = 0;
  /// Whether successive estimates agreed to the last digits before the
  /// iterations ran out.
  bool settled = false;
};

/// The dominant eigenvalue of the age-stage projection matrix of the table
/// as read (fecundity, survival and development, no factor of management):
/// power iteration with the bare day step on a vector that starts at 1 in
/// every cell. Each iteration adds the vector to its projection, which
/// shifts every eigenvalue by 1 and so makes the dominant one stand out
/// even when the table's cycles would make plain iteration oscillate.
EigenvalueEstimate dominantEigenvalue(Model& m);

} // namespace vorlex
