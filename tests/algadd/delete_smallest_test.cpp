#include "algadd/delete_smallest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <new>
#include <random>
#include <vector>

#include "run_fixture.h"
#include "support/failing_allocation.h"
#include "support/literal_run.h"
#include "support/points_text.h"

namespace kov {
namespace {

std::string after_deleting(std::int32_t percent, Lmap lmap) {
  HookedProgress progress;
  delete_smallest_of_nlast(lmap, percent, progress);
  EXPECT_FALSE(progress.is_open());
  return points_text(lmap);
}

Lmap row_of_equal(int count) {
  Lmap lmap;
  for (int k = 0; k < count; ++k) lmap.set(Lk::at(0, 2, k), 1);
  return lmap;
}

TEST(DeleteSmallest, AnEmptyStoreShowsNothing) {
  Lmap lmap;
  HookedProgress progress;
  delete_smallest_of_nlast(lmap, 50, progress);
  EXPECT_TRUE(progress.log.empty());
}

TEST(DeleteSmallest, TakesTheSmallestModuliOfTheLastRowOnly) {
  Lmap lmap;
  lmap.set(Lk::at(0, 1), cotyp(1, 100, 0, 1));
  lmap.set(Lk::at(0, 2, 0), -5);
  lmap.set(Lk::at(0, 2, 1), cotyp(0, 1, 2, 1));
  lmap.set(Lk::at(0, 2, 2), cotyp::floating(1.5, 0));
  lmap.set(Lk::at(1, 2, 3), cotyp(1, 1, 1, 1));
  EXPECT_EQ(after_deleting(50, lmap), "0 1: 1/100\n0 2: -5\n0 2 1: 0 2i\n");
}

TEST(DeleteSmallest, EqualSizesGoInKeyOrder) {
  Lmap lmap;
  Lk second = Lk::at(0, 2, 1);
  second.coo[2] = -7;
  lmap.set(Lk::at(5, 2, 0), 1);
  lmap.set(Lk::at(0, 2, 1), cotyp(0, 1, -1, 1));
  lmap.set(second, cotyp::floating(-1, 0));
  lmap.set(Lk::at(2, 2, 0), 1);
  lmap.set(Lk::at(0, 2, -3), cotyp::floating(0, 1));
  EXPECT_EQ(after_deleting(20, lmap), "2 2: 1\n5 2: 1\n0 2 1 -7: -1~ 0~i\n0 2 1: 0 -1i\n");
  EXPECT_EQ(after_deleting(60, lmap), "0 2 1 -7: -1~ 0~i\n0 2 1: 0 -1i\n");
  EXPECT_EQ(after_deleting(80, lmap), "0 2 1: 0 -1i\n");
}

TEST(DeleteSmallest, TruncatesTheNumber) {
  struct Row {
    int points;
    std::int32_t percent;
    std::size_t left;
  };
  // clang-format off
  const Row rows[] = {
      {19, 10, 18},
      { 5, 10,  5},
      { 5, 20,  4},
      { 7,  0,  7},
      { 7, 100, 0},
      {100, 7, 93},
      {100, 29, 71},
      {100, 57, 43},
      { 3, 33,  3},
      { 3, 34,  2},
      { 1, 99,  1},
      { 7, -5,  7},
      { 7, 101, 0},
      { 7, 150, 0},
      { 7, INT32_MIN, 7},
      { 7, INT32_MAX, 0},
  };
  // clang-format on
  for (const Row& row : rows) {
    Lmap lmap = row_of_equal(row.points);
    HookedProgress progress;
    delete_smallest_of_nlast(lmap, row.percent, progress);
    EXPECT_EQ(lmap.count(), row.left) << row.points << " points, " << row.percent << " percent";
  }
}

TEST(DeleteSmallest, AllPercentagesOfAllSmallRowsAreExact) {
  for (int points = 1; points <= 200; ++points) {
    for (std::int32_t percent = 0; percent <= 100; percent += 5) {
      Lmap lmap = row_of_equal(points);
      HookedProgress progress;
      delete_smallest_of_nlast(lmap, percent, progress);
      ASSERT_EQ(static_cast<int>(lmap.count()), points - points * percent / 100);
    }
  }
}

TEST(DeleteSmallest, AnOverflowedModulusIsTheLargest) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0, 0), cotyp::floating(1e200, 0));
  lmap.set(Lk::at(0, 0, 1), cotyp::floating(1e100, 0));
  lmap.set(Lk::at(0, 0, 2), cotyp::floating(1e300, 1e300));
  lmap.set(Lk::at(0, 0, 3), cotyp::floating(1e-200, 0));
  EXPECT_EQ(after_deleting(50, lmap), "0 0: 1E200~ 0~i\n0 0 2: 1E300~ 1E300~i\n");
  EXPECT_EQ(after_deleting(75, lmap), "0 0 2: 1E300~ 1E300~i\n");
}

