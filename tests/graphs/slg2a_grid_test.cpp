#include "graphs/slg2a_grid.h"

#include <gtest/gtest.h>

#include "graphs/map_desk.h"

namespace kov {
namespace {

class Slg2aGridTest : public testing::Test, protected MapDesk {
 protected:
  Slg2aGridTest() {
    set("Graph2a_ny", 3);
    grid.set_y_of_curve([](int curve) { return curve < 2 ? std::optional(10 - curve) : std::nullopt; });
    grid.set_states_changed([this] { ++redrawn; });
  }
  std::string states_text() const {
    std::string text;
    for (int curve = 0; curve < 4; ++curve) text += int_text(states[static_cast<std::size_t>(curve)]);
    return text;
  }

  Slg2aGrid grid{states, cph, person.user()};
  int redrawn = 0;
};

TEST_F(Slg2aGridTest, ShowsAColumnForEachCurve) {
  states = {1, 0, 2, 1};
  ASSERT_EQ(grid.column_count(), 4);
  ASSERT_EQ(grid.row_count(), 3);
  const std::vector<std::vector<std::string>> expected = {
      {"curve", "1", "2", "3"}, {"y", "10", "9", ""}, {"plot", "blue", "-", "red"}};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      EXPECT_EQ(grid.text({column, row}),
                expected[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    }
  }
  EXPECT_EQ(grid.text({4, 2}), "") << "of a curve that is gone";
  set("Graph2a_ny", -99);
  EXPECT_EQ(grid.column_count(), 100);
  force("Graph2a_ny", "150");
  EXPECT_EQ(grid.column_count(), 100);
  set("Graph2a_ny", 0);
  EXPECT_EQ(grid.column_count(), 1);
  EXPECT_FALSE(grid.editable({1, 2}));
}

TEST_F(Slg2aGridTest, AClickMakesACurveBlueOrUnselectsIt) {
  states = {2, 0, 1, 0};
  grid.click(GridClick::left, {1, 2});
  EXPECT_EQ(states_text(), "1010") << "from red to blue";
  grid.click(GridClick::left, {1, 0});
  EXPECT_EQ(states_text(), "0010") << "any cell of the column";
  grid.click(GridClick::left, {2, 1});
  EXPECT_EQ(states_text(), "0110");
  EXPECT_EQ(redrawn, 3);
  grid.click(GridClick::left, {0, 1});
  EXPECT_EQ(states_text(), "0110");
  EXPECT_EQ(redrawn, 3) << "a heading is no curve";
}

TEST_F(Slg2aGridTest, ADoubleClickMakesItRed) {
  states = {1, 0, 2, 0};
  for (int column = 1; column <= 3; ++column) grid.click(GridClick::double_click, {column, 2});
  EXPECT_EQ(states_text(), "2220");
  EXPECT_EQ(redrawn, 3);
}

TEST_F(Slg2aGridTest, TheRightButtonAsksForTheStateOfAll) {
  states = {2, 0, 1, 2};
  person.set_answers({"1"});
  grid.click(GridClick::right, {2, 2});
  EXPECT_EQ(
      take_reports(),
      (Reports{
          "dialog: select or unselect all: Choose selection mode i:\n  i=0 will unselect all\n  i=1 will "
          "plot all in blue\n  i=2 will plot all in red\n  \n  \n  enter integer i [0<=i<=2] -> 1"}));
  EXPECT_EQ(states_text(), "1112") << "of the curves that there are";
  EXPECT_EQ(redrawn, 1);
  for (const char* answer : {"0", "2"}) {
    person.set_answers({answer});
    grid.click(GridClick::right, {0, 0});
  }
  EXPECT_EQ(states_text(), "2222");
  person.set_answers({"3"});
  grid.click(GridClick::right, {1, 1});
  EXPECT_EQ(states_text(), "2222") << "refused";
  EXPECT_EQ(redrawn, 3);
}

TEST_F(Slg2aGridTest, TheDialogOpensWithBlue) {
  struct Preset final : Questions {
    std::string text;
    bool yes_no(const std::string&) override { return false; }
    bool all_or_ok(const std::string&) override { return false; }
    std::optional<std::string> input(const InputDialog& dialog, const Accept&) override {
      text = dialog.preset;
      return std::nullopt;
    }
    std::optional<std::filesystem::path> open_file(const std::string&) override { return std::nullopt; }
    std::optional<std::filesystem::path> save_file(const std::string&,
                                                   const std::filesystem::path&) override {
      return std::nullopt;
    }
  } questions;
  Slg2aGrid asked(states, cph, {person, questions, person});
  asked.click(GridClick::right, {1, 1});
  EXPECT_EQ(questions.text, "1");
}

TEST_F(Slg2aGridTest, KeysGiveTheSelectedCurveItsState) {
  grid.select({2, 1});
  grid.press(GridKey::of('2'));
  EXPECT_EQ(states_text(), "0200");
  grid.press(GridKey::of('1'));
  EXPECT_EQ(states_text(), "0100");
  grid.press(GridKey::of('0'));
  EXPECT_EQ(states_text(), "0000");
  EXPECT_EQ(redrawn, 3);
  grid.press(GridKey::of('3'));
  grid.select({0, 1});
  grid.press(GridKey::of('1'));
  EXPECT_EQ(take_reports(), (Reports{"beep", "beep"}));
  EXPECT_EQ(states_text(), "0000");
  EXPECT_FALSE(grid.key({GridKey::Name::down}));
}

}  // namespace
}  // namespace kov
