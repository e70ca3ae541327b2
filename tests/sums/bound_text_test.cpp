#include "sums/bound_text.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(BoundText, TheEndsOfTheRangeAreSigns) {
  struct Case {
    std::int32_t bound;
    const char* text;
  };
  // clang-format off
  const Case cases[] = {
      {INT32_MAX,     "+"},
      {INT32_MIN,     "-"},
      {INT32_MAX - 1, "2147483646"},
      {INT32_MIN + 1, "-2147483647"},
      {0,             "0"},
      {-7,            "-7"},
      {1234567,       "1234567"},
  };
  // clang-format on
  for (const Case& c : cases) {
    EXPECT_EQ(bound_text(c.bound), c.text);
    EXPECT_EQ(parse_bound(c.text), c.bound);
  }
}

TEST(BoundText, Parsing) {
  struct Case {
    const char* text;
    std::optional<std::int32_t> bound;
  };
  // clang-format off
  const Case cases[] = {
      {"2147483647",   INT32_MAX},
      {"-2147483648",  INT32_MIN},
      {" 5 ",          5},
      {"\t- ",         INT32_MIN},
      {"+5",           5},
      {"007",          7},
      {"",             std::nullopt},
      {"  ",           std::nullopt},
      {"++",           std::nullopt},
      {"--",           std::nullopt},
      {"+-",           std::nullopt},
      {"5x",           std::nullopt},
      {"x",            std::nullopt},
      {"1 2",          std::nullopt},
      {"1.5",          std::nullopt},
      {"1/2",          std::nullopt},
      {"2147483648",   std::nullopt},
      {"-2147483649",  std::nullopt},
      {"99999999999",  std::nullopt},
  };
  // clang-format on
  for (const Case& c : cases) EXPECT_EQ(parse_bound(c.text), c.bound) << '"' << c.text << '"';
}

}  // namespace
}  // namespace kov
