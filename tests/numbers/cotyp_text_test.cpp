#include <gtest/gtest.h>

#include <climits>

#include "numbers/cotyp.h"
#include "numbers/describe.h"

namespace kov {
namespace {

using test::describe;
using test::quantity;

TEST(CotypText, FullText) {
  struct Row {
    cotyp q;
    std::string_view text;
  };
  // clang-format off
  const Row rows[] = {
      {0, "0"},
      {5, "5"},
      {{1, 2, 3, 4}, "1/2+3/4i"},
      {{-2, 1, -1, 3}, "-2-1/3i"},
      {{0, 1, 1, 1}, "1i"},
      {{0, 1, -1, 1}, "-1i"},
      {{0, 1, 3, 4}, "3/4i"},
      {{-1, 2, 0, 1}, "-1/2"},
      {cotyp::floating(0.25, 1.5e-5), "0.25+1.5E-5i"},
      {cotyp::floating(0.25, -1.5e-5), "0.25-1.5E-5i"},
      {cotyp::floating(0.0, 0.0), "0"},
      {cotyp::floating(-0.0, -0.0), "0"},
      {cotyp::floating(0.0, -2.5), "-2.5i"},
      {cotyp::floating(-0.0, 2.5), "2.5i"},
      {cotyp::floating(1e20, -0.0), "1E20"},
      {{ratyp(1, 2), ratyp::floating(1.0 / 3.0)}, "1/2+0.333333333333333i"},
      {{INT_MIN, INT_MIN}, "-2147483648-2147483648i"},
  };
  // clang-format on
  for (const Row& row : rows) EXPECT_EQ(to_text(row.q), row.text);
}

TEST(CotypText, ShortText) {
  struct Row {
    std::string_view q;
    int width;
    std::string_view text;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"12345/67891", 6, "0.182"},
      {"12345/67891", 7, "0.182"},
      {"12345/67891", 8, "12345/67891"},
      {"1/2+3/4i", 5, "1/2+3/4i"},
      {"1/2+3/4i", 4, "1/2+3/4i"},
      {"1/2+3456/7891i", 6, "1/2+0.438i"},
      {"1/2-3456/7891i", 6, "1/2-0.438i"},
      {"-3456/7891i", 6, "-0.438i"},
      {"3456/7891i", 7, "3456/7891i"},
      {"3456/7891i", 6, "0.438i"},
      {"1234567+7654321i", 6, "1.23E6+7.65E6i"},
      {"-0.123456789+1E-10i", 8, "-0.1235+1E-10i"},
      {"1234/56789", 1, "0.02"},
      {"1234/56789", -1, "0.02"},
      {"1234/56789", -2, "0.02"},
      {"1234/56789", INT_MIN, "0.02"},
      {"1234/56789", INT_MAX, "1234/56789"},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(to_text_short(quantity(row.q), row.width), row.text) << row.q << " in " << row.width;
  }
}

TEST(CotypText, Parsing) {
  using namespace std::string_view_literals;
  struct Row {
    std::string_view text;
    std::string_view value;
  };
  // clang-format off
  constexpr Row rows[] = {
      {"0", "0/1, 0/1"},
      {"+2", "2/1, 0/1"},
      {"3/4", "3/4, 0/1"},
      {"6/-4", "-3/2, 0/1"},
      {"0.75", "fl 0.75, 0/1"},
      {"1e-5", "fl 1e-05, 0/1"},
      {"i", "0/1, 1/1"},
      {"+i", "0/1, 1/1"},
      {"-i", "0/1, -1/1"},
      {"1i", "0/1, 1/1"},
      {"-1i", "0/1, -1/1"},
      {"+3/4i", "0/1, 3/4"},
      {"0i", "0/1, 0/1"},
      {"3-i", "3/1, -1/1"},
      {"3+i", "3/1, 1/1"},
      {"-3-i", "-3/1, -1/1"},
      {"+3+2i", "3/1, 2/1"},
      {"1/2+3/4i", "1/2, 3/4"},
      {"-2-1/3i", "-2/1, -1/3"},
      {"1e-3-2e+2i", "fl 0.001, fl -200"},
      {"1E-3+2E2i", "fl 0.001, fl 200"},
      {"-1e+3+2i", "fl -1000, 2/1"},
      {"1e5i", "0/1, fl 1e+05"},
      {"1e+5i", "0/1, fl 1e+05"},
      {"0.25+1.5E-5i", "fl 0.25, fl 1.5e-05"},
      {"5+.5i", "5/1, fl 0.5"},
      // The sign behind an "e" is the exponent's, also where a coefficient 1 is understood.
      {"1e+i", "0/1, fl 10"},
      {"1e-i", "0/1, fl 0.1"},
      {"2+1e-i", "2/1, fl 0.1"},
      {"1i ", "0/1, 1/1"},
      {"  1/2 ", "1/2, 0/1"},
      {"\t1+2i\r\n", "1/1, 2/1"},
      {"\0 5 \0"sv, "5/1, 0/1"},
  };
  // clang-format on
  for (const Row& row : rows) {
    cotyp q(99);
    ASSERT_TRUE(from_text(row.text, q)) << row.text;
    EXPECT_EQ(describe(q), row.value) << row.text;
  }
}

TEST(CotypText, RejectedTexts) {
  using namespace std::string_view_literals;
  // clang-format off
  constexpr std::string_view texts[] = {
      ""sv, " "sv, "+"sv, "-"sv, "."sv, "/"sv, "ii"sv, "i3"sv, "5i2"sv, "i i"sv, "I"sv, "1I"sv, "1/0"sv,
      "1/0+i"sv, "1+1/0i"sv, "3+-2i"sv, "3--2i"sv, "3--i"sv, "3-+i"sv, "--i"sv, "+-i"sv, "+-2i"sv,
      "3 + 4i"sv, "3+4 i"sv, "- i"sv, "1+2"sv, "1+2+3i"sv, "1i+2"sv, "i1"sv, "2*i"sv, "1j"sv, "1/i"sv,
      "5/i"sv, "/2i"sv, "1/+2i"sv, "6/-4i"sv, "1ei"sv, "ei"sv, "1+ei"sv, "e+2i"sv, "1e+2e+i"sv, "infi"sv,
      "inf"sv, "nani"sv, "nan"sv, "1e400i"sv, "1e400+i"sv, "1+1e400i"sv, "0x1i"sv, "1,5"sv, "1,5i"sv,
      "1\000i"sv, "1+\0002i"sv, "1\0002"sv, "\0"sv, "1+i\0i"sv,
  };
  // clang-format on
  for (const auto text : texts) {
    cotyp q = cotyp(22, 7, 355, 113);
    EXPECT_FALSE(from_text(text, q)) << text;
    EXPECT_EQ(describe(q), "22/7, 355/113") << text;
  }
}

TEST(CotypText, LongTextsTakeLinearTime) {
  constexpr std::size_t length = 20'000'000;
  cotyp q;
  EXPECT_FALSE(from_text(std::string(length, '+') + "i", q));
  EXPECT_FALSE(from_text(std::string(length, 'e') + "i", q));
  EXPECT_FALSE(from_text(std::string(length, '1') + "-i", q));
  EXPECT_FALSE(from_text(std::string(length, 'i'), q));
  EXPECT_FALSE(from_text(std::string(length, ' '), q));
  EXPECT_EQ(describe(q), "0/1, 0/1");
  EXPECT_TRUE(from_text(std::string(length, '0') + "7-" + std::string(length, '0') + "1/2i", q));
  EXPECT_EQ(describe(q), "7/1, -1/2");
  EXPECT_TRUE(from_text(std::string(length, ' ') + "i" + std::string(length, ' '), q));
  EXPECT_EQ(describe(q), "0/1, 1/1");
}

TEST(CotypText, EveryTextParsesBack) {
  for (const std::string_view text : {"1i", "-1i", "1/2+3/4i", "-2-1/3i", "0.25+1.5E-5i", "5", "-1E20-1E-20i",
                                      "-2147483648/3+2147483647/5i", "1.79769313486231E308"}) {
    EXPECT_EQ(to_text(quantity(text)), text);
  }
}

}  // namespace
}  // namespace kov
