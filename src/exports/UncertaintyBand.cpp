#include "exports/UncertaintyBand.h"

#include "textio/FileTable.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <algorithm>
#include <cmath>

namespace vorlex {

namespace {

constexpr int kBandFile = 1;

std::vector<std::string> headings() {
  std::vector<std::string> names{"Time"};
  for (const char* quantity : {"Total ", "Weighed "})
    for (const char* level : kBandLevelNames)
      names.push_back(quantity + std::string(level));
  return names;
}

// The quantile of level p of values in ascending order.
double sortedQuantile(const std::vector<double>& sorted, double p) {
  const double h = (static_cast<double>(sorted.size()) - 1) * p;
  const auto below = static_cast<std::size_t>(std::floor(h));
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  return sorted[below] + (h - static_cast<double>(below)) * (sorted[above] - sorted[below]);
}

std::array<double, 7> levelsOf(std::vector<double>& values) {
  std::sort(values.begin(), values.end());
  std::array<double, 7> levels{};
  for (std::size_t i = 0; i < kBandLevels.size(); ++i)
    levels[i] = sortedQuantile(values, kBandLevels[i]);
  return levels;
}

} // namespace

double quantile(std::vector<double> values, double p) {
  if (values.empty() || !(p >= 0 && p <= 1))
    raise(ErrorCode::InvalidProcedureCall, "Quantile of " + std::to_string(values.size()) + " values");
  std::sort(values.begin(), values.end());
  return sortedQuantile(values, p);
}

UncertaintyBand bandOf(std::span<const DailySizes> runs) {
  UncertaintyBand band;
  band.runs = static_cast<int>(runs.size());
  if (runs.empty())
    return band;
  std::size_t days = runs.front().time.size();
  for (const DailySizes& run : runs)
    days = std::min(days, run.time.size());
  std::vector<double> totals(runs.size()), weighed(runs.size());
  for (std::size_t day = 0; day < days; ++day) {
    for (std::size_t r = 0; r < runs.size(); ++r) {
      totals[r] = runs[r].total[day];
      weighed[r] = runs[r].weighed[day];
    }
    band.time.push_back(runs.front().time[day]);
    band.total.push_back(levelsOf(totals));
    band.weighed.push_back(levelsOf(weighed));
  }
  return band;
}

void writeBand(const UncertaintyBand& band, const std::string& path) {
  FileTable files;
  files.openOutput(kBandFile, path);
  OutputFile& out = files.output(kBandFile);
  const std::vector<std::string> names = headings();
  for (std::size_t i = 0; i < names.size(); ++i)
    out.printOpen(i == 0 ? "" : ",", names[i]);
  out.endLine();
  for (std::size_t day = 0; day < band.time.size(); ++day) {
    out.printOpen(digits(band.time[day]));
    for (const auto* levels : {&band.total[day], &band.weighed[day]})
      for (double value : *levels)
        out.printOpen(",", digits(value));
    out.endLine();
  }
  files.close(kBandFile);
}

UncertaintyBand readBand(const std::string& path) {
  ItemReader in = ItemReader::fromFile(path);
  for (const std::string& name : headings())
    if (in.readText() != name)
      raise(ErrorCode::TypeMismatch, "File: " + path + ", item " + std::to_string(in.itemNumber()) +
                                         ": not the heading of a band (\"" + name + "\" expected)");
  UncertaintyBand band;
  while (!in.atEnd()) {
    band.time.push_back(in.readNumber());
    for (auto* levels : {&band.total, &band.weighed}) {
      std::array<double, 7> day{};
      for (double& value : day)
        value = in.readNumber();
      levels->push_back(day);
    }
  }
  return band;
}

ChartContent bandChart(const UncertaintyBand& band, const std::string& name, bool weighed) {
  const auto& levels = weighed ? band.weighed : band.total;
  ChartContent chart;
  // The legend tells the levels apart; the title names the file.
  chart.title = std::string(weighed ? "Band of the weighed size" : "Band of the total population size") + " (" +
                name + ")";
  chart.xAxis.title = "Time";
  chart.yAxis.title = weighed ? "Weighed size" : "Total population size";
  // The outer spread first, so that the inner one and the median stand
  // over it.
  struct Edge {
    const char* label;
    std::size_t level;
  };
  constexpr Edge kEdges[] = {{"2.5 %", 1}, {"97.5 %", 5}, {"25 %", 2}, {"75 %", 4}, {"Median", 3}};
  const int rows = static_cast<int>(band.time.size());
  chart.resize(static_cast<int>(std::size(kEdges)), rows);
  for (int series = 1; series <= static_cast<int>(std::size(kEdges)); ++series) {
    chart.label(series) = kEdges[series - 1].label;
    for (int row = 1; row <= rows; ++row) {
      chart.at(row, 2 * series - 1) = band.time[row - 1];
      chart.at(row, 2 * series) = levels[row - 1][kEdges[series - 1].level];
    }
  }
  chart.areas = {{1, 2, {189, 215, 238}}, {3, 4, {107, 174, 214}}};
  return chart;
}

} // namespace vorlex
