#pragma once

#include <array>
#include <cstdint>

namespace kov {

/// Number of curves that the stacked graph has at most.
inline constexpr int nyabs_max = 99;

/// How a curve of the stacked graph is drawn.
enum CurveState : std::int8_t { curve_unselected = 0, curve_blue = 1, curve_red = 2 };

/// The state of each curve, the frontal one first.
using CurveStates = std::array<std::int8_t, nyabs_max>;

/// What follows a change of Graph2a_ny: for a positive one curve 1 becomes blue, curve ny red and those
/// between them unselected; for any other only curve 1 becomes blue.
void reset_curve_states(CurveStates& states, std::int32_t ny);

/// |ny|, but not more curves than have states.
int curve_count(std::int32_t ny);

}  // namespace kov
