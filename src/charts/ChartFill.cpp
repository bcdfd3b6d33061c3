#include "charts/ChartFamily.h"
#include "charts/ChartRecipe.h"

#include "model/Arithmetic.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {
namespace {

/// Where a chart goes: the main form, or the large chart of grafform.
enum class ChartPlace { MainForm, LargeGraph };

double numberOf(const Model& m, TitleNumber number) {
  switch (number) {
  case TitleNumber::LastTotal:
    return m.StageSum(m.SimTime + 1);
  case TitleNumber::LastCumWid:
    return m.CUMWID(m.SimTime + 1);
  case TitleNumber::PredationLag:
    return m.PredationLag;
  case TitleNumber::ReleaseDate:
    return m.ReleaseDate;
  }
  return 0;
}

int firstDay(RowForm form) { return form == RowForm::ChangeFromDay1 ? 1 : 0; }

int rowCount(const Model& m, RowForm form) {
  switch (form) {
  case RowForm::StateFromDay0:
    return m.SimTime + 1;
  case RowForm::ChangeFromDay1:
  case RowForm::Predation:
    return m.SimTime;
  case RowForm::ByAge:
    return m.LastAge + 1;
  }
  return 0;
}

void setAxes(ChartContent& chart, const Model& m, const ChartRecipe& recipe) {
  chart.yAxis.title = std::string(recipe.yTitle);
  chart.yAxis.majorGridPen = PenStyle::Solid;
  chart.yAxis.majorGridColour = ChartColour{0, 0, 0};
  chart.yAxis.automaticGridColour = false;
  chart.xAxis.title = std::string(recipe.xTitle);
  chart.xAxis.maximum = m.SimTime * m.TimeUnit;
}

void endShow(Session& session, ChartPlace place) {
  session.controls[place == ChartPlace::MainForm ? kMainChart : kLargeChart].visible = true;
  for (const char* label : kChartHintLabels)
    session.controls[label].visible = false;
}

} // namespace

std::string titleText(const Model& model, const TitleText& title) {
  std::string text;
  for (const TitlePiece& piece : title)
    text += piece.number ? digits(numberOf(model, *piece.number)) : std::string(piece.text);
  return text;
}

ChartContent fillChart(const Session& session, const ChartRecipe& recipe, Shift shift) {
  const Model& m = session.model();
  const bool shifted = shift == Shift::LateRelease && recipe.lateTitle;
  const int release = shifted ? m.ReleaseDate : 0;
  const SeriesList series = recipe.series(session);

  ChartContent chart;
  chart.title = titleText(m, shifted ? *recipe.lateTitle : recipe.title);
  chart.showLegend = recipe.legend;
  setAxes(chart, m, recipe);
  // The row count is a 16-bit number of the chart, as the day counts are.
  const int rows = checkedInt16(rowCount(m, recipe.form) + release);
  chart.resize(static_cast<int>(series.size()), rows);

  for (int n = 1; n <= chart.seriesCount(); ++n) {
    const ChartSeries& curve = series[static_cast<std::size_t>(n - 1)];
    chart.label(n) = curve.label;
    for (int row = 1; row <= rows; ++row) {
      const int day = row - 1 + firstDay(recipe.form);
      double x = day * m.TimeUnit;
      if (recipe.form == RowForm::ByAge)
        x = day;
      else if (recipe.laggedTime && !shifted)
        x = m.TimeUnit * m.LaggedTime(day);
      // A twin shows 0 up to the release day, then the series from day 1 on.
      double y = 0;
      if (!shifted || day > release) {
        y = curve.value(day - release);
        if (recipe.logComputed)
          y = log10Plus1(y);
      }
      chart.at(row, 2 * n - 1) = x;
      chart.at(row, 2 * n) = y;
    }
  }
  return chart;
}

ChartContent showOnMainForm(Session& session, const ChartRecipe& recipe, Shift shift) {
  ChartContent chart = fillChart(session, recipe, shift);
  endShow(session, ChartPlace::MainForm);
  return chart;
}

ChartContent showOnLargeGraph(Session& session, const ChartRecipe& recipe, std::string_view title) {
  ChartRecipe large = recipe;
  large.xTitle = "time";
  if (!title.empty())
    large.title = TitleText{title};
  ChartContent chart = fillChart(session, large);
  endShow(session, ChartPlace::LargeGraph);
  return chart;
}

} // namespace vorlex
