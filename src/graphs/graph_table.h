#pragma once

#include <string>
#include <vector>

namespace kov {

/// The numbers behind a picture, as a table that other programs read: a column along x, then one for each
/// curve.
struct GraphTable {
  std::vector<std::string> heading;
  /// Each as long as the heading.
  std::vector<std::vector<double>> rows;
};

/// The table as comma-separated values, lines ending with CR LF. Numbers have a point and read back as the
/// very same values; a name that holds a comma, a quotation mark or a line end is quoted.
std::string csv_text(const GraphTable& table);

}  // namespace kov
