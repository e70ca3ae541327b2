#include "algadd/step_choice.h"

#include <gtest/gtest.h>

#include "numbers/checked_integer.h"
#include "planned_step.h"
#include "run_fixture.h"
#include "text/integers.h"

namespace kov {
namespace {

using RealIntegers = RealArithmetic<IntegerNumbers>;
using ComplexIntegers = ComplexArithmetic<IntegerNumbers>;
using RealDoubles = RealArithmetic<DoubleNumbers>;
using ComplexDoubles = ComplexArithmetic<DoubleNumbers>;

const ratyp one_in_doubles = ratyp::floating(1.0);
const ratyp zero_in_doubles = ratyp::floating(0.0);
const ratyp one_third{1, 3};

/// The choice for a step from points with the quantities, by an entry for each of the factors.
StepArithmetic chosen(const std::vector<cotyp>& factors, const std::vector<cotyp>& quantities) {
  PlannedStep::Points points;
  for (const cotyp& q : quantities)
    points.emplace_back(Lk::at(0, 0, static_cast<std::int32_t>(points.size())), q);
  std::vector<AlgaddEntry> entries;
  for (const cotyp& p : factors) entries.push_back(entry_of(p, static_cast<std::int32_t>(entries.size())));
  return choose_arithmetic(PlannedStep(points, entries).plan());
}

template <class Arithmetic>
bool chooses(const std::vector<cotyp>& factors, const std::vector<cotyp>& quantities) {
  return std::holds_alternative<Arithmetic>(chosen(factors, quantities));
}

TEST(ChooseArithmetic, ExactNumbersAreIntegersOverACommonDenominator) {
  EXPECT_TRUE(chooses<RealIntegers>({1, -2}, {5, -7}));
  EXPECT_TRUE(chooses<ComplexIntegers>({1, {0, 1}}, {5, -7}));
  EXPECT_TRUE(chooses<ComplexIntegers>({1}, {5, {0, 1}}));
  const auto numbers =
      std::get<RealIntegers>(chosen({{one_third, 0}, {1, 4, 0, 1}}, {{1, 6, 0, 1}, {3, 2, 0, 1}})).numbers;
  EXPECT_EQ(numbers.factor_denominator, 12);
  EXPECT_EQ(numbers.source_denominator, 6);
}

TEST(ChooseArithmetic, IntegersAsLongAsNoSumCanLeaveTheRange) {
  EXPECT_TRUE(chooses<RealIntegers>({1}, {nu_max_int - 1}));
  EXPECT_TRUE(chooses<CountedRealArithmetic>({1}, {nu_max_int}));
  EXPECT_TRUE(chooses<RealIntegers>({1}, {-nu_max_int + 1}));
  EXPECT_TRUE(chooses<CountedRealArithmetic>({1}, {lowest_int}));
  EXPECT_TRUE(chooses<RealIntegers>({1, -1}, {1, (nu_max_int - 1) / 2}));
  EXPECT_TRUE(chooses<CountedRealArithmetic>({1, -1}, {1, (nu_max_int - 1) / 2 + 1}));
  EXPECT_TRUE(chooses<RealIntegers>({46339, 1}, {46341}));
  EXPECT_TRUE(chooses<CountedRealArithmetic>({46340, 1}, {46341}));
  EXPECT_TRUE(chooses<ComplexIntegers>({{1, 1}}, {(nu_max_int - 1) / 2}));
  EXPECT_TRUE(chooses<CountedComplexArithmetic>({{1, 1}}, {(nu_max_int - 1) / 2 + 1}));
}

TEST(ChooseArithmetic, FractionsAsLongAsTheDenominatorStaysInTheRange) {
  EXPECT_TRUE(chooses<RealIntegers>({{1, 2, 0, 1}}, {{1, 1073741823, 0, 1}}));
  EXPECT_TRUE(chooses<FractionArithmetic>({{1, 2, 0, 1}}, {{1, 1073741824, 0, 1}}));
  EXPECT_TRUE(chooses<RealIntegers>({{1, 2, 0, 1}}, {{357913940, 3, 0, 1}}));
  EXPECT_TRUE(chooses<FractionArithmetic>({{1, 2, 0, 1}, 1}, {{nu_max_int / 2 - 1, 3, 0, 1}}));
  EXPECT_TRUE(chooses<FractionArithmetic>({1}, {{1, 65537, 0, 1}, {1, 65539, 0, 1}}))
      << "no common denominator";
  EXPECT_TRUE(chooses<QuantityArithmetic>({{0, 1}}, {{1, 65537, 0, 1}, {1, 65539, 0, 1}}));
  EXPECT_TRUE(chooses<FractionArithmetic>({{1, 65537, 0, 1}, {1, 65539, 0, 1}}, {1}));
}

TEST(ChooseArithmetic, DoublesWhereEveryProductIsFloating) {
  EXPECT_TRUE(chooses<RealDoubles>({1, {one_third, 0}}, {cotyp::floating(0.5, 0.0)}));
  EXPECT_TRUE(chooses<RealDoubles>({cotyp::floating(0.5, 0.0)}, {1, 2}));
  EXPECT_TRUE(chooses<ComplexDoubles>({{0, one_third}}, {cotyp::floating(0.5, 0.0)}));
  EXPECT_TRUE(chooses<ComplexDoubles>({1}, {cotyp::floating(0.5, 0.5)}));
  EXPECT_TRUE(chooses<ComplexDoubles>({{2, one_in_doubles}}, {3, {0, 7}}))
      << "one floating part of the factor";
  EXPECT_TRUE(chooses<RealDoubles>({{2, zero_in_doubles}}, {3})) << "and be it 0.0";
}

TEST(ChooseArithmetic, DoublesWouldBeWrongWhereFractionsMeet) {
  EXPECT_TRUE(chooses<FractionArithmetic>({{one_third, zero_in_doubles}}, {3}))
      << "3 * 1/3 is 1 before it is floating";
  EXPECT_TRUE(chooses<QuantityArithmetic>({{one_third, one_in_doubles}}, {3}));
  EXPECT_TRUE(chooses<QuantityArithmetic>({{2, one_in_doubles}}, {{1, 3, 0, 1}}));
  EXPECT_TRUE(chooses<ComplexDoubles>({{2, one_in_doubles}}, {cotyp::floating(0.5, 0.0)}));
}

TEST(ChooseArithmetic, MixedNumbersAreCounted) {
  EXPECT_TRUE(chooses<CountedRealArithmetic>({1, cotyp::floating(0.5, 0.0)}, {3, 4}));
  EXPECT_TRUE(chooses<CountedRealArithmetic>({1}, {3, cotyp::floating(0.5, 0.0)}));
  EXPECT_TRUE(chooses<CountedComplexArithmetic>({1, {0, 2}}, {3, {one_in_doubles, 4}}));
  EXPECT_TRUE(chooses<CountedComplexArithmetic>({1, {2, one_in_doubles}}, {3}));
  EXPECT_TRUE(chooses<FractionArithmetic>({1, {one_in_doubles, 0}}, {{one_third, 0}, 4}));
  EXPECT_TRUE(chooses<QuantityArithmetic>({1, {one_in_doubles, 1}}, {{one_third, 0}, 4}));
}

TEST(ChooseArithmetic, EveryBlockCounts) {
  PlannedStep::Points points = points_on_k1(3 * block_capacity);
  EXPECT_TRUE(
      std::holds_alternative<RealIntegers>(choose_arithmetic(PlannedStep(points, {entry_of(1)}).plan())));
  for (const std::size_t place : {std::size_t{0}, points.size() / 2, points.size() - 1}) {
    PlannedStep::Points changed = points;
    changed[place].second = {one_third, zero_in_doubles};
    EXPECT_TRUE(std::holds_alternative<FractionArithmetic>(
        choose_arithmetic(PlannedStep(changed, {entry_of(1)}).plan())));
    changed[place].second = {0, one_third};
    EXPECT_TRUE(std::holds_alternative<ComplexIntegers>(
        choose_arithmetic(PlannedStep(changed, {entry_of(1)}).plan())));
  }
}

TEST(ChooseArithmetic, LatticesThatNoEntryReadsDoNotCount) {
  PlannedStep::Points points = points_on_k1(block_capacity);
  points.emplace_back(Lk::at(1, 0, block_capacity), cotyp::floating(0.5, 0.5));
  EXPECT_TRUE(
      std::holds_alternative<RealIntegers>(choose_arithmetic(PlannedStep(points, {entry_of(1)}).plan())));
}

}  // namespace
}  // namespace kov
