#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace kov {

/// One real number: the exact fraction nu/de of two 32-bit integers for as long as every result stays
/// within nu_min_int ... nu_max_int, and a double, for good, from the first result that does not.
///
/// An exact value is reduced, its denominator positive, its zero 0/1. Operations between an exact and
/// a floating value are floating. Floating results are computed in double precision from the
/// quotients nu/de, so they are the same on every machine. A floating zero has one form, 0.0: none is
/// ever -0.0.
class ratyp {
 public:
  /// Exact zero.
  constexpr ratyp() = default;
  /// The exact integer k.
  constexpr ratyp(std::int32_t k) : nu_(k) {}  // NOLINT(google-explicit-constructor): a number is a ratyp
  /// A double never turns into an integer unnoticed; floating() is meant.
  template <std::floating_point Float>
  ratyp(Float) = delete;
  /// nu/de, reduced. Throws ratyp_error when de is 0. What does not fit in 32 bits after reduction
  /// (only with a part that is the smallest 32-bit integer) becomes floating.
  ratyp(std::int32_t nu, std::int32_t de);
  /// nu/de as it stands, for who knows that it is reduced and de positive: no division.
  static constexpr ratyp reduced(std::int32_t nu, std::int32_t de) {
    ratyp q(nu);
    q.de_ = de;
    return q;
  }
  /// The floating value fl; -0.0 as 0.0.
  static ratyp floating(double fl);

  bool exact() const { return exact_; }
  /// Meaningful only while exact().
  std::int32_t nu() const { return nu_; }
  std::int32_t de() const { return de_; }
  /// Meaningful only while not exact().
  double fl() const { return fl_; }

  ratyp& operator+=(const ratyp& b);
  ratyp& operator-=(const ratyp& b);
  ratyp& operator*=(const ratyp& b);
  /// Throws ratyp_error, with the left operand unchanged, when both are exact and b is zero. A
  /// floating division by zero is not intercepted.
  ratyp& operator/=(const ratyp& b);
  ratyp& operator++();
  ratyp operator++(int);

  /// Exact values by exact integers while the cross products stay within the range; otherwise by the
  /// floating values, so two exact values that differ by less than a double tells apart may be
  /// ordered neither way.
  friend bool operator<(const ratyp& a, const ratyp& b);
  /// By the floating value of a.
  friend bool operator<(const ratyp& a, std::int32_t k);
  /// Exact values by their parts; otherwise by the floating values, so 0.5 equals 1/2.
  friend bool operator==(const ratyp& a, const ratyp& b);

 private:
  struct Fraction {
    std::int32_t nu;
    std::int32_t de;
  };

  static Fraction sum_of(Fraction a, Fraction b, bool subtract);
  static Fraction product_of(Fraction a, Fraction b);
  static Fraction quotient_of(Fraction a, Fraction b);

  Fraction fraction() const { return {nu_, de_}; }
  ratyp& become(Fraction fraction);
  ratyp& become(double fl);

  // What the inactive representation holds is never read.
  std::int32_t nu_ = 0;
  std::int32_t de_ = 1;
  bool exact_ = true;
  double fl_ = 0.0;
};

static_assert(sizeof(ratyp) == 24, "a stored point is counted as 32*4 + 2*24 bytes");

inline ratyp operator+(ratyp a, const ratyp& b) { return a += b; }
inline ratyp operator-(ratyp a, const ratyp& b) { return a -= b; }
inline ratyp operator*(ratyp a, const ratyp& b) { return a *= b; }
inline ratyp operator/(ratyp a, const ratyp& b) { return a /= b; }

/// nu/de of an exact value, fl of a floating one.
inline double to_double(const ratyp& q) {
  return q.exact() ? static_cast<double>(q.nu()) / static_cast<double>(q.de()) : q.fl();
}

/// False for an infinity and a NaN. A fraction needs no look at its value: every sum and product of a run is
/// asked.
inline bool is_finite(const ratyp& q) { return q.exact() || std::isfinite(q.fl()); }

inline bool operator==(const ratyp& a, const ratyp& b) {
  if (a.exact_ && b.exact_) return a.nu_ == b.nu_ && a.de_ == b.de_;
  return to_double(a) == to_double(b);
}

/// "-3", "3/4", or the floating text with 15 significant digits (general format, "1.5E-5", "1E20").
/// Parses back to an equal value, for floating values up to the 15 digits.
std::string to_text(const ratyp& q);

/// The full text while it has at most width + 3 characters, else the value in general floating format
/// with width digits (at least 1).
std::string to_text_short(const ratyp& q, int width);

/// Reads an integer or a fraction exactly, a text with point or exponent as floating; blanks are not
/// skipped. False, with q unchanged, when the text is no number, a denominator is 0 or the value is
/// beyond the largest double.
bool from_text(std::string_view text, ratyp& q);

}  // namespace kov
