#include "lattice/copied_variant.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>
#include <vector>

#include "support/failing_allocation.h"

namespace kov {
namespace {

using Vectors = std::variant<std::monostate, std::vector<std::int32_t>, std::vector<double>>;

const Vectors vectors_of_each_kind[] = {std::monostate(), std::vector<std::int32_t>{},
                                        std::vector<std::int32_t>{1, 2, 3}, std::vector<double>{0.5, -2.0}};

TEST(CopiedVariant, HoldsTheSameKindAndElements) {
  for (const Vectors& vectors : vectors_of_each_kind) {
    const Vectors copy = copied(vectors);
    EXPECT_EQ(copy.index(), vectors.index());
    EXPECT_TRUE(copy == vectors) << vectors.index();
  }
}

TEST(CopiedVariant, IsApartFromItsOrigin) {
  Vectors vectors = std::vector<double>{0.5, -2.0};
  const Vectors copy = copied(vectors);
  std::get<std::vector<double>>(vectors)[0] = 7.0;
  EXPECT_EQ(std::get<std::vector<double>>(copy), (std::vector<double>{0.5, -2.0}));
}

TEST(CopiedVariant, ReservesNothingBeyondTheElements) {
  std::vector<std::int32_t> roomy{1, 2, 3};
  roomy.reserve(1000);
  const Vectors copy = copied(Vectors(std::move(roomy)));
  EXPECT_EQ(std::get<std::vector<std::int32_t>>(copy).capacity(), 3U);
}

TEST(CopiedVariant, WithoutMemoryItThrowsAndLeavesTheOrigin) {
  const Vectors vectors = std::vector<std::int32_t>{1, 2, 3};
  const std::int64_t failures = fail_each_allocation(
      0, [&](int&) { copied(vectors); },
      [&](int) {
        EXPECT_EQ(std::get<std::vector<std::int32_t>>(vectors), (std::vector<std::int32_t>{1, 2, 3}));
      });
  EXPECT_EQ(failures, 1);
}

}  // namespace
}  // namespace kov
