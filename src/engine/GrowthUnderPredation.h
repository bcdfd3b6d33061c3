#pragma once

namespace vorlex {

class Session;

/// The projection a strategy under predation runs: resets SeriesIndex and
/// projects with the predation of each day when the strategy is growth
/// under predation, else as the plain projection.
void VorlexDGrowthUnderPredation(Session& session);

/// Days 1..SimTime+1 of the plain projection without overwinter, extra
/// mortality and lowered fecundity, with the day's predation taken out of
/// the prey after its consumption is counted and before the matrix is
/// taken over.
void VorlexDGosub160GrowthUnderPredation(Session& session);

/// The predation of day Day on the next day's matrix. The prey vulnerable
/// to the predator are the ages in the range of each stage with a positive
/// first susceptibility coefficient, weighed by it. Predation that reaches
/// the vulnerable size wipes them out; less takes the same share of every
/// vulnerable age and stage.
void VorlexDGosub160PredationCausedDeath(Session& session);

} // namespace vorlex
