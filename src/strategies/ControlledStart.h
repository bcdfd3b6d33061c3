#pragma once

namespace vorlex {

class Session;

/// The first step of a predefined control run; it has nothing to do.
void VorlexF1(Session& session);

/// Day 0 of a run under predefined controls (or a series of runs): clears
/// the ages and stages of every day, makes PopN from the initial
/// population, clears the weighed and sampled series when the strategy is
/// marked AUTOCONTROL, and fills day 0 without physogastry and without
/// consumption. Leaves Day at 0.
void VorlexF2(Session& session);

/// Day 0 of a run of a series, as VorlexF2: the ages and stages are
/// cleared up to SimTime + 2, and the weighed size of day 0 goes to the
/// run's weighed insect days instead of the day's records.
void seriesRunDayZero(Session& session);

/// Day 0 of a run under automatic control: VorlexF2AutoControlGosub430.
void VorlexF2AutoControl(Session& session);

/// As VorlexF2, but the weighed and sampled series are always cleared, the
/// density mortality of day 0 above K(0) adds both coefficients and is
/// capped at 1, and the threshold test of day 0 runs before day 0 is
/// recorded.
void VorlexF2AutoControlGosub430(Session& session);

/// The threshold test of day 0: a control when the weighed size of the
/// start has reached ET(0). Its survival is written into days 0, 1, ...
/// (overwriting, not multiplying), and the start is multiplied by the
/// survival of the day after the last one written, so that the population
/// of day 0 itself keeps its size.
void VorlexF2AutoControlGosub1340(Session& session);

} // namespace vorlex
