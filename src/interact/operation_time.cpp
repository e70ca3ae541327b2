#include "interact/operation_time.h"

#include <algorithm>

namespace kov {

/// The difference may be larger than 64 bits hold.
double done_fraction(std::int64_t from, std::int64_t to, std::int64_t position) {
  const double length = static_cast<double>(to) - static_cast<double>(from);
  if (!(length > 0)) return 0;
  return std::clamp((static_cast<double>(position) - static_cast<double>(from)) / length, 0.0, 1.0);
}

OperationTime operation_time(std::chrono::milliseconds elapsed, double done) {
  if (!(done > 0)) return {elapsed, std::nullopt};
  constexpr std::chrono::duration<double, std::milli> year = std::chrono::hours(365 * 24);
  const std::chrono::duration<double, std::milli> left = elapsed * ((1 - done) / done);
  if (!(left <= year)) return {elapsed, std::nullopt};
  return {elapsed, std::chrono::duration_cast<std::chrono::milliseconds>(left)};
}

}  // namespace kov
