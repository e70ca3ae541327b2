#include "lattice/slq_grid.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "support/recording_messages.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

using Name = GridKey::Name;

class SlqGridTest : public ::testing::Test {
 protected:
  SlqGridTest() {
    view_.set_xdim(0);  // n to the right, k1 downward
  }

  void SetUp() override {
    grid_.set_lattice_changed([this] { ++lattice_changes_; });
  }

  /// What a person does who types a text into a cell and moves away.
  void type(GridCell cell, const char* text) {
    grid_.select(cell);
    grid_.edit(text);
    grid_.leave();
  }

  /// As a hand-edited configuration line does, which may widen its bounds.
  void configure(const char* keyword, std::int32_t value) {
    const std::string line = int_text(value) + " -2147483648 2147483647 0";
    Tokens rest(line);
    ASSERT_EQ(cph_.read_configuration_line(keyword, rest, true), "");
    ASSERT_EQ(cph_.kmi(keyword), value);
  }

  RecordingMessages messages_;
  cphclass cph_ = [this] {
    cphclass cph(messages_);
    cph.InitPrgPar(WindowFacts{});
    return cph;
  }();
  SliceView view_;
  Lmap lmap_;
  SlqGrid grid_{view_, lmap_, cph_, messages_};
  int lattice_changes_ = 0;
};

TEST_F(SlqGridTest, HasTheCountsAndTheWidthOfTheParameters) {
  EXPECT_EQ(grid_.column_count(), 20);
  EXPECT_EQ(grid_.row_count(), 50);
  EXPECT_EQ(grid_.default_column_width(), 86);
  EXPECT_EQ(grid_.fixed_columns(), 1);
  EXPECT_EQ(grid_.fixed_rows(), 1);
  EXPECT_TRUE(grid_.always_shows_editor());
}

TEST_F(SlqGridTest, ReadsTheParametersWhenItIsShown) {
  cph_.setkmi_1("Slq_ColCount", 1000);
  cph_.setkmi_1("Slq_RowCount", 2000);
  cph_.setkmi_1("Slq_DefaultColWidth", 40);
  EXPECT_EQ(grid_.column_count(), 20);
  grid_.show();
  EXPECT_EQ(grid_.column_count(), 1000);
  EXPECT_EQ(grid_.row_count(), 2000);
  EXPECT_EQ(grid_.default_column_width(), 40);
}

TEST_F(SlqGridTest, KeepsToTheCataloguesCountsWhateverAFileSays) {
  configure("Slq_ColCount", -5);
  configure("Slq_RowCount", 0);
  grid_.show();
  EXPECT_EQ(grid_.column_count(), 2);
  EXPECT_EQ(grid_.row_count(), 2);
  configure("Slq_ColCount", highest_int);
  configure("Slq_RowCount", highest_int);
  grid_.show();
  EXPECT_EQ(grid_.column_count(), 1000);
  EXPECT_EQ(grid_.row_count(), 2000);
}

TEST_F(SlqGridTest, ASelectionThatMovesTellsOfTheLattice) {
  grid_.select({2, 3});
  EXPECT_EQ(lattice_changes_, 1);
  grid_.select({2, 3});
  EXPECT_EQ(lattice_changes_, 1);
  cph_.setkmi_1("Slq_RowCount", 2);
  grid_.show();  // the cell goes along with the rows
  EXPECT_EQ(lattice_changes_, 1);
  EXPECT_TRUE(lmap_.empty());
}

TEST_F(SlqGridTest, KeepsTheSelectedCellInsideWhenItBecomesSmaller) {
  grid_.select({10, 20});
  cph_.setkmi_1("Slq_ColCount", 4);
  grid_.show();
  EXPECT_EQ(grid_.selected(), (GridCell{3, 20}));
  cph_.setkmi_1("Slq_RowCount", 2);
  grid_.show();
  EXPECT_EQ(grid_.selected(), (GridCell{3, 1}));
}

