#include "graphs/g1_curves.h"

#include <gtest/gtest.h>

#include "graphs/graph1_desk.h"

namespace kov {
namespace {

TEST(G1Curves, AreDividedByTheNumberOfPointsOfTheirRange) {
  Graph1Desk desk;
  desk.checked = checks({cb0qre, cb1qre});
  desk.cph.setkmi_1("Graph1_divmode", 1);
  desk.set(0, 6);
  desk.set(2, cotyp(0, 1, -3, 1));
  desk.set(0, 5, 1);
  desk.calculate(40);
  EXPECT_EQ(desk.columns(cb0qre), "10:3");
  EXPECT_EQ(desk.columns(cb0qim), "30:-1.5");
  EXPECT_EQ(desk.columns(cb0qq), "10:18 30:4.5");
  EXPECT_EQ(desk.columns(cb0qa), "10:3 30:1.5");
  EXPECT_EQ(desk.columns(cb0cntAt), "10:0.5 30:0.5");
  EXPECT_EQ(desk.columns(cb1qre), "10:5");
  EXPECT_EQ(desk.par.curve(cb0qre).max, 3) << "the y scale is that of the quotients";
}

TEST(G1Curves, ARangeWithoutPointsIsNotDivided) {
  Graph1Desk desk;
  desk.checked = checks({cb0qre, cb1qre});
  desk.cph.setkmi_1("Graph1_divmode", 1);
  desk.set(0, 6);
  EXPECT_EQ(desk.calculate(), G1Outcome::calculated);
  EXPECT_EQ(desk.columns(cb1qre), "");
  EXPECT_EQ(desk.columns(cb0qre), "50:6");
}

TEST(G1Curves, OfRange1AreDividedByThoseOfRange2) {
  Graph1Desk desk;
  desk.checked = checks({cb0qre, cb1qre});
  desk.cph.setkmi_1("Graph1_divmode", 2);
  desk.set(0, 6);
  desk.set(2, cotyp(3, 1, 8, 1));
  desk.set(0, -4, 1);
  desk.set(2, cotyp(0, 1, 2, 1), 1);
  EXPECT_EQ(desk.calculate(40), G1Outcome::calculated);
  EXPECT_EQ(desk.columns(cb0qre), "10:-1.5") << "a zero divisor gives 0";
  EXPECT_EQ(desk.columns(cb0qim), "30:4");
  EXPECT_EQ(desk.columns(cb0cntAt), "10:1 30:1");
  EXPECT_EQ(desk.columns(cb1qre), "10:-4") << "Range 2 stays";
  EXPECT_EQ(desk.par.curve(cb0qre).min, -1.5);
}

/// Range 2 takes part when it is checked, or with the common scale.
TEST(G1Curves, ARange2ThatIsNotSummedUpDividesToZero) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_divmode", 2);
  desk.set(0, 6);
  desk.set(0, 2, 1);
  desk.calculate();
  EXPECT_EQ(desk.columns(cb0qre), "");
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  desk.calculate();
  EXPECT_EQ(desk.columns(cb0qre), "50:3");
}

TEST(G1Curves, AQuotientBeyondTheDoublesIsANumericError) {
  Graph1Desk desk;
  desk.checked = checks({cb0qre, cb1qre});
  desk.cph.setkmi_1("Graph1_divmode", 2);
  desk.set(0, cotyp::floating(1e150, 0));
  desk.set(0, cotyp::floating(1e-160, 0), 1);
  EXPECT_EQ(desk.calculate(), G1Outcome::failed);
  EXPECT_EQ(desk.messages.texts(),
            std::vector<std::string>{" MathError when calculating G1Par: \nfloating point overflow"});
}

TEST(G1Curves, DoubleWidthNeedsEverySecondX) {
  struct Case {
    std::vector<std::int32_t> k1;
    std::optional<int> from;
  };
  // The smallest x of all is one further than xmin.
  const Case cases[] = {
      {{0, 2, 4}, 1},      {{-3, -1, 5}, 1},      {{0, 1, 2}, std::nullopt}, {{0, 2, 3}, std::nullopt},
      {{7}, std::nullopt}, {{0, 1}, std::nullopt}};
  for (const Case& c : cases) {
    Graph1Desk desk;
    desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 1);
    for (const std::int32_t k1 : c.k1) desk.set(k1, 1);
    desk.calculate();
    EXPECT_EQ(desk.par.curve(cb0qre).double_width_from, c.from) << c.k1.size() << ' ' << c.k1.back();
    EXPECT_EQ(desk.par.curve(cb0qim).double_width_from, std::nullopt) << "all zero";
  }
}

/// Each curve for itself: the real parts stand at even, the imaginary ones at odd x values.
TEST(G1Curves, DoubleWidthIsFoundCurveByCurve) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 1);
  for (std::int32_t k1 = 0; k1 < 4; ++k1) desk.set(k1, k1 % 2 == 0 ? cotyp(1) : cotyp(0, 1, 1, 1));
  desk.calculate();
  EXPECT_EQ(desk.par.curve(cb0qre).double_width_from, 1);
  EXPECT_EQ(desk.par.curve(cb0qim).double_width_from, 0);
  EXPECT_EQ(desk.par.curve(cb0qa).double_width_from, std::nullopt);
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 0);
  desk.calculate();
  EXPECT_EQ(desk.par.curve(cb0qre).double_width_from, std::nullopt);
}

TEST(G1Curves, WhereXValuesShareColumnsNothingIsDoubled) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 1);
  for (std::int32_t k1 = 0; k1 < 20; k1 += 2) desk.set(k1, 1);
  desk.calculate(10);
  EXPECT_EQ(desk.par.curve(cb0qre).double_width_from, std::nullopt);
}

TEST(G1Curves, ZerosAreFilledFromTheLeft) {
  Graph1Desk desk;
  desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 2);
  desk.set(0, 3);
  desk.set(2, -1);
  desk.calculate(8);
  EXPECT_EQ(desk.columns(cb0qre), "2:3 3:3 4:3 5:3 6:-1 7:-1");
  EXPECT_EQ(desk.columns(cb0qim), "");
  EXPECT_EQ(desk.par.curve(cb0qre).min, -1);
  EXPECT_EQ(desk.par.curve(cb0qre).double_width_from, std::nullopt);
  EXPECT_EQ(desk.par.range[0].first_x[3], std::nullopt) << "no point lies there";
}

}  // namespace
}  // namespace kov
