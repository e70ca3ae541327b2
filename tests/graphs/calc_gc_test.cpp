#include "graphs/calc_gc.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "graphs/graph1_desk.h"
#include "numbers/errors.h"

namespace kov {
namespace {

using Calls = std::vector<std::string>;
using Texts = std::vector<std::string>;

TEST(CalcGc, AnEmptyStoreIsNotWalked) {
  Graph1Desk desk;
  EXPECT_EQ(desk.calculate(6000), G1Outcome::store_empty);
  EXPECT_TRUE(desk.progress.calls.empty());
  EXPECT_TRUE(desk.messages.shown.empty());
}

TEST(CalcGc, AllPointsAtOneXStandInTheMiddle) {
  Graph1Desk desk;
  desk.set(7, 3);
  EXPECT_EQ(desk.calculate(100), G1Outcome::calculated);
  EXPECT_EQ(desk.par.xmin, 6);
  EXPECT_EQ(desk.par.xmax, 8);
  EXPECT_EQ(desk.par.pix_per_icoo, 50);
  EXPECT_EQ(desk.columns(cb0qre), "50:3");
  EXPECT_EQ(desk.par.hpixcount, 100);
  EXPECT_EQ(desk.par.vpixcount, 50);
}

TEST(CalcGc, SumsFiveQuantitiesByColumns) {
  Graph1Desk desk;
  desk.table.range[0].max.coo[2] = 9;  // k2 = 0 ... 9 is summed up at each k1
  Lk key = Lk::at(0, 0, -1);
  desk.lmap.set(key, cotyp(3, 1, -4, 1));
  key.coo[2] = 5;
  desk.lmap.set(key, cotyp(1, 2, 0, 1));
  desk.set(1, cotyp(0, 1, 1, 3));
  EXPECT_EQ(desk.calculate(100), G1Outcome::calculated);
  EXPECT_EQ(desk.par.range[0].count, 3);
  EXPECT_EQ(desk.columns(cb0qre), "25:3.5");
  EXPECT_EQ(desk.columns(cb0qim), "25:-4 75:0.3333333333333333");
  EXPECT_EQ(desk.columns(cb0qq), "25:25.25 75:0.1111111111111111");
  EXPECT_EQ(desk.columns(cb0qa), "25:5.5 75:0.3333333333333333");
  EXPECT_EQ(desk.columns(cb0cntAt), "25:2 75:1");
  EXPECT_EQ(desk.par.range[1].count, 0);
  EXPECT_EQ(desk.columns(cb1qre), "");
}

TEST(CalcGc, TheSmallestAndLargestValueIncludeTheEmptyColumns) {
  Graph1Desk desk;
  desk.set(0, cotyp(2, 1, -3, 1));
  desk.set(1, cotyp(5, 1, -1, 1));
  desk.calculate();
  EXPECT_EQ(desk.par.curve(cb0qre).min, 0);
  EXPECT_EQ(desk.par.curve(cb0qre).max, 5);
  EXPECT_EQ(desk.par.curve(cb0qim).min, -3);
  EXPECT_EQ(desk.par.curve(cb0qim).max, 0);
}

/// Range 1 along k1, Range 2 along k2.
TEST(CalcGc, EachRangeHasItsOwnXPosition) {
  Graph1Desk desk;
  desk.checked = checks({cb0qre, cb1qim});
  desk.table.icoo_along_x_in_g = {1, 2};
  desk.table.range[1] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
  Lk key = Lk::at(1, 4, 100);
  key.coo[2] = 3;
  desk.lmap.set(key, cotyp(7, 1, 5, 1));
  desk.set(0, 2);
  desk.calculate(100);
  EXPECT_EQ(desk.par.xmin, -1);
  EXPECT_EQ(desk.par.xmax, 4);
  EXPECT_EQ(desk.columns(cb0qre), "20:2");
  EXPECT_EQ(desk.columns(cb1qim), "80:5");
  EXPECT_EQ(desk.columns(cb1qre), "20:2 80:7");
}

TEST(CalcGc, OnlyRangesWithACheckedBoxTakePart) {
  Graph1Desk desk;
  desk.set(0, 1);
  desk.set(9, 1, 1);
  desk.calculate();
  EXPECT_EQ(desk.par.xmax, 1);
  EXPECT_EQ(desk.par.range[1].count, 0);
  desk.checked = checks({cb1qa});
  desk.calculate();
  EXPECT_EQ(desk.par.xmin, 8);
  EXPECT_EQ(desk.par.range[0].count, 0);
  desk.checked = checks({cb0cntAt, cb1qa});
  desk.calculate();
  EXPECT_EQ(desk.par.xmin, -1);
  EXPECT_EQ(desk.par.xmax, 10);
}

TEST(CalcGc, WithTheCommonScaleBothRangesTakePart) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  desk.set(0, 1);
  desk.set(9, 1, 1);
  desk.calculate();
  EXPECT_EQ(desk.par.xmin, -1);
  EXPECT_EQ(desk.par.xmax, 10);
  EXPECT_EQ(desk.par.range[1].count, 1);
}

TEST(CalcGc, WithoutACheckedBoxNothingIsWalked) {
  Graph1Desk desk;
  desk.set(0, 1);
  desk.checked = {};
  for (const std::int32_t common : {0, 1}) {
    desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", common);
    EXPECT_EQ(desk.calculate(), G1Outcome::no_box_checked);
    EXPECT_TRUE(desk.progress.calls.empty());
  }
}

TEST(CalcGc, WithoutPointsInTheRangesThereIsNoX) {
  Graph1Desk desk;
  desk.set(0, 1, 1);
  EXPECT_EQ(desk.calculate(), G1Outcome::no_different_x);
  EXPECT_FALSE(desk.progress.is_open());
}

TEST(CalcGc, AnImageWithoutPixelsIsNotCalculated) {
  Graph1Desk desk;
  desk.set(0, 1);
  EXPECT_EQ(desk.calculate(0, 50), G1Outcome::no_pixel);
  EXPECT_EQ(desk.calculate(100, 0), G1Outcome::no_pixel);
  EXPECT_EQ(desk.calculate(-3, 50), G1Outcome::no_pixel);
  desk.checked = {};
  EXPECT_EQ(desk.calculate(0, 50), G1Outcome::no_pixel) << "looked at before the boxes";
  EXPECT_TRUE(desk.messages.shown.empty());
}

TEST(CalcGc, AnImageThatIsTooWideHasFiveThousandColumns) {
  Graph1Desk desk;
  desk.set(0, 1);
  EXPECT_EQ(desk.calculate(5000), G1Outcome::calculated);
  EXPECT_TRUE(desk.messages.shown.empty());
  EXPECT_EQ(desk.calculate(6000), G1Outcome::calculated);
  EXPECT_EQ(desk.messages.texts(), Texts{"Calc_gc_from_lgl: hpixcount=6000 set to G1Chainsize=5000"});
  EXPECT_EQ(desk.par.hpixcount, 5000);
  EXPECT_EQ(desk.columns(cb0qre), "2500:1");
}

TEST(CalcGc, WarnsOfTooFewPixels) {
  Graph1Desk desk;
  for (std::int32_t k1 = 0; k1 < 7; ++k1) desk.set(k1, k1 + 1);
  desk.calculate(2);
  EXPECT_TRUE(desk.messages.shown.empty()) << "the parameter is 0";
  desk.cph.setkmi_1("Graph_BeepMsgIfTooLessPixel", 1);
  desk.calculate(8);
  EXPECT_TRUE(desk.messages.shown.empty()) << "one pixel for each x is enough";
  desk.calculate(2);
  const std::vector<RecordedMessage> expected = {
      {MessageKind::warning,
       "Warning:\n too less pixel along x in Graph 1\n (pix_per_icoo = 0.25 < 1)\n"
       "\nNot all, only one sum per pixel can be displayed.\n"}};
  EXPECT_EQ(desk.messages.shown, expected);
  EXPECT_EQ(desk.columns(cb0qre), "0:6 1:22") << "drawing goes on, with several x values for a column";
}

TEST(CalcGc, WarningsFollowTheWarningLevel) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph_BeepMsgIfTooLessPixel", 1);
  desk.set(0, 1);
  desk.messages.set_wl(1);
  desk.calculate(1);
  desk.calculate(6000);
  EXPECT_TRUE(desk.messages.shown.empty());
  EXPECT_EQ(desk.messages.beeps, 2);
}

