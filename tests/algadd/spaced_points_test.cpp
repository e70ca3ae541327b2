#include "algadd/spaced_points.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace kov {
namespace {

/// Numbers that come near the ends of what a sum may take, and whose products round.
template <class Number>
Number some_number(std::mt19937_64& random) {
  if constexpr (std::is_same_v<Number, std::int32_t>) {
    return static_cast<std::int32_t>(random() % 20001) - 10000;
  } else {
    return (static_cast<double>(random() % 2000001) - 1e6) / 999983.0;
  }
}

template <class Number>
RealSum<Number> some_sum(std::mt19937_64& random, RealSum<Number>) {
  return {some_number<Number>(random)};
}
template <class Number>
ComplexSum<Number> some_sum(std::mt19937_64& random, ComplexSum<Number>) {
  const Number re = some_number<Number>(random);
  return {re, some_number<Number>(random)};
}

template <class Number>
void read(const std::vector<Number>& re, const std::vector<Number>&, const Number*& values) {
  values = re.data();
}
template <class Number>
void read(const std::vector<Number>& re, const std::vector<Number>& im, auto& values) {
  values = {re.data(), im.data()};
}

template <class Arithmetic>
class SpacedPoints : public ::testing::Test {
 protected:
  using Sum = typename Arithmetic::Sum;
  using Number = typename Arithmetic::Number;

  /// Ascending offsets: stretches of all lengths, each with gaps of its own.
  std::vector<std::uint32_t> some_offsets(std::size_t count) {
    std::vector<std::uint32_t> offsets;
    std::uint32_t next = static_cast<std::uint32_t>(random() % 40);
    while (offsets.size() < count) {
      const std::size_t length = 1 + random() % 50;
      const std::uint64_t kind = random() % 5;
      for (std::size_t i = 0; i < length && offsets.size() < count; ++i) {
        offsets.push_back(next);
        next += kind < 3 ? static_cast<std::uint32_t>(kind + 1)
                         : 1 + static_cast<std::uint32_t>(random() % (kind == 3 ? 3 : 50));
      }
    }
    return offsets;
  }

  void expect_as_one_by_one(std::size_t count) {
    const std::vector<std::uint32_t> offsets = some_offsets(count);
    std::vector<Number> re(count);
    std::vector<Number> im(count);
    for (Number& x : re) x = random() % 8 == 0 ? Number{} : some_number<Number>(random);
    for (Number& x : im) x = some_number<Number>(random);
    typename Arithmetic::Values values;
    read(re, im, values);
    typename Arithmetic::Factor factor;
    if constexpr (std::is_same_v<typename Arithmetic::Factor, Number>) {
      factor = some_number<Number>(random);
    } else {
      factor = some_sum(random, factor);
    }
    const std::int64_t first = 100 - (count == 0 ? 0 : std::int64_t{offsets[0]});
    const std::size_t used = count == 0 ? 0 : static_cast<std::size_t>(first + offsets.back() + 1);
    // Cells that must stay as they are follow those that may take zeros.
    constexpr std::size_t guards = 64;
    std::vector<Sum> cells(used + cells_behind_points + guards);
    for (Sum& cell : cells) cell = random() % 3 == 0 ? Sum{} : some_sum(random, Sum{});
    if constexpr (std::is_same_v<Number, double>) {
      // A zero more would show.
      for (std::size_t i = cells.size() - guards; i < cells.size(); ++i) cells[i].re = -0.0;
    }
    std::vector<Sum> expected = cells;
    add_products<Arithmetic>(cells.data(), first, offsets.data(), count, factor, values);
    add_one_by_one<Arithmetic>(expected.data(), first, offsets.data(), 0, count, factor, values);
    ASSERT_EQ(std::memcmp(cells.data(), expected.data(), cells.size() * sizeof(Sum)), 0);
  }

  std::mt19937_64 random{4};
};

using LinearArithmetics =
    ::testing::Types<RealArithmetic<IntegerNumbers>, RealArithmetic<DoubleNumbers>,
                     ComplexArithmetic<IntegerNumbers>, ComplexArithmetic<DoubleNumbers>>;
TYPED_TEST_SUITE(SpacedPoints, LinearArithmetics);

TYPED_TEST(SpacedPoints, AreAddedAsOneByOneInEveryBit) {
  for (std::size_t count = 0; count < 300; ++count) {
    for (int times = 0; times < 10; ++times) {
      SCOPED_TRACE(count);
      ASSERT_NO_FATAL_FAILURE(this->expect_as_one_by_one(count));
    }
  }
}

// A fused multiply-add would give other bits here: 1 + 2^-30 squared less 1 + 2^-29 is 2^-60, or 0 when the
// square is rounded.
TEST(AddOneByOne, RoundsEveryProduct) {
  using Arithmetic = ComplexArithmetic<DoubleNumbers>;
  const double x = 1.0 + 0x1p-30;
  const std::vector<double> re(20, x);
  const std::vector<double> im(20, 1.0);
  std::vector<std::uint32_t> offsets;
  for (std::uint32_t i = 0; i < 20; ++i) offsets.push_back(5 * i);
  std::vector<Arithmetic::Sum> cells(100 + cells_behind_points);
  add_products<Arithmetic>(cells.data(), 0, offsets.data(), 20, {x, 1.0 + 0x1p-29}, {re.data(), im.data()});
  for (const std::uint32_t offset : offsets) EXPECT_EQ(cells[offset].re, 0.0);
}

}  // namespace
}  // namespace kov
