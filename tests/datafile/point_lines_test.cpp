#include "datafile/point_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "datafile/file_error.h"
#include "datafile/point_writer.h"
#include "lattice/lmap.h"
#include "support/failing_allocation.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Point by point, as the format tells it.
std::string plain_lines(const Lmap& lmap) {
  std::string text;
  for (auto at = lmap.begin(); at != lmap.end(); ++at) {
    text += "e_l";
    const Lk key = at.key();
    for (const int position : listed_positions) {
      text += " " + int_text(key.coo[static_cast<std::size_t>(position)]);
    }
    text += " " + to_text(at.quantity()) + "\r\n";
  }
  return text;
}

std::string lines_by_blocks(const Lmap& lmap) {
  LineText out;
  for (const Row& row : lmap.rows()) {
    for (std::size_t i = 0; i < row.block_count(); ++i) put_point_lines(out, "e_l", row, row.block(i));
  }
  return std::string(out.text());
}

/// By so many threads, up to a call of after_points.
std::string written_lines(const Lmap& lmap, int threads, std::int64_t last = INT64_MAX) {
  WorkerPool workers(threads);
  std::string text;
  TextBuffer out([&text](std::string_view part) { text += part; });
  std::int64_t written = 0;
  const bool all = put_points(out, "e_l", lmap, workers, [&](std::int64_t points) {
    EXPECT_GT(points, written);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), points);
    written = points;
    return points < last;
  });
  EXPECT_EQ(all, written < last);
  return text;
}

/// Points of one kind of keys and quantities, or of all.
Lmap random_points(std::mt19937& random, int positions, std::uint32_t width, int count) {
  Lmap lmap;
  for (int i = 0; i < count; ++i) {
    Lk key = Lk::filled(width == 0 ? INT32_MIN : -7);
    key.coo[0] = static_cast<std::int32_t>(random() % 3) - 1;
    for (int k = 0; k < positions; ++k) {
      const std::size_t position = random() % 31 + 1;
      const auto value = static_cast<std::int32_t>(random());
      key.coo[position] = width == 0 ? value : value % static_cast<std::int32_t>(width);
    }
    const auto small = static_cast<std::int32_t>(random() % 2001) - 1000;
    const double floating = std::ldexp(static_cast<double>(small), static_cast<int>(random() % 200) - 100);
    switch (random() % 5) {
      case 0:
        lmap.set(key, cotyp(small));
        break;
      case 1:
        lmap.set(key, cotyp(small, 1 + static_cast<std::int32_t>(random() % 1000), small, 7));
        break;
      case 2:
        lmap.set(key, cotyp::floating(floating, 0.0));
        break;
      case 3:
        lmap.set(key, cotyp(ratyp(small), ratyp::floating(floating)));
        break;
      default:
        lmap.set(key, cotyp(ratyp::floating(0.0), ratyp(small, 3)));
        break;
    }
  }
  return lmap;
}

TEST(PointLines, AreThoseOfEachPointAlone) {
  std::mt19937 random(2026);
  for (const int positions : {0, 1, 2, 5, 31}) {
    for (const std::uint32_t width : {0U, 2U, 5000U}) {
      const Lmap lmap = random_points(random, positions, width, 3000);
      ASSERT_EQ(lines_by_blocks(lmap), plain_lines(lmap)) << positions << " " << width;
    }
  }
}

TEST(PutPoints, WritesAllLinesInOrderWhateverTheNumberOfThreads) {
  Lmap many_blocks;
  for (std::int32_t i = 0; i < 100'000; ++i) {
    many_blocks.set(Lk::at(i % 2, 3, i / 2 - 5000), cotyp(i + 1, 7, 0, 1));
  }
  Lmap many_rows;
  for (std::int32_t i = 0; i < 40'000; ++i) many_rows.set(Lk::at(0, i / 3, i), i + 1);
  for (const Lmap* lmap : {&many_blocks, &many_rows}) {
    const std::string expected = plain_lines(*lmap);
    for (const int threads : {1, 2, 3, 7}) EXPECT_EQ(written_lines(*lmap, threads), expected) << threads;
  }
}

TEST(PutPoints, EndsWhereItIsToldTo) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 100'000; ++i) lmap.set(Lk::at(0, i / 30'000, i), i + 1);
  const std::string all = plain_lines(lmap);
  for (const int threads : {1, 2}) {
    const std::string text = written_lines(lmap, threads, 20'000);
    EXPECT_LT(text.size(), all.size());
    EXPECT_EQ(text, all.substr(0, text.size()));
  }
}

TEST(PutPoints, NothingIsWrittenOfAnEmptyStore) { EXPECT_EQ(written_lines({}, 2), ""); }

TEST(PutPoints, WhatTheWritingThrowsArrives) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 100'000; ++i) lmap.set(Lk::at(0, 0, i), i + 1);
  for (const int threads : {1, 3}) {
    WorkerPool workers(threads);
    int parts = 0;
    TextBuffer out([&](std::string_view) {
      if (++parts == 5) throw file_error("disk full");
    });
    const AfterPoints go_on = [](std::int64_t) { return true; };
    EXPECT_THROW(put_points(out, "e_l", lmap, workers, go_on), file_error) << threads;
    EXPECT_EQ(parts, 5);
  }
}

TEST(PutPoints, MemoryThatRunsOutIsThrown) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 9000; ++i) lmap.set(Lk::at(0, i / 100, i), i + 1);
  const std::int64_t failures = fail_each_allocation(
      0, [&](int&) { written_lines(lmap, 1); }, [](int) {});
  EXPECT_GT(failures, 5);
}

}  // namespace
}  // namespace kov
