#pragma once

#include <string>

namespace vorlex {

class Session;

/// What a run of growth to lambda tells about the table, three lines: the
/// growth rate reached on the last day (ln and finite, per time step), r
/// and lambda as the data file gives them, and the dominant eigenvalue of
/// the table's projection matrix with its r. Values to 5 decimals.
std::string lambdaCheck(Session& session);

} // namespace vorlex
