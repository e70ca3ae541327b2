#include "numbers/number_source.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <set>
#include <string>

#include "numbers/describe.h"

namespace kov::test {

std::vector<ratyp> boundary_values() {
  // clang-format off
  constexpr std::int32_t numerators[] = {
      0, 1, 2, 3, 46340, 46341, 65535, 65536, 1073741823, 1073741824, 2147483629, 2147483645, 2147483646, 2147483647,
      -1, -2, -3, -46340, -46341, -65536, -1073741824, -2147483645, -2147483646, -2147483647, INT32_MIN,
  };
  constexpr std::int32_t denominators[] = {
      1, 2, 3, 46340, 46341, 65536, 1073741823, 1073741824, 2147483629, 2147483646, 2147483647,
  };
  constexpr double floating_values[] = {
      0.0, -0.0, 0.5, -0.5, 1.0, -1.0, 1.0 / 3.0, 2147483646.0, 2147483647.0, -2147483648.0, 4294967296.0,
      1e-300, -1e-300, 1e300, -1e300, DBL_MIN, DBL_MAX, -DBL_MAX, 5e-324, -5e-324,
      std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
      std::numeric_limits<double>::quiet_NaN(),
  };
  // clang-format on
  std::vector<ratyp> values;
  std::set<std::string> known;
  const auto add = [&](const ratyp& q) {
    if (known.insert(describe(q)).second) values.push_back(q);
  };
  for (const std::int32_t de : denominators) {
    for (const std::int32_t nu : numerators) add(ratyp(nu, de));
  }
  for (const double fl : floating_values) add(ratyp::floating(fl));
  return values;
}

std::int32_t NumberSource::next_integer(std::int32_t from, std::int32_t to) {
  return std::uniform_int_distribution<std::int32_t>(from, to)(engine_);
}

ratyp NumberSource::next_ratyp() {
  switch (next_integer(0, 15)) {
    case 0:
      return next_floating();
    case 1:
      return ratyp::floating(next_integer(-64, 64) / 8.0);
    case 2:
      return boundaries_[engine_() % boundaries_.size()];
    case 3:
      return ratyp(next_integer(INT32_MIN, INT32_MAX));
    case 4:
      return ratyp(next_integer(INT32_MIN, INT32_MAX), next_integer(1, INT32_MAX));
    case 5:
      return ratyp(next_integer(INT32_MAX - 9, INT32_MAX), next_integer(1, 9));
    case 6:
      return ratyp(next_integer(INT32_MIN, INT32_MIN + 9), next_integer(1, 9));
    case 7:
      return ratyp(next_integer(-9, 9), next_integer(INT32_MAX - 9, INT32_MAX));
    case 8:
    case 9:
      return ratyp(next_integer(-65536, 65536), next_integer(1, 65536));
    case 10:
    case 11:
      return ratyp(next_integer(-1000, 1000), next_integer(1, 1000));
    case 12:
      return ratyp(next_integer(-70000, 70000));
    default:
      return next_small();
  }
}

cotyp NumberSource::next_cotyp() {
  if (next_integer(0, 1) == 0) return {next_small(), next_small()};
  return {next_ratyp(), next_ratyp()};
}

ratyp NumberSource::next_floating() {
  const double mantissa = static_cast<double>(static_cast<std::int64_t>(engine_()));
  return ratyp::floating(std::ldexp(mantissa, next_integer(-160, 40)));
}

}  // namespace kov::test
