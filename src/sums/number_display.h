#pragma once

#include <cstdint>
#include <string>

#include "config/cphclass.h"
#include "numbers/cotyp.h"

namespace kov {

/// How the results of sums are written.
struct NumberDisplay {
  /// Exact numbers as floating ones.
  bool as_float = true;
  /// Significant digits of a floating display.
  std::int32_t digits = 7;

  /// From Sums_ShowAsFloat and Sums_lt_precision.
  static NumberDisplay read(const cphclass& cph);

  /// As a floating display, both parts with so many digits in the shape of the quantities' text form
  /// ("0.3333333-2i"); otherwise the full text form itself, in which exact numbers stay exact.
  std::string text(const cotyp& q) const;
};

}  // namespace kov
