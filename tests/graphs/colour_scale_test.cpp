#include "graphs/colour_scale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "support/recording_messages.h"

namespace kov {
namespace {

/// Steps 1 to 4 of the equalisation as they read, over an ordered set.
std::vector<double> literal_fclimit(const std::vector<double>& values) {
  const std::set<double> Vmap(values.begin(), values.end());
  const double step = 960 / static_cast<double>(Vmap.size());
  std::vector<double> fclimit(961);
  fclimit[0] = *Vmap.begin();
  int prev = 1;
  int k = 0;
  for (const double value : Vmap) {
    const int idx = static_cast<int>(++k * step);
    for (int i = prev; i <= idx; ++i) fclimit[static_cast<std::size_t>(i)] = value;
    prev = idx + 1;
  }
  for (; prev <= 960; ++prev)
    fclimit[static_cast<std::size_t>(prev)] = fclimit[static_cast<std::size_t>(prev - 1)];
  return fclimit;
}

class ColourScaleTest : public testing::Test {
 protected:
  ColourScaleTest() { messages.set_wl(3); }

  ColourScale distributed(std::vector<double> values) {
    ColourScale scale(ColourRamp(0, 0));
    scale.Set_equally_distributed_fclimit(std::move(values), messages);
    return scale;
  }
  Colour colour(const ColourScale& scale, double q) { return scale.color_from_fcl_table(q, messages); }

  RecordingMessages messages;
};

using Texts = std::vector<std::string>;

TEST_F(ColourScaleTest, OneValueFillsTheTableAndIsTheLightest) {
  const ColourScale scale = distributed({7, 7, 7});
  EXPECT_TRUE(std::all_of(scale.fclimit().begin(), scale.fclimit().end(), [](double f) { return f == 7; }));
  EXPECT_EQ(colour(scale, 7), (Colour{255, 255, 255}));
  EXPECT_EQ(scale.top(), 7);
}

TEST_F(ColourScaleTest, DistinctValuesGetEqualSharesWhateverTheirDistance) {
  const ColourScale scale = distributed({1000, -3, 5, 5, 5, 6});
  EXPECT_EQ(scale.fclimit()[0], -3);
  EXPECT_EQ(scale.fclimit()[240], -3);
  EXPECT_EQ(scale.fclimit()[241], 5);
  EXPECT_EQ(scale.fclimit()[480], 5);
  EXPECT_EQ(scale.fclimit()[481], 6);
  EXPECT_EQ(scale.fclimit()[720], 6);
  EXPECT_EQ(scale.fclimit()[721], 1000);
  EXPECT_EQ(scale.fclimit()[960], 1000);
  EXPECT_EQ(scale.top(), 1000);
  // Each value meets the last of its thresholds: 240/960 of the way, and so on.
  EXPECT_EQ(colour(scale, -3), (Colour{63, 63, 63}));
  EXPECT_EQ(colour(scale, 5), (Colour{127, 127, 127}));
  EXPECT_EQ(colour(scale, 6), (Colour{191, 191, 191}));
  EXPECT_EQ(colour(scale, 1000), (Colour{255, 255, 255}));
}

TEST_F(ColourScaleTest, MatchesTheLiteralEqualisationForAnyNumberOfValues) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> anywhere(-1, 1);
  for (const std::size_t count :
       {1U, 2U, 3U, 7U, 40U, 500U, 959U, 960U, 961U, 962U, 1920U, 5000U, 44444U, 500'000U}) {
    std::vector<double> values(count);
    for (double& value : values) value = anywhere(random);
    const std::vector<double> expected = literal_fclimit(values);
    const ColourScale scale = distributed(values);
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), scale.fclimit().begin())) << count;
    EXPECT_TRUE(std::is_sorted(scale.fclimit().begin(), scale.fclimit().end())) << count;
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ColourScaleTest, AnIndexBeyondTheTableIsReportedAndTheLastOne) {
  EXPECT_EQ(threshold_index(3, 320, messages), 960);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(threshold_index(3, 320.5, messages), 960);
  EXPECT_EQ(messages.texts(), Texts{"Set_equally_distributed_fclimit()\n961=i >= fclimit_count=961"});
}

