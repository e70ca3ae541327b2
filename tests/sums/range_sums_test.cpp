#include "sums/range_sums.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "numbers/errors.h"
#include "sums/range_table.h"
#include "support/recording_progress.h"
#include "support/same_part.h"

namespace kov {
namespace {

using Ranges = std::array<KeyBox, 2>;
constexpr std::int64_t never = INT64_MAX;

RangeSums sums_of(const Lmap& lmap, const Ranges& ranges) {
  RecordingProgress progress;
  return sum_ranges(lmap, ranges, never, progress).value();
}

KeyBox line(std::int32_t first, std::int32_t last) { return {Lk::at(0, 0, first), Lk::at(0, 0, last)}; }

/// The same value in the same form, bit by bit.
bool identical(const cotyp& a, const cotyp& b) { return same_part(a.re, b.re) && same_part(a.im, b.im); }

TEST(RangeSums, TwoRangesAndTheTotal) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0, 1), cotyp(1, 2, 0, 1));
  lmap.set(Lk::at(0, 0, 2), cotyp(0, 1, 3, 1));
  lmap.set(Lk::at(0, 0, 3), cotyp(-1, 2, 0, 1));
  lmap.set(Lk::at(5, 7, 2), cotyp(4));
  const RangeSums sums = sums_of(lmap, {line(1, 2), line(2, 3)});
  struct Case {
    std::size_t row;
    cotyp values[sum_quantity_count];
  };
  // clang-format off
  const Case cases[] = {
      {sum_range1, {2, cotyp(1, 2, 3, 1),  cotyp(1, 4, 3, 2),  cotyp(37, 4, 0, 1),  cotyp(37, 8, 0, 1)}},
      {sum_range2, {2, cotyp(-1, 2, 3, 1), cotyp(-1, 4, 3, 2), cotyp(37, 4, 0, 1),  cotyp(37, 8, 0, 1)}},
      {sum_total,  {4, cotyp(4, 1, 3, 1),  cotyp(1, 1, 3, 4),  cotyp(51, 2, 0, 1),  cotyp(51, 8, 0, 1)}},
  };
  // clang-format on
  for (const Case& c : cases) {
    for (std::size_t k = 0; k < sum_quantity_count; ++k) {
      EXPECT_TRUE(identical(sums[c.row].value[k], c.values[k]))
          << c.row << ' ' << to_text(sums[c.row].value[k]);
    }
  }
  EXPECT_EQ(sums[sum_range1].ratio[sum_total][sum_cnt], cotyp(1, 2, 0, 1));
  EXPECT_EQ(sums[sum_total].ratio[sum_range1][sum_cnt], cotyp(2));
  EXPECT_EQ(sums[sum_range1].ratio[sum_range2][sum_q], cotyp(35, 37, -12, 37));
  EXPECT_EQ(sums[sum_range1].ratio[sum_range1][sum_q], cotyp(1));
  EXPECT_EQ(sums[sum_range2].ratio[sum_total][sum_qq], cotyp(37, 102, 0, 1));
  EXPECT_EQ(sums[sum_range2].ratio[sum_total][sum_qq_per_cnt], cotyp(37, 51, 0, 1));
}

TEST(RangeSums, TheTotalCountsEveryPointWhenBothRangesAreEmpty) {
  Lmap lmap;
  for (std::int32_t k1 = 0; k1 < 10; ++k1) lmap.set(Lk::at(k1 % 3, k1, k1), cotyp(k1 + 1));
  const KeyBox empty{Lk::filled(1), Lk::filled(0)};
  const RangeSums sums = sums_of(lmap, {empty, empty});
  EXPECT_EQ(sums[sum_total].value[sum_cnt], cotyp(10));
  EXPECT_EQ(sums[sum_total].value[sum_q], cotyp(55));
  EXPECT_EQ(sums[sum_total].value[sum_q_per_cnt], cotyp(11, 2, 0, 1));
  for (const std::size_t row : {sum_range1, sum_range2}) {
    for (const cotyp& value : sums[row].value) EXPECT_TRUE(identical(value, cotyp()));
    for (const auto& ratios : sums[row].ratio) {
      for (const auto& ratio : ratios) EXPECT_FALSE(ratio.has_value());
    }
    for (const auto& ratio : sums[sum_total].ratio[row]) EXPECT_FALSE(ratio.has_value());
  }
}

