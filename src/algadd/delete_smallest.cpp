#include "algadd/delete_smallest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "text/integers.h"

namespace kov {

namespace {

constexpr std::size_t points_per_display = 10'000;
constexpr std::size_t entries_per_breath = 1024;

/// The size of a point, its squared modulus, as a number that orders alike.
using Size = std::uint64_t;

// Squared moduli compare as the doubles nearest to them: where the comparison of two exact sizes does
// not overflow, they differ by more than the rounding of a double, and everywhere else it compares the
// doubles itself. A sum of two squares of finite numbers is no NaN and no -0.0, at most an infinity, the
// largest; and doubles without a sign order like their bits.
Size size_of(const cotyp& q) { return std::bit_cast<Size>(to_double(qq(q))); }

// Feedback of one pass over the row: "n=nlast=5: Sorting entry 10000 of 25000"; without a heading the
// display only breathes.
class Pass {
 public:
  Pass(Progress& progress, std::string heading, std::size_t total)
      : progress_(progress), heading_(std::move(heading)), total_(total) {}

  void done(std::size_t k) const {
    if (k % entries_per_breath == 0) progress_.breathe();
    if (heading_.empty() || k % points_per_display != 0) return;
    const auto position = static_cast<std::int64_t>(k);
    progress_.headline(heading_ + int_text(position) + " of " + int_text(static_cast<std::int64_t>(total_)));
    progress_.at(position);
  }

 private:
  Progress& progress_;
  std::string heading_;
  std::size_t total_;
};

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

// Which points go: all with a size below low, and the given number of smallest ones of those with
// low <= size <= high. The cut is found when low is high: of equal sizes the smaller keys go first.
struct Cut {
  Size low = 0;
  Size high = std::numeric_limits<Size>::max();
  std::size_t number = 0;

  bool found() const { return low == high; }
  bool covers(Size size) const { return low <= size && size <= high; }
};

// The sizes that share their leading digits, as far as the cut has come.
struct Bucket {
  std::size_t count = 0;
  Size low = std::numeric_limits<Size>::max();
  Size high = 0;

  void add(Size size) {
    ++count;
    low = std::min(low, size);
    high = std::max(high, size);
  }
};

// Whatever the row's length, a pass needs these buckets only: it runs when memory is short.
constexpr int bits_per_pass = 11;
using Buckets = std::array<Bucket, std::size_t{1} << bits_per_pass>;

Buckets counted(const Lmap& lmap, std::int32_t row, const Cut& cut, const Pass& pass) {
  const int shift = std::max(0, static_cast<int>(std::bit_width(cut.high - cut.low)) - bits_per_pass);
  Buckets buckets;
  std::size_t k = 0;
  for (Lmap::Cursor point = lmap.row_begin(row); point != lmap.end(); ++point) {
    const Size size = size_of(point.quantity());
    if (cut.covers(size)) buckets[(size - cut.low) >> shift].add(size);
    pass.done(++k);
  }
  return buckets;
}

// Goes on in the bucket that holds the cut; its extreme sizes bound the next pass. A bucket that goes as a
// whole needs none: the cut is its largest size.
Cut narrowed(const Buckets& buckets, std::size_t number) {
  auto bucket = buckets.begin();
  for (; bucket->count < number; ++bucket) number -= bucket->count;
  if (bucket->count == number) return {bucket->high, bucket->high, number};
  return {bucket->low, bucket->high, number};
}

// The walk is in key order.
void erase_smallest(Lmap& lmap, std::int32_t row, Cut cut, std::size_t number, const Pass& pass) {
  Lmap::Cursor point = lmap.row_begin(row);
  for (std::size_t deleted = 0; deleted < number;) {
    const Size size = size_of(point.quantity());
    const bool equal = size == cut.low;
    if (size > cut.low || (equal && cut.number == 0)) {
      ++point;
      continue;
    }
    if (equal) --cut.number;
    point = lmap.erase(point);
    pass.done(++deleted);
  }
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
  const std::size_t count = lmap.count_in_rows(nlast, nlast);
  const GreyBox box(progress, static_cast<std::int64_t>(count));

  const std::string heading = "n=nlast=" + int_text(nlast);
  const std::size_t number = part_of(count, percent);
  Cut cut = narrowed(counted(lmap, nlast, Cut{}, {progress, heading + ": Sorting entry ", count}), number);
  if (number == 0) return;
  while (!cut.found()) cut = narrowed(counted(lmap, nlast, cut, {progress, {}, count}), cut.number);
  erase_smallest(lmap, nlast, cut, number, {progress, heading + ": Deleting entry ", number});
}

}  // namespace kov
