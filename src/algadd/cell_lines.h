#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "numbers/vector_dispatch.h"

namespace kov {

/// Cells that are looked at together: a touched cell marks its line.
inline constexpr std::size_t cells_of_line = 16;

/// f(i) for every marks[i] that is 1, ascending; makes it 0. count is a multiple of 8.
template <class Function>
KOV_INLINE inline void for_each_mark(std::uint8_t* marks, std::size_t count, Function&& f) {
  for (std::size_t i = 0; i < count; i += 8) {
    std::uint64_t word = 0;
    std::memcpy(&word, marks + i, sizeof word);
    if (word == 0) continue;
    std::memset(marks + i, 0, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    for (; word != 0; word &= word - 1) f(i + static_cast<std::size_t>(std::countr_zero(word)) / 8);
  }
}

}  // namespace kov
