#include "mainform/StatisticsCheck.h"

#include "engine/DominantEigenvalue.h"
#include "model/LifeTableStatistics.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"

#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

namespace vorlex {

namespace {

constexpr std::size_t kNameField = 9;
constexpr std::size_t kValueField = 21;

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width)
    text.append(width - text.size(), ' ');
  return text;
}

std::string shown(const std::optional<double>& value) { return value ? digits(*value) : "none"; }

// Three significant digits are enough to tell how far apart two values are.
std::string relativeDifference(double file, double table) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3g", std::abs(table - file) / std::abs(file));
  return digits(std::strtod(text, nullptr));
}

struct Row {
  const char* name;
  double file;
  std::optional<double> table;
  const char* what;
};

bool agrees(const Row& row) {
  if (!row.table)
    return false;
  return std::abs(*row.table - row.file) <= kStatisticsTolerance * std::abs(row.file);
}

} // namespace

bool printStatisticsCheck(Session& session, OutputFile& picture) {
  Model& m = session.model();
  const LifeTableStatistics table = lifeTableStatistics(m);
  const EigenvalueEstimate dominant = dominantEigenvalue(m);
  const Row rows[] = {
      {"F", m.MeanFecundity, table.F, "mean fecundity"},
      {"R0", m.NetReproductiveRate, table.R0, "net reproductive rate"},
      {"r", m.IntrinsicRate, table.r, "intrinsic rate, from the Euler-Lotka equation"},
      {"lambda", m.FiniteRate, table.lambda, "finite rate, e^r"},
      {"lambda", m.FiniteRate, dominant.lambda, "dominant eigenvalue of the projection matrix"},
      {"T", m.GenerationTime, table.T, "mean generation time, ln(R0)/r"},
  };

  picture.print("");
  picture.print("Life-table statistics: the file's and those worked out from the table as read");
  picture.print(padded("", kNameField), padded("In the file", kValueField),
                padded("From the table", kValueField));
  std::vector<const Row*> disagreeing;
  for (const Row& row : rows) {
    picture.print(padded(row.name, kNameField), padded(digits(row.file), kValueField),
                  padded(shown(row.table), kValueField), row.what);
    if (!agrees(row))
      disagreeing.push_back(&row);
  }
  if (!dominant.settled)
    picture.print("The dominant eigenvalue had not settled after", dominant.iterations, "iterations.");
  if (m.FecundityDecrease != 1 || m.GrowthDecrease != 1 || m.DevelopDecrease != 1)
    picture.print(
        "The decrease rates of the file lower the table: the values from the table are those of the "
        "lowered rates.");

  picture.print("");
  for (const Row* row : disagreeing) {
    std::string line = std::string("DISAGREES: ") + row->name + " (" + row->what + ") is " +
                       digits(row->file) + " in the file, " + shown(row->table) + " from the table";
    if (row->table && row->file != 0)
      line += ", a relative difference of " + relativeDifference(row->file, *row->table);
    picture.print(line + ".");
  }
  if (disagreeing.empty())
    picture.print("All agree to a relative difference of ", digits(kStatisticsTolerance), " or less.");
  return disagreeing.empty();
}

} // namespace vorlex
