#include "algadd/table_edits.h"

#include <gtest/gtest.h>

#include <limits>

#include "numbers/errors.h"
#include "run_fixture.h"

namespace kov {
namespace {

// The factors of the current table up to its used length: "1 0 1/2".
std::string factors(const Algadd& algadd, int table) {
  std::string text;
  for (int i = 0; i < algadd.used_length(table); ++i) {
    text += (i == 0 ? "" : " ") + to_text(algadd.entry(table, i).p);
  }
  return text;
}

class TableEdits : public RunFixture {
 protected:
  TableEdits() { algadd.set_aanr(3); }
  void make(const std::vector<AlgaddEntry>& entries, int table = 3) { make_table(entries, table); }
  std::string current() const { return factors(algadd, algadd.aanr()); }
};

TEST_F(TableEdits, CopyTableGoesToTheCopy) {
  make({entry_of(1), entry_of(2)});
  make({entry_of(8), entry_of(8), entry_of(9)}, 15);
  copy_current_table(algadd, 15);
  EXPECT_EQ(algadd.aanr(), 15);
  EXPECT_EQ(current(), "1 2");
  EXPECT_EQ(factors(algadd, 3), "1 2");
  copy_current_table(algadd, 15);
  EXPECT_EQ(current(), "1 2");
}

TEST_F(TableEdits, MultiplyAll) {
  make({entry_of(1), entry_of(0), entry_of(cotyp(0, 1, 1, 2))});
  make({entry_of(5)}, 4);
  multiply_all_p(algadd, cotyp(0, 1, 2, 1));
  EXPECT_EQ(current(), "2i 0 -1");
  EXPECT_EQ(factors(algadd, 4), "5");
  multiply_all_p(algadd, cotyp::floating(-1, 0));
  EXPECT_TRUE(algadd.entry(3, 1).p.re.exact()) << "empty entries stay the template's zero";
  multiply_all_p(algadd, 0);
  EXPECT_TRUE(algadd.table_empty(3));
}

TEST_F(TableEdits, MultiplyAllButThoseOfModulusOne) {
  make({entry_of(1), entry_of(-1), entry_of(2), entry_of(cotyp(0, 1, 1, 1)), entry_of(cotyp(3, 5, 4, 5)),
        entry_of(cotyp(1, 1, 1, 1)), entry_of(cotyp::floating(-1, 0)), entry_of(cotyp(1, 2, 0, 1))});
  multiply_all_p_abs_not_1(algadd, 3);
  EXPECT_EQ(current(), "1 -1 6 1i 3/5+4/5i 3+3i -1 3/2");
}

TEST_F(TableEdits, MultiplyAndSetSelected) {
  make({entry_of(1), entry_of(2), entry_of(3), entry_of(4)});
  algadd.select(1, 2);
  multiply_selected_p(algadd, 10);
  EXPECT_EQ(current(), "1 20 30 4");
  set_selected_p(algadd, cotyp(1, 2, 0, 1));
  EXPECT_EQ(current(), "1 1/2 1/2 4");
  algadd.select(5, 6);
  set_selected_p(algadd, 7);
  EXPECT_EQ(current(), "1 1/2 1/2 4 0 7 7");
  algadd.select(3, 2);
  set_selected_p(algadd, 9);
  multiply_selected_p(algadd, 9);
  EXPECT_EQ(current(), "1 1/2 1/2 4 0 7 7") << "a selection from 3 to 2 is empty";
  algadd.select(255, 255);
  set_selected_p(algadd, 1);
  EXPECT_EQ(algadd.used_length(3), 256);
}

TEST_F(TableEdits, AProductThatOverflowsLeavesTheTableAsItWas) {
  make({entry_of(2), entry_of(cotyp::floating(1e300, 0))});
  const cotyp large = cotyp::floating(1e10, 0);
  EXPECT_THROW(multiply_all_p(algadd, large), floating_overflow);
  EXPECT_THROW(multiply_all_p_abs_not_1(algadd, large), floating_overflow);
  EXPECT_THROW(multiply_selected_p(algadd, large), floating_overflow);
  EXPECT_EQ(current(), "2 1E300");
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_THROW(set_selected_p(algadd, cotyp::floating(0, infinity)), math_error);
  EXPECT_EQ(current(), "2 1E300");
}

TEST_F(TableEdits, CopyEntryCopiesTheWholeEntry) {
  make({entry_of(1, 7, 2, 5), entry_of(2)});
  copy_entry(algadd, 0, 255);
  EXPECT_EQ(algadd.used_length(3), 256);
  EXPECT_EQ(algadd.entry(3, 255).offset, Lk::at(2, 1, 7));
  EXPECT_EQ(algadd.entry(3, 255).ldest, 5);
  EXPECT_EQ(algadd.entry(3, 0).p, cotyp(1));
}

TEST_F(TableEdits, RemoveEntryMovesTheOthersDown) {
  make({entry_of(1), entry_of(2, 5), entry_of(3, 6)});
  algadd.set_entry(3, 255, entry_of(9));
  remove_entry(algadd, 1);
  EXPECT_EQ(algadd.entry(3, 1).p, cotyp(3));
  EXPECT_EQ(algadd.entry(3, 1).offset.coo[1], 6);
  EXPECT_EQ(algadd.entry(3, 254).p, cotyp(9));
  EXPECT_TRUE(algadd.entry(3, 255).empty());
  EXPECT_EQ(algadd.used_length(3), 255);
  remove_entry(algadd, 255);
  EXPECT_EQ(algadd.used_length(3), 255);
}

TEST_F(TableEdits, InsertEntryMovesTheOthersUp) {
  make({entry_of(1), entry_of(2, 5)});
  EXPECT_FALSE(insert_entry_loses(algadd));
  algadd.set_entry(3, 255, entry_of(9));
  EXPECT_TRUE(insert_entry_loses(algadd));
  insert_entry(algadd, 1);
  EXPECT_EQ(current(), "1 0 2");
  EXPECT_EQ(algadd.entry(3, 1).offset, Lk::at(0, 1));
  EXPECT_EQ(algadd.entry(3, 2).offset.coo[1], 5);
  EXPECT_FALSE(insert_entry_loses(algadd)) << "entry 255 is lost";
}

TEST_F(TableEdits, RemoveTableMovesTheTablesDown) {
  for (int t = 0; t < 16; ++t) make({entry_of(t + 1)}, t);
  remove_table(algadd);
  EXPECT_EQ(algadd.aanr(), 3);
  EXPECT_EQ(factors(algadd, 2), "3");
  EXPECT_EQ(factors(algadd, 3), "5");
  EXPECT_EQ(factors(algadd, 14), "16");
  EXPECT_TRUE(algadd.table_empty(15));
}

TEST_F(TableEdits, InsertTableMovesTheTablesUp) {
  for (int t = 0; t < 15; ++t) make({entry_of(t + 1)}, t);
  EXPECT_FALSE(insert_table_loses(algadd));
  make({entry_of(16)}, 15);
  EXPECT_TRUE(insert_table_loses(algadd));
  insert_table(algadd);
  EXPECT_EQ(algadd.aanr(), 3);
  EXPECT_EQ(factors(algadd, 2), "3");
  EXPECT_TRUE(algadd.table_empty(3));
  EXPECT_EQ(factors(algadd, 4), "4");
  EXPECT_EQ(factors(algadd, 15), "15");
}

TEST_F(TableEdits, RenumberEntriesDoesNotAskTheParameter) {
  make({entry_of(0), entry_of(2), entry_of(0), entry_of(3)});
  make({entry_of(0), entry_of(2)}, 4);
  renumber_entries(algadd);
  EXPECT_EQ(current(), "2 3");
  EXPECT_EQ(factors(algadd, 4), "0 2");
}

TEST_F(TableEdits, RenumberTablesClosesTheGapsBetweenTables) {
  make({entry_of(0), entry_of(1)}, 1);
  make({entry_of(2)}, 3);
  make({entry_of(0), entry_of(3)}, 15);
  renumber_tables(algadd, cph);
  EXPECT_EQ(factors(algadd, 0), "0 1") << "the parameter is 0: entries keep their gaps";
  EXPECT_EQ(factors(algadd, 1), "2");
  EXPECT_EQ(factors(algadd, 2), "0 3");
  for (int t = 3; t < 16; ++t) EXPECT_TRUE(algadd.table_empty(t));
  EXPECT_EQ(algadd.aanr(), 1) << "the current table stays current";
  set("Algadd_del_p0_entries", 1);
  renumber_tables(algadd, cph);
  EXPECT_EQ(factors(algadd, 0), "1");
  EXPECT_EQ(factors(algadd, 2), "3");
}

TEST_F(TableEdits, RenumberTablesFindsTheCurrentTableAgain) {
  make({entry_of(1)}, 5);
  make({entry_of(2)}, 6);
  renumber_tables(algadd, cph);
  EXPECT_EQ(algadd.aanr(), 2) << "an empty current table becomes the first empty one";
  for (int t = 0; t < 16; ++t) make({entry_of(t + 1)}, t);
  algadd.set_aanr(15);
  renumber_tables(algadd, cph);
  EXPECT_EQ(algadd.aanr(), 15);
  EXPECT_EQ(current(), "16");
}

TEST_F(TableEdits, RenumberTablesErasesTheTemplatesOfEmptyTables) {
  make({entry_of(0, 9)}, 0);
  make({entry_of(1)}, 1);
  renumber_tables(algadd, cph);
  EXPECT_EQ(algadd.entry(1, 0).offset, Lk::at(0, 1));
}

TEST_F(TableEdits, TheZeroEntryRuleFollowsItsParameter) {
  make({entry_of(0), entry_of(1)}, 2);
  make({entry_of(0), entry_of(2)}, 9);
  apply_zero_entry_rule(algadd, cph);
  EXPECT_EQ(factors(algadd, 2) + ", " + factors(algadd, 9), "0 1, 0 2");
  set("Algadd_del_p0_entries", 1);
  apply_zero_entry_rule(algadd, 2, cph);
  EXPECT_EQ(factors(algadd, 2) + ", " + factors(algadd, 9), "1, 0 2");
  apply_zero_entry_rule(algadd, cph);
  EXPECT_EQ(factors(algadd, 9), "2");
}

}  // namespace
}  // namespace kov
