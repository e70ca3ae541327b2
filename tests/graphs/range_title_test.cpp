#include "graphs/range_title.h"

#include <gtest/gtest.h>

#include "sums/range_table.h"

namespace kov {
namespace {

TEST(RangeTitle, NamesLAndNAndWhatIsNotZero) {
  EXPECT_EQ(range_title({}), "l=0 n=0");
  EXPECT_EQ(range_title(RangeTable::default_ranges()[0]), "l=0 n=0 k1=-...+");
  EXPECT_EQ(range_title(RangeTable::default_ranges()[1]), "l=0 n=0 k1=+");
  KeyBox box{Lk::at(2, -5, 1), Lk::at(2, 7, 1)};
  box.max.coo[30] = 4;
  EXPECT_EQ(range_title(box), "l=2 n=-5...7 k1=1 k30=0...4");
}

TEST(RangeTitle, JoinsNeighboursWithTheSameBounds) {
  EXPECT_EQ(range_title({Lk::filled(lowest_int), Lk::filled(highest_int)}), "l=-...+ n=-...+ k1...k30=-...+");
  KeyBox box;
  for (const std::size_t i : {2U, 3U, 4U, 6U}) box.max.coo[i] = 9;
  box.min.coo[4] = 1;
  EXPECT_EQ(range_title(box), "l=0 n=0 k2...k3=0...9 k4=1...9 k6=0...9");
}

}  // namespace
}  // namespace kov