/// With x along k2 the smaller x comes later in key order.
TEST(CalcGc, AColumnKnowsItsSmallestX) {
  Graph1Desk desk;
  desk.table.range[0] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
  desk.table.icoo_along_x_in_g = {2, 2};
  for (const std::int32_t k1 : {0, 1, 2, 3}) {
    Lk key = Lk::at(0, 0, k1);
    key.coo[2] = -k1;
    desk.lmap.set(key, 1);
  }
  desk.calculate(1);
  EXPECT_EQ(desk.par.range[0].first_x[0], -3);
  EXPECT_EQ(desk.par.range[0].first_x[1], std::nullopt);
  EXPECT_EQ(desk.columns(cb0cntAt), "0:4");
}

TEST(CalcGc, CoordinatesMayBeTheOutermost) {
  Graph1Desk desk;
  desk.set(lowest_int, 1);
  desk.set(highest_int, 2);
  for (const int width : {1, 2, 3, 999, 5000}) {
    ASSERT_EQ(desk.calculate(width), G1Outcome::calculated);
    EXPECT_EQ(desk.par.xmin, -2147483649LL);
    EXPECT_EQ(desk.par.xmax, 2147483648LL);
    EXPECT_EQ(desk.par.range[0].count, 2);
    EXPECT_EQ(desk.par.curve(cb0qre).at[static_cast<std::size_t>(width) - 1], width == 1 ? 3 : 2);
  }
}

