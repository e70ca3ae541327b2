#include "sums/range_edits.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

using Axes = std::array<std::int32_t, 2>;

TEST(RangeEdits, AxisSelectionSwapsWithTheOtherAxis) {
  struct Case {
    Axes before;  // x, y
    Axis axis;
    std::int32_t position;
    Axes after;
  };
  // clang-format off
  const Case cases[] = {
      {{1, 0}, Axis::x, 1,  {1, 0}},
      {{1, 0}, Axis::x, 7,  {7, 0}},
      {{1, 0}, Axis::x, 0,  {0, 1}},
      {{1, 0}, Axis::y, 0,  {1, 0}},
      {{1, 0}, Axis::y, 31, {1, 31}},
      {{1, 0}, Axis::y, 1,  {0, 1}},
      {{5, 9}, Axis::x, 9,  {9, 5}},
      {{5, 9}, Axis::y, 5,  {9, 5}},
  };
  // clang-format on
  for (const Case& c : cases) {
    for (const std::size_t range : {0U, 1U}) {
      RangeTable table;
      table.icoo_along_x_in_g[range] = c.before[0];
      table.icoo_along_y_in_g2[range] = c.before[1];
      set_axis(table, range, c.axis, c.position);
      EXPECT_EQ((Axes{table.icoo_along_x_in_g[range], table.icoo_along_y_in_g2[range]}), c.after);
      EXPECT_EQ(table.icoo_along_x_in_g[1 - range], 1);
      EXPECT_EQ(table.icoo_along_y_in_g2[1 - range], 0);
      EXPECT_EQ(table.range, RangeTable::default_ranges());
    }
  }
}

TEST(RangeEdits, AnAxisOfBothRanges) {
  RangeTable table;
  table.icoo_along_y_in_g2 = {4, 0};
  set_axis_of_both(table, Axis::x, 4);
  EXPECT_EQ(table.icoo_along_x_in_g, (Axes{4, 4}));
  EXPECT_EQ(table.icoo_along_y_in_g2, (Axes{1, 0}));
  set_axis_of_both(table, Axis::y, 31);
  EXPECT_EQ(table.icoo_along_x_in_g, (Axes{4, 4}));
  EXPECT_EQ(table.icoo_along_y_in_g2, (Axes{31, 31}));
}

constexpr std::int32_t lo = INT32_MIN;
constexpr std::int32_t hi = INT32_MAX;

/// Bounds at one position before and after an edit, and what the edit gives back.
struct EditCase {
  std::array<std::int32_t, 2> before;  // min, max
  Bound edited;
  const char* input;
  std::array<std::int32_t, 2> after;
  Bound cursor;
  bool stored;
  bool beep;
};

template <class Edit>
void expect_edit(const EditCase& c, const Edit& edit) {
  for (const std::size_t range : {0U, 1U}) {
    for (const std::size_t position : {0U, 1U, 17U, 31U}) {
      RangeTable table;
      const BoundPlace min{range, Bound::min, position};
      const BoundPlace max{range, Bound::max, position};
      bound_at(table, min) = c.before[0];
      bound_at(table, max) = c.before[1];
      RangeTable expected = table;
      bound_at(expected, min) = c.after[0];
      bound_at(expected, max) = c.after[1];
      const BoundEdit result = edit(table, BoundPlace{range, c.edited, position});
      EXPECT_EQ(table, expected) << c.input << " position " << position;
      EXPECT_EQ(result, (BoundEdit{{range, c.cursor, position}, c.stored, c.beep})) << c.input;
    }
  }
}

