#include "numbers/put_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <string>
#include <type_traits>

#include "number_source.h"
#include "numbers/floating_text.h"
#include "numbers/scan_quantity.h"
#include "text/integers.h"

namespace kov::test {
namespace {

template <class Value>
std::string text_put(const Value& value) {
  std::array<char, longest_quantity_text> text;
  text.fill('#');
  char* end = nullptr;
  if constexpr (std::is_same_v<Value, std::int32_t>) {
    end = put_int32(text.data(), value);
  } else if constexpr (std::is_same_v<Value, double>) {
    end = put_floating(text.data(), value);
  } else {
    end = put_text(text.data(), value);
  }
  return {text.data(), end};
}

/// The rules as they are told, string by string.
std::string plain_text(const ratyp& part) {
  if (!part.exact()) return floating_text(part.fl(), 15);
  return int_text(part.nu()) + (part.de() == 1 ? "" : "/" + int_text(part.de()));
}

std::string plain_text(const cotyp& q) {
  if (q.im == 0) return plain_text(q.re);
  if (q.re == 0) return plain_text(q.im) + "i";
  return plain_text(q.re) + (q.im < 0 ? "" : "+") + plain_text(q.im) + "i";
}

TEST(PutText, OfIntegersIsDecimal) {
  for (std::int64_t value = 1; value <= INT32_MAX; value = value * 3 - 1 + value % 2) {
    for (const std::int64_t near : {value - 1, value, -value, -value - 1}) {
      ASSERT_EQ(text_put(static_cast<std::int32_t>(near)), int_text(near));
    }
  }
  EXPECT_EQ(text_put(INT32_MIN), "-2147483648");
  EXPECT_EQ(text_put(INT32_MAX), "2147483647");
}

TEST(PutText, OfFloatingValuesIsThatOfTheLibraryInEveryShape) {
  for (int exponent = -330; exponent <= 310; ++exponent) {
    for (const double digits : {1.0, -2.5, 1.23456789012345, 9.99999999999999, -9.999999999999999, 1.0 / 3}) {
      const double value = digits * std::pow(10.0, exponent);
      ASSERT_EQ(text_put(value), floating_text(value, 15));
    }
  }
}

TEST(PutText, OfQuantitiesIsThatOfTheirPartsPutTogether) {
  NumberSource numbers(7);
  for (int i = 0; i < 200'000; ++i) {
    const cotyp q = numbers.next_cotyp();
    ASSERT_EQ(text_put(q), plain_text(q));
    ASSERT_EQ(text_put(q.re), plain_text(q.re));
    ASSERT_EQ(to_text(q), plain_text(q));
  }
}

bool same_part(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  return a.exact() ? a.nu() == b.nu() && a.de() == b.de()
                   : std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
}

/// True when the quick reading took the text; it must then be what from_text makes of it.
bool scanned_alike(const std::string& text) {
  WordScanner scanner(text);
  cotyp quick;
  if (!scan_quantity(scanner, quick)) return false;
  cotyp plain;
  EXPECT_TRUE(from_text(text, plain)) << text;
  EXPECT_TRUE(same_part(quick.re, plain.re) && same_part(quick.im, plain.im)) << text;
  return true;
}

TEST(ScanQuantity, TakesNearlyAllThatIsWritten) {
  NumberSource numbers(8);
  int taken = 0;
  constexpr int rounds = 200'000;
  for (int i = 0; i < rounds; ++i) taken += scanned_alike(to_text(numbers.next_cotyp())) ? 1 : 0;
  EXPECT_GT(taken, rounds / 100 * 75);
}

TEST(ScanQuantity, OfAnyTextGivesWhatFromTextGivesOrNothing) {
  const std::array<std::string, 24> pieces = {"0",          "1",
                                              "9",          "12345678",
                                              "2147483647", "2147483648",
                                              "-",          "+",
                                              "/",          ".",
                                              "E",          "e",
                                              "i",          "E-",
                                              "E3",         "00000000",
                                              "1/2",        "3i",
                                              " ",          "\t",
                                              "a",          "99999999999999999999",
                                              "0.5",        "\xff"};
  NumberSource numbers(9);
  int taken = 0;
  for (int i = 0; i < 500'000; ++i) {
    std::string text;
    for (int k = numbers.next_integer(0, 6); k >= 0; --k) {
      text += pieces[static_cast<std::size_t>(numbers.next_integer(0, 23))];
    }
    taken += scanned_alike(text) ? 1 : 0;
    if (HasFailure()) return;
  }
  EXPECT_GT(taken, 10'000);
}

}  // namespace
}  // namespace kov::test
