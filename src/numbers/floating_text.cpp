#include "numbers/floating_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace kov {

namespace {

static_assert(std::numeric_limits<double>::is_iec559, "the limits of the texts are those of binary64");

/// Rewrites the exponent of the standard conversion, "1e+20" or "1.5e-05", as "1E20" or "1.5E-5".
std::string with_bare_exponent(std::string_view text) {
  const auto e = text.find('e');
  if (e == std::string_view::npos) return std::string(text);
  std::string result(text.substr(0, e));
  result += 'E';
  if (text[e + 1] == '-') result += '-';
  result += text.substr(std::min(text.find_first_not_of('0', e + 2), text.size() - 1));
  return result;
}

/// The largest double with its decimal digits cut off, not rounded: every value that rounds beyond it
/// starts with these digits.
std::string largest_text(bool negative, int digits) {
  constexpr std::string_view all_digits = "1.7976931348623157";
  const auto length = digits == 1 ? std::size_t{1} : static_cast<std::size_t>(digits) + 1;
  std::string text(negative ? "-" : "");
  text += all_digits.substr(0, length);
  text += "E308";
  return text;
}

/// The exponent behind the "E", clipped to what no number of digits in memory makes up for.
std::int64_t exponent_value(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  constexpr std::int64_t clip = std::numeric_limits<std::int64_t>::max() / 4;
  std::int64_t value = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) return text.starts_with('-') ? -clip : clip;
  return std::clamp(value, -clip, clip);
}

/// For a well-formed text whose value is not zero and beyond the doubles at one end or the other: is
/// it below the smallest?
bool is_underflow(std::string_view text) {
  const auto e = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, e);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto leading = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
  const std::int64_t exponent = e < text.size() ? exponent_value(text.substr(e + 1)) : 0;
  return point - leading + exponent < 0;
}

bool is_digit(char c) { return '0' <= c && c <= '9'; }

}  // namespace

std::string floating_text(double value, int digits) {
  if (value == 0.0) return "0";  // a negative zero would be written "-0"
  digits = std::clamp(digits, 1, 17);
  char buffer[32];
  const auto written =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
  std::string text = with_bare_exponent({buffer, written.ptr});
  // Only above this can rounding to few digits leave the range of the doubles.
  if (std::isfinite(value) && std::abs(value) > 1E308 && !parse_floating(text)) {
    return largest_text(value < 0, digits);
  }
  return text;
}

std::string exact_text(double value) {
  constexpr int always_exact = 17;
  for (int digits = 15; digits < always_exact; ++digits) {
    std::string text = floating_text(value, digits);
    if (parse_floating(text) == value) return text;
  }
  return floating_text(value, always_exact);
}

std::optional<double> parse_floating(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  // from_chars would take the words inf and nan.
  const std::string_view unsigned_text = text.substr(text.starts_with('-') ? 1 : 0);
  if (unsigned_text.empty() || !(is_digit(unsigned_text.front()) || unsigned_text.front() == '.')) {
    return std::nullopt;
  }
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::invalid_argument || stop != end) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    return is_underflow(text) ? std::optional(0.0) : std::nullopt;
  }
  return value;
}

}  // namespace kov
