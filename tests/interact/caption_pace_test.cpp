#include "interact/caption_pace.h"

#include <gtest/gtest.h>

#include <vector>

namespace kov {
namespace {

CaptionPace::Time at(int milliseconds) { return CaptionPace::Time(std::chrono::milliseconds(milliseconds)); }

TEST(CaptionPace, LetsOneThroughInATenthOfASecond) {
  struct Row {
    int milliseconds;
    bool passes;
  };
  const std::vector<Row> rows = {
      {5, true}, {6, false}, {104, false}, {105, true}, {106, false}, {300, true}, {399, false}, {1000, true},
  };
  CaptionPace pace;
  for (const Row& row : rows)
    EXPECT_EQ(pace.passes("x", at(row.milliseconds)), row.passes) << row.milliseconds;
}

TEST(CaptionPace, GivesTheLastOneAtTheEndWhenItWasHeldBack) {
  CaptionPace pace;
  pace.passes("first", at(0));
  pace.passes("second", at(1));
  pace.passes("third", at(2));
  EXPECT_EQ(pace.end(), "third");
  EXPECT_EQ(pace.end(), std::nullopt);
}

TEST(CaptionPace, GivesNothingAtTheEndWhenTheLastOnePassed) {
  CaptionPace pace;
  pace.passes("first", at(0));
  pace.passes("held", at(1));
  pace.passes("last", at(100));
  EXPECT_EQ(pace.end(), std::nullopt);
}

TEST(CaptionPace, LetsTheFirstOfTheNextOperationThrough) {
  CaptionPace pace;
  EXPECT_TRUE(pace.passes("a", at(0)));
  pace.end();
  EXPECT_TRUE(pace.passes("b", at(1)));
  EXPECT_FALSE(pace.passes("c", at(2)));
}

TEST(CaptionPace, WithoutCaptionsGivesNone) { EXPECT_EQ(CaptionPace().end(), std::nullopt); }

}  // namespace
}  // namespace kov
