#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace kov {

/// How long an operation has run, and how long it will at the pace it had; unknown before it has moved.
struct OperationTime {
  std::chrono::milliseconds elapsed{};
  std::optional<std::chrono::milliseconds> remaining;
};

/// How much of the way from ... to is done at position: 0 ... 1, and 0 where there is no way. Any integers.
double done_fraction(std::int64_t from, std::int64_t to, std::int64_t position);

/// What is left is taken to need as long for its length as what is done. Unknown where that is more than a
/// year: such a pace says nothing.
OperationTime operation_time(std::chrono::milliseconds elapsed, double done);

}  // namespace kov
