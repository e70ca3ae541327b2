#include "graphs/map_raster.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

/// Rows of the grid, as its columns hold them: values that lie side by side in a row are far apart in
/// memory, so rows are fetched as many at a time as a cache line of a column holds.
class RowsOfGrid {
 public:
  RowsOfGrid(const ValueGrid& grid, const std::vector<Box>& columns)
      : grid_(grid), columns_(columns), values_(columns.size() * fetched) {}

  /// The value in a row of each of the columns.
  const double* row(int row) {
    if (row < first_ || row >= first_ + fetched) fetch(row / fetched * fetched);
    return values_.data() + static_cast<std::size_t>(row - first_) * columns_.size();
  }

 private:
  static constexpr int fetched = 8;

  void fetch(int first) {
    first_ = first;
    const int count = std::min(fetched, grid_.height() - first);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const auto column = grid_.column(columns_[i].index).subspan(static_cast<std::size_t>(first));
      for (int row = 0; row < count; ++row) {
        const auto offset = static_cast<std::size_t>(row);
        values_[offset * columns_.size() + i] = column[offset];
      }
    }
  }

  const ValueGrid& grid_;
  const std::vector<Box>& columns_;
  std::vector<double> values_;
  int first_ = -fetched;
};

/// "Plotting line 30 of 700", every so many lines.
class LineProgress {
 public:
  LineProgress(Progress& progress, int count, std::int64_t lines_per_display)
      : progress_(progress),
        box_(progress, 0, count),
        count_(count),
        step_(std::max<std::int64_t>(lines_per_display, 1)) {}

  /// These many lines are plotted. False when Break was pressed.
  bool reached(int lines) {
    for (; shown_ + step_ <= lines; shown_ += step_) {
      progress_.headline("Plotting line " + int_text(shown_ + step_) + " of " + int_text(count_));
      box_.at(shown_ + step_);
      if (progress_.break_requested()) return false;
    }
    return true;
  }

 private:
  Progress& progress_;
  ProgressBox box_;
  int count_;
  std::int64_t step_;
  std::int64_t shown_ = 0;
};

/// Paints one line of the image.
void paint_line(std::uint32_t* line, const double* values, const std::vector<Box>& columns,
                const ColourLookup& colours) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!ValueGrid::is_value(values[i])) continue;
    const PixelSpan pixels = columns[i].pixels;
    std::fill(line + pixels.begin, line + pixels.end, colours.pixel(values[i]));
  }
}

}  // namespace

std::optional<Raster> map_raster(const ValueMap& map, const ColourScale& scale, bool double_width_wanted,
                                 std::int64_t lines_per_display, Progress& progress) {
  const int width = map.grid.width();
  const int height = map.grid.height();
  Raster raster{.width = width, .height = height, .pixels = {}};
  raster.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                       raster_pixel(map_background));
  LineProgress lines(progress, height, lines_per_display);
  const ColourLookup colours(scale);
  const std::vector<Box> columns = column_boxes(map, double_width_wanted);
  RowsOfGrid rows(map.grid, columns);
  const auto line_at = [&](int line) {
    return raster.pixels.data() + static_cast<std::ptrdiff_t>(height - 1 - line) * width;
  };
  for (const Box& row : row_boxes(map)) {
    std::uint32_t* const first = line_at(row.pixels.begin);
    paint_line(first, rows.row(row.index), columns, colours);
    for (int line = row.pixels.begin + 1; line < row.pixels.end; ++line) {
      std::copy(first, first + width, line_at(line));
    }
    if (!lines.reached(row.pixels.end)) return std::nullopt;
  }
  if (!lines.reached(height)) return std::nullopt;
  return raster;
}

}  // namespace kov
