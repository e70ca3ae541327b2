#pragma once

#include <cstdint>

namespace kov {

/// What a value axis shows.
struct ValueInterval {
  double min = 0;
  double max = 1;

  /// The one that holds both.
  ValueInterval joined(const ValueInterval& other) const;

  /// Wider by this percentage of its length at either end, so that nothing touches the frame; a single
  /// value gets room around it. Both ends stay finite.
  ValueInterval zoomed(std::int32_t percent) const;

  /// Where a value lies: 0 at min, 1 at max. For intervals that are not empty, up to those that are longer
  /// than the largest double.
  double place_of(double value) const;

  friend bool operator==(const ValueInterval&, const ValueInterval&) = default;
};

}  // namespace kov
