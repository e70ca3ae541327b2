#include "algadd/memory_arenas.h"

#include <algorithm>

#include "algadd/worker_pool.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace kov {

int most_memory_arenas() {
  constexpr int threads_an_arena = 8;
  return std::max(1, processor_threads() / threads_an_arena);
}

void share_memory_arenas() {
#if defined(__GLIBC__)
  mallopt(M_ARENA_MAX, most_memory_arenas());
#endif
}

}  // namespace kov
