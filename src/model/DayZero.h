#pragma once

namespace vorlex {

class Session;

// The steps of day 0 that the start of a projection without control and
// the start of a controlled one share.

/// PopN from the initial population; under the carrying capacity the
/// density-dependent mortality of day 0 acts on it first. Above K(0) the
/// controlled start by threshold adds the two coefficients of the day and
/// caps the level at 1 (`addCoefficientsAboveK`); everywhere else the
/// over-K coefficient alone scales the excess share.
void startPopulationOfDayZero(Session& session, bool addCoefficientsAboveK = false);

/// AgeSize of day 0 under the survival of day 0, InitialAgeN, InitialSize
/// and TotalSize(0), age by age.
void recordAgesOfDayZero(Session& session);

/// StageSize, StageSum, DailyWID, WeighedSize, WeakSize and the sampled
/// stages' sizes of day 0, stage by stage; with `physogastry` their twins.
/// In a run of a series (`runOfSeries`) the weighed size goes to the run's
/// RunWID instead, and the day's other records are left as they are.
void recordStagesOfDayZero(Session& session, bool physogastry, bool runOfSeries = false);

/// StageFraction of day 0 (and its twin with `physogastry`); an empty
/// population stops here with 0 / 0.
void recordFractionsOfDayZero(Session& session, bool physogastry);

} // namespace vorlex
