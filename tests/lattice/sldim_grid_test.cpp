#include "lattice/sldim_grid.h"

#include <gtest/gtest.h>

#include "lattice/slq_grid.h"
#include "support/recording_messages.h"
#include "text/integers.h"

namespace kov {
namespace {

using Name = GridKey::Name;

class SldimGridTest : public ::testing::Test {
 protected:
  SldimGridTest() { view_.set_xdim(0); }

  void SetUp() override {
    grid_.set_slice_changed([this] { ++slice_changes_; });
  }

  void press(GridCell cell, const GridKey& key) {
    grid_.select(cell);
    grid_.press(key);
  }

  SliceView view_;
  RecordingMessages messages_;
  SldimGrid grid_{view_, messages_};
  int slice_changes_ = 0;
};

TEST_F(SldimGridTest, HasARowForEachKeyPosition) {
  EXPECT_EQ(grid_.column_count(), 2);
  EXPECT_EQ(grid_.row_count(), 32);
  EXPECT_EQ(grid_.fixed_rows(), 0);
  EXPECT_EQ(grid_.fixed_columns(), 1);
  EXPECT_EQ(grid_.default_column_width(), 44);
  EXPECT_TRUE(grid_.always_shows_editor());
  EXPECT_EQ(grid_.selected(), (GridCell{1, 0}));
}

TEST_F(SldimGridTest, ShowsNamesAxesAndOffsets) {
  view_.set_offset(31, 7);
  view_.set_offset(0, -3);
  view_.set_offset(30, lowest_int);
  EXPECT_EQ(grid_.text({0, 0}), "l");
  EXPECT_EQ(grid_.text({0, 1}), "n=x");
  EXPECT_EQ(grid_.text({0, 2}), "k1=-y");
  EXPECT_EQ(grid_.text({0, 3}), "k2");
  EXPECT_EQ(grid_.text({0, 31}), "k30");
  EXPECT_EQ(grid_.text({1, 0}), "7");
  EXPECT_EQ(grid_.text({1, 1}), "-3");
  EXPECT_EQ(grid_.text({1, 2}), "0");
  EXPECT_EQ(grid_.text({1, 31}), "-2147483648");
}

TEST_F(SldimGridTest, OnlyOffsetsAreEdited) {
  EXPECT_TRUE(grid_.editable({1, 0}));
  EXPECT_FALSE(grid_.editable({0, 0}));
}

TEST_F(SldimGridTest, StoresATypedOffsetWhenTheSelectionLeaves) {
  grid_.select({1, 0});
  grid_.edit("+12");
  grid_.select({1, 4});
  EXPECT_EQ(view_.offset().l(), 12);
  EXPECT_EQ(slice_changes_, 1);
  grid_.edit(" -2147483648 ");
  grid_.leave();
  EXPECT_EQ(view_.offset().coo[3], lowest_int);
  EXPECT_EQ(slice_changes_, 2);
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(SldimGridTest, StoresNothingWithoutAnEdit) {
  grid_.select({1, 4});
  grid_.leave();
  EXPECT_EQ(slice_changes_, 0);
}

TEST_F(SldimGridTest, BeepsAndUndoesWhatIsNoInteger) {
  view_.set_offset(31, 7);
  int beeps = 0;
  for (const char* text : {"", "+", "1.5", "2147483648", "1-2"}) {
    grid_.edit(text);
    grid_.leave();
    EXPECT_EQ(messages_.beeps, ++beeps) << text;
    EXPECT_EQ(grid_.editor_text(), "7") << text;
    EXPECT_EQ(slice_changes_, beeps) << text;
  }
  grid_.edit("+");
  grid_.press({Name::enter});
  EXPECT_EQ(messages_.beeps, beeps + 1);
  EXPECT_EQ(grid_.editor_text(), "7");
}

TEST_F(SldimGridTest, LeavesTypedCharactersAndMovesToTheEditor) {
  for (const char c : std::string("1234567890+-\t\b")) EXPECT_FALSE(grid_.key(GridKey::of(c))) << c;
  for (const Name name : {Name::tab, Name::backspace, Name::up, Name::down}) {
    EXPECT_FALSE(grid_.key({name}));
  }
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(slice_changes_, 0);
}

TEST_F(SldimGridTest, AnyOtherKeyBeepsStoresAndRedisplays) {
  int count = 0;
  for (const GridKey& key : {GridKey::of('i'), GridKey::of('/'), GridKey::of('.'), GridKey{Name::escape}}) {
    view_.set_offset(31, 0);
    grid_.edit("5");
    EXPECT_TRUE(grid_.key(key));
    EXPECT_EQ(messages_.beeps, ++count);
    EXPECT_EQ(slice_changes_, count);
    EXPECT_EQ(view_.offset().l(), 5);
    EXPECT_FALSE(grid_.edited());
  }
}

TEST_F(SldimGridTest, EnterStoresAndRedisplays) {
  grid_.edit("5");
  grid_.press({Name::enter});
  EXPECT_EQ(view_.offset().l(), 5);
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(slice_changes_, 1);
  grid_.press({Name::enter});
  EXPECT_EQ(slice_changes_, 2);
}

TEST_F(SldimGridTest, PAndMStepTheOffset) {
  press({1, 2}, GridKey::of('P'));
  press({1, 2}, GridKey::of('p'));
  EXPECT_EQ(view_.offset().coo[1], 2);
  press({1, 2}, GridKey::of('m'));
  EXPECT_EQ(view_.offset().coo[1], 1);
  grid_.edit("-7");
  grid_.press(GridKey::of('M'));
  EXPECT_EQ(view_.offset().coo[1], -8);
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(slice_changes_, 4);
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(SldimGridTest, StepsBeyond32BitsBeepAndStay) {
  view_.set_offset(1, highest_int);
  press({1, 2}, GridKey::of('P'));
  EXPECT_EQ(view_.offset().coo[1], highest_int);
  EXPECT_EQ(messages_.beeps, 1);
  view_.set_offset(1, lowest_int);
  press({1, 2}, GridKey::of('M'));
  EXPECT_EQ(view_.offset().coo[1], lowest_int);
  EXPECT_EQ(messages_.beeps, 2);
}

TEST_F(SldimGridTest, XAndYMakeTheRowAnAxis) {
  press({1, 4}, GridKey::of('X'));
  EXPECT_EQ(view_.xdim(), 3);
  EXPECT_EQ(view_.ydim(), 1);
  EXPECT_EQ(grid_.text({0, 4}), "k3=x");
  EXPECT_EQ(grid_.text({0, 1}), "n");
  press({1, 0}, GridKey::of('y'));
  EXPECT_EQ(view_.ydim(), 31);
  EXPECT_EQ(grid_.text({0, 0}), "l=-y");
  EXPECT_EQ(slice_changes_, 2);
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(SldimGridTest, XOnTheRowOfYSwapsTheAxes) {
  cphclass cph(messages_);
  cph.InitPrgPar(WindowFacts{});
  Lmap lmap;
  const SlqGrid slice(view_, lmap, cph, messages_);
  EXPECT_EQ(slice.text({0, 0}), "-y=k1  x=n");
  press({1, 2}, GridKey::of('X'));
  EXPECT_EQ(slice.text({0, 0}), "-y=n  x=k1");
  press({1, 2}, GridKey::of('Y'));
  EXPECT_EQ(slice.text({0, 0}), "-y=k1  x=n");
}

TEST_F(SldimGridTest, XStoresTheEditedOffsetToo) {
  grid_.select({1, 4});
  grid_.edit("9");
  grid_.press(GridKey::of('x'));
  EXPECT_EQ(view_.xdim(), 3);
  EXPECT_EQ(view_.offset().coo[3], 9);
  EXPECT_EQ(slice_changes_, 1);
}

TEST_F(SldimGridTest, ANameTakesAnAxisButNoStep) {
  press({0, 4}, GridKey::of('X'));
  EXPECT_EQ(view_.xdim(), 3);
  EXPECT_EQ(messages_.beeps, 0);
  press({0, 4}, GridKey::of('P'));
  EXPECT_EQ(messages_.beeps, 1);
  EXPECT_EQ(view_.offset(), Lk{});
}

TEST_F(SldimGridTest, ARedisplayIsTheSlicesTooButShowingIsNot) {
  grid_.edit("5");
  grid_.show();
  EXPECT_EQ(slice_changes_, 0);
  EXPECT_FALSE(grid_.edited());
  grid_.edit("5");
  grid_.redisplay();
  EXPECT_EQ(slice_changes_, 1);
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(view_.offset(), Lk{});
}

TEST_F(SldimGridTest, SaysThatItChanged) {
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  grid_.show();
  EXPECT_EQ(changes, 1);
}

TEST_F(SldimGridTest, TheHintTellsTheKeys) {
  EXPECT_EQ(grid_.hint({1, 2}),
            "offset of k1 in the slice's first cell\nP: + 1   M: - 1   X: k1 along x   Y: k1 along y");
}

}  // namespace
}  // namespace kov
