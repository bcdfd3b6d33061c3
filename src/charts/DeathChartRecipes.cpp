#include "charts/ChartRecipes.h"
#include "charts/ChartSeries.h"

#include "model/Session.h"

namespace vorlex {
namespace {

SeriesList totalDifference(const Session& session) {
  return {tableSeries("T", session.model().TotalDifference)};
}

SeriesList totalDeath(const Session& session) { return {tableSeries("T", session.model().TotalDeath)}; }

SeriesList logTotalDeath(const Session& session) { return {tableSeries("T", session.model().LogTotalDeath)}; }

SeriesList stageDeath(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.StageDeath, StageTable::StageSecond);
}

SeriesList logStageDeath(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.LogStageDeath, StageTable::StageSecond);
}

SeriesList cumulativeStageDeath(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.CumuStageDeath, StageTable::StageSecond);
}

SeriesList logCumulativeStageDeath(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.LogCumuStageDeath, StageTable::StageSecond);
}

SeriesList predation(const Session& session) { return {tableSeries("T", session.model().PredationTotal)}; }

SeriesList logPredation(const Session& session) { return {tableSeries("T", session.model().PredationLog)}; }

// A chart of the deaths (or changes) of each day from day 1.
ChartRecipe perDay(const char* title, const char* yTitle, SeriesList (*series)(const Session&),
                   std::optional<TitleText> lateTitle, bool logComputed = false) {
  return {.title = {title},
          .yTitle = yTitle,
          .form = RowForm::ChangeFromDay1,
          .series = series,
          .logComputed = logComputed,
          .lateTitle = std::move(lateTitle)};
}

constexpr TitleNumber kDay = TitleNumber::ReleaseDate;

} // namespace

namespace recipes {

const ChartRecipe TotalDifference =
    perDay("Total difference in population size between time t and t-1", "Difference", totalDifference,
           TitleText{"Total difference in population size between time t and t-1. Release date ", kDay});
const ChartRecipe LogTotalDifference =
    perDay("log[Total(t)-Total(t-1)+1]", "log(difference+1)", totalDifference,
           TitleText{"log[Total(t)-Total(t-1)+1]. Release date ", kDay}, true);
const ChartRecipe TotalDeath =
    perDay("Total death observed at time t", "Total death", totalDeath, std::nullopt);
const ChartRecipe LogTotalDeath =
    perDay("log(Total death+1) observed at time t", "log(total death+1)", logTotalDeath,
           TitleText{"log(Total death+1) observed at time t. Release date ", kDay});
const ChartRecipe StageDeath = perDay("Stage death curves", "Stage death", stageDeath,
                                      TitleText{"Stage death curves. Release date", kDay});
const ChartRecipe LogStageDeath = perDay("log(Stage death +1))", "log(Stage death+1)", logStageDeath,
                                         TitleText{"log(Stage death +1)). Release date ", kDay});
const ChartRecipe CumuStageDeath =
    perDay("Cumulative stage death curves", "Cumulative stage death", cumulativeStageDeath,
           TitleText{"Cumulative stage death curves. Release date ", kDay});
const ChartRecipe LogCumuStageDeath =
    perDay("log(Cumulative stage death + 1)", "log(Cumulative stage death + 1)", logCumulativeStageDeath,
           TitleText{"log(Cumulative stage death + 1), release date ", kDay});

const ChartRecipe TotalDeathDuetoPredation{
    .title = {"Predation potential of predator at time t"},
    .yTitle = "Predation potential of predator",
    .form = RowForm::Predation,
    .series = predation,
    .lateTitle = TitleText{"Predation potential of predator at time t. Release date ", kDay},
};

const ChartRecipe LogTotalDeathDuetoPredation{
    .title = {"log(Predation potential of predator +1) at time t"},
    .yTitle = "log(Predation potential of predator +1)",
    .form = RowForm::Predation,
    .series = logPredation,
    .lateTitle = TitleText{"log(Predation potential of predator +1) at time t. Release date ", kDay},
};

} // namespace recipes
} // namespace vorlex
