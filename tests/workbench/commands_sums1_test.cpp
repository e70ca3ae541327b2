#include <gtest/gtest.h>

#include <string>

#include "workbench/desk.h"

namespace kov {
namespace {

/// Different bounds in both ranges, and a lattice offset that is none of them.
struct RangeDesk : Desk {
  RangeDesk() {
    table().range[0] = {Lk::filled(1), Lk::filled(2)};
    table().range[1] = {Lk::filled(3), Lk::filled(4)};
    document().slice.set_offset(Lk::filled(7));
  }
  RangeTable& table() { return document().ranges.current_table(); }
};

struct BoundsCase {
  const char* item;
  /// What becomes of the bounds 1 ... 2 of a range that is a destination.
  std::int32_t min;
  std::int32_t max;
};

class Bounds : public testing::TestWithParam<BoundsCase> {};

TEST_P(Bounds, AreWrittenInTheRangesThatAreDestinations) {
  const KeyBox expected{Lk::filled(GetParam().min), Lk::filled(GetParam().max)};
  for (const std::size_t destination : {std::size_t{0}, std::size_t{1}}) {
    RangeDesk desk;
    desk.table().range[1] = desk.table().range[0];
    desk.workbench.range_is_destination = {destination == 0, destination == 1};
    const KeyBox untouched = desk.table().range[0];
    EXPECT_EQ(desk.run_text("Sums1", GetParam().item), "");
    EXPECT_EQ(desk.table().range[destination], expected);
    EXPECT_EQ(desk.table().range[1 - destination], untouched);
  }
}

INSTANTIATE_TEST_SUITE_P(Sums1, Bounds,
                         testing::Values(BoundsCase{"Set full Range (-...+)", lowest_int, highest_int},
                                         BoundsCase{"Copy Min to Max", 1, 1},
                                         BoundsCase{"Copy Max to Min", 2, 2},
                                         BoundsCase{"Copy Lattice Offset to Max", 1, 7},
                                         BoundsCase{"Copy Lattice Offset to Min", 7, 2},
                                         BoundsCase{"Set Min to 0", 0, 2}, BoundsCase{"Set Max to 0", 1, 0}));

TEST(Sums1Menu, ExchangeRangesIgnoresTheCheckBoxesAndLeavesTheAxes) {
  RangeDesk desk;
  desk.workbench.range_is_destination = {false, false};
  desk.table().icoo_along_x_in_g = {5, 6};
  desk.run("Sums1", "Exchange Ranges");
  EXPECT_EQ(desk.table().range[0].min, Lk::filled(3));
  EXPECT_EQ(desk.table().range[1].max, Lk::filled(2));
  EXPECT_EQ(desk.table().icoo_along_x_in_g[0], 5);
}

TEST(Sums1Menu, SetTableToDefaultIgnoresTheCheckBoxes) {
  RangeDesk desk;
  desk.workbench.range_is_destination = {false, false};
  desk.run("Sums1", "Set Table to Default");
  EXPECT_EQ(desk.table(), RangeTable{});
}

TEST(Sums1Menu, ChangeTableNumberStoresTheIndexAndOpensTheMenu) {
  Desk desk;
  EXPECT_EQ(desk.caption("Sums1", "Change Table Number"), "Choose new Table (curr.: 0)");
  EXPECT_EQ(desk.run_text("Sums1", "Change Table Number", {"5"}),
            dialog_report("Sums1: Choose Table Nr",
                          "To choose Sums1 (Range) table index\nenter integer i [0<=i<=31]", "5"));
  EXPECT_EQ(desk.document().ranges.current_index(), 5);
  EXPECT_EQ(desk.document().cph.kmi("Sums1_DefaultTableIndex"), 5);
  EXPECT_TRUE(desk.workbench.sums1.menu_open());
  EXPECT_EQ(desk.caption("Sums1", "Change Table Number"), "Choose new Table (curr.: 5)");
  EXPECT_EQ(desk.preset("Sums1", "Change Table Number"), "5");
  EXPECT_EQ(desk.run("Sums1", "Change Table Number", {"32"}).back(), "refused: 32");
  EXPECT_EQ(desk.document().ranges.current_index(), 5);
}

TEST(Sums1Menu, CopyTableCopiesEverythingAndChangesToTheCopy) {
  RangeDesk desk;
  desk.table().icoo_along_y_in_g2 = {8, 9};
  const RangeTable table = desk.table();
  EXPECT_EQ(desk.run_text("Sums1", "Copy Table", {"31"}),
            dialog_report("Sums1: Copy Table Nr.",
                          "To copy Sums1 table 0 to table with index i\nenter integer i [0<=i<=31]", "31"));
  EXPECT_EQ(desk.document().ranges.current_index(), 31);
  EXPECT_EQ(desk.document().cph.kmi("Sums1_DefaultTableIndex"), 31);
  EXPECT_EQ(desk.table(), table);
  EXPECT_EQ(desk.preset("Sums1", "Copy Table"), "31");
  desk.run("Sums1", "Copy Table");
  EXPECT_EQ(desk.document().ranges.current_index(), 31);
}

TEST(Sums1Menu, CloseSumsUpAndDisplays) {
  Desk desk;
  desk.fill_rows(0, 2);
  desk.workbench.sums1.open_menu();
  EXPECT_EQ(desk.run_text("Sums1", "Close"), "");
  EXPECT_FALSE(desk.workbench.sums1.menu_open());
  EXPECT_EQ(desk.workbench.sums1.Slsums1_text(1, 1), "1");
  EXPECT_EQ(desk.workbench.sums1.Slsums1_text(3, 1), "3");
  EXPECT_EQ(desk.workbench.sums1.Slsums1_text(3, 2), "6");
}

}  // namespace
}  // namespace kov
