#include "algadd/sum_writer.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "algadd/linear_arithmetic.h"
#include "arithmetic_chains.h"
#include "numbers/errors.h"
#include "planned_step.h"
#include "run_fixture.h"

namespace kov {
namespace {

/// A writer for points along k1; key k is k1 = k above the low bound of the frame.
class SumWriterTest : public ::testing::Test {
 protected:
  using Arithmetic = RealArithmetic<DoubleNumbers>;
  using Sum = Arithmetic::Sum;

  std::size_t written() const {
    std::size_t count = 0;
    for (const BoundedBlock& made : blocks) count += made.block.size();
    return count;
  }

  const PlannedStep step{points_on_k1(20000), {entry_of(1)}};
  const StepPlan& plan = step.plan();
  const Arithmetic arithmetic{};
  std::vector<BoundedBlock> blocks;
  const std::unique_ptr<SumWriter<Arithmetic>> writer =
      std::make_unique<SumWriter<Arithmetic>>(plan, arithmetic, blocks);
};

TEST_F(SumWriterTest, FillsBlocksFromBothSides) {
  // Single sums and runs of cells in turns, of which every third is absent.
  std::vector<Sum> cells(5000 + cells_of_line);
  for (std::uint32_t i = 0; i < 5000; ++i) cells[i].re = i % 3 == 0 ? 0.0 : 5000.0 + i;
  for (std::int64_t key = 0; key < 5000; ++key)
    writer->append(key, {key % 3 == 0 ? 0.0 : static_cast<double>(key)});
  writer->take(5000, cells.data(), 5000);
  writer->append(10000, {10000.0});
  writer->flush();
  constexpr std::size_t per_run = 3333;
  ASSERT_EQ(written(), 2 * per_run + 1);
  ASSERT_EQ(blocks.size(), 2U);
  EXPECT_EQ(blocks[0].block.size(), block_capacity);
  std::uint64_t last = 0;
  for (const BoundedBlock& made : blocks) {
    for (std::size_t i = 0; i < made.block.size(); ++i) {
      const std::uint64_t key = made.block.key(i);
      EXPECT_GT(key, last);
      last = key;
      EXPECT_TRUE(same_bits(made.block.quantity(i), cotyp::floating(static_cast<double>(key), 0.0)));
    }
  }
}

TEST_F(SumWriterTest, RunsLongerThanABlockAreSplit) {
  std::vector<Sum> cells(3 * block_capacity, Sum{1.0});
  writer->append(0, {0.5});
  writer->take(1, cells.data(), cells.size());
  writer->flush();
  ASSERT_EQ(blocks.size(), 4U);
  EXPECT_EQ(blocks[2].block.size(), block_capacity);
  EXPECT_EQ(blocks[3].block.size(), 1U);
}

TEST_F(SumWriterTest, BoundsAreThoseOfTheKeys) {
  for (const std::int64_t key : {100, 300, 700}) writer->append(key, {1.0});
  writer->flush();
  ASSERT_EQ(blocks.size(), 1U);
  const KeyBox expected{plan.frame.unpack(100, plan.n), plan.frame.unpack(700, plan.n)};
  EXPECT_EQ(blocks[0].box, expected);
}

TEST_F(SumWriterTest, OfMarkedCellsOnlyTheirLinesAreLookedAt) {
  std::vector<Sum> cells(20 * cells_of_line);
  std::vector<std::uint8_t> marks(32);
  for (const std::size_t line : {0U, 3U, 19U}) {
    cells[line * cells_of_line + line % 16].re = 1.0 + static_cast<double>(line);
    marks[line] = 1;
  }
  writer->take_marked(100, cells.data(), cells.size(), marks.data());
  writer->flush();
  ASSERT_EQ(blocks.size(), 1U);
  ASSERT_EQ(written(), 3U);
  EXPECT_EQ(blocks[0].block.key(1), 100U + 3 * cells_of_line + 3);
  EXPECT_EQ(blocks[0].block.quantity(2), cotyp::floating(20.0, 0.0));
  EXPECT_EQ(marks, std::vector<std::uint8_t>(32));
}

TEST_F(SumWriterTest, NothingMakesNoBlock) {
  writer->append(1, {0.0});
  writer->take(1, nullptr, 0);
  writer->flush();
  writer->flush();
  EXPECT_TRUE(blocks.empty());
}

TEST_F(SumWriterTest, OverflowIsNoticedWhenABlockIsMade) {
  writer->append(1, {std::numeric_limits<double>::infinity()});
  EXPECT_THROW(writer->flush(), floating_overflow);
}

}  // namespace
}  // namespace kov
