#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace kov {

/// Pixel columns of a curve at most.
inline constexpr int G1Chainsize = 5000;
/// Range 1 and Range 2.
inline constexpr std::size_t g1_range_count = 2;

/// The curves of a range, in the order of their check boxes: sums of re q, im q, |q|^2 and |q| over the
/// points of a column, and their number.
enum G1Quantity : std::size_t { g1_qre, g1_qim, g1_qq, g1_qa, g1_cntAt, g1_quantity_count };
inline constexpr std::size_t g1_curve_count = g1_range_count * g1_quantity_count;

/// Which curves are drawn: CB0qre, CB0qim, CB0qq, CB0qa, CB0cntAt, CB1qre, ...
using G1Checks = std::array<bool, g1_curve_count>;

/// One quantity along x, by pixel column.
struct G1Curve {
  std::vector<double> at = std::vector<double>(G1Chainsize);
  /// Over all columns of the image, for the y scale.
  double min = 0;
  double max = 0;
  /// For bars that are to be drawn twice as wide, since they occupy every second x value only: whether these
  /// start at xmin (0) or one unit further (1).
  std::optional<int> double_width_from;

  void clear();
};

/// What was binned of one range.
struct G1Range {
  /// Points of the range.
  std::int64_t count = 0;
  std::array<G1Curve, g1_quantity_count> curve;
  /// The smallest x value of each pixel column that holds a point.
  std::vector<std::optional<std::int32_t>> first_x = std::vector<std::optional<std::int32_t>>(G1Chainsize);

  void clear();
};

/// What the Graph1 page computes. Its 500 KB are allocated once.
struct G1Par {
  std::array<G1Range, g1_range_count> range;
  /// Width and height of the image in pixels; one column is one pixel.
  int hpixcount = 0;
  int vpixcount = 0;
  /// The x interval; empty (xmin > xmax) before a point was seen. Beyond 32 bits once it is widened.
  std::int64_t xmin = std::numeric_limits<std::int32_t>::max();
  std::int64_t xmax = std::numeric_limits<std::int32_t>::min();
  /// Pixels per unit of x.
  double pix_per_icoo = 0;

  /// Counts and curves 0, the x interval empty, the size as it is. Needs no memory.
  void clear();

  std::int64_t xcount() const { return xmax - xmin; }
  void widen_x(std::int32_t x) {
    xmin = std::min<std::int64_t>(xmin, x);
    xmax = std::max<std::int64_t>(xmax, x);
  }
  /// The pixel column of an x value from xmin up to, but without, xmax. Below hpixcount even where the
  /// product is rounded, since xcount() has at most 33 bits.
  std::size_t column_of(std::int64_t x) const {
    return static_cast<std::size_t>(static_cast<double>(x - xmin) * pix_per_icoo);
  }

  const G1Curve& curve(std::size_t index) const {
    return range[index / g1_quantity_count].curve[index % g1_quantity_count];
  }
};

}  // namespace kov
