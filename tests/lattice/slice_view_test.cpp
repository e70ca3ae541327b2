#include "lattice/slice_view.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

TEST(SliceView, ShowsK1AgainstNAtTheOriginAtFirst) {
  const SliceView view;
  EXPECT_EQ(view.xdim(), 1);
  EXPECT_EQ(view.ydim(), 0);
  EXPECT_EQ(view.offset(), Lk{});
}

struct AxisCase {
  const char* name;
  bool x;
  int position;
  bool taken;
  int xdim;
  int ydim;
};

// clang-format off
const AxisCase axis_cases[] = {  // from x = 1, y = 0
    {"x takes a free position",       true,  5,  true,  5,  0},
    {"x takes the lattice index",     true,  31, true,  31, 0},
    {"x takes its own position",      true,  1,  true,  1,  0},
    {"x takes that of y",             true,  0,  true,  0,  1},
    {"y takes a free position",       false, 5,  true,  1,  5},
    {"y takes its own position",      false, 0,  true,  1,  0},
    {"y takes that of x",             false, 1,  true,  0,  1},
    {"x: below all positions",        true,  -1, false, 1,  0},
    {"x: above all positions",        true,  32, false, 1,  0},
    {"y: below all positions",        false, -1, false, 1,  0},
    {"y: above all positions",        false, 32, false, 1,  0},
};
// clang-format on

TEST(SliceView, SwapsTheAxesRatherThanNamingOnePositionTwice) {
  for (const AxisCase& row : axis_cases) {
    SliceView view;
    EXPECT_EQ(row.x ? view.set_xdim(row.position) : view.set_ydim(row.position), row.taken) << row.name;
    EXPECT_EQ(view.xdim(), row.xdim) << row.name;
    EXPECT_EQ(view.ydim(), row.ydim) << row.name;
  }
}

TEST(SliceView, TakesOffsetsOneByOneAndAsAKey) {
  SliceView view;
  view.set_offset(31, 4);
  EXPECT_EQ(view.offset(), Lk::at(4, 0));
  view.set_offset(Lk::at(1, 2, 3));
  EXPECT_EQ(view.offset(), Lk::at(1, 2, 3));
}

TEST(SliceView, ReferenceKeyIsAllZeros) { EXPECT_EQ(SliceView::reference_key(), Lk{}); }

struct DefaultCase {
  const char* name;
  int xdim_default;
  int ydim_default;
  int xdim;
  int ydim;
};

// clang-format off
const DefaultCase default_cases[] = {
    {"as the catalogue is defined",   1,  0,  1,  0},
    {"other axes",                    0,  31, 0,  31},
    {"both n: y takes k1",            0,  0,  0,  1},
    {"both k1: y takes n",            1,  1,  1,  0},
    {"both l: y takes n",             31, 31, 31, 0},
    {"x is no position",              32, 5,  1,  5},
    {"y is no position",              5,  -1, 5,  0},
    {"x is no position, y is k1",     99, 1,  1,  0},
    {"y is no position, x is n",      0,  99, 0,  1},
};
// clang-format on

class SliceViewDefault : public ::testing::Test {
 protected:
  SliceViewDefault() { cph_.InitPrgPar(WindowFacts{}); }

  /// As a hand-edited configuration line does, which may widen its bounds.
  void configure(const char* keyword, int value) {
    const std::string line = int_text(value) + " -2147483648 2147483647 0";
    Tokens rest(line);
    ASSERT_EQ(cph_.read_configuration_line(keyword, rest, true), "");
    ASSERT_EQ(cph_.kmi(keyword), value);
  }

  RecordingMessages messages_;
  cphclass cph_{messages_};
};

TEST_F(SliceViewDefault, TakesTheAxesFromTheParameters) {
  for (const DefaultCase& row : default_cases) {
    configure("Slq_xdim_default", row.xdim_default);
    configure("Slq_ydim_default", row.ydim_default);
    SliceView view;
    view.set_xdim(7);
    view.set_default(cph_);
    EXPECT_EQ(view.xdim(), row.xdim) << row.name;
    EXPECT_EQ(view.ydim(), row.ydim) << row.name;
  }
}

TEST_F(SliceViewDefault, TakesTheAxesOffsetsFromTheParametersAndClearsTheOthers) {
  cph_.setkmi_1("Slq_xdim_default", 2);
  cph_.setkmi_1("Slq_ydim_default", 31);
  cph_.setkmi_1("Slq_xoffset_default", -10);
  cph_.setkmi_1("Slq_yoffset_default", 7);
  SliceView view;
  view.set_offset(Lk::filled(99));
  view.set_default(cph_);
  Lk expected;
  expected.coo[2] = -10;
  expected.coo[31] = 7;
  EXPECT_EQ(view.offset(), expected);
  EXPECT_TRUE(messages_.shown.empty());
}

}  // namespace
}  // namespace kov
