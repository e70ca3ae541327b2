#include "tools/merge_search.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

constexpr CombRules nearest_two{.nearest = 2, .one_per_difference = false, .squares = false};

/// Elements 0, 1 are low, 2, 3 middle, 4, 5 the top.
struct Meeting {
  OrderTerms terms{{2.0, 0.5, 1.0, -0.25, 4.0, 0.125}, 3, Signs::plus_and_minus, nearest_two};
  ElementHalves halves{terms, 2, 2, 1};
  SharedBound bound;
  BestMatches before{2, false};
  MergeSearch search{terms, halves, nearest_two, bound, before};
};

TEST(MergeSearch, CompletesASumByMiddleAndLowMembers) {
  Meeting meeting;
  // 4 - 2 - 1, and 4 - 2 - 0.25.
  const TopWalk::Choice four{.members = {4}, .number = 1};
  const PartialSum minus{.sum = -4.0, .plus = 0};
  const PartialSum plus{.sum = 4.0, .plus = 0b100};
  meeting.search.search(std::vector{minus, plus}, four, 1);
  EXPECT_EQ(meeting.search.found().matches(),
            (std::vector<CombMatch>{{0.0, {0, 2, 4}, 0b100}, {0.75, {0, 3, 4}, 0b110}}));
  EXPECT_EQ(meeting.bound.get(), 0.75);
}

TEST(MergeSearch, TakesAsManyMiddleMembersAsItIsTold) {
  Meeting meeting;
  const TopWalk::Choice four{.members = {4}, .number = 1};
  const PartialSum plus{.sum = 4.0, .plus = 0b100};
  meeting.search.search(std::vector{plus}, four, 0);
  EXPECT_EQ(meeting.search.found().matches(),
            (std::vector<CombMatch>{{0.5, {0, 1, 4}, 0b100}, {1.5, {0, 1, 4}, 0b110}}));
  Meeting both;
  both.search.search(std::vector{plus}, four, 2);
  EXPECT_EQ(both.search.found().matches(),
            (std::vector<CombMatch>{{1.75, {2, 3, 4}, 0b110}, {2.25, {2, 3, 4}, 0b100}}));
}

TEST(MergeSearch, LeavesOutWhatTheChoicesBeforeHaveBeaten) {
  Meeting meeting;
  meeting.before.offer({0.0, {0, 1, 2}, 1}, 0);
  meeting.before.offer({0.75, {0, 1, 3}, 1}, 0);
  meeting.bound.lower_to(0.75);
  const TopWalk::Choice four{.members = {4}, .number = 1};
  meeting.search.search(std::vector{PartialSum{.sum = 4.0, .plus = 0b100}}, four, 1);
  EXPECT_EQ(meeting.search.found().matches(), (std::vector<CombMatch>{{0.0, {0, 2, 4}, 0b100}}))
      << "0.75 is met too late";
}

TEST(MergeSearch, EqualSumsAreAllTested) {
  const OrderTerms terms({1.0 / 3.0, 1.0 / 3.0, 1.0 / 3.0, 1.0 / 3.0}, 2, Signs::plus_and_minus, {});
  const ElementHalves halves(terms, 2, 2, 1);
  const CombRules many{.nearest = 100, .one_per_difference = false, .squares = false};
  SharedBound bound;
  const BestMatches none(100, false);
  MergeSearch search(terms, halves, many, bound, none);
  search.search(std::vector{PartialSum{}}, {.members = {}, .number = 0}, 1);
  EXPECT_EQ(search.found().matches().size(), 16U) << "2 * 2 members with 4 sign patterns";
}

}  // namespace
}  // namespace kov
