#include "model/Table.h"

#include <cstdint>
#include <mutex>

#if defined(__unix__) || defined(__APPLE__)
#include <sys/mman.h>
#include <unistd.h>
#define VORLEX_ANONYMOUS_PAGES 1
#endif

namespace vorlex::detail {

#ifdef VORLEX_ANONYMOUS_PAGES

// Anonymous private pages read as zeros and take memory only once written.
const bool kPagesFromTheSystem = true;

namespace {

#ifdef MADV_POPULATE_WRITE
constexpr int kPopulateWrite = MADV_POPULATE_WRITE;
#else
constexpr int kPopulateWrite = 23; // since Linux 5.14
#endif

// The large pages of the system, where it has them.
constexpr std::uintptr_t kLargePage = std::uintptr_t{2} << 20;

void* map(std::size_t bytes) {
  void* pages = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return pages == MAP_FAILED ? nullptr : pages;
}

// The bytes a table of `bytes` maps: a table of several large pages takes
// whole ones, so that its last part too can be served in a large page.
std::size_t mappedBytes(std::size_t bytes) {
  return bytes < 2 * kLargePage ? bytes : (bytes + kLargePage - 1) / kLargePage * kLargePage;
}

// Tables below this size share mappings of kSharedBytes, handed out one
// after the other and never reused, so that what a table gets is as
// untouched as a mapping of its own, without a call to the system for
// each one. A shared mapping goes back once all its tables are gone.
constexpr std::size_t kOwnMappingBytes = 64 * 1024;
constexpr std::size_t kSharedBytes = 1 << 20;

struct SharedMapping {
  std::size_t used; // bytes handed out, this heading included
  std::size_t live; // tables not yet given back
};

std::mutex sharedLock;
SharedMapping* current = nullptr;

// A mapping of `bytes` that starts on a multiple of `alignment`.
char* alignedMap(std::size_t bytes, std::size_t alignment) {
  auto* mapped = static_cast<char*>(map(bytes + alignment));
  if (!mapped)
    return nullptr;
  const auto at = reinterpret_cast<std::uintptr_t>(mapped);
  const std::size_t head = (alignment - at % alignment) % alignment;
  if (head > 0)
    munmap(mapped, head);
  munmap(mapped + head + bytes, alignment - head);
  return mapped + head;
}

void* sharedPages(std::size_t bytes) {
  bytes = (bytes + 63) / 64 * 64;
  const std::lock_guard<std::mutex> lock(sharedLock);
  if (!current || current->used + bytes > kSharedBytes) {
    if (current && current->live == 0)
      munmap(current, kSharedBytes);
    current = reinterpret_cast<SharedMapping*>(alignedMap(kSharedBytes, kSharedBytes));
    if (!current)
      return nullptr;
    *current = {64, 0};
  }
  void* cells = reinterpret_cast<char*>(current) + current->used;
  current->used += bytes;
  ++current->live;
  return cells;
}

void returnShared(void* cells) {
  const std::lock_guard<std::mutex> lock(sharedLock);
  auto* mapping = reinterpret_cast<SharedMapping*>(reinterpret_cast<std::uintptr_t>(cells) / kSharedBytes *
                                                    kSharedBytes);
  if (--mapping->live == 0 && mapping != current)
    munmap(mapping, kSharedBytes);
}

} // namespace

// A table of several large pages starts on a large-page boundary, so that
// all of it can be served in large pages.
void* zeroPages(std::size_t bytes) {
  if (bytes < kOwnMappingBytes)
    return sharedPages(bytes);
  if (bytes < 2 * kLargePage)
    return map(bytes);
  return alignedMap(mappedBytes(bytes), kLargePage);
}

void returnPages(void* pages, std::size_t bytes) {
  if (bytes < kOwnMappingBytes)
    returnShared(pages);
  else
    munmap(pages, mappedBytes(bytes));
}

void expectWrites(void* first, std::size_t bytes) {
  if (bytes == 0)
    return;
#ifdef MADV_HUGEPAGE
  // Less than two large pages is left to the small ones: a short run
  // would take far more memory than it writes. A table of several large
  // pages maps whole ones, its last one too.
  if (bytes >= 2 * kLargePage) {
    madvise(first, mappedBytes(bytes), MADV_HUGEPAGE); // a mere hint: no answer to check
    return;
  }
#endif
  // Small pages are handed over in one go: a page taken at its first write
  // costs the system many times more.
  const std::uintptr_t page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto from = reinterpret_cast<std::uintptr_t>(first) / page * page;
  const auto to = (reinterpret_cast<std::uintptr_t>(first) + bytes + page - 1) / page * page;
  madvise(reinterpret_cast<void*>(from), to - from, kPopulateWrite); // older systems refuse: a hint too
}

#else

// Elsewhere the cleared heap does: calloc takes large blocks as fresh pages.
const bool kPagesFromTheSystem = false;

void* zeroPages(std::size_t bytes) { return std::calloc(bytes, 1); }

void returnPages(void* pages, std::size_t) { std::free(pages); }

void expectWrites(void*, std::size_t) {}

#endif

} // namespace vorlex::detail
