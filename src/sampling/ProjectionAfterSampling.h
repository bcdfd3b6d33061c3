#pragma once

#include "sampling/SamplingTables.h"

namespace vorlex {

class Session;

/// Replaces the initial population of the life table by one cohort: the
/// single count of a sampling file (three-item records), placed at the
/// entry age of its stage from the stage-to-stage file, rounded ties to
/// even. The count is that of day SampleBaseDay, which is always 0: a
/// record of another day leaves the population empty. A cancelled dialog
/// skips the reading and places what the tables hold. The sampling file
/// stays open.
void placeSampledCohort(Session& session, SamplingTables& tables);

} // namespace vorlex
