#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "lattice/key_frame.h"

namespace kov {

/// From what keys are packed into by one frame to what another one packs them into.
class Repacking {
 public:
  /// `packed`, by the frame `from`, is a key that both frames cover, like all keys to come.
  Repacking(const KeyFrame& from, const KeyFrame& to, std::uint64_t packed) noexcept;

  void apply(std::span<std::uint64_t> keys) const noexcept {
    for (std::uint64_t& key : keys) key = repacked(key);
  }

 private:
  /// Bits that keep their places relative to each other.
  struct Move {
    std::uint64_t mask;
    std::uint8_t from_shift;
    std::uint8_t to_shift;
  };

  std::uint64_t repacked(std::uint64_t key) const noexcept {
    std::uint64_t sum = constant_;
    for (std::size_t i = 0; i < count_; ++i) {
      sum += ((key >> moves_[i].from_shift) & moves_[i].mask) << moves_[i].to_shift;
    }
    return sum;
  }

  std::array<Move, MaxDimCount - 1> moves_{};
  std::size_t count_ = 0;
  /// Modulo 2^64, by the distances between the low bounds of the frames.
  std::uint64_t constant_ = 0;
};

}  // namespace kov
