#include "sums/range_table.h"

namespace kov {

std::array<KeyBox, 2> RangeTable::default_ranges() {
  std::array<KeyBox, 2> ranges;
  constexpr std::size_t k1 = 1;
  ranges[0].min.coo[k1] = lowest_int;
  ranges[0].max.coo[k1] = highest_int;
  ranges[1].min.coo[k1] = highest_int;
  ranges[1].max.coo[k1] = highest_int;
  return ranges;
}

}  // namespace kov
