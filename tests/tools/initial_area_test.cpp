#include "tools/initial_area.h"

#include <gtest/gtest.h>

#include <random>

#include "interact/scripted_user.h"
#include "lattice/slice_view.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "support/recording_progress.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr AreaLimits no_limits{.bytes = INT64_MAX, .visits_per_display = 1'000'000};

// An area in braces is M, round or not, D, S, sign pattern.

struct Filled {
  Lmap lmap;
  AreaEnd end;
};

Filled filled(const InitialArea& area, const AreaLimits& limits = no_limits) {
  Filled result{};
  RecordingProgress progress;
  result.end = fill_initial_area(result.lmap, area, SliceView::reference_key(), limits, progress);
  return result;
}

TEST(InitialArea, ALineOfOnes) {
  const auto [lmap, end] = filled({2, 0, 1, 1, 0});
  EXPECT_EQ(points_text(lmap), "0 0 -2: 1\n0 0 -1: 1\n0 0: 1\n0 0 1: 1\n0 0 2: 1\n");
  EXPECT_EQ(end, AreaEnd::complete);
}

TEST(InitialArea, ARoundPlaneWithSigns) {
  EXPECT_EQ(points_text(filled({2, 1, 2, 1, 2}).lmap),
            "0 0 -1 -1: 1\n0 0 -1 1: -1\n0 0 1 -1: -1\n0 0 1 1: 1\n");
}

TEST(InitialArea, Mode4IsMinusOneOnTheEvenSums) {
  const Lmap lmap = filled({1, 0, 3, 1, 4}).lmap;
  EXPECT_EQ(lmap.count(), 27U);
  Lk key = Lk::at(0, 0, 1);
  EXPECT_EQ(lmap.get(key), cotyp(1));
  key.coo[2] = 1;
  EXPECT_EQ(lmap.get(key), cotyp(-1));
}

TEST(InitialArea, StepsStartAtTheBorder) {
  EXPECT_EQ(points_text(filled({3, 0, 1, 2, 0}).lmap), "0 0 -3: 1\n0 0 -1: 1\n0 0 1: 1\n0 0 3: 1\n");
}

TEST(InitialArea, TakesEveryOtherIntegerFromTheReferenceKey) {
  Lk reference = Lk::filled(7);
  reference.coo[0] = -4;
  Lmap lmap;
  lmap.set(Lk::at(3, 3), 3);
  RecordingProgress progress;
  fill_initial_area(lmap, {1, 0, 1, 2, 1}, reference, no_limits, progress);
  Lk left = reference;
  left.coo[1] = -1;
  left.coo[2] = left.coo[3] = 0;
  Lk right = left;
  right.coo[1] = 1;
  Lmap expected;
  expected.set(left, -1);
  expected.set(right, 1);
  EXPECT_EQ(points_text(lmap), points_text(expected));
}

TEST(InitialArea, QuestionIsComposedOfItsPieces) {
  struct Case {
    InitialArea area;
    const char* text;
  };
  // clang-format off
  const Case cases[] = {
      {{12, 0, 3, 2, 0}, "asquare area with max. border distance12 from zero will be initializatedalong coordinates k1,k2,k3 (resp x,y,z) with+1. The stepping distance is2."},
      {{1, 1, 1, 1, 1},  "around area with max. border distance1 from zero will be initializatedalong coordinate k1 (resp x) with+-1 (sign alternation when crossing k1 = x = 0). The stepping distance is1."},
      {{1, 3, 2, 5, 2},  "around area with max. border distance1 from zero will be initializatedalong coordinates k1,k2 (resp x,y) with+-1 (sign alternation when crossing k1,k2 = x,y = 0). The stepping distance is5."},
      {{1, 0, 7, 1, 3},  "asquare area with max. border distance1 from zero will be initializatedalong coordinate k1 (resp x) with+-1 (sign alternation when crossing k1,k2,k3 = x,y,z = 0). The stepping distance is1."},
      {{1, 0, 0, 1, 4},  "asquare area with max. border distance1 from zero will be initializatedalong coordinate k1 (resp x) with-1 when k1+k2+k3 = x+y+z is odd, else with +1. The stepping distance is1."},
      {{1, 0, 1, 1, 9},  "asquare area with max. border distance1 from zero will be initializatedalong coordinate k1 (resp x) with+1. The stepping distance is1."},
  };
  // clang-format on
  for (const Case& c : cases) {
    EXPECT_EQ(c.area.question(),
              std::string("According to the options N0iniarea_... ") + c.text + "\n\nDo you want this?");
  }
}

