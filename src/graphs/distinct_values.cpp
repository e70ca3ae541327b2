#include "graphs/distinct_values.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include "graphs/double_order.h"

namespace kov {
namespace {

using Keys = std::span<std::uint64_t>;

/// Sorts integers digit by digit, from the lowest digit up to the highest one that tells any of them apart.
/// Only so many of the leading digits are sorted by; integers that are alike there are few, and are sorted
/// afterwards.
class DigitSort {
 public:
  explicit DigitSort(std::size_t count) : scratch_(count) {}

  void sort(Keys keys) { sort(keys, Keys(scratch_).first(keys.size())); }

 private:
  static constexpr unsigned digit_bits = 11;
  static constexpr unsigned digit_count = 4;
  static constexpr std::size_t digit_values = std::size_t{1} << digit_bits;
  /// Below this, counting digits costs more than comparing.
  static constexpr std::size_t few = 2000;

  using Counts = std::array<std::size_t, digit_values>;

  /// What the digits of some keys are: counted from the lowest key, without the bits behind the last digit.
  struct Digits {
    std::uint64_t lowest;
    unsigned dropped_bits;

    std::uint64_t leading(std::uint64_t key) const { return (key - lowest) >> dropped_bits; }
    std::size_t digit(std::uint64_t key, unsigned place) const {
      return static_cast<std::size_t>(leading(key) >> (place * digit_bits)) % digit_values;
    }
  };

  static void sort(Keys keys, Keys scratch) {
    if (keys.size() < few) return std::sort(keys.begin(), keys.end());
    const auto [lowest, highest] = std::minmax_element(keys.begin(), keys.end());
    const auto bits = static_cast<unsigned>(std::bit_width(*highest - *lowest));
    const Digits digits{*lowest, bits - std::min(bits, digit_bits * digit_count)};
    sort_by(digits, keys, scratch);
    if (digits.dropped_bits > 0) sort_alike(digits, keys, scratch);
  }

  static void sort_by(const Digits& digits, Keys keys, Keys scratch) {
    std::array<Counts, digit_count> counts{};
    for (const std::uint64_t key : keys) {
      for (unsigned place = 0; place < digit_count; ++place) ++counts[place][digits.digit(key, place)];
    }
    Keys from = keys;
    Keys to = scratch;
    for (unsigned place = 0; place < digit_count; ++place) {
      // All have the same digit there.
      if (counts[place][digits.digit(from.front(), place)] == from.size()) continue;
      move_by(digits, place, counts[place], from, to);
      std::swap(from, to);
    }
    if (from.data() != keys.data()) std::copy(from.begin(), from.end(), keys.begin());
  }

  static void move_by(const Digits& digits, unsigned place, Counts& counts, Keys from, Keys to) {
    std::size_t begin = 0;
    for (std::size_t& count : counts) begin += std::exchange(count, begin);
    for (const std::uint64_t key : from) to[counts[digits.digit(key, place)]++] = key;
  }

  /// Keys with the same leading digits follow each other.
  static void sort_alike(const Digits& digits, Keys keys, Keys scratch) {
    for (std::size_t begin = 0; begin < keys.size();) {
      const std::uint64_t leading = digits.leading(keys[begin]);
      std::size_t end = begin + 1;
      while (end < keys.size() && digits.leading(keys[end]) == leading) ++end;
      if (end - begin > 1) sort(keys.subspan(begin, end - begin), scratch.subspan(begin, end - begin));
      begin = end;
    }
  }

  std::vector<std::uint64_t> scratch_;
};

}  // namespace

std::vector<double> distinct_values(std::vector<double> values) {
  std::vector<std::uint64_t> keys;
  keys.reserve(values.size());
  // A sum with 0.0 is never -0.0.
  for (const double value : values) keys.push_back(order_of_double(value + 0.0));
  DigitSort(keys.size()).sort(keys);
  values.clear();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (i == 0 || keys[i] != keys[i - 1]) values.push_back(double_of_order(keys[i]));
  }
  return values;
}

}  // namespace kov
