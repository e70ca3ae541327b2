#pragma once

#include <string_view>

#include "config/cphclass.h"
#include "interact/messages.h"

namespace kov {

/// What becomes of points that meet in one pixel.
inline constexpr std::string_view one_sum_per_pixel = "\nNot all, only one sum per pixel can be displayed.\n";

/// A usual warning, while Graph_BeepMsgIfTooLessPixel is set, when a graph has less than one pixel for a unit
/// of its axis. axis is "x in Graph 1" or the like, consequence the text behind.
void warn_of_too_few_pixels(std::string_view axis, double pix_per_icoo, std::string_view consequence,
                            const cphclass& cph, Messages& messages);

}  // namespace kov
