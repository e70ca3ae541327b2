#include "bench/table_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kov {

std::string fixed_text(double value, int decimals) {
  std::array<char, 400> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals);
  return {digits.data(), end.ptr};
}

void print_line(std::ostream& out, std::span<const std::size_t> widths, std::span<const std::string> cells) {
  std::string line = cells[0];
  line.resize(std::max(line.size(), widths[0]), ' ');
  for (std::size_t column = 1; column < cells.size(); ++column) {
    const std::size_t blanks = widths[column] - std::min(widths[column], cells[column].size());
    line += std::string(blanks, ' ') + cells[column];
  }
  line.erase(line.find_last_not_of(' ') + 1);
  out << line << '\n';
}

}  // namespace kov