TEST_F(SlqGridTest, ACellStandsForAPointOfTheSlice) {
  view_.set_offset(l_position, 7);
  EXPECT_EQ(grid_.key_at({3, 2}), Lk::at(7, 2, 1));
  view_.set_offset(5, -4);
  view_.set_offset(0, 10);
  Lk expected = Lk::at(7, 10, 0);
  expected.coo[5] = -4;
  EXPECT_EQ(grid_.key_at({1, 1}), expected);
}

TEST_F(SlqGridTest, CoordinatesWrap) {
  view_.set_offset(0, highest_int);
  view_.set_offset(1, highest_int - 1);
  EXPECT_EQ(grid_.key_at({2, 3}), Lk::at(0, lowest_int, lowest_int));
  EXPECT_EQ(grid_.text({1, 0}), "2147483647");
  EXPECT_EQ(grid_.text({2, 0}), "-2147483648");
  EXPECT_EQ(grid_.text({0, 3}), "-2147483648");
}

TEST_F(SlqGridTest, HeadingsShowAxesAndCoordinates) {
  view_.set_offset(0, 100);
  view_.set_offset(1, -1);
  EXPECT_EQ(grid_.text({0, 0}), "-y=k1  x=n");
  EXPECT_EQ(grid_.text({1, 0}), "100");
  EXPECT_EQ(grid_.text({19, 0}), "118");
  EXPECT_EQ(grid_.text({0, 1}), "-1");
  EXPECT_EQ(grid_.text({0, 3}), "1");
  view_.set_ydim(l_position);
  view_.set_xdim(30);
  EXPECT_EQ(grid_.text({0, 0}), "-y=l  x=k30");
}

TEST_F(SlqGridTest, ShowsQuantitiesInFullAndZeroWhereThereIsNoPoint) {
  lmap_.set(Lk::at(0, 2, 1), cotyp(1, 2, -3, 4));
  lmap_.set(Lk::at(0, 0, 0), cotyp::floating(1.0 / 3.0, 0.0));
  EXPECT_EQ(grid_.text({3, 2}), "1/2-3/4i");
  EXPECT_EQ(grid_.text({1, 1}), "0.333333333333333");
  EXPECT_EQ(grid_.text({2, 1}), "0");
}

struct TypedCase {
  const char* typed;
  const char* shown;
};

TEST_F(SlqGridTest, StoresWhatWasTypedWhenTheSelectionLeaves) {
  for (const TypedCase& row : {TypedCase{"2/4", "1/2"}, TypedCase{"6/4", "3/2"}, TypedCase{" i ", "1i"},
                               TypedCase{"0.25+1.5e-5i", "0.25+1.5E-5i"}}) {
    grid_.select({3, 2});
    grid_.edit(row.typed);
    grid_.select({4, 4});
    EXPECT_EQ(grid_.text({3, 2}), row.shown);
    EXPECT_EQ(to_text(lmap_.get(Lk::at(0, 2, 1))), row.shown);
  }
  EXPECT_EQ(lmap_.count(), 1u);
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(lattice_changes_, 4 + 8) << "stores and selections";
}

TEST_F(SlqGridTest, TypingZeroDeletesThePoint) {
  lmap_.set(Lk::at(0, 0, 0), 3);
  type({1, 1}, "0");
  EXPECT_TRUE(lmap_.empty());
  type({1, 1}, "0.0");
  EXPECT_TRUE(lmap_.empty());
}