TEST(InitialArea, IsReadFromItsFiveParameters) {
  ScriptedUser person([](const std::string&) {});
  cphclass cph(person);
  cph.InitPrgPar(WindowFacts{});
  const InitialArea defaults = InitialArea::read(cph);
  EXPECT_EQ(defaults.question(), InitialArea{}.question());
  cph.setkmi_1("N0iniarea_maxcoo", 9);
  cph.setkmi_1("N0iniarea_square_round", 2);
  cph.setkmi_1("N0iniarea_dimcount", 1);
  cph.setkmi_1("N0iniarea_stepdist", 8);
  cph.setkmi_1("N0iniarea_sign_alternation", 4);
  const InitialArea area = InitialArea::read(cph);
  EXPECT_EQ(area.maxcoo, 9);
  EXPECT_EQ(area.square_round, 2);
  EXPECT_EQ(area.dimcount, 1);
  EXPECT_EQ(area.stepdist, 8);
  EXPECT_EQ(area.sign_alternation, 4);
  cph.setkmi_1("MaxAllowedMemOccupationInKB", 2147483647);
  EXPECT_EQ(AreaLimits::read(cph).bytes, 2'147'483'647'000);
  EXPECT_EQ(AreaLimits::read(cph).visits_per_display, 10'000);
}

TEST(InitialArea, NoStepDistanceOfZeroIsInTheCatalogue) {
  ScriptedUser person([](const std::string&) {});
  cphclass cph(person);
  cph.InitPrgPar(WindowFacts{});
  cph.setkmi_1("N0iniarea_stepdist", 0);
  EXPECT_EQ(cph.kmi("N0iniarea_stepdist"), 2);
}

/// After how many points of a line the store passes a limit that the given number of points just keeps.
std::size_t points_when_stopped(std::uint64_t allowed, std::int32_t maxcoo,
                                AreaEnd end = AreaEnd::out_of_bounds) {
  const Filled result =
      filled({maxcoo, 0, 1, 1, 0},
             {.bytes = static_cast<std::int64_t>(allowed * sizeof_entry), .visits_per_display = 1});
  EXPECT_EQ(result.end, end);
  return result.lmap.count();
}

TEST(InitialArea, StopsOnePointBeyondTheLimitButNotAtAMultipleOf100) {
  EXPECT_EQ(points_when_stopped(50, 500), 51U);
  EXPECT_EQ(points_when_stopped(98, 500), 99U);
  EXPECT_EQ(points_when_stopped(99, 500), 101U);
  EXPECT_EQ(points_when_stopped(100, 500), 101U);
  EXPECT_EQ(points_when_stopped(199, 500), 201U);
  EXPECT_EQ(points_when_stopped(1000, 500), 1001U);
  EXPECT_EQ(points_when_stopped(1001, 500, AreaEnd::complete), 1001U);
}

TEST(InitialArea, AnAreaThatEndsAtAMultipleOf100IsComplete) {
  // -99, -97, ... 99: a hundred places.
  const AreaLimits limits{.bytes = 99 * static_cast<std::int64_t>(sizeof_entry), .visits_per_display = 1};
  const Filled result = filled({99, 0, 1, 2, 0}, limits);
  EXPECT_EQ(result.lmap.count(), 100U);
  EXPECT_EQ(result.end, AreaEnd::complete);
}

TEST(InitialArea, BreakKeepsWhatWasWritten) {
  Lmap lmap;
  RecordingProgress progress;
  progress.break_at = 2;
  EXPECT_EQ(
      fill_initial_area(lmap, {4, 0, 1, 1, 0}, Lk{}, {.bytes = INT64_MAX, .visits_per_display = 3}, progress),
      AreaEnd::broken);
  EXPECT_EQ(lmap.count(), 6U);
  EXPECT_EQ(progress.calls,
            (std::vector<std::string>{"box  Progress -4..4 at -4", "box  Progress -4..4 at -2", "break?",
                                      "box  Progress -4..4 at 1", "break?", "hidden"}));
}

TEST(InitialArea, PositionIsThatOfTheSlowestCoordinate) {
  for (const std::int32_t dimensions : {2, 3}) {
    Lmap lmap;
    RecordingProgress progress;
    progress.break_at = dimensions == 2 ? 4 : 10;
    fill_initial_area(lmap, {1, 0, dimensions, 1, 0}, Lk{}, {.bytes = INT64_MAX, .visits_per_display = 1},
                      progress);
    ASSERT_GE(progress.calls.size(), 3U);
    EXPECT_EQ(progress.calls[progress.calls.size() - 3], "box  Progress -1..1 at 0");
  }
}

TEST(InitialArea, LackOfMemoryKeepsWhatWasWritten) {
  const auto failed = fail_each_allocation(
      Lmap(),
      [](Lmap& lmap) {
        RecordingProgress progress;
        fill_initial_area(lmap, {2, 0, 1, 1, 0}, Lk{}, no_limits, progress);
      },
      [](const Lmap& lmap) { EXPECT_LE(lmap.count(), 5U); });
  EXPECT_GE(failed, 5);
}

struct LargeCase {
  const char* name;
  InitialArea area;
};

class LargeArea : public testing::TestWithParam<LargeCase> {};

/// Of up to 2^96 places; what is not in the store is not walked through.
TEST_P(LargeArea, StopsAtTheLimit) {
  constexpr std::int64_t points = 3000;
  const AreaLimits limits{.bytes = points * static_cast<std::int64_t>(sizeof_entry),
                          .visits_per_display = 1000};
  const Filled result = filled(GetParam().area, limits);
  EXPECT_EQ(result.end, AreaEnd::out_of_bounds);
  EXPECT_GE(result.lmap.count(), 3001U);
  EXPECT_LE(result.lmap.count(), 3002U);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(InitialArea, LargeArea, testing::Values(
    LargeCase{"line",       {highest_int, 0, 1, 1, 0}},
    LargeCase{"round_line", {highest_int, 1, 1, 1, 1}},
    LargeCase{"plane",      {highest_int, 0, 2, 1, 2}},
    LargeCase{"disc",       {highest_int, 1, 2, 1, 2}},
    LargeCase{"cube",       {highest_int, 0, 3, 1, 3}},
    LargeCase{"ball",       {highest_int, 1, 3, 1, 3}},
    LargeCase{"wide_ball",  {highest_int, 1, 3, 1001, 4}}),
    [](const auto& large) { return large.param.name; });
// clang-format on

TEST(InitialArea, LargeOnesWithoutAnyPointEnd) {
  for (const InitialArea& area : {InitialArea{highest_int, 0, 1, 1, 2}, InitialArea{highest_int, 0, 1, 1, 3},
                                  InitialArea{highest_int, 1, 2, 1, 3}, InitialArea{-5, 0, 3, 1, 0}}) {
    const Filled result = filled(area);
    EXPECT_EQ(result.end, AreaEnd::complete);
    EXPECT_TRUE(result.lmap.empty());
  }
}

TEST(InitialArea, LargestStepsReachTheEndsOfTheIntegers) {
  EXPECT_EQ(points_text(filled({highest_int, 0, 1, highest_int, 4}).lmap),
            "0 0 -2147483647: 1\n0 0: -1\n0 0 2147483647: 1\n");
  // Two of them add up to more than 32 bits.
  const Lmap plane = filled({highest_int, 0, 2, highest_int, 4}).lmap;
  Lk corner = Lk::at(0, 0, highest_int);
  corner.coo[2] = highest_int;
  EXPECT_EQ(plane.get(corner), cotyp(-1));
  EXPECT_EQ(plane.count(), 9U);
}

/// The walk in its own words: every place is visited, one after the other.
Filled plain_area(const InitialArea& area, std::int64_t bytes) {
  Filled result{{}, AreaEnd::complete};
  const double M = area.maxcoo;
  const std::int32_t ry = area.dimcount == 2 || area.dimcount == 3 ? area.maxcoo : 0;
  const std::int32_t rz = area.dimcount == 3 ? area.maxcoo : 0;
  int count = 0;
  for (std::int32_t z = -rz; z <= rz; z += area.stepdist) {
    for (std::int32_t y = -ry; y <= ry; y += area.stepdist) {
      for (std::int32_t x = -area.maxcoo; x <= area.maxcoo; x += area.stepdist) {
        Lk key = Lk::at(0, 0, x);
        key.coo[2] = y;
        key.coo[3] = z;
        const double fx = x;
        const double fy = y;
        const double fz = z;
        std::int32_t q = 1;
        if (area.sign_alternation == 1) q = x == 0 ? 0 : x < 0 ? -1 : 1;
        if (area.sign_alternation == 2) q = x == 0 || y == 0 ? 0 : fx * fy <= 0 ? -1 : 1;
        if (area.sign_alternation == 3) q = x == 0 || y == 0 || z == 0 ? 0 : fx * fy * fz <= 0 ? -1 : 1;
        if (area.sign_alternation == 4) q = (x + y + z) % (2 * area.stepdist) == 0 ? -1 : 1;
        if (area.square_round == 0 || fx * fx + fy * fy + fz * fz <= M * M) result.lmap.set(key, q);
        ++count;
        if (count % 100 != 0 && static_cast<std::int64_t>(result.lmap.count() * 176) > bytes) {
          result.end = AreaEnd::out_of_bounds;
          return result;
        }
      }
    }
  }
  return result;
}

TEST(InitialArea, AgreesWithThePlainWalkOnRandomParameters) {
  std::mt19937 engine(93);
  const auto integer = [&](std::int32_t a, std::int32_t b) {
    return std::uniform_int_distribution<std::int32_t>(a, b)(engine);
  };
  int stopped = 0;
  for (int run = 0; run < 3000; ++run) {
    const InitialArea area{integer(1, 9), integer(0, 1), integer(0, 4), integer(1, 5), integer(0, 4)};
    const Filled whole = plain_area(area, INT64_MAX);
    // Close to hundreds, where the check is skipped, as often as not.
    const auto most = static_cast<std::int32_t>(whole.lmap.count());
    const std::int32_t points = integer(0, 1) == 0 ? integer(0, most) : integer(0, most / 100 + 1) * 100 - 1;
    const std::int64_t bytes = points * std::int64_t{sizeof_entry};
    const Filled expected = plain_area(area, bytes);
    const Filled result = filled(area, {.bytes = bytes, .visits_per_display = 7});
    ASSERT_EQ(points_text(result.lmap), points_text(expected.lmap)) << area.question() << points;
    ASSERT_EQ(result.end, expected.end) << area.question() << points;
    stopped += result.end == AreaEnd::out_of_bounds ? 1 : 0;
  }
  EXPECT_GT(stopped, 500);
}

}  // namespace
}  // namespace kov
