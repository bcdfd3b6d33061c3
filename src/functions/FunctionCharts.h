#pragma once

#include "charts/ChartContent.h"

namespace vorlex {

class Session;
struct Model;

// What the charts of the threshold form and the carrying-capacity form
// show: one curve, days 0..SimTime (the table's day SimTime+1 is not
// drawn), no legend, black grid lines across.

/// K(t) of the logistic against the day.
ChartContent ShowLogistic(const Model& m);
/// K(t) of the polynomial against its x grid.
ChartContent ShowPolynomial(const Model& m);
/// K of the parabola against its x grid.
ChartContent ShowParabola(const Model& m);

/// ET(t) against the day, as the threshold form draws it.
ChartContent ShowEtorAt(const Model& m);
/// ET(t) against time in time units, as the main form draws it on the
/// threshold form; a line in the flow record when it is on.
ChartContent PlotETandAt(Session& session);

} // namespace vorlex
