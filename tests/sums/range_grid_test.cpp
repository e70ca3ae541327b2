#include "sums/range_grid.h"

#include <gtest/gtest.h>

#include "sums/sums_desk.h"

namespace kov {
namespace {

constexpr int row_of_l = 1;
constexpr int row_of_n = 2;
constexpr int row_of_k1 = 3;
constexpr int row_of_k5 = 7;

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

TEST_F(RangeGridTest, ShowsTheCurrentTable) {
  EXPECT_EQ(grid.column_count(), 5);
  EXPECT_EQ(grid.row_count(), 33);
  tables.choose(3);
  EXPECT_EQ(grid.text({0, 0}), "3: R->");
  EXPECT_EQ(grid.text({1, row_of_k1}), "-");
  EXPECT_GT(grid.column_width(0), grid.column_width(1));
  EXPECT_EQ(grid.column_width(1), grid.default_column_width());
}

TEST_F(RangeGridTest, OnlyBoundsCanBeEdited) {
  for (int column = 0; column < 5; ++column) {
    for (int row = 0; row < 33; ++row) {
      EXPECT_EQ(grid.editable({column, row}), column > 0 && row > 0) << column << ',' << row;
    }
  }
}

TEST_F(RangeGridTest, ShowingThePageSumsUp) {
  fill_line(2);
  grid.show();
  EXPECT_TRUE(summed_up());
}

struct AxisCase {
  char letter;
  std::array<std::int32_t, 2> x;
  std::array<std::int32_t, 2> y;
};

TEST_F(RangeGridTest, LettersMakeTheRowAnAxis) {
  // clang-format off
  const AxisCase cases[] = {
      {'A', {5, 1}, {0, 0}}, {'B', {1, 5}, {0, 0}}, {'C', {1, 1}, {5, 0}},
      {'D', {1, 1}, {0, 5}}, {'X', {5, 5}, {0, 0}}, {'Y', {1, 1}, {5, 5}},
      {'a', {5, 1}, {0, 0}}, {'b', {1, 5}, {0, 0}}, {'c', {1, 1}, {5, 0}},
      {'d', {1, 1}, {0, 5}}, {'x', {5, 5}, {0, 0}}, {'y', {1, 1}, {5, 5}},
  };
  // clang-format on
  for (const int column : {0, 1, 4}) {
    for (const AxisCase& c : cases) {
      table() = RangeTable{};
      select(column, row_of_k5);
      press(c.letter);
      EXPECT_EQ(table().icoo_along_x_in_g, c.x) << c.letter;
      EXPECT_EQ(table().icoo_along_y_in_g2, c.y) << c.letter;
      EXPECT_TRUE(reports.empty());
    }
  }
}

TEST_F(RangeGridTest, AnAxisThatTakesTheOtherOneSwapsThem) {
  select(1, row_of_n);
  press('A');
  EXPECT_EQ(grid.text({0, row_of_n}), "n=x1       y2");
  EXPECT_EQ(grid.text({0, row_of_k1}), "k1=y1       x2");
}

TEST_F(RangeGridTest, TheFirstRowIsTheLatticeIndex) {
  select(2, row_of_l);
  press('X');
  EXPECT_EQ(table().icoo_along_x_in_g[0], l_position);
  press('P');
  EXPECT_EQ(range(0).max.coo[l_position], 1);
}

TEST_F(RangeGridTest, PAndMStepTheSelectedBound) {
  set_bounds(1, 5, -9, 9);
  select(3, row_of_k5);
  press('P');
  press('p');
  EXPECT_EQ(range(1).min.coo[5], -7);
  press('m');
  press('M');
  press('M');
  EXPECT_EQ(range(1).min.coo[5], -10);
  select(4, row_of_k5);
  press('P');
  EXPECT_EQ(range(1).max.coo[5], 10);
  EXPECT_EQ(grid.text({4, row_of_k5}), "10");
  EXPECT_TRUE(reports.empty());
}

TEST_F(RangeGridTest, PAndMStayAtTheEndsWithABeep) {
  select(2, row_of_k1);
  press('P');
  EXPECT_EQ(grid.text({2, row_of_k1}), "+");
  EXPECT_EQ(take_reports(), Reports{"beep"});
  select(1, row_of_k1);
  press('M');
  EXPECT_EQ(grid.text({1, row_of_k1}), "-");
  EXPECT_EQ(take_reports(), Reports{"beep"});
}

TEST_F(RangeGridTest, PAndMThatPassThePartnerExchangeAndMoveTheCursor) {
  select(1, row_of_k5);
  press('P');
  EXPECT_EQ(range(0).min.coo[5], 0);
  EXPECT_EQ(range(0).max.coo[5], 1);
  EXPECT_EQ(grid.selected(), (GridCell{2, row_of_k5}));
  EXPECT_EQ(take_reports(), Reports{"beep"});
  select(4, row_of_k5);
  press('M');
  EXPECT_EQ(range(1).min.coo[5], -1);
  EXPECT_EQ(range(1).max.coo[5], 0);
  EXPECT_EQ(grid.selected(), (GridCell{3, row_of_k5}));
  EXPECT_EQ(take_reports(), Reports{"beep"});
}

TEST_F(RangeGridTest, QAndWGoThroughTheTablesAndStoreTheIndex) {
  const auto index_after = [this](char letter) {
    press(letter);
    EXPECT_EQ(cph.kmi("Sums1_DefaultTableIndex"), tables.current_index());
    return tables.current_index();
  };
  EXPECT_EQ(index_after('Q'), 31);
  EXPECT_EQ(index_after('q'), 30);
  EXPECT_EQ(index_after('W'), 31);
  EXPECT_EQ(index_after('w'), 0);
  EXPECT_EQ(grid.text({0, 0}), "0: R->");
  EXPECT_TRUE(reports.empty());
}

TEST_F(RangeGridTest, AnyOtherKeyBeepsAndDoesNothing) {
  const RangeTable before = table();
  for (const char c : {'E', 'z', ' ', '.', '/', '*', '\x7f'}) {
    press(c);
    EXPECT_EQ(take_reports(), Reports{"beep"}) << c;
  }
  EXPECT_EQ(table(), before);
  EXPECT_FALSE(page.menu_open());
}

TEST_F(RangeGridTest, LettersThatDoNotApplyToAHeadingBeep) {
  const RangeTable before = table();
  for (const char letter : {'A', 'B', 'C', 'D', 'X', 'Y', 'P', 'M'}) {
    select(1, 0);
    press(letter);
    EXPECT_EQ(take_reports(), Reports{"beep"}) << letter;
  }
  for (const char letter : {'P', 'M'}) {
    select(0, row_of_k5);
    press(letter);
    EXPECT_EQ(take_reports(), Reports{"beep"}) << letter;
  }
  EXPECT_EQ(table(), before);
}

TEST_F(RangeGridTest, DigitsSignsAndMovesAreLeftToTheEditor) {
  for (const char c : std::string("0123456789+-")) EXPECT_FALSE(grid.key(GridKey::of(c))) << c;
  using enum GridKey::Name;
  for (const auto name : {backspace, tab, up, down, page_up, page_down, first_page, last_page}) {
    EXPECT_FALSE(grid.key({name}));
  }
  EXPECT_TRUE(reports.empty());
  EXPECT_FALSE(page.menu_open());
}

TEST_F(RangeGridTest, ATypedBoundIsTakenWhenAnotherCellIsSelected) {
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

TEST_F(RangeGridTest, TypedTexts) {
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

TEST_F(RangeGridTest, ATextThatIsNoBoundBeepsAndIsUndone) {
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

TEST_F(RangeGridTest, AMinimumAboveItsMaximumIsStoredAsTheMaximum) {
  set_bounds(0, 5, 3, 7);
  select(1, row_of_k5);
  type("9");
  grid.leave();
  EXPECT_EQ(range(0).min.coo[5], 3);
  EXPECT_EQ(range(0).max.coo[5], 9);
  EXPECT_EQ(grid.selected(), (GridCell{2, row_of_k5}));
  EXPECT_EQ(reports, Reports{"beep"});
}

TEST_F(RangeGridTest, AMaximumBelowItsMinimumIsStoredAsTheMinimum) {
  set_bounds(1, 5, 7, 8);
  select(4, row_of_k5);
  type("5");
  grid.leave();
  EXPECT_EQ(range(1).min.coo[5], 5);
  EXPECT_EQ(range(1).max.coo[5], 8);
  EXPECT_EQ(grid.selected(), (GridCell{3, row_of_k5}));
  EXPECT_EQ(reports, Reports{"beep"});
}

TEST_F(RangeGridTest, EnterTakesTheTextSumsUpAndClosesTheMenu) {
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

TEST_F(RangeGridTest, ALetterActsBehindWhatWasTyped) {
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

TEST_F(RangeGridTest, ALetterActsWhereTheTypedValueWent) {
  set_bounds(0, 5, 3, 7);
  select(1, row_of_k5);
  type("9");
  press('P');
  EXPECT_EQ(range(0).min.coo[5], 3);
  EXPECT_EQ(range(0).max.coo[5], 10);
}

TEST_F(RangeGridTest, NothingStepsBehindATextThatIsRefused) {
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

TEST_F(RangeGridTest, EscBeepsAndGivesTheEditUp) {
  select(2, row_of_k5);
  type("4");
  press(GridKey::Name::escape);
  EXPECT_EQ(reports, Reports{"beep"});
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(range(0).max.coo[5], 0);
}

TEST_F(RangeGridTest, AKeyThatBeepsLeavesTheEdit) {
  select(2, row_of_k5);
  type("4");
  press('E');
  EXPECT_EQ(grid.editor_text(), "4");
}

TEST_F(RangeGridTest, EveryHandledKeyOpensTheMenu) {
  fill_line(2);
  for (const char letter : std::string("ABCDXYPMQWp")) {
    page.close_menu(user());
    press(letter);
    EXPECT_TRUE(page.menu_open()) << letter;
  }
}

TEST_F(RangeGridTest, EveryHandledKeySumsUpAtOnceWhereThatIsWanted) {
  fill_line(2);
  sum_up_at_once();
  cph.setkmi_1("Sums_EntryCountPerDisplay", 2);
  for (const char letter : std::string("ABCDXYPMQW")) {
    take_reports();
    press(letter);
    EXPECT_EQ(reports.back(), "caption: lattice point 2 of 2 summed up") << letter;
    EXPECT_FALSE(page.menu_open()) << letter;
  }
}

TEST_F(RangeGridTest, SelectingACellOpensTheMenuOrSumsUp) {
  fill_line(2);
  grid.select({2, 2});
  EXPECT_TRUE(page.menu_open());
  EXPECT_FALSE(summed_up());
  sum_up_at_once();
  grid.select({2, 3});
  EXPECT_FALSE(page.menu_open());
  EXPECT_TRUE(summed_up());
}

TEST_F(RangeGridTest, AnExchangeSumsUpOnce) {
  fill_line(2);
  sum_up_at_once();
  cph.setkmi_1("Sums_EntryCountPerDisplay", 2);
  const Reports beep_and_sum{"beep", "caption: lattice point 2 of 2 summed up"};
  select(1, row_of_k5);
  press('P');
  EXPECT_EQ(take_reports(), beep_and_sum);
  select(1, row_of_k5);
  type("9");
  grid.select({3, row_of_l});
  EXPECT_EQ(take_reports(), beep_and_sum);
  select(1, row_of_k5);
  type("11");
  press(GridKey::Name::enter);
  EXPECT_EQ(take_reports(), beep_and_sum);
}

TEST_F(RangeGridTest, TheRightButtonOpensTheMenu) {
  sum_up_at_once();
  grid.click(GridClick::right, grid.selected());
  EXPECT_TRUE(page.menu_open());
}

TEST_F(RangeGridTest, ALeftClickOnTheSelectedCellDoesNothing) {
  fill_line(2);
  grid.click(GridClick::left, grid.selected());
  EXPECT_FALSE(page.menu_open());
  EXPECT_FALSE(summed_up());
}

TEST_F(RangeGridTest, ADoubleClickTakesTheTextAndSumsUp) {
  fill_line(9);
  select(1, row_of_k1);
  type("7");
  grid.click(GridClick::double_click, {1, row_of_k1});
  EXPECT_EQ(page.Slsums1_text(1, 1), "2");
  EXPECT_FALSE(page.menu_open());
}

TEST_F(RangeGridTest, SaysThatItChanged) {
  int changes = 0;
  grid.set_changed([&changes] { ++changes; });
  press('W');
  EXPECT_EQ(changes, 1);
  press(GridKey::Name::enter);
  EXPECT_EQ(changes, 2);
  press('!');
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace kov
