#pragma once

#include "charts/ChartContent.h"

#include <string>

namespace vorlex {

/// The data of a chart as comma-separated text, for pasting into a
/// spreadsheet: a heading line with the title, then a line of column names
/// (each series gives "<label> x" and "<label> y", or "x<n>"/"y<n>" when the
/// label is empty), then one line per row. Numbers are written with up to 15
/// significant digits, shortest form; lines end with CR LF.
///
/// Numbers are the digits form of the files with a 0 before a leading
/// decimal point: 0.1 "0.1", -0.5 "-0.5", 12 "12", 1e-20 "1E-20",
/// 1.5e16 "1.5E+16" (exponent form below 1E-4 and from 1E+15 on). A title or
/// column name holding a comma, a quote or a line break is put in quotes,
/// its quotes doubled.
std::string chartAsCsv(const ChartContent& chart);

} // namespace vorlex
