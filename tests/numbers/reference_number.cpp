#include "numbers/reference_number.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <utility>

namespace kov::test {

namespace {

bool within(std::int64_t value) { return -2147483647 <= value && value <= 2147483646; }

std::uint64_t distance_from_zero(std::int64_t value) {
  return value < 0 ? 0U - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

/// By halving and subtracting; neither may be zero.
std::int64_t common_divisor(std::int64_t a, std::int64_t b) {
  std::uint64_t x = distance_from_zero(a);
  std::uint64_t y = distance_from_zero(b);
  const int twos = std::countr_zero(x | y);
  x >>= std::countr_zero(x);
  while (y != 0) {
    y >>= std::countr_zero(y);
    if (x > y) std::swap(x, y);
    y -= x;
  }
  return static_cast<std::int64_t>(x << twos);
}

// A floating zero has no sign.
Reference floating(double fl) { return {false, 0, 1, fl == 0.0 ? 0.0 : fl}; }

Reference reduced(std::int64_t nu, std::int64_t de) {
  if (nu == 0) return {};
  const std::int64_t divisor = common_divisor(nu, de);
  nu /= divisor;
  de /= divisor;
  return de < 0 ? Reference{true, -nu, -de} : Reference{true, nu, de};
}

/// Over the least common denominator both numerators must be in range, the second one as it is before
/// its sign is applied; so must their sum, but for the sum of 0 and a positive number; and the
/// denominator of the reduced result.
Reference sum_with_sign(const Reference& a, const Reference& b, int sign) {
  if (a.exact && b.exact) {
    const std::int64_t divisor = common_divisor(a.de, b.de);
    const std::int64_t left = a.nu * (b.de / divisor);
    const std::int64_t right = b.nu * (a.de / divisor);
    const std::int64_t numerator = left + sign * right;
    const Reference result = reduced(numerator, a.de / divisor * b.de);
    const bool untested = left == 0 && sign * right > 0;
    if (within(left) && within(right) && (untested || within(numerator)) && within(result.de)) return result;
  }
  return floating(sign > 0 ? a.value() + b.value() : a.value() - b.value());
}

}  // namespace

Reference reference(const ratyp& q) { return q.exact() ? Reference{true, q.nu(), q.de()} : floating(q.fl()); }

bool same(const ratyp& q, const Reference& expected) {
  if (q.exact() != expected.exact) return false;
  if (q.exact()) return q.nu() == expected.nu && q.de() == expected.de;
  if (std::isnan(q.fl())) return std::isnan(expected.fl);
  return std::bit_cast<std::uint64_t>(q.fl()) == std::bit_cast<std::uint64_t>(expected.fl);
}

Reference sum(const Reference& a, const Reference& b) { return sum_with_sign(a, b, 1); }

Reference difference(const Reference& a, const Reference& b) { return sum_with_sign(a, b, -1); }

Reference product(const Reference& a, const Reference& b) {
  if (a.exact && b.exact) {
    const Reference result = reduced(a.nu * b.nu, a.de * b.de);
    if (within(result.nu) && within(result.de)) return result;
  }
  return floating(a.value() * b.value());
}

std::optional<Reference> quotient(const Reference& a, const Reference& b) {
  if (a.exact && b.exact) {
    if (b.nu == 0) return std::nullopt;
    const Reference result = reduced(a.nu * b.de, a.de * b.nu);
    // The range is asked for while the sign of b is still in the denominator; a zero is let alone.
    const int sign = b.nu < 0 && a.nu != 0 ? -1 : 1;
    if (within(sign * result.nu) && within(sign * result.de)) return result;
  }
  return floating(a.value() / b.value());
}

bool less(const Reference& a, const Reference& b) {
  if (!a.exact || !b.exact) return a.value() < b.value();
  const bool truly_less = a.nu * b.de < b.nu * a.de;
  const bool same_sign = (a.nu > 0 && b.nu > 0) || (a.nu < 0 && b.nu < 0);
  if (!same_sign) return truly_less;
  const Reference ratio = reduced(a.nu * b.de, a.de * b.nu);
  const int sign = a.nu < 0 ? -1 : 1;
  return within(sign * ratio.nu) && within(sign * ratio.de) ? truly_less : a.value() < b.value();
}

bool less(const Reference& a, std::int32_t k) {
  const double bound = k;
  if (!a.exact) return a.fl < bound;
  if (a.nu < 0 && k >= 0) return true;
  if (a.nu >= 0 && k <= 0) return false;
  if (a.nu <= 0) return -bound < static_cast<double>(-a.nu) / static_cast<double>(a.de);
  return a.value() < bound;
}

bool equal(const Reference& a, const Reference& b) {
  return a.exact && b.exact ? a.nu * b.de == b.nu * a.de : a.value() == b.value();
}

ComplexReference reference(const cotyp& q) { return {reference(q.re), reference(q.im)}; }

bool same(const cotyp& q, const ComplexReference& expected) {
  return same(q.re, expected.re) && same(q.im, expected.im);
}

ComplexReference sum(const ComplexReference& a, const ComplexReference& b) {
  return {sum(a.re, b.re), sum(a.im, b.im)};
}

ComplexReference difference(const ComplexReference& a, const ComplexReference& b) {
  return {difference(a.re, b.re), difference(a.im, b.im)};
}

ComplexReference product(const ComplexReference& a, const ComplexReference& b) {
  return {difference(product(a.re, b.re), product(a.im, b.im)),
          sum(product(a.im, b.re), product(a.re, b.im))};
}

std::optional<ComplexReference> quotient(const ComplexReference& a, const ComplexReference& b) {
  if (b.re.exact && b.im.exact && b.re.nu == 0 && b.im.nu == 0) return std::nullopt;
  const Reference divisor = squared_magnitude(b);
  return ComplexReference{
      *quotient(sum(product(a.re, b.re), product(a.im, b.im)), divisor),
      *quotient(difference(product(a.im, b.re), product(a.re, b.im)), divisor),
  };
}

bool equal(const ComplexReference& a, const ComplexReference& b) {
  return equal(a.re, b.re) && equal(a.im, b.im);
}

Reference squared_magnitude(const ComplexReference& q) {
  return sum(product(q.re, q.re), product(q.im, q.im));
}

namespace {

/// The leading 15 decimal digits without trailing zeros, and the exponent of the first one.
struct Decimal {
  std::string digits;
  int exponent;
};

Decimal decimal(double value) {
  char buffer[40];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14).ptr;
  const std::string text(buffer, end);  // "d.dddddddddddddde+xx"
  Decimal result{text.substr(0, 1) + text.substr(2, 14), 0};
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  for (const char digit : text.substr(18)) result.exponent = result.exponent * 10 + (digit - '0');
  if (text[17] == '-') result.exponent = -result.exponent;
  return result;
}

std::string zeros(int count) { return std::string(static_cast<std::size_t>(count), '0'); }

/// General format, the point and the exponent set by hand.
std::string general_text(double value) {
  if (value == 0.0) return "0";
  auto [digits, exponent] = decimal(std::abs(value));
  if (exponent < -4 || exponent >= 15) {
    if (digits.size() > 1) digits.insert(1, 1, '.');
    digits += 'E';
    digits += std::to_string(exponent);
  } else if (exponent < 0) {
    digits = zeros(-exponent) + digits;
    digits.insert(1, 1, '.');
  } else if (const int missing = exponent + 1 - static_cast<int>(digits.size()); missing >= 0) {
    digits += zeros(missing);
  } else {
    digits.insert(static_cast<std::size_t>(exponent) + 1, 1, '.');
  }
  if (value < 0) digits.insert(0, 1, '-');
  return digits;
}

}  // namespace

std::string reference_text(const Reference& q) {
  if (!q.exact) return general_text(q.fl);
  std::string text = std::to_string(q.nu);
  if (q.de != 1) text.append("/").append(std::to_string(q.de));
  return text;
}

std::string reference_text(const ComplexReference& q) {
  if (q.im.value() == 0.0) return reference_text(q.re);
  const std::string imaginary = reference_text(q.im) + "i";
  if (q.re.value() == 0.0) return imaginary;
  return reference_text(q.re) + (imaginary.front() == '-' ? "" : "+") + imaginary;
}

}  // namespace kov::test
