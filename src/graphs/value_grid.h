#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <span>

namespace kov {

inline constexpr int max_hpixcount = 3000;
inline constexpr int max_vpixcount = 2000;

/// The values of the pixels of a colour map, column by column; a pixel into which no point was summed has
/// none. All 48 million bytes are asked for at once, as a map of the largest size needs them, but the system
/// hands out only what is used.
class ValueGrid {
 public:
  static constexpr double no_value = std::numeric_limits<double>::quiet_NaN();
  static bool is_value(double value) { return !std::isnan(value); }

  /// Throws std::bad_alloc.
  ValueGrid() : values_(std::make_unique_for_overwrite<double[]>(size)) {}

  /// Empties width columns of height pixels, 0 ... 3000 and 0 ... 2000; only these may be used.
  void clear(int width, int height) {
    width_ = width;
    height_ = height;
    for (int column = 0; column < width; ++column) {
      double* const begin = at(column, 0);
      std::fill(begin, begin + height, no_value);
    }
  }
  int width() const { return width_; }
  int height() const { return height_; }

  /// Adds to the value of a pixel, the first value to 0, and gives the sum. What is not finite must not stay
  /// there.
  double add(int column, int row, double value) {
    double& pixel = *at(column, row);
    return pixel = (is_value(pixel) ? pixel : 0.0) + value;
  }
  double value(int column, int row) const { return *at(column, row); }
  /// The pixels of a column, from row 0 on.
  std::span<double> column(int column) { return {at(column, 0), static_cast<std::size_t>(height_)}; }
  std::span<const double> column(int column) const {
    return {at(column, 0), static_cast<std::size_t>(height_)};
  }

 private:
  static constexpr std::size_t size = std::size_t{max_hpixcount} * max_vpixcount;

  double* at(int column, int row) const {
    return values_.get() + static_cast<std::size_t>(column) * max_vpixcount + static_cast<std::size_t>(row);
  }

  std::unique_ptr<double[]> values_;
  int width_ = 0;
  int height_ = 0;
};

}  // namespace kov
