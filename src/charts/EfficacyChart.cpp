#include "charts/ChartFamily.h"
#include "model/Session.h"

#include <optional>
#include <vector>

namespace vorlex::grafform {

namespace {

struct Curve {
  const char* label;
  std::optional<double> EfficacyRow::*efficacy;
};

constexpr Curve kCurves[] = {
    {"Weighed insect days", &EfficacyRow::weighedEfficacy},
    {"Abbott", &EfficacyRow::abbottEfficacy},
    {"Henderson-Tilton", &EfficacyRow::hendersonTiltonEfficacy},
};

} // namespace

ChartContent ShowEfficacy(Session& session) {
  // A day shows an efficacy where it could be worked out, as in the
  // efficacy file; below 0 too, where the treated run ended above the
  // untreated one.
  std::vector<std::pair<const Curve*, std::vector<const EfficacyRow*>>> shown;
  std::size_t rows = 0;
  for (const Curve& curve : kCurves) {
    std::vector<const EfficacyRow*> points;
    for (const EfficacyRow& row : session.efficacy)
      if (row.*curve.efficacy)
        points.push_back(&row);
    if (points.empty())
      continue;
    rows = std::max(rows, points.size());
    shown.emplace_back(&curve, std::move(points));
  }

  ChartContent chart;
  chart.title = "Control efficacy of a treatment at time T";
  chart.xAxis.title = "time of treatment (T)";
  chart.yAxis.title = "Percentage control (%)";
  chart.resize(static_cast<int>(shown.size()), static_cast<int>(rows));
  const double timeUnit = session.model().TimeUnit;
  int series = 0;
  for (const auto& [curve, points] : shown) {
    ++series;
    chart.label(series) = curve->label;
    // A curve with fewer points than the chart has rows stays on its last
    // point.
    for (std::size_t row = 0; row < rows; ++row) {
      const EfficacyRow& point = *points[std::min(row, points.size() - 1)];
      chart.at(static_cast<int>(row) + 1, 2 * series - 1) = point.day * timeUnit;
      chart.at(static_cast<int>(row) + 1, 2 * series) = *(point.*curve->efficacy);
    }
  }
  session.controls[kLargeChart].visible = true;
  return chart;
}

} // namespace vorlex::grafform
