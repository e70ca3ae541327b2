#include "graphs/colour_ramp.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/recording_messages.h"

namespace kov {

static void PrintTo(const Colour& colour, std::ostream* out) {
  *out << "(" << int{colour.r} << ", " << int{colour.g} << ", " << int{colour.b} << ")";
}

namespace {

struct RampCase {
  int mode;
  int white_percent;
  double v;
  Colour colour;
};

class RampTest : public testing::TestWithParam<RampCase> {};

TEST_P(RampTest, GivesTheColourOfAPlace) {
  RecordingMessages messages;
  const auto& [mode, white_percent, v, colour] = GetParam();
  EXPECT_EQ(clg2_from_01(ColourRamp(mode, white_percent), v, messages), colour) << mode << " at " << v;
  EXPECT_TRUE(messages.shown.empty());
}

constexpr double third = 1.0 / 3;

// clang-format off
INSTANTIATE_TEST_SUITE_P(ColourRamp, RampTest, testing::Values(
    RampCase{0, 0,   0,     {0, 0, 0}},
    RampCase{0, 0,   0.5,   {127, 127, 127}},
    RampCase{0, 0,   1,     {255, 255, 255}},
    RampCase{0, 25,  0,     {63, 63, 63}},        // 25 * 255 / 100 without remainder
    RampCase{0, 25,  0.5,   {159, 159, 159}},     // 192 * 0.5 + 63
    RampCase{0, 100, 0.5,   {255, 255, 255}},
    RampCase{1, 0,   0,     {0, 0, 0}},
    RampCase{1, 0,   0.25,  {191, 0, 0}},
    RampCase{1, 0,   third, {255, 0, 0}},         // the lower band has the boundary
    RampCase{1, 0,   0.5,   {255, 127, 0}},
    RampCase{1, 0,   2 * third, {255, 255, 0}},
    RampCase{1, 0,   0.75,  {255, 255, 63}},
    RampCase{1, 0,   1,     {255, 255, 255}},
    RampCase{1, 25,  0,     {63, 0, 0}},
    RampCase{1, 25,  0.5,   {255, 159, 0}},
    RampCase{1, 100, 0.1,   {255, 0, 0}},         // constant in each band
    RampCase{1, 100, 0.3,   {255, 0, 0}},
    RampCase{1, 100, 0.5,   {255, 255, 0}},
    RampCase{1, 100, 0.9,   {255, 255, 255}},
    RampCase{2, 0,   0.25,  {0, 191, 0}},
    RampCase{2, 0,   third, {0, 255, 0}},
    RampCase{2, 0,   0.5,   {0, 255, 127}},
    RampCase{2, 0,   2 * third, {0, 255, 255}},
    RampCase{2, 0,   0.75,  {63, 255, 255}},
    RampCase{2, 0,   1,     {255, 255, 255}},
    RampCase{3, 0,   0.25,  {0, 0, 191}},
    RampCase{3, 0,   third, {0, 0, 255}},
    RampCase{3, 0,   0.5,   {127, 0, 255}},
    RampCase{3, 0,   2 * third, {255, 0, 255}},
    RampCase{3, 0,   0.75,  {255, 63, 255}},
    RampCase{3, 0,   1,     {255, 255, 255}}));
// clang-format on

TEST(ColourRamp, AnInvalidModeIsReportedAndGivesTheWhiteOffset) {
  for (const int mode : {-1, 4}) {
    RecordingMessages messages;
    EXPECT_EQ(clg2_from_01(ColourRamp(mode, 25), 0.7, messages), (Colour{0, 0, 63}));
    EXPECT_EQ(messages.texts(), std::vector<std::string>{"clg2_from_01: invalid g2_colormode=" +
                                                         std::string(mode < 0 ? "-1" : "4")});
  }
}

TEST(ColourRamp, IsReadFromTheParameters) {
  RecordingMessages messages;
  cphclass cph(messages);
  cph.InitPrgPar(WindowFacts{});
  EXPECT_EQ(ColourRamp::read(cph).at(0), (Colour{63, 63, 63}));
  cph.setkmi_1("Graph2_color_mode", 2);
  cph.setkmi_1("Graph2_color_white_offset", 0);
  EXPECT_EQ(ColourRamp::read(cph).at(0.25), (Colour{0, 191, 0}));
}

TEST(ColourRamp, WhiteBeyondAllBoundsStaysAColour) {
  RecordingMessages messages;
  cphclass cph(messages);
  cph.InitPrgPar(WindowFacts{});
  Tokens line(" 2000000000 0 2000000000 0");
  ASSERT_EQ(cph.read_configuration_line("Graph2_color_white_offset", line, true), "");
  EXPECT_EQ(ColourRamp::read(cph).at(0), (Colour{255, 255, 255}));
}

}  // namespace
}  // namespace kov
