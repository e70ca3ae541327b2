#include "lattice/start_patterns.h"

namespace kov {
namespace {

Lmap test_block() {
  constexpr std::int32_t columns = 10;
  constexpr std::int32_t rows = 6;
  Lmap block;
  for (std::int32_t k1 = 0; k1 < columns; ++k1) {
    Lk key = Lk::at(0, 0, k1);
    for (std::int32_t k2 = 0; k2 < rows; ++k2) {
      key.coo[2] = k2;
      block.set(key, cotyp(k1 + 1, k2 + 1, 0, 1));
    }
  }
  return block;
}

Lmap points_of_pattern(StartPattern pattern) {
  if (pattern == StartPattern::test_block) return test_block();
  Lmap points;
  points.set(Lk::at(0, 0), 1);
  if (pattern == StartPattern::one_one) points.set(Lk::at(1, 0), 1);
  return points;
}

}  // namespace

void fill_start_pattern(Lmap& lmap, StartPattern pattern) {
  Lmap start = points_of_pattern(pattern);
  start.merge_new(lmap);
  lmap.swap(start);
}

}  // namespace kov
