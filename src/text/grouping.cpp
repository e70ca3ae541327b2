#include "text/grouping.h"

namespace kov {

std::string kilobyte_text(std::uint64_t bytes) {
  std::string digits = std::to_string(bytes / 1000);
  for (std::size_t place = digits.size(); place > 3;) {
    place -= 3;
    digits.insert(place, 1, ' ');
  }
  const std::string thousandths = std::to_string(1000 + bytes % 1000);
  return digits + "." + thousandths.substr(1);
}

}  // namespace kov
