#include "algadd/delete_smallest.h"

#include <algorithm>
#include <vector>

#include "text/integers.h"

namespace kov {

namespace {

constexpr std::size_t points_per_display = 10'000;
constexpr std::size_t points_per_breath = 1024;

// Squared moduli compare as the doubles nearest to them: where the comparison of two exact sizes does
// not overflow, they differ by more than the rounding of a double, and everywhere else it compares the
// doubles itself. So a size is kept as a double, and an overflowed one is an infinity, the largest.
double size_of(const cotyp& q) { return to_double(qq(q)); }

// Feedback of one pass over the row: "n=nlast=5: Sorting entry 10000 of 25000".
class Pass {
 public:
  Pass(Progress& progress, std::string heading, std::size_t total)
      : progress_(progress), heading_(std::move(heading)), total_(total) {}

  void done(std::size_t k) {
    if (k % points_per_breath == 0) progress_.breathe();
    if (k % points_per_display != 0) return;
    const auto position = static_cast<std::int64_t>(k);
    progress_.headline(heading_ + int_text(position) + " of " + int_text(static_cast<std::int64_t>(total_)));
    progress_.at(position);
  }

 private:
  Progress& progress_;
  std::string heading_;
  std::size_t total_;
};

// Which points go: every one below the bound, and of those that equal it the first so many.
struct Cut {
  double bound = 0;
  std::size_t of_equal = 0;
};

std::vector<double> sizes_from(const Lmap& lmap, Lmap::Cursor point, std::size_t count, Pass pass) {
  std::vector<double> sizes;
  sizes.reserve(count);
  for (; point != lmap.end(); ++point) {
    sizes.push_back(size_of(point.quantity()));
    pass.done(sizes.size());
  }
  return sizes;
}

// The cut that takes the given number (1 ... size) of smallest sizes.
Cut cut_of(std::vector<double> sizes, std::size_t number) {
  const auto last = sizes.begin() + static_cast<std::ptrdiff_t>(number) - 1;
  std::nth_element(sizes.begin(), last, sizes.end());
  const double bound = *last;
  const auto below = std::count_if(sizes.begin(), last, [bound](double size) { return size < bound; });
  return {bound, number - static_cast<std::size_t>(below)};
}

// The walk is in key order, so of equal sizes the smaller keys go first.
void erase_below(Lmap& lmap, Lmap::Cursor point, Cut cut, std::size_t number, Pass pass) {
  for (std::size_t deleted = 0; deleted < number;) {
    const double size = size_of(point.quantity());
    const bool goes = size < cut.bound || (size == cut.bound && cut.of_equal > 0);
    if (!goes) {
      ++point;
      continue;
    }
    if (size == cut.bound) --cut.of_equal;
    point = lmap.erase(point);
    pass.done(++deleted);
  }
}

}  // namespace

void delete_smallest_of_nlast(Lmap& lmap, std::int32_t percent, Progress& progress) {
  if (lmap.empty()) return;
  const std::int32_t nlast = lmap.nlast();
  const std::size_t count = lmap.count_in_rows(nlast, nlast);
  const ProgressBox box(progress, 0, static_cast<std::int64_t>(count));

  const std::string heading = "n=nlast=" + int_text(nlast);
  std::vector<double> sizes =
      sizes_from(lmap, lmap.row_begin(nlast), count, {progress, heading + ": Sorting entry ", count});
  const auto points_times_percent = static_cast<double>(count * static_cast<std::size_t>(percent));
  const auto number = static_cast<std::size_t>(points_times_percent * 0.01);
  if (number == 0) return;
  const Cut cut = cut_of(std::move(sizes), number);
  erase_below(lmap, lmap.row_begin(nlast), cut, number, {progress, heading + ": Deleting entry ", number});
}

}  // namespace kov
