#include "numbers/put_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>

#include "numbers/checked_integer.h"
#include "numbers/floating_text.h"
#include "numbers/quick_floating.h"

namespace kov {
namespace {

constexpr int full_digits = 15;

/// "00" ... "99"
constexpr auto digit_pairs = [] {
  std::array<std::array<char, 2>, 100> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = {static_cast<char>('0' + i / 10), static_cast<char>('0' + i % 10)};
  }
  return pairs;
}();

/// i < 100
void put_pair(char* at, std::uint32_t i) { std::memcpy(at, digit_pairs[i].data(), 2); }

/// value < 10^8, with leading zeros.
void put_8_digits(char* at, std::uint32_t value) {
  const std::uint32_t high = value / 10000;
  const std::uint32_t low = value % 10000;
  put_pair(at, high / 100);
  put_pair(at + 2, high % 100);
  put_pair(at + 4, low / 100);
  put_pair(at + 6, low % 100);
}

/// The digits of a Decimal15 and one '0' behind them.
struct Digits15 {
  explicit Digits15(std::uint64_t significand) {
    constexpr std::uint32_t ten_to_7 = 10'000'000;
    put_8_digits(text.data(), static_cast<std::uint32_t>(significand / ten_to_7));
    put_8_digits(text.data() + 8, static_cast<std::uint32_t>(significand % ten_to_7) * 10);
    while (count > 1 && text[static_cast<std::size_t>(count) - 1] == '0') --count;
  }

  std::array<char, 16> text;
  /// Without the zeros at the end.
  int count = full_digits;
};

/// Only the first count characters mean anything; count <= 16.
char* put_some(char* at, const char* text, int count) {
  std::memcpy(at, text, 16);
  return at + count;
}

char* put_scientific(char* at, const Digits15& digits, int exponent) {
  *at++ = digits.text[0];
  if (digits.count > 1) {
    *at++ = '.';
    std::memcpy(at, digits.text.data() + 1, full_digits);
    at += digits.count - 1;
  }
  *at++ = 'E';
  return put_int32(at, exponent);
}

/// -5 < exponent < 15
char* put_fixed(char* at, const Digits15& digits, int exponent) {
  if (exponent < 0) {
    std::memcpy(at, "0.0000", 6);
    return put_some(at + 1 - exponent, digits.text.data(), digits.count);
  }
  const int whole = exponent + 1;
  if (digits.count <= whole) return put_some(at, digits.text.data(), whole);
  std::memcpy(at, digits.text.data(), 16);
  at[whole] = '.';
  std::memcpy(at + whole + 1, digits.text.data() + whole, static_cast<std::size_t>(digits.count - whole));
  return at + digits.count + 1;
}

}  // namespace

char* put_int32(char* at, std::int32_t value) {
  std::uint32_t rest = magnitude(value);
  if (value < 0) *at++ = '-';
  if (rest < 10) {
    *at = static_cast<char>('0' + rest);
    return at + 1;
  }
  if (rest < 100) {
    put_pair(at, rest);
    return at + 2;
  }
  return std::to_chars(at, at + longest_int32_text, rest).ptr;
}

char* put_floating(char* at, double value) {
  const auto decimal = decimal15(value);
  if (!decimal) {
    const std::string text = floating_text(value, full_digits);
    return at + text.copy(at, text.size());
  }
  if (std::signbit(value)) *at++ = '-';
  const Digits15 digits(decimal->significand);
  constexpr int smallest_fixed = -4;
  const bool fixed = smallest_fixed <= decimal->exponent && decimal->exponent < full_digits;
  return fixed ? put_fixed(at, digits, decimal->exponent) : put_scientific(at, digits, decimal->exponent);
}

char* put_text(char* at, const ratyp& part) {
  if (!part.exact()) return put_floating(at, part.fl());
  at = put_int32(at, part.nu());
  if (part.de() == 1) return at;
  *at++ = '/';
  return put_int32(at, part.de());
}

char* put_text(char* at, const cotyp& q) {
  if (q.im == 0) return put_text(at, q.re);
  if (!(q.re == 0)) {
    at = put_text(at, q.re);
    if (!(q.im < 0)) *at++ = '+';
  }
  at = put_text(at, q.im);
  *at++ = 'i';
  return at;
}

}  // namespace kov
