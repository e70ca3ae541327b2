#include "lattice/common_denominator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "lattice/column.h"
#include "numbers/checked_integer.h"

namespace kov {
namespace {

using Fractions = std::vector<Fraction32>;

/// One part after the other, in 64 bits.
std::optional<std::int32_t> denominator_one_by_one(const Fractions& parts) {
  std::int64_t common = 1;
  for (const Fraction32& part : parts) {
    common = std::lcm(common, std::int64_t{part.de});
    if (common > nu_max_int) return std::nullopt;
  }
  if (common == 1) return 1;
  for (const Fraction32& part : parts) {
    const std::int64_t numerator = part.nu * (common / part.de);
    if (numerator < nu_min_int || numerator > nu_max_int) return std::nullopt;
  }
  return static_cast<std::int32_t>(common);
}

TEST(CommonDenominator, IntegersHaveOne) {
  EXPECT_EQ(common_denominator({}), 1);
  EXPECT_EQ(common_denominator(Fractions{{0, 1}, {INT32_MAX, 1}, {INT32_MIN, 1}}), 1);
}

TEST(CommonDenominator, NumeratorsStayInTheExactRange) {
  EXPECT_EQ(common_denominator(Fractions{{1, 2}, {1073741823, 1}}), 2);
  EXPECT_EQ(common_denominator(Fractions{{1, 2}, {1073741824, 1}}), std::nullopt);
  EXPECT_EQ(common_denominator(Fractions{{1, 2}, {-1073741823, 1}}), 2);
  EXPECT_EQ(common_denominator(Fractions{{1, 2}, {-1073741824, 1}}), std::nullopt);
  EXPECT_EQ(common_denominator(Fractions{{INT32_MIN, 3}}), std::nullopt);
  EXPECT_EQ(common_denominator(Fractions{{1, nu_max_int}}), nu_max_int);
  EXPECT_EQ(common_denominator(Fractions{{1, INT32_MAX}}), std::nullopt);
  EXPECT_EQ(common_denominator(Fractions{{1, 65537}, {1, 65539}}), std::nullopt);
}

TEST(CommonDenominator, RandomPartsHaveTheOneOfTheDefinition) {
  std::mt19937 random(2);
  const auto up_to = [&](std::int32_t most) {
    return std::uniform_int_distribution<std::int32_t>(1, most)(random);
  };
  int found = 0;
  for (int run = 0; run < 3000; ++run) {
    Fractions parts(static_cast<std::size_t>(up_to(300)), {1, 1});
    // Few denominators that are new, anywhere, so that some are found late.
    for (int i = up_to(6); i > 0; --i) {
      const std::size_t at = random() % parts.size();
      const std::int32_t de = up_to(run % 3 == 0 ? INT32_MAX : 40);
      std::fill(parts.begin() + static_cast<std::ptrdiff_t>(at), parts.end(),
                Fraction32{up_to(run % 2 == 0 ? 1000 : 100000000), de});
    }
    const auto expected = denominator_one_by_one(parts);
    ASSERT_EQ(common_denominator(parts), expected) << "run " << run;
    found += expected.has_value() && *expected != 1 ? 1 : 0;
  }
  EXPECT_GT(found, 500);
  EXPECT_LT(found, 2500);
}

TEST(Column, ExactFractionsTakeTheFormOfTheirParts) {
  for (const Fractions& parts : {Fractions{}, Fractions{{0, 1}, {0, 1}}, Fractions{{1, 1}, {-5, 1}},
                                 Fractions{{1, 2}, {-5, 3}}, Fractions{{1, 2}, {1, nu_max_int - 1}}}) {
    std::vector<ratyp> same;
    for (const Fraction32& part : parts) same.push_back(ratyp::reduced(part.nu, part.de));
    const Column column = Column::exact(parts);
    const Column expected = Column::of(same);
    EXPECT_EQ(column.form(), expected.form());
    EXPECT_EQ(column.denominator(), expected.denominator());
    EXPECT_EQ(column.largest_numerator(), expected.largest_numerator());
    ASSERT_EQ(column.size(), parts.size());
    for (std::size_t i = 0; i < parts.size(); ++i) EXPECT_EQ(column.get(i), same[i]);
  }
}

}  // namespace
}  // namespace kov
