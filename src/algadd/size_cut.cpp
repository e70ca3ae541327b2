#include "algadd/size_cut.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "algadd/cell_lines.h"
#include "algadd/point_pass.h"
#include "numbers/vector_dispatch.h"

namespace kov {

namespace {

// Doubles without a sign order like their bits.
using SizeBits = std::uint64_t;
SizeBits bits_of(double size) { return std::bit_cast<SizeBits>(size); }
double size_of(SizeBits bits) { return std::bit_cast<double>(bits); }

/// The sizes that share their leading digits, counted from the low end of an interval.
struct SizeBucket {
  std::size_t count = 0;
  SizeBits low = std::numeric_limits<SizeBits>::max();
  SizeBits high = 0;

  void add(SizeBits bits) {
    ++count;
    low = std::min(low, bits);
    high = std::max(high, bits);
  }
};

/// The sizes of a row as they lie to an interval. Whatever the row's length, these buckets are all it takes:
/// it is needed when memory is short.
class SizeCounts {
 public:
  explicit SizeCounts(const SizeInterval& interval)
      : interval_(interval),
        low_(bits_of(interval.low)),
        shift_(std::max(0, static_cast<int>(std::bit_width(bits_of(interval.high) - low_)) - bits_per_pass)) {
  }

  void add(std::span<const double> sizes) {
    std::array<std::uint8_t, sizes_at_once> inside{};
    std::size_t below = 0;
    run_loop([&]() KOV_INLINE {
      for (std::size_t i = 0; i < sizes.size(); ++i) {
        const int is_below = sizes[i] < interval_.low;
        const int is_above = sizes[i] > interval_.high;
        below += static_cast<std::size_t>(is_below);
        inside[i] = static_cast<std::uint8_t>(1 - is_below - is_above);
      }
    });
    below_ += below;
    for_each_mark(inside.data(), inside.size(), [&](std::size_t i) {
      const SizeBits bits = bits_of(sizes[i]);
      buckets_[(bits - low_) >> shift_].add(bits);
      ++inside_;
    });
  }

  std::size_t below() const { return below_; }
  std::size_t inside() const { return inside_; }
  /// The bucket with the rank-th smallest size of the interval, whose rank becomes that in the bucket:
  /// 1 <= rank <= inside().
  const SizeBucket& bucket_of(std::size_t& rank) const {
    auto bucket = buckets_.begin();
    for (; bucket->count < rank; ++bucket) rank -= bucket->count;
    return *bucket;
  }

 private:
  static constexpr int bits_per_pass = 11;

  SizeInterval interval_;
  SizeBits low_;
  int shift_;
  std::size_t below_ = 0;
  std::size_t inside_ = 0;
  std::array<SizeBucket, std::size_t{1} << bits_per_pass> buckets_;
};

SizeCounts counted(const Row& row, const SizeInterval& interval, PointPass pass) {
  SizeCounts counts(interval);
  for (std::size_t block = 0; block < row.block_count(); ++block) {
    for_each_size(row.block(block), [&](std::size_t, std::span<const double> sizes) {
      counts.add(sizes);
      pass.advance(sizes.size());
    });
  }
  return counts;
}

constexpr std::size_t sample_count = 2048;
using Sample = std::array<double, sample_count>;

// One point out of every piece of the row, at a place in it that does not repeat with the period of the keys.
Sample sample_of(const Row& row) {
  Sample sample;
  const std::size_t piece = row.count() / sample_count;
  std::size_t block = 0;
  std::size_t block_begin = 0;
  for (std::size_t i = 0; i < sample_count; ++i) {
    const std::uint64_t scattered = (i * 0x9E3779B97F4A7C15U) >> 32U;
    const std::size_t point = i * piece + scattered % piece;
    while (point - block_begin >= row.block(block).size()) block_begin += row.block(block++).size();
    decode_squares(row.block(block), point - block_begin, std::span(sample).subspan(i, 1));
  }
  return sample;
}

double nth_of(Sample& sample, double rank) {
  if (rank < 0.0) return 0.0;
  if (rank >= static_cast<double>(sample_count)) return std::numeric_limits<double>::infinity();
  const auto nth = sample.begin() + static_cast<std::ptrdiff_t>(rank);
  std::nth_element(sample.begin(), nth, sample.end());
  return *nth;
}

}  // namespace

SizeInterval likely_interval(const Row& row, std::size_t number) {
  constexpr std::size_t worth_a_sample = 16 * sample_count;
  if (row.count() < worth_a_sample) return {};
  Sample sample = sample_of(row);
  const double share = static_cast<double>(number) / static_cast<double>(row.count());
  const double samples = sample_count;
  // Three standard deviations of the number of samples below the cut.
  const double spread = 1.0 + 3.0 * std::sqrt(samples * share * (1.0 - share));
  return {nth_of(sample, samples * share - spread), nth_of(sample, samples * share + spread)};
}

SizeCut find_cut(const Row& row, std::size_t number, SizeInterval guess, Progress& progress,
                 const std::string& heading) {
  SizeCounts counts = counted(row, guess, {progress, heading, row.count()});
  if (number == 0) return {};
  SizeInterval interval = guess;
  for (;;) {
    if (number <= counts.below()) {
      interval = {0.0, size_of(bits_of(interval.low) - 1)};
    } else if (number > counts.below() + counts.inside()) {
      interval.low = size_of(bits_of(interval.high) + 1);
      interval.high = std::numeric_limits<double>::infinity();
    } else {
      std::size_t rank = number - counts.below();
      const SizeBucket& bucket = counts.bucket_of(rank);
      // A bucket that goes as a whole is cut at its largest size.
      if (bucket.low == bucket.high || bucket.count == rank) return {size_of(bucket.high), rank};
      interval = {size_of(bucket.low), size_of(bucket.high)};
    }
    counts = counted(row, interval, {progress, {}, row.count()});
  }
}

}  // namespace kov
