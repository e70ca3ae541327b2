#pragma once

#include "bench/scale.h"

namespace kov {

/// What the memory of the machine gives when all threads of the processor ask at once, in bytes a second.
struct MemoryBandwidth {
  /// Bytes read and bytes written by a copy between arrays far larger than the caches.
  double copy = 0.0;
  /// Bytes read from such an array.
  double read = 0.0;
  /// Bytes written into memory that the system hands out for it, page by page.
  double fresh = 0.0;
  int threads = 0;
};

/// The best of several runs of each.
MemoryBandwidth measure_memory_bandwidth(Scale scale);

}  // namespace kov
