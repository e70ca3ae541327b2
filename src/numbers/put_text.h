#pragma once

#include <cstddef>
#include <cstdint>

#include "numbers/cotyp.h"

namespace kov {

// Texts written to where they belong, without a string between. Each function puts the text at `at`, where
// there is room for the longest one, and gives its end; what is behind it, as far as there is room, may
// change.

inline constexpr std::size_t longest_int32_text = 16;
inline constexpr std::size_t longest_part_text = 40;
inline constexpr std::size_t longest_quantity_text = 2 * longest_part_text + 2;

/// In decimal.
char* put_int32(char* at, std::int32_t value);
/// floating_text(value, 15)
char* put_floating(char* at, double value);
/// to_text of a part and of a quantity.
char* put_text(char* at, const ratyp& part);
char* put_text(char* at, const cotyp& q);

}  // namespace kov
