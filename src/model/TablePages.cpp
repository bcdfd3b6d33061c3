#include "model/Table.h"

#include <cstdint>

#if defined(__unix__) || defined(__APPLE__)
#include <sys/mman.h>
#define VORLEX_ANONYMOUS_PAGES 1
#endif

namespace vorlex::detail {

#ifdef VORLEX_ANONYMOUS_PAGES

// Anonymous private pages read as zeros and take memory only once written.
const bool kPagesFromTheSystem = true;

namespace {

// The large pages of the system, where it has them.
constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20;

void* map(std::size_t bytes) {
  void* pages = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return pages == MAP_FAILED ? nullptr : pages;
}

} // namespace

// A table of several large pages starts on a large-page boundary, so that
// all of it can be served in large pages.
void* zeroPages(std::size_t bytes) {
  if (bytes < 2 * kLargePage)
    return map(bytes);
  auto* mapped = static_cast<char*>(map(bytes + kLargePage));
  if (!mapped)
    return nullptr;
  const auto at = reinterpret_cast<std::uintptr_t>(mapped);
  const std::size_t head = (kLargePage - at % kLargePage) % kLargePage;
  if (head > 0)
    munmap(mapped, head);
  munmap(mapped + head + bytes, kLargePage - head);
  return mapped + head;
}

void returnPages(void* pages, std::size_t bytes) { munmap(pages, bytes); }

void expectWrites(void* first, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
  // Less than two large pages is left to the small ones: a short run
  // would take far more memory than it writes.
  if (bytes >= 2 * kLargePage)
    madvise(first, bytes, MADV_HUGEPAGE); // a mere hint: no answer to check
#else
  (void)first;
  (void)bytes;
#endif
}

#else

// Elsewhere the cleared heap does: calloc takes large blocks as fresh pages.
const bool kPagesFromTheSystem = false;

void* zeroPages(std::size_t bytes) { return std::calloc(bytes, 1); }

void returnPages(void* pages, std::size_t) { std::free(pages); }

void expectWrites(void*, std::size_t) {}

#endif

} // namespace vorlex::detail
