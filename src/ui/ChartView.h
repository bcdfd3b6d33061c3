#pragma once

#include "charts/ChartContent.h"

#include <QChartView>

#include <functional>
#include <utility>
#include <vector>

namespace vorlex::ui {

/// Draws a chart record with Qt Charts: x-y lines, the legend at the right
/// when the record has one, titles in their fonts, grid lines as the axes
/// ask. A title wider than the chart is cut short with an ellipsis, and the
/// whole title shows as the tool tip. A left click activates the chart (the
/// owner steps its cycle); the right-click menu saves the chart as PNG or
/// SVG and copies its data as comma-separated text.
class ChartView : public QChartView {
  Q_OBJECT
public:
  explicit ChartView(QWidget* parent = nullptr);

  /// Shows a chart record, replacing what was shown.
  void showContent(const ChartContent& content);
  const ChartContent& content() const { return content_; }
  /// Whether the title is cut short to fit the chart's width.
  bool titleCut() const { return titleCut_; }

  /// Asks where to save a picture; the empty text when the user cancels.
  /// Without one, saving from the menu does nothing.
  std::function<std::string(const std::string& title)> chooseFileToSave;

  bool savePng(const QString& path);
  bool saveSvg(const QString& path);
  /// Puts the chart's data on the clipboard as comma-separated text.
  void copyData();

  /// Adds an entry of the chart's own to the right-click menu, below the
  /// saving ones.
  void addMenuAction(const QString& text, std::function<void()> action);
  /// The chart's own entries of the menu, in their order.
  const std::vector<std::pair<QString, std::function<void()>>>& menuActions() const { return menuActions_; }

  enum class Picture { Png, Svg };
  /// Asks for a file name and saves the chart there; ".png" or ".svg" is
  /// added when the name lacks it. Cancel saves nothing.
  void saveAs(Picture picture);

signals:
  /// The chart was clicked.
  void activated();

protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  /// Shows as much of the record's title as the chart's width takes.
  void fitTitle();

  ChartContent content_;
  bool titleCut_ = false;
  std::vector<std::pair<QString, std::function<void()>>> menuActions_;
};

} // namespace vorlex::ui
