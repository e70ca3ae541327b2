#include "numbers/scan_quantity.h"

#include <cstddef>
#include <cstdint>
#include <limits>

#include "numbers/quick_floating.h"

namespace kov {
namespace {

constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max());

std::int32_t with_sign(std::uint64_t magnitude, bool negative) {
  const auto value = static_cast<std::int32_t>(magnitude);
  return negative ? -value : value;
}

bool scan_denominator(WordScanner& text, std::uint64_t numerator, bool negative, ratyp& part) {
  std::uint64_t denominator = 0;
  std::size_t count = 0;
  if (text.digits(denominator, count) == 0 || denominator == 0 || denominator > largest) return false;
  part = ratyp(with_sign(numerator, negative), static_cast<std::int32_t>(denominator));
  return true;
}

/// What follows the digits before the point of a floating value; count of them make the number so far.
bool scan_rest_of_floating(WordScanner& text, std::uint64_t number, std::size_t count, bool negative,
                           ratyp& part) {
  int exponent = 0;
  if (text.take('.')) {
    const std::size_t behind = text.digits(number, count);
    if (behind == 0) return false;
    exponent = -static_cast<int>(behind);
  }
  if (text.take('E')) {
    const bool small = text.take('-');
    std::uint64_t written = 0;
    std::size_t written_count = 0;
    if (text.digits(written, written_count) == 0 || written > 999) return false;
    exponent += with_sign(written, small);
  }
  const auto value = nearest_double(number, exponent);
  if (!value) return false;
  part = ratyp::floating(negative ? -*value : *value);
  return true;
}

bool scan_part(WordScanner& text, ratyp& part) {
  const bool negative = text.take('-');
  std::uint64_t number = 0;
  std::size_t count = 0;
  if (text.digits(number, count) == 0) return false;
  const char next = text.peek();
  if (next == '.' || next == 'E') return scan_rest_of_floating(text, number, count, negative, part);
  if (number > largest) return false;
  if (text.take('/')) return scan_denominator(text, number, negative, part);
  part = ratyp(with_sign(number, negative));
  return true;
}

}  // namespace

bool scan_quantity(WordScanner& text, cotyp& q) {
  ratyp part;
  if (!scan_part(text, part)) return false;
  const char next = text.peek();
  if (text.at_end()) {
    q = cotyp(part, ratyp());
  } else if (next == 'i') {
    text.skip(1);
    q = cotyp(ratyp(), part);
  } else {
    const bool positive = text.take('+');
    if (positive ? text.peek() == '-' : next != '-') return false;
    ratyp imaginary;
    if (!scan_part(text, imaginary) || !text.take('i')) return false;
    q = cotyp(part, imaginary);
  }
  return text.at_end();
}

}  // namespace kov
