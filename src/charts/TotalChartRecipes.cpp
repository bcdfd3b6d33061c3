#include "charts/ChartRecipes.h"
#include "charts/ChartSeries.h"

#include "model/Session.h"

namespace vorlex {
namespace {

ChartSeries weakness(std::string label, const Model& m, int factor) {
  return {std::move(label), [&m, factor](int day) { return m.WeakSize(factor, day); }};
}

SeriesList totalWeighedCwidEt(const Session& session) {
  const Model& m = session.model();
  return {tableSeries("T", m.StageSum), tableSeries("W", m.WeighedSize), tableSeries("CWID", m.CUMWID),
          tableSeries("ET", m.EtDay)};
}

SeriesList totalGrowthRate(const Session& session) {
  return {tableSeries("", session.model().StageSumGrowthLn)};
}

// One curve "V" for a single susceptibility factor, else one a factor.
SeriesList totalAndVulnerable(const Session& session) {
  const Model& m = session.model();
  SeriesList series{tableSeries("T", m.StageSum)};
  if (m.NrWeakFactor <= 1)
    series.push_back(weakness("V", m, 1));
  else
    for (int i = 1; i <= m.NrWeakFactor; ++i)
      series.push_back(weakness(m.WeakFactorName(i), m, i));
  return series;
}

SeriesList totalVulnerableCwid(const Session& session) {
  const Model& m = session.model();
  return {tableSeries("T", m.StageSum), weakness("V", m, 1), tableSeries("CWID", m.CUMWID)};
}

} // namespace

namespace recipes {

const ChartRecipe TotalSizeAndWeighedSize{
    .title = {"Total size (T), weighed size (W), CWID, and ET"},
    .yTitle = "size",
    .series = totalWeighedCwidEt,
    .lateTitle = TitleText{"Total size (T), weighed size (W), CWID, and ET"},
};

const ChartRecipe LogTotalAndWeighed{
    .title = {"Total size, weighed size (W), ET and CWID"},
    .yTitle = "log(n+1)",
    .series = totalWeighedCwidEt,
    .logComputed = true,
};

const ChartRecipe TotalGrowthRate{
    .title = {"Growth rate of total population"},
    .yTitle = "Growth rate",
    .legend = false,
    .series = totalGrowthRate,
    .lateTitle = TitleText{"Growth rate of total population. Release date ", TitleNumber::ReleaseDate},
};

const ChartRecipe VulnerableAndTotal{
    .title = {"Total population (T) =", TitleNumber::LastTotal, " and vulnerable size (V)"},
    .yTitle = "size",
    .series = totalAndVulnerable,
};

const ChartRecipe LogVulnerableAndTotal{
    .title = {"Total population (T)= ", TitleNumber::LastTotal, ", vulnerable size (V), and",
              "CWID =", TitleNumber::LastCumWid},
    .yTitle = "log(n+1)",
    .series = totalVulnerableCwid,
    .logComputed = true,
};

} // namespace recipes
} // namespace vorlex
