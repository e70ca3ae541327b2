#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "numbers/ratyp.h"

namespace kov {

/// The quantity of a lattice point: a complex number whose parts are each exact or floating on their
/// own.
struct cotyp {
  ratyp re;
  ratyp im;

  /// Exact zero.
  constexpr cotyp() = default;
  /// The exact integer k.
  constexpr cotyp(std::int32_t k) : re(k) {}  // NOLINT(google-explicit-constructor): a number is a cotyp
  /// A double never turns into an integer unnoticed; floating() is meant.
  template <std::floating_point Float>
  cotyp(Float) = delete;
  cotyp(const ratyp& real, const ratyp& imaginary) : re(real), im(imaginary) {}
  /// Two fractions, each reduced; throws ratyp_error when a denominator is 0.
  cotyp(std::int32_t re_nu, std::int32_t re_de, std::int32_t im_nu, std::int32_t im_de);
  /// Both parts floating.
  static cotyp floating(double real, double imaginary);

  cotyp& operator+=(const cotyp& b);
  cotyp& operator-=(const cotyp& b);
  cotyp& operator*=(const cotyp& b);
  /// Throws ratyp_error, with the left operand unchanged, when both parts of b are exact zeros. A
  /// division by a floating zero is not intercepted.
  cotyp& operator/=(const cotyp& b);

  friend bool operator==(const cotyp& a, const cotyp& b) { return a.re == b.re && a.im == b.im; }
};

inline cotyp operator+(cotyp a, const cotyp& b) { return a += b; }
inline cotyp operator-(cotyp a, const cotyp& b) { return a -= b; }
inline cotyp operator*(cotyp a, const cotyp& b) { return a *= b; }
inline cotyp operator/(cotyp a, const cotyp& b) { return a /= b; }

/// Both parts equal to zero; a floating 0.0 counts as zero.
inline bool is_zero(const cotyp& q) { return q == cotyp(); }

/// The squared magnitude re*re + im*im, exact while the parts are and nothing overflows.
ratyp qq(const cotyp& q);

/// The same value with both parts floating.
cotyp to_float(const cotyp& q);

/// True when no part is an infinity or a NaN.
inline bool is_finite(const cotyp& q) { return is_finite(q.re) && is_finite(q.im); }

/// Throws floating_overflow ("floating point overflow") when a part is infinite and math_error
/// ("invalid floating point operation") when one is a NaN. For whoever is about to store q.
void require_finite(const cotyp& q);

/// The one text form of quantities: "1/2+3/4i", "-2-1/3i", "1i", "5", "0.25+1.5E-5i".
std::string to_text(const cotyp& q);

/// The full text while it has at most width + 3 characters, else each part in its short form with half
/// the width, the real part of a quantity without imaginary part too.
std::string to_text_short(const cotyp& q, int width);

/// Reads the text form; leading and trailing blanks and control characters are skipped. False, with q
/// unchanged, when the text is no quantity. Never throws.
bool from_text(std::string_view text, cotyp& q);

}  // namespace kov