TEST(RangeSums, DefaultRange2IsEmptyForAnOrdinaryLattice) {
  Lmap lmap;
  for (std::int32_t k1 = -3; k1 <= 3; ++k1) lmap.set(Lk::at(0, 0, k1), 1);
  lmap.set(Lk::at(0, 1, 0), 1);
  lmap.set(Lk::at(1, 0, 0), 1);
  const RangeSums sums = sums_of(lmap, RangeTable::default_ranges());
  EXPECT_EQ(sums[sum_range1].value[sum_cnt], cotyp(7));
  EXPECT_EQ(sums[sum_range2].value[sum_cnt], cotyp(0));
  EXPECT_EQ(sums[sum_total].value[sum_cnt], cotyp(9));
  for (const SumRow& row : sums) {
    for (const auto& ratio : row.ratio[sum_range2]) EXPECT_FALSE(ratio.has_value());
  }
}

TEST(RangeSums, AZeroDivisorMakesOnlyItsOwnRatiosInvalid) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0, 1), 1);
  lmap.set(Lk::at(0, 0, 2), -1);
  const RangeSums sums = sums_of(lmap, {line(1, 2), line(1, 1)});
  const auto& by_range1 = sums[sum_range2].ratio[sum_range1];
  EXPECT_EQ(by_range1[sum_cnt], cotyp(1, 2, 0, 1));
  EXPECT_FALSE(by_range1[sum_q].has_value());
  EXPECT_FALSE(by_range1[sum_q_per_cnt].has_value());
  EXPECT_EQ(by_range1[sum_qq], cotyp(1, 2, 0, 1));
  EXPECT_EQ(by_range1[sum_qq_per_cnt], cotyp(1));
  const auto& by_range2 = sums[sum_range1].ratio[sum_range2];
  ASSERT_TRUE(by_range2[sum_q].has_value());
  EXPECT_TRUE(identical(*by_range2[sum_q], cotyp()));
}

TEST(RangeSums, TheStepAndTheLatticeIndexAreBoundedLikeAnyCoordinate) {
  Lmap lmap;
  for (std::int32_t l = 0; l < 4; ++l) {
    for (std::int32_t n = 0; n < 5; ++n) lmap.set(Lk::at(l, n), 1);
  }
  const RangeSums sums = sums_of(lmap, {KeyBox{Lk::at(1, INT32_MIN), Lk::at(2, INT32_MAX)},
                                        KeyBox{Lk::at(INT32_MIN, 3), Lk::at(INT32_MAX, 3)}});
  EXPECT_EQ(sums[sum_range1].value[sum_cnt], cotyp(10));
  EXPECT_EQ(sums[sum_range2].value[sum_cnt], cotyp(4));
}

TEST(RangeSums, CountsAreExactUpToTheExactRange) {
  struct Case {
    std::int64_t count;
    cotyp quantity;
  };
  // clang-format off
  const Case cases[] = {
      {0,             cotyp()},
      {1,             cotyp(1)},
      {2147483646,    cotyp(2147483646)},
      {2147483647,    cotyp(ratyp::floating(2147483647.0), 0)},
      {2147483648,    cotyp(ratyp::floating(2147483648.0), 0)},
      {9007199254740992, cotyp(ratyp::floating(9007199254740992.0), 0)},
  };
  // clang-format on
  for (const Case& c : cases) EXPECT_TRUE(identical(count_quantity(c.count), c.quantity)) << c.count;
  EXPECT_TRUE(identical(count_quantity(2147483646) + 1, count_quantity(2147483647)));
  EXPECT_TRUE(identical(count_quantity(2147483647) + 1, count_quantity(2147483648)));
}

Lmap points(std::int32_t count) {
  Lmap lmap;
  for (std::int32_t k1 = 0; k1 < count; ++k1) lmap.set(Lk::at(0, 0, k1), 1);
  return lmap;
}

TEST(RangeSums, ReportsAfterEveryEthPoint) {
  struct Case {
    std::int64_t points_per_display;
    std::vector<std::string> calls;
  };
  const std::string open = "box  Progress 0..5 at 0";
  // clang-format off
  const Case cases[] = {
      {2, {open, "headline lattice point 2 of 5 summed up", "box  Progress 0..5 at 2", "break?",
                 "headline lattice point 4 of 5 summed up", "box  Progress 0..5 at 4", "break?", "hidden"}},
      {5, {open, "headline lattice point 5 of 5 summed up", "box  Progress 0..5 at 5", "break?", "hidden"}},
      {6, {open, "hidden"}},
  };
  // clang-format on
  const Lmap lmap = points(5);
  for (const Case& c : cases) {
    RecordingProgress progress;
    EXPECT_TRUE(sum_ranges(lmap, RangeTable::default_ranges(), c.points_per_display, progress).has_value());
    EXPECT_EQ(progress.calls, c.calls);
  }
}

