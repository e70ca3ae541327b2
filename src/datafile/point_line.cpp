#include "datafile/point_line.h"

#include <cstddef>
#include <cstdint>

#include "numbers/scan_quantity.h"
#include "text/tokens.h"
#include "text/word_scanner.h"

namespace kov {

namespace {

constexpr bool is_blank(char c) { return c == ' ' || c == '\t'; }

/// The end of the integer at the front of text, or null when no integer of 32 bits stands there as a
/// whole token. Takes what parse_int32 takes.
const char* scan_integer(const char* at, const char* end, std::int32_t& value) {
  const bool negative = at != end && *at == '-';
  if (at != end && (*at == '-' || *at == '+')) ++at;
  const std::int64_t limit = negative ? -static_cast<std::int64_t>(INT32_MIN) : INT32_MAX;
  const char* const digits = at;
  std::int64_t magnitude = 0;
  for (; at != end && *at >= '0' && *at <= '9'; ++at) {
    magnitude = 10 * magnitude + (*at - '0');
    if (magnitude > limit) return nullptr;
  }
  if (at == digits || (at != end && !is_blank(*at))) return nullptr;
  value = static_cast<std::int32_t>(negative ? -magnitude : magnitude);
  return at;
}

/// A blank and an integer of up to seven digits.
bool scan_written_integer(WordScanner& text, std::int32_t& value) {
  if (!text.take(' ')) return false;
  const bool negative = text.take('-');
  const std::uint64_t word = text.word();
  const std::size_t count = WordScanner::digit_count(word);
  if (count - 1 >= 7) return false;
  text.skip(count);
  const auto magnitude = static_cast<std::int32_t>(WordScanner::digits_value(word, count));
  value = negative ? -magnitude : magnitude;
  return true;
}

/// The coordinates 0 ... 30. Mostly many of them are 0: four at a time.
bool scan_written_coordinates(WordScanner& text, Lk& key) {
  constexpr std::uint64_t four_zeros = 0x3020302030203020;  // " 0 0 0 0"
  for (std::size_t i = 0; i < l_position;) {
    if (i + 4 <= l_position && text.word() == four_zeros) {
      text.skip(8);
      for (std::size_t end = i + 4; i < end; ++i) key.coo[i] = 0;
    } else {
      if (!scan_written_integer(text, key.coo[i])) return false;
      ++i;
    }
  }
  return true;
}

}  // namespace

bool scan_written_point(std::string_view text, Lk& key, cotyp& quantity) {
  WordScanner at(text);
  return scan_written_integer(at, key.coo[l_position]) && scan_written_coordinates(at, key) && at.take(' ') &&
         scan_quantity(at, quantity) && !is_zero(quantity);
}

PointFields scan_point_fields(std::string_view text) {
  PointFields fields;
  const char* at = text.data();
  const char* const end = at + text.size();
  for (const int position : listed_positions) {
    while (at != end && is_blank(*at)) ++at;
    at = scan_integer(at, end, fields.key.coo[static_cast<std::size_t>(position)]);
    if (at == nullptr) return fields;
    ++fields.count;
  }
  Tokens behind(text.substr(static_cast<std::size_t>(at - text.data())));
  fields.quantity = behind.next();
  fields.rest = behind.rest();
  if (!fields.quantity.empty()) ++fields.count;
  return fields;
}

}  // namespace kov
