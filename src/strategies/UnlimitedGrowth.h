#pragma once

namespace vorlex {

class Session;

/// The run without control, for no control and for extra mortality: marks
/// the strategy as no control, asks the extra-mortality questions when
/// extra mortality was chosen, projects from day 0 to SimTime, writes the
/// report and the derived, matrix and figure files. An extinction ends the
/// projection early; the files are written on what was filled.
void UnlimitedGrowth(Session& session);

/// The bare run of 1000 days that shows growth to lambda: no report pages
/// and no derived files, only the stage chart and the figure files, which
/// cover the 1000 days.
void GrowthToLambda(Session& session);

/// The run of a prey under its predator: reads the predation of each day
/// from a total-predation file of the predator's run (its coefficient
/// asked), projects with that predation taken out of the prey, then writes
/// the report, the derived, matrix and death-rate files, the stage chart
/// and the figure files.
void GrowthUnderPredation(Session& session);

/// The questions of extra mortality: overwinter stage, day and mortality
/// (fixed or random), two extra mortalities of development into a stage
/// over a span of days, and a span of lowered fecundity. Nothing is checked.
void askExtraMortality(Session& session);

} // namespace vorlex
