#include <gtest/gtest.h>

#include <climits>

#include "numbers/describe.h"
#include "numbers/ratyp.h"

namespace kov {
namespace {

using test::describe;
using test::number;

TEST(RatypText, FullText) {
  struct Row {
    ratyp q;
    std::string_view text;
  };
  // clang-format off
  const Row rows[] = {
      {0, "0"},
      {-3, "-3"},
      {17, "17"},
      {{4, 1}, "4"},
      {{-3, 2}, "-3/2"},
      {{3, -4}, "-3/4"},
      {INT_MAX, "2147483647"},
      {INT_MIN, "-2147483648"},
      {{INT_MIN, 3}, "-2147483648/3"},
      {{-1, INT_MAX}, "-1/2147483647"},
      {ratyp::floating(0.5), "0.5"},
      {ratyp::floating(-0.5), "-0.5"},
      {ratyp::floating(5.0), "5"},
      {ratyp::floating(0.0), "0"},
      {ratyp::floating(-0.0), "0"},
      {ratyp::floating(1.0 / 3.0), "0.333333333333333"},
      {ratyp::floating(1.5e-5), "1.5E-5"},
      {ratyp::floating(1e20), "1E20"},
      {ratyp::floating(4294967296.0), "4294967296"},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(to_text(row.q), row.text);
}

TEST(RatypText, ShortText) {
  struct Row {
    std::string_view q;
    int width;
    std::string_view text;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"13717421/109739369", 6, "0.125"},
      {"13717421/109739369", 14, "0.12499999886094"},
      {"13717421/109739369", 15, "13717421/109739369"},
      {"13717421/109739369", 20, "13717421/109739369"},
      {"1/3", 0, "1/3"},
      {"10/3", 0, "3"},
      {"10/3", 1, "10/3"},
      {"100/3", 1, "3E1"},
      {"100/3", -5, "3E1"},
      {"100/3", INT_MIN, "3E1"},
      {"100/3", INT_MAX, "100/3"},
      {"123456", 3, "123456"},
      {"1234567", 3, "1.23E6"},
      {"-1234567", 4, "-1.235E6"},
      {"0.123456789", 6, "0.123457"},
      {"0.123456789", 8, "0.123456789"},
      {"1.23456789E-5", 3, "1.23E-5"},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(to_text_short(number(row.q), row.width), row.text) << row.q << " in " << row.width;
  }
}

TEST(RatypText, Parsing) {
  struct Row {
    std::string_view text;
    std::string_view value;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"3", "3/1"},
      {"+3", "3/1"},
      {"-3", "-3/1"},
      {"-0", "0/1"},
      {"007", "7/1"},
      {"6/4", "3/2"},
      {"6/-4", "-3/2"},
      {"-6/-4", "3/2"},
      {"+6/+4", "3/2"},
      {"0/5", "0/1"},
      {"0/-5", "0/1"},
      {"0.5", "fl 0.5"},
      {"1.5", "fl 1.5"},
      {"2E3", "fl 2000"},
      {"1e-5", "fl 1e-05"},
      {"5.", "fl 5"},
      {".5", "fl 0.5"},
      {"+0.5", "fl 0.5"},
      {"1.0", "fl 1"},
      {"2147483647", "2147483647/1"},
      {"-2147483648", "-2147483648/1"},
      {"2147483648", "fl 2147483648"},
      {"-2147483649", "fl -2147483649"},
      {"-2147483648/-2147483648", "1/1"},
      {"6/-2147483648", "-3/1073741824"},
      {"-2147483648/-1", "fl 2147483648"},
      {"1/-2147483648", "fl -4.656612873077393e-10"},
      {"1.7976931348623157E308", "fl 1.7976931348623157e+308"},
      {"1E-400", "fl 0"},
  };
  // clang-format on
  for (const Row& row : rows) {
    ratyp q(99);
    ASSERT_TRUE(from_text(row.text, q)) << row.text;
    EXPECT_EQ(describe(q), row.value) << row.text;
  }
}

TEST(RatypText, RejectedTexts) {
  using namespace std::string_view_literals;
  // clang-format off
  constexpr std::string_view texts[] = {
      ""sv, " "sv, "+"sv, "-"sv, "/"sv, "5/"sv, "/5"sv, "1/0"sv, "0/0"sv, "1/-0"sv, "1/2/3"sv, "1//2"sv,
      "1/2/"sv, "1 /2"sv, "1/ 2"sv, " 1"sv, "1 "sv, "1.5/2"sv, "1/2.0"sv, "1e2/3"sv, "+-3"sv, "--3"sv,
      "6/+-4"sv, "2147483648/2"sv, "2/2147483648"sv, "inf"sv, "nan"sv, "0x10"sv, "1,5"sv, "1i"sv, "a"sv,
      "1e400"sv, "1\0"sv, "1/2\0"sv, "1\000/2"sv,
  };
  // clang-format on
  for (const auto text : texts) {
    ratyp q(22, 7);
    EXPECT_FALSE(from_text(text, q)) << text;
    EXPECT_EQ(describe(q), "22/7") << text;
  }
}

}  // namespace
}  // namespace kov
