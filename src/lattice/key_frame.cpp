#include "lattice/key_frame.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "numbers/vector_dispatch.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr int most_bits = 64;
constexpr int bits_of_offset = 32;
constexpr int bits_of_coordinate = 32;

using KeyBits = std::array<std::uint8_t, MaxDimCount>;

/// The number of steps from the lowest to the highest value.
std::uint64_t span_of(const KeyBox& box, std::size_t position) noexcept {
  return static_cast<std::uint32_t>(wrapping_subtract(box.max.coo[position], box.min.coo[position]));
}

KeyBits smallest_bits(const KeyBox& box) noexcept {
  KeyBits bits{};
  for (std::size_t i = 1; i < bits.size(); ++i) {
    bits[i] = static_cast<std::uint8_t>(std::bit_width(span_of(box, i)));
  }
  return bits;
}

int sum_of(const KeyBits& bits) noexcept { return std::accumulate(bits.begin(), bits.end(), 0); }

constexpr std::uint64_t ones(int bits) noexcept {
  return bits == most_bits ? ~std::uint64_t{0} : (std::uint64_t{1} << bits) - 1;
}

/// True when less than half as many values as there are now could be added.
bool is_tight(const KeyBox& box, std::size_t position, int bits) noexcept {
  const std::uint64_t side = span_of(box, position) + 1;
  return bits < bits_of_coordinate && (std::uint64_t{1} << bits) - side < side / 2;
}

}  // namespace

std::optional<KeyFrame> KeyFrame::for_box(const KeyBox& box) {
  const KeyBits bits = smallest_bits(box);
  if (sum_of(bits) > most_bits) return std::nullopt;
  return KeyFrame(box, bits, Room::above);
}

// A bit more for a position spreads the keys in all positions above it: the first one may have it for
// nothing, the others as long as everything lies within 32 bits. Lattice indices do not grow step by step;
// points of one lattice stay as near each other as can be.
std::optional<KeyFrame> KeyFrame::with_room(const KeyBox& box) {
  KeyBits bits = smallest_bits(box);
  int total = sum_of(bits);
  if (total > most_bits) return std::nullopt;
  bool first = true;
  for (std::size_t i = 1; i < l_position; ++i) {
    if (bits[i] == 0) continue;
    const bool room = first ? total < most_bits : total < bits_of_offset;
    if (room && is_tight(box, i, bits[i])) {
      ++bits[i];
      if (!first) ++total;
    }
    first = false;
  }
  return KeyFrame(box, bits, Room::around);
}

KeyFrame::KeyFrame(const KeyBox& box, const Bits& bits, Room room) noexcept : low_{} {
  int shift = sum_of(bits);
  total_bits_ = static_cast<std::uint8_t>(shift);
  for (std::size_t i = 1; i < bits.size(); ++i) {
    const std::int64_t highest_distance = (std::int64_t{1} << bits[i]) - 1;
    const auto span = static_cast<std::int64_t>(span_of(box, i));
    const std::int64_t below = room == Room::around ? (highest_distance - span) / 2 : 0;
    low_.coo[i] = static_cast<std::int32_t>(
        std::clamp(box.min.coo[i] - below, std::int64_t{lowest_int}, highest_int - highest_distance));
    outside_[i] = ~static_cast<std::uint32_t>(highest_distance);
    if (bits[i] == 0) continue;
    shift -= bits[i];
    shift_[i] = static_cast<std::uint8_t>(shift);
    fields_[field_count_++] = {static_cast<std::uint8_t>(i), shift_[i]};
  }
}

std::uint64_t KeyFrame::shift(const Lk& offset) const noexcept {
  std::uint64_t sum = 0;
  for (const Field& field : fields()) {
    sum += static_cast<std::uint64_t>(std::int64_t{offset.coo[field.position]}) << field.shift;
  }
  return sum;
}

std::optional<std::uint64_t> KeyFrame::ceiling(const Lk& key) const noexcept {
  std::uint64_t packed = 0;
  int below = total_bits_;
  for (std::size_t i = 1; i < outside_.size(); ++i) {
    if (key.coo[i] < low_.coo[i]) return packed;
    if ((distance(key, i) & outside_[i]) != 0) {
      // All that begin like the key are less: the one behind the last of them, if there is one.
      const std::uint64_t last = packed | ones(below);
      if (last == ones(total_bits_)) return std::nullopt;
      return last + 1;
    }
    below -= bits(i);
    if (bits(i) != 0) packed |= std::uint64_t{distance(key, i)} << below;
  }
  return packed;
}

KeyBox KeyFrame::box_of(std::span<const std::uint64_t> keys, std::int32_t n) const noexcept {
  KeyBox box{unpack(keys.front(), n), unpack(keys.front(), n)};
  bool ascending = true;
  for (const Field& field : fields()) {
    const std::uint64_t field_mask = mask(field.position);
    std::uint64_t lowest = (keys.front() >> field.shift) & field_mask;
    std::uint64_t highest = (keys.back() >> field.shift) & field_mask;
    // As long as no position before differs, the keys ascend in this one.
    if (ascending) {
      ascending = lowest == highest;
    } else {
      run_loop([&]() KOV_INLINE {
        std::uint64_t low = lowest;
        std::uint64_t high = highest;
        for (const std::uint64_t key : keys) {
          const std::uint64_t distance = (key >> field.shift) & field_mask;
          low = std::min(low, distance);
          high = std::max(high, distance);
        }
        lowest = low;
        highest = high;
      });
    }
    box.min.coo[field.position] = value(lowest << field.shift, field);
    box.max.coo[field.position] = value(highest << field.shift, field);
  }
  return box;
}

}  // namespace kov
