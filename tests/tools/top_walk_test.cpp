#include "tools/top_walk.h"

#include <gtest/gtest.h>

#include <bit>
#include <string>

#include "text/integers.h"

namespace kov {
namespace {

/// "number: members", choice by choice.
std::string choices(TopWalk walk) {
  std::string text;
  while (const auto choice = walk.next()) {
    text += int_text(static_cast<std::int64_t>(choice->number)) + ":";
    for (const std::uint32_t member : choice->members) text += " " + int_text(member);
    text += "\n";
  }
  return text;
}

TEST(TopWalk, TheLastMemberRunsSlowest) {
  EXPECT_EQ(choices(TopWalk(5, 3, 3)), "0:\n1: 3\n2: 4\n3: 3 4\n");
  EXPECT_EQ(choices(TopWalk(6, 4, 3)), "1: 3\n2: 4\n3: 3 4\n4: 5\n5: 3 5\n6: 4 5\n7: 3 4 5\n");
}

TEST(TopWalk, LeavesNoMoreMembersThanThereAreElementsBelow) {
  EXPECT_EQ(choices(TopWalk(5, 4, 2)), "3: 2 3\n5: 2 4\n6: 3 4\n7: 2 3 4\n");
  EXPECT_EQ(choices(TopWalk(5, 5, 2)), "7: 2 3 4\n");
}

TEST(TopWalk, TakesNoMoreThanTheOrder) { EXPECT_EQ(choices(TopWalk(6, 1, 3)), "0:\n1: 3\n2: 4\n4: 5\n"); }

TEST(TopWalk, WalksOverFewChoicesOfALargeTop) {
  TopWalk one(40, 1, 10);
  for (std::uint64_t number : {0, 1, 2, 4, 8}) EXPECT_EQ(one.next()->number, number);
  TopWalk all_but_one(40, 39, 10);
  EXPECT_EQ(all_but_one.next()->number, (1U << 29) - 1U);
  EXPECT_EQ(all_but_one.next()->number, (1U << 29) - 1U + (1U << 28));
}

/// All numbers, one by one.
TEST(TopWalk, MissesNoChoice) {
  for (std::uint32_t order = 1; order <= 12; ++order) {
    for (std::uint32_t begin = 1; begin <= 12; ++begin) {
      TopWalk walk(12, order, begin);
      for (std::uint64_t number = 0; number < 1U << (12 - begin); ++number) {
        const auto chosen = static_cast<std::uint32_t>(std::popcount(number));
        if (chosen > order || order - chosen > begin) continue;
        const auto choice = walk.next();
        ASSERT_TRUE(choice.has_value());
        EXPECT_EQ(choice->number, number);
      }
      EXPECT_FALSE(walk.next().has_value());
    }
  }
}

TEST(TopWalk, WithoutATopThereIsOneChoice) { EXPECT_EQ(choices(TopWalk(4, 2, 4)), "0:\n"); }

}  // namespace
}  // namespace kov
