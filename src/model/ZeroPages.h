#pragma once

#include <cstddef>
#include <new>

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

} // namespace detail

/// An allocator of memory that is written whole as soon as it is handed
/// out, such as the values of a chart: zeroed pages from the system,
/// handed over in one go rather than a page at each first write, which
/// costs the system many times more.
template <typename T> struct WrittenPages {
  using value_type = T;
  WrittenPages() = default;
  template <typename U> WrittenPages(const WrittenPages<U>&) {}
  T* allocate(std::size_t count) {
    const std::size_t bytes = count * sizeof(T);
    void* pages = detail::zeroPages(bytes);
    if (!pages)
      throw std::bad_alloc();
    detail::expectWrites(pages, bytes);
    return static_cast<T*>(pages);
  }
  void deallocate(T* pages, std::size_t count) { detail::returnPages(pages, count * sizeof(T)); }
  friend bool operator==(const WrittenPages&, const WrittenPages&) { return true; }
};

} // namespace vorlex
