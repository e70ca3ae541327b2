#include "algadd/run_limits.h"

#include <gtest/gtest.h>

#include "run_fixture.h"

namespace kov {
namespace {

class RunLimitsTest : public RunFixture {};

TEST_F(RunLimitsTest, ParametersAreDecimalKilobytes) {
  set("Algadd_mem1_DisplayAfterKB", 10);
  set("Algadd_TM_DelSmallestAfterKB", 100);
  set("MaxAllowedMemOccupationInKB", 2147483647);
  const RunLimits limits = RunLimits::read(cph);
  EXPECT_EQ(limits.display, 10'000);
  EXPECT_EQ(limits.display_step, 10'000);
  EXPECT_EQ(limits.tracking, 100'000);
  EXPECT_EQ(limits.maximum, 2'147'483'647'000);
}

TEST_F(RunLimitsTest, RowZeroIsKeptUnlessTheParameterSaysOtherwise) {
  EXPECT_EQ(RunLimits::read(cph).first_deletable_row, 1);
  set("Algadd_TM_DelAlsoTillRow0", 1);
  EXPECT_EQ(RunLimits::read(cph).first_deletable_row, 0);
}

TEST_F(RunLimitsTest, AnyOfTheThreeIsPassedStrictlyAbove) {
  const RunLimits limits{
      .display = 30, .display_step = 1, .tracking = 20, .maximum = 10, .first_deletable_row = 1};
  EXPECT_FALSE(limits.passed_any(10));
  EXPECT_TRUE(limits.passed_any(11));
  const RunLimits by_display{
      .display = 10, .display_step = 1, .tracking = 20, .maximum = 30, .first_deletable_row = 1};
  EXPECT_FALSE(by_display.passed_any(10));
  EXPECT_TRUE(by_display.passed_any(11));
  const RunLimits by_tracking{
      .display = 20, .display_step = 1, .tracking = 10, .maximum = 30, .first_deletable_row = 1};
  EXPECT_FALSE(by_tracking.passed_any(10));
  EXPECT_TRUE(by_tracking.passed_any(11));
}

}  // namespace
}  // namespace kov
