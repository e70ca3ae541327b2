#include "interact/grid_model.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

namespace kov {
namespace {

/// Two editable columns and rows beside the headings; remembers what happened.
class RecordingGrid final : public GridModel {
 public:
  int column_count() const override { return 3; }
  int row_count() const override { return 3; }
  std::string text(GridCell cell) const override {
    return std::to_string(cell.column) + "," + std::to_string(cell.row);
  }
  bool editable(GridCell cell) const override { return cell.column > 0 && cell.row > 0; }
  int default_column_width() const override { return 50; }
  bool key(const GridKey& key) override {
    if (key.name != GridKey::Name::character || key.character != 'S') return false;
    events.push_back("S");
    return true;
  }

  using GridModel::move_to;

  std::vector<std::string> events;
  bool fails = false;
  bool moves_and_fails = false;

 protected:
  void take_edit(GridCell cell, const std::string& edited) override {
    if (moves_and_fails) move_to({2, 1});
    if (fails || moves_and_fails) throw std::bad_alloc();
    events.push_back("take " + text(cell) + " " + edited);
  }
  void selection_moved() override { events.push_back("moved"); }
  void clicked(GridClick click, GridCell cell) override {
    events.push_back((click == GridClick::right ? "right " : "click ") + text(cell));
  }
};

using Events = std::vector<std::string>;

TEST(GridModel, TakesAnEditWhenTheSelectionLeavesTheCell) {
  RecordingGrid grid;
  grid.edit("x");
  EXPECT_TRUE(grid.edited());
  EXPECT_EQ(grid.editor_text(), "x");
  grid.select({2, 2});
  EXPECT_EQ(grid.events, (Events{"take 1,1 x", "moved"}));
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(grid.editor_text(), "2,2");
}

TEST(GridModel, TakesNothingFromACellThatWasNotEdited) {
  RecordingGrid grid;
  grid.select({2, 1});
  grid.leave();
  EXPECT_EQ(grid.events, (Events{"moved"}));
}

TEST(GridModel, IgnoresCellsOutsideTheGrid) {
  RecordingGrid grid;
  for (const GridCell cell : {GridCell{-1, 0}, GridCell{3, 0}, GridCell{0, 3}, GridCell{0, -1}}) {
    grid.select(cell);
    EXPECT_EQ(grid.selected(), (GridCell{1, 1}));
  }
}

TEST(GridModel, NeverEditsAHeading) {
  RecordingGrid grid;
  grid.select({0, 0});
  grid.edit("x");
  EXPECT_FALSE(grid.edited());
}

TEST(GridModel, PressedCharactersReplaceTheTextAndThenAppend) {
  RecordingGrid grid;
  grid.press(GridKey::of('4'));
  grid.press(GridKey::of('2'));
  grid.press(GridKey::of('7'));
  grid.press({GridKey::Name::backspace});
  EXPECT_EQ(grid.editor_text(), "42");
  grid.press(GridKey::of('S'));
  EXPECT_EQ(grid.events, (Events{"S"}));
  EXPECT_EQ(grid.editor_text(), "42");
}

TEST(GridModel, TabUpAndDownMoveTheSelection) {
  RecordingGrid grid;
  const auto after = [&grid](GridKey::Name name) {
    grid.press({name});
    return grid.selected();
  };
  EXPECT_EQ(after(GridKey::Name::tab), (GridCell{2, 1}));
  EXPECT_EQ(after(GridKey::Name::tab), (GridCell{1, 2}));
  EXPECT_EQ(after(GridKey::Name::down), (GridCell{1, 2}));
  EXPECT_EQ(after(GridKey::Name::up), (GridCell{1, 1}));
  EXPECT_EQ(after(GridKey::Name::up), (GridCell{1, 1}));
}

TEST(GridModel, TheNextCellIsFoundRowByRowInBothDirections) {
  RecordingGrid grid;
  EXPECT_FALSE(grid.select_next(false));
  EXPECT_EQ(grid.selected(), (GridCell{1, 1}));
  grid.select({2, 1});
  EXPECT_TRUE(grid.select_next(true));
  EXPECT_EQ(grid.selected(), (GridCell{1, 2}));
  EXPECT_TRUE(grid.select_next(false));
  EXPECT_EQ(grid.selected(), (GridCell{2, 1}));
  grid.select({2, 2});
  EXPECT_FALSE(grid.select_next(true));
  EXPECT_EQ(grid.selected(), (GridCell{2, 2}));
}

TEST(GridModel, ATextThatCannotBeStoredStaysInTheEditor) {
  RecordingGrid grid;
  grid.fails = true;
  grid.edit("x");
  EXPECT_THROW(grid.leave(), std::bad_alloc);
  EXPECT_THROW(grid.select({2, 2}), std::bad_alloc);
  EXPECT_EQ(grid.selected(), (GridCell{1, 1}));
  EXPECT_TRUE(grid.edited());
  EXPECT_EQ(grid.editor_text(), "x");
  grid.fails = false;
  grid.leave();
  EXPECT_EQ(grid.events, (Events{"take 1,1 x"}));
  EXPECT_FALSE(grid.edited());
}

TEST(GridModel, ATextIsNeverLeftInAnotherCell) {
  RecordingGrid grid;
  grid.moves_and_fails = true;
  grid.edit("x");
  EXPECT_THROW(grid.leave(), std::bad_alloc);
  EXPECT_EQ(grid.selected(), (GridCell{2, 1}));
  EXPECT_FALSE(grid.edited());
}

TEST(GridModel, AMoveByTheGridItselfIsNoSelecting) {
  RecordingGrid grid;
  grid.edit("x");
  grid.move_to({2, 2});
  EXPECT_EQ(grid.selected(), (GridCell{2, 2}));
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(grid.events, Events{});
}

TEST(GridModel, AClickSelectsTheCellFirst) {
  RecordingGrid grid;
  grid.edit("x");
  grid.click(GridClick::right, {2, 2});
  EXPECT_EQ(grid.events, (Events{"take 1,1 x", "moved", "right 2,2"}));
}

TEST(GridModel, HasColumnsOfOneWidthUnlessItSaysOtherwise) {
  const RecordingGrid grid;
  for (int column = 0; column < grid.column_count(); ++column) EXPECT_EQ(grid.column_width(column), 50);
}

TEST(GridModel, GivesAnEditUp) {
  RecordingGrid grid;
  int changes = 0;
  grid.set_changed([&] { ++changes; });
  grid.edit("x");
  grid.give_up_edit();
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(grid.editor_text(), grid.text({1, 1}));
  EXPECT_EQ(changes, 1);
  grid.leave();
  EXPECT_EQ(grid.events, Events{});
}

TEST(GridModel, SaysThatItChanged) {
  RecordingGrid grid;
  int changes = 0;
  grid.set_changed([&changes] { ++changes; });
  grid.select({2, 2});
  grid.edit("x");
  grid.leave();
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace kov
