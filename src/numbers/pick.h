#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "numbers/vector_dispatch.h"

namespace kov {

/// Copies those of the count elements whose bits are set to where `to` points, one behind the other. Bit i is
/// bit i % 64 of word i / 64, and those behind the last one are 0. Elements have 4 or 8 bytes.
template <class T>
void pick(const T* from, std::size_t count, const std::uint64_t* bits, T* to);

template <class T>
void pick_plain(const T* from, std::size_t count, const std::uint64_t* bits, T* to) {
  for (std::size_t first = 0; first < count; first += 64) {
    for (std::uint64_t word = bits[first / 64]; word != 0; word &= word - 1) {
      *to++ = from[first + static_cast<std::size_t>(std::countr_zero(word))];
    }
  }
}

#if defined(__x86_64__)

template <class T>
KOV_AVX512 void pick_avx512(const T* from, std::size_t count, const std::uint64_t* bits, T* to) {
  constexpr std::size_t lanes = 64 / sizeof(T);
  constexpr std::size_t bytes_ahead = 2048;
  for (std::size_t i = 0; i < count; i += lanes) {
    fetch_ahead(from + i, bytes_ahead);
    const auto some = static_cast<unsigned>(bits[i / 64] >> i % 64) & ((1U << lanes) - 1);
    const int picked = std::popcount(some);
    const unsigned first = (1U << static_cast<unsigned>(picked)) - 1;
    if constexpr (sizeof(T) == 4) {
      const auto mask = static_cast<__mmask16>(some);
      const __m512i all = _mm512_maskz_loadu_epi32(mask, from + i);
      _mm512_mask_storeu_epi32(to, static_cast<__mmask16>(first), _mm512_maskz_compress_epi32(mask, all));
    } else {
      const auto mask = static_cast<__mmask8>(some);
      const __m512i all = _mm512_maskz_loadu_epi64(mask, from + i);
      _mm512_mask_storeu_epi64(to, static_cast<__mmask8>(first), _mm512_maskz_compress_epi64(mask, all));
    }
    to += picked;
  }
}

#endif

template <class T>
void pick(const T* from, std::size_t count, const std::uint64_t* bits, T* to) {
  static_assert(sizeof(T) == 4 || sizeof(T) == 8);
#if defined(__x86_64__)
  if (vector_unit() == VectorUnit::avx512) return pick_avx512(from, count, bits, to);
#endif
  pick_plain(from, count, bits, to);
}

}  // namespace kov