TEST(RangeSums, AnIntervalBelowOneCountsAsOne) {
  for (const std::int64_t interval : {std::int64_t{1}, std::int64_t{0}, std::int64_t{-5}}) {
    RecordingProgress progress;
    EXPECT_TRUE(sum_ranges(points(3), RangeTable::default_ranges(), interval, progress).has_value());
    EXPECT_EQ(std::count(progress.calls.begin(), progress.calls.end(), "break?"), 3) << interval;
  }
}

TEST(RangeSums, BreakGivesNoSumsAndClosesTheBox) {
  RecordingProgress progress;
  progress.break_at = 2;
  EXPECT_FALSE(sum_ranges(points(9), RangeTable::default_ranges(), 3, progress).has_value());
  EXPECT_EQ(progress.calls.back(), "hidden");
  EXPECT_EQ(progress.caption(), "lattice point 6 of 9 summed up");
}

TEST(RangeSums, ResultsThatAreNotFiniteAreErrors) {
  struct Case {
    const char* name;
    std::vector<double> quantities;
  };
  // clang-format off
  const Case cases[] = {
      {"sum",            {1.7e308, 1.7e308, 1.0}},
      {"sum of squares", {1e200}},
  };
  // clang-format on
  for (const Case& c : cases) {
    Lmap lmap;
    std::int32_t k1 = 0;
    for (const double q : c.quantities) lmap.set(Lk::at(0, 0, k1++), cotyp::floating(q, 0.0));
    RecordingProgress progress;
    EXPECT_THROW(sum_ranges(lmap, RangeTable::default_ranges(), never, progress), floating_overflow)
        << c.name;
    EXPECT_EQ(progress.calls.back(), "hidden") << c.name;
  }
}

TEST(RangeSums, ARatioWithoutAFiniteValueIsInvalidAndTheOthersStay) {
  struct Case {
    const char* name;
    double quantity;
    bool ratio_of_q;
    bool ratio_of_qq;
  };
  // clang-format off
  const Case cases[] = {
      {"squares within range",            2.0,    true,  true},
      {"squared sum of squares overflows", 1e100,  true,  false},
      {"squared sum of squares vanishes",  1e-120, true,  false},
  };
  // clang-format on
  for (const Case& c : cases) {
    Lmap lmap;
    lmap.set(Lk::at(0, 0, 1), cotyp::floating(c.quantity, 0.0));
    const RangeSums sums = sums_of(lmap, RangeTable::default_ranges());
    EXPECT_EQ(sums[sum_range1].value[sum_q], cotyp::floating(c.quantity, 0.0)) << c.name;
    EXPECT_EQ(sums[sum_range1].value[sum_qq], cotyp::floating(c.quantity * c.quantity, 0.0)) << c.name;
    const auto& ratio = sums[sum_range1].ratio[sum_total];
    EXPECT_EQ(ratio[sum_cnt], cotyp(1)) << c.name;
    EXPECT_EQ(ratio[sum_q].has_value(), c.ratio_of_q) << c.name;
    EXPECT_EQ(ratio[sum_q_per_cnt].has_value(), c.ratio_of_q) << c.name;
    EXPECT_EQ(ratio[sum_qq].has_value(), c.ratio_of_qq) << c.name;
    EXPECT_EQ(ratio[sum_qq_per_cnt].has_value(), c.ratio_of_qq) << c.name;
  }
}

/// A naive reading: every quantity a running value, counts included.
struct NaiveRow {
  cotyp cnt, q, q_per_cnt, qq, qq_per_cnt;

  void add(const cotyp& point) {
    cnt += 1;
    q += point;
    qq += cotyp(point.re * point.re + point.im * point.im, 0);
  }
  void finish() {
    if (is_zero(cnt)) return;
    q_per_cnt = q / cnt;
    qq_per_cnt = qq / cnt;
  }
  std::array<cotyp, sum_quantity_count> values() const { return {cnt, q, q_per_cnt, qq, qq_per_cnt}; }
};

bool naive_inside(const Lk& key, const KeyBox& box) {
  bool result = true;
  for (std::size_t i = 0; i < MaxDimCount; ++i) {
    result = result && box.min.coo[i] <= key.coo[i] && key.coo[i] <= box.max.coo[i];
  }
  return result;
}

/// Random stores and ranges in which keys, bounds and quantities meet their special values often.
class Random {
 public:
  std::int32_t between(std::int32_t a, std::int32_t b) {
    return std::uniform_int_distribution<std::int32_t>(a, b)(engine_);
  }

