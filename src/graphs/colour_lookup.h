#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "graphs/colour_scale.h"

namespace kov {

/// A colour as a pixel of a raster.
inline std::uint32_t raster_pixel(Colour colour) {
  return 0xff000000U | std::uint32_t{colour.r} << 16U | std::uint32_t{colour.g} << 8U | colour.b;
}

/// The colours of a scale for millions of pixels: the same as ColourScale::color_from_fcl_table gives,
/// without its reports, in a few nanoseconds each.
///
/// A scale has fewer than a thousand colours, and they follow each other as the value rises. So all there is
/// to know of it are the values from which on each colour holds, found once.
class ColourLookup {
 public:
  /// Costs about a millisecond.
  explicit ColourLookup(const ColourScale& scale);

  /// The colour of a value that is not NaN, as a pixel of a raster.
  std::uint32_t pixel(double q) const {
    std::size_t place = 0;
    // Always the same number of steps and no jump that depends on q: a wrong guess would cost more than all
    // of the search.
    for (std::size_t half = size / 2; half > 0; half /= 2) place += q >= from_[place + half] ? half : 0;
    return colour_[place];
  }

 private:
  static constexpr std::size_t size = 1024;

  /// From here on this colour holds.
  void append(double from, std::uint32_t colour);

  std::size_t count_ = 0;
  /// Ascending; behind the last colour no value is large enough.
  std::array<double, size> from_;
  std::array<std::uint32_t, size> colour_{};
};

}  // namespace kov
