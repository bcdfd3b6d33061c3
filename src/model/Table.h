#pragma once

#include "textio/RuntimeError.h"

#include <array>
#include <cstddef>
#include <vector>

namespace vorlex {

/// A table with fixed bounds 0..upper in each of its Rank dimensions, all
/// zeros (or empty texts) at the start. An index outside the bounds stops
/// the work with Subscript out of range.
template <typename T, std::size_t Rank> class Table {
public:
  template <typename... Upper>
    requires(sizeof...(Upper) == Rank)
  explicit Table(Upper... upper) : upper_{static_cast<int>(upper)...} {
    std::size_t size = 1;
    for (int u : upper_)
      size *= static_cast<std::size_t>(u) + 1;
    cells_.assign(size, T{});
  }

  template <typename... Index>
    requires(sizeof...(Index) == Rank)
  T& operator()(Index... index) {
    return cells_[offset(static_cast<long long>(index)...)];
  }
  template <typename... Index>
    requires(sizeof...(Index) == Rank)
  const T& operator()(Index... index) const {
    return cells_[offset(static_cast<long long>(index)...)];
  }

  /// The upper bound of a dimension (from 0).
  int upper(std::size_t dimension = 0) const { return upper_[dimension]; }
  void fill(const T& value) { cells_.assign(cells_.size(), value); }

private:
  template <typename... Index> std::size_t offset(Index... index) const {
    const std::array<long long, Rank> at{index...};
    std::size_t result = 0;
    for (std::size_t d = 0; d < Rank; ++d) {
      if (at[d] < 0 || at[d] > upper_[d])
        raise(ErrorCode::SubscriptOutOfRange);
      result = result * (static_cast<std::size_t>(upper_[d]) + 1) + static_cast<std::size_t>(at[d]);
    }
    return result;
  }

  std::array<int, Rank> upper_;
  std::vector<T> cells_;
};

template <typename T> using Table1 = Table<T, 1>;
template <typename T> using Table2 = Table<T, 2>;
template <typename T> using Table3 = Table<T, 3>;

} // namespace vorlex