  std::int32_t coordinate() {
    static constexpr std::int32_t ends[] = {INT32_MIN, INT32_MIN + 1, INT32_MAX - 1, INT32_MAX};
    return between(0, 9) == 0 ? ends[between(0, 3)] : between(-3, 3);
  }

  Lk key(int dimensions) {
    Lk key = Lk::at(between(0, 2), coordinate());
    for (int i = 1; i <= dimensions; ++i) key.coo[static_cast<std::size_t>(i)] = coordinate();
    return key;
  }

  ratyp part() {
    switch (between(0, 3)) {
      case 0:
        return between(-2, 2);
      case 1:
        return {between(-50, 50), between(1, 60)};
      case 2:
        return {between(-2000000000, 2000000000), between(1, 2000000000)};
      default:
        return ratyp::floating(between(-1000, 1000) / 7.0);
    }
  }

  Lmap store(int dimensions) {
    Lmap lmap;
    for (int i = between(1, 60); i > 0; --i) lmap.set(key(dimensions), cotyp(part(), part()));
    lmap.set(key(dimensions), 1);
    return lmap;
  }

  KeyBox box(int dimensions) {
    KeyBox box{Lk::filled(INT32_MIN), Lk::filled(INT32_MAX)};
    for (int i = 0; i <= dimensions; ++i) {
      if (between(0, 2) == 0) continue;
      const std::int32_t a = coordinate();
      const std::int32_t b = coordinate();
      const bool in_order = between(0, 15) != 0;
      box.min.coo[static_cast<std::size_t>(i)] = in_order ? std::min(a, b) : a;
      box.max.coo[static_cast<std::size_t>(i)] = in_order ? std::max(a, b) : b;
    }
    if (between(0, 1) == 0) box.min.coo[l_position] = box.max.coo[l_position] = between(0, 2);
    return box;
  }

 private:
  std::mt19937 engine_{20240607};
};

std::array<NaiveRow, sum_row_count> naive_sums(const Lmap& lmap, const Ranges& ranges) {
  std::array<NaiveRow, sum_row_count> rows;
  for (auto place = lmap.begin(); place != lmap.end(); ++place) {
    if (naive_inside(place.key(), ranges[0])) rows[sum_range1].add(place.quantity());
    if (naive_inside(place.key(), ranges[1])) rows[sum_range2].add(place.quantity());
    rows[sum_total].add(place.quantity());
  }
  for (NaiveRow& row : rows) row.finish();
  return rows;
}

void expect_same_ratio(const std::optional<cotyp>& ratio, const cotyp& value, const cotyp& divisor,
                       bool counted) {
  const bool exists = counted && !is_zero(divisor);
  ASSERT_EQ(ratio.has_value(), exists);
  if (exists) {
    EXPECT_TRUE(identical(*ratio, value / divisor));
  }
}

TEST(RangeSums, EqualANaiveSummationBitByBit) {
  Random random;
  int points_inside = 0;
  for (int round = 0; round < 3000; ++round) {
    const int dimensions = random.between(0, 4);
    const Lmap lmap = random.store(dimensions);
    const Ranges ranges{random.box(dimensions), random.box(dimensions)};
    const RangeSums sums = sums_of(lmap, ranges);
    const auto expected = naive_sums(lmap, ranges);
    points_inside += expected[sum_range1].cnt.re.nu();
    for (std::size_t row = 0; row < sum_row_count; ++row) {
      const auto values = expected[row].values();
      for (std::size_t k = 0; k < sum_quantity_count; ++k) {
        ASSERT_TRUE(identical(sums[row].value[k], values[k]))
            << "round " << round << ' ' << to_text(values[k]);
        for (std::size_t divisor = 0; divisor < sum_row_count; ++divisor) {
          const bool counted = !is_zero(expected[row].cnt) && !is_zero(expected[divisor].cnt);
          expect_same_ratio(sums[row].ratio[divisor][k], values[k], expected[divisor].values()[k], counted);
        }
      }
    }
  }
  EXPECT_GT(points_inside, 3000);
}

TEST(RangeSums, InsideEqualsTheNaiveTest) {
  Random random;
  int inside_count = 0;
  for (int round = 0; round < 100000; ++round) {
    const KeyBox box = random.box(3);
    const Lk key = random.key(3);
    ASSERT_EQ(box.contains(key), naive_inside(key, box)) << round;
    ASSERT_EQ(inside(key, box.min, box.max), naive_inside(key, box)) << round;
    inside_count += box.contains(key) ? 1 : 0;
  }
  EXPECT_GT(inside_count, 1000);
}

}  // namespace
}  // namespace kov
