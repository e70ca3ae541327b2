#pragma once

#include <cstdint>

namespace kov {

/// The values that one coordinate of an initial area takes: -range, -range + step, ... up to range at most,
/// by their index 0, 1, ... In 64 bits, since the last step may lead beyond a coordinate's 32.
class AreaAxis {
 public:
  /// step is at least 1; a negative range gives no values. At most 2^32 - 1 of them.
  AreaAxis(std::int64_t range, std::int64_t step)
      : range_(range), step_(step), count_(range < 0 ? 0 : 2 * range / step + 1) {}

  std::int64_t count() const { return count_; }
  std::int64_t value(std::int64_t index) const { return index * step_ - range_; }

  /// The index of the value nearest to zero (of two, the negative one); only when there are values.
  std::int64_t middle() const {
    const std::int64_t below = range_ / step_;
    const bool next_is_nearer = below + 1 < count_ && value(below + 1) < -value(below);
    return next_is_nearer ? below + 1 : below;
  }

 private:
  std::int64_t range_;
  std::int64_t step_;
  std::int64_t count_;
};

/// Indices of an axis from begin up to, not including, end.
struct AreaSpan {
  std::int64_t begin = 0;
  std::int64_t end = 0;
};

/// The indices whose values v fulfil inside(v), for a condition that with v also every value nearer to zero
/// fulfils. O(log count).
template <class Condition>
AreaSpan span_around_zero(const AreaAxis& axis, const Condition& inside) {
  if (axis.count() == 0 || !inside(axis.value(axis.middle()))) return {};
  const auto last_inside = [&](std::int64_t in, std::int64_t out) {
    // in is inside, out is not, or is off the axis.
    while (out - in > 1 || in - out > 1) {
      const std::int64_t between = in + (out - in) / 2;
      (inside(axis.value(between)) ? in : out) = between;
    }
    return in;
  };
  return {last_inside(axis.middle(), -1), last_inside(axis.middle(), axis.count()) + 1};
}

}  // namespace kov
