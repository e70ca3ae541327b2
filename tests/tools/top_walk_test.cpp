#include "tools/top_walk.h"

#include <gtest/gtest.h>

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

TEST(TopWalk, WithoutATopThereIsOneChoice) { EXPECT_EQ(choices(TopWalk(4, 2, 4)), "0:\n"); }

}  // namespace
}  // namespace kov
