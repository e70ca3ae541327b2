#include "sums/range_menu.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"

namespace kov {
namespace {

/// A key that differs at every position, lattice index included.
Lk key_from(std::int32_t first) {
  Lk key;
  for (std::size_t i = 0; i < MaxDimCount; ++i) key.coo[i] = first + static_cast<std::int32_t>(i);
  return key;
}

const Lk zero;
const Lk lattice_offset = key_from(500);
const Lk full_minimum = Lk::filled(INT32_MIN);
const Lk full_maximum = Lk::filled(INT32_MAX);

RangeTable distinct_table() {
  RangeTable table;
  table.range[0] = {key_from(100), key_from(200)};
  table.range[1] = {key_from(300), key_from(400)};
  table.icoo_along_x_in_g = {3, 4};
  table.icoo_along_y_in_g2 = {5, 6};
  return table;
}

TEST(RangeMenu, BoundOperationsWriteEveryPositionOfTheDestinations) {
  struct Case {
    const char* name;
    void (*apply)(RangeTable&, const RangeDestinations&);
    KeyBox (*expected)(const KeyBox&);
  };
  // clang-format off
  const Case cases[] = {
      {"full",       [](auto& t, const auto& d) { set_full_range(t, d); },          [](const KeyBox&)   { return KeyBox{full_minimum, full_maximum}; }},
      {"min to max", [](auto& t, const auto& d) { copy_min_to_max(t, d); },         [](const KeyBox& b) { return KeyBox{b.min, b.min}; }},
      {"max to min", [](auto& t, const auto& d) { copy_max_to_min(t, d); },         [](const KeyBox& b) { return KeyBox{b.max, b.max}; }},
      {"offset max", [](auto& t, const auto& d) { set_max(t, d, lattice_offset); }, [](const KeyBox& b) { return KeyBox{b.min, lattice_offset}; }},
      {"offset min", [](auto& t, const auto& d) { set_min(t, d, lattice_offset); }, [](const KeyBox& b) { return KeyBox{lattice_offset, b.max}; }},
      {"min 0",      [](auto& t, const auto& d) { set_min(t, d, zero); },           [](const KeyBox& b) { return KeyBox{zero, b.max}; }},
      {"max 0",      [](auto& t, const auto& d) { set_max(t, d, zero); },           [](const KeyBox& b) { return KeyBox{b.min, zero}; }},
  };
  // clang-format on
  for (const Case& c : cases) {
    for (const RangeDestinations destinations : std::initializer_list<RangeDestinations>{
             {false, false}, {true, false}, {false, true}, {true, true}}) {
      RangeTable table = distinct_table();
      RangeTable expected = table;
      for (const std::size_t range : {0U, 1U}) {
        if (destinations[range]) expected.range[range] = c.expected(table.range[range]);
      }
      c.apply(table, destinations);
      EXPECT_EQ(table, expected) << c.name << ' ' << destinations[0] << destinations[1];
    }
  }
}

TEST(RangeMenu, TheOperationsDoNotKeepBoundsInOrder) {
  RangeTable table = distinct_table();
  set_max(table, {true, true}, zero);
  EXPECT_GT(table.range[0].min.n(), table.range[0].max.n());
}

TEST(RangeMenu, ExchangeLeavesTheAxes) {
  RangeTable table = distinct_table();
  exchange_ranges(table);
  RangeTable expected = distinct_table();
  expected.range = {distinct_table().range[1], distinct_table().range[0]};
  EXPECT_EQ(table, expected);
}

TEST(RangeMenu, DefaultRestoresAxesToo) {
  RangeTable table = distinct_table();
  set_to_default(table);
  EXPECT_EQ(table, RangeTable{});
}

/// Tables together with the parameter that mirrors the current index.
struct Tables {
  RecordingMessages messages;
  cphclass cph{messages};
  RangeTables tables;

  Tables() { cph.InitPrgPar(WindowFacts{}); }
  std::int32_t mirrored() const { return cph.kmi("Sums1_DefaultTableIndex"); }
};

TEST(RangeMenu, ChoosingATableStoresItsIndex) {
  Tables t;
  choose_range_table(t.tables, 31, t.cph);
  EXPECT_EQ(t.tables.current_index(), 31);
  EXPECT_EQ(t.mirrored(), 31);
  EXPECT_TRUE(t.messages.shown.empty());
}

TEST(RangeMenu, TablesAreARing) {
  Tables t;
  choose_previous_range_table(t.tables, t.cph);
  EXPECT_EQ(t.tables.current_index(), 31);
  EXPECT_EQ(t.mirrored(), 31);
  choose_next_range_table(t.tables, t.cph);
  EXPECT_EQ(t.tables.current_index(), 0);
  EXPECT_EQ(t.mirrored(), 0);
  choose_next_range_table(t.tables, t.cph);
  EXPECT_EQ(t.tables.current_index(), 1);
  EXPECT_EQ(t.mirrored(), 1);
  choose_previous_range_table(t.tables, t.cph);
  EXPECT_EQ(t.tables.current_index(), 0);
  EXPECT_EQ(t.mirrored(), 0);
}

TEST(RangeMenu, CopyingATableTakesAllFieldsAndChoosesTheCopy) {
  Tables t;
  t.tables.choose(2);
  t.tables.current_table() = distinct_table();
  copy_range_table(t.tables, 9, t.cph);
  EXPECT_EQ(t.tables.table(9), distinct_table());
  EXPECT_EQ(t.tables.table(2), distinct_table());
  EXPECT_EQ(t.tables.table(8), RangeTable{});
  EXPECT_EQ(t.tables.current_index(), 9);
  EXPECT_EQ(t.mirrored(), 9);
  copy_range_table(t.tables, 9, t.cph);
  EXPECT_EQ(t.tables.table(9), distinct_table());
}

TEST(RangeMenu, Texts) {
  RangeTables tables;
  tables.choose(3);
  EXPECT_STREQ(choose_range_table_caption, "Sums1: Choose Table Nr");
  EXPECT_STREQ(choose_range_table_prompt, "To choose Sums1 (Range) table index");
  EXPECT_STREQ(copy_range_table_caption, "Sums1: Copy Table Nr.");
  EXPECT_EQ(copy_range_table_prompt(tables), "To copy Sums1 table 3 to table with index i");
  EXPECT_EQ(choose_range_table_button(tables), "Choose new Table (curr.: 3)");
  EXPECT_EQ(range_table_bounds.min, 0);
  EXPECT_EQ(range_table_bounds.max, 31);
}

}  // namespace
}  // namespace kov
