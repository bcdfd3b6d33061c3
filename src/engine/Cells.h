#pragma once

#include "model/Table.h"

#include <cstddef>
#include <stdexcept>

namespace vorlex {

/// The cells of an (age, stage) table kept stage by stage, reached without
/// the bounds check of every access. The day steps check their ages and
/// stages once and then walk the matrices a few times a day, each stage
/// over the ages where it may hold individuals: over a long run that is
/// most of their work, and the ages of a stage lie side by side.
class Cells {
public:
  explicit Cells(Table2<double>& table) : base_(&table(0, 0)), stride_(table.upper(0) + 1) {
    if (&table(1, 0) != base_ + 1 || &table(0, 1) != base_ + stride_)
      throw std::logic_error("an age-by-stage table is not kept stage by stage");
  }
  /// The ages of stage j, side by side.
  double* stage(int j) const { return base_ + static_cast<std::ptrdiff_t>(j) * stride_; }
  double& operator()(int age, int j) const { return stage(j)[age]; }

private:
  double* base_;
  std::ptrdiff_t stride_;
};

} // namespace vorlex
