#include "mainform/RunCharts.h"

#include "charts/ChartCycle.h"
#include "mainform/LargeGraphForm.h"
#include "textio/RuntimeError.h"

#include <cstdio>

namespace vorlex {
namespace {

constexpr std::size_t kLongestName = 80;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool keptInName(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || isDigit(c) || c == '+'; }

std::string numbered(const std::string& prefix, int number) {
  char digits[8];
  std::snprintf(digits, sizeof digits, "%02d", number);
  return prefix + "-" + digits;
}

RunChart drawn(Session& session, ShowRoutine routine, const std::string& prefix, int number) {
  try {
    ChartContent content = routine(session);
    std::string name = chartFileName(prefix, number, content.title);
    return RunChart{std::move(name), std::move(content), {}};
  } catch (const RuntimeError& error) {
    return RunChart{numbered(prefix, number), std::nullopt, error.what()};
  }
}

} // namespace

std::string chartFileName(const std::string& prefix, int number, const std::string& title) {
  std::string name = numbered(prefix, number);
  bool gap = true;
  for (std::size_t i = 0; i < title.size(); ++i) {
    const char c = title[i];
    // A decimal point stays: 1234.5.
    const bool point =
        c == '.' && !gap && i > 0 && isDigit(title[i - 1]) && i + 1 < title.size() && isDigit(title[i + 1]);
    if (keptInName(c) || point) {
      if (gap)
        name += '-';
      name += c;
      gap = false;
    } else {
      gap = true;
    }
  }
  if (name.size() > kLongestName) {
    const std::size_t cut = name.rfind('-', kLongestName);
    name.resize(cut);
  }
  return name;
}

std::vector<RunChart> chartsOfRun(Session& session) {
  std::vector<RunChart> charts;
  for (int index = 0; index < kChartCycleLength; ++index) {
    const ChartCycleEntry& entry = chartCycleEntry(index);
    if (!entry.routine)
      continue;
    if (const ShowRoutine routine = chartCycleRoutine(session, index))
      charts.push_back(drawn(session, routine, "cycle", index));
    else
      charts.push_back(RunChart{numbered("cycle", index), std::nullopt,
                                std::string("shown only when ") + entry.shownWhen});
  }
  int number = 0;
  for (const LargeGraphForm::ChartButton& button : LargeGraphForm::chartButtons())
    charts.push_back(drawn(session, button.routine, "large", number++));
  return charts;
}

std::string skippedLine(const RunChart& chart) {
  std::string why = chart.whyNot;
  // A message of several lines (the error and its place) goes on one line.
  for (char& c : why)
    if (c == '\n')
      c = ' ';
  return chart.name + " skipped: " + why;
}

} // namespace vorlex
