#pragma once

#include <malloc.h>

#include <cstddef>

namespace kov {

/// Bytes that the allocator has handed out to all threads, its own book-keeping included.
inline std::size_t heap_bytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

}  // namespace kov
