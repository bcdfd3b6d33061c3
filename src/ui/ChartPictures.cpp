#include "ChartPictures.h"

#include "ChartView.h"

#include <QChart>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgGenerator>

#include <cmath>

namespace vorlex::ui {

namespace {

/// Screens lay charts out at 96 dots per inch; a picture at another
/// resolution is the same layout drawn larger or smaller.
constexpr double kLayoutDpi = 96;
constexpr double kMetresPerInch = 0.0254;

/// Draws the view, laid out at its own size, over `size` of the painter.
void drawScaled(ChartView& view, QPainter& painter, QSize size) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(static_cast<double>(size.width()) / view.width(),
                static_cast<double>(size.height()) / view.height());
  view.QWidget::render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
}

QString savePng(ChartView& view, const QString& file, QSize size, int dpi) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  const int dotsPerMetre = static_cast<int>(std::lround(dpi / kMetresPerInch));
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  QPainter painter(&image);
  drawScaled(view, painter, size);
  painter.end();
  QImageWriter writer(file, "png");
  if (!writer.write(image))
    return file + ": " + writer.errorString();
  return {};
}

QString saveSvg(ChartView& view, const QString& file, QSize size, int dpi) {
  QSvgGenerator svg;
  svg.setFileName(file);
  svg.setSize(size);
  svg.setResolution(dpi);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setTitle(QString::fromStdString(view.content().title));
  svg.setDescription(QStringLiteral("A chart of Vorlex"));
  QPainter painter;
  if (!painter.begin(&svg))
    return file + ": cannot be written";
  drawScaled(view, painter, size);
  if (!painter.end())
    return file + ": cannot be written";
  return {};
}

} // namespace

QString saveChartPictures(const ChartContent& content, const QString& path, QSize size, int dpi) {
  const double scale = dpi / kLayoutDpi;
  const QSize layout(std::max(1, static_cast<int>(std::lround(size.width() / scale))),
                     std::max(1, static_cast<int>(std::lround(size.height() / scale))));
  // The view is never shown: drawing it lays the chart out at its size.
  ChartView view;
  view.setMinimumSize(1, 1);
  view.setFrameShape(QFrame::NoFrame);
  view.resize(layout);
  view.showContent(content);
  // A figure on white, without the rounded panel the window shows.
  view.chart()->setBackgroundVisible(false);
  view.setBackgroundBrush(Qt::white);

  QString failure = savePng(view, path + QStringLiteral(".png"), size, dpi);
  if (failure.isEmpty())
    failure = saveSvg(view, path + QStringLiteral(".svg"), size, dpi);
  return failure;
}

} // namespace vorlex::ui
