#include "datafile/point_lines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "lattice/lmap.h"
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

/// By rows; ends behind the last point that is asked for.
std::string lines_by_rows(const Lmap& lmap, std::int64_t last = INT64_MAX) {
  std::string text;
  TextBuffer out([&text](std::string_view part) { text += part; });
  std::int64_t points = 0;
  std::int64_t expected = 0;
  for (const Row& row : lmap.rows()) {
    const bool all = put_point_lines(out, "e_l", row, points, [&](std::int64_t count) {
      EXPECT_EQ(count, ++expected);
      return count < last;
    });
    if (!all) break;
  }
  out.flush();
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
      ASSERT_EQ(lines_by_rows(lmap), plain_lines(lmap)) << positions << " " << width;
    }
  }
}

TEST(PointLines, OfManyBlocksAreThoseOfEachPointAlone) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 20'000; ++i) lmap.set(Lk::at(i % 2, 3, i / 2 - 5000), cotyp(i + 1, 7, 0, 1));
  EXPECT_EQ(lines_by_rows(lmap), plain_lines(lmap));
}

TEST(PointLines, EndWhereTheyAreToldTo) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 1000; ++i) lmap.set(Lk::at(0, i / 100, i), i + 1);
  const std::string all = plain_lines(lmap);
  std::string text = lines_by_rows(lmap, 321);
  EXPECT_EQ(text, all.substr(0, text.size()));
  EXPECT_TRUE(text.ends_with(" 321\r\n"));
}

}  // namespace
}  // namespace kov
