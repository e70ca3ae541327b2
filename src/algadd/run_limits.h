#pragma once

#include <cstdint>

#include "config/cphclass.h"

namespace kov {

/// What bounds a run's memory: thresholds in bytes, which a store must exceed to pass.
struct RunLimits {
  /// The next headline, and the distance to the one after it.
  std::int64_t display = 0;
  std::int64_t display_step = 0;
  /// The smallest points are deleted beyond this.
  std::int64_t tracking = 0;
  /// The run stops beyond this.
  std::int64_t maximum = 0;
  /// The first row that the modes 2 and 3 delete from.
  std::int32_t first_deletable_row = 1;

  static RunLimits read(const cphclass& cph);

  /// True when so many bytes are worth a headline.
  bool passed_any(std::int64_t bytes) const { return bytes > display || bytes > tracking || bytes > maximum; }
};

}  // namespace kov
