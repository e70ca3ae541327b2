#include "algadd/find_present.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_arithmetic.h"
#include "algadd/quantity_arithmetic.h"

namespace kov {
namespace {

/// A sum that is a point, of the kind that the number chooses.
template <class Sum>
Sum present_sum(unsigned kind);
template <>
RealSum<std::int32_t> present_sum(unsigned kind) {
  return {kind % 2 == 0 ? std::numeric_limits<std::int32_t>::min() : 1};
}
template <>
RealSum<double> present_sum(unsigned kind) {
  constexpr std::array values = {1.0, -5e-324, std::numeric_limits<double>::quiet_NaN(),
                                 -std::numeric_limits<double>::infinity()};
  return {values[kind % 4]};
}
template <>
ComplexSum<std::int32_t> present_sum(unsigned kind) {
  return {kind % 3 == 0 ? 0 : -7, kind % 3 == 1 ? 0 : 256};
}
template <>
ComplexSum<double> present_sum(unsigned kind) {
  const double part = present_sum<RealSum<double>>(kind).re;
  return {kind % 3 == 0 ? 0.0 : part, kind % 3 == 1 ? 0.0 : part};
}
template <>
CountedRealSum present_sum(unsigned kind) {
  return {present_sum<RealSum<double>>(kind).re, static_cast<PartStates>(kind % 4)};
}
template <>
CountedSum present_sum(unsigned kind) {
  const ComplexSum<double> parts = present_sum<ComplexSum<double>>(kind);
  return {parts.re, parts.im, static_cast<PartStates>(kind % 4)};
}
template <>
FractionSum present_sum(unsigned kind) {
  const cotyp p = kind % 2 == 0 ? cotyp(1, 3, 0, 1) : cotyp::floating(-5e-324, 0.0);
  return FractionArithmetic::factor(p);
}
template <>
cotyp present_sum(unsigned kind) {
  return kind % 2 == 0 ? cotyp(0, 1, -1, 9) : cotyp::floating(0.0, 5e-324);
}

/// A zero other than the one of an untouched cell: a sum that was cancelled.
template <class Sum>
Sum cancelled_sum() {
  Sum sum{};
  if constexpr (requires { sum.states; }) sum.states = 0;
  if constexpr (std::is_same_v<Sum, cotyp>) sum = cotyp::floating(0.0, 0.0);
  if constexpr (std::is_same_v<Sum, RealSum<double>>) sum.re = -0.0;
  return sum;
}

template <class Sum>
class FindPresent : public ::testing::Test {
 protected:
  /// Fills count cells, each a point once in so many times; what lies behind them is absent.
  void fill(std::size_t count, unsigned once_in) {
    cells.assign(count + 8 * cells_of_line, Sum{});
    expected.clear();
    for (std::size_t i = 0; i < count; ++i) {
      if (random() % once_in == 0) {
        cells[i] = present_sum<Sum>(static_cast<unsigned>(random() % 12));
        expected.push_back(static_cast<std::uint32_t>(i));
      } else if (random() % 4 == 0) {
        cells[i] = cancelled_sum<Sum>();
      }
    }
    found.assign(count + cells_of_line, 77);
  }

  void expect_found(std::size_t present) {
    ASSERT_EQ(present, expected.size());
    found.resize(present);
    EXPECT_EQ(found, expected);
  }

  std::vector<Sum> cells;
  std::vector<std::uint32_t> expected;
  std::vector<std::uint32_t> found;
  std::mt19937_64 random{9};
};

using AllSums = ::testing::Types<RealSum<std::int32_t>, ComplexSum<std::int32_t>, RealSum<double>,
                                 ComplexSum<double>, CountedRealSum, CountedSum, FractionSum, cotyp>;
TYPED_TEST_SUITE(FindPresent, AllSums);

TYPED_TEST(FindPresent, GivesTheSameOnEveryVectorUnit) {
  for (const unsigned once_in : {1U, 2U, 20U, 1000000U}) {
    for (std::size_t count = 0; count <= 100; ++count) {
      this->fill(count, once_in);
      this->expect_found(find_present(this->cells.data(), count, this->found.data()));
      this->fill(count, once_in);
      this->expect_found(find_present_from(0, this->cells.data(), count, this->found.data(), 0));
    }
  }
  this->fill(5003, 3);
  this->expect_found(find_present(this->cells.data(), 5003, this->found.data()));
}

TYPED_TEST(FindPresent, LooksAtMarkedLinesOnly) {
  constexpr std::size_t lines = 64;
  for (const unsigned once_in : {1U, 5U, 200U}) {
    for (int times = 0; times < 50; ++times) {
      this->fill(lines * cells_of_line, once_in);
      std::vector<std::uint8_t> marks(lines);
      for (std::uint8_t& mark : marks) mark = this->random() % 3 == 0 ? 1 : 0;
      std::erase_if(this->expected, [&](std::uint32_t i) { return marks[i / cells_of_line] == 0; });
      this->expect_found(find_present_in_lines(this->cells.data(), marks.data(), lines, this->found.data()));
      EXPECT_EQ(marks, std::vector<std::uint8_t>(lines)) << "the marks are taken away";
    }
  }
}

TEST(ForEachMark, GoesThroughAllInTheirOrder) {
  std::vector<std::uint8_t> marks(48);
  for (const std::size_t i : {0U, 7U, 8U, 30U, 47U}) marks[i] = 1;
  std::vector<std::size_t> seen;
  for_each_mark(marks.data(), marks.size(), [&](std::size_t i) KOV_INLINE { seen.push_back(i); });
  EXPECT_EQ(seen, (std::vector<std::size_t>{0, 7, 8, 30, 47}));
  EXPECT_EQ(marks, std::vector<std::uint8_t>(48));
}

}  // namespace
}  // namespace kov
