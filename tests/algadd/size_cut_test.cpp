#include "algadd/size_cut.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "lattice/row_builder.h"
#include "run_fixture.h"

namespace kov {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

Row row_of_reals(const std::vector<double>& values) {
  RowBuilder builder(0, KeyBox{Lk::at(0, 0), Lk::at(0, 0, static_cast<std::int32_t>(values.size()))});
  std::int32_t k1 = 0;
  for (const double value : values) builder.append(Lk::at(0, 0, k1++), cotyp::floating(value, 0.0));
  return builder.finish();
}

/// That the cut takes the number smallest of all sizes, and how many walks over the row it needs.
int walks_to_cut(const Row& row, const std::vector<double>& values, std::size_t number, SizeInterval guess) {
  HookedProgress progress;
  const SizeCut cut = find_cut(row, number, guess, progress, "entry ");
  std::size_t below = 0;
  std::size_t equal = 0;
  for (const double value : values) {
    below += value * value < cut.size ? 1 : 0;
    equal += value * value == cut.size ? 1 : 0;
  }
  EXPECT_EQ(below + std::min(equal, cut.equal), number);
  return progress.breaths / (static_cast<int>(values.size()) / 1024);
}

struct Spread {
  const char* name;
  double (*value)(std::mt19937_64& random, std::size_t i);
};

double evenly(std::mt19937_64& random) { return std::uniform_real_distribution<double>(0.001, 1.0)(random); }

// clang-format off
const Spread spreads[] = {
    {"even",         [](std::mt19937_64& random, std::size_t) { return evenly(random); }},
    {"few values",   [](std::mt19937_64& random, std::size_t) { return std::ceil(9 * evenly(random)); }},
    {"all equal",    [](std::mt19937_64&, std::size_t) { return -2.5; }},
    {"magnitudes",   [](std::mt19937_64& random, std::size_t) { return std::exp(600 * (evenly(random) - 0.5)); }},
    {"neighbours",   [](std::mt19937_64& random, std::size_t) { return 1.0 + 0x1p-52 * std::ceil(1e4 * evenly(random)); }},
    {"ascending",    [](std::mt19937_64&, std::size_t i) { return 1.0 + static_cast<double>(i); }},
    {"periodic",     [](std::mt19937_64&, std::size_t i) { return 1.0 + static_cast<double>(i % 20); }},
    {"overflowing",  [](std::mt19937_64& random, std::size_t i) { return i % 3 == 0 ? 1e200 : evenly(random); }},
    {"vanishing",    [](std::mt19937_64& random, std::size_t i) { return i % 3 == 0 ? 1e-200 : evenly(random); }},
};
// clang-format on

TEST(SizeCut, TakesTheSmallestWhateverTheGuess) {
  constexpr std::size_t points = 40'000;
  std::mt19937_64 random(1);
  for (const auto& [name, value] : spreads) {
    SCOPED_TRACE(name);
    std::vector<double> values;
    for (std::size_t i = 0; i < points; ++i) values.push_back(value(random, i));
    const Row row = row_of_reals(values);
    for (const std::size_t number : {std::size_t{1}, points / 100, points * 3 / 10, points - 1, points}) {
      SCOPED_TRACE(number);
      EXPECT_LE(walks_to_cut(row, values, number, likely_interval(row, number)), 4);
      EXPECT_LE(walks_to_cut(row, values, number, {}), 6);
      EXPECT_LE(walks_to_cut(row, values, number, {0.0, 0.0}), 7);
      EXPECT_LE(walks_to_cut(row, values, number, {infinite, infinite}), 7);
      EXPECT_LE(walks_to_cut(row, values, number, {0.25, 0.26}), 7);
    }
  }
}

TEST(SizeCut, NothingIsBelowTheCutOfNoPoints) {
  const std::vector<double> values(40'000, 1.0);
  EXPECT_EQ(walks_to_cut(row_of_reals(values), values, 0, {}), 1);
}

TEST(SizeCut, ASampleOfALongRowSparesWalks) {
  std::mt19937_64 random(2);
  std::vector<double> values(200'000);
  for (double& value : values) value = evenly(random);
  const Row row = row_of_reals(values);
  for (const std::size_t number : {2'000U, 60'000U, 198'000U}) {
    const SizeInterval guess = likely_interval(row, number);
    const auto inside = std::count_if(values.begin(), values.end(), [&](double value) {
      return guess.low <= value * value && value * value <= guess.high;
    });
    EXPECT_LT(inside, 20'000) << number;
    EXPECT_LE(walks_to_cut(row, values, number, guess), 3) << number;
  }
}

TEST(SizeCut, ShortRowsAreNotSampled) {
  const SizeInterval guess = likely_interval(row_of_reals(std::vector<double>(30'000, 2.0)), 100);
  EXPECT_EQ(guess.low, 0.0);
  EXPECT_EQ(guess.high, infinite);
}

}  // namespace
}  // namespace kov
