#include "ChartDrawing.h"

#include <QAreaSeries>
#include <QChart>
#include <QLegend>
#include <QLineSeries>
#include <QScatterSeries>
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

// Twips (1/1440 inch) on a screen of 96 dots an inch.
qreal pixels(double twips) { return twips / 15.0; }

// A series drawn its own way: marks alone when it has no line, else a line
// whose points carry the marks.
QXYSeries* seriesOf(const SeriesLook& look) {
  QXYSeries* series = nullptr;
  if (look.line == PenStyle::None && look.marker) {
    auto* scatter = new QScatterSeries;
    scatter->setMarkerShape(QScatterSeries::MarkerShapeCircle);
    scatter->setMarkerSize(pixels(look.marker->size));
    series = scatter;
  } else {
    series = new QLineSeries;
    series->setPointsVisible(look.marker.has_value());
    if (look.line == PenStyle::None)
      series->setPen(Qt::NoPen);
  }
  if (look.marker) {
    series->setColor(colourOf(look.marker->fill));
    if (auto* scatter = qobject_cast<QScatterSeries*>(series)) {
      QPen border(colourOf(look.marker->pen));
      border.setWidthF(std::max<qreal>(1, pixels(look.marker->penWidth)));
      scatter->setPen(border);
    }
  }
  return series;
}

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
  std::vector<QXYSeries*> lines(content.seriesCount() + 1, nullptr);
  std::vector<QAbstractSeries*> shown;
  const auto isEdge = [&content](int series) {
    for (const ChartArea& area : content.areas)
      if (area.lowerSeries == series || area.upperSeries == series)
        return true;
    return false;
  };
  for (int series = 1; series <= content.seriesCount(); ++series) {
    const auto look = content.looks.find(series);
    QXYSeries* line = look == content.looks.end() ? new QLineSeries : seriesOf(look->second);
    // Owned by the chart, also when it only edges an area.
    line->setParent(chart);
    lines[series] = line;
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
  }
  // Areas first, so that the lines stand over them; the edges of an area
  // show as the area only.
  for (const ChartArea& area : content.areas) {
    if (area.lowerSeries < 1 || area.upperSeries < 1 || area.lowerSeries > content.seriesCount() ||
        area.upperSeries > content.seriesCount())
      continue;
    auto* upper = qobject_cast<QLineSeries*>(lines[area.upperSeries]);
    auto* lower = qobject_cast<QLineSeries*>(lines[area.lowerSeries]);
    if (!upper || !lower)
      continue;
    auto* shaded = new QAreaSeries(upper, lower);
    shaded->setName(QString::fromStdString(content.label(area.lowerSeries) + " - " +
                                           content.label(area.upperSeries)));
    const QColor colour = colourOf(area.colour);
    shaded->setColor(colour);
    shaded->setBorderColor(colour);
    chart->addSeries(shaded);
    shown.push_back(shaded);
  }
  for (int series = 1; series <= content.seriesCount(); ++series) {
    if (isEdge(series))
      continue;
    chart->addSeries(lines[series]);
    shown.push_back(lines[series]);
  }

  QValueAxis* xAxis = makeAxis(content.xAxis, xs);
  QValueAxis* yAxis = makeAxis(content.yAxis, ys);
  chart->addAxis(xAxis, Qt::AlignBottom);
  chart->addAxis(yAxis, Qt::AlignLeft);
  for (QAbstractSeries* series : shown) {
    series->attachAxis(xAxis);
    series->attachAxis(yAxis);
  }

  if (content.plotBackground) {
    chart->setPlotAreaBackgroundBrush(QBrush(colourOf(*content.plotBackground)));
    chart->setPlotAreaBackgroundVisible(true);
  }
  chart->legend()->setVisible(content.showLegend);
  chart->legend()->setAlignment(Qt::AlignRight);
  // A label cut short in a small chart shows whole as its tool tip.
  chart->legend()->setShowToolTips(true);
  return chart;
}

} // namespace vorlex::ui
