#pragma once

#include <string>

#include "text/integers.h"

namespace kov {

inline constexpr const char* thirty_zeros = " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ";

/// The line of a point at the origin of row n in lattice 0.
inline std::string point(int n, const std::string& quantity) {
  return "e_l 0 " + int_text(n) + thirty_zeros + quantity + "\r\n";
}

/// Points in the rows 0 ... last, behind lines of a configuration.
inline std::string rows_file(int last, const std::string& configuration = {}) {
  std::string text = configuration;
  for (int n = 0; n <= last; ++n) text += point(n, int_text(n + 1));
  return text;
}

}  // namespace kov
