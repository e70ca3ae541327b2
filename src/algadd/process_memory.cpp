#include "algadd/process_memory.h"

#include <algorithm>

#include "algadd/worker_pool.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace kov {

namespace {

[[maybe_unused]] int most_memory_arenas() {
  constexpr int threads_an_arena = 8;
  return std::max(1, processor_threads() / threads_an_arena);
}

}  // namespace

void set_up_process_memory() {
#if defined(__GLIBC__)
  // The largest piece that the allocator takes from an arena at all.
  constexpr int largest_piece = 32 * 1024 * 1024;
  mallopt(M_ARENA_MAX, most_memory_arenas());
  mallopt(M_TRIM_THRESHOLD, -1);  // never
  mallopt(M_MMAP_THRESHOLD, largest_piece);
#endif
}

void give_process_memory_back() {
#if defined(__GLIBC__)
  malloc_trim(0);
#endif
}

}  // namespace kov