TEST_F(SlqGridTest, RefusesWhatIsNoQuantityWithABeep) {
  lmap_.set(Lk::at(0, 0, 0), 3);
  int beeps = 0;
  for (const char* text : {"1/0", "", "x", "1+", "i1", "1E309", "-1E309i", "inf", "nan"}) {
    type({1, 1}, text);
    EXPECT_EQ(messages_.beeps, ++beeps) << text;
    EXPECT_EQ(points_text(lmap_), point_text(Lk::at(0, 0, 0), 3) + "\n") << text;
    EXPECT_EQ(grid_.editor_text(), "3") << text;
  }
  EXPECT_EQ(lattice_changes_, 0);
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(SlqGridTest, WritesNoCellFromATextThatWasNotChanged) {
  const double third = 1.0 / 3.0;
  lmap_.set(Lk::at(0, 0, 0), cotyp::floating(third, 2.0));
  const auto is_untouched = [this, third] {
    const cotyp q = lmap_.get(Lk::at(0, 0, 0));
    return !q.re.exact() && q.re.fl() == third && !q.im.exact();
  };
  grid_.select({2, 2});
  grid_.select({1, 1});
  grid_.press({Name::enter});
  EXPECT_TRUE(is_untouched());
  grid_.press(GridKey::of('x'));
  EXPECT_TRUE(is_untouched());
  type({1, 1}, "0.333333333333333+2i");
  EXPECT_TRUE(is_untouched());
  type({1, 1}, "0.333333333333334+2i");
  EXPECT_FALSE(is_untouched());
}

TEST_F(SlqGridTest, LeavesTypedCharactersAndMovesToTheEditor) {
  for (const char c : std::string("1234567890/I+-E.ie\t\b")) {
    EXPECT_FALSE(grid_.key(GridKey::of(c))) << c;
  }
  for (const Name name : {Name::tab, Name::backspace, Name::up, Name::down}) {
    EXPECT_FALSE(grid_.key({name}));
  }
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(lattice_changes_, 0);
}

TEST_F(SlqGridTest, LettersAreTypedAsTheyAre) {
  for (const char c : std::string("2e-1+3i")) grid_.press(GridKey::of(c));
  EXPECT_EQ(grid_.editor_text(), "2e-1+3i");
  grid_.press({Name::tab});
  EXPECT_EQ(grid_.text({1, 1}), "0.2+3i");
  EXPECT_EQ(grid_.selected(), (GridCell{2, 1}));
}

TEST_F(SlqGridTest, EnterStoresAndStays) {
  grid_.edit("6/4");
  grid_.press({Name::enter});
  EXPECT_EQ(grid_.editor_text(), "3/2");
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(grid_.selected(), (GridCell{1, 1}));
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(lattice_changes_, 1);
}

TEST_F(SlqGridTest, EnterLeavesARefusedTextInTheEditor) {
  lmap_.set(Lk::at(0, 0, 0), 3);
  grid_.edit("1/0");
  grid_.press({Name::enter});
  EXPECT_EQ(messages_.beeps, 1);
  EXPECT_EQ(grid_.editor_text(), "1/0");
  EXPECT_EQ(lattice_changes_, 0);
  grid_.redisplay();
  EXPECT_EQ(grid_.editor_text(), "3");
  EXPECT_EQ(lmap_.get(Lk::at(0, 0, 0)), cotyp(3));
}

TEST_F(SlqGridTest, AnyOtherKeyBeepsAndStores) {
  for (const GridKey& key : {GridKey::of('x'), GridKey::of(' '), GridKey::of(','), GridKey{Name::escape}}) {
    messages_.beeps = 0;
    lmap_.clear();
    grid_.edit("5");
    EXPECT_TRUE(grid_.key(key));
    EXPECT_EQ(messages_.beeps, 1);
    EXPECT_EQ(lmap_.get(Lk{}), cotyp(5));
    EXPECT_FALSE(grid_.edited());
  }
}

TEST_F(SlqGridTest, PAddsOneAndMSubtractsOne) {
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(lmap_.get(Lk{}), cotyp(1));
  grid_.press(GridKey::of('p'));
  EXPECT_EQ(grid_.text({1, 1}), "2");
  for (int k = 0; k < 3; ++k) grid_.press(GridKey::of(k == 0 ? 'm' : 'M'));
  EXPECT_EQ(grid_.text({1, 1}), "-1");
  grid_.press(GridKey::of('P'));
  EXPECT_TRUE(lmap_.empty());
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(lattice_changes_, 6);
}

TEST_F(SlqGridTest, PAndMActOnTheRealPartAlone) {
  lmap_.set(Lk{}, cotyp(1, 2, 3, 4));
  grid_.press(GridKey::of('M'));
  EXPECT_EQ(grid_.text({1, 1}), "-1/2+3/4i");
}

TEST_F(SlqGridTest, PAndMActOnTheEditedText) {
  lmap_.set(Lk{}, 100);
  grid_.edit("6/4");
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(grid_.editor_text(), "5/2");
  EXPECT_FALSE(grid_.edited());
  grid_.edit("1/0");
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(messages_.beeps, 1);
  EXPECT_EQ(grid_.editor_text(), "1/0");
  EXPECT_EQ(lmap_.get(Lk{}), cotyp(5, 2, 0, 1));
}

TEST_F(SlqGridTest, PKeepsTheDigitsThatTheTextDoesNotShow) {
  const double third = 1.0 / 3.0;
  lmap_.set(Lk{}, cotyp::floating(third, third));
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(lmap_.get(Lk{}).re.fl(), third + 1.0);
  EXPECT_EQ(lmap_.get(Lk{}).im.fl(), third);
}

TEST_F(SlqGridTest, PStaysFiniteAtTheLargestNumbers) {
  const double largest = std::numeric_limits<double>::max();
  lmap_.set(Lk{}, cotyp::floating(largest, -largest));
  grid_.press(GridKey::of('P'));
  EXPECT_TRUE(is_finite(lmap_.get(Lk{})));
  lmap_.set(Lk{}, highest_int - 1);
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(lmap_.get(Lk{}).re.exact(), false);
  EXPECT_EQ(grid_.text({1, 1}), "2147483647");
}

TEST_F(SlqGridTest, HeadingsTakeNoQuantity) {
  for (const GridCell heading : {GridCell{0, 0}, GridCell{3, 0}, GridCell{0, 3}}) {
    messages_.beeps = 0;
    EXPECT_FALSE(grid_.editable(heading));
    grid_.select(heading);
    for (const GridKey& key : {GridKey::of('P'), GridKey::of('m'), GridKey::of('x')}) grid_.press(key);
    EXPECT_EQ(messages_.beeps, 3);
    grid_.press({Name::enter});
    EXPECT_EQ(messages_.beeps, 3);
  }
  EXPECT_TRUE(lmap_.empty());
  EXPECT_EQ(lattice_changes_, 3) << "the selections";
}

TEST_F(SlqGridTest, ATextThatMemoryDoesNotSufficeForStaysInTheEditor) {
  for (const GridKey& key : {GridKey{Name::enter}, GridKey::of('P')}) {
    std::int64_t failures = 0;
    for (bool failed = true; failed;) {
      lmap_ = Lmap();
      grid_.edit("5");
      try {
        const FailingAllocation failing(failures + 1);
        grid_.key(key);
        failed = failing.happened();
      } catch (const std::bad_alloc&) {
        ++failures;
        EXPECT_TRUE(grid_.edited());
        EXPECT_EQ(grid_.editor_text(), "5");
        EXPECT_TRUE(lmap_.empty());
      }
    }
    EXPECT_GT(failures, 0);
    EXPECT_FALSE(grid_.edited());
  }
}

TEST_F(SlqGridTest, ARedisplayRefreshesTheOtherPagesButShowingDoesNot) {
  grid_.show();
  EXPECT_EQ(lattice_changes_, 0);
  grid_.redisplay();
  EXPECT_EQ(lattice_changes_, 1);
}

TEST_F(SlqGridTest, AnEditIsNeverStoredAtAnotherPointThanItWasTypedFor) {
  grid_.edit("5");
  view_.set_offset(0, 10);
  grid_.redisplay();
  grid_.select({2, 2});
  EXPECT_TRUE(lmap_.empty());
}

TEST_F(SlqGridTest, SaysThatItChanged) {
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  grid_.press(GridKey::of('P'));
  EXPECT_EQ(changes, 1);
  grid_.show();
  EXPECT_EQ(changes, 2);
}

TEST_F(SlqGridTest, TheHintNamesThePoint) {
  EXPECT_EQ(grid_.hint({3, 2}), "l=0  n=2  k1=1");
  view_.set_ydim(4);
  view_.set_offset(30, -6);
  EXPECT_EQ(grid_.hint({1, 1}), "l=0  n=0  k4=0  k30=-6");
  EXPECT_EQ(grid_.hint({0, 1}), "");
  EXPECT_EQ(grid_.hint({1, 0}), "");
}

}  // namespace
}  // namespace kov
