#include "graphs/g1par.h"

namespace kov {

void G1Curve::clear() {
  std::fill(at.begin(), at.end(), 0.0);
  min = 0;
  max = 0;
  double_width_from.reset();
}

void G1Range::clear() {
  count = 0;
  for (G1Curve& cleared : curve) cleared.clear();
  std::fill(first_x.begin(), first_x.end(), std::nullopt);
}

void G1Par::clear() {
  for (G1Range& cleared : range) cleared.clear();
  xmin = std::numeric_limits<std::int32_t>::max();
  xmax = std::numeric_limits<std::int32_t>::min();
  pix_per_icoo = 0;
}

}  // namespace kov
