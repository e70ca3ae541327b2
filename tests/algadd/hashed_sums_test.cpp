#include "algadd/hashed_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <random>
#include <utility>
#include <vector>

namespace kov {
namespace {

/// Remembers what was added, in order.
struct Trace {
  std::vector<int> added;
};

using TraceMap = std::map<std::int64_t, std::vector<int>>;

TraceMap drained(HashedSums<Trace>& sums) {
  TraceMap map;
  std::int64_t before = -1;
  sums.drain([&](std::int64_t key, const Trace& sum) {
    EXPECT_LT(before, key);
    before = key;
    map[key] = sum.added;
  });
  return map;
}

/// Ascending keys, so many of the range.
std::vector<std::int64_t> ascending_keys(std::mt19937_64& random, std::size_t count, std::uint64_t range) {
  std::vector<std::int64_t> keys(count);
  for (std::int64_t& key : keys) key = static_cast<std::int64_t>(random() % range);
  std::sort(keys.begin(), keys.end());
  return keys;
}

TEST(HashedSums, EachKeyGathersItsOwnInOrder) {
  std::mt19937_64 random(1);
  HashedSums<Trace> sums;
  int number = 0;
  for (int tile = 0; tile < 200; ++tile) {
    const std::uint64_t range = std::uint64_t{1} << (random() % 62);
    TraceMap expected;
    for (std::size_t piece = random() % 8; piece > 0; --piece) {
      const auto keys = ascending_keys(random, random() % 300, range);
      sums.take(keys.size(), [&](auto& places) {
        for (const std::int64_t key : keys) {
          places.at(key).added.push_back(++number);
          expected[key].push_back(number);
        }
      });
    }
    ASSERT_EQ(drained(sums), expected) << "tile " << tile;
  }
}

TEST(HashedSums, KeysThatMeetInOneSlotAreToldApart) {
  // The product with the golden ratio takes these distances to a few of the 64 upper bits.
  std::mt19937_64 random(2);
  HashedSums<Trace> sums;
  constexpr std::uint64_t inverse_of_golden_ratio = 0xF1DE83E19937733D;
  static_assert(inverse_of_golden_ratio * 0x9E3779B97F4A7C15 == 1);
  TraceMap expected;
  std::vector<std::int64_t> keys;
  for (std::uint64_t low = 0; low < 500; ++low) {
    const std::uint64_t key = low * inverse_of_golden_ratio;
    if (key >> 63U == 0) keys.push_back(static_cast<std::int64_t>(key));
  }
  ASSERT_GT(keys.size(), 200U);
  for (int twice = 0; twice < 2; ++twice) {
    std::shuffle(keys.begin(), keys.end(), random);
    sums.take(keys.size(), [&](auto& places) {
      for (const std::int64_t key : keys) {
        places.at(key).added.push_back(twice);
        expected[key].push_back(twice);
      }
    });
  }
  ASSERT_EQ(drained(sums), expected);
}

TEST(HashedSums, LargestAndSmallestKeysHaveTheirPlaces) {
  HashedSums<Trace> sums;
  constexpr std::int64_t largest = (std::int64_t{1} << 62) - 1;
  sums.take(4, [&](auto& places) {
    places.at(largest).added.push_back(1);
    places.at(0).added.push_back(2);
    places.at(largest).added.push_back(3);
  });
  sums.take(0, [](auto&) {});
  EXPECT_EQ(drained(sums), (TraceMap{{0, {2}}, {largest, {1, 3}}}));
  EXPECT_TRUE(drained(sums).empty());
}

}  // namespace
}  // namespace kov
