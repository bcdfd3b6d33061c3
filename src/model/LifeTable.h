#pragma once

namespace vorlex {

class Session;

/// Resets the per-day survival factors of every stage to 1 for days
/// 0..SimTime+1, the scheduled additions and l(x,j). Needs SimTime.
void VorlexAGosub640(Session& session);

/// Works out the share dying at each age of each stage from the growth and
/// development rates; results below 0 become 0.
void workOutDeathRate(Session& session);

/// Builds x, l(x,j), l(x), m(x) and p(x) from the rates read.
void VorlexAGosub900(Session& session);

} // namespace vorlex
