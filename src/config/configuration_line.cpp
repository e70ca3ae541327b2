#include "config/configuration_line.h"

#include "text/integers.h"

namespace kov {

std::string parse_configuration_line(std::string_view keyword, Tokens& rest, ConfigurationLine& line) {
  const std::string name(keyword);
  const auto take = [&rest](std::int32_t& field) {
    const auto value = parse_int32(rest.next());
    field = value.value_or(field);
    return value.has_value();
  };
  if (!take(line.i)) return name + ": i is no int";
  if (!take(line.min)) return name + ": min is no int";
  if (!take(line.max)) return name + ": max is no int";

  const std::string value = name + " i = " + int_text(line.i);
  if (line.i < line.min) return value + " < " + int_text(line.min) + " = min";
  if (line.i > line.max) return value + " > " + int_text(line.max) + " = max";
  return {};
}

}  // namespace kov
