#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace kov {

/// One program parameter: its value, inclusive bounds, description, and whether it belongs to the
/// uniform configuration.
struct MMI {
  std::int32_t i = 0;
  std::int32_t min = 0;
  std::int32_t max = 0;
  std::string description;
  bool ucfg = false;
};

/// All parameters by keyword, in the order of the strings' characters.
using Kmap = std::map<std::string, MMI, std::less<>>;
using Kpair = std::pair<const std::string, MMI>;

}  // namespace kov
