#include <gtest/gtest.h>

#include "algadd/algadd_grid.h"
#include "algadd_grid_fixture.h"
#include "text/integers.h"

namespace kov {
namespace {

using Name = GridKey::Name;
using AlgaddGridEdits = AlgaddGridTest;

/// A double whose text, of 15 digits, reads back as another one.
cotyp third() { return cotyp::floating(1.0 / 3.0, 0.0); }

// P and M

TEST_F(AlgaddGridEdits, PAndMStepTheValueOfTheCell) {
  struct {
    int row;
    char key;
    const char* text;
  } const steps[] = {{p_row, 'P', "3/2"}, {p_row, 'm', "1/2"}, {p_row, 'M', "-1/2"}, {ldest_row, 'M', "-1"},
                     {l_row, 'p', "1"},   {n_row, 'P', "2"},   {k1_row, 'M', "-1"},  {34, 'P', "1"}};
  algadd_.set_entry(0, 2, entry_of(cotyp(1, 2, 0, 1)));
  for (const auto& step : steps) {
    table_changes_ = 0;
    press({3, step.row}, GridKey::of(step.key));
    EXPECT_EQ(grid_.text({3, step.row}), step.text);
    EXPECT_EQ(table_changes_, 1);
  }
  EXPECT_EQ(algadd_.entry(0, 2).p, cotyp(-1, 2, 0, 1));
  EXPECT_EQ(algadd_.entry(0, 2).offset.coo[30], 1);
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridEdits, PAndMStepTheRealPart) {
  algadd_.set_entry(0, 0, entry_of(cotyp(1, 2, 1, 3)));
  press({1, p_row}, GridKey::of('P'));
  EXPECT_EQ(grid_.text({1, p_row}), "3/2+1/3i");
}

TEST_F(AlgaddGridEdits, AnIntegerStaysAtTheEndsOf32Bits) {
  AlgaddEntry entry = entry_of(1, highest_int);
  entry.ldest = lowest_int;
  algadd_.set_entry(0, 0, entry);
  press({1, k1_row}, GridKey::of('P'));
  press({1, ldest_row}, GridKey::of('M'));
  EXPECT_EQ(grid_.text({1, k1_row}), "2147483647");
  EXPECT_EQ(grid_.text({1, ldest_row}), "-2147483648");
  EXPECT_EQ(messages_.beeps, 2);
  EXPECT_EQ(table_changes_, 0);
  press({1, k1_row}, GridKey::of('M'));
  press({1, ldest_row}, GridKey::of('P'));
  EXPECT_EQ(grid_.text({1, k1_row}), "2147483646");
  EXPECT_EQ(grid_.text({1, ldest_row}), "-2147483647");
  EXPECT_EQ(messages_.beeps, 2);
}

TEST_F(AlgaddGridEdits, AFactorBeyondTheExactRangeBecomesFloatingAndStaysFinite) {
  algadd_.set_entry(0, 0, entry_of(highest_int - 1));
  press({1, p_row}, GridKey::of('P'));
  EXPECT_EQ(grid_.text({1, p_row}), "2147483647");
  EXPECT_FALSE(algadd_.entry(0, 0).p.re.exact());
  const double largest = 1.7976931348623157e308;
  algadd_.set_entry(0, 0, entry_of(cotyp::floating(largest, 0.0)));
  press({1, p_row}, GridKey::of('P'));
  EXPECT_EQ(algadd_.entry(0, 0).p.re.fl(), largest);
}

TEST_F(AlgaddGridEdits, PAndMStepWhatWasTyped) {
  press({1, p_row}, GridKey::of('4'));
  grid_.press(GridKey::of('P'));
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(grid_.editor_text(), "5");
  EXPECT_EQ(algadd_.entry(0, 0).p, cotyp(5));
}

TEST_F(AlgaddGridEdits, PUndoesATypedTextThatIsNoValueAndStepsNothing) {
  press({1, n_row}, GridKey::of('-'));
  grid_.press(GridKey::of('P'));
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(grid_.editor_text(), "1");
  EXPECT_EQ(messages_.beeps, 1);
  EXPECT_EQ(table_changes_, 0);
}

TEST_F(AlgaddGridEdits, StepsOfAFloatingFactorKeepItsDigits) {
  algadd_.set_entry(0, 0, entry_of(third()));
  press({1, p_row}, GridKey::of('P'));
  EXPECT_EQ(algadd_.entry(0, 0).p.re.fl(), 1.0 / 3.0 + 1.0);
}

TEST_F(AlgaddGridEdits, PAndMBeepOnHeadings) {
  press({0, 3}, GridKey::of('P'));
  press({3, 0}, GridKey::of('M'));
  EXPECT_EQ(messages_.beeps, 2);
  EXPECT_EQ(table_changes_, 0);
}

// Typing

TEST_F(AlgaddGridEdits, TheEditorOfAFactorTakesTheCharactersOfQuantities) {
  for (const char c : std::string("0123456789+-/.EIei")) EXPECT_FALSE(grid_.key(GridKey::of(c))) << c;
  EXPECT_EQ(messages_.beeps, 0);
  for (const char c : std::string("xa ,*j\t")) EXPECT_TRUE(grid_.key(GridKey::of(c))) << c;
  EXPECT_EQ(messages_.beeps, 7);
}

TEST_F(AlgaddGridEdits, TheEditorOfAnIntegerTakesDigitsAndSigns) {
  for (const int row : {ldest_row, l_row, n_row, 34}) {
    grid_.select({1, row});
    messages_.beeps = 0;
    for (const char c : std::string("0123456789+-")) EXPECT_FALSE(grid_.key(GridKey::of(c))) << c;
    EXPECT_EQ(messages_.beeps, 0);
    for (const char c : std::string("/.EIeix ")) EXPECT_TRUE(grid_.key(GridKey::of(c))) << c;
    EXPECT_EQ(messages_.beeps, 8);
  }
}

TEST_F(AlgaddGridEdits, TypedCharactersBeepOnHeadings) {
  for (const GridCell cell : {GridCell{0, 1}, GridCell{1, 0}, GridCell{0, 0}}) press(cell, GridKey::of('1'));
  EXPECT_EQ(messages_.beeps, 3);
}

TEST_F(AlgaddGridEdits, ABeepLeavesTheEditAsItIs) {
  press({1, p_row}, GridKey::of('1'));
  grid_.press(GridKey::of('x'));
  grid_.press(GridKey::of('2'));
  EXPECT_EQ(grid_.editor_text(), "12");
}

TEST_F(AlgaddGridEdits, EscapeDoesNothing) {
  press({1, p_row}, GridKey::of('7'));
  EXPECT_TRUE(grid_.key({Name::escape}));
  EXPECT_EQ(grid_.editor_text(), "7");
  EXPECT_TRUE(algadd_.table_empty(0));
  EXPECT_EQ(messages_.beeps, 0);
  EXPECT_EQ(table_changes_, 0);
}

TEST_F(AlgaddGridEdits, EnterTakesTheEditAndStays) {
  press({2, p_row}, GridKey::of('7'));
  grid_.press({Name::enter});
  EXPECT_EQ(algadd_.entry(0, 1).p, cotyp(7));
  EXPECT_EQ(grid_.selected(), (GridCell{2, p_row}));
  EXPECT_EQ(table_changes_, 1);
  press({0, 0}, {Name::enter});
  EXPECT_EQ(table_changes_, 1) << "without an edit Enter does nothing";
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridEdits, AnEditIsTakenWhenTheSelectionLeavesTheCell) {
  press({1, ldest_row}, GridKey::of('3'));
  grid_.press({Name::tab});
  EXPECT_EQ(algadd_.entry(0, 0).ldest, 3);
  EXPECT_EQ(grid_.selected(), (GridCell{2, ldest_row}));
}

TEST_F(AlgaddGridEdits, TakesValuesOfEveryRow) {
  struct {
    int row;
    const char* typed;
    const char* text;
  } const cases[] = {
      {p_row, "6/4", "3/2"},
      {p_row, "-1/2+3/4i", "-1/2+3/4i"},
      {p_row, "1.5E-5", "1.5E-5"},
      {p_row, "2e3i", "2000i"},
      {p_row, "0", "0"},
      {ldest_row, "-12", "-12"},
      {l_row, "+4", "4"},
      {n_row, "0", "0"},
      {k1_row, "2147483647", "2147483647"},
      {34, "-2147483648", "-2147483648"},
  };
  for (const auto& [row, typed, text] : cases) {
    table_changes_ = 0;
    algadd_.set_entry(0, 3, entry_of(9, 9, 9, 9, 9));
    type({4, row}, typed);
    EXPECT_EQ(grid_.text({4, row}), text);
    EXPECT_EQ(table_changes_, 1) << typed;
  }
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridEdits, UndoesWhatIsNoValueOfItsRow) {
  struct {
    int row;
    const char* typed;
  } const cases[] = {{p_row, "1/0"}, {p_row, "1+"},          {p_row, "2I"},      {p_row, "1E309"},
                     {p_row, "E5"},  {p_row, "1-1E400i"},    {ldest_row, "1-2"}, {n_row, "+"},
                     {l_row, "--1"}, {k1_row, "2147483648"}, {34, "-2147483649"}};
  const AlgaddEntry entry = entry_of(9, 9, 9, 9, 9);
  algadd_.set_entry(0, 3, entry);
  for (const auto& [row, typed] : cases) {
    messages_.beeps = 0;
    const std::string before = grid_.text({4, row});
    type({4, row}, typed);
    EXPECT_EQ(messages_.beeps, 1) << typed;
    EXPECT_EQ(grid_.text({4, row}), before) << typed;
    EXPECT_EQ(grid_.editor_text(), before) << typed;
  }
  EXPECT_EQ(table_changes_, 0);
  EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(AlgaddGridEdits, AnEmptiedCellIsUndone) {
  grid_.select({1, n_row});
  grid_.edit("");
  grid_.leave();
  grid_.select({1, p_row});
  grid_.edit(" ");
  grid_.leave();
  EXPECT_EQ(messages_.beeps, 2);
  EXPECT_EQ(algadd_.entry(0, 0).offset, Lk::at(0, 1));
}

TEST_F(AlgaddGridEdits, BlanksAroundAValueDoNotCount) {
  grid_.select({1, n_row});
  grid_.edit(" 4 ");
  grid_.select({1, p_row});
  grid_.edit(" 1/3 ");
  grid_.leave();
  EXPECT_EQ(algadd_.entry(0, 0).offset.n(), 4);
  EXPECT_EQ(algadd_.entry(0, 0).p, cotyp(1, 3, 0, 1));
  EXPECT_EQ(messages_.beeps, 0);
}

TEST_F(AlgaddGridEdits, AFloatingFactorWhoseTextDidNotChangeKeepsItsDigits) {
  algadd_.set_entry(0, 0, entry_of(third()));
  cotyp reread;
  ASSERT_TRUE(from_text(grid_.text({1, p_row}), reread));
  ASSERT_NE(reread.re.fl(), 1.0 / 3.0) << "the text must be poorer for this test to mean anything";
  grid_.select({1, p_row});
  grid_.edit(grid_.text({1, p_row}));
  grid_.press({Name::enter});
  grid_.edit(grid_.text({1, p_row}));
  grid_.press(GridKey::of('M'));
  EXPECT_EQ(algadd_.entry(0, 0).p.re.fl(), 1.0 / 3.0 - 1.0);
  EXPECT_EQ(table_changes_, 1) << "only M changed the entry";
}

TEST_F(AlgaddGridEdits, AnEditOfOneFieldLeavesTheFloatingFactorAlone) {
  algadd_.set_entry(0, 0, entry_of(third()));
  type({1, k1_row}, "5");
  EXPECT_EQ(algadd_.entry(0, 0).p.re.fl(), 1.0 / 3.0);
  EXPECT_EQ(algadd_.entry(0, 0).offset, Lk::at(0, 1, 5));
}

}  // namespace
}  // namespace kov
