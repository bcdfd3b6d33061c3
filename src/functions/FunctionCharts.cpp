#include "functions/FunctionCharts.h"

#include "model/Session.h"
#include "textio/NumberForms.h"

#include <functional>

namespace vorlex {

namespace {

struct CurveChart {
  const char* title;
  const char* yTitle;
  const char* xTitle;
};

// One curve over days 0..SimTime: row t+1 holds the pair of day t.
ChartContent curve(const Model& m, const CurveChart& text, const std::function<double(int)>& x,
                   const std::function<double(int)>& y) {
  ChartContent chart;
  chart.title = text.title;
  chart.showLegend = false;
  chart.yAxis.title = text.yTitle;
  chart.yAxis.majorGridPen = PenStyle::Solid;
  chart.yAxis.majorGridColour = ChartColour{0, 0, 0};
  chart.yAxis.automaticGridColour = false;
  chart.xAxis.title = text.xTitle;
  const int rows = checkedInt16(m.SimTime + 1);
  chart.resize(1, rows);
  for (int t = 0; t < rows; ++t) {
    chart.at(t + 1, 1) = x(t);
    chart.at(t + 1, 2) = y(t);
  }
  return chart;
}

constexpr CurveChart kCapacityOverTime{"The time-specific carrying capacity", "K(t)", "Time"};

} // namespace

ChartContent ShowLogistic(const Model& m) {
  return curve(
      m, kCapacityOverTime, [](int t) { return double(t); }, [&m](int t) { return m.CarryingCapacity(t); });
}

ChartContent ShowPolynomial(const Model& m) {
  return curve(
      m, kCapacityOverTime, [&m](int t) { return m.PolyX(t); },
      [&m](int t) { return m.CarryingCapacity(t); });
}

ChartContent ShowParabola(const Model& m) {
  return curve(
      m, {"The carrying capacity", "K(x)", "x"}, [&m](int t) { return m.ParabolaX(t); },
      [&m](int t) { return m.CarryingCapacity(t); });
}

ChartContent ShowEtorAt(const Model& m) {
  return curve(
      m, {"ET or AT", "ET or AT", "Time"}, [](int t) { return double(t); },
      [&m](int t) { return m.EtDay(t); });
}

ChartContent PlotETandAt(Session& session) {
  session.flow("In Public Sub PlotETandAT");
  const Model& m = session.model();
  ChartContent chart = curve(
      m, {"ET or AT", "ET or AT", "Time"}, [&m](int t) { return t * m.TimeUnit; },
      [&m](int t) { return m.EtDay(t); });
  // The maximum is set, then given up to the automatic scale.
  chart.xAxis.maximum = m.SimTime * m.TimeUnit;
  return chart;
}

} // namespace vorlex
