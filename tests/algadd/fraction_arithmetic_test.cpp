#include "algadd/fraction_arithmetic.h"

#include <gtest/gtest.h>

#include "arithmetic_chains.h"

namespace kov {
namespace {

std::vector<ratyp> random_fractions(std::size_t count, std::int32_t largest) {
  std::mt19937_64 random(5);
  const auto integer = [&](std::int32_t low) {
    return std::uniform_int_distribution<std::int32_t>(low, largest)(random);
  };
  std::vector<ratyp> fractions;
  while (fractions.size() < count) fractions.push_back({integer(-largest), integer(1)});
  return fractions;
}

TEST(FractionArithmetic, EdgesGiveTheLiteralBits) {
  const std::vector<ratyp> parts = joined({edge_fractions(), edge_integers(), edge_doubles()});
  const std::vector<cotyp> numbers = pairs_of(parts, {ratyp(), ratyp::floating(0.0)});
  ArithmeticChains<FractionArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(100000, 6);
  EXPECT_GT(chains.compared(), 80000U);
}

TEST(FractionArithmetic, ExactNumbersGiveTheLiteralBits) {
  const std::vector<cotyp> edges = pairs_of(joined({edge_fractions(), edge_integers()}), {ratyp()});
  ArithmeticChains<FractionArithmetic> at_the_ends({}, edges, edges);
  at_the_ends.expect_sums(100000, 6);
  for (const std::int32_t largest : {30, 1000, 46341, 1000000}) {
    const std::vector<cotyp> numbers = pairs_of(random_fractions(200, largest), {ratyp()});
    ArithmeticChains<FractionArithmetic> chains({}, pairs_of({1, -1, {1, 2}, {2, 3}, {-5, 7}}, {ratyp()}),
                                                numbers);
    chains.expect_products();
    chains.expect_sums(30000, 5);
    EXPECT_GT(chains.compared(), 25000U);
  }
}

TEST(FractionArithmetic, OverflowIsNoticed) {
  const std::vector<ratyp> parts = {
      {2, 3}, ratyp::floating(1e200), ratyp::floating(-1.7e308), ratyp::floating(1e-10)};
  const std::vector<cotyp> numbers = pairs_of(parts, {ratyp()});
  ArithmeticChains<FractionArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(2000, 4);
  EXPECT_GT(chains.overflows(), 100U);
}

}  // namespace
}  // namespace kov
