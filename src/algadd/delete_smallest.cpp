#include "algadd/delete_smallest.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "algadd/point_pass.h"
#include "algadd/size_cut.h"
#include "text/integers.h"

namespace kov {

namespace {

// The panel is grey before the box opens, and has its own colour before the box closes.
class GreyBox {
 public:
  GreyBox(Progress& progress, std::int64_t points)
      : grey_(std::in_place, progress), box_(progress, 0, points) {}
  ~GreyBox() { grey_.reset(); }
  GreyBox(const GreyBox&) = delete;
  GreyBox& operator=(const GreyBox&) = delete;

 private:
  std::optional<GreyPanel> grey_;
  ProgressBox box_;
};

// The indices of the points that stay, behind the first count of kept; gives their number. Takes away from
// cut.equal those of equal size that go.
std::size_t keep_larger(std::span<const double> sizes, std::size_t first, SizeCut& cut,
                        Lmap::BlockIndices& kept, std::size_t count) {
  auto point = static_cast<std::uint32_t>(first);
  if (cut.equal == 0) {
    for (const double size : sizes) {
      kept[count] = point++;
      count += static_cast<std::size_t>(size >= cut.size);
    }
    return count;
  }
  std::size_t equal_left = cut.equal;
  for (const double size : sizes) {
    const auto goes_as_equal =
        static_cast<std::size_t>(size == cut.size) & static_cast<std::size_t>(equal_left != 0);
    kept[count] = point++;
    count += static_cast<std::size_t>(size >= cut.size) - goes_as_equal;
    equal_left -= goes_as_equal;
  }
  cut.equal = equal_left;
  return count;
}

// In key order. What the feedback of a block throws comes before its points are gone.
void erase_smallest(Lmap& lmap, std::int32_t n, SizeCut cut, PointPass pass) {
  lmap.keep_chosen(n, n, [&](const Row& row, std::size_t index, Lmap::BlockIndices& kept) {
    const Block& block = row.block(index);
    std::size_t count = 0;
    for_each_size(block, [&](std::size_t first, std::span<const double> sizes) {
      count = keep_larger(sizes, first, cut, kept, count);
    });
    pass.advance(block.size() - count);
    return count;
  });
}

// A line of a data file may widen the range of the percentage.
std::size_t part_of(std::size_t count, std::int32_t percent) {
  const auto points_times_percent = static_cast<double>(count) * std::clamp(percent, 0, 100);
  return static_cast<std::size_t>(points_times_percent * 0.01);
}

}  // namespace

void delete_smallest_of_nlast(Lmap& lmap, std::int32_t percent, Progress& progress) {
  if (lmap.empty()) return;
  const std::int32_t nlast = lmap.nlast();
  const std::size_t count = lmap.row(nlast)->count();
  const GreyBox box(progress, static_cast<std::int64_t>(count));

  const std::string heading = "n=nlast=" + int_text(nlast);
  const std::size_t number = part_of(count, percent);
  const Row& row = *lmap.row(nlast);
  const SizeCut cut =
      find_cut(row, number, likely_interval(row, number), progress, heading + ": Sorting entry ");
  if (number == 0) return;
  erase_smallest(lmap, nlast, cut, {progress, heading + ": Deleting entry ", number});
}

}  // namespace kov
