#include "lattice/row_range.h"

#include <algorithm>

namespace kov {

RowRange::RowRange(const Row& row, const KeyBox& range) noexcept : range_(range) {
  const KeyBox& box = row.box();
  for (std::size_t i = 0; i < range.min.coo.size(); ++i) {
    const std::int32_t min = std::max(range.min.coo[i], box.min.coo[i]);
    const std::int32_t max = std::min(range.max.coo[i], box.max.coo[i]);
    if (min > max) {
      extent_ = Extent::none;
      return;
    }
    if (min == box.min.coo[i] && max == box.max.coo[i]) continue;
    extent_ = Extent::some;
    if (row.packed()) add_test(row.frame(), i, min, max);
  }
}

void RowRange::add_test(const KeyFrame& frame, std::size_t position, std::int32_t min,
                        std::int32_t max) noexcept {
  const auto distance = [](std::int32_t a, std::int32_t b) {
    return static_cast<std::uint32_t>(wrapping_subtract(a, b));
  };
  tests_[test_count_++] = {.mask = (std::uint64_t{1} << frame.bits(position)) - 1,
                           .low = distance(min, frame.low(position)),
                           .width = distance(max, min),
                           .shift = frame.shift_of(position)};
}

void RowRange::mark(const Block& block, std::size_t first, std::span<std::uint8_t> inside) const noexcept {
  std::fill(inside.begin(), inside.end(), static_cast<std::uint8_t>(extent_ == Extent::none ? 0 : 1));
  if (extent_ != Extent::some) return;
  if (block.wide()) {
    for (std::size_t i = 0; i < inside.size(); ++i) inside[i] = range_.contains(block.wide_key(first + i));
    return;
  }
  constexpr std::size_t at_once = 512;
  std::array<std::uint64_t, at_once> keys;
  for (std::size_t done = 0; done < inside.size(); done += at_once) {
    const auto flags = inside.subspan(done, std::min(at_once, inside.size() - done));
    block.decode_keys(first + done, std::span(keys).first(flags.size()));
    for (const Test& test : std::span(tests_).first(test_count_)) {
      for (std::size_t i = 0; i < flags.size(); ++i) {
        const auto distance = static_cast<std::uint32_t>((keys[i] >> test.shift) & test.mask);
        flags[i] &= static_cast<std::uint8_t>(distance - test.low <= test.width);
      }
    }
  }
}

}  // namespace kov
