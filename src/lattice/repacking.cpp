#include "lattice/repacking.h"

namespace kov {

Repacking::Repacking(const KeyFrame& from, const KeyFrame& to, std::uint64_t packed) noexcept {
  for (const KeyFrame::Field& field : from.fields()) {
    const std::uint64_t mask = (std::uint64_t{1} << from.bits(field.position)) - 1;
    moves_[count_++] = {mask, field.shift, static_cast<std::uint8_t>(to.shift_of(field.position))};
  }
  // A position without bits in `to` is the same in all keys, and so its distance in `from`.
  constant_ = to.pack(from.unpack(packed, 0)) - repacked(packed);
}

}  // namespace kov
