#pragma once

namespace vorlex {

class Session;

/// The projection a strategy runs after day 0: resets SeriesIndex and
/// projects days 1..SimTime+1, with the harvest's book-keeping when the
/// strategy is growth with harvest.
void VorlexDPopulationGrowth(Session& session);

/// Projects the population from day 1 to SimTime + 1, one day at a time:
/// overwinter mortality, reproduction, development and survival under the
/// day's control survival and extra mortalities, additional releases and
/// density-dependent mortality under K(t); then fills every daily series of
/// the day. Day is one past the last day on return. When the population
/// dies out the user is told, and the projection ends with Day at that day.
void VorlexDGosub160PopulationGrowth(Session& session);

} // namespace vorlex
