#include "tools/comb_count.h"

#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {

double pm_combinations(std::int64_t a, int k) {
  double count = 1.0;
  for (int j = 1; j <= k; ++j) count = count * (2.0 * static_cast<double>(a - k + j)) / j;
  return count;
}

double pm_combinations_up_to(std::int64_t a, int b) {
  double sum = 0.0;
  for (int k = 1; k <= b; ++k) sum += pm_combinations(a, k);
  return sum;
}

std::string count_text(double count) {
  constexpr double all_integers_below = 9007199254740992.0;
  return count < all_integers_below ? int_text(static_cast<std::int64_t>(count)) : floating_text(count, 15);
}

}  // namespace kov
