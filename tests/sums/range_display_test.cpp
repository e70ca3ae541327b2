#include "sums/range_display.h"

#include <gtest/gtest.h>

#include "text/integers.h"

namespace kov {
namespace {

TEST(RangeDisplay, Headings) {
  RangeTables tables;
  tables.choose(3);
  const char* const expected[] = {"3: R->", "Min 1", "Max 1", "Min 2", "Max 2"};
  ASSERT_EQ(Slds1_columns, 5);
  for (int column = 0; column < Slds1_columns; ++column) {
    EXPECT_EQ(Slds1_text(tables, column, 0), expected[column]);
  }
}

TEST(RangeDisplay, TheDefaultTable) {
  struct Row {
    int row;
    const char* cells[5];
  };
  // clang-format off
  const Row rows[] = {
      {1,  {"l",                "0", "0", "0", "0"}},
      {2,  {"n=y1       y2",    "0", "0", "0", "0"}},
      {3,  {"k1=x1       x2",   "-", "+", "+", "+"}},
      {4,  {"k2",               "0", "0", "0", "0"}},
      {32, {"k30",              "0", "0", "0", "0"}},
  };
  // clang-format on
  EXPECT_EQ(Slds1_rows, 33);
  const RangeTables tables;
  for (const Row& row : rows) {
    for (int column = 0; column < Slds1_columns; ++column) {
      EXPECT_EQ(Slds1_text(tables, column, row.row), row.cells[column]) << row.row << ' ' << column;
    }
  }
}

TEST(RangeDisplay, EachBoundStandsInItsCell) {
  RangeTables tables;
  tables.choose(5);
  for (std::size_t i = 0; i < MaxDimCount; ++i) {
    const auto position = static_cast<std::int32_t>(i);
    tables.current_table().range[0].min.coo[i] = 1000 + position;
    tables.current_table().range[0].max.coo[i] = 2000 + position;
    tables.current_table().range[1].min.coo[i] = 3000 + position;
    tables.current_table().range[1].max.coo[i] = 4000 + position;
  }
  for (int position = 0; position < MaxDimCount; ++position) {
    const int row = position == l_position ? 1 : position + 2;
    EXPECT_EQ(Slds1_position(row), position);
    for (int column = 1; column < Slds1_columns; ++column) {
      EXPECT_EQ(Slds1_text(tables, column, row), int_text(1000 * column + position));
    }
  }
}

TEST(RangeDisplay, AxisMarks) {
  struct Case {
    std::array<std::int32_t, 2> x;
    std::array<std::int32_t, 2> y;
    int position;
    const char* label;
  };
  // clang-format off
  const Case cases[] = {
      {{1, 1}, {0, 0}, 1,  "k1=x1       x2"},
      {{1, 1}, {0, 0}, 0,  "n=y1       y2"},
      {{1, 1}, {0, 0}, 2,  "k2"},
      {{1, 2}, {0, 3}, 1,  "k1=x1"},
      {{1, 2}, {0, 3}, 0,  "n=y1"},
      {{1, 2}, {0, 3}, 2,  "k2=x2"},
      {{1, 2}, {0, 3}, 3,  "k3=y2"},
      {{1, 0}, {0, 1}, 1,  "k1=x1       y2"},
      {{1, 0}, {0, 1}, 0,  "n=y1       x2"},
      {{31, 2}, {30, 31}, 31, "l=x1       y2"},
      {{31, 2}, {30, 31}, 30, "k30=y1"},
      {{4, 2}, {4, 2}, 4,  "k4=x1=y1"},
      {{4, 2}, {4, 2}, 2,  "k2=x2=y2"},
      {{4, 4}, {4, 4}, 4,  "k4=x1=y1       x2 y2"},
  };
  // clang-format on
  for (const Case& c : cases) {
    RangeTable table;
    table.icoo_along_x_in_g = c.x;
    table.icoo_along_y_in_g2 = c.y;
    EXPECT_EQ(axis_label(table, c.position), c.label);
  }
}

TEST(RangeDisplay, CellsAndBoundsBelongTogether) {
  for (int row = 0; row <= Slds1_rows; ++row) {
    for (int column = 0; column <= Slds1_columns; ++column) {
      const std::optional<BoundPlace> place = Slds1_bound(column, row);
      const bool in_bounds = 1 <= row && row <= 32 && 1 <= column && column <= 4;
      ASSERT_EQ(place.has_value(), in_bounds) << column << ',' << row;
      if (!place) continue;
      EXPECT_EQ(place->range, column <= 2 ? 0U : 1U);
      EXPECT_EQ(place->bound, column == 1 || column == 3 ? Bound::min : Bound::max);
      EXPECT_EQ(Slds1_column(*place), column);
      EXPECT_EQ(static_cast<int>(place->position), Slds1_position(row));
    }
  }
}

}  // namespace
}  // namespace kov
