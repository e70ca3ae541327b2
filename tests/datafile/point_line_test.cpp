#include "datafile/point_line.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "file_desk.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

TEST(PointFields, GoToTheirPositions) {
  std::string text = "-7";
  for (int i = 0; i <= 30; ++i) text.append(" ").append(int_text(100 + i));
  text += "\t1/2+3/4i rest";
  const PointFields fields = scan_point_fields(text);
  EXPECT_EQ(fields.count, point_field_count);
  EXPECT_EQ(fields.key.l(), -7);
  for (std::size_t i = 0; i <= 30; ++i) EXPECT_EQ(fields.key.coo[i], 100 + static_cast<int>(i));
  EXPECT_EQ(fields.quantity, "1/2+3/4i");
  EXPECT_EQ(fields.rest, " rest");
}

TEST(PointFields, AreCountedUpToTheFirstThatIsNone) {
  struct Row {
    std::string text;
    int count;
  };
  const std::vector<Row> rows = {
      {"", 0},
      {"   ", 0},
      {"x", 0},
      {"1", 1},
      {"1 2 3 x 5", 3},
      {"1 2.5", 1},
      {"1 2147483648", 1},
      {"1 -2147483649", 1},
      {"1 99999999999999999999999999", 1},
      {"2147483647 -2147483648 +5 -0 000000000000000000001", 5},
      {"1 +-5", 1},
      {"1 -", 1},
      {"1 +", 1},
      {repeated("0", 31), 31},
      {repeated("0", 32), 32},
      {repeated("0", 32) + " \t ", 32},
      {repeated("0", 32) + " 1", 33},
      {repeated("0", 31) + " 1i", 31},
  };
  for (const Row& row : rows) EXPECT_EQ(scan_point_fields(row.text).count, row.count) << row.text;
}

TEST(PointFields, AreTheIntegersThatOneTokenAtATimeGives) {
  std::mt19937 random(20261120);
  const std::vector<std::string> pieces = {"0", "1", "9", "2147483647", "214748364", "8",
                                           "-", "+", " ", "\t",         "x",         "7 "};
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    for (int i = 0; i < 8; ++i) text += pieces[random() % pieces.size()];
    Tokens tokens(text);
    int count = 0;
    Lk key;
    for (const int position : listed_positions) {
      const auto value = parse_int32(tokens.next());
      if (!value) break;
      key.coo[static_cast<std::size_t>(position)] = *value;
      ++count;
    }
    const PointFields fields = scan_point_fields(text);
    ASSERT_EQ(fields.count, count) << text;

    for (int row = 0; row < count; ++row) {
      const auto position = static_cast<std::size_t>(listed_positions[static_cast<std::size_t>(row)]);
      ASSERT_EQ(fields.key.coo[position], key.coo[position]) << text;
    }
  }
}

}  // namespace
}  // namespace kov
