#include "numbers/floating_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace kov {
namespace {

TEST(FloatingText, Texts) {
  struct Row {
    double value;
    int digits;
    std::string_view text;
  };
  // clang-format off
  constexpr Row rows[] = {
      {0.0, 15, "0"},
      {-0.0, 15, "0"},
      {1.0, 15, "1"},
      {-2.5, 15, "-2.5"},
      {0.1, 15, "0.1"},
      {0.1, 17, "0.10000000000000001"},
      {1.0 / 3.0, 15, "0.333333333333333"},
      {2.0 / 3.0, 15, "0.666666666666667"},
      {2.0 / 3.0, 3, "0.667"},
      {4294967296.0, 15, "4294967296"},
      {123456789012345.0, 15, "123456789012345"},
      {1234567890123456.0, 15, "1.23456789012346E15"},
      {1e15, 15, "1E15"},
      {1e14, 15, "100000000000000"},
      {1e20, 15, "1E20"},
      {-1e20, 15, "-1E20"},
      {1.5e-5, 15, "1.5E-5"},
      {-1.5e-5, 15, "-1.5E-5"},
      {1e-5, 15, "1E-5"},
      {0.0001, 15, "0.0001"},
      {-0.00012345678901234567, 17, "-0.00012345678901234567"},
      {1e100, 15, "1E100"},
      {1e-100, 15, "1E-100"},
      {2e10, 15, "20000000000"},
      {999999.5, 6, "1E6"},
      {0.125, 6, "0.125"},
      {1234.0, 1, "1E3"},
      {1234.0, 2, "1.2E3"},
      {1234.0, 0, "1E3"},
      {1234.0, -5, "1E3"},
      {0.1, 99, "0.10000000000000001"},
      {DBL_MIN, 15, "2.2250738585072E-308"},
      {5e-324, 15, "4.94065645841247E-324"},
      // Rounded, these would be no doubles any more.
      {DBL_MAX, 1, "1E308"},
      {DBL_MAX, 2, "1.7E308"},
      {DBL_MAX, 3, "1.79E308"},
      {DBL_MAX, 15, "1.79769313486231E308"},
      {-DBL_MAX, 15, "-1.79769313486231E308"},
      {DBL_MAX, 16, "1.797693134862315E308"},
      {DBL_MAX, 17, "1.7976931348623157E308"},
      {1.5e308, 1, "1E308"},
      {1.4e308, 1, "1E308"},
      {1.7e308, 2, "1.7E308"},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(floating_text(row.value, row.digits), row.text) << row.text;
}

TEST(FloatingText, EveryTextOfAFiniteValueParses) {
  for (const double value : {DBL_MAX, -DBL_MAX, 1.5e308, 1e308, 9.99999999999999999e307, 5e-324, DBL_MIN}) {
    for (int digits = 1; digits <= 17; ++digits) {
      const std::string text = floating_text(value, digits);
      const auto back = parse_floating(text);
      ASSERT_TRUE(back) << text;
      EXPECT_LE(std::abs(*back - value), std::abs(value) * std::pow(10.0, 1 - digits)) << text;
    }
  }
}

TEST(FloatingText, NoFiniteValue) {
  EXPECT_EQ(floating_text(std::numeric_limits<double>::infinity(), 15), "inf");
  EXPECT_EQ(floating_text(-std::numeric_limits<double>::infinity(), 15), "-inf");
  EXPECT_EQ(floating_text(std::numeric_limits<double>::quiet_NaN(), 15), "nan");
}

TEST(ExactText, HasNoMoreDigitsThanItTakes) {
  struct Row {
    double value;
    std::string_view text;
  };
  // clang-format off
  constexpr Row rows[] = {
      {0.0,                   "0"},
      {-0.0,                  "0"},
      {0.1,                   "0.1"},
      {-0.1,                  "-0.1"},
      {1e5,                   "100000"},
      {1e20,                  "1E20"},
      {1.0 / 3.0,             "0.3333333333333333"},
      {2.0 / 3.0,             "0.6666666666666666"},
      {0.1 + 0.2,             "0.30000000000000004"},
      {9007199254740993.0,    "9007199254740992"},
      {DBL_MAX,               "1.7976931348623157E308"},
      {-DBL_MAX,              "-1.7976931348623157E308"},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(exact_text(row.value), row.text);
}

TEST(ExactText, ReadsBackAsTheSameValue) {
  double value = 5e-324;
  for (int i = 0; i < 10'000; ++i) {
    ASSERT_EQ(parse_floating(exact_text(value)), value) << i;
    ASSERT_EQ(parse_floating(exact_text(-value)), -value) << i;
    value = std::max(value * 1.2309149097933274, std::nextafter(value, 1.0));
    if (!std::isfinite(value)) return;
  }
  FAIL() << "the values did not reach the largest double";
}

TEST(ParseFloating, Values) {
  struct Row {
    std::string_view text;
    double value;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"0", 0.0},
      {"1", 1.0},
      {"+1", 1.0},
      {"-1", -1.0},
      {"0.5", 0.5},
      {".5", 0.5},
      {"-.5", -0.5},
      {"+.5", 0.5},
      {"5.", 5.0},
      {"5.e1", 50.0},
      {"2E3", 2000.0},
      {"2e3", 2000.0},
      {"2E+3", 2000.0},
      {"1e-5", 0.00001},
      {"1.5E-5", 0.000015},
      {"-1.5E-5", -0.000015},
      {"000001.500000", 1.5},
      {"2147483648", 2147483648.0},
      {"99999999999999999999", 1e20},
      {"1.7976931348623157E308", DBL_MAX},
      {"-1.7976931348623157E308", -DBL_MAX},
      {"1E0000000000000000000000002", 100.0},
      {"0E99999999999999999999", 0.0},
      {"0.000E400", 0.0},
      {"5e-324", 5e-324},
      {"2.5e-324", 5e-324},
      {"2e-324", 0.0},
      {"-2e-324", 0.0},
      {"1e-400", 0.0},
      {"1e-4294967297", 0.0},
      {"1e-99999999999999999999", 0.0},
      {"12345.678e-400", 0.0},
      {".00001e-320", 0.0},
  };
  // clang-format on
  for (const Row& row : rows) {
    const auto value = parse_floating(row.text);
    ASSERT_TRUE(value) << row.text;
    EXPECT_EQ(*value, row.value) << row.text;
  }
}

TEST(ParseFloating, RejectedTexts) {
  using namespace std::string_view_literals;
  // clang-format off
  constexpr std::string_view texts[] = {
      ""sv, "+"sv, "-"sv, "."sv, "+."sv, "-."sv, "e5"sv, ".e5"sv, "1e"sv, "1e+"sv, "1e-"sv, "1e1.5"sv,
      "+-1"sv, "-+1"sv, "--1"sv, "++1"sv, "1e--5"sv, "1e+-5"sv, "1 "sv, " 1"sv, "1 2"sv, "1,5"sv, "1.5.2"sv,
      "inf"sv, "-inf"sv, "+inf"sv, "INF"sv, "infinity"sv, "nan"sv, "-nan"sv, "NaN"sv, "nan(1)"sv,
      "0x10"sv, "0x1p3"sv, "1p3"sv, "1d5"sv, "1f"sv, "1\0"sv, "\0"sv, "1\0002"sv, "1_000"sv,
      "1e400"sv, "-1e400"sv, "1.7976931348623159E308"sv, "1e4294967297"sv, "1e99999999999999999999"sv,
      "1e+99999999999999999999"sv, "0.00001e400"sv, "12345.678e304999"sv,
  };
  // clang-format on
  for (const auto text : texts) EXPECT_FALSE(parse_floating(text)) << text;
}

TEST(ParseFloating, DigitsMakeUpForTheExponent) {
  const std::string zeros(1000, '0');
  EXPECT_EQ(parse_floating("1" + zeros + "e-1000"), 1.0);
  EXPECT_EQ(parse_floating("0." + zeros + "1e1001"), 1.0);
  EXPECT_EQ(parse_floating("0." + zeros + "1e100"), 0.0);
  EXPECT_EQ(parse_floating("0." + zeros + "1"), 0.0);
  EXPECT_FALSE(parse_floating("1" + zeros));
  EXPECT_FALSE(parse_floating("1" + zeros + ".5e-100"));
}

TEST(ParseFloating, LongTextsTakeLinearTime) {
  const std::string digits(20'000'000, '7');
  EXPECT_FALSE(parse_floating(digits));
  EXPECT_NEAR(parse_floating("." + digits).value_or(0.0), 7.0 / 9.0, 1e-15);
  EXPECT_FALSE(parse_floating(digits + "x"));
}

}  // namespace
}  // namespace kov
