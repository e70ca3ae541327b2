#include "algadd/row_step.h"

#include <gtest/gtest.h>

#include <array>

#include "numbers/errors.h"
#include "step_world.h"
#include "support/literal_step.h"
#include "support/points_text.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

class RowStepAgainstLiteral : public ::testing::Test {
 protected:
  static constexpr std::array<int, 4> thread_counts = {1, 2, 3, 7};

  /// The step of the world with each number of threads, compared with the literal one.
  void compare(const StepWorld& world) {
    const LiteralStore literal = literal_copy(world.lmap);
    const LiteralStore expected = literal_row(world.algadd, 0, literal, world.n, world.used_length());
    const bool overflow = !all_finite(expected);
    overflows_ += overflow ? 1 : 0;
    points_ += expected.size();
    for (WorkerPool& pool : pools_) {
      const auto make = [&] {
        return RowStep(pool).destinations(world.algadd, 0, world.used_length(), world.lmap, world.n, progress_);
      };
      if (overflow) {
        ASSERT_THROW(make(), floating_overflow);
      } else {
        ASSERT_TRUE(identical(make(), expected)) << pool.threads() << " threads";
      }
    }
  }

  std::size_t points_ = 0;
  int overflows_ = 0;

 private:
  RecordingProgress progress_;
  std::array<WorkerPool, 4> pools_{WorkerPool(1), WorkerPool(2), WorkerPool(3), WorkerPool(7)};
};

TEST_F(RowStepAgainstLiteral, SmallWorldsEqualItInEveryBit) {
  for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
    SCOPED_TRACE(seed);
    ASSERT_NO_FATAL_FAILURE(compare(StepWorld(seed, 60)));
  }
  EXPECT_GT(points_, 500000U);
  EXPECT_GT(overflows_, 20);
}

TEST_F(RowStepAgainstLiteral, LargeWorldsEqualItInEveryBit) {
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    ASSERT_NO_FATAL_FAILURE(compare(StepWorld(seed, 20000)));
  }
  EXPECT_GT(points_, 500000U);
}

}  // namespace
}  // namespace kov
