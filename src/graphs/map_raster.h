#pragma once

#include <cstdint>
#include <optional>

#include "graphs/colour_lookup.h"
#include "graphs/map_boxes.h"
#include "interact/progress.h"
#include "pictures/picture.h"

namespace kov {

/// Behind a map: no ramp has it, so the largest values, which are white, differ from places without points;
/// dark enough for them to stand out.
inline constexpr Colour map_background{178, 200, 232};

/// Paints a map: each value a rectangle of its coordinates' size in its colour of the scale, onto the
/// background. y_min is at the lower edge. "Plotting line " + i + " of " + n is shown, and Break
/// asked for, after every lines_per_display-th line (at least 1); nothing is given when it was pressed. A map
/// of 6 million values takes some 50 milliseconds.
std::optional<Raster> map_raster(const ValueMap& map, const ColourScale& scale, bool double_width_wanted,
                                 std::int64_t lines_per_display, Progress& progress);

}  // namespace kov