TEST_F(ColourScaleTest, LinearThresholdsAreEvenlySpread) {
  ColourScale scale(ColourRamp(0, 0));
  scale.set_linear_fclimit(-10, 86);
  for (std::size_t i = 0; i < fclimit_count; ++i) {
    EXPECT_NEAR(scale.fclimit()[i], -10 + 0.1 * static_cast<double>(i), 1e-12);
  }
  EXPECT_EQ(scale.fclimit().front(), -10);
  EXPECT_EQ(scale.fclimit().back(), 86);
  EXPECT_EQ(scale.top(), 86);
  EXPECT_EQ(colour(scale, 38), (Colour{127, 127, 127}));
  EXPECT_EQ(colour(scale, -10), (Colour{0, 0, 0}));
}

TEST_F(ColourScaleTest, LinearThresholdsOfTheLargestValuesStayFinite) {
  ColourScale scale(ColourRamp(0, 0));
  scale.set_linear_fclimit(-1.7e308, 1.7e308);
  EXPECT_TRUE(std::is_sorted(scale.fclimit().begin(), scale.fclimit().end()));
  EXPECT_EQ(scale.fclimit()[480], 0);
  EXPECT_EQ(colour(scale, 0), (Colour{127, 127, 127}));
}

TEST_F(ColourScaleTest, ThresholdsFurtherApartThanTheLargestValueHaveColoursBetweenThem) {
  const ColourScale scale = distributed({-1.7e308, 1.7e308});
  EXPECT_EQ(colour(scale, 0), scale.ramp().at(480.5 / 960));
  EXPECT_EQ(colour(scale, -1.7e308), scale.ramp().at(480.0 / 960));
}

TEST_F(ColourScaleTest, BetweenTwoThresholdsTheColourFollowsTheValue) {
  const ColourScale scale = distributed({0, 1});
  // fclimit[480] = 0, fclimit[481] = 1: v = (480 + q) / 960.
  EXPECT_EQ(colour(scale, 0.999), scale.ramp().at(480.999 / 960));
  EXPECT_EQ(colour(scale, 0), scale.ramp().at(480.0 / 960));
}

TEST_F(ColourScaleTest, ValuesOutsideTheTableGetItsEndsAndAWarningBeyondRounding) {
  const ColourScale scale = distributed({2, 4});
  EXPECT_EQ(colour(scale, 4 + 1e-15), (Colour{255, 255, 255}));
  EXPECT_EQ(colour(scale, 2 - 1e-15), (Colour{0, 0, 0}));
  EXPECT_TRUE(messages.shown.empty()) << "a rounding error";
  EXPECT_EQ(colour(scale, 5), (Colour{255, 255, 255}));
  EXPECT_EQ(colour(scale, 1.5), (Colour{0, 0, 0}));
  EXPECT_EQ(messages.texts(),
            (Texts{"color_from_fcl_table: \n4=fclimit[fclimit_count-1] < littlesm(q)=4.99999999999989",
                   "color_from_fcl_table: fclimit[0]>littlegr(q)"}));
  EXPECT_EQ(messages.shown[0].kind, MessageKind::warning);
  messages.shown.clear();
  messages.set_wl(2);
  colour(scale, 5);
  colour(scale, 1.5);
  EXPECT_TRUE(messages.shown.empty()) << "from warning level 3 on";
}

TEST_F(ColourScaleTest, AColourWithoutReportsIsTheSame) {
  const ColourScale scale = distributed({-3, 0, 2, 4, 100});
  messages.set_wl(0);
  for (int i = -50; i < 1100; ++i) EXPECT_EQ(scale.colour_of(i / 10.0), colour(scale, i / 10.0));
}

TEST_F(ColourScaleTest, AnInvalidModeIsReportedWithEveryColour) {
  messages.set_wl(2);
  ColourScale scale(ColourRamp(9, 50));
  scale.set_linear_fclimit(0, 1);
  for (const double q : {-1.0, 0.3, 1.0}) {
    messages.shown.clear();
    EXPECT_EQ(colour(scale, q), (Colour{0, 0, 127}));
    EXPECT_EQ(messages.texts(), Texts{"clg2_from_01: invalid g2_colormode=9"}) << q;
  }
}

TEST(Tolerance, IsRelativeButForZero) {
  constexpr double eps = 2.220446049250313e-14;
  EXPECT_EQ(littlesm(2.0), 2 - 2 * eps);
  EXPECT_EQ(littlegr(2.0), 2 + 2 * eps);
  EXPECT_EQ(littlesm(-2.0), -2 - 2 * eps);
  EXPECT_EQ(littlegr(-2.0), -2 + 2 * eps);
  EXPECT_EQ(littlesm(0), -eps);
  EXPECT_EQ(littlegr(0), eps);
}

}  // namespace
}  // namespace kov
