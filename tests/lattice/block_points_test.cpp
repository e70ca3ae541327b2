#include "lattice/block_points.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "lattice/row_builder.h"
#include "text/integers.h"

namespace kov {
namespace {

Row row_at(std::int32_t n, const std::vector<Lk>& keys) {
  KeyBox box{keys.front(), keys.front()};
  for (const Lk& key : keys) box.include(key);
  RowBuilder builder(n, box);
  for (const Lk& key : keys) builder.append(key, 1);
  return builder.finish();
}

/// Every position of all points, and of pieces of them.
void expect_coordinates(const Row& row, const std::vector<Lk>& keys) {
  ASSERT_EQ(row.block_count(), 1U);
  for (std::size_t position = 0; position < MaxDimCount; ++position) {
    for (const std::size_t first : {std::size_t{0}, keys.size() / 3}) {
      std::vector<std::int32_t> coordinates(keys.size() - first);
      decode_coordinates(row, row.block(0), position, first, coordinates);
      for (std::size_t i = 0; i < coordinates.size(); ++i) {
        ASSERT_EQ(coordinates[i], keys[first + i].coo[position]) << position << ", point " << first + i;
      }
    }
  }
}

TEST(DecodeCoordinates, OfKeysNearEachOther) {
  std::vector<Lk> keys;
  for (std::int32_t k = 0; k < 700; ++k) {
    Lk key = Lk::at(k % 3, 5, k / 50 - 9);
    key.coo[7] = highest_int - 700 + k;
    keys.push_back(key);
  }
  const Row row = row_at(5, keys);
  ASSERT_NE(row.block(0).offsets(), nullptr);
  expect_coordinates(row, keys);
}

TEST(DecodeCoordinates, OfKeysFarFromEachOther) {
  std::vector<Lk> keys;
  for (std::int32_t k = 0; k < 700; ++k) {
    Lk key = Lk::at(0, -3, lowest_int + 3'000'000 * k);
    key.coo[2] = 1'000'000 * (k % 900);
    keys.push_back(key);
  }
  const Row row = row_at(-3, keys);
  ASSERT_NE(row.block(0).keys(), nullptr);
  expect_coordinates(row, keys);
}

TEST(DecodeCoordinates, OfWholeKeys) {
  std::vector<Lk> keys;
  for (std::int32_t k = 0; k < 100; ++k) {
    Lk key = Lk::filled(k % 2 == 0 ? lowest_int : highest_int);
    key.coo[0] = 1;
    key.coo[1] = k;
    keys.push_back(key);
  }
  const Row row = row_at(1, keys);
  ASSERT_TRUE(row.block(0).wide());
  expect_coordinates(row, keys);
}

}  // namespace
}  // namespace kov
