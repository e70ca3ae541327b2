#include "graphs/axis_ticks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "numbers/floating_text.h"

namespace kov {
namespace {

using Texts = std::vector<std::string>;

bool fits_always(const std::string&) { return true; }

struct NumberCase {
  double from, to;
  TickRule rule;
  int digits;
  Texts numbers;
};

class Numbers : public testing::TestWithParam<NumberCase> {};

TEST_P(Numbers, AreThose) {
  const NumberCase& c = GetParam();
  EXPECT_EQ(tick_numbers(axis_ticks(c.from, c.to, c.rule), c.rule.whole, c.digits, fits_always), c.numbers);
}

constexpr double big = 1E308;

// Wanted, whole, round; digits.
// clang-format off
INSTANTIATE_TEST_SUITE_P(RoundValues, Numbers, testing::Values(
    NumberCase{0, 1,               {5, false, true},  4, {"0", "0.2", "0.4", "0.6", "0.8", "1"}},
    NumberCase{1, 0,               {5, false, true},  4, {"1", "0.8", "0.6", "0.4", "0.2", "0"}},
    NumberCase{0, 10,              {10, false, true}, 4, {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}},
    NumberCase{-0.013, 0.0971,     {5, false, true},  4, {"0", "0.02", "0.04", "0.06", "0.08"}},
    NumberCase{-1, 1,              {3, false, true},  4, {"-1", "0", "1"}},
    NumberCase{0.1, 0.3,           {5, false, true},  17, {"0.1", "0.15", "0.2", "0.25", "0.3"}},
    NumberCase{0, 60000,           {4, false, true},  1, {"0", "20000", "40000", "60000"}},
    NumberCase{0, 3E6,             {4, false, true},  4, {"0", "1E6", "2E6", "3E6"}},
    NumberCase{-big, big,          {2, false, true},  4, {"-1E308", "0", "1E308"}},
    NumberCase{0, 4E-300,          {3, false, true},  4, {"0", "2E-300", "4E-300"}},
    NumberCase{1E9, 1E9 + 4,       {3, false, true},  4, {"1000000000", "1000000002", "1000000004"}},
    NumberCase{0, 17,              {2, false, true},  1, {"0", "10"}},
    NumberCase{10, 16,             {3, false, true},  1, {"10", "12", "14", "16"}}));

INSTANTIATE_TEST_SUITE_P(WholeValues, Numbers, testing::Values(
    NumberCase{-0.5, 2.5,          {7, true, true},   4, {"0", "1", "2"}},
    NumberCase{2.5, -0.5,          {7, true, true},   4, {"2", "1", "0"}},
    NumberCase{-101.5, 100.5,      {7, true, true},   4, {"-100", "-50", "0", "50", "100"}},
    NumberCase{12344, 12350,       {3, true, true},   2, {"12344", "12346", "12348", "12350"}},
    NumberCase{2147483643, 2147483648.0, {3, true, true}, 4, {"2147483644", "2147483646", "2147483648"}},
    NumberCase{0.2, 0.8,           {7, true, true},   4, {}},
    NumberCase{-1, 1.5,            {3, true, false},  4, {"-1", "0"}},
    NumberCase{0, 2,               {7, true, false},  4, {"0", "1", "2"}},
    NumberCase{0, 10,              {3, true, false},  4, {"0", "5", "10"}}));

INSTANTIATE_TEST_SUITE_P(EqualDivisions, Numbers, testing::Values(
    NumberCase{0, 1,               {4, false, false}, 4, {"0", "0.3333", "0.6667", "1"}},
    NumberCase{0, 1,               {4, false, false}, 6, {"0", "0.333333", "0.666667", "1"}},
    NumberCase{1, 0,               {3, false, false}, 4, {"1", "0.5", "0"}},
    NumberCase{0, 1,               {1, false, false}, 4, {"0.5"}},
    NumberCase{0, 1,               {2, false, false}, 4, {"0", "1"}},
    NumberCase{-big, big,          {3, false, false}, 4, {"-1E308", "0", "1E308"}},
    NumberCase{1000, 1001,         {4, false, false}, 1, {"1000", "1000.33", "1000.67", "1001"}}));

INSTANTIATE_TEST_SUITE_P(NothingToDivide, Numbers, testing::Values(
    NumberCase{3, 3,               {5, false, true},  4, {"3"}},
    NumberCase{3, 3,               {5, true, false},  4, {"3"}},
    NumberCase{3.5, 3.5,           {5, true, true},   4, {}},
    NumberCase{0, 0,               {5, false, true},  4, {"0"}},
    NumberCase{0, 1,               {0, false, true},  4, {}},
    NumberCase{0, 1,               {0, false, false}, 4, {}},
    NumberCase{0, INFINITY,        {5, false, true},  4, {}},
    NumberCase{NAN, 1,             {5, false, true},  4, {}}));
// clang-format on

TEST(AxisTicks, LieWhereTheirValuesDo) {
  for (const bool round : {true, false}) {
    for (const Tick& tick : axis_ticks(-3, 7, {11, false, round})) {
      EXPECT_NEAR(tick.place, (tick.value + 3) / 10, 1E-12);
    }
    for (const Tick& tick : axis_ticks(7, -3, {11, true, round})) {
      EXPECT_NEAR(tick.place, (7 - tick.value) / 10, 1E-12);
    }
  }
  EXPECT_EQ(axis_ticks(4, 4, {5, false, true}).front().place, 0.5);
}

TEST(AxisTicks, IndexOfRoundValuesCountsSteps) {
  const auto ticks = axis_ticks(-0.5, 0.5, {5, false, true});
  ASSERT_EQ(ticks.size(), 5U);
  EXPECT_EQ(ticks.front().index, -2);
  EXPECT_EQ(ticks[2].value, 0.0);
  EXPECT_EQ(ticks[2].index, 0);
}

TEST(AxisTicks, NeighbouringDoublesAreDividedEqually) {
  const double next = std::nextafter(1.0, 2.0);
  const auto ticks = axis_ticks(1.0, next, {5, false, true});
  ASSERT_EQ(ticks.size(), 2U);
  EXPECT_EQ(ticks.front().value, 1.0);
  EXPECT_EQ(ticks.back().value, next);
  EXPECT_EQ(tick_numbers(ticks, false, 4, fits_always), (Texts{"1", "1.0000000000000002"}));
}

TEST(TickNumbers, AreShortenedUntilTheyFitAndLeftOutWhenWrong) {
  const auto at_most = [](std::size_t length) {
    return [length](const std::string& text) { return text.size() <= length; };
  };
  const auto ticks = axis_ticks(1000, 1001, {5, false, false});
  EXPECT_EQ(tick_numbers(ticks, false, 4, at_most(7)),
            (Texts{"1000", "1000.25", "1000.5", "1000.75", "1001"}));
  EXPECT_EQ(tick_numbers(ticks, false, 4, at_most(6)), (Texts{"1000", "", "1000.5", "", "1001"}));
  EXPECT_EQ(tick_numbers(ticks, false, 4, at_most(5)), (Texts{"1000", "", "", "", "1001"}));
  EXPECT_EQ(tick_numbers(ticks, false, 4, at_most(0)), (Texts{"", "", "", "", ""}));
}

/// Ends of every magnitude and sign, close together and far apart.
double random_end(std::mt19937_64& random) {
  const double exponent = std::uniform_real_distribution<>(-320, 308.2)(random);
  const double value = std::pow(10.0, exponent);
  return random() % 2 == 0 ? value : -value;
}

TEST(AxisTicks, HoldForAnyInterval) {
  std::mt19937_64 random(8);
  for (int i = 0; i < 20000; ++i) {
    const double from = random_end(random);
    const double close = from * (1 + std::uniform_real_distribution<>(-1E-14, 1E-14)(random));
    const double to = i % 3 == 0 ? close : random_end(random);
    const TickRule rule{static_cast<int>(random() % 20), random() % 4 == 0, random() % 2 == 0};
    double last_place = -1;
    const auto ticks = axis_ticks(from, to, rule);
    EXPECT_LE(ticks.size(), 3U * 20U);
    for (const Tick& tick : ticks) {
      const double slack = std::abs(to / 2 - from / 2) * 1E-8;
      ASSERT_LE(std::min(from, to), tick.value + slack) << from << ' ' << to;
      ASSERT_GE(std::max(from, to), tick.value - slack) << from << ' ' << to;
      ASSERT_GE(tick.place, last_place)
          << from << " " << to << " " << rule.whole << rule.round_values << rule.wanted << " " << tick.value;
      ASSERT_LE(tick.place, 1.0);
      last_place = tick.place;
      if (rule.whole) {
        ASSERT_EQ(tick.value, std::nearbyint(tick.value));
      }
    }
    const auto numbers = tick_numbers(ticks, rule.whole, 4, fits_always);
    ASSERT_EQ(numbers.size(), ticks.size());
    for (std::size_t n = 0; n < numbers.size(); ++n) {
      ASSERT_NE(numbers[n], "") << from << ' ' << to;
      ASSERT_NEAR(*parse_floating(numbers[n]) / 2, ticks[n].value / 2,
                  std::abs(to / 2 - from / 2) / 19 + std::abs(from) / 100);
      if (n > 0) {
        ASSERT_NE(numbers[n], numbers[n - 1]) << from << ' ' << to;
      }
    }
  }
}

TEST(AxisTicks, RoundValuesComeNearTheWantedNumber) {
  std::mt19937_64 random(9);
  for (int i = 0; i < 20000; ++i) {
    const double from = std::uniform_real_distribution<>(-1, 1)(random);
    const double to = from + std::pow(10.0, std::uniform_real_distribution<>(-5, 5)(random));
    const int wanted = 3 + static_cast<int>(random() % 40);
    const auto count = static_cast<double>(axis_ticks(from, to, {wanted, false, true}).size());
    ASSERT_GE(count, wanted * 0.5 - 1) << from << ' ' << to << ' ' << wanted;
    ASSERT_LE(count, wanted * 1.5 + 1) << from << ' ' << to << ' ' << wanted;
  }
}

TEST(WidestNumber, IsNoShorterThanAnyNumberOfSoManyDigits) {
  std::mt19937_64 random(10);
  for (int digits = 1; digits <= 17; ++digits) {
    const std::size_t room = widest_number(digits).size();
    for (int i = 0; i < 2000; ++i)
      ASSERT_GE(room, floating_text(random_end(random), digits).size()) << digits;
  }
  EXPECT_EQ(widest_number(4), "-8.888E-308");
}

}  // namespace
}  // namespace kov
