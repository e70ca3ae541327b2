#include "algadd/counted_arithmetic.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

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
  const std::array<double, 3> parts = {1.0, -2147483647.0, 7.0};
  const auto columns = [&](const std::array<FloatingParts, 3>& floating) {
    std::array<CountedRealSum, 3> sums;
    for (std::size_t i = 0; i < sums.size(); ++i) sums[i] = {parts[i], floating[i]};
    return CountedRealArithmetic::columns(sums);
  };
  const auto re_form = [&](const std::array<FloatingParts, 3>& floating) {
    return columns(floating).first.form();
  };
  const auto im_form = [&](const std::array<FloatingParts, 3>& floating) {
    return columns(floating).second.form();
  };
  EXPECT_EQ(re_form({0, 0, 0}), PartForm::integers);
  EXPECT_EQ(re_form({1, 3, 1}), PartForm::doubles);
  EXPECT_EQ(re_form({0, 3, 1}), PartForm::mixed_integers);
  EXPECT_EQ(im_form({0, 1, 1}), PartForm::zero);
  EXPECT_EQ(im_form({0, 3, 1}), PartForm::mixed_zeros);
  EXPECT_EQ(im_form({3, 3, 3}), PartForm::floating_zero);
}

TEST(CountedArithmetic, ComplexColumnsTakeTheSmallestForm) {
  const std::array<CountedSum, 2> sums = {CountedSum{1.0, 0.0, re_floating}, CountedSum{2.0, 0.0, 0}};
  const auto [re, im] = CountedComplexArithmetic::columns(sums);
  EXPECT_EQ(re.form(), PartForm::mixed_integers);
  EXPECT_EQ(im.form(), PartForm::zero);
  EXPECT_FALSE(re.get(0).exact());
  EXPECT_TRUE(re.get(1).exact());
}

std::vector<double> values_of(const CountedParts& parts, std::size_t count) {
  return {parts.data(), parts.data() + count};
}

/// The indices of the bits that are set.
std::vector<std::size_t> ones_of(const BitList& bits) {
  std::vector<std::size_t> ones;
  for (std::size_t i = 0; i < bits.size(); ++i) {
    if (bits[i]) ones.push_back(i);
  }
  return ones;
}

TEST(CountedArithmetic, BlocksKeepValuesAndWhichQuantitiesAreExact) {
  const Block quantities = block_of(
      {{3, ratyp::floating(0.5)}, {ratyp::floating(-0.25), 7}, cotyp::floating(1.5, 0.0), cotyp(lowest_int)});
  const CountedBlock counted = counted_complex_block(quantities);
  EXPECT_EQ(values_of(counted.re, 4), (std::vector{3.0, -0.25, 1.5, -2147483648.0}));
  EXPECT_EQ(values_of(counted.im, 4), (std::vector{0.5, 7.0, 0.0, 0.0}));
  EXPECT_EQ(ones_of(counted.exact), (std::vector<std::size_t>{3}));
}

TEST(CountedArithmetic, RealBlocksHaveNoImaginaryParts) {
  const ratyp zero = ratyp::floating(0.0);
  const Block quantities = block_of({{3, zero}, {-4, 0}, {ratyp::floating(0.5), 0}, {zero, zero}});
  const CountedBlock counted = counted_real_block(quantities);
  EXPECT_EQ(values_of(counted.re, 4), (std::vector{3.0, -4.0, 0.5, 0.0}));
  EXPECT_EQ(counted.im.data(), nullptr);
  EXPECT_EQ(ones_of(counted.exact), (std::vector<std::size_t>{1}));
  const Block exact = block_of({3, -4});
  EXPECT_EQ(values_of(counted_real_block(exact).re, 2), (std::vector{3.0, -4.0}));
  EXPECT_EQ(ones_of(counted_real_block(exact).exact), (std::vector<std::size_t>{0, 1}));
}

/// Quantities in stretches of one state, from single ones to some dozen.
std::vector<cotyp> stretches(std::mt19937& random, std::size_t count, bool complex) {
  std::vector<cotyp> quantities;
  while (quantities.size() < count) {
    const bool exact = random() % 2 == 0;
    for (std::size_t left = 1 + random() % 40; left > 0; --left) {
      const auto number = static_cast<std::int32_t>(random() % 1000 + 1);
      const ratyp re = exact ? ratyp(number) : ratyp::floating(number / 8.0);
      quantities.emplace_back(re, complex ? ratyp(number % 3) : ratyp());
    }
  }
  quantities.resize(count);
  return quantities;
}

template <class Arithmetic>
void expect_the_products_one_by_one(bool complex) {
  std::mt19937 random(3);
  const Block block = block_of(stretches(random, 1000, complex));
  const typename Arithmetic::Prepared prepared = Arithmetic::prepare(block);
  for (const cotyp& p : {cotyp(3), cotyp::floating(0.5, 0.0)}) {
    const auto factor = Arithmetic::factor(p);
    for (int piece = 0; piece < 300; ++piece) {
      const std::size_t from = random() % 1000;
      const std::size_t count = random() % (1001 - from);
      const auto values = Arithmetic::values(prepared, from);
      std::size_t next = 0;
      Arithmetic::for_each_product(factor, values, count, [&](std::size_t i, const auto& made) {
        const typename Arithmetic::Sum product = made;
        const typename Arithmetic::Sum expected = Arithmetic::product(factor, values, i);
        ASSERT_EQ(i, next++);
        ASSERT_EQ(product.re, expected.re);
        ASSERT_EQ(product.floating, expected.floating);
        typename Arithmetic::Sum a{};
        typename Arithmetic::Sum b{};
        for (int twice = 0; twice < 2; ++twice) {
          Arithmetic::add(a, made);
          Arithmetic::add(b, expected);
        }
        ASSERT_EQ(a.re, b.re);
        ASSERT_EQ(a.floating, b.floating);
      });
      ASSERT_EQ(next, count);
    }
  }
}

TEST(CountedArithmetic, StretchesOfOneStateGiveTheProductsOneByOne) {
  ASSERT_NO_FATAL_FAILURE(expect_the_products_one_by_one<CountedRealArithmetic>(false));
  ASSERT_NO_FATAL_FAILURE(expect_the_products_one_by_one<CountedComplexArithmetic>(true));
}

}  // namespace
}  // namespace kov
