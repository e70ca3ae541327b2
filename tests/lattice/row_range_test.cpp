#include "lattice/row_range.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "lattice/block_points.h"
#include "text/integers.h"

namespace kov {
namespace {

/// A coordinate near 0, or one of those at the ends.
std::int32_t range_coordinate(std::mt19937& engine, bool with_ends) {
  if (with_ends && engine() % 3 == 0) return engine() % 2 == 0 ? lowest_int : highest_int;
  return static_cast<std::int32_t>(engine() % 9) - 4;
}

Lk range_key(std::mt19937& engine, bool with_ends) {
  Lk key = Lk::at(static_cast<std::int32_t>(engine() % 3), 5);
  for (const std::size_t i : {1U, 2U, 7U}) key.coo[i] = range_coordinate(engine, with_ends);
  return key;
}

/// Which often leaves most positions open.
KeyBox random_range(std::mt19937& engine, bool with_ends) {
  KeyBox box{Lk::filled(lowest_int), Lk::filled(highest_int)};
  for (const std::size_t i : {0U, 1U, 2U, 7U, 9U, 31U}) {
    if (engine() % 3 != 0) continue;
    box.min.coo[i] =
        i == 0 ? 5 - static_cast<std::int32_t>(engine() % 2) : range_coordinate(engine, with_ends);
    box.max.coo[i] = i == 0 ? 5 : range_coordinate(engine, with_ends);
    if (i == 9 || engine() % 4 == 0) box.min.coo[i] = lowest_int;
  }
  return box;
}

TEST(RowRange, MarksJustThePointsInside) {
  std::mt19937 engine(6);
  int of_each[3] = {};
  for (int run = 0; run < 1500; ++run) {
    const bool with_ends = run % 2 == 0;
    Row row(5, KeyFrame::for_box({Lk::at(0, 5), Lk::at(0, 5)}));
    for (unsigned i = 0; i < 1 + engine() % 700; ++i) row.set(range_key(engine, with_ends), 1);
    const KeyBox box = random_range(engine, with_ends);
    const RowRange range(row, box);
    std::size_t inside_count = 0;
    for (std::size_t i = 0; i < row.block_count(); ++i) {
      const std::size_t first = engine() % row.block(i).size();
      std::vector<std::uint8_t> inside(row.block(i).size() - first);
      range.mark(row.block(i), first, inside);
      for (std::size_t point = 0; point < inside.size(); ++point) {
        ASSERT_EQ(inside[point] != 0, box.contains(row.key({i, first + point}))) << run;
      }
      for (std::size_t point = 0; point < row.block(i).size(); ++point) {
        inside_count += box.contains(row.key({i, point})) ? 1 : 0;
      }
    }
    if (range.none()) {
      ASSERT_EQ(inside_count, 0U) << run;
    }
    if (range.all()) {
      ASSERT_EQ(inside_count, row.count()) << run;
    }
    ++of_each[range.none() ? 0 : range.all() ? 1 : 2];
  }
  for (const int runs : of_each) EXPECT_GT(runs, 100);
}

TEST(BlockPoints, AreThoseOfTheSinglePoints) {
  std::mt19937 engine(12);
  const cotyp quantities[] = {
      3,           cotyp(1, 2, 0, 1),        cotyp::floating(0.1, -4), cotyp(2, 1, -7, 1), cotyp(0, 1, 5, 7),
      highest_int, cotyp::floating(1e200, 1)};
  for (int run = 0; run < 200; ++run) {
    Row row(5, KeyFrame::for_box({Lk::at(0, 5), Lk::at(0, 5)}));
    const std::size_t first_kind = engine() % 7;
    for (unsigned i = 0; i < 300; ++i) {
      row.set(range_key(engine, run % 2 == 0), quantities[run % 3 == 0 ? first_kind : engine() % 7]);
    }
    const Block& block = row.block(0);
    const std::size_t count = block.size() - 1;
    std::vector<double> squares(count);
    std::vector<double> magnitudes(count);
    decode_squares(block, 1, squares);
    decode_magnitudes(block, 1, magnitudes);
    for (std::size_t i = 0; i < count; ++i) {
      const cotyp q = block.quantity(i + 1);
      ASSERT_EQ(squares[i], to_double(qq(q)));
      ASSERT_EQ(magnitudes[i], std::hypot(to_double(q.re), to_double(q.im)));
    }
    for (const std::size_t position : {0U, 1U, 7U, 9U, 31U}) {
      std::vector<std::int32_t> coordinates(count);
      decode_coordinates(row, block, position, 1, coordinates);
      for (std::size_t i = 0; i < count; ++i) ASSERT_EQ(coordinates[i], row.key({0, i + 1}).coo[position]);
    }
  }
}

}  // namespace
}  // namespace kov
