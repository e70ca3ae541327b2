#include "config/configuration_line.h"

#include <gtest/gtest.h>

#include <vector>

namespace kov {
namespace {

TEST(ConfigurationLine, IsReadOrGivesItsMessage) {
  struct Row {
    const char* rest;
    const char* message;
  };
  // clang-format off
  const std::vector<Row> rows = {
      {" 50 2 2000 1",                       ""},
      {"\t50\t2\t2000\t1",                   ""},
      {" 50 2 2000",                         ""},
      {" 50 2 2000 nonsense and more",       ""},
      {" 2 2 2000 1",                        ""},
      {" 2000 2 2000 1",                     ""},
      {" +50 2 2000 1",                      ""},
      {" 0 -2147483648 2147483647 0",        ""},
      {"",                                   "K: i is no int"},
      {" x 2 2000 1",                        "K: i is no int"},
      {" 1.5 2 2000 1",                      "K: i is no int"},
      {" 50x 2 2000 1",                      "K: i is no int"},
      {" 2147483648 2 2000 1",               "K: i is no int"},
      {" -2147483649 2 2000 1",              "K: i is no int"},
      {" 50",                                "K: min is no int"},
      {" 50 x 2000 1",                       "K: min is no int"},
      {" 50 4294967298 2000 1",              "K: min is no int"},
      {" 50 2",                              "K: max is no int"},
      {" 50 2 x 1",                          "K: max is no int"},
      {" 50 2 99999999999999999999 1",       "K: max is no int"},
      {" 1 2 2000 1",                        "K i = 1 < 2 = min"},
      {" -2147483648 -2147483647 0 1",       "K i = -2147483648 < -2147483647 = min"},
      {" 2001 2 2000 1",                     "K i = 2001 > 2000 = max"},
      {" 5 9 3 1",                           "K i = 5 < 9 = min"},
  };
  // clang-format on
  for (const Row& row : rows) {
    Tokens rest(row.rest);
    ConfigurationLine line;
    EXPECT_EQ(parse_configuration_line("K", rest, line), row.message) << "'" << row.rest << "'";
  }
}

TEST(ConfigurationLine, HoldsTheThreeIntegersInTheirOrder) {
  Tokens rest(" -7 -20 30 0");
  ConfigurationLine line;
  ASSERT_EQ(parse_configuration_line("K", rest, line), "");
  EXPECT_EQ(line.i, -7);
  EXPECT_EQ(line.min, -20);
  EXPECT_EQ(line.max, 30);
  EXPECT_EQ(rest.rest(), " 0");
}

}  // namespace
}  // namespace kov
