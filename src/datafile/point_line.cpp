#include "datafile/point_line.h"

#include <cstdint>

#include "text/tokens.h"

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

}  // namespace

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
