#pragma once

namespace vorlex {

class Session;

/// The run without control, for no control and for extra mortality: marks
/// the strategy as no control, asks the extra-mortality questions when
/// extra mortality was chosen, projects from day 0 to SimTime, writes the
/// report and the derived, matrix and figure files. An extinction ends the
/// projection early; the files are written on what was filled.
void UnlimitedGrowth(Session& session);

/// The questions of extra mortality: overwinter stage, day and mortality
/// (fixed or random), two extra mortalities of development into a stage
/// over a span of days, and a span of lowered fecundity. Nothing is checked.
void askExtraMortality(Session& session);

} // namespace vorlex
