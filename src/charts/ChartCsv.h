#pragma once

#include "charts/ChartContent.h"

#include <string>

namespace vorlex {

/// The data of a chart as comma-separated text, for pasting into a
/// spreadsheet: a heading line with the title, then a line of column names
/// (each series gives "<label> x" and "<label> y", or "x<n>"/"y<n>" when the
/// label is empty), then one line per row. Numbers are written with up to 15
/// significant digits, shortest form; lines end with CR LF.
std::string chartAsCsv(const ChartContent& chart);

} // namespace vorlex
