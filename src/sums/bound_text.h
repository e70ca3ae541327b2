#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kov {

/// A bound as the range table's grid shows it: "+" for the highest 32-bit integer, which stands for
/// plus infinity, "-" for the lowest, any other value in decimal.
std::string bound_text(std::int32_t bound);

/// Reads what bound_text writes; any decimal 32-bit integer is taken, blanks around it do not count.
/// Nothing for any other text.
std::optional<std::int32_t> parse_bound(std::string_view text);

}  // namespace kov
