#include "tools/cross_product.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>

#include "interact/scripted_user.h"
#include "numbers/errors.h"
#include "support/cancelling_questions.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "support/recording_progress.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr std::int64_t rarely = 10'000;

CrossResult crossed(Lmap& lmap, const CrossOffset& offset = {0, 0, 0},
                    std::int64_t points_per_display = rarely) {
  RecordingProgress progress;
  return calculate_cross_products(lmap, offset, points_per_display, progress);
}

Lmap store(std::initializer_list<std::pair<Lk, cotyp>> points) {
  Lmap lmap;
  for (const auto& [key, q] : points) lmap.set(key, q);
  return lmap;
}

TEST(CrossProduct, DialogHasItsTextAndPreset) {
  CancellingQuestions nobody;
  EXPECT_FALSE(ask_for_cross_offset(nobody).has_value());
  EXPECT_EQ(nobody.asked.caption, "Cross product");
  EXPECT_EQ(nobody.asked.prompt,
            "Cross product calculation:\n w[coo] := u[coo]    X    v[coo+offset]\n"
            "coo are the location coordinates\nlattices 0,1,2 contain the components of vector u\n"
            "lattices 3,4,5 contain the components of vector v\n"
            "lattices 6,7,8 contain the components of vector w\n For calculation of the crossproducts of all "
            "\ncoordinates using offset (a,b,c,0,0,0,...))\nenter the three integers   a,b,c");
  EXPECT_EQ(nobody.asked.preset, "0,0,0");
}

TEST(CrossProduct, GivesTheIntegersInTheOrderTyped) {
  ScriptedUser person([](const std::string&) {});
  person.set_answers({"4,-5,6"});
  EXPECT_EQ(ask_for_cross_offset(person), (CrossOffset{4, -5, 6}));
}

/// Unit vectors u = e_i and v = e_j: w, in the lattices 6, 7, 8.
TEST(CrossProduct, OfUnitVectors) {
  const char* const expected[3][3] = {
      {"", "8 0: 1\n", "7 0: -1\n"}, {"8 0: -1\n", "", "6 0: 1\n"}, {"7 0: 1\n", "6 0: -1\n", ""}};
  for (std::int32_t i = 0; i < 3; ++i) {
    for (std::int32_t j = 0; j < 3; ++j) {
      Lmap lmap = store({{Lk::at(i, 0), 1}, {Lk::at(3 + j, 0), 1}});
      const std::string before = points_text(lmap);
      const CrossResult result = crossed(lmap);
      EXPECT_EQ(points_text(lmap), before + expected[i][j]) << i << j;
      EXPECT_EQ(result.count, i == j ? 0U : 1U);
    }
  }
}

TEST(CrossProduct, ReportsTheCount) {
  EXPECT_EQ((CrossResult{.count = 1, .broken = false}).text(), "1 non-zero\ncross products calculated");
  EXPECT_EQ((CrossResult{.count = 0, .broken = true}).text(),
            "0 non-zero\ncross products calculated\n\n user break ! ");
}

TEST(CrossProduct, OldPointsOfWGoAndAllOthersStay) {
  Lmap lmap = store({{Lk::at(5, 0), 5},
                     {Lk::at(6, 0), 6},
                     {Lk::at(7, 3, 1), 7},
                     {Lk::at(8, -1), 8},
                     {Lk::at(9, 0), 9},
                     {Lk::at(-1, 0), -1}});
  EXPECT_EQ(crossed(lmap).count, 0U);
  EXPECT_EQ(points_text(lmap),
            points_text(store({{Lk::at(5, 0), 5}, {Lk::at(9, 0), 9}, {Lk::at(-1, 0), -1}})));
}

TEST(CrossProduct, ReadsVAtTheOffsetAndNeverAtAnotherStep) {
  Lk far = Lk::at(4, 2, 1);
  far.coo[2] = -1;
  far.coo[3] = 7;
  Lmap lmap = store({{Lk::at(0, 2), 3}, {far, 5}, {Lk::at(4, 3, 1), 100}, {Lk::at(4, 2), 100}});
  EXPECT_EQ(crossed(lmap, {1, -1, 7}).count, 1U);
  EXPECT_EQ(lmap.get(Lk::at(8, 2)), cotyp(15));
}

