#include "algadd/quantity_arithmetic.h"

#include <gtest/gtest.h>

#include "arithmetic_chains.h"

namespace kov {
namespace {

TEST(QuantityArithmetic, AllNumbersGiveTheLiteralBits) {
  const std::vector<ratyp> parts = joined({edge_fractions(), edge_integers(), edge_doubles()});
  const std::vector<cotyp> numbers = pairs_of(parts, parts);
  ArithmeticChains<QuantityArithmetic> chains({}, numbers, numbers);
  chains.expect_sums(100000, 5);
  EXPECT_GT(chains.compared(), 80000U);
}

TEST(QuantityArithmetic, CancelledSumsBeginAfresh) {
  const std::vector<cotyp> numbers = pairs_of({1, -1, ratyp::floating(1.0), ratyp::floating(-1.0)},
                                              {ratyp(), ratyp::floating(0.0), {1, 2}, {-1, 2}});
  ArithmeticChains<QuantityArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  chains.expect_sums(50000, 6);
  EXPECT_GT(chains.compared(), 40000U);
}

TEST(QuantityArithmetic, OverflowIsNoticed) {
  const std::vector<ratyp> parts = {{1, 3}, ratyp::floating(1e200), ratyp::floating(-1e200)};
  const std::vector<cotyp> numbers = pairs_of(parts, parts);
  ArithmeticChains<QuantityArithmetic> chains({}, numbers, numbers);
  chains.expect_products();
  EXPECT_GT(chains.overflows(), 20U);
}

}  // namespace
}  // namespace kov
