#pragma once

#include <cstddef>
#include <cstdint>

namespace kov {

/// Forces a function into the one that is compiled for a wider vector unit.
#define KOV_INLINE __attribute__((always_inline))

#if defined(__x86_64__)
/// Compiles a function for the 512-bit vectors, whatever the program is compiled for.
#define KOV_AVX512 __attribute__((target("avx512f,avx512vl,avx512dq,avx512bw")))
#endif

/// The vector units that loops are compiled for.
enum class VectorUnit { baseline, avx2, avx512 };

#if defined(__x86_64__)

/// The widest one of this processor; found out once.
inline VectorUnit vector_unit() {
  static const VectorUnit unit = [] {
    if (__builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512bw")) {
      return VectorUnit::avx512;
    }
    return __builtin_cpu_supports("avx2") ? VectorUnit::avx2 : VectorUnit::baseline;
  }();
  return unit;
}

template <class Loop>
__attribute__((target("avx2"))) void run_loop_avx2(const Loop& loop) {
  loop();
}

template <class Loop>
KOV_AVX512 void run_loop_avx512(const Loop& loop) {
  loop();
}

#else

inline VectorUnit vector_unit() { return VectorUnit::baseline; }
template <class Loop>
void run_loop_avx2(const Loop& loop) {
  loop();
}
template <class Loop>
void run_loop_avx512(const Loop& loop) {
  loop();
}

#endif

/// Has the line so many bytes behind p fetched from the memory, whether it is part of an array or not. Arrays
/// of a block are read once each, and are too short for the processor to foresee it.
KOV_INLINE inline void fetch_ahead(const void* p, std::size_t bytes) {
  const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(p) + bytes;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a pointer may not go behind its array
  __builtin_prefetch(reinterpret_cast<const void*>(address));
}

/// Runs loop, a function object marked KOV_INLINE, with the widest vectors that the processor has. The loop
/// is compiled once for each unit from the one source. The results are the same on all: the loops hold no
/// sums across lanes, and products and sums are never contracted; nor do they hold complex products of single
/// numbers, of which g++ 12 makes fused multiply-adds, which round once less, whatever it is told.
template <class Loop>
void run_loop(const Loop& loop) {
  switch (vector_unit()) {
    case VectorUnit::avx512:
      return run_loop_avx512(loop);
    case VectorUnit::avx2:
      return run_loop_avx2(loop);
    case VectorUnit::baseline:
      return loop();
  }
}

}  // namespace kov
