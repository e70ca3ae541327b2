#include "numbers/batch_gcd.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace kov {
namespace {

using Pairs = std::vector<std::pair<std::uint32_t, std::uint32_t>>;

constexpr std::uint32_t largest = 0x7FFFFFFF;

void expect_divisors(const Pairs& pairs) {
  GcdBatch batch{};
  for (std::size_t first = 0; first < pairs.size(); first += GcdBatch::capacity) {
    const std::size_t count = std::min(GcdBatch::capacity, pairs.size() - first);
    for (std::size_t i = 0; i < count; ++i) std::tie(batch.x[i], batch.y[i]) = pairs[first + i];
    run_loop([&]() KOV_INLINE { batch_gcd(batch, count); });
    for (std::size_t i = 0; i < count; ++i) {
      const auto [x, y] = pairs[first + i];
      ASSERT_EQ(batch.x[i], std::gcd(x, y)) << x << ' ' << y;
    }
  }
}

TEST(BatchGcd, SmallNumbersInAllPairs) {
  Pairs pairs;
  for (std::uint32_t x = 1; x < 260; ++x) {
    for (std::uint32_t y = 0; y < 260; ++y) pairs.emplace_back(x, y);
  }
  expect_divisors(pairs);
}

TEST(BatchGcd, NumbersAtTheEnds) {
  std::vector<std::uint32_t> numbers = {1, 2, 3, largest, largest - 1, largest - 2, 46341, 46340, 715827882};
  for (unsigned bit = 2; bit < 31; ++bit) {
    const std::uint32_t power = std::uint32_t{1} << bit;
    numbers.insert(numbers.end(), {power - 1, power, power + 1});
  }
  // The pair of Fibonacci numbers that takes Euclid's algorithm longest.
  numbers.insert(numbers.end(), {1836311903, 1134903170});
  Pairs pairs;
  for (const std::uint32_t x : numbers) {
    pairs.emplace_back(x, 0);
    for (const std::uint32_t y : numbers) pairs.emplace_back(x, y);
  }
  expect_divisors(pairs);
}

TEST(BatchGcd, RandomNumbersOfAllSizesWithCommonFactors) {
  std::mt19937 random(3);
  const auto number = [&](std::uint32_t most) {
    return std::uniform_int_distribution<std::uint32_t>(1, std::max(1U, most >> random() % 31))(random);
  };
  Pairs pairs;
  for (int i = 0; i < 50000; ++i) {
    const std::uint32_t common = number(largest);
    pairs.emplace_back(common * number(largest / common), common * number(largest / common));
  }
  expect_divisors(pairs);
}

TEST(BatchGcd, BatchesOfEverySize) {
  std::mt19937 random(4);
  const auto number = [&](std::uint32_t end) { return static_cast<std::uint32_t>(random() % end); };
  for (std::size_t count = 0; count <= GcdBatch::capacity; ++count) {
    GcdBatch batch{};
    for (std::size_t i = 0; i < GcdBatch::capacity; ++i) {
      batch.x[i] = 12 * (1 + number(1000));
      batch.y[i] = 18 * number(1000);
    }
    const GcdBatch before = batch;
    run_loop([&]() KOV_INLINE { batch_gcd(batch, count); });
    for (std::size_t i = 0; i < count; ++i) EXPECT_EQ(batch.x[i], std::gcd(before.x[i], before.y[i]));
    for (std::size_t i = count; i < GcdBatch::capacity; ++i) {
      EXPECT_EQ(batch.x[i], before.x[i]) << "beyond the pairs";
      EXPECT_EQ(batch.y[i], before.y[i]) << "beyond the pairs";
    }
  }
}

TEST(BatchGcd, VectorUnitsAgree) {
  std::mt19937 random(5);
  GcdBatch batch{};
  for (std::size_t i = 0; i < GcdBatch::capacity; ++i) {
    batch.x[i] = static_cast<std::uint32_t>(1 + random() % largest);
    batch.y[i] = static_cast<std::uint32_t>(random() % batch.x[i]);
  }
  GcdBatch plain = batch;
  batch_gcd(plain, GcdBatch::capacity);
  if (vector_unit() != VectorUnit::baseline) {
    GcdBatch avx2 = batch;
    run_loop_avx2([&]() KOV_INLINE { batch_gcd(avx2, GcdBatch::capacity); });
    EXPECT_EQ(avx2.x, plain.x);
  }
  run_loop([&]() KOV_INLINE { batch_gcd(batch, GcdBatch::capacity); });
  EXPECT_EQ(batch.x, plain.x);
}

TEST(LeastRemainder, HasTheDivisorsOfTheNumber) {
  std::mt19937_64 random(6);
  for (int i = 0; i < 200000; ++i) {
    const std::uint64_t a = random() >> (13 + random() % 51);
    const std::uint64_t b = 1 + (random() % largest >> random() % 31);
    const double r = least_remainder(static_cast<double>(a), static_cast<double>(b));
    ASSERT_LE(r, static_cast<double>(b) / 2) << a << ' ' << b;
    const auto remainder = static_cast<std::uint64_t>(r);
    ASSERT_EQ(static_cast<double>(remainder), r);
    ASSERT_TRUE(remainder == a % b || remainder == b - a % b) << a << ' ' << b;
  }
}

}  // namespace
}  // namespace kov
