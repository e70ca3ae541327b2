#include "algadd/algadd.h"

#include <gtest/gtest.h>

#include <vector>

#include "run_fixture.h"
#include "support/failing_allocation.h"

namespace kov {
namespace {

std::vector<std::int32_t> numerators(const Algadd& algadd, int table, int count) {
  std::vector<std::int32_t> numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(algadd.entry(table, i).p.re.nu());
  return numbers;
}

TEST(Algadd, StartsWithTemplatesEverywhere) {
  const Algadd algadd;
  EXPECT_EQ(algadd.aanr(), 0);
  EXPECT_EQ(algadd.selected_first(), 0);
  EXPECT_EQ(algadd.selected_last(), 255);
  for (int t = 0; t < 16; ++t) {
    EXPECT_TRUE(algadd.table_empty(t));
    for (int i = 0; i < 256; ++i) {
      const AlgaddEntry& entry = algadd.entry(t, i);
      ASSERT_TRUE(entry.empty() && entry.p.re.exact() && entry.p.im.exact());
      ASSERT_EQ(entry.ldest, 0);
      ASSERT_EQ(entry.offset, Lk::at(0, 1));
      ASSERT_EQ(entry.source_l(), 0);
    }
  }
}

TEST(Algadd, UsedLengthIsOneBehindTheLastFactor) {
  Algadd algadd;
  algadd.set_entry(15, 255, entry_of(1));
  EXPECT_EQ(algadd.used_length(15), 256);
  EXPECT_EQ(algadd.used_length(14), 0);
  algadd.erase_entry(15, 255);
  EXPECT_EQ(algadd.used_length(15), 0);
  algadd.set_entry(3, 4, entry_of(cotyp(0, 1, 1, 2)));
  algadd.set_entry(3, 9, entry_of(cotyp::floating(0.0, 0.0)));
  EXPECT_EQ(algadd.used_length(3), 5);
  EXPECT_FALSE(algadd.table_empty(3));
}

TEST(Algadd, CompactionKeepsTheOrderAndFreesTheEnd) {
  Algadd algadd;
  algadd.set_entry(2, 1, entry_of(11, 5));
  algadd.set_entry(2, 2, entry_of(0, 7));
  algadd.set_entry(2, 4, entry_of(12));
  algadd.set_entry(2, 255, entry_of(13));
  algadd.set_entry(3, 1, entry_of(21));
  algadd.compact_table(2);
  EXPECT_EQ(numerators(algadd, 2, 5), (std::vector<std::int32_t>{11, 12, 13, 0, 0}));
  EXPECT_EQ(algadd.entry(2, 0).offset.coo[1], 5);
  EXPECT_EQ(algadd.used_length(2), 3);
  for (int i = 3; i < 256; ++i) ASSERT_EQ(algadd.entry(2, i).offset, Lk::at(0, 1));
  EXPECT_EQ(algadd.used_length(3), 2) << "other tables keep their gaps";
}

TEST(Algadd, TablesAreErasedCopiedAndSwappedWhole) {
  Algadd algadd;
  algadd.set_entry(0, 0, entry_of(1));
  algadd.set_entry(0, 255, entry_of(2));
  algadd.set_entry(1, 7, entry_of(3));
  algadd.copy_table(0, 15);
  EXPECT_EQ(algadd.used_length(15), 256);
  EXPECT_EQ(algadd.entry(15, 0).p, cotyp(1));
  algadd.swap_tables(0, 1);
  EXPECT_EQ(algadd.used_length(0), 8);
  EXPECT_EQ(algadd.used_length(1), 256);
  algadd.swap_tables(1, 1);
  algadd.copy_table(1, 1);
  EXPECT_EQ(algadd.entry(1, 255).p, cotyp(2));
  algadd.erase_table(15);
  EXPECT_TRUE(algadd.table_empty(15));
  EXPECT_EQ(algadd.used_length(1), 256);
}

TEST(Algadd, ResetIsTheInitialState) {
  Algadd algadd;
  algadd.set_entry(4, 4, entry_of(1));
  algadd.set_aanr(4);
  algadd.select(3, 9);
  algadd.last_run = {5, 6};
  static_assert(noexcept(algadd.reset()));
  {
    const LimitedAllocations none(0);
    algadd.reset();
  }
  EXPECT_TRUE(algadd.table_empty(4));
  EXPECT_EQ(algadd.aanr(), 0);
  EXPECT_EQ(algadd.selected_first(), 0);
  EXPECT_EQ(algadd.selected_last(), 255);
  EXPECT_EQ(algadd.last_run.seconds, 5);
  EXPECT_EQ(algadd.last_run.steps, 6);
}

}  // namespace
}  // namespace kov
