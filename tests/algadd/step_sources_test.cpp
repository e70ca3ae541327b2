#include "algadd/step_sources.h"

#include <gtest/gtest.h>

#include "algadd/fraction_arithmetic.h"
#include "algadd/linear_arithmetic.h"
#include "algadd/quantity_arithmetic.h"
#include "planned_step.h"
#include "run_fixture.h"

namespace kov {
namespace {

/// Two lattices of more than one block: quantities 1, 2, ... and 1/2, 2/2, ...
class StepSourcesTest : public ::testing::Test {
 protected:
  static constexpr std::size_t count = block_capacity + 1000;

  static PlannedStep::Points points() {
    PlannedStep::Points points = points_on_k1(count);
    for (auto [key, q] : points_on_k1(count, 1, 0, 1)) points.emplace_back(key, q * cotyp(1, 2, 0, 1));
    return points;
  }

  const PlannedStep step{points(), {entry_of(1, 0, 0), entry_of(1, 0, 1)}};
  const StepPlan& plan = step.plan();

  /// f(stream, piece, quantity of point i of the piece) for some pieces of all blocks.
  template <class Function>
  void for_each_quantity(const Function& f) const {
    for (std::size_t stream = 0; stream < plan.streams.size(); ++stream) {
      for (std::size_t block = 0; block < plan.streams[stream].block_count(); ++block) {
        const Block& points = plan.streams[stream].block(block);
        for (const std::size_t from : {std::size_t{0}, points.size() / 3, points.size() - 1}) {
          const Piece piece{.term = stream, .block = block, .from = from, .count = points.size() - from};
          for (std::size_t i = 0; i < piece.count; i += 7) f(stream, piece, i, points.quantity(from + i));
        }
      }
    }
  }
};

TEST_F(StepSourcesTest, ColumnsAreReadAsTheyStand) {
  const RealArithmetic<IntegerNumbers> arithmetic{{2, 1}};
  StepSources<RealArithmetic<IntegerNumbers>> sources(plan, arithmetic);
  EXPECT_EQ(sources.block_count(), 0U);
  StepSources<RealArithmetic<IntegerNumbers>>::Room room;
  std::size_t seen = 0;
  for_each_quantity([&](std::size_t stream, const Piece& piece, std::size_t i, const cotyp& q) {
    EXPECT_EQ(ratyp(sources.values(stream, piece, room)[i], 2), q.re);
    ++seen;
  });
  EXPECT_GT(seen, count / 7);
}

TEST_F(StepSourcesTest, BlocksAreMadeReadyOnce) {
  StepSources<QuantityArithmetic> sources(plan, QuantityArithmetic{});
  std::size_t blocks = 0;
  for (const SourceStream& stream : plan.streams) blocks += stream.block_count();
  ASSERT_EQ(sources.block_count(), blocks);
  for (std::size_t i = blocks; i > 0; --i) sources.prepare(i - 1);
  StepSources<QuantityArithmetic>::Room room;
  for_each_quantity([&](std::size_t stream, const Piece& piece, std::size_t i, const cotyp& q) {
    EXPECT_EQ(sources.values(stream, piece, room)[i], q);
  });
}

TEST_F(StepSourcesTest, FractionsAreMadeReadyToo) {
  StepSources<FractionArithmetic> sources(plan, FractionArithmetic{});
  for (std::size_t i = 0; i < sources.block_count(); ++i) sources.prepare(i);
  StepSources<FractionArithmetic>::Room room;
  for_each_quantity([&](std::size_t stream, const Piece& piece, std::size_t i, const cotyp& q) {
    const FractionSum& made = sources.values(stream, piece, room)[i];
    EXPECT_EQ(made.numerator(), q.re.nu());
    EXPECT_EQ(made.denominator(), q.re.de());
  });
}

}  // namespace
}  // namespace kov
