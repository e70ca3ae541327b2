#pragma once

#include <charconv>
#include <string>

#include "numbers/cotyp.h"
#include "numbers/ratyp.h"

namespace kov::test {

/// What a number holds, representation included: "3/2", "4/1", or "fl 0.5" with all its digits. Tests
/// compare these, since equality takes 1/2 and 0.5 for one.
inline std::string describe(const ratyp& q) {
  if (q.exact()) return std::to_string(q.nu()) + "/" + std::to_string(q.de());
  char digits[32];
  const auto written = std::to_chars(digits, digits + sizeof digits, q.fl());
  return "fl " + std::string(digits, written.ptr);
}

inline std::string describe(const cotyp& q) { return describe(q.re) + ", " + describe(q.im); }

/// The number that a text stands for; a text that does not parse gives what no test expects.
inline ratyp number(std::string_view text) {
  ratyp q = ratyp::floating(-12345.678);
  return from_text(text, q) ? q : ratyp::floating(-12345.678);
}

inline cotyp quantity(std::string_view text) {
  cotyp q;
  return from_text(text, q) ? q : cotyp::floating(-12345.678, -12345.678);
}

}  // namespace kov::test
