#pragma once

#include "charts/ChartContent.h"
#include "exports/DailySizes.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace vorlex {

/// The levels of a band: minimum, 2.5 %, 25 %, median, 75 %, 97.5 % and
/// maximum.
inline constexpr std::array<double, 7> kBandLevels = {0, .025, .25, .5, .75, .975, 1};
/// Their names in the band file's heading.
inline constexpr std::array<const char*, 7> kBandLevelNames = {"min", "2.5%", "25%", "50%", "75%", "97.5%", "max"};

/// The quantile of level p (0..1) of a set of values: the order statistics
/// joined by straight lines, the smallest at 0 and the largest at 1 (the
/// rule of spreadsheets' PERCENTILE). An empty set stops with Invalid
/// procedure call.
double quantile(std::vector<double> values, double p);

/// The spread across many runs of one day's sizes: for each day its time
/// and, at each level of kBandLevels, the total and the weighed size.
struct UncertaintyBand {
  int runs = 0;
  std::vector<double> time;
  std::vector<std::array<double, 7>> total;
  std::vector<std::array<double, 7>> weighed;
};

/// The band of a set of runs, over the days all of them have; the times
/// are those of the first run.
UncertaintyBand bandOf(std::span<const DailySizes> runs);

/// Writes a band as comma-separated text: a heading line "Time,Total min,
/// ...,Weighed max", then a line for each day, numbers in the item form.
void writeBand(const UncertaintyBand& band, const std::string& path);
/// Reads a band file; File not found, Input past end of file or Type
/// mismatch (a heading that is not a band's) as usual for a file.
UncertaintyBand readBand(const std::string& path);

/// The chart of a band's total size (or, with `weighed`, its weighed
/// size): the median as a line, the 25-75 % and 2.5-97.5 % spreads as
/// shaded areas, over time.
ChartContent bandChart(const UncertaintyBand& band, const std::string& name, bool weighed = false);

} // namespace vorlex
