#pragma once

namespace vorlex {

class Session;

/// The run under the data file's control schedule: day 0 with the series
/// cleared, the projection under each day's control survival, then the
/// title page and the report, the derived and matrix files, the stage
/// chart and the figure files.
void PredefinedControl(Session& session);

/// The run under automatic control: the schedule's survival is dropped,
/// and a control (the data file's first) is taken on each day whose
/// weighed size has reached ET of the day, day 0 included. Then the report
/// with the sizes before and after each day's control, the derived and
/// matrix files, the stage chart and the figure files.
void AutoControlBasedonET(Session& session);

/// The run of a mass rearing: asks the first and last harvest day, writes
/// the harvest stages to the harvest file, projects without control while
/// counting the harvest stages on each harvest day into the harvest file,
/// then the report, the derived, matrix and consumption files, the stage
/// chart and the figure files.
void GrowthWithHarvest(Session& session);

} // namespace vorlex
