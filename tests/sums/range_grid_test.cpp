#include "sums/range_grid_desk.h"

namespace kov {
namespace {

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
