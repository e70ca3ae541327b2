#pragma once

#include <cstddef>
#include <ostream>
#include <span>
#include <string>

namespace kov {

/// A number with so many digits behind the point.
std::string fixed_text(double value, int decimals);

/// A line of a table: the first cell flush left in its column, the others right.
void print_line(std::ostream& out, std::span<const std::size_t> widths, std::span<const std::string> cells);

}  // namespace kov
