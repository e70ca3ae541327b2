#include "graphs/value_map.h"

#include <gtest/gtest.h>

#include "graphs/map_desk.h"
#include "numbers/errors.h"

namespace kov {
namespace {

class ValueMapTest : public testing::Test, protected MapDesk {
 protected:
  std::string label(ImageSize image, int radio = 0) { return calculate(map, image, radio); }
  std::string pixels(ImageSize image, int radio = 0) {
    EXPECT_EQ(label(image, radio), "");
    return pixels_text(map);
  }

  ValueMap map;
};

TEST_F(ValueMapTest, SumsEachPointIntoThePixelOfItsCoordinates) {
  point(0, 0, cotyp(1));
  point(1, -1, cotyp(1, 2, 0, 1));
  point(1, 1, cotyp(-3));
  lmap.set(Lk::at(4, 1, 1), cotyp(10));
  // x: -2 ... 2 in 8 pixels, y: -1 ... 2 in 30.
  EXPECT_EQ(pixels({8, 30}), "2,20:0.5 4,10:1 6,20:7");
  EXPECT_EQ(map.x.min, -2);
  EXPECT_EQ(map.x.max, 2);
  EXPECT_EQ(map.x.pixels_per_unit, 2);
  EXPECT_EQ(map.y.min, -1);
  EXPECT_EQ(map.y.max, 2);
  EXPECT_EQ(map.y.pixels_per_unit, 10);
  EXPECT_EQ(map.point_count, 4);
}

TEST_F(ValueMapTest, ThePixelIsTheIntegerPartOfTheDistance) {
  for (std::int32_t k1 = 0; k1 < 4; ++k1) point(0, k1, cotyp(1));
  // x: -1 ... 4, 7 pixels: 1.4 for each unit, thus 1.4, 2.8, 4.2, 5.6.
  EXPECT_EQ(pixels({7, 2}), "1,1:1 2,1:1 4,1:1 5,1:1");
}

TEST_F(ValueMapTest, TheRadioButtonsChooseRangeAndQuantity) {
  lmap.set(Lk::at(0, 0, 0), cotyp(3, 1, 4, 1));
  lmap.set(Lk::at(1, 0, 0), cotyp(0, 1, -1, 2));
  lmap.set(Lk::at(2, 0, 7), cotyp(-6, 1, 8, 1));
  lmap.set(Lk::at(2, 5, 7), cotyp(1));
  constexpr ImageSize image{2, 2};
  set("Graph2_AvoidOverlappingSum", 0);
  struct Case {
    int radio;
    const char* pixel;
  };
  // Range 2 takes the points of lattice 2, which meet in one place of k2 and k1.
  for (const auto& [radio, pixel] :
       {Case{5, "1,1:-5"}, Case{6, "1,1:8"}, Case{7, "1,1:11"}, Case{8, "1,1:101"}, Case{9, "1,1:2"}}) {
    EXPECT_EQ(pixels(image, radio), pixel) << radio;
  }
  lmap.erase(Lk::at(2, 0, 7));
  lmap.erase(Lk::at(2, 5, 7));
  for (const auto& [radio, pixel] :
       {Case{0, "1,1:3"}, Case{1, "1,1:3.5"}, Case{2, "1,1:5.5"}, Case{3, "1,1:25.25"}, Case{4, "1,1:2"}}) {
    EXPECT_EQ(pixels(image, radio), pixel) << radio;
  }
}

TEST_F(ValueMapTest, OnlyPointsInsideTheRangeOfTheCurrentTableCount) {
  point(0, 0, cotyp(1));
  point(0, 9, cotyp(1));
  RangeTable& table = tables.current_table();
  table.range[0].max.coo[1] = 5;
  EXPECT_EQ(pixels({4, 4}), "2,2:1");
  EXPECT_EQ(map.point_count, 1);
  tables.choose(1);
  tables.current_table().range[0].min.coo[1] = 8;
  EXPECT_EQ(pixels({4, 4}), "2,2:1");
  EXPECT_EQ(map.x.min, 8);
}

TEST_F(ValueMapTest, ReportsBothPassesAndStopsAtABreakInEither) {
  for (std::int32_t k1 = 0; k1 < 5; ++k1) point(0, k1, cotyp(1));
  set("Graph_EntryCountPerDisplay", 2);
  EXPECT_EQ(label({10, 10}), "");
  EXPECT_EQ(take_reports(),
            (Reports{"caption: lattice point 2 of 5 checked", "caption: lattice point 4 of 5 checked",
                     "caption: lattice point 2 of 5 summed up", "caption: lattice point 4 of 5 summed up"}));
  person.break_at_check(2);
  EXPECT_EQ(label({10, 10}), " Graph2 was stopped by Break ");
  EXPECT_EQ(take_reports().size(), 2u);
  person.break_at_check(3);
  EXPECT_EQ(label({10, 10}), " Graph2 was stopped by Break ");
  EXPECT_EQ(take_reports().size(), 3u);
}

TEST_F(ValueMapTest, WithoutPixelsOrPointsThereIsNothingToDraw) {
  point(0, 0, cotyp(1));
  EXPECT_EQ(label({0, 10}), "No pixel");
  EXPECT_EQ(label({10, 0}), "No pixel");
  EXPECT_EQ(label({10, 10}, 5), " no different x") << "no point in Range 2";
  lmap.clear();
  EXPECT_EQ(label({10, 10}), " no different x");
  EXPECT_TRUE(reports.empty());
}

TEST_F(ValueMapTest, AnImageThatIsTooLargeIsCutWithTwoMessages) {
  point(0, 0, cotyp(1));
  EXPECT_EQ(pixels({3500, 2500}), "1500,1000:1");
  EXPECT_EQ(take_reports(),
            (Reports{"beep", "message: Calc_v_from_lgl: hpixcount=3500 set to max_hpixcount=3000", "beep",
                     "message: Calc_v_from_lgl: vpixcount=2500 set to max_vpixcount=2000"}));
  EXPECT_EQ(map.grid.width(), 3000);
  EXPECT_EQ(map.grid.height(), 2000);
  EXPECT_EQ(pixels({3000, 2000}), "1500,1000:1");
  EXPECT_TRUE(reports.empty());
}

TEST_F(ValueMapTest, TheMessagesOfTheSizeComeBeforeAnythingElse) {
  EXPECT_EQ(label({3500, 0}), "No pixel");
  EXPECT_EQ(take_reports(),
            (Reports{"beep", "message: Calc_v_from_lgl: hpixcount=3500 set to max_hpixcount=3000"}));
}

/// Points at k1 = 0 ... 6 of two steps: x from -1 to 7.
class OverlapTest : public ValueMapTest {
 protected:
  OverlapTest() {
    for (std::int32_t k1 = 0; k1 < 7; ++k1) {
      point(0, k1, cotyp(1));
      point(1, k1, cotyp(10));
    }
  }
  /// Half a pixel for a unit along x: 0.5, 1, 1.5, 2, 2.5, 3, 3.5.
  static constexpr ImageSize narrow{4, 30};
};

TEST_F(OverlapTest, OnlyTheFirstXOfAColumnIsSummedWhenOverlappingIsAvoided) {
  EXPECT_EQ(pixels(narrow), "0,10:1 0,20:10 1,10:1 1,20:10 2,10:1 2,20:10 3,10:1 3,20:10");
  EXPECT_EQ(map.columns[0], 0);
  EXPECT_EQ(map.columns[1], 1);
  EXPECT_EQ(map.columns[2], 3);
  EXPECT_EQ(map.columns[3], 5);
  EXPECT_EQ(map.point_count, 14) << "points that are left out count, too";
}

TEST_F(OverlapTest, OverlappingSummationTakesAll) {
  set("Graph2_AvoidOverlappingSum", 0);
  EXPECT_EQ(pixels(narrow), "0,10:1 0,20:10 1,10:2 1,20:20 2,10:2 2,20:20 3,10:2 3,20:20");
}

TEST_F(OverlapTest, OnlyTheFirstYOfARowIsSummedWhenOverlappingIsAvoided) {
  lmap.clear();
  for (std::int32_t n = 0; n < 3; ++n) point(n, 0, cotyp(n + 1));
  // y from -1 to 3 in two pixels: 0.5, 1, 1.5.
  EXPECT_EQ(pixels({2, 2}), "1,0:1 1,1:2");
  EXPECT_EQ(map.rows[1].y, 1);
  set("Graph2_AvoidOverlappingSum", 0);
  EXPECT_EQ(pixels({2, 2}), "1,0:1 1,1:5");
}

TEST_F(OverlapTest, TheFirstOneIsTheFirstInTheOrderOfTheStore) {
  lmap.clear();
  // Range 2: k2 along x, which falls while k1 along y rises. x from 0 to 4 in two pixels.
  for (std::int32_t k1 = 0; k1 < 3; ++k1) {
    Lk key = Lk::at(2, 0, k1);
    key.coo[2] = 3 - k1;
    lmap.set(key, cotyp(k1 + 1));
  }
  EXPECT_EQ(pixels({2, 40}, 5), "0,30:3 1,10:1");
  EXPECT_EQ(map.columns[1], 3);
  EXPECT_FALSE(map.rows[20].x) << "nothing was summed here";
}

TEST_F(OverlapTest, TooFewPixelsAreWarnedOfWhenAskedFor) {
  label({4, 2});
  EXPECT_TRUE(take_reports().empty());
  set("Graph_BeepMsgIfTooLessPixel", 1);
  label({4, 2});
  EXPECT_EQ(
      take_reports(),
      (Reports{"beep",
               "message: Warning:\n   too less pixel along x in Graph 2\n   (pix_per_icoo = 0.5 < 1)\n  "
               "\n  Not all, only one sum per pixel can be displayed.\n  ",
               "beep",
               "message: Warning:\n   too less pixel along y in Graph 2\n   (pix_per_icoo = 0.666667 < 1)\n  "
               "\n  Not all, only one sum per pixel can be displayed.\n  "}));
  set("Graph2_AvoidOverlappingSum", 0);
  label({4, 3});
  EXPECT_EQ(
      take_reports(),
      (Reports{"beep",
               "message: Warning:\n   too less pixel along x in Graph 2\n   (pix_per_icoo = 0.5 < 1)\n  "
               "\n  Overlapping summation per pixel is possible.\n  "}))
      << "one pixel a unit is enough";
}

TEST_F(ValueMapTest, DividedByTheNumberOfPointsInTheRange) {
  point(0, 0, cotyp(3));
  point(0, 2, cotyp(5));
  set("Graph2_divide_y_by_count", 1);
  EXPECT_EQ(pixels({4, 2}), "1,1:1.5 3,1:2.5");
}

TEST_F(ValueMapTest, CoordinatesReachTheEndsOf32Bits) {
  point(lowest_int, lowest_int, cotyp(1));
  point(highest_int, highest_int, cotyp(2));
  EXPECT_EQ(pixels({100, 100}), "0,0:1 99,99:2");
  EXPECT_EQ(map.x.min, std::int64_t{lowest_int} - 1);
  EXPECT_EQ(map.x.max, std::int64_t{highest_int} + 1);
}

TEST_F(ValueMapTest, ASumThatIsNotFiniteIsAnError) {
  point(0, 0, cotyp::floating(1.5e308, 0));
  lmap.set(Lk::at(1, 0, 0), cotyp::floating(1.5e308, 0));
  EXPECT_THROW(label({4, 4}), floating_overflow);
  EXPECT_THROW(label({4, 4}, 3), floating_overflow) << "the square of one point";
  EXPECT_EQ(pixels({4, 4}, 4), "2,2:2");
}

TEST_F(ValueMapTest, ACalculationStartsFromAnEmptyMap) {
  point(0, 0, cotyp(3));
  point(0, 2, cotyp(5));
  label({4, 4});
  lmap.clear();
  point(7, 7, cotyp(1));
  EXPECT_EQ(pixels({4, 4}), "2,2:1");
  EXPECT_EQ(map.point_count, 1);
  EXPECT_FALSE(map.columns[1]);
  EXPECT_FALSE(map.rows[1].y);
}

TEST_F(ValueMapTest, ValuesAreThoseOfThePixelsWithPoints) {
  point(0, 0, cotyp(3));
  point(0, 2, cotyp(0, 1, 5, 1));
  label({4, 4});
  EXPECT_EQ(map.values(), (std::vector<double>{3, 0})) << "a point without real part is a point";
}

TEST_F(ValueMapTest, StepsByTwoAreSeenRowByRow) {
  point(0, 0, cotyp(1));
  label({40, 40});
  EXPECT_FALSE(map.steps_by_two()) << "one point shows no step";
  point(1, -1, cotyp(1));
  point(1, 1, cotyp(1));
  label({40, 40});
  EXPECT_TRUE(map.steps_by_two()) << "rows may start at odd and at even coordinates";
  point(1, 4, cotyp(1));
  label({40, 40});
  EXPECT_FALSE(map.steps_by_two());
}

}  // namespace
}  // namespace kov