TEST(RangeEdits, TypingABound) {
  // clang-format off
  const EditCase cases[] = {
      {{0, 9},   Bound::min, "4",   {4, 9},   Bound::min, true,  false},
      {{0, 9},   Bound::max, "4",   {0, 4},   Bound::max, true,  false},
      {{0, 9},   Bound::min, "9",   {9, 9},   Bound::min, true,  false},
      {{0, 9},   Bound::max, "0",   {0, 0},   Bound::max, true,  false},
      {{0, 9},   Bound::min, "10",  {0, 10},  Bound::max, true,  true},
      {{7, 9},   Bound::max, "5",   {5, 9},   Bound::min, true,  true},
      {{0, 9},   Bound::min, "-",   {lo, 9},  Bound::min, true,  false},
      {{0, 9},   Bound::max, "+",   {0, hi},  Bound::max, true,  false},
      {{0, 9},   Bound::min, "+",   {0, hi},  Bound::max, true,  true},
      {{0, 9},   Bound::max, "-",   {lo, 9},  Bound::min, true,  true},
      {{lo, hi}, Bound::min, "+",   {hi, hi}, Bound::min, true,  false},
      {{0, 9},   Bound::min, "",    {0, 9},   Bound::min, false, true},
      {{0, 9},   Bound::max, "a",   {0, 9},   Bound::max, false, true},
      {{0, 9},   Bound::max, "1.5", {0, 9},   Bound::max, false, true},
      {{0, 9},   Bound::min, "2147483648", {0, 9}, Bound::min, false, true},
      {{9, 2},   Bound::min, "5",   {9, 5},   Bound::max, true,  true},
      {{9, 2},   Bound::max, "5",   {5, 2},   Bound::min, true,  true},
  };
  // clang-format on
  for (const EditCase& c : cases) {
    expect_edit(c, [&c](RangeTable& table, const BoundPlace& place) {
      return type_bound(table, place, std::string_view(c.input));
    });
  }
}

TEST(RangeEdits, TypingNeverTurnsAnOrderedPairAround) {
  for (std::int32_t min = -2; min <= 2; ++min) {
    for (std::int32_t max = min; max <= 2; ++max) {
      for (const Bound bound : {Bound::min, Bound::max}) {
        for (const std::int32_t value : {lo, -3, -2, -1, 0, 1, 2, 3, hi}) {
          RangeTable table;
          bound_at(table, {0, Bound::min, 3}) = min;
          bound_at(table, {0, Bound::max, 3}) = max;
          const BoundEdit edit = type_bound(table, {0, bound, 3}, value);
          EXPECT_LE(bound_at(table, {0, Bound::min, 3}), bound_at(table, {0, Bound::max, 3}));
          EXPECT_EQ(bound_at(table, edit.cursor), value);
        }
      }
    }
  }
}

TEST(RangeEdits, SteppingUp) {
  // clang-format off
  const EditCase cases[] = {
      {{0, 9},      Bound::min, "P", {1, 9},      Bound::min, true,  false},
      {{0, 9},      Bound::max, "P", {0, 10},     Bound::max, true,  false},
      {{9, 9},      Bound::min, "P", {9, 10},     Bound::max, true,  true},
      {{lo, 9},     Bound::min, "P", {lo + 1, 9}, Bound::min, true,  false},
      {{0, hi - 1}, Bound::max, "P", {0, hi},     Bound::max, true,  false},
      {{0, hi},     Bound::max, "P", {0, hi},     Bound::max, false, true},
      {{hi, hi},    Bound::min, "P", {hi, hi},    Bound::min, false, true},
  };
  // clang-format on
  for (const EditCase& c : cases) expect_edit(c, increase_bound);
}

TEST(RangeEdits, SteppingDown) {
  // clang-format off
  const EditCase cases[] = {
      {{0, 9},      Bound::min, "M", {-1, 9},     Bound::min, true,  false},
      {{0, 9},      Bound::max, "M", {0, 8},      Bound::max, true,  false},
      {{9, 9},      Bound::max, "M", {8, 9},      Bound::min, true,  true},
      {{0, hi},     Bound::max, "M", {0, hi - 1}, Bound::max, true,  false},
      {{lo + 1, 9}, Bound::min, "M", {lo, 9},     Bound::min, true,  false},
      {{lo, 9},     Bound::min, "M", {lo, 9},     Bound::min, false, true},
      {{lo, lo},    Bound::max, "M", {lo, lo},    Bound::max, false, true},
  };
  // clang-format on
  for (const EditCase& c : cases) expect_edit(c, decrease_bound);
}

}  // namespace
}  // namespace kov
