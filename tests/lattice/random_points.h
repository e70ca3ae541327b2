#pragma once

#include <cstdint>
#include <random>

#include "lattice/lk.h"
#include "numbers/cotyp.h"

namespace kov {

/// Random keys and quantities from so small a choice that keys meet and sums cancel, with steps at both
/// ends of the 32-bit range among them.
class RandomPoints {
 public:
  explicit RandomPoints(std::uint32_t seed) : engine_(seed) {}

  /// lowest <= result <= highest
  std::int32_t integer(std::int32_t lowest, std::int32_t highest) {
    return std::uniform_int_distribution<std::int32_t>(lowest, highest)(engine_);
  }
  std::int32_t step() {
    const std::int32_t near_zero = integer(-4, 4);
    switch (integer(0, 4)) {
      case 0:
        return INT32_MIN + 4 + near_zero;
      case 1:
        return INT32_MAX - 4 + near_zero;
      default:
        return near_zero;
    }
  }
  Lk key() {
    Lk key = Lk::at(integer(0, 1), step(), integer(-1, 1));
    key.coo[30] = integer(0, 1);
    return key;
  }
  /// Zero among them.
  cotyp quantity() {
    const cotyp exact(integer(-2, 2), integer(1, 2), integer(0, 1), 1);
    return integer(0, 3) == 0 ? to_float(exact) : exact;
  }

 private:
  std::mt19937 engine_;
};

}  // namespace kov
