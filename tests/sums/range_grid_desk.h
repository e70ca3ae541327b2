#pragma once

#include <gtest/gtest.h>

#include <string>

#include "sums/range_grid.h"
#include "sums/sums_desk.h"

namespace kov {

inline constexpr int row_of_l = 1;
inline constexpr int row_of_n = 2;
inline constexpr int row_of_k1 = 3;
inline constexpr int row_of_k5 = 7;

/// The range table's grid and who sits at it.
class RangeGridTest : public ::testing::Test, protected SumsDesk {
 protected:
  RangeTable& table() { return tables.current_table(); }
  KeyBox& range(std::size_t index) { return table().range[index]; }
  void set_bounds(std::size_t index, std::size_t position, std::int32_t min, std::int32_t max) {
    range(index).min.coo[position] = min;
    range(index).max.coo[position] = max;
  }
  void select(int column, int row) {
    grid.select({column, row});
    reports.clear();
  }
  void type(const std::string& text) {
    for (const char c : text) grid.press(GridKey::of(c));
  }
  void press(char letter) { EXPECT_TRUE(grid.key(GridKey::of(letter))) << letter; }
  void press(GridKey::Name name) { EXPECT_TRUE(grid.key({name})); }
  void sum_up_at_once() { cph.setkmi_1("Sums1_SumUp_at_once", 1); }
  bool summed_up() const { return page.Slsums1_text(3, 1) != ""; }

  RangeGrid grid{tables, page, cph, user()};
};

}  // namespace kov
