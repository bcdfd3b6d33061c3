#include "charts/ChartContent.h"

#include "textio/RuntimeError.h"

namespace vorlex {

void ChartContent::resize(int seriesCount, int rowCount) {
  if (seriesCount < 0 || rowCount < 0)
    raise(ErrorCode::InvalidProcedureCall,
          "Chart of " + std::to_string(seriesCount) + " series and " + std::to_string(rowCount) + " rows");
  rows_ = rowCount;
  labels_.assign(static_cast<std::size_t>(seriesCount), std::string());
  cells_.assign(static_cast<std::size_t>(rowCount) * static_cast<std::size_t>(2 * seriesCount), 0.0);
}

std::string& ChartContent::label(int series) { return labels_[labelIndex(series)]; }

const std::string& ChartContent::label(int series) const { return labels_[labelIndex(series)]; }

double& ChartContent::at(int row, int column) { return cells_[cell(row, column)]; }

double ChartContent::at(int row, int column) const { return cells_[cell(row, column)]; }

std::size_t ChartContent::labelIndex(int series) const {
  if (series < 1 || series > seriesCount())
    raise(ErrorCode::SubscriptOutOfRange, "Chart series " + std::to_string(series));
  return static_cast<std::size_t>(series - 1);
}

std::size_t ChartContent::cell(int row, int column) const {
  if (row < 1 || row > rows_ || column < 1 || column > columnCount())
    raise(ErrorCode::SubscriptOutOfRange,
          "Chart row " + std::to_string(row) + ", column " + std::to_string(column));
  return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columnCount()) +
         static_cast<std::size_t>(column - 1);
}

} // namespace vorlex
