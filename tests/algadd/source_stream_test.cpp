#include "algadd/source_stream.h"

#include <gtest/gtest.h>

#include <limits>

#include "lattice/row_builder.h"
#include "planned_step.h"

namespace kov {
namespace {

Row packed_row_of(const PlannedStep::Points& points) {
  Lmap lmap;
  for (const auto& [key, q] : points) lmap.set(key, q);
  KeyBox box{points.front().first, points.front().first};
  for (const auto& point : points) box.include(point.first);
  RowBuilder row(0, box);
  for (auto point = lmap.begin(); point != lmap.end(); ++point) row.append(point.key(), point.quantity());
  return row.finish();
}

/// count points of each of the lattices 3, 5 and 6, which alternate along k1.
PlannedStep::Points three_lattices(std::size_t count) {
  PlannedStep::Points points;
  for (const std::int32_t l : {3, 5, 6}) {
    for (const auto& point : points_on_k1(count, 1, -7, l)) points.push_back(point);
  }
  return points;
}

void expect_points_of(const SourceStream& stream, const PlannedStep::Points& expected,
                      const KeyFrame& frame) {
  ASSERT_EQ(stream.count(), expected.size());
  std::size_t number = 0;
  for (std::size_t b = 0; b < stream.block_count(); ++b) {
    const Block& block = stream.block(b);
    for (std::size_t i = 0; i < block.size(); ++i, ++number) {
      EXPECT_EQ(frame.unpack(block.key(i), 0), expected[number].first);
      EXPECT_EQ(block.quantity(i), expected[number].second);
    }
  }
  EXPECT_EQ(number, expected.size());
}

TEST(SourceStream, TheBlocksOfOneLatticeServeAsTheyStand) {
  const PlannedStep::Points points = points_on_k1(2 * block_capacity + 5, 1, 0, 4);
  const Row row = packed_row_of(points);
  const SourceStream stream(row, 4, row.frame());
  ASSERT_EQ(stream.block_count(), row.block_count());
  for (std::size_t i = 0; i < row.block_count(); ++i) EXPECT_EQ(&stream.block(i), &row.block(i));
  expect_points_of(stream, points, row.frame());
}

TEST(SourceStream, OfSeveralLatticesOneIsTakenOut) {
  const Row row = packed_row_of(three_lattices(block_capacity));
  for (const std::int32_t l : {3, 5, 6}) {
    const SourceStream stream(row, l, row.frame());
    expect_points_of(stream, points_on_k1(block_capacity, 1, -7, l), row.frame());
  }
}

TEST(SourceStream, AnotherLatticeHasNoPoints) {
  const Row row = packed_row_of(three_lattices(10));
  for (const std::int32_t l : {2, 4, 7}) {
    const SourceStream stream(row, l, row.frame());
    EXPECT_EQ(stream.count(), 0U);
    EXPECT_EQ(stream.block_count(), 0U);
    EXPECT_EQ(stream.block_with(0), 0U);
  }
}

TEST(SourceStream, KeysArePackedAnewForAnotherFrame) {
  KeyBox roomy{Lk::at(-1000, 0, -100000), Lk::at(1000, 0, 100000)};
  roomy.max.coo[9] = 77;
  const KeyFrame frame = *KeyFrame::for_box(roomy);
  const Row several = packed_row_of(three_lattices(3000));
  const PlannedStep::Points points = points_on_k1(3000, 1, -7, 5);
  expect_points_of(SourceStream(several, 5, frame), points, frame);
  expect_points_of(SourceStream(packed_row_of(points), 5, frame), points, frame);
}

TEST(SourceStream, FindsTheBlockWithAKey) {
  const Row row = packed_row_of(points_on_k1(3 * block_capacity, 5));
  const SourceStream stream(row, 0, row.frame());
  ASSERT_GE(stream.block_count(), 3U);
  EXPECT_EQ(stream.block_with(std::numeric_limits<std::int64_t>::min()), 0U);
  for (std::size_t i = 0; i < stream.block_count(); ++i) {
    const auto first = static_cast<std::int64_t>(stream.block(i).first_key());
    const auto last = static_cast<std::int64_t>(stream.block(i).last_key());
    EXPECT_EQ(stream.block_with(first), i);
    EXPECT_EQ(stream.block_with(last), i);
    EXPECT_EQ(stream.block_with(last + 1), i + 1) << "between two blocks, or behind all";
  }
}

}  // namespace
}  // namespace kov
