#pragma once

#include <string_view>

#include "datafile/line_text.h"
#include "lattice/row.h"

namespace kov {

/// Puts the lines of the points of a row's block into out, each with the key of such lines in front.
void put_point_lines(LineText& out, std::string_view key, const Row& row, const Block& block);

}  // namespace kov
