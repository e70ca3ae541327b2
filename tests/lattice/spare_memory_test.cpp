#include "lattice/spare_memory.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/failing_allocation.h"

namespace kov {
namespace {

TEST(SpareMemory, OneMoreFitsInWithoutMemory) {
  std::vector<int> numbers;
  for (int i = 0; i < 10'000; ++i) {
    reserve_one(numbers);
    const FailingAllocation none(1);
    numbers.push_back(i);
    ASSERT_FALSE(none.happened()) << i;
  }
}

TEST(SpareMemory, AnEighthAndALittleIsReserved) {
  std::vector<int> numbers;
  int reservations = 0;
  for (int i = 0; i < 4096; ++i) {
    const std::size_t before = numbers.capacity();
    reserve_one(numbers);
    reservations += numbers.capacity() == before ? 0 : 1;
    ASSERT_LE(numbers.capacity(), numbers.size() + 4 + numbers.size() / 8) << i;
    numbers.push_back(i);
  }
  EXPECT_LT(reservations, 60) << "a vector that grows is copied a few times only";
}

TEST(SpareMemory, APlaceThatIsThereIsNotReservedAgain) {
  std::vector<int> numbers;
  numbers.reserve(100);
  numbers.resize(99);
  reserve_one(numbers);
  EXPECT_EQ(numbers.capacity(), 100U);
}

TEST(SpareMemory, ARequestThatFailsLeavesTheVector) {
  std::vector<int> numbers{1, 2, 3};
  numbers.shrink_to_fit();
  const FailingAllocation failing(1);
  EXPECT_THROW(reserve_one(numbers), std::bad_alloc);
  EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
}

TEST(SpareMemory, OnlyMuchOfItIsGivenBack) {
  for (const std::size_t size : {0U, 4U, 100U, 1000U}) {
    const std::size_t little = size + 16 + size / 4;
    for (const std::size_t capacity : {little, little + 1}) {
      std::vector<int> numbers;
      numbers.reserve(capacity);
      numbers.resize(size, 7);
      give_back(numbers);
      EXPECT_EQ(numbers.capacity(), capacity == little ? little : size) << size;
      EXPECT_EQ(numbers, std::vector<int>(size, 7));
    }
  }
}

TEST(SpareMemory, NothingIsGivenBackWhereTheSmallerPieceIsNotToBeHad) {
  std::vector<int> numbers;
  numbers.reserve(1000);
  numbers.resize(3, 7);
  {
    const FailingAllocation failing(1);
    give_back(numbers);
    EXPECT_TRUE(failing.happened());
  }
  EXPECT_EQ(numbers.capacity(), 1000U);
  EXPECT_EQ(numbers, std::vector<int>(3, 7));
}

}  // namespace
}  // namespace kov
