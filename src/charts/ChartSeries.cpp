#include "charts/ChartSeries.h"

#include "model/Model.h"

namespace vorlex {

ChartSeries tableSeries(std::string label, const Table1<double>& table) {
  return {std::move(label), [&table](int day) { return table(day); }};
}

ChartSeries levelSeries(std::string label, double level) {
  return {std::move(label), [level](int) { return level; }};
}

SeriesList eachStage(const Model& model, const Table2<double>& table, StageTable order) {
  SeriesList series;
  for (int j = 1; j <= model.NrStage; ++j) {
    std::function<double(int)> value;
    if (order == StageTable::StageFirst)
      value = [&table, j](int day) { return table(j, day); };
    else
      value = [&table, j](int index) { return table(index, j); };
    series.push_back({model.StageName(j), std::move(value)});
  }
  return series;
}

} // namespace vorlex