TEST(CrossProduct, OffsetsWrap) {
  Lmap lmap = store({{Lk::at(0, 0, highest_int), 3}, {Lk::at(4, 0, lowest_int), 5}});
  EXPECT_EQ(crossed(lmap, {1, 0, 0}).count, 1U);
  EXPECT_EQ(lmap.get(Lk::at(8, 0, highest_int)), cotyp(15));
}

TEST(CrossProduct, IsExactUntilItOverflowsAndThenSilentlyFloating) {
  Lmap lmap = store({{Lk::at(0, 0), cotyp(1, 2, 0, 1)},
                     {Lk::at(4, 0), cotyp(0, 1, 2, 3)},
                     {Lk::at(0, 1), 2'000'000'000},
                     {Lk::at(4, 1), 3}});
  crossed(lmap);
  EXPECT_EQ(point_text(Lk::at(8, 0), lmap.get(Lk::at(8, 0))), "8 0: 0 1/3i");
  EXPECT_FALSE(lmap.get(Lk::at(8, 1)).re.exact());
  EXPECT_EQ(to_double(lmap.get(Lk::at(8, 1)).re), 6e9);
}

TEST(CrossProduct, ParallelVectorsHaveNone) {
  Lmap lmap;
  for (std::int32_t i = 0; i < 3; ++i) {
    lmap.set(Lk::at(i, 0), cotyp(i + 1, 7, 0, 1));
    lmap.set(Lk::at(i + 3, 0), cotyp(2 * (i + 1), 3, 0, 1));
  }
  EXPECT_EQ(crossed(lmap).count, 0U);
  EXPECT_EQ(lmap.count(), 6U);
}

Lmap row_of_unit_vectors(std::int32_t count) {
  Lmap lmap;
  for (std::int32_t k = 0; k < count; ++k) {
    lmap.set(Lk::at(0, 0, k), 1);
    lmap.set(Lk::at(4, 0, k), 1);
    lmap.set(Lk::at(5, 0, k), 1);
    lmap.set(Lk::at(6, 0, k), 1);
  }
  return lmap;
}

TEST(CrossProduct, ShowsBothPassesAndAsksForBreakInTheSecond) {
  Lmap lmap = row_of_unit_vectors(2);
  RecordingProgress progress;
  EXPECT_EQ(calculate_cross_products(lmap, {0, 0, 0}, 3, progress).text(),
            "4 non-zero\ncross products calculated");
  EXPECT_EQ(
      progress.calls,
      (std::vector<std::string>{
          "box deleting lattices 6,7,8 0..8 at 0", "box deleting lattices 6,7,8 0..8 at 3",
          "box deleting lattices 6,7,8 0..8 at 6", "box calculating cross products 0..6 at 0",
          "box calculating cross products 0..6 at 3", "break?", "box calculating cross products 0..6 at 6",
          "break?", "box deleting lattices 6,7,8 0..8 at 6", "hidden"}));
}

TEST(CrossProduct, BreakFinishesTheLocation) {
  for (int check = 1; check <= 12; ++check) {
    Lmap lmap = row_of_unit_vectors(4);
    RecordingProgress progress;
    progress.break_at = check;
    const CrossResult result = calculate_cross_products(lmap, {0, 0, 0}, 1, progress);
    const auto locations = static_cast<std::size_t>((check + 2) / 3);
    EXPECT_EQ(result.count, 2 * locations) << check;
    EXPECT_EQ(result.broken, locations < 4) << check;
    EXPECT_EQ(lmap.count(), 12 + 2 * locations) << check;
  }
}

TEST(CrossProduct, AParameterBelowOneMeansEveryPoint) {
  Lmap lmap = row_of_unit_vectors(1);
  RecordingProgress progress;
  calculate_cross_products(lmap, {0, 0, 0}, 0, progress);
  EXPECT_EQ(std::count(progress.calls.begin(), progress.calls.end(), "break?"), 3);
}

TEST(CrossProduct, AnOverflowLeavesWEmpty) {
  const double huge = std::numeric_limits<double>::max();
  Lmap lmap = store({{Lk::at(0, 0), 1},
                     {Lk::at(4, 0), 1},
                     {Lk::at(6, 0), 1},
                     {Lk::at(0, 1), cotyp::floating(huge, 0)},
                     {Lk::at(4, 1), 10}});
  EXPECT_THROW(crossed(lmap), floating_overflow);
  EXPECT_EQ(lmap.count(), 4U);
  EXPECT_FALSE(lmap.contains(Lk::at(8, 0)));
}

TEST(CrossProduct, LackOfMemoryLeavesWEmpty) {
  const Lmap before = row_of_unit_vectors(3);
  Lmap sources;
  for (auto point = before.begin(); point != before.end(); ++point) {
    if (point.key().l() < 6) sources.set(point.key(), point.quantity());
  }
  Lmap whole = before;
  crossed(whole);
  // Nothing has begun, or w is empty; a display that cannot be closed costs nothing.
  const std::set<std::string> allowed = {points_text(before), points_text(sources), points_text(whole)};
  const auto failed = fail_each_allocation(
      before, [](Lmap& lmap) { crossed(lmap); },
      [&](const Lmap& lmap) { EXPECT_TRUE(allowed.contains(points_text(lmap))) << points_text(lmap); });
  EXPECT_GT(failed, 5);
}

/// The rule for one component at a time, on a plain copy.
Lmap plain_cross(const Lmap& lmap, const CrossOffset& offset) {
  Lmap result;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    if (point.key().l() < 6 || point.key().l() > 8) result.set(point.key(), point.quantity());
  }
  const Lmap sources = result;
  for (auto point = sources.begin(); point != sources.end(); ++point) {
    const std::int32_t i = point.key().l();
    if (i < 0 || i > 2) continue;
    for (std::int32_t j = 2; j >= 0; --j) {
      if (j == i) continue;
      const std::int32_t k = 3 - i - j;
      Lk v_key = point.key();
      v_key.coo[l_position] = 3 + j;
      for (std::size_t d = 0; d < 3; ++d) v_key.coo[d + 1] += offset[d];
      Lk w_key = point.key();
      w_key.coo[l_position] = 6 + k;
      const bool even = (i + 1) % 3 == j;
      const cotyp product = point.quantity() * sources.get(v_key);
      result.set(w_key, even ? result.get(w_key) + product : result.get(w_key) - product);
    }
  }
  return result;
}

