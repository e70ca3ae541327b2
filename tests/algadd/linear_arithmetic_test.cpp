#include "algadd/linear_arithmetic.h"

#include <gtest/gtest.h>

#include "arithmetic_chains.h"
#include "numbers/checked_integer.h"

namespace kov {
namespace {

/// Integers from -largest to largest over a common denominator.
std::vector<ratyp> multiples(std::int32_t largest, std::int32_t denominator) {
  std::vector<ratyp> parts;
  for (std::int32_t nu = -largest; nu <= largest; ++nu) parts.emplace_back(nu, denominator);
  return parts;
}

TEST(LinearArithmetic, RealIntegersGiveTheLiteralBits) {
  // 7 terms with factors up to 3: the sums reach 12 * 178 956 970 = nu_max_int - 6.
  const std::vector<cotyp> factors = pairs_of({1, -1, 2, -2, 3, -2, 1}, {ratyp()});
  const std::vector<cotyp> quantities = pairs_of({178956970, -178956970, 178956969, 1, -1, 5}, {ratyp()});
  ArithmeticChains<RealArithmetic<IntegerNumbers>> chains({}, factors, quantities);
  chains.expect_products();
  chains.expect_sums_of_terms(50000);
  EXPECT_GT(chains.compared(), 40000U);
}

TEST(LinearArithmetic, CommonDenominatorsGiveTheLiteralBits) {
  const std::vector<cotyp> factors = pairs_of({{1, 2}, {-1, 3}, {1, 6}, {-2, 3}, {-5, 6}}, {ratyp()});
  const std::vector<cotyp> quantities =
      pairs_of(joined({multiples(20, 12), multiples(9, 4), {1000000, -1}}), {ratyp()});
  ArithmeticChains<RealArithmetic<IntegerNumbers>> chains({{12, 6}}, factors, quantities);
  chains.expect_products();
  chains.expect_sums_of_terms(50000);
  EXPECT_GT(chains.compared(), 40000U);
}

TEST(LinearArithmetic, BlocksMayHaveSmallerDenominators) {
  const IntegerNumbers numbers{12, 1};
  std::array<std::int32_t, 3> room{};
  const std::array<std::int32_t, 3> numerators{1, -3, 5};
  const Column quarters = Column::integers(numerators, 4);
  const std::int32_t* const values = numbers.values(quarters, 1, 2, room.data());
  EXPECT_EQ(values[0], -9);
  EXPECT_EQ(values[1], 15);
  const Column twelfths = Column::integers(numerators, 12);
  EXPECT_EQ(numbers.values(twelfths, 1, 2, room.data()), twelfths.integers() + 1) << "as they stand";
  room = {7, 7, 7};
  EXPECT_EQ(numbers.values(Column::zero(3), 1, 2, room.data())[1], 0);
}

TEST(LinearArithmetic, NewColumnsAreReduced) {
  const IntegerNumbers numbers{4, 3};
  const auto column = [&](std::vector<std::int32_t> numerators) { return numbers.column(numerators); };
  EXPECT_EQ(column({24, -12, 0}).denominator(), 1);
  EXPECT_EQ(column({24, -12, 6}).denominator(), 2);
  EXPECT_EQ(column({24, -12, 6}).integers()[2], 1);
  EXPECT_EQ(column({24, 1}).denominator(), 12);
  EXPECT_EQ(column({0, 0}).form(), PartForm::zero);
}

TEST(LinearArithmetic, ComplexNumbersGiveTheLiteralBits) {
  const std::vector<cotyp> factors = {{{1, 2}, {-1, 3}}, {0, 1}, {-1, 0}, {{1, 6}, -2}, {{1, 2}, {1, 2}}};
  const std::vector<ratyp> parts = joined({multiples(3, 5), {200000, -199999}});
  ArithmeticChains<ComplexArithmetic<IntegerNumbers>> chains({{5, 6}}, factors, pairs_of(parts, parts));
  chains.expect_products();
  chains.expect_sums_of_terms(50000);
  EXPECT_GT(chains.compared(), 40000U);
}

TEST(LinearArithmetic, RealDoublesGiveTheLiteralBits) {
  const std::vector<ratyp> zeros = {ratyp(), ratyp::floating(0.0)};
  const std::vector<cotyp> floating = pairs_of(edge_doubles(), zeros);
  // Exact factors of floating quantities and the other way round: all products are floating.
  const std::vector<cotyp> exact = pairs_of(joined({edge_fractions(), edge_integers()}), {ratyp()});
  for (const auto& [factors, quantities] :
       {std::pair(exact, floating), std::pair(floating, exact), std::pair(floating, floating)}) {
    ArithmeticChains<RealArithmetic<DoubleNumbers>> chains({}, factors, quantities);
    chains.expect_products();
    chains.expect_sums(50000, 6);
    EXPECT_GT(chains.compared(), 40000U);
  }
}

TEST(LinearArithmetic, ComplexDoublesGiveTheLiteralBits) {
  const std::vector<cotyp> floating = pairs_of(edge_doubles(), edge_doubles());
  const std::vector<ratyp> exact_parts = joined({edge_fractions(), edge_integers()});
  const std::vector<cotyp> exact = pairs_of(exact_parts, exact_parts);
  for (const auto& [factors, quantities] :
       {std::pair(exact, floating), std::pair(floating, exact), std::pair(floating, floating)}) {
    ArithmeticChains<ComplexArithmetic<DoubleNumbers>> chains({}, factors, quantities);
    chains.expect_sums(50000, 6);
    EXPECT_GT(chains.compared(), 40000U);
  }
}

TEST(LinearArithmetic, DoublesMayStandBesideIntegersInTheOtherPart) {
  const std::vector<cotyp> half_floating = pairs_of(edge_doubles(), edge_integers());
  const std::vector<cotyp> integers = pairs_of(edge_integers(), edge_integers());
  ArithmeticChains<ComplexArithmetic<DoubleNumbers>> chains({}, half_floating, integers);
  chains.expect_sums(50000, 6);
  EXPECT_GT(chains.compared(), 40000U);
}

TEST(LinearArithmetic, OverflowIsNoticed) {
  std::vector<ratyp> parts;
  for (const double x : {1e200, -1.7e308, 1e-10, 0.0}) parts.push_back(ratyp::floating(x));
  const std::vector<cotyp> reals = pairs_of(parts, {ratyp::floating(0.0)});
  ArithmeticChains<RealArithmetic<DoubleNumbers>> real({}, reals, reals);
  real.expect_products();
  real.expect_sums(2000, 4);
  EXPECT_GT(real.overflows(), 100U);
  ArithmeticChains<ComplexArithmetic<DoubleNumbers>> complex({}, pairs_of(parts, parts),
                                                             pairs_of(parts, parts));
  complex.expect_products();
  complex.expect_sums(2000, 4);
  EXPECT_GT(complex.overflows(), 100U);
}

}  // namespace
}  // namespace kov
