#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kov {

/// The sentinels that stand for minus and plus infinity wherever a bound is meant.
inline constexpr std::int32_t lowest_int = INT32_MIN;
inline constexpr std::int32_t highest_int = INT32_MAX;

/// Reads a whole text as a decimal 32-bit integer: an optional sign ("+" or "-") and digits, nothing
/// else, no blanks. Nothing when the text is anything else or the value does not fit in 32 bits.
/// Independent of the locale.
std::optional<std::int32_t> parse_int32(std::string_view text);

/// The decimal text of an integer, independent of the locale.
std::string int_text(std::int64_t value);

}  // namespace kov
