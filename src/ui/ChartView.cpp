#include "ChartView.h"

#include "ChartDrawing.h"
#include "charts/ChartCsv.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QSvgGenerator>

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
  if (event->button() == Qt::LeftButton)
    emit activated();
  QChartView::mousePressEvent(event);
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  menu.addAction(tr("Save chart as PNG..."), this, [this] { saveAs(Picture::Png); });
  menu.addAction(tr("Save chart as SVG..."), this, [this] { saveAs(Picture::Svg); });
  menu.addAction(tr("Copy data as comma-separated text"), this, [this] { copyData(); });
  menu.exec(event->globalPos());
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
