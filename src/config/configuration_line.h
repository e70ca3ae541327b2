#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/tokens.h"

namespace kov {

/// What a line "keyword i min max ucfg" says of a parameter. Its ucfg is not read: it is there for people.
struct ConfigurationLine {
  std::int32_t i = 0;
  std::int32_t min = 0;
  std::int32_t max = 0;
};

/// Reads what stands behind the keyword. Returns the message, empty on success: a token that is no
/// 32-bit integer, or a value outside the bounds of this very line. The keyword serves the message alone.
std::string parse_configuration_line(std::string_view keyword, Tokens& rest, ConfigurationLine& line);

}  // namespace kov
