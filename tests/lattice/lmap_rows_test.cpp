#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "keep_points.h"
#include "lattice/lmap.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

TEST(LmapRows, GivesAndTakesRows) {
  Lmap lmap;
  for (const std::int32_t n : {1, 3}) lmap.set(Lk::at(0, n), n);
  EXPECT_EQ(lmap.row(2), nullptr);
  ASSERT_NE(lmap.row(3), nullptr);
  EXPECT_EQ(lmap.row(3)->count(), 1U);
  Row row(2, KeyFrame::for_box({Lk::at(0, 2), Lk::at(0, 2)}));
  lmap.insert_row(Row(row));
  EXPECT_EQ(lmap.row(2), nullptr) << "without points there is no row";
  row.insert(Lk::at(0, 2), 5);
  lmap.insert_row(std::move(row));
  EXPECT_EQ(points_text(lmap), "0 1: 1\n0 2: 5\n0 3: 3\n");
  EXPECT_EQ(lmap.count(), 3U);
  std::string steps;
  for (const Row& each : lmap.rows(2, 7)) steps += int_text(each.n()) + " ";
  EXPECT_EQ(steps, "2 3 ");
  EXPECT_EQ(lmap.rows(3, 2).begin(), lmap.rows(3, 2).end());
}

std::size_t bytes_held(const Lmap& lmap) {
  std::size_t bytes = 0;
  for (const Row& row : lmap.rows()) {
    for (std::size_t i = 0; i < row.block_count(); ++i) bytes += row.block(i).bytes();
  }
  return bytes;
}

TEST(LmapRows, TakesForAPointWhatItsKindNeeds) {
  struct KindCase {
    const char* name;
    cotyp q;
    std::size_t bytes;
  };
  const KindCase cases[] = {
      {"integer", 5, 8},
      {"fraction", cotyp(2, 3, 0, 1), 8},
      {"exact complex", cotyp(2, 3, 7, 5), 12},
      {"floating real", cotyp(ratyp::floating(0.5), 0), 12},
      {"floating, imaginary 0.0", cotyp::floating(0.5, 0), 12},
      {"floating complex", cotyp::floating(0.5, 0.25), 20},
  };
  for (const KindCase& row : cases) {
    Lmap lmap;
    for (std::int32_t k = 0; k < 10'000; ++k) {
      Lk key = Lk::at(k % 3, 1, k / 100);
      key.coo[30] = k % 100;
      lmap.set(key, row.q);
    }
    EXPECT_EQ(bytes_held(lmap), row.bytes * lmap.count()) << row.name;
  }
}

TEST(LmapRows, CountsThePointsBeforeACursor) {
  Lmap lmap;
  for (std::int32_t n = 0; n < 3; ++n) {
    for (std::int32_t k = 0; k < 5000; ++k) lmap.set(Lk::at(0, n, k), 1);
  }
  std::size_t before = 0;
  for (auto point = lmap.begin(); point != lmap.end(); ++point, ++before) {
    if (before % 100 == 0) {
      ASSERT_EQ(lmap.count_before(point), before);
    }
  }
  EXPECT_EQ(lmap.count_before(lmap.end()), 15'000U);
}

TEST(LmapRows, KeepsWhatIsChosenOfTheGivenRows) {
  Lmap lmap;
  for (std::int32_t n = 0; n < 4; ++n) {
    for (std::int32_t k = 0; k < 6000; ++k) lmap.set(Lk::at(0, n, k), k + 1);
  }
  const auto even = [](const Lk& key, const cotyp& q) { return key.n() != 2 && q.re.nu() % 2 == 0; };
  EXPECT_EQ(keep_points(lmap, 1, 2, even), 9000U);
  EXPECT_EQ(lmap.count(), 15'000U);
  EXPECT_EQ(lmap.row(2), nullptr);
  EXPECT_EQ(lmap.count_in_rows(1, 1), 3000U);
  for (auto point = lmap.row_begin(1); point != lmap.row_end(1); ++point) {
    ASSERT_EQ(point.key().coo[1] % 2, 1);
  }
}

}  // namespace
}  // namespace kov