TEST(DeleteSmallest, ShowsTheBoxAndTheCaptionsEveryTenThousandPoints) {
  Lmap lmap = row_of_equal(20'001);
  HookedProgress progress;
  delete_smallest_of_nlast(lmap, 60, progress);
  EXPECT_EQ(progress.log, (std::vector<std::string>{
                              "grey",
                              "box Progress 0..20001 at 0",
                              "headline: n=nlast=2: Sorting entry 10000 of 20001",
                              "box Progress 0..20001 at 10000",
                              "headline: n=nlast=2: Sorting entry 20000 of 20001",
                              "box Progress 0..20001 at 20000",
                              "headline: n=nlast=2: Deleting entry 10000 of 12000",
                              "box Progress 0..20001 at 10000",
                              "own colour",
                              "hide",
                          }));
  EXPECT_EQ(progress.breaths, 20'001 / 1024 + 12'000 / 1024);
  EXPECT_EQ(progress.checks, 0);
  EXPECT_EQ(lmap.count(), 8'001u);
}

TEST(DeleteSmallest, GivesThePanelItsColourBackWhenItFails) {
  Lmap lmap = row_of_equal(10'000);
  HookedProgress progress;
  progress.on_headline = [] { throw std::runtime_error("no display"); };
  EXPECT_THROW(delete_smallest_of_nlast(lmap, 60, progress), std::runtime_error);
  ASSERT_GE(progress.log.size(), 3u);
  EXPECT_EQ(progress.log.front(), "grey");
  EXPECT_EQ(*(progress.log.end() - 2), "own colour");
  EXPECT_EQ(progress.log.back(), "hide");
}

TEST(DeleteSmallest, NothingToDeleteIsSortedAllTheSame) {
  Lmap lmap = row_of_equal(10'000);
  HookedProgress progress;
  delete_smallest_of_nlast(lmap, 0, progress);
  EXPECT_EQ(progress.headlines(), (std::vector<std::string>{"n=nlast=2: Sorting entry 10000 of 10000"}));
  EXPECT_EQ(lmap.count(), 10'000u);
}

ScriptedUser silent_person() {
  return ScriptedUser([](const std::string&) {}, ScriptedUser::Captions::none);
}

// Sizes of every magnitude, many of them close together and some equal.
Lmap row_of_scattered(int count) {
  std::mt19937_64 random(20212);
  Lmap lmap;
  for (int k = 0; k < count; ++k) {
    const double size = std::ldexp(1.0 + 0x1p-50 * std::uniform_int_distribution<int>(0, 500)(random), k % 3);
    lmap.set(Lk::at(0, 2, k), cotyp::floating(size, 0));
  }
  return lmap;
}

TEST(DeleteSmallest, NoAllocationGrowsWithTheRow) {
  Lmap lmap = row_of_scattered(30'000);
  ScriptedUser progress = silent_person();
  {
    const LimitedAllocations limited(256);
    EXPECT_NO_THROW(delete_smallest_of_nlast(lmap, 50, progress));
  }
  EXPECT_EQ(lmap.count(), 15'000u);
}

TEST(DeleteSmallest, MemoryThatRunsOutLeavesTheStoreAsItWas) {
  const Lmap before = row_of_equal(100);
  const std::string text = points_text(before);
  int failures = 0;
  for (std::int64_t k = 1;; ++k) {
    Lmap lmap = before;
    HookedProgress progress;
    const FailingAllocation failing(k);
    try {
      delete_smallest_of_nlast(lmap, 50, progress);
      EXPECT_EQ(lmap.count(), 50u) << "only the display may lack memory unnoticed";
    } catch (const std::bad_alloc&) {
      EXPECT_EQ(points_text(lmap), text);
      ++failures;
    }
    if (!failing.happened()) break;
  }
  EXPECT_GT(failures, 1);
}

// Exact sizes that overflow when they are compared, floating ones, and neighbours of both.
cotyp random_quantity(std::mt19937_64& random) {
  const auto integer = [&random](std::int64_t low, std::int64_t high) {
    return static_cast<std::int32_t>(std::uniform_int_distribution<std::int64_t>(low, high)(random));
  };
  switch (integer(0, 4)) {
    case 0:
      return {integer(1, 3), integer(1, 3), integer(-2, 2), 1};
    case 1:
      return {integer(46000, 46340), integer(46000, 46340), 0, 1};
    case 2:
      return cotyp::floating(0.5 * integer(1, 3), 0.5 * integer(-2, 2));
    case 3:
      return to_float(cotyp(integer(46000, 46340), integer(46000, 46340), 0, 1));
    default:
      return {integer(2147483000, 2147483646), integer(2147483000, 2147483646), 0, 1};
  }
}

TEST(DeleteSmallest, SizesAsDoublesOrderAsTheNumbersDo) {
  std::mt19937_64 random(20210);
  for (int i = 0; i < 200'000; ++i) {
    const ratyp a = qq(random_quantity(random));
    const ratyp b = qq(random_quantity(random));
    ASSERT_EQ(a < b, to_double(a) < to_double(b)) << to_text(a) << " and " << to_text(b);
  }
}

// What the selection by the bits of a size stands on.
TEST(DeleteSmallest, NoSizeOfAFiniteQuantityIsNegativeZeroOrNaN) {
  const double largest = std::numeric_limits<double>::max();
  const double smallest = std::numeric_limits<double>::denorm_min();
  const ratyp parts[] = {0,
                         -1,
                         ratyp(-1, 3),
                         std::numeric_limits<std::int32_t>::min(),
                         ratyp::floating(0.0),
                         ratyp::floating(-0.0),
                         ratyp::floating(smallest),
                         ratyp::floating(-smallest),
                         ratyp::floating(largest),
                         ratyp::floating(-largest)};
  for (const ratyp& re : parts) {
    for (const ratyp& im : parts) {
      const double size = to_double(qq({re, im}));
      EXPECT_TRUE(size >= 0) << to_text(re) << " and " << to_text(im);
      EXPECT_FALSE(std::signbit(size)) << to_text(re) << " and " << to_text(im);
    }
  }
}

// Neighbouring doubles keep a search going down to the last bit.
TEST(DeleteSmallest, FindsTheCutAmongNeighbouringSizes) {
  Lmap lmap;
  lmap.set(Lk::at(0, 0, -2), cotyp::floating(1e300, 0));
  lmap.set(Lk::at(0, 0, -1), cotyp::floating(1e-300, 0));
  const auto part = [](int rank) { return 1.0 + 0x1p-51 * rank; };
  for (int k = 0; k < 1000; ++k) lmap.set(Lk::at(0, 0, k), cotyp::floating(part(k * 7 % 1000), 0));
  HookedProgress progress;
  delete_smallest_of_nlast(lmap, 30, progress);
  EXPECT_EQ(lmap.count(), 702u);
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    EXPECT_GE(point.quantity().re.fl(), part(299)) << "300 of 1002 went, 1e-300 among them";
  }
}

// Long enough for a sample, cut within points of one size that fill several blocks.
TEST(DeleteSmallest, EqualsTheSortedSetOnLongRowsOfFewSizes) {
  std::mt19937_64 random(20212);
  for (const std::int32_t percent : {1, 30, 50, 99}) {
    Lmap lmap;
    LiteralStore literal;
    for (std::int32_t k = 0; k < 40000; ++k) {
      const auto size = static_cast<std::int32_t>(random() % 5) + 1;
      const cotyp q = random() % 2 == 0 ? cotyp(-size, 0) : cotyp::floating(0.0, size);
      lmap.set(Lk::at(0, 0, k), q);
      literal.insert_or_assign(Lk::at(0, 0, k), q);
    }
    HookedProgress progress;
    delete_smallest_of_nlast(lmap, percent, progress);
    literal_delete_smallest(literal, percent);
    ASSERT_EQ(lmap.count(), literal.size());
    auto point = lmap.begin();
    for (const auto& [key, q] : literal) {
      ASSERT_EQ(point.key(), key) << percent;
      ASSERT_EQ(point.quantity(), q) << percent;
      ++point;
    }
  }
}

TEST(DeleteSmallest, EqualsTheSortedSetOnRandomRows) {
  std::mt19937_64 random(20211);
  for (int round = 0; round < 2000; ++round) {
    Lmap lmap;
    LiteralStore literal;
    const auto points = std::uniform_int_distribution<int>(1, 40)(random);
    for (int i = 0; i < points; ++i) {
      Lk key = Lk::at(std::uniform_int_distribution<int>(0, 2)(random),
                      std::uniform_int_distribution<int>(0, 1)(random),
                      std::uniform_int_distribution<int>(-5, 5)(random));
      const cotyp q = random_quantity(random);
      lmap.set(key, q);
      literal.insert_or_assign(key, q);
    }
    const auto percent = std::uniform_int_distribution<std::int32_t>(0, 100)(random);
    HookedProgress progress;
    delete_smallest_of_nlast(lmap, percent, progress);
    literal_delete_smallest(literal, percent);
    Lmap expected;
    for (const auto& [key, q] : literal) expected.set(key, q);
    ASSERT_EQ(points_text(lmap), points_text(expected)) << "round " << round;
  }
}

}  // namespace
}  // namespace kov
