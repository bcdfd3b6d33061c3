#pragma once

#include "charts/ChartContent.h"

class QChart;

namespace vorlex::ui {

/// A Qt chart for a chart record: one line series per record series, in
/// order and with its label; value axes with their titles; the legend at
/// the right or hidden; grid lines only on an axis whose grid pen is solid.
/// Automatic scales span the data with round numbers.
QChart* buildChart(const ChartContent& content);

} // namespace vorlex::ui
