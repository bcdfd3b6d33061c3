#pragma once

#include "model/Table.h"

#include <cstddef>
#include <stdexcept>

namespace vorlex {

/// The cells of an (age, stage) or (age, day) table, reached without the
/// bounds check of every access. The day steps check their ages, stages and
/// day once and then walk the matrices a few times a day: over a long run
/// that is most of their work.
class Cells {
public:
  explicit Cells(Table2<double>& table) : base_(&table(0, 0)), stride_(table.upper(1) + 1) {
    if (&table(1, 0) != base_ + stride_ || &table(0, 1) != base_ + 1)
      throw std::logic_error("a two-dimensional table is not stored row by row");
  }
  double* row(int row) const { return base_ + static_cast<std::ptrdiff_t>(row) * stride_; }
  double& operator()(int row, int column) const { return this->row(row)[column]; }

private:
  double* base_;
  std::ptrdiff_t stride_;
};

} // namespace vorlex
