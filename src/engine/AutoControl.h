#pragma once

namespace vorlex {

class Session;
struct Model;

/// The projection of automatic control: days 1..SimTime+1 of the plain
/// projection without overwinter, extra mortality, lowered fecundity,
/// releases and physogastry, with the threshold test after the density
/// step. The matrix of day SimTime is not taken over, so the last day is
/// built once more from the one before; the day's records come from the
/// next day's matrix. Resets SeriesIndex.
void VorlexDAutoControl(Session& session);

/// The threshold test of day Day on the next day's matrix: when the
/// weighed size in the stages' age ranges has reached ET of the day, a
/// control is taken with the mortalities and the effective duration of the
/// data file's first control, and multiplied into the survival of the days
/// it reaches. Then, on every day, the stages' age ranges take the
/// survival of the day. Records the weighed size before and after.
void VorlexDAutoControlGosub1600(Session& session);

/// The weighed size of the next day's matrix that the automatic rule
/// compares with ET: for each stage its weighing coefficient times the sum
/// over the stage's own age range, stage by stage.
double weighedInStageRanges(Model& m);

} // namespace vorlex
