#pragma once

#include "charts/ChartRecipe.h"
#include "model/Table.h"

#include <string>

namespace vorlex {

struct Model;

// The curves the charts draw, read straight from the tables of the model.

/// A series read from a table of days or ages: table(day) or table(age).
ChartSeries tableSeries(std::string label, const Table1<double>& table);
/// A series the same on every day.
ChartSeries levelSeries(std::string label, double level);

/// Where a table has its stage dimension.
enum class StageTable {
  StageFirst,  // table(stage, day), like StageSize
  StageSecond, // table(day, stage) like StageDeath, or table(age, stage) like Lxj
};
/// One curve for each stage 1..NrStage, labelled with the stage's name.
SeriesList eachStage(const Model& model, const Table2<double>& table, StageTable order);

} // namespace vorlex
