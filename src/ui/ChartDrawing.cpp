#include "ChartDrawing.h"

#include <QChart>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>

#include <algorithm>
#include <limits>

namespace vorlex::ui {

namespace {

QFont fontOf(const ChartFont& font) {
  QFont qfont(QString::fromStdString(font.name));
  qfont.setPointSizeF(font.points);
  return qfont;
}

QColor colourOf(const ChartColour& colour) { return QColor(colour.red, colour.green, colour.blue); }

struct Span {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();
  void take(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
};

QValueAxis* makeAxis(const ChartAxis& axis, Span span) {
  auto* qaxis = new QValueAxis;
  qaxis->setTitleText(QString::fromStdString(axis.title));
  qaxis->setTitleFont(fontOf(axis.titleFont));
  qaxis->setTitleVisible(axis.titleVisible);
  const bool grid = axis.majorGridPen == PenStyle::Solid;
  qaxis->setGridLineVisible(grid);
  if (grid && !axis.automaticGridColour)
    qaxis->setGridLineColor(colourOf(axis.majorGridColour));
  qaxis->setMinorGridLineVisible(false);
  // Short labels at any scale: 0.5, 200, 4e+58.
  qaxis->setLabelFormat(QStringLiteral("%.6g"));

  if (!(span.low <= span.high)) // no data at all
    span = Span{0, 1};
  if (!axis.automaticScale && axis.maximum)
    span.high = *axis.maximum;
  if (span.low == span.high) {
    span.low -= 1;
    span.high += 1;
  }
  qaxis->setRange(span.low, span.high);
  qaxis->applyNiceNumbers();
  return qaxis;
}

} // namespace

QChart* buildChart(const ChartContent& content) {
  auto* chart = new QChart;
  chart->setTitle(QString::fromStdString(content.title));
  chart->setTitleFont(fontOf(content.titleFont));

  Span xs, ys;
  std::vector<QLineSeries*> lines;
  for (int series = 1; series <= content.seriesCount(); ++series) {
    auto* line = new QLineSeries;
    line->setName(QString::fromStdString(content.label(series)));
    QList<QPointF> points;
    points.reserve(content.rowCount());
    for (int row = 1; row <= content.rowCount(); ++row) {
      const double x = content.x(series, row);
      const double y = content.y(series, row);
      xs.take(x);
      ys.take(y);
      points.append(QPointF(x, y));
    }
    line->replace(points);
    chart->addSeries(line);
    lines.push_back(line);
  }

  QValueAxis* xAxis = makeAxis(content.xAxis, xs);
  QValueAxis* yAxis = makeAxis(content.yAxis, ys);
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  for (QLineSeries* line : lines) {
    line->attachAxis(xAxis);
    line->attachAxis(yAxis);
  }

  chart->legend()->setVisible(content.showLegend);
  chart->legend()->setAlignment(Qt::AlignRight);
  // A label cut short in a small chart shows whole as its tool tip.
  chart->legend()->setShowToolTips(true);
  return chart;
}

} // namespace vorlex::ui
