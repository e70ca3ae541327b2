#include "algadd/run_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

namespace kov {
namespace {

/// A key and where it stood.
struct RunItem {
  std::int64_t key;
  std::size_t place;
  friend bool operator==(const RunItem&, const RunItem&) = default;
};

std::vector<RunItem> numbered(const std::vector<std::int64_t>& keys) {
  std::vector<RunItem> items;
  for (const std::int64_t key : keys) items.push_back({key, items.size()});
  return items;
}

void expect_stable_order(RunMerge<RunItem>& merge, const std::vector<std::int64_t>& keys) {
  std::vector<RunItem> items = numbered(keys);
  std::vector<RunItem> expected = items;
  std::stable_sort(expected.begin(), expected.end(),
                   [](const RunItem& a, const RunItem& b) { return a.key < b.key; });
  merge.sort(items);
  ASSERT_EQ(items, expected);
}

TEST(RunMerge, SortsWhateverIsThere) {
  RunMerge<RunItem> merge;
  ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, {}));
  ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, {5}));
  ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, {2, 1}));
  ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, {7, 6, 5, 4, 3, 2, 1, 0, -1}));
  std::mt19937_64 random(1);
  for (int run = 0; run < 300; ++run) {
    std::vector<std::int64_t> keys(random() % 200);
    const std::uint64_t range = 1 + random() % 300;
    for (std::int64_t& key : keys) key = static_cast<std::int64_t>(random() % range);
    ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, keys));
  }
}

TEST(RunMerge, MergesRunsOfEveryLength) {
  RunMerge<RunItem> merge;
  std::mt19937_64 random(2);
  for (int run = 0; run < 300; ++run) {
    std::vector<std::int64_t> keys;
    for (std::size_t runs = random() % 12; runs > 0; --runs) {
      std::int64_t key = static_cast<std::int64_t>(random() % 1000);
      for (std::size_t length = 1 + random() % (1U << random() % 10); length > 0; --length) {
        keys.push_back(key);
        key += static_cast<std::int64_t>(random() % 5);
      }
    }
    ASSERT_NO_FATAL_FAILURE(expect_stable_order(merge, keys));
  }
}

}  // namespace
}  // namespace kov
