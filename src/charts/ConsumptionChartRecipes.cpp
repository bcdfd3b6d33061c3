#include "charts/ChartRecipes.h"
#include "charts/ChartSeries.h"

#include "model/Session.h"

namespace vorlex {
namespace {

SeriesList consumption(const Session& session) { return {tableSeries("", session.model().TotalConsumption)}; }

SeriesList consumptionAndPopulation(const Session& session) {
  const Model& m = session.model();
  return {tableSeries("C", m.TotalConsumption), tableSeries("T", m.StageSum)};
}

SeriesList laggedLogConsumption(const Session& session) {
  return {tableSeries("", session.model().LaggedLogConsumption)};
}

} // namespace

namespace recipes {

// "datae" in the twin's title is the title as users have always seen it.
const ChartRecipe TotalConsume{
    .title = {"Total consumption based on c(x,j)"},
    .yTitle = "Total consumption",
    .legend = false,
    .series = consumption,
    .lateTitle = TitleText{"Total consumption based on c(x,j). Release datae ", TitleNumber::ReleaseDate},
};

const ChartRecipe TotalLogConsume{
    .title = {"log(Total consumption+1) based on c(x,j)"},
    .yTitle = "log(Total consumption+1)",
    .form = RowForm::ChangeFromDay1,
    .legend = false,
    .series = consumption,
    .logComputed = true,
    .lateTitle =
        TitleText{"log(Total consumption+1) based on c(x,j). Release date ", TitleNumber::ReleaseDate},
};

const ChartRecipe TotalConsumeAndPopu{
    .title = {"Total consumption based on c(x,j) and total population"},
    .yTitle = "Total consumption and population",
    .series = consumptionAndPopulation,
    .lateTitle = TitleText{"Total consumption based on c(x,j) and total population. Release date ",
                           TitleNumber::ReleaseDate},
};

const ChartRecipe TotalConsumeAndPopuInLog{
    .title = {"Total consumption based on c(x,j) and total population (in log scale)"},
    .yTitle = "log(Total consumption+1) and log (population+1)",
    .series = consumptionAndPopulation,
    .logComputed = true,
    .lateTitle =
        TitleText{"Total consumption based on c(x,j) and total population (in log scale). Release date",
                  TitleNumber::ReleaseDate},
};

// The consumption itself is not lagged here; only its time is read from the
// lagged rows, which already carry TimeUnit once.
const ChartRecipe TotalConsumeAfterRelease{
    .title = {"Total consumption based on c(x,j) (Released at time ", TitleNumber::PredationLag, ")"},
    .yTitle = "Total consumption",
    .legend = false,
    .series = consumption,
    .lateTitle = TitleText{"Total consumption based on c(x,j) (Released at time ", TitleNumber::PredationLag,
                           "). Release date", TitleNumber::ReleaseDate},
    .laggedTime = true,
};

const ChartRecipe TotalLogConsumeAfterRelease{
    .title = {"log(Total consumption+1) based on c(x,j) (Released at ", TitleNumber::PredationLag, ")"},
    .yTitle = "log(Total consumption+1)",
    .legend = false,
    .series = laggedLogConsumption,
    .lateTitle =
        TitleText{"log(Total consumption+1) based on c(x,j) (Released at ", TitleNumber::PredationLag, ")"},
    .laggedTime = true,
};

} // namespace recipes
} // namespace vorlex
