#include "algadd/delete_smallest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "lattice/block_points.h"
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
class Sizes {
 public:
  static constexpr std::size_t at_once = 512;

  /// Of the points of a block from first on, at_once or as many as there are.
  std::span<const Size> of(const Block& block, std::size_t first) {
    const auto squares = std::span(squares_).first(std::min(at_once, block.size() - first));
    decode_squares(block, first, squares);
    std::transform(squares.begin(), squares.end(), sizes_.begin(), std::bit_cast<Size, double>);
    return std::span(sizes_).first(squares.size());
  }

 private:
  std::array<double, at_once> squares_;
  std::array<Size, at_once> sizes_;
};

// Feedback of one pass over the row: "n=nlast=5: Sorting entry 10000 of 25000"; without a heading the
// display only breathes.
class Pass {
 public:
  Pass(Progress& progress, std::string heading, std::size_t total)
      : progress_(progress), heading_(std::move(heading)), total_(total) {}

  // So many more points are done.
  void advance(std::size_t points) {
    const std::size_t end = done_ + points;
    while (done_ < end) {
      done_ = std::min({end, next_breath_, next_display_});
      if (done_ == next_breath_) breathe();
      if (done_ == next_display_) display();
    }
  }

 private:
  void breathe() {
    next_breath_ += entries_per_breath;
    progress_.breathe();
  }
  void display() {
    next_display_ += points_per_display;
    if (heading_.empty()) return;
    const auto position = static_cast<std::int64_t>(done_);
    progress_.headline(heading_ + int_text(position) + " of " + int_text(static_cast<std::int64_t>(total_)));
    progress_.at(position);
  }

  Progress& progress_;
  std::string heading_;
  std::size_t total_;
  std::size_t done_ = 0;
  std::size_t next_breath_ = entries_per_breath;
  std::size_t next_display_ = points_per_display;
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

Buckets counted(const Row& row, const Cut& cut, Pass pass) {
  const int shift = std::max(0, static_cast<int>(std::bit_width(cut.high - cut.low)) - bits_per_pass);
  Buckets buckets;
  Sizes sizes;
  for (std::size_t block = 0; block < row.block_count(); ++block) {
    for (std::size_t first = 0; first < row.block(block).size(); first += Sizes::at_once) {
      const std::span<const Size> some = sizes.of(row.block(block), first);
      for (const Size size : some) {
        if (cut.covers(size)) buckets[(size - cut.low) >> shift].add(size);
      }
      pass.advance(some.size());
    }
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

// In key order. What the feedback of a block throws comes before its points are gone.
void erase_smallest(Lmap& lmap, std::int32_t n, Cut cut, Pass pass) {
  Sizes sizes;
  lmap.keep_chosen(n, n, [&](const Row& row, std::size_t index, Lmap::BlockIndices& kept) {
    const Block& block = row.block(index);
    std::size_t count = 0;
    for (std::size_t first = 0; first < block.size(); first += Sizes::at_once) {
      auto point = static_cast<std::uint32_t>(first);
      for (const Size size : sizes.of(block, first)) {
        const bool equal = size == cut.low;
        kept[count] = point++;
        if (size > cut.low || (equal && cut.number == 0)) ++count;
        if (equal && cut.number > 0) --cut.number;
      }
    }
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
  Cut cut = narrowed(counted(row, Cut{}, {progress, heading + ": Sorting entry ", count}), number);
  if (number == 0) return;
  while (!cut.found()) cut = narrowed(counted(row, cut, {progress, {}, count}), cut.number);
  erase_smallest(lmap, nlast, cut, {progress, heading + ": Deleting entry ", number});
}

}  // namespace kov
