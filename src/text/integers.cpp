#include "text/integers.h"

#include <charconv>

namespace kov {

std::optional<std::int32_t> parse_int32(std::string_view text) {
  // from_chars knows no plus sign, and behind one it would take a minus sign.
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int32_t value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end) return std::nullopt;
  return value;
}

std::string int_text(std::int64_t value) {
  char digits[24];
  const auto result = std::to_chars(digits, digits + sizeof digits, value);
  return std::string(digits, result.ptr);
}

}  // namespace kov
