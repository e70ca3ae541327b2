#include "algadd/counted_arithmetic.h"

#include <gtest/gtest.h>

#include "arithmetic_chains.h"
#include "text/integers.h"

namespace kov {
namespace {

std::vector<ratyp> integers_and_doubles() { return joined({edge_integers(), edge_doubles()}); }
std::vector<ratyp> zeros_of_both_states() { return {ratyp(), ratyp::floating(0.0)}; }

TEST(CountedArithmetic, RealNumbersGiveTheLiteralBits) {
  const std::vector<cotyp> numbers = pairs_of(integers_and_doubles(), zeros_of_both_states());
  ArithmeticChains<CountedRealArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(60000, 6);
  EXPECT_GT(chains.compared(), 50000U);
}

TEST(CountedArithmetic, RealIntegersGiveTheLiteralBits) {
  const std::vector<cotyp> numbers = pairs_of(edge_integers(), {ratyp()});
  ArithmeticChains<CountedRealArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(60000, 6);
  EXPECT_GT(chains.compared(), 50000U);
}

TEST(CountedArithmetic, ComplexNumbersGiveTheLiteralBits) {
  const std::vector<cotyp> numbers = pairs_of(integers_and_doubles(), integers_and_doubles());
  ArithmeticChains<CountedComplexArithmetic> chains({}, numbers, numbers);
  chains.expect_sums(100000, 6);
  EXPECT_GT(chains.compared(), 80000U);
}

TEST(CountedArithmetic, ComplexIntegersGiveTheLiteralBits) {
  const std::vector<cotyp> numbers = pairs_of(edge_integers(), edge_integers());
  ArithmeticChains<CountedComplexArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(100000, 6);
  const std::vector<cotyp> units = pairs_of({0, 1, -1}, {0, 1, -1});
  ArithmeticChains<CountedComplexArithmetic> at_the_ends({}, units, numbers);
  at_the_ends.expect_products();
  at_the_ends.expect_sums(100000, 5);
  EXPECT_GT(at_the_ends.compared(), 80000U);
}

TEST(CountedArithmetic, OverflowIsNoticed) {
  const std::vector<ratyp> parts = {3, ratyp::floating(1e200), ratyp::floating(-1.7e308),
                                    ratyp::floating(1e-10)};
  ArithmeticChains<CountedRealArithmetic> real({}, pairs_of(parts, {ratyp()}), pairs_of(parts, {ratyp()}));
  real.expect_products();
  real.expect_sums(2000, 4);
  EXPECT_GT(real.overflows(), 100U);
  ArithmeticChains<CountedComplexArithmetic> complex({}, pairs_of(parts, parts), pairs_of(parts, parts));
  complex.expect_products();
  complex.expect_sums(2000, 4);
  EXPECT_GT(complex.overflows(), 100U);
}

TEST(CountedArithmetic, ColumnsTakeTheSmallestForm) {
  const std::vector<double> parts = {1.0, -2147483647.0, 0.0};
  const auto form = [&](std::vector<PartStates> states, unsigned bit) {
    return counted_column(parts, states, bit).form();
  };
  EXPECT_EQ(form({1, 3, 1}, 1), PartForm::integers);
  EXPECT_EQ(form({2, 0, 2}, 1), PartForm::doubles);
  EXPECT_EQ(form({1, 0, 2}, 1), PartForm::mixed);
  EXPECT_EQ(form({2, 3, 2}, 2), PartForm::integers);
  const std::vector<double> zeros(3);
  EXPECT_EQ(counted_column(zeros, std::vector<PartStates>{3, 1, 1}, 1).form(), PartForm::zero);
  EXPECT_EQ(counted_column(zeros, std::vector<PartStates>{3, 1, 1}, 2).form(), PartForm::mixed);
  EXPECT_EQ(counted_column(zeros, std::vector<PartStates>{1, 1, 0}, 2).form(), PartForm::floating_zero);
}

TEST(CountedArithmetic, BlocksKeepValuesAndStates) {
  const std::vector<cotyp> quantities = {
      {3, ratyp::floating(0.5)}, {ratyp::floating(-0.25), 7}, cotyp::floating(1.5, 0.0), cotyp(lowest_int)};
  const CountedBlock block = counted_complex_block(block_of(quantities));
  EXPECT_EQ(block.re, (std::vector{3.0, -0.25, 1.5, -2147483648.0}));
  EXPECT_EQ(block.im, (std::vector{0.5, 7.0, 0.0, 0.0}));
  EXPECT_EQ(block.states, (std::vector<PartStates>{1, 2, 0, 3}));
  const CountedBlock real =
      counted_real_block(block_of({{3, ratyp::floating(0.0)}, {-4, ratyp::floating(0.0)}}));
  EXPECT_EQ(real.re, (std::vector{3.0, -4.0}));
  EXPECT_TRUE(real.im.empty());
  EXPECT_EQ(real.states, (std::vector<PartStates>{1, 1}));
}

}  // namespace
}  // namespace kov
