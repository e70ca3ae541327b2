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

/// The streams of the lattices, sorted out by so many threads.
std::vector<SourceStream> streams_of(const Row& row, const std::vector<std::int32_t>& lattices,
                                     const KeyFrame& frame, int threads = 1) {
  WorkerPool workers(threads);
  return source_streams(row, lattices, frame, workers, [] {});
}

SourceStream stream_of(const Row& row, std::int32_t l, const KeyFrame& frame) {
  return std::move(streams_of(row, {l}, frame)[0]);
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
  const SourceStream stream = stream_of(row, 4, row.frame());
  ASSERT_EQ(stream.block_count(), row.block_count());
  for (std::size_t i = 0; i < row.block_count(); ++i) EXPECT_EQ(&stream.block(i), &row.block(i));
  expect_points_of(stream, points, row.frame());
}

TEST(SourceStream, OfSeveralLatticesOneIsTakenOut) {
  const Row row = packed_row_of(three_lattices(block_capacity));
  for (const std::int32_t l : {3, 5, 6}) {
    expect_points_of(stream_of(row, l, row.frame()), points_on_k1(block_capacity, 1, -7, l), row.frame());
  }
}

TEST(SourceStream, SeveralLatticesAreSortedOutAtOnce) {
  const Row row = packed_row_of(three_lattices(5 * block_capacity));
  const std::vector<std::int32_t> lattices = {2, 3, 4, 6};
  for (const int threads : {1, 2, 3}) {
    const std::vector<SourceStream> streams = streams_of(row, lattices, row.frame(), threads);
    ASSERT_EQ(streams.size(), lattices.size());
    EXPECT_EQ(streams[0].count() + streams[2].count(), 0U);
    expect_points_of(streams[1], points_on_k1(5 * block_capacity, 1, -7, 3), row.frame());
    expect_points_of(streams[3], points_on_k1(5 * block_capacity, 1, -7, 6), row.frame());
  }
}

TEST(SourceStream, AnotherLatticeHasNoPoints) {
  const Row row = packed_row_of(three_lattices(10));
  for (const std::int32_t l : {2, 4, 7}) {
    const SourceStream stream = stream_of(row, l, row.frame());
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
  expect_points_of(stream_of(several, 5, frame), points, frame);
  const Row one = packed_row_of(points);
  expect_points_of(stream_of(one, 5, frame), points, frame);
}

TEST(SourceStream, FindsTheBlockWithAKey) {
  const Row row = packed_row_of(points_on_k1(3 * block_capacity, 5));
  const SourceStream stream = stream_of(row, 0, row.frame());
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
