#include "numbers/vector_dispatch.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace kov {
namespace {

/// The loop compiled for every unit that the processor has; check(unit) after each.
template <class Loop>
void run_on_every_unit(const Loop& loop, const auto& check) {
  loop();
  check("baseline");
  if (vector_unit() != VectorUnit::baseline) {
    run_loop_avx2(loop);
    check("avx2");
  }
  if (vector_unit() == VectorUnit::avx512) {
    run_loop_avx512(loop);
    check("avx512");
  }
  run_loop(loop);
  check("the widest");
}

/// Lengths with every remainder of a vector.
class VectorLoops : public ::testing::TestWithParam<std::size_t> {
 protected:
  void SetUp() override {
    std::mt19937_64 random(GetParam());
    std::uniform_real_distribution<double> numbers(-1.0, 1.0);
    for (std::size_t i = 0; i < GetParam(); ++i) {
      a.push_back(numbers(random));
      b.push_back(numbers(random));
      c.push_back(-a.back() * b.back());
    }
  }

  std::vector<double> a;
  std::vector<double> b;
  /// The rounded products with the other sign: what a product and a sum in one step would not cancel.
  std::vector<double> c;
};

TEST_P(VectorLoops, ProductsAndSumsAreRoundedApart) {
  std::vector<double> sums(GetParam());
  const auto loop = [&, sum = sums.data()]() KOV_INLINE {
    for (std::size_t i = 0; i < a.size(); ++i) sum[i] = a[i] * b[i] + c[i];
  };
  run_on_every_unit(loop, [&](const char* unit) {
    for (const double sum : sums) EXPECT_EQ(sum, 0.0) << unit;
    sums.assign(sums.size(), 77.0);
  });
}

TEST_P(VectorLoops, IntegersAndMasksAreTheSame) {
  std::vector<std::int32_t> expected(GetParam());
  bool small = true;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const auto x = static_cast<std::int32_t>(a[i] * 1e9);
    expected[i] = x / 3 + static_cast<std::int32_t>(i);
    small = small && b[i] < 0.9;
  }
  std::vector<std::int32_t> made(GetParam());
  bool made_small = false;
  const auto loop = [&, out = made.data()]() KOV_INLINE {
    bool all = true;
    for (std::size_t i = 0; i < a.size(); ++i) {
      out[i] = static_cast<std::int32_t>(a[i] * 1e9) / 3 + static_cast<std::int32_t>(i);
      all &= b[i] < 0.9;
    }
    made_small = all;
  };
  run_on_every_unit(loop, [&](const char* unit) {
    EXPECT_EQ(made, expected) << unit;
    EXPECT_EQ(made_small, small) << unit;
    made.assign(made.size(), -1);
    made_small = !small;
  });
}

INSTANTIATE_TEST_SUITE_P(Lengths, VectorLoops,
                         ::testing::Values(0, 1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 31, 33, 1000));

TEST(VectorUnit, StaysTheSame) {
  const VectorUnit unit = vector_unit();
  EXPECT_EQ(vector_unit(), unit);
  int runs = 0;
  run_loop([&]() KOV_INLINE { ++runs; });
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace kov
