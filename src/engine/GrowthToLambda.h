#pragma once

namespace vorlex {

class Session;

/// The bare projection that shows growth to lambda: SimTime becomes 1000
/// (and stays so for the charts and figure files), the initial population
/// is added to the total of day 0 once more, and days 1..1000 are
/// projected without control, extra mortality, releases, K(t) or the
/// cumulative weighed size; the weighed size of a day is not reset.
void VorlexDGosub160PopuGrowthToR(Session& session);

} // namespace vorlex
