#include "charts/ChartRecipes.h"
#include "charts/ChartSeries.h"

#include "model/Session.h"

namespace vorlex {
namespace {

SeriesList survivalByStage(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.Lxj, StageTable::StageSecond);
}

SeriesList growthByStage(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.GrowthRate, StageTable::StageSecond);
}

SeriesList developmentByStage(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.DevelopRate, StageTable::StageSecond);
}

SeriesList fecundityByStage(const Session& session) {
  const Model& m = session.model();
  return eachStage(m, m.Fecundity, StageTable::StageSecond);
}

SeriesList survival(const Session& session) { return {tableSeries("", session.model().Lx)}; }

SeriesList fecundity(const Session& session) { return {tableSeries("", session.model().Mx)}; }

SeriesList maternity(const Session& session) {
  const Model& m = session.model();
  return {{"", [&m](int age) { return m.Lx(age) * m.Mx(age); }}};
}

ChartRecipe byAge(const char* title, const char* yTitle, SeriesList (*series)(const Session&), bool legend,
                  const char* xTitle) {
  return {.title = {title},
          .yTitle = yTitle,
          .form = RowForm::ByAge,
          .legend = legend,
          .series = series,
          .xTitle = xTitle};
}

} // namespace

namespace recipes {

const ChartRecipe Sij = byAge("Survival rate to each age-stage unit", "s(x,j)", survivalByStage, true, "age");
const ChartRecipe Gij =
    byAge("Growth transition probability for each age-stage unit", "g(x,j)", growthByStage, true, "age");
const ChartRecipe Dij =
    byAge("Developmental transition probability", "d(x,j)", developmentByStage, true, "age");
const ChartRecipe Fij = byAge("Fecundity for each age-stage unit", "f(x,j)", fecundityByStage, true, "age");
const ChartRecipe Lx = byAge("Age-specific survival rate", "l(x)", survival, false, "Age");
const ChartRecipe Mx =
    byAge("Age-specific fecundity (offspring/individual)", "m(x)", fecundity, false, "Age");
const ChartRecipe LxMx = byAge("Age-specific maternity (lx*mx)", "l(x)*m(x)", maternity, false, "Age");

} // namespace recipes
} // namespace vorlex
