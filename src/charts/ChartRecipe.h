#pragma once

#include "charts/ChartContent.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlex {

class Session;
struct Model;

// How the chart routines are made: each one is a recipe (title, axis title,
// legend, the series and how their rows run) given to one common fill.

/// How the rows of a chart run over the days or ages of its series.
enum class RowForm {
  /// Form A, a state of each day: SimTime+1 rows, row t is day t-1.
  StateFromDay0,
  /// Form B, a change into each day: SimTime rows, row t is day t.
  ChangeFromDay1,
  /// Form P, the predation series: row t is day t-1 as in form A, but the
  /// chart holds only SimTime rows, so the last day, SimTime, is not shown.
  Predation,
  /// Form G, a life-table value of each age: LastAge+1 rows, row t is age
  /// t-1, and x is the age itself.
  ByAge,
};

/// One curve: its label and its value on a day (or at an age).
struct ChartSeries {
  std::string label;
  std::function<double(int)> value;
};
using SeriesList = std::vector<ChartSeries>;

/// Numbers some titles carry, written in the digits form.
enum class TitleNumber {
  LastTotal,  // StageSum(SimTime+1)
  LastCumWid, // CUMWID(SimTime+1)
  PredationLag,
  ReleaseDate,
};

/// A piece of a title: a text as it stands, or a number of the run.
struct TitlePiece {
  TitlePiece(const char* piece) : text(piece) {}
  TitlePiece(std::string_view piece) : text(piece) {}
  TitlePiece(TitleNumber piece) : number(piece) {}
  std::string_view text;
  std::optional<TitleNumber> number;
};
/// A title: its pieces joined with nothing between them.
using TitleText = std::vector<TitlePiece>;

struct ChartRecipe {
  TitleText title{};
  std::string_view yTitle{};
  RowForm form = RowForm::StateFromDay0;
  bool legend = true;
  SeriesList (*series)(const Session&) = nullptr;
  /// The y values are log10(v + 1) of the series, worked out while filling.
  bool logComputed = false;
  /// The title of the LateRelease twin; none where the member has no twin.
  std::optional<TitleText> lateTitle{};
  /// x of a row is TimeUnit * LaggedTime of its day instead of day * TimeUnit.
  bool laggedTime = false;
  std::string_view xTitle = "Time";
};

/// A plain member, or its LateRelease twin.
enum class Shift { None, LateRelease };

/// Fills a chart from a recipe. A LateRelease twin shifts the series by
/// ReleaseDate days and shows 0 on the days before.
ChartContent fillChart(const Session& session, const ChartRecipe& recipe, Shift shift = Shift::None);

/// Fills a chart, makes the chart of its place visible and hides the main
/// form's two hint labels, as every chart routine ends.
ChartContent showOnMainForm(Session& session, const ChartRecipe& recipe, Shift shift = Shift::None);
/// The same on grafform: x axis title "time", and the title replaced where
/// one is given.
ChartContent showOnLargeGraph(Session& session, const ChartRecipe& recipe, std::string_view title = {});

/// The text of a title with the numbers of the run put in.
std::string titleText(const Model& model, const TitleText& title);

} // namespace vorlex
