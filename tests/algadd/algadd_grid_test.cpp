#include "algadd/algadd_grid.h"

#include <gtest/gtest.h>

#include "algadd_grid_fixture.h"
#include "text/integers.h"

namespace kov {
namespace {

// What it shows

TEST_F(AlgaddGridTest, HasAColumnForEachEntryAndARowForEachOfItsFields) {
  EXPECT_EQ(grid_.column_count(), 257);
  EXPECT_EQ(grid_.row_count(), 35);
  EXPECT_EQ(grid_.fixed_columns(), 1);
  EXPECT_EQ(grid_.fixed_rows(), 1);
  EXPECT_EQ(grid_.selected(), (GridCell{1, 1}));
  EXPECT_FALSE(grid_.always_shows_editor());
  EXPECT_TRUE(grid_.editable({1, 1}));
  EXPECT_TRUE(grid_.editable({256, 34}));
  EXPECT_FALSE(grid_.editable({0, 1}));
  EXPECT_FALSE(grid_.editable({1, 0}));
}

TEST_F(AlgaddGridTest, ShowsTheHeadings) {
  algadd_.set_aanr(3);
  EXPECT_EQ(grid_.text({0, 0}), "3=aanr");
  EXPECT_EQ(grid_.text({1, 0}), "0");
  EXPECT_EQ(grid_.text({256, 0}), "255");
  EXPECT_EQ(grid_.text({0, 1}), "p");
  EXPECT_EQ(grid_.text({0, 2}), "ldest");
  EXPECT_EQ(grid_.text({0, 3}), "l");
  EXPECT_EQ(grid_.text({0, 4}), "n");
  EXPECT_EQ(grid_.text({0, 5}), "k1");
  EXPECT_EQ(grid_.text({0, 34}), "k30");
}

TEST_F(AlgaddGridTest, ShowsTheEntriesOfTheCurrentTable) {
  AlgaddEntry entry = entry_of(cotyp(1, 2, -3, 4), -7, 11, 12, 2);
  entry.offset.coo[30] = lowest_int;
  algadd_.set_entry(15, 255, entry);
  EXPECT_EQ(grid_.text({256, p_row}), "0") << "table 0 is the current one";
  EXPECT_EQ(grid_.text({256, n_row}), "1");
  algadd_.set_aanr(15);
  EXPECT_EQ(grid_.text({256, p_row}), "1/2-3/4i");
  EXPECT_EQ(grid_.text({256, ldest_row}), "12");
  EXPECT_EQ(grid_.text({256, l_row}), "11");
  EXPECT_EQ(grid_.text({256, n_row}), "2");
  EXPECT_EQ(grid_.text({256, k1_row}), "-7");
  EXPECT_EQ(grid_.text({256, 34}), "-2147483648");
  EXPECT_EQ(grid_.text({255, k1_row}), "0");
}

TEST_F(AlgaddGridTest, TakesTheColumnWidthFromItsParameter) {
  EXPECT_EQ(grid_.default_column_width(), 50);
  cph_.setkmi_1("SlAlgadd_DefaultColWidth", 77);
  EXPECT_EQ(grid_.default_column_width(), 77);
  EXPECT_EQ(grid_.column_width(0), 77);
}

TEST_F(AlgaddGridTest, HintsAtTheRuleOfAnEntry) {
  AlgaddEntry entry = entry_of(cotyp(1, 2, 0, 1), -1, 3, 4);
  entry.offset.coo[30] = 5;
  algadd_.set_entry(0, 6, entry);
  EXPECT_EQ(grid_.hint({7, 9}), "entry 6: l=3 -> l=4\np=1/2\ndn=1  dk1=-1  dk30=5");
  EXPECT_EQ(grid_.hint({7, 0}), grid_.hint({7, 9}));
  EXPECT_EQ(grid_.hint({1, 1}), "entry 0: empty");
  EXPECT_EQ(grid_.hint({0, 3}),
            "Q: previous table   W: next table\nP: + 1   M: - 1\nright mouse button: table menu");
}

// Tables

TEST_F(AlgaddGridTest, QAndWTurnToTheTablesBeforeAndBehindAroundTheEnds) {
  struct {
    char key;
    int from;
    int to;
  } const turns[] = {{'W', 0, 1}, {'w', 14, 15}, {'W', 15, 0}, {'Q', 0, 15}, {'q', 15, 14}, {'Q', 1, 0}};
  for (const auto& turn : turns) {
    algadd_.set_aanr(turn.from);
    cph_.setkmi_1("Algadd_DefaultTableIndex", 7);
    menu_.clear();
    table_changes_ = 0;
    grid_.press(GridKey::of(turn.key));
    EXPECT_EQ(algadd_.aanr(), turn.to);
    EXPECT_EQ(cph_.kmi("Algadd_DefaultTableIndex"), turn.to);
    EXPECT_EQ(grid_.text({0, 0}), int_text(turn.to) + "=aanr");
    EXPECT_EQ(menu_, std::vector<bool>{false}) << "a filled grid hides the table menu";
    EXPECT_EQ(table_changes_, 1);
  }
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridTest, QAndWTurnTheTableFromAHeadingToo) {
  press({0, 0}, GridKey::of('W'));
  EXPECT_EQ(algadd_.aanr(), 1);
  press({9, 0}, GridKey::of('Q'));
  EXPECT_EQ(algadd_.aanr(), 0);
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridTest, AnEditBelongsToTheTableThatItWasTypedIn) {
  press({1, k1_row}, GridKey::of('5'));
  grid_.press(GridKey::of('W'));
  EXPECT_EQ(algadd_.entry(0, 0).offset.coo[1], 5);
  EXPECT_EQ(algadd_.entry(1, 0).offset.coo[1], 0);
  EXPECT_EQ(grid_.editor_text(), "0");
}

TEST_F(AlgaddGridTest, RefillingGivesAnEditUpAndHidesTheMenu) {
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  press({1, 1}, GridKey::of('5'));
  grid_.refill();
  EXPECT_FALSE(grid_.edited());
  EXPECT_TRUE(algadd_.table_empty(0));
  EXPECT_EQ(menu_, std::vector<bool>{false});
  EXPECT_EQ(changes, 1);
}

TEST_F(AlgaddGridTest, ShowingGivesAnEditUpAndLeavesTheMenu) {
  press({1, 1}, GridKey::of('5'));
  grid_.show();
  EXPECT_FALSE(grid_.edited());
  EXPECT_TRUE(algadd_.table_empty(0));
  EXPECT_TRUE(menu_.empty());
}

TEST_F(AlgaddGridTest, TheRightMouseButtonShowsTheMenu) {
  grid_.click(GridClick::left, {2, 2});
  grid_.click(GridClick::double_click, {2, 2});
  EXPECT_TRUE(menu_.empty());
  grid_.click(GridClick::right, {4, 2});
  EXPECT_EQ(menu_, std::vector<bool>{true});
  EXPECT_EQ(selected_entries_.back(), 3) << "the menu is about the entry under the mouse";
}

TEST_F(AlgaddGridTest, ASelectedColumnMakesItsEntryTheCurrentOne) {
  grid_.select({256, 0});
  grid_.select({2, 34});
  grid_.select({0, 5});
  EXPECT_EQ(selected_entries_, (std::vector<int>{255, 1})) << "the heading column is no entry";
}

}  // namespace
}  // namespace kov
