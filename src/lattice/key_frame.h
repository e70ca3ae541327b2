#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "lattice/key_box.h"
#include "lattice/lk.h"

namespace kov {

/// How the positions 1 ... 31 of the keys of a row are packed into one unsigned integer of 64 bits that
/// orders as the keys do: position 1 above position 2 ... above the lattice index, each as its distance from
/// a low bound, in as many bits as the frame gives it. Positions without bits are the same in all keys.
///
/// Adding an offset to keys of one frame is adding one constant to what they are packed into.
class KeyFrame {
 public:
  /// The smallest frame of a box, which is not empty; its steps do not matter. Nothing when it takes more
  /// than 64 bits.
  static std::optional<KeyFrame> for_box(const KeyBox& box);
  /// The same with room for the box to grow on both sides where positions vary, but
  /// for the lattice index, which does not grow step by step: keys that go beyond it little
  /// by little need a new frame as seldom as a vector needs new memory. Keys that lie within 32 bits of each
  /// other without the room do so with it.
  static std::optional<KeyFrame> with_room(const KeyBox& box);

  bool covers(const Lk& key) const noexcept {
    std::uint32_t beyond = 0;
    for (std::size_t i = 0; i < outside_.size(); ++i) beyond |= distance(key, i) & outside_[i];
    return beyond == 0;
  }
  bool covers(const KeyBox& box) const noexcept { return covers(box.min) && covers(box.max); }

  /// For a key that is covered; its step does not matter.
  std::uint64_t pack(const Lk& key) const noexcept {
    std::uint64_t packed = 0;
    for (const Field& field : fields()) packed |= std::uint64_t{distance(key, field.position)} << field.shift;
    return packed;
  }
  Lk unpack(std::uint64_t packed, std::int32_t n) const noexcept {
    Lk key = low_;
    key.coo[0] = n;
    for (const Field& field : fields()) key.coo[field.position] = value(packed, field);
    return key;
  }
  /// The coordinate at one position 1 ... 31.
  std::int32_t coordinate(std::uint64_t packed, std::size_t position) const noexcept {
    return value(packed, {static_cast<std::uint8_t>(position), shift_[position]});
  }
  /// What a covered key is packed into changes by this, modulo 2^64, when the offset is added and the sum is
  /// covered, too, no coordinate wrapping.
  std::uint64_t shift(const Lk& offset) const noexcept;
  /// What the smallest key of the frame that is not less is packed into; nothing when all are less. Steps do
  /// not matter.
  std::optional<std::uint64_t> ceiling(const Lk& key) const noexcept;
  /// The bounds of these keys, ascending, one at least, as keys of step n.
  KeyBox box_of(std::span<const std::uint64_t> keys, std::int32_t n) const noexcept;

  int total_bits() const noexcept { return total_bits_; }
  std::int32_t low(std::size_t position) const noexcept { return low_.coo[position]; }
  int bits(std::size_t position) const noexcept {
    return position == 0 ? 0 : std::popcount(~outside_[position]);
  }
  /// The place of the position's lowest bit.
  int shift_of(std::size_t position) const noexcept { return shift_[position]; }

  /// A position that has bits.
  struct Field {
    std::uint8_t position;
    std::uint8_t shift;
  };
  /// From position 1 on.
  std::span<const Field> fields() const noexcept { return {fields_.data(), field_count_}; }

  friend bool operator==(const KeyFrame& a, const KeyFrame& b) noexcept {
    return a.low_ == b.low_ && a.outside_ == b.outside_;
  }

 private:
  using Bits = std::array<std::uint8_t, MaxDimCount>;

  /// What the bits hold beyond the box lies above it, or on both sides.
  enum class Room { above, around };
  KeyFrame(const KeyBox& box, const Bits& bits, Room room) noexcept;

  std::uint32_t distance(const Lk& key, std::size_t position) const noexcept {
    return static_cast<std::uint32_t>(wrapping_subtract(key.coo[position], low_.coo[position]));
  }
  std::uint32_t mask(std::size_t position) const noexcept { return ~outside_[position]; }
  std::int32_t value(std::uint64_t packed, Field field) const noexcept {
    const auto distance = static_cast<std::uint32_t>(packed >> field.shift) & mask(field.position);
    return wrapping_add(low_.coo[field.position], static_cast<std::int32_t>(distance));
  }

  /// low_.coo[0] is 0.
  Lk low_;
  /// The bits of a distance that lie outside the frame; all of them where a position does not vary. None at
  /// position 0.
  std::array<std::uint32_t, MaxDimCount> outside_{};
  Bits shift_{};
  std::array<Field, MaxDimCount - 1> fields_{};
  std::uint8_t field_count_ = 0;
  std::uint8_t total_bits_ = 0;
};

}  // namespace kov
