#pragma once

#include <ostream>

namespace vorlex {

class Session;

/// Prints what a data file read into the session holds: project, stages,
/// life-table statistics, controls, releases and the ET function.
void printDataFileSummary(const Session& session, std::ostream& out);

} // namespace vorlex
