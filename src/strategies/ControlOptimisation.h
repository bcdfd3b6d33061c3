#pragma once

namespace vorlex {

class Session;

/// The run that shows what the day of the first control does: the
/// projection under the data file's schedule with its report, then a
/// series of runs with the schedule moved one day later each time, whose
/// efficacy pages end the report; the stage chart, the figure files and the
/// efficacy file. No data file is written.
void OptimizeFirstControl(Session& session);

/// As OptimizeFirstControl, with a series of runs in which the second
/// control of the data file follows the first after 0, 1, 2, ... days.
void OptimizeControlInterval(Session& session);

} // namespace vorlex
