#include "graphs/curve_style.h"

#include <array>

#include "graphs/g1par.h"

namespace kov {
namespace {

// Found by a search for ten colours whose smallest distance is as large as can be, as seen with all cones
// and with any one kind of them missing.
// clang-format off
constexpr std::array<Colour, g1_curve_count> curve_colours{{
    { 90,  19, 245},  // SR1: qre
    {180,  38,   0},  // SR1: qim
    {  6, 194, 141},  // SR1: qq
    {255, 137,   4},  // SR1: qa
    {  0,   0,  44},  // SR1: cntAt
    { 25,  99, 101},  // SR2: qre
    {182, 107, 255},  // SR2: qim
    { 64,   9,   0},  // SR2: qq
    {156, 169, 216},  // SR2: qa
    { 87,   0, 141},  // SR2: cntAt
}};
// clang-format on

constexpr std::array<LineStyle, g1_quantity_count> styles = {LineStyle::solid, LineStyle::dashed,
                                                             LineStyle::dotted, LineStyle::dash_dotted,
                                                             LineStyle::dash_dot_dotted};

}  // namespace

CurveStyle curve_style(std::size_t index, bool black_and_white) {
  const bool of_range2 = index >= g1_quantity_count;
  if (black_and_white) {
    return {
        .colour = Colour{0, 0, 0}, .width = of_range2 ? 3 : 1.5, .style = styles[index % g1_quantity_count]};
  }
  return {.colour = curve_colours[index],
          .width = 1.5,
          .style = of_range2 ? LineStyle::dashed : LineStyle::solid};
}

Colour tinted(const Colour& colour) {
  const auto lighter = [](int channel) { return static_cast<std::uint8_t>(255 - (255 - channel) / 5); };
  return {lighter(colour.r), lighter(colour.g), lighter(colour.b)};
}

}  // namespace kov
