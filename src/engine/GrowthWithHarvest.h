#pragma once

namespace vorlex {

class Session;

/// The projection of growth with harvest: days 1..SimTime+1 of the plain
/// projection without overwinter, extra mortality and lowered fecundity,
/// and without the deaths of the day and the day's difference. On each
/// harvest day, after the stage records, the individuals of the harvest
/// stages are counted (not removed) with their rearing cost, and a table
/// of them goes to the harvest file (file 5, open).
void VorlexDGosub160GrowthWithHarvest(Session& session);

/// The harvest of day Day: counts and costs of the harvest stages in the
/// next day's matrix and their table in the harvest file. Only the first
/// 100 entries of HarvestDay are looked at.
void harvestOfTheDay(Session& session);

} // namespace vorlex
