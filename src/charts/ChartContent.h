#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vorlex {

// What a chart shows, apart from any chart component: every chart routine
// fills one of these and the front end draws it. The enumerators carry the
// numbers chart controls use for these settings.

enum class ChartType : int { XY2D = 16 };
enum class LegendLocation : int { Right = 4 };
enum class AxisScale : int { Linear = 0 };
enum class TickStyle : int { Outside = 3 };
enum class PenStyle : int { None = 0, Solid = 1 };
enum class MarkerStyle : int { FilledCircle = 10 };

struct ChartFont {
  std::string name = "Arial";
  double points = 12;
  friend bool operator==(const ChartFont&, const ChartFont&) = default;
};

struct ChartColour {
  int red = 0, green = 0, blue = 0;
  friend bool operator==(const ChartColour&, const ChartColour&) = default;
};

struct ChartAxis {
  std::string title;
  ChartFont titleFont;
  bool titleVisible = true;
  AxisScale scale = AxisScale::Linear;
  /// The component picks the value range; a maximum below is set first and
  /// then given up to the automatic scale.
  bool automaticScale = true;
  std::optional<double> maximum;
  TickStyle ticks = TickStyle::Outside;
  PenStyle majorGridPen = PenStyle::None;
  ChartColour majorGridColour;
  /// Whether the component chooses the grid colour itself.
  bool automaticGridColour = true;
  /// The title reads across rather than along the axis.
  bool titleHorizontal = false;
  friend bool operator==(const ChartAxis&, const ChartAxis&) = default;
};

/// A mark drawn at each point of a series; sizes and pen widths in twips
/// (1/1440 inch), as chart controls give them.
struct SeriesMarker {
  MarkerStyle style = MarkerStyle::FilledCircle;
  ChartColour fill;
  ChartColour pen;
  double penWidth = 0;
  double size = 0;
  friend bool operator==(const SeriesMarker&, const SeriesMarker&) = default;
};

/// How one series is drawn when it is not a plain line in the component's
/// own colour.
struct SeriesLook {
  PenStyle line = PenStyle::Solid;
  std::optional<SeriesMarker> marker;
  friend bool operator==(const SeriesLook&, const SeriesLook&) = default;
};

/// A shaded area between two series of a chart, drawn instead of their
/// lines: the lower and the upper edge, by series number (from 1).
struct ChartArea {
  int lowerSeries = 0;
  int upperSeries = 0;
  ChartColour colour;
  friend bool operator==(const ChartArea&, const ChartArea&) = default;
};

/// A line chart of x-y series. Series n (from 1) has its x values in column
/// 2n-1 and its y values in column 2n; rows and columns count from 1.
class ChartContent {
public:
  std::string title;
  ChartFont titleFont;
  ChartType type = ChartType::XY2D;
  bool showLegend = true;
  LegendLocation legendLocation = LegendLocation::Right;
  bool uniformAxis = false;
  ChartAxis xAxis;
  ChartAxis yAxis;
  /// A solid fill of the plot area; the component's own when empty.
  std::optional<ChartColour> plotBackground;
  /// Looks of series by number (from 1); a series not named is a plain
  /// line, and a look of a series the chart does not have draws nothing.
  std::map<int, SeriesLook> looks;
  /// Pairs of series shown as shaded areas, in the order drawn.
  std::vector<ChartArea> areas;

  /// Makes room for the series and rows, all values 0 and labels empty.
  /// A count below 0 stops with Invalid procedure call.
  void resize(int seriesCount, int rowCount);

  int seriesCount() const { return static_cast<int>(labels_.size()); }
  int columnCount() const { return 2 * seriesCount(); }
  int rowCount() const { return rows_; }

  /// The label of series n, which the component puts on column 2n-1.
  std::string& label(int series);
  const std::string& label(int series) const;
  /// The labels of all series in their order.
  const std::vector<std::string>& labels() const { return labels_; }

  /// The value at a row and column; outside the chart, Subscript out of
  /// range.
  double& at(int row, int column);
  double at(int row, int column) const;
  double x(int series, int row) const { return at(row, 2 * series - 1); }
  double y(int series, int row) const { return at(row, 2 * series); }

  friend bool operator==(const ChartContent&, const ChartContent&) = default;

private:
  std::size_t labelIndex(int series) const;
  std::size_t cell(int row, int column) const;

  int rows_ = 0;
  std::vector<std::string> labels_;
  std::vector<double> cells_;
};

} // namespace vorlex
