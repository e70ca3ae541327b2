#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "datafile/text_buffer.h"
#include "lattice/row.h"

namespace kov {

/// Called after each point with the number of points written so far; false ends the writing.
using AfterPoint = std::function<bool(std::int64_t points)>;

/// Puts the lines of a row's points into out, each with the key of such lines in front; `points` counts them.
/// False when after_point ended it.
bool put_point_lines(TextBuffer& out, std::string_view key, const Row& row, std::int64_t& points,
                     const AfterPoint& after_point);

}  // namespace kov
