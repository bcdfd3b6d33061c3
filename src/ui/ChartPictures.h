#pragma once

#include "charts/ChartContent.h"

#include <QSize>
#include <QString>

namespace vorlex::ui {

/// Saves a chart record as a picture of `size` pixels at `dpi` dots per
/// inch, drawn as the desktop program draws it, on white. The chart is laid out at
/// size * 96 / dpi and drawn scaled up, so that text and lines have the
/// same size on paper at any resolution. `path` without extension gets
/// ".png" and ".svg": the PNG carries the resolution, the SVG the size on
/// paper (size / dpi inches). Returns the first failure's text, empty when
/// both pictures were written.
QString saveChartPictures(const ChartContent& content, const QString& path, QSize size, int dpi);

} // namespace vorlex::ui
