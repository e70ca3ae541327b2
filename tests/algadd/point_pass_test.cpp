#include "algadd/point_pass.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "run_fixture.h"

namespace kov {
namespace {

TEST(PointPass, TellsOfEveryTenThousandPointsHoweverTheyCome) {
  for (const std::size_t at_once : {1U, 512U, 25'000U}) {
    HookedProgress progress;
    const ProgressBox box(progress, 0, 25'000);
    PointPass pass(progress, "entry ", 25'000);
    for (std::size_t done = 0; done < 25'000; done += at_once) {
      pass.advance(std::min<std::size_t>(at_once, 25'000 - done));
    }
    EXPECT_EQ(progress.headlines(),
              (std::vector<std::string>{"entry 10000 of 25000", "entry 20000 of 25000"}))
        << at_once;
    EXPECT_EQ(progress.breaths, 25'000 / 1024) << at_once;
  }
}

TEST(PointPass, WithoutAHeadingTheDisplayBreathesOnly) {
  HookedProgress progress;
  PointPass pass(progress, {}, 25'000);
  pass.advance(25'000);
  EXPECT_TRUE(progress.log.empty());
  EXPECT_EQ(progress.breaths, 25'000 / 1024);
}

}  // namespace
}  // namespace kov
