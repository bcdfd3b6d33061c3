#pragma once

namespace vorlex {

class OutputFile;
class Session;

/// How far a value worked out from the table may stand from the file's
/// value, relative to the file's value, and still agree with it.
inline constexpr double kStatisticsTolerance = 1e-6;

/// Prints the population parameters worked out from the table in the
/// session (x, l(x) and m(x) built) beside those the data file gives: F,
/// R0, r, lambda as e^r, lambda as the dominant eigenvalue of the
/// projection matrix, and T; then one line for each that disagrees by more
/// than the tolerance. Returns whether all agree.
bool printStatisticsCheck(Session& session, OutputFile& picture);

} // namespace vorlex
