#include "graphs/curve_states.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace kov {

void reset_curve_states(CurveStates& states, std::int32_t ny) {
  // By the sign: a negative ny keeps the states of all curves but the first.
  if (ny > 0) {
    const int count = curve_count(ny);
    std::fill_n(states.begin(), count, curve_unselected);
    states[static_cast<std::size_t>(count - 1)] = curve_red;
  }
  states[0] = curve_blue;
}

int curve_count(std::int32_t ny) {
  return static_cast<int>(std::min<std::int64_t>(std::abs(std::int64_t{ny}), nyabs_max));
}

}  // namespace kov
