#include "sums/bound_text.h"

#include "text/integers.h"
#include "text/tokens.h"

namespace kov {

std::string bound_text(std::int32_t bound) {
  if (bound == highest_int) return "+";
  if (bound == lowest_int) return "-";
  return int_text(bound);
}

std::optional<std::int32_t> parse_bound(std::string_view text) {
  const std::string_view bare = trimmed(text);
  if (bare == "+") return highest_int;
  if (bare == "-") return lowest_int;
  return parse_int32(bare);
}

}  // namespace kov
