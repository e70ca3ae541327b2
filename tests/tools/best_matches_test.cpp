#include "tools/best_matches.h"

#include <gtest/gtest.h>

#include <limits>

namespace kov {
namespace {

CombMatch match(double difference, std::vector<std::uint32_t> members, std::uint64_t plus) {
  return {difference, std::move(members), plus};
}

TEST(BestMatches, TheEnumerationRunsTheFirstIndexFastestAndThenCountsSigns) {
  EXPECT_TRUE(met_before(match(0, {0, 1}, 3), match(0, {0, 2}, 0)));
  EXPECT_TRUE(met_before(match(0, {0, 2}, 3), match(0, {1, 2}, 0)));
  EXPECT_TRUE(met_before(match(0, {1, 2}, 3), match(0, {0, 3}, 0)));
  EXPECT_TRUE(met_before(match(0, {0, 1}, 1), match(0, {0, 1}, 2)));
  EXPECT_FALSE(met_before(match(0, {0, 1}, 2), match(0, {0, 1}, 1)));
  EXPECT_FALSE(met_before(match(0, {0, 1}, 1), match(0, {0, 1}, 1)));
}

TEST(BestMatches, KeepsTheNearestAndTiesAsTheyAreMet) {
  BestMatches best(3, false);
  best.offer(match(0.5, {2}, 1), 2);
  best.offer(match(0.25, {3}, 1), 3);
  best.offer(match(0.5, {1}, 1), 1);
  EXPECT_EQ(best.bound(), 0.5);
  best.offer(match(0.5, {0}, 1), 0);
  best.offer(match(0.5, {4}, 1), 4);
  EXPECT_EQ(best.matches(),
            (std::vector<CombMatch>{match(0.25, {3}, 1), match(0.5, {0}, 1), match(0.5, {1}, 1)}));
}

TEST(BestMatches, KeepsTheFirstMetOfEachDifference) {
  BestMatches best(2, true);
  best.offer(match(0.5, {2}, 1), 2);
  best.offer(match(0.5, {1}, 1), 1);
  best.offer(match(0.5, {3}, 1), 3);
  best.offer(match(0.75, {4}, 1), 4);
  best.offer(match(0.125, {5}, 1), 5);
  EXPECT_EQ(best.matches(), (std::vector<CombMatch>{match(0.125, {5}, 1), match(0.5, {1}, 1)}));
}

TEST(BestMatches, TheBoundIsInfiniteWhileThereIsRoom) {
  BestMatches best(2, true);
  EXPECT_EQ(best.bound(), std::numeric_limits<double>::infinity());
  EXPECT_TRUE(best.ties_count(7));
  best.offer(match(0.5, {0}, 1), 0);
  EXPECT_EQ(best.bound(), std::numeric_limits<double>::infinity());
  best.offer(match(0.25, {1}, 1), 1);
  EXPECT_EQ(best.bound(), 0.5);
}

TEST(BestMatches, TiesCountWithinTheGroupOfTheLastAlone) {
  BestMatches best(1, false);
  best.offer(match(0.5, {4}, 1), 4);
  EXPECT_TRUE(best.ties_count(4));
  EXPECT_FALSE(best.ties_count(5));
  EXPECT_TRUE(best.may_enter(0.5, 4));
  EXPECT_FALSE(best.may_enter(0.5, 5));
  EXPECT_TRUE(best.may_enter(0.25, 5));
  EXPECT_FALSE(best.may_enter(0.75, 4));
}

TEST(BestMatches, ADifferenceThatIsTakenEntersFromTheSameGroupAlone) {
  BestMatches best(3, true);
  best.offer(match(0.5, {4}, 1), 4);
  EXPECT_TRUE(best.may_enter(0.5, 4));
  EXPECT_FALSE(best.may_enter(0.5, 5));
  EXPECT_TRUE(best.may_enter(0.75, 5));
}

TEST(BestMatches, IsCompleteWhenNothingCanBeNearer) {
  BestMatches ties(2, false);
  ties.offer(match(0.0, {0}, 1), 0);
  EXPECT_FALSE(ties.complete(0.25)) << "there is room";
  ties.offer(match(0.25, {1}, 1), 1);
  EXPECT_FALSE(ties.complete(0.25)) << "another 0 may come";
  ties.offer(match(0.0, {2}, 1), 2);
  EXPECT_TRUE(ties.complete(0.25));
  BestMatches one_each(2, true);
  one_each.offer(match(0.0, {0}, 1), 0);
  one_each.offer(match(0.5, {1}, 1), 1);
  EXPECT_FALSE(one_each.complete(0.25)) << "0.25 may come";
  one_each.offer(match(0.25, {2}, 1), 2);
  EXPECT_TRUE(one_each.complete(0.25));
}

TEST(BestMatches, MergedListsAreTheListOfAll) {
  BestMatches a(2, false);
  BestMatches b(2, false);
  a.offer(match(0.5, {0}, 1), 0);
  a.offer(match(0.5, {3}, 1), 3);
  b.offer(match(0.5, {1}, 1), 1);
  b.offer(match(0.75, {2}, 1), 2);
  a.merge(b);
  EXPECT_EQ(a.matches(), (std::vector<CombMatch>{match(0.5, {0}, 1), match(0.5, {1}, 1)}));
}

}  // namespace
}  // namespace kov
