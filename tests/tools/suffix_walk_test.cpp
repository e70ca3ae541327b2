#include "tools/suffix_walk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

const SuffixWalk::Hopeless never = [](std::span<const std::uint32_t>) { return std::nullopt; };

/// "first..end upper upper (before)", block by block.
std::vector<std::string> blocks(SuffixWalk& walk, const SuffixWalk::Hopeless& hopeless = never) {
  std::vector<std::string> all;
  while (const auto block = walk.next(hopeless)) {
    std::string text = int_text(block->first) + ".." + int_text(block->end);
    for (const std::uint32_t member : block->upper) text += " " + int_text(member);
    all.push_back(text + " (" + int_text(static_cast<std::int64_t>(block->before)) + ")");
  }
  return all;
}

TEST(SuffixWalk, DealsOutBlocksAsTheEnumerationMeetsThem) {
  SuffixWalk walk(5, 3, 0, 100);
  EXPECT_EQ(blocks(walk), (std::vector<std::string>{"0..1 1 2 (0)", "0..1 1 3 (1)", "0..2 2 3 (2)",
                                                    "0..1 1 4 (4)", "0..2 2 4 (5)", "0..3 3 4 (7)"}));
}

TEST(SuffixWalk, LeavesRoomForTheMembersBelow) {
  SuffixWalk walk(6, 4, 2, 100);
  EXPECT_EQ(blocks(walk), (std::vector<std::string>{"2..3 3 (0)", "2..4 4 (1)", "2..5 5 (3)"}));
}

TEST(SuffixWalk, OneMemberRunsThroughAllElements) {
  SuffixWalk walk(6, 1, 0, 100);
  EXPECT_EQ(blocks(walk), std::vector<std::string>{"0..6 (0)"});
  SuffixWalk behind(6, 3, 2, 100);
  EXPECT_EQ(blocks(behind), std::vector<std::string>{"2..6 (0)"});
}

TEST(SuffixWalk, OneCombinationIsOneBlock) {
  SuffixWalk walk(3, 3, 1, 100);
  EXPECT_EQ(blocks(walk), std::vector<std::string>{"1..2 2 (0)"});
}

TEST(SuffixWalk, CutsLongBlocks) {
  SuffixWalk walk(7, 2, 1, 2);
  EXPECT_EQ(blocks(walk), (std::vector<std::string>{"1..3 (0)", "3..5 (2)", "5..7 (4)"}));
}

TEST(SuffixWalk, SkipsWhatIsHopeless) {
  // Nothing with the member 3 at position 2, nothing with 2 at position 1.
  const SuffixWalk::Hopeless hopeless =
      [](std::span<const std::uint32_t> upper) -> std::optional<std::uint32_t> {
    if (upper[1] == 3) return 2;
    if (upper[0] == 2) return 1;
    return std::nullopt;
  };
  SuffixWalk walk(6, 3, 0, 100);
  EXPECT_EQ(blocks(walk, hopeless),
            (std::vector<std::string>{"0..1 1 2 (0)", "0..1 1 4 (1)", "0..3 3 4 (2)", "0..1 1 5 (5)",
                                      "0..3 3 5 (6)", "0..4 4 5 (9)"}));
}

TEST(SuffixWalk, LooksUpFromALongSkip) {
  // 400 * 399 / 2 choices, none of which is of interest but the last.
  const SuffixWalk::Hopeless hopeless =
      [](std::span<const std::uint32_t> upper) -> std::optional<std::uint32_t> {
    if (upper[0] == 400) return std::nullopt;
    return 1;
  };
  SuffixWalk walk(402, 3, 0, 1000);
  const auto all = blocks(walk, hopeless);
  ASSERT_GT(all.size(), 2U);
  EXPECT_EQ(all.front().substr(0, 4), "0..0");
  EXPECT_EQ(all.back(), "0..400 400 401 (0)");
}

TEST(SuffixWalk, EndsWhenNothingElseIsOfInterest) {
  SuffixWalk walk(9, 3, 0, 100);
  EXPECT_TRUE(
      blocks(walk, [](std::span<const std::uint32_t>) { return std::optional<std::uint32_t>(2); }).empty());
  EXPECT_FALSE(walk.next(never).has_value());
}

}  // namespace
}  // namespace kov
