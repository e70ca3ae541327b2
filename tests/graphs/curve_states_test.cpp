#include "graphs/curve_states.h"

#include <gtest/gtest.h>

#include <string>

#include "text/integers.h"

namespace kov {
namespace {

/// The states after a reset of states that were all 2, up to the one before the last that is still 2.
std::string reset_from_red(std::int32_t ny) {
  CurveStates states;
  states.fill(2);
  reset_curve_states(states, ny);
  std::string text;
  for (const std::int8_t state : states) text += int_text(state);
  const std::size_t last = text.find_last_not_of('2');
  return text.substr(0, last + 1) + "...";
}

TEST(CurveStates, APositiveNyGivesABlueFirstAndARedLastCurve) {
  EXPECT_EQ(reset_from_red(5), "1000...");
  EXPECT_EQ(reset_from_red(2), "1...");
  EXPECT_EQ(reset_from_red(1), "1...");
  CurveStates states{};
  reset_curve_states(states, 5);
  EXPECT_EQ(states[4], 2);
  EXPECT_EQ(states[5], 0);
  reset_curve_states(states, 2);
  EXPECT_EQ(states[1], 2);
  reset_curve_states(states, 1);
  EXPECT_EQ(states[0], 1);
  EXPECT_EQ(states[1], 2) << "of no curve now";
}

TEST(CurveStates, ANegativeNySetsTheFirstCurveAlone) {
  EXPECT_EQ(reset_from_red(-5), "1...");
  EXPECT_EQ(reset_from_red(0), "1...");
}

TEST(CurveStates, NoResetWritesBeyondTheStates) {
  CurveStates states{};
  for (const std::int32_t ny : {99, 100, 150, highest_int}) {
    states.fill(1);
    reset_curve_states(states, ny);
    EXPECT_EQ(states[0], 1);
    EXPECT_EQ(states[50], 0);
    EXPECT_EQ(states[98], 2);
  }
  states.fill(0);
  reset_curve_states(states, lowest_int);
  EXPECT_EQ(states[0], 1);
  EXPECT_EQ(states[98], 0);
}

TEST(CurveStates, TheirCountIsTheSizeOfNyWithinTheStates) {
  EXPECT_EQ(curve_count(0), 0);
  EXPECT_EQ(curve_count(-3), 3);
  EXPECT_EQ(curve_count(99), 99);
  EXPECT_EQ(curve_count(100), 99);
  EXPECT_EQ(curve_count(lowest_int), 99);
}

}  // namespace
}  // namespace kov
