#include "numbers/pick.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace kov {
namespace {

template <class T>
void expect_picked(std::size_t count, unsigned once_in) {
  std::mt19937_64 random(count + once_in);
  std::vector<T> from(count);
  std::vector<std::uint64_t> bits((count + 63) / 64);
  std::vector<T> expected;
  for (std::size_t i = 0; i < count; ++i) {
    from[i] = static_cast<T>(random() % 1000000);
    if (random() % once_in != 0) continue;
    bits[i / 64] |= std::uint64_t{1} << i % 64;
    expected.push_back(from[i]);
  }
  // Nothing is written behind what is picked.
  std::vector<T> to(expected.size() + 20, T{77});
  pick(from.data(), count, bits.data(), to.data());
  expected.resize(to.size(), T{77});
  ASSERT_EQ(to, expected) << count << ", one in " << once_in;
  std::fill(to.begin(), to.end(), T{77});
  pick_plain(from.data(), count, bits.data(), to.data());
  ASSERT_EQ(to, expected) << count << ", one in " << once_in << ", one by one";
}

TEST(Pick, TakesTheElementsWhoseBitsAreSet) {
  for (std::size_t count = 0; count < 300; ++count) {
    for (const unsigned once_in : {1U, 2U, 9U, 1000U}) {
      ASSERT_NO_FATAL_FAILURE(expect_picked<std::int32_t>(count, once_in));
      ASSERT_NO_FATAL_FAILURE(expect_picked<double>(count, once_in));
      ASSERT_NO_FATAL_FAILURE(expect_picked<std::uint64_t>(count, once_in));
    }
  }
}

}  // namespace
}  // namespace kov
