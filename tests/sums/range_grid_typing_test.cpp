#include "sums/range_grid_desk.h"

namespace kov {
namespace {

using RangeGridTyping = RangeGridTest;

TEST_F(RangeGridTyping, DigitsSignsAndMovesAreLeftToTheEditor) {
  for (const char c : std::string("0123456789+-")) EXPECT_FALSE(grid.key(GridKey::of(c))) << c;
  using enum GridKey::Name;
  for (const auto name : {backspace, tab, up, down, page_up, page_down, first_page, last_page}) {
    EXPECT_FALSE(grid.key({name}));
  }
  EXPECT_TRUE(reports.empty());
  EXPECT_FALSE(page.menu_open());
}

TEST_F(RangeGridTyping, ATypedBoundIsTakenWhenAnotherCellIsSelected) {
  select(2, row_of_k5);
  type("+12");
  EXPECT_EQ(range(0).max.coo[5], 0);
  grid.press({GridKey::Name::down});
  EXPECT_EQ(range(0).max.coo[5], 12);
  EXPECT_TRUE(reports.empty());
}

struct TypedCase {
  const char* text;
  std::int32_t max;
};

TEST_F(RangeGridTyping, TypedTexts) {
  // clang-format off
  const TypedCase cases[] = {
      {"+", highest_int}, {"7", 7}, {"007", 7}, {"+8", 8}, {"2147483646", 2147483646},
      {"2147483647", highest_int}, {"-0", 0},
  };
  // clang-format on
  for (const TypedCase& c : cases) {
    select(2, row_of_k5);
    type(c.text);
    grid.leave();
    EXPECT_EQ(range(0).max.coo[5], c.max) << c.text;
    EXPECT_TRUE(reports.empty()) << c.text;
  }
  select(1, row_of_k5);
  type("-");
  grid.leave();
  EXPECT_EQ(range(0).min.coo[5], lowest_int);
}

TEST_F(RangeGridTyping, ATextThatIsNoBoundBeepsAndIsUndone) {
  const RangeTable before = table();
  for (const char* text : {"", "+-", "1-", "2147483648", "--1", "-2147483649", "1.5", "x"}) {
    select(2, row_of_k5);
    grid.edit(text);
    grid.leave();
    EXPECT_EQ(take_reports(), Reports{"beep"}) << text;
    EXPECT_EQ(table(), before) << text;
    EXPECT_EQ(grid.editor_text(), "0");
  }
}

TEST_F(RangeGridTyping, AMinimumAboveItsMaximumIsStoredAsTheMaximum) {
  set_bounds(0, 5, 3, 7);
  select(1, row_of_k5);
  type("9");
  grid.leave();
  EXPECT_EQ(range(0).min.coo[5], 3);
  EXPECT_EQ(range(0).max.coo[5], 9);
  EXPECT_EQ(grid.selected(), (GridCell{2, row_of_k5}));
  EXPECT_EQ(reports, Reports{"beep"});
}

TEST_F(RangeGridTyping, AMaximumBelowItsMinimumIsStoredAsTheMinimum) {
  set_bounds(1, 5, 7, 8);
  select(4, row_of_k5);
  type("5");
  grid.leave();
  EXPECT_EQ(range(1).min.coo[5], 5);
  EXPECT_EQ(range(1).max.coo[5], 8);
  EXPECT_EQ(grid.selected(), (GridCell{3, row_of_k5}));
  EXPECT_EQ(reports, Reports{"beep"});
}

TEST_F(RangeGridTyping, EnterTakesTheTextSumsUpAndClosesTheMenu) {
  fill_line(9);
  page.open_menu();
  select(1, row_of_k1);
  type("4");
  press(GridKey::Name::enter);
  EXPECT_EQ(range(0).min.coo[1], 4);
  EXPECT_EQ(page.Slsums1_text(1, 1), "5");
  EXPECT_FALSE(page.menu_open());
  EXPECT_FALSE(grid.edited());
}

TEST_F(RangeGridTyping, ALetterActsBehindWhatWasTyped) {
  select(2, row_of_k5);
  type("4");
  press('P');
  EXPECT_EQ(range(0).max.coo[5], 5);
  type("8");
  press('W');
  EXPECT_EQ(tables.table(0).range[0].max.coo[5], 8);
  EXPECT_EQ(tables.table(1), RangeTable{});
  EXPECT_TRUE(reports.empty());
}

TEST_F(RangeGridTyping, ALetterActsWhereTheTypedValueWent) {
  set_bounds(0, 5, 3, 7);
  select(1, row_of_k5);
  type("9");
  press('P');
  EXPECT_EQ(range(0).min.coo[5], 3);
  EXPECT_EQ(range(0).max.coo[5], 10);
}

TEST_F(RangeGridTyping, NothingStepsBehindATextThatIsRefused) {
  const RangeTable before = table();
  select(2, row_of_k5);
  type("4+");
  press('P');
  EXPECT_EQ(take_reports(), Reports{"beep"});
  EXPECT_EQ(table(), before);
  EXPECT_FALSE(grid.edited());
  press('P');
  EXPECT_EQ(range(0).max.coo[5], 1);
  EXPECT_TRUE(reports.empty());
  type("4+");
  press('A');
  EXPECT_EQ(take_reports(), Reports{"beep"});
  EXPECT_EQ(table().icoo_along_x_in_g[0], 5);
}

TEST_F(RangeGridTyping, EscBeepsAndGivesTheEditUp) {
  select(2, row_of_k5);
  type("4");
  press(GridKey::Name::escape);
  EXPECT_EQ(reports, Reports{"beep"});
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(range(0).max.coo[5], 0);
}

TEST_F(RangeGridTyping, AKeyThatBeepsLeavesTheEdit) {
  select(2, row_of_k5);
  type("4");
  press('E');
  EXPECT_EQ(grid.editor_text(), "4");
}

}  // namespace
}  // namespace kov
