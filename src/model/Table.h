#pragma once

#include "textio/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>
#include <vector>

namespace vorlex {

namespace detail {

/// Whether large tables take zeroed pages straight from the system.
extern const bool kPagesFromTheSystem;
/// Zeroed memory of at least `bytes` (a page or more), touched only when
/// written; null when the system has none. Tables of many pages map their
/// own; smaller ones share larger mappings.
void* zeroPages(std::size_t bytes);
/// Gives back what zeroPages handed out.
void returnPages(void* pages, std::size_t bytes);
/// Tells the system that the bytes from `first` on will all be written
/// soon: a span of several megabytes, handed out by zeroPages, is then
/// served in large pages, a shorter one is handed over at once rather than
/// a page at each first write.
void expectWrites(void* first, std::size_t bytes);

// The cells of a table. Numbers take memory that is zero until first
// written: the system hands out zeroed pages on demand, so a table sized
// for the largest case costs nothing for the part a smaller one never
// touches, neither time nor memory. Texts and values are constructed as
// usual.
template <typename T, bool = std::is_arithmetic_v<T>> class Storage {
public:
  explicit Storage(std::size_t size) : cells_(size, T{}) {}
  T* data() { return cells_.data(); }
  const T* data() const { return cells_.data(); }
  std::size_t size() const { return cells_.size(); }

private:
  std::vector<T> cells_;
};

template <typename T> class Storage<T, true> {
public:
  explicit Storage(std::size_t size) : size_(size), cells_(allocate(size), Free{bytesOf(size)}) {}
  // A copy writes only the blocks that hold something: the rest of a large
  // table stays the zero memory it was handed, and costs nothing.
  Storage(const Storage& other) : Storage(other.size_) {
    constexpr std::size_t kBlock = 4096 / sizeof(T);
    const T* from = other.data();
    T* to = data();
    for (std::size_t at = 0; at < size_; at += kBlock) {
      const std::size_t count = std::min(kBlock, size_ - at);
      // Byte by byte, so that a -0 is copied as it is.
      const auto* bytes = reinterpret_cast<const unsigned char*>(from + at);
      if (std::any_of(bytes, bytes + count * sizeof(T), [](unsigned char byte) { return byte != 0; }))
        std::copy(from + at, from + at + count, to + at);
    }
  }
  Storage& operator=(const Storage& other) {
    if (this != &other) {
      Storage copy(other);
      std::swap(size_, copy.size_);
      std::swap(cells_, copy.cells_);
    }
    return *this;
  }
  Storage(Storage&&) noexcept = default;
  Storage& operator=(Storage&&) noexcept = default;

  T* data() { return cells_.get(); }
  const T* data() const { return cells_.get(); }
  std::size_t size() const { return size_; }
  /// The first `count` cells will all be written soon.
  void expectWrites(std::size_t count) { detail::expectWrites(data(), std::min(count, size_) * sizeof(T)); }

private:
  // From this size on the cells are zeroed pages from the system (see
  // zeroPages): zero until first touched, and only the touched ones take
  // memory. A smaller table comes from the heap, cleared.
  static constexpr std::size_t kPagedBytes = 4096;

  static std::size_t bytesOf(std::size_t size) { return (size == 0 ? 1 : size) * sizeof(T); }
  static bool paged(std::size_t bytes) { return kPagesFromTheSystem && bytes >= kPagedBytes; }

  struct Free {
    std::size_t bytes;
    void operator()(T* cells) const {
      if (paged(bytes))
        returnPages(cells, bytes);
      else
        std::free(cells);
    }
  };
  static T* allocate(std::size_t size) {
    // All-zero bytes are the number 0 for every arithmetic type used here.
    const std::size_t bytes = bytesOf(size);
    void* cells = paged(bytes) ? zeroPages(bytes) : std::calloc(bytes, 1);
    if (!cells)
      throw std::bad_alloc();
    return static_cast<T*>(cells);
  }

  std::size_t size_;
  std::unique_ptr<T[], Free> cells_;
};

} // namespace detail

/// How a table keeps its cells in memory. By default the last index runs
/// fastest: the cells of a row lie side by side. A table that is filled
/// and read one column at a time keeps its columns together instead.
enum class Layout { RowByRow, ColumnByColumn };

/// A table with fixed bounds 0..upper in each of its Rank dimensions, all
/// zeros (or empty texts) at the start. An index outside the bounds stops
/// the work with Subscript out of range.
template <typename T, std::size_t Rank> class Table {
public:
  template <typename... Upper>
    requires(sizeof...(Upper) == Rank)
  explicit Table(Upper... upper) : Table(Layout::RowByRow, upper...) {}
  template <typename... Upper>
    requires(sizeof...(Upper) == Rank)
  Table(Layout layout, Upper... upper)
      : upper_{static_cast<int>(upper)...}, layout_(layout), strides_(stridesOf(upper_, layout)),
        cells_(sizeOf(upper_)) {}

  template <typename... Index>
    requires(sizeof...(Index) == Rank)
  T& operator()(Index... index) {
    return cells_.data()[offset(static_cast<long long>(index)...)];
  }
  template <typename... Index>
    requires(sizeof...(Index) == Rank)
  const T& operator()(Index... index) const {
    return cells_.data()[offset(static_cast<long long>(index)...)];
  }

  /// The upper bound of a dimension (from 0).
  int upper(std::size_t dimension = 0) const { return upper_[dimension]; }
  /// Says that the cells up to the given last index of the outer dimension
  /// (the first index of a table kept row by row, the last of one kept
  /// column by column) will be written: a large table then takes its
  /// memory in large pieces, which the system hands out much faster than
  /// page by page.
  void expectWritesUpTo(int last)
    requires std::is_arithmetic_v<T>
  {
    const std::size_t outer = layout_ == Layout::RowByRow ? 0 : Rank - 1;
    if (last >= 0 && last <= upper_[outer])
      cells_.expectWrites((static_cast<std::size_t>(last) + 1) * (cells_.size() / (upper_[outer] + 1u)));
  }
  /// Says that the cells from the first up to the given one, in the order
  /// they are kept, will be written soon.
  template <typename... Index>
    requires(sizeof...(Index) == Rank && std::is_arithmetic_v<T>)
  void expectWritesThrough(Index... last) {
    cells_.expectWrites(offset(static_cast<long long>(last)...) + 1);
  }
  /// Narrows the first dimension to 0..last, for a table that no one has
  /// written yet: a table kept column by column then keeps each column in
  /// one short piece. Indexes beyond are out of range from then on.
  void narrowRowsTo(int last) {
    if (last < 0 || last > upper_[0])
      raise(ErrorCode::SubscriptOutOfRange);
    upper_[0] = last;
    strides_ = stridesOf(upper_, layout_);
    cells_ = detail::Storage<T>(sizeOf(upper_));
  }
  void fill(const T& value) { std::fill(cells_.data(), cells_.data() + cells_.size(), value); }

private:
  static std::size_t sizeOf(const std::array<int, Rank>& upper) {
    std::size_t size = 1;
    for (int u : upper)
      size *= static_cast<std::size_t>(u) + 1;
    return size;
  }

  // How far apart in memory the cells one index apart lie, dimension by
  // dimension: the index that runs fastest has the stride 1.
  static std::array<std::size_t, Rank> stridesOf(const std::array<int, Rank>& upper, Layout layout) {
    std::array<std::size_t, Rank> strides{};
    std::size_t stride = 1;
    for (std::size_t k = 0; k < Rank; ++k) {
      const std::size_t d = layout == Layout::RowByRow ? Rank - 1 - k : k;
      strides[d] = stride;
      stride *= static_cast<std::size_t>(upper[d]) + 1;
    }
    return strides;
  }

  template <typename... Index> std::size_t offset(Index... index) const {
    const std::array<long long, Rank> at{index...};
    std::size_t result = 0;
    for (std::size_t d = 0; d < Rank; ++d) {
      // A negative index is a very large one as an unsigned number.
      if (static_cast<unsigned long long>(at[d]) > static_cast<unsigned long long>(upper_[d]))
        raise(ErrorCode::SubscriptOutOfRange);
      result += static_cast<std::size_t>(at[d]) * strides_[d];
    }
    return result;
  }

  std::array<int, Rank> upper_;
  Layout layout_;
  std::array<std::size_t, Rank> strides_;
  detail::Storage<T> cells_;
};

template <typename T> using Table1 = Table<T, 1>;
template <typename T> using Table2 = Table<T, 2>;
template <typename T> using Table3 = Table<T, 3>;

} // namespace vorlex
