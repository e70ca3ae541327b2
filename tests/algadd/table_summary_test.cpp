#include "algadd/table_summary.h"

#include <gtest/gtest.h>

#include "run_fixture.h"

namespace kov {
namespace {

TEST(TableSummary, CountsOneEmptyTableUpToTheHighestWhereAllAreEmpty) {
  const Algadd algadd;
  EXPECT_EQ(table_summary(algadd), " Table 0   ( 1 empty in 0..0 ,    16 empty in 0..15 ) ");
}

TEST(TableSummary, CountsTheGapsBelowTheHighestTable) {
  Algadd algadd;
  algadd.set_entry(0, 0, entry_of(1));
  EXPECT_EQ(table_summary(algadd), " Table 0   ( 0 empty in 0..0 ,    15 empty in 0..15 ) ");
  algadd.set_entry(3, 255, entry_of(cotyp(0, 1, 1, 2)));
  algadd.set_entry(5, 7, entry_of(2));
  algadd.set_aanr(12);
  EXPECT_EQ(table_summary(algadd), " Table 12   ( 3 empty in 0..5 ,    13 empty in 0..15 ) ");
}

TEST(TableSummary, ATableOfZeroFactorsIsEmpty) {
  Algadd algadd;
  algadd.set_entry(2, 0, entry_of(1));
  algadd.set_entry(9, 0, entry_of(0, 5, 1, 2));
  EXPECT_EQ(table_summary(algadd), " Table 0   ( 2 empty in 0..2 ,    15 empty in 0..15 ) ");
}

TEST(TableSummary, AllTablesFilled) {
  Algadd algadd;
  for (int t = 0; t < Algadd_TableCount; ++t) algadd.set_entry(t, t, entry_of(1));
  algadd.set_aanr(15);
  EXPECT_EQ(table_summary(algadd), " Table 15   ( 0 empty in 0..15 ,    0 empty in 0..15 ) ");
}

}  // namespace
}  // namespace kov
