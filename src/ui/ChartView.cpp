#include "ChartView.h"

#include "ChartDrawing.h"
#include "charts/ChartCsv.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QSvgGenerator>
#include <QToolTip>

#include <algorithm>

namespace vorlex::ui {

ChartView::ChartView(QWidget* parent) : QChartView(parent) {
  setRenderHint(QPainter::Antialiasing);
  setMinimumSize(320, 240);
  showContent(ChartContent{});
}

void ChartView::showContent(const ChartContent& content) {
  content_ = content;
  QChart* old = chart();
  setChart(buildChart(content_));
  delete old;
  fitTitle();
}

void ChartView::fitTitle() {
  QChart* shown = chart();
  const QString title = QString::fromStdString(content_.title);
  // The title may use the chart's width less its margins, and a little
  // more room at each end than Qt Charts itself leaves.
  const QMargins margins = shown->margins();
  const qreal room = std::max<qreal>(0, width() - margins.left() - margins.right() - 24);
  const QFontMetricsF metrics(shown->titleFont());
  const QString fitted =
      metrics.horizontalAdvance(title) <= room ? title : metrics.elidedText(title, Qt::ElideRight, room);
  titleCut_ = fitted != title;
  if (shown->title() != fitted)
    shown->setTitle(fitted);
}

bool ChartView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && titleCut_) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), QString::fromStdString(content_.title),
                       this);
    return true;
  }
  return QChartView::event(event);
}

void ChartView::resizeEvent(QResizeEvent* event) {
  QChartView::resizeEvent(event);
  fitTitle();
}

bool ChartView::savePng(const QString& path) { return grab().save(path, "PNG"); }

bool ChartView::saveSvg(const QString& path) {
  QSvgGenerator svg;
  svg.setFileName(path);
  svg.setSize(size());
  svg.setViewBox(rect());
  svg.setTitle(QString::fromStdString(content_.title));
  svg.setDescription(QStringLiteral("A chart of Vorlex"));
  QPainter painter;
  if (!painter.begin(&svg))
    return false;
  render(&painter);
  return painter.end();
}

void ChartView::copyData() {
  QApplication::clipboard()->setText(QString::fromStdString(chartAsCsv(content_)));
}

void ChartView::mousePressEvent(QMouseEvent* event) {
  // The view is done with the press before the activation may replace the
  // chart (or, after a run-time error, start the session again).
  QChartView::mousePressEvent(event);
  if (event->button() == Qt::LeftButton)
    emit activated();
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addAction(tr("Save chart as PNG..."), this, [this] { saveAs(Picture::Png); });
  menu.addAction(tr("Save chart as SVG..."), this, [this] { saveAs(Picture::Svg); });
  menu.addAction(tr("Copy data as comma-separated text"), this, [this] { copyData(); });
  if (!menuActions_.empty())
    menu.addSeparator();
  for (const auto& [text, action] : menuActions_)
    menu.addAction(text, this, action);
  menu.exec(event->globalPos());
}

void ChartView::addMenuAction(const QString& text, std::function<void()> action) {
  menuActions_.emplace_back(text, std::move(action));
}

void ChartView::saveAs(Picture picture) {
  if (!chooseFileToSave)
    return;
  const bool png = picture == Picture::Png;
  const std::string path = chooseFileToSave(png ? "Save the chart as PNG" : "Save the chart as SVG");
  if (path.empty())
    return;
  QString file = QString::fromStdString(path);
  const QString suffix = png ? ".png" : ".svg";
  if (!file.endsWith(suffix, Qt::CaseInsensitive))
    file += suffix;
  if (png)
    savePng(file);
  else
    saveSvg(file);
}

} // namespace vorlex::ui
