#pragma once

namespace vorlex {

class Session;

// The efficacy pages of the report: for a treatment on each day T, curves
// of sizes on the logarithmic scale and the efficacy in per cent, from the
// page's labels and series in the model (EfficacyTitle1, EfficacyTitle2,
// EfficacyScaleLabel, EfficacyAxisLabel; PlotV, PlotT, PlotEfficacy,
// PlotU), a value below 0 giving no mark.

/// One page: the head with the two titles and the upper axis, the rows and
/// the lower axis.
void VorlexHGosub290(Session& session);

/// The rows of days 0..SimTime, each with the marks "V", "*", "$" and "U"
/// in that order, then the lower frame and the two labels under it.
void VorlexHGosub440(Session& session);

/// Every day 0..SimTime + 1 of the four series becomes "no value" (-1).
void VorlexHGosub1800(Session& session);

/// The frame line, and the digits of the logarithmic and of the per cent
/// axes.
void VorlexHGosub120(Session& session);
void VorlexHGosub140(Session& session);
void VorlexHGosub420(Session& session);

} // namespace vorlex
