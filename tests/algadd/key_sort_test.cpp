#include "algadd/key_sort.h"

#include <gtest/gtest.h>

#include <random>

namespace kov {
namespace {

using Items = std::vector<Keyed<std::size_t>>;

/// The items in the order given, each with its number as value.
Items numbered(const std::vector<std::int64_t>& keys) {
  Items items;
  for (const std::int64_t key : keys) items.push_back({key, items.size()});
  return items;
}

void expect_sorted(const std::vector<std::int64_t>& keys) {
  Items items = numbered(keys);
  Items expected = items;
  std::stable_sort(expected.begin(), expected.end(),
                   [](const auto& a, const auto& b) { return a.key < b.key; });
  Items room;
  sort_by_key(items, room);
  ASSERT_EQ(items.size(), expected.size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    ASSERT_EQ(items[i].key, expected[i].key) << i;
    ASSERT_EQ(items[i].value, expected[i].value) << i;
  }
}

TEST(SortByKey, KeepsTheOrderOfEqualKeys) {
  expect_sorted({});
  expect_sorted({5});
  expect_sorted({3, 3, 3, 1, 3, 1});
  expect_sorted(std::vector<std::int64_t>(1000, 7));
}

TEST(SortByKey, SortsEvenKeysAndHeapsOfThem) {
  std::mt19937_64 random(1);
  for (const std::int64_t range : {1LL, 10LL, 1000LL, 1LL << 40, 1LL << 61}) {
    for (const std::size_t count : {2U, 50U, 3000U}) {
      std::vector<std::int64_t> keys(count);
      for (auto& key : keys) key = std::uniform_int_distribution<std::int64_t>(0, range)(random);
      expect_sorted(keys);
      for (std::size_t i = 0; i < keys.size(); i += 2) keys[i] = keys[i] % 100;
      keys.back() = range;
      expect_sorted(keys);
    }
  }
}

}  // namespace
}  // namespace kov
