#include "charts/ChartRecipes.h"
#include "charts/ChartSeries.h"

#include "model/Session.h"

namespace vorlex {
namespace {

SeriesList stageSizes(const Session& session) {
  const Model& m = session.model();
  SeriesList series = eachStage(m, m.StageSize, StageTable::StageFirst);
  if (session.flags.Physogastry == "Yes")
    series.push_back(tableSeries("BR", m.BurstReadySize));
  return series;
}

// The two sexes together, behind all stages.
SeriesList stageSizesWithAdults(const Session& session) {
  const Model& m = session.model();
  SeriesList series = eachStage(m, m.StageSize, StageTable::StageFirst);
  series.push_back(
      {"Adult", [&m](int day) { return m.StageSize(m.NrStage - 1, day) + m.StageSize(m.NrStage, day); }});
  return series;
}

SeriesList stageGrowthRates(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.StageGrowthLn, StageTable::StageFirst);
}

// A time step of half a day grows by half of r in a step.
SeriesList stageGrowthRatesWithR(const Session& session) {
  const Model& m = session.model();
  SeriesList series = stageGrowthRates(session);
  series.push_back(levelSeries("r", m.IntrinsicRate));
  if (m.TimeUnit == 0.5)
    series.push_back(levelSeries("0.5 r", 0.5 * m.IntrinsicRate));
  return series;
}

} // namespace

namespace recipes {

const ChartRecipe StageStructure{
    .title = {"Stage size"},
    .yTitle = "stage size",
    .series = stageSizes,
    .lateTitle = TitleText{"Stage size (release date: ", TitleNumber::ReleaseDate, ")"},
};

const ChartRecipe LogStageStructure{
    .title = {"Curves of log(n+1)"},
    .yTitle = "log(n+1)",
    .series = stageSizes,
    .logComputed = true,
};

const ChartRecipe StageSizeWithTotalAdults{
    .title = {"Curves of stage size"},
    .yTitle = "stage size",
    .series = stageSizesWithAdults,
    .lateTitle = TitleText{"Curves of stage size. Release date ", TitleNumber::ReleaseDate},
};

const ChartRecipe StageGrowthRate{
    .title = {"Curves of stage growth rates"},
    .yTitle = "stage growth rate",
    .series = stageGrowthRates,
    .lateTitle = TitleText{"Curves of stage growth rates. Release date ", TitleNumber::ReleaseDate},
};

const ChartRecipe StageGrowthRatewithR{
    .title = {"Curves of stage growth rates"},
    .yTitle = "stage growth rate",
    .series = stageGrowthRatesWithR,
};

} // namespace recipes
} // namespace vorlex
