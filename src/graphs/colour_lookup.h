#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "graphs/colour_scale.h"

namespace kov {

/// The colours of a scale for millions of pixels: the same as ColourScale::color_from_fcl_table gives,
/// without its reports, in a few nanoseconds each instead of a search over the whole table.
class ColourLookup {
 public:
  /// The scale must outlive the lookup.
  explicit ColourLookup(const ColourScale& scale);

  /// The colour of a value that is not NaN, as a pixel of a raster.
  std::uint32_t pixel(double q) const {
    const ColourScale::Thresholds& fclimit = scale_.fclimit();
    if (q >= fclimit.back()) return highest_;
    if (q < fclimit.front()) return lowest_;
    const Bounds bounds = bounds_[bucket(q)];
    std::size_t lo = bounds.lo;
    // Written so that no jump depends on q: a wrong guess would cost more than all of the search.
    for (std::size_t width = bounds.hi - lo; width > 1; width -= width / 2) {
      lo = q < fclimit[lo + width / 2] ? lo : lo + width / 2;
    }
    return packed(scale_.colour_between(lo, q));
  }

 private:
  static constexpr std::size_t bucket_count = 1 << 14;

  /// fclimit[lo] <= q < fclimit[hi] for every q of the bucket.
  struct Bounds {
    std::uint16_t lo;
    std::uint16_t hi;
  };

  static std::uint32_t packed(Colour colour) {
    return 0xff000000U | std::uint32_t{colour.r} << 16 | std::uint32_t{colour.g} << 8 | colour.b;
  }
  /// An integer that is ordered like the value, and whose distances are those of the values within a power
  /// of two. Both zeros have the same one.
  static std::uint64_t ordered_key(double value) {
    constexpr std::uint64_t sign = std::uint64_t{1} << 63;
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0);
    return (bits & sign) != 0 ? ~bits : bits | sign;
  }
  std::size_t bucket(double q) const {
    return static_cast<std::size_t>((ordered_key(q) - first_key_) >> shift_);
  }

  const ColourScale& scale_;
  std::uint32_t lowest_;
  std::uint32_t highest_;
  std::uint64_t first_key_;
  int shift_ = 0;
  std::array<Bounds, bucket_count> bounds_;
};

}  // namespace kov
