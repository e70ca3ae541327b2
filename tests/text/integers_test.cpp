#include "text/integers.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

struct IntegerText {
  const char* text;
  std::optional<std::int32_t> value;
};

TEST(ParseInt32, TakesAWholeTextWithin32Bits) {
  const IntegerText rows[] = {
      {"0", 0},
      {"-0", 0},
      {"17", 17},
      {"+17", 17},
      {"-3", -3},
      {"007", 7},
      {"2147483647", 2147483647},
      {"-2147483648", INT32_MIN},
      {"2147483648", {}},
      {"-2147483649", {}},
      {"99999999999999999999", {}},
      {"", {}},
      {"+", {}},
      {"-", {}},
      {"+-5", {}},
      {"-+5", {}},
      {"++5", {}},
      {" 5", {}},
      {"5 ", {}},
      {"5.0", {}},
      {"5x", {}},
      {"0x10", {}},
  };
  for (const auto& row : rows) EXPECT_EQ(parse_int32(row.text), row.value) << row.text;
}

TEST(IntText, IsPlainDecimal) {
  EXPECT_EQ(int_text(0), "0");
  EXPECT_EQ(int_text(-1234567), "-1234567");
  EXPECT_EQ(int_text(INT64_MIN), "-9223372036854775808");
}

}  // namespace
}  // namespace kov
