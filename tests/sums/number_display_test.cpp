#include "sums/number_display.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"

namespace kov {
namespace {

TEST(NumberDisplay, FloatingDisplay) {
  struct Case {
    cotyp q;
    std::int32_t digits;
    const char* text;
  };
  // clang-format off
  const Case cases[] = {
      {cotyp(),                                7,  "0"},
      {cotyp(5),                               7,  "5"},
      {cotyp(1, 3, 0, 1),                      7,  "0.3333333"},
      {cotyp(-2, 3, 0, 1),                     3,  "-0.667"},
      {cotyp(0, 1, 1, 1),                      7,  "1i"},
      {cotyp(0, 1, -1, 3),                     4,  "-0.3333i"},
      {cotyp(1, 2, 3, 4),                      7,  "0.5+0.75i"},
      {cotyp(1, 3, -2, 1),                     7,  "0.3333333-2i"},
      {cotyp(12345678, 1, 0, 1),               7,  "1.234568E7"},
      {cotyp(12345678, 1, 0, 1),               8,  "12345678"},
      {cotyp::floating(1.5e-5, 0.0),           7,  "1.5E-5"},
      {cotyp::floating(0.0, 0.0),              7,  "0"},
      {cotyp::floating(-0.0, 2.0), 7, "2i"},
      {cotyp::floating(-0.0, -0.0), 7, "0"},
      {cotyp::floating(2.0 / 3.0, 1e20),       2,  "0.67+1E20i"},
      {cotyp(ratyp(1, 8), ratyp::floating(-0.1)), 15, "0.125-0.1i"},
      {cotyp(7, 4, 0, 1),                      1,  "2"},
      {cotyp(7, 4, 0, 1),                      0,  "2"},
      {cotyp(1, 3, 0, 1),                      INT32_MAX, "0.33333333333333331"},
  };
  // clang-format on
  for (const Case& c : cases) {
    EXPECT_EQ((NumberDisplay{.as_float = true, .digits = c.digits}.text(c.q)), c.text);
  }
}

TEST(NumberDisplay, ExactDisplayIsTheTextForm) {
  const NumberDisplay exact{.as_float = false, .digits = 2};
  EXPECT_EQ(exact.text(cotyp(1, 3, -2, 7)), "1/3-2/7i");
  EXPECT_EQ(exact.text(cotyp(0, 1, 1, 1)), "1i");
  EXPECT_EQ(exact.text(cotyp(ratyp(1, 3), ratyp::floating(0.125))), "1/3+0.125i");
  EXPECT_EQ(exact.text(cotyp(123456)), "123456");
}

TEST(NumberDisplay, IsReadFromTheParameters) {
  RecordingMessages messages;
  cphclass cph(messages);
  cph.InitPrgPar(WindowFacts{});
  EXPECT_TRUE(NumberDisplay::read(cph).as_float);
  EXPECT_EQ(NumberDisplay::read(cph).digits, 7);
  cph.setkmi_1("Sums_ShowAsFloat", 0);
  cph.setkmi_1("Sums_lt_precision", 3);
  EXPECT_FALSE(NumberDisplay::read(cph).as_float);
  EXPECT_EQ(NumberDisplay::read(cph).digits, 3);
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace kov
