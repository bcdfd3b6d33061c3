#pragma once

namespace vorlex {

class Session;

/// The level of density-dependent mortality of day t from the weighed size
/// already in WeighedSize(t): fills SizeToK(t) and DensityMortality(t).
/// Up to K(t) the below-K coefficient of the day scales the ratio W/K; above
/// it the over-K coefficient scales the excess share (W - K) / W.
void WorkOutDensityMortality(Session& session, int t);

/// Stops the program when the carrying-capacity flag holds neither "Yes"
/// nor "No"; true for "Yes".
bool carryingCapacityInForce(const Session& session);

} // namespace vorlex