/// Whatever the interval and the width, points lie in columns of the image, in the order of x.
TEST(CalcGc, EveryXHasAColumnOfTheImage) {
  G1Par par;
  for (std::int64_t xcount = 2; xcount < 4'000'000'000; xcount = xcount * 3 / 2 + 1) {
    for (int width = 1; width <= G1Chainsize; width = width * 4 / 3 + 1) {
      par.hpixcount = width;
      par.xmin = -3;
      par.xmax = par.xmin + xcount;
      par.pix_per_icoo = static_cast<double>(width) / static_cast<double>(xcount);
      ASSERT_LT(par.column_of(par.xmax - 1), static_cast<std::size_t>(width)) << xcount << ' ' << width;
      ASSERT_EQ(par.column_of(par.xmin), 0U);
      ASSERT_LE(par.column_of(par.xmin), par.column_of(par.xmin + 1));
    }
  }
}

TEST(CalcGc, ShowsBothWalksInOneBox) {
  Graph1Desk desk;
  for (const std::int32_t k1 : {0, 1, 2}) desk.set(k1, 1);
  desk.set(0, 1, 1);
  desk.cph.setkmi_1("Graph_EntryCountPerDisplay", 3);
  desk.calculate();
  const Calls expected = {"box  Progress 0..4 at 0",
                          "box  Progress 0..4 at 0",
                          "headline lattice point 3 of 4 checked",
                          "box  Progress 0..4 at 3",
                          "break?",
                          "box  Progress 0..4 at 0",
                          "box  Progress 0..4 at 0",
                          "headline lattice point 3 of 4 summed up",
                          "box  Progress 0..4 at 3",
                          "break?",
                          "box  Progress 0..4 at 0",
                          "hidden"};
  EXPECT_EQ(desk.progress.calls, expected);
}

TEST(CalcGc, BreakInEitherWalkLeavesNothing) {
  for (const int check : {1, 2, 3, 4, 5}) {
    Graph1Desk desk;
    for (const std::int32_t k1 : {0, 1}) desk.set(k1, 1);
    desk.cph.setkmi_1("Graph_EntryCountPerDisplay", 1);
    desk.progress.break_at = check;
    EXPECT_EQ(desk.calculate(), check <= 4 ? G1Outcome::broken : G1Outcome::calculated);
    EXPECT_EQ(desk.columns(cb0cntAt), check <= 4 ? "" : "33:1 66:1") << check;
    EXPECT_EQ(desk.par.range[0].count, check <= 4 ? 0 : 2);
    EXPECT_EQ(desk.progress.calls.back(), "hidden");
    EXPECT_TRUE(desk.messages.shown.empty());
  }
}

TEST(CalcGc, FailuresByKind) {
  struct Case {
    std::function<void()> failure;
    const char* message;
  };
  // clang-format off
  const Case cases[] = {
      {[] { throw floating_overflow("too large"); },  " MathError when calculating G1Par: \ntoo large"},
      {[] { throw math_error("not a number"); },      " MathError when calculating G1Par: \nnot a number"},
      {[] { throw ratyp_error(); },                   " MathError when calculating G1Par: \nratyp error: de=0"},
      {[] { throw program_error("no sum"); },         "Error when calculating G1Par"},
      {[] { throw std::bad_alloc(); },                "Error when calculating G1Par"},
  };
  // clang-format on
  for (const Case& c : cases) {
    Graph1Desk desk;
    desk.set(1, 1);
    desk.calculate();
    desk.cph.setkmi_1("Graph_EntryCountPerDisplay", 1);
    desk.progress.on_headline = c.failure;
    EXPECT_EQ(desk.calculate(), G1Outcome::failed);
    EXPECT_EQ(desk.messages.shown, (std::vector<RecordedMessage>{{MessageKind::error, c.message}}));
    EXPECT_EQ(desk.columns(cb0qre), "") << "no drawing of an earlier calculation";
    EXPECT_FALSE(desk.progress.is_open());
  }
}

TEST(CalcGc, ASumThatIsNotFiniteIsANumericError) {
  Graph1Desk desk;
  desk.set(0, cotyp::floating(1e200, 0));
  EXPECT_EQ(desk.calculate(), G1Outcome::failed);
  EXPECT_EQ(desk.messages.texts(), Texts{" MathError when calculating G1Par: \nfloating point overflow"});
  EXPECT_THROW(Calc_gc_from_lgl({desk.lmap, desk.table, desk.cph, desk.checked, 9, 9}, desk.par,
                                desk.messages, desk.progress),
               floating_overflow);
}

TEST(CalcGc, EveryCalculationStartsCleared) {
  Graph1Desk desk;
  desk.set(0, 1);
  desk.calculate();
  desk.calculate();
  EXPECT_EQ(desk.columns(cb0qre), "50:1");
  EXPECT_EQ(desk.par.range[0].count, 1);
  desk.lmap.clear();
  desk.set(20, 1);
  desk.calculate(50);
  EXPECT_EQ(desk.par.xmin, 19);
  EXPECT_EQ(desk.columns(cb0qre), "25:1");
  EXPECT_EQ(desk.par.range[0].first_x[50], std::nullopt);
}

}  // namespace
}  // namespace kov