TEST(CrossProduct, AgreesWithThePlainRuleOnRandomFields) {
  std::mt19937 engine(91);
  const auto integer = [&](std::int32_t a, std::int32_t b) {
    return std::uniform_int_distribution<std::int32_t>(a, b)(engine);
  };
  for (int run = 0; run < 2000; ++run) {
    Lmap lmap;
    for (int i = 0; i < 40; ++i) {
      Lk key = Lk::at(integer(-1, 9), integer(0, 1), integer(-1, 1));
      key.coo[2] = integer(0, 1);
      key.coo[3] = integer(0, 1);
      const cotyp q(integer(-2, 2), integer(1, 3), integer(-1, 1), 1);
      lmap.set(key, integer(0, 5) == 0 ? to_float(q) : q);
    }
    const CrossOffset offset{integer(-1, 1), integer(-1, 1), integer(-1, 1)};
    const Lmap expected = plain_cross(lmap, offset);
    const CrossResult result = crossed(lmap, offset);
    ASSERT_EQ(points_text(lmap), points_text(expected)) << run;
    std::size_t count = 0;
    for (auto point = lmap.begin(); point != lmap.end(); ++point) count += point.key().l() / 3 == 2;
    ASSERT_EQ(result.count, count);
  }
}

}  // namespace
}  // namespace kov
