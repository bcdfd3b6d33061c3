#include "sampling/SamplingCharts.h"

#include "charts/ChartFamily.h"
#include "model/Session.h"

namespace vorlex {

namespace {

void showSamplingChart(Session& session) {
  session.controls[kSamplingChart].visible = true;
  for (const char* label : kChartHintLabels)
    session.controls[label].visible = false;
}

constexpr ChartColour kBlack{0, 0, 0};
constexpr ChartColour kWhite{255, 255, 255};

SeriesLook markOnly(ChartColour fill) {
  return SeriesLook{PenStyle::None, SeriesMarker{MarkerStyle::FilledCircle, fill, kBlack, 10, 200}};
}

void markAxis(ChartAxis& axis) {
  axis.automaticScale = true;
  axis.maximum.reset();
  axis.ticks = TickStyle::Outside;
  axis.majorGridPen = PenStyle::None;
  axis.titleFont = ChartFont{"Times New Roman", 12};
}

// What both mark routines set, series 1 marked in the given colour.
void marks(ChartContent& chart, ChartColour fill) {
  chart.type = ChartType::XY2D;
  chart.showLegend = false;
  chart.plotBackground = kWhite;
  chart.uniformAxis = false;
  chart.titleFont = ChartFont{"Times New Roman", 14};
  chart.looks[1] = markOnly(fill);
  markAxis(chart.xAxis);
  markAxis(chart.yAxis);
  chart.yAxis.titleHorizontal = true;
}

} // namespace

ChartContent ShowSamplingDataCurve(Session& session, const SamplingTables& t) {
  const Model& m = session.model();
  ChartContent chart;
  chart.title = "Stage size";
  chart.yAxis.title = "stage size";
  chart.yAxis.majorGridPen = PenStyle::Solid;
  chart.yAxis.majorGridColour = kBlack;
  chart.yAxis.automaticGridColour = false;
  chart.xAxis.title = "Time";
  chart.xAxis.maximum = t.NrSample;
  chart.resize(t.NrSampleSeries, m.SimTime + 1);
  for (int series = 1; series <= t.NrSampleSeries; ++series) {
    chart.label(series) = t.SampleSeriesName(series);
    for (int day = 0; day <= m.SimTime; ++day) {
      chart.at(day + 1, 2 * series - 1) = day;
      chart.at(day + 1, 2 * series) = t.SampleSeries(day, series);
    }
  }
  session.controls[kMainChart].visible = false;
  showSamplingChart(session);
  return chart;
}

ChartContent ShowSamplingDataPoint(Session& session, const SamplingTables& t) {
  const Model& m = session.model();
  showSamplingChart(session);
  ChartContent chart;
  chart.resize(t.NrSampleSeries, t.NrSample);
  chart.title = "Sampling data";
  chart.xAxis.title = "Time";
  chart.yAxis.title = "Insects";
  if (t.NrSampleSeries > 1) {
    int series = 0;
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      if (t.SampleStageUsed(stage) != "Yes")
        continue;
      ++series;
      chart.label(series) = m.StageName(stage);
      for (int k = 1; k <= t.NrSample; ++k) {
        chart.at(k, 2 * series - 1) = t.SampleDay(k);
        chart.at(k, 2 * series) = t.SampleCount(k, stage);
      }
    }
    ShowMultiMark(chart);
  } else {
    ShowOneMark(chart);
  }
  return chart;
}

void ShowOneMark(ChartContent& chart) { marks(chart, ChartColour{255, 0, 0}); }

void ShowMultiMark(ChartContent& chart) {
  marks(chart, ChartColour{255, 255, 0});
  chart.looks[3] = markOnly(ChartColour{255, 0, 255});
}

} // namespace vorlex
