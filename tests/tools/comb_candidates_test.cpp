#include "tools/comb_candidates.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/integers.h"

namespace kov {
namespace {

const KeyBox everywhere{Lk::filled(lowest_int), Lk::filled(highest_int)};

TEST(CombCandidates, AreOrderedByRealPartAndThenByKey) {
  Lmap lmap;
  lmap.set(Lk::at(0, 3), cotyp(1, 2, 9, 1));
  lmap.set(Lk::at(0, 0), cotyp(-4));
  lmap.set(Lk::at(1, 0), cotyp(1, 2, 0, 1));
  lmap.set(Lk::at(0, 1), cotyp::floating(0.75, 0.0));
  lmap.set(Lk::at(0, 2), cotyp(0, 1, 5, 1));
  const CombCandidates candidates(lmap, everywhere);
  ASSERT_EQ(candidates.count(), 5U);
  const auto all = candidates.largest(5);
  const double real_parts[] = {0.75, 0.5, 0.5, 0.0, -4.0};
  const double squares[] = {0.5625, 0.25, 0.25, 0.0, 16.0};
  const Lk keys[] = {Lk::at(0, 1), Lk::at(1, 0), Lk::at(0, 3), Lk::at(0, 2), Lk::at(0, 0)};
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i].re, real_parts[i]) << i;
    EXPECT_EQ(all[i].square, squares[i]) << i;
    EXPECT_EQ(all[i].key, keys[i]) << i;
  }
  EXPECT_EQ(candidates.largest(2).size(), 2U);
  EXPECT_EQ(candidates.largest(2).back().key, Lk::at(1, 0));
}

TEST(CombCandidates, AreThePointsInsideTheRange) {
  Lmap lmap;
  for (std::int32_t n = 0; n < 10; ++n) lmap.set(Lk::at(0, n), cotyp(n + 1));
  KeyBox range = everywhere;
  range.min.coo[0] = 2;
  range.max.coo[0] = 4;
  const CombCandidates candidates(lmap, range);
  ASSERT_EQ(candidates.count(), 3U);
  EXPECT_EQ(candidates.largest(1).front().re, 5.0);
  EXPECT_EQ(candidates.largest(3).back().re, 3.0);
}

TEST(CombCandidates, LeaveOutWhatIsNotFinite) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0), cotyp::floating(std::numeric_limits<double>::infinity(), 0.0));
  lmap.set(Lk::at(0, 1), cotyp::floating(std::numeric_limits<double>::quiet_NaN(), 0.0));
  lmap.set(Lk::at(0, 2), cotyp(1));
  EXPECT_EQ(CombCandidates(lmap, everywhere).count(), 1U);
}

}  // namespace
}  // namespace kov
