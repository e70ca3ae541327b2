#include "lattice/bit_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "support/failing_allocation.h"

namespace kov {
namespace {

BitList list_of(const std::vector<bool>& bits) {
  return BitList::made(bits.size(), [&](std::size_t i) { return bits[i]; });
}

std::vector<bool> random_bits(std::mt19937& random, std::size_t count) {
  std::vector<bool> bits(count);
  for (std::size_t i = 0; i < count; ++i) bits[i] = random() % 2 == 0;
  return bits;
}

/// The bits, their number, and that those behind the last one are 0.
void expect_bits(const BitList& list, const std::vector<bool>& bits) {
  ASSERT_EQ(list.size(), bits.size());
  ASSERT_EQ(list.bytes(), (bits.size() + 63) / 64 * 8);
  for (std::size_t i = 0; i < bits.size(); ++i) ASSERT_EQ(list[i], bits[i]) << i;
  ASSERT_EQ(list.count_ones(), static_cast<std::size_t>(std::count(bits.begin(), bits.end(), true)));
}

constexpr std::size_t sizes_around_words[] = {0, 1, 2, 63, 64, 65, 127, 128, 129, 300};

TEST(BitList, HoldsTheBitsItIsMadeOf) {
  std::mt19937 random(1);
  for (const std::size_t size : sizes_around_words) {
    const std::vector<bool> bits = random_bits(random, size);
    ASSERT_NO_FATAL_FAILURE(expect_bits(list_of(bits), bits));
    ASSERT_NO_FATAL_FAILURE(expect_bits(BitList(size), std::vector<bool>(size)));
  }
}

TEST(BitList, AllMayBeAlike) {
  for (const std::size_t size : sizes_around_words) {
    ASSERT_NO_FATAL_FAILURE(expect_bits(BitList(size, true), std::vector<bool>(size, true)));
  }
}

TEST(BitList, NextOneIsTheFirstFromThere) {
  std::mt19937 random(5);
  for (const unsigned spacing : {1U, 3U, 50U, 400U}) {
    std::vector<bool> bits(300);
    for (std::size_t i = random() % spacing; i < bits.size(); i += 1 + random() % spacing) bits[i] = true;
    const BitList list = list_of(bits);
    for (std::size_t first = 0; first <= bits.size(); ++first) {
      for (std::size_t end = first; end <= bits.size(); end += 1 + random() % 9) {
        const auto at = [&](std::size_t i) { return bits.begin() + static_cast<std::ptrdiff_t>(i); };
        ASSERT_EQ(list.next_one(first, end),
                  static_cast<std::size_t>(std::find(at(first), at(end), true) - bits.begin()));
      }
    }
  }
}

TEST(BitList, AndLeavesTheBitsOfBoth) {
  std::mt19937 random(6);
  for (const std::size_t size : sizes_around_words) {
    const std::vector<bool> a = random_bits(random, size);
    const std::vector<bool> b = random_bits(random, size);
    std::vector<bool> both(size);
    for (std::size_t i = 0; i < size; ++i) both[i] = a[i] && b[i];
    BitList list = list_of(a);
    list &= list_of(b);
    ASSERT_NO_FATAL_FAILURE(expect_bits(list, both));
  }
}

TEST(BitList, EditsAreThoseOfAVector) {
  std::mt19937 random(2);
  for (int run = 0; run < 40; ++run) {
    std::vector<bool> bits = random_bits(random, random() % 200);
    BitList list = list_of(bits);
    for (int i = 0; i < 100; ++i) {
      const std::size_t at = random() % (bits.size() + 1);
      const bool bit = random() % 2 == 0;
      const auto place = bits.begin() + static_cast<std::ptrdiff_t>(at);
      if (random() % 3 != 0) {
        list.reserve_one();
        list.insert(at, bit);
        bits.insert(place, bit);
      } else if (at == bits.size() || random() % 4 != 0) {
        const std::size_t count = random() % std::min<std::size_t>(bits.size() - at + 1, 130);
        list.erase(at, count);
        bits.erase(place, place + static_cast<std::ptrdiff_t>(count));
      } else {
        list.set(at, bit);
        *place = bit;
      }
      ASSERT_NO_FATAL_FAILURE(expect_bits(list, bits)) << "run " << run;
    }
  }
}

TEST(BitList, EveryPartCanBeErased) {
  std::mt19937 random(3);
  const std::vector<bool> bits = random_bits(random, 200);
  const auto at = [&](std::size_t i) { return bits.begin() + static_cast<std::ptrdiff_t>(i); };
  for (std::size_t first = 0; first <= bits.size(); first += 7) {
    for (std::size_t end = first; end <= bits.size(); ++end) {
      std::vector<bool> left(bits.begin(), at(first));
      left.insert(left.end(), at(end), bits.end());
      BitList list = list_of(bits);
      list.erase(first, end - first);
      ASSERT_NO_FATAL_FAILURE(expect_bits(list, left));
    }
  }
}

TEST(BitList, PickedBitsAreThoseThatAreSetInTheOther) {
  std::mt19937 random(7);
  for (const std::size_t size : sizes_around_words) {
    const std::vector<bool> bits = random_bits(random, size);
    const std::vector<bool> which = random_bits(random, size);
    std::vector<bool> picked;
    for (std::size_t i = 0; i < size; ++i) {
      if (which[i]) picked.push_back(bits[i]);
    }
    ASSERT_NO_FATAL_FAILURE(expect_bits(list_of(bits).picked(list_of(which)), picked)) << size;
  }
}

TEST(BitList, TellsWhichNumbersAreOne) {
  std::mt19937_64 random(8);
  constexpr std::uint64_t mask = std::uint64_t{6} << 40U;
  for (const std::size_t size : sizes_around_words) {
    std::vector<std::uint64_t> numbers(size);
    std::vector<bool> expected(size);
    for (std::size_t i = 0; i < size; ++i) {
      numbers[i] = random();
      expected[i] = (numbers[i] >> 41U & 3U) == 2;
    }
    ASSERT_NO_FATAL_FAILURE(expect_bits(BitList::equal_to(std::uint64_t{4} << 40U, mask, numbers), expected))
        << size;
  }
}

TEST(BitList, KeepLeavesTheBitsAtTheIndices) {
  std::mt19937 random(4);
  for (const std::size_t size : sizes_around_words) {
    const std::vector<bool> bits = random_bits(random, size);
    std::vector<std::uint32_t> indices;
    std::vector<bool> kept;
    for (std::size_t i = 0; i < size; ++i) {
      if (random() % 3 == 0) continue;
      indices.push_back(static_cast<std::uint32_t>(i));
      kept.push_back(bits[i]);
    }
    BitList list = list_of(bits);
    list.keep(indices);
    list.shrink();
    ASSERT_NO_FATAL_FAILURE(expect_bits(list, kept));
  }
}

TEST(BitList, WithoutMemoryItIsAsItWas) {
  const std::vector<bool> bits(64, true);
  const std::int64_t failures = fail_each_allocation(
      list_of(bits), [](BitList& list) { list.reserve_one(); },
      [&](const BitList& list) { expect_bits(list, bits); });
  EXPECT_EQ(failures, 1);
}

}  // namespace
}  // namespace kov
