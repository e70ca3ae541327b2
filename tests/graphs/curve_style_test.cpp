#include "graphs/curve_style.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "graphs/g1par.h"

namespace kov {
namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

/// Linear light of a channel.
double linear(int channel) {
  const double c = channel / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

Triple light(const Colour& colour) { return {linear(colour.r), linear(colour.g), linear(colour.b)}; }

Triple times(const Matrix& matrix, const Triple& v) {
  Triple result{};
  for (std::size_t i = 0; i < 3; ++i) {
    result[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
  }
  return result;
}

Triple clipped(Triple v) {
  for (double& x : v) x = std::clamp(x, 0.0, 1.0);
  return v;
}

/// Lightness and the two opponent colours, in which distances are about as large as they look.
Triple lab(const Triple& rgb) {
  constexpr Matrix to_xyz{{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};
  const Triple xyz = times(to_xyz, rgb);
  const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
  const double x = f(xyz[0] / 0.9505);
  const double y = f(xyz[1]);
  const double z = f(xyz[2] / 1.089);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double distance(const Triple& a, const Triple& b) {
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

/// How linear light is seen: with all cones, and without those for long, middle and short waves.
// clang-format off
constexpr std::array<Matrix, 4> eyes{{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{ 0.152286,  1.052583, -0.204868}, { 0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{ 0.367322,  0.860646, -0.227968}, { 0.280085, 0.672501, 0.047413}, {-0.011820,  0.042940, 0.968881}}},
    {{{ 1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, { 0.004733,  0.691367, 0.303900}}},
}};
// clang-format on

/// A distance of 2 can just be seen, side by side; lines in a legend want far more.
TEST(CurveStyle, ColoursKeepApartForEveryEye) {
  for (const Matrix& eye : eyes) {
    for (std::size_t a = 0; a < g1_curve_count; ++a) {
      for (std::size_t b = 0; b < a; ++b) {
        const auto seen = [&](std::size_t index) {
          return lab(clipped(times(eye, light(curve_style(index, false).colour))));
        };
        EXPECT_GT(distance(seen(a), seen(b)), 25) << a << ' ' << b;
      }
    }
  }
}

TEST(CurveStyle, ColoursStandOutFromPaper) {
  for (std::size_t index = 0; index < g1_curve_count; ++index) {
    const Triple rgb = light(curve_style(index, false).colour);
    const double luminance = 0.2126 * rgb[0] + 0.7152 * rgb[1] + 0.0722 * rgb[2];
    EXPECT_GT(1.05 / (luminance + 0.05), 2) << index;
  }
}

TEST(CurveStyle, BlackAndWhiteTellsAllCurvesApartByTheirLines) {
  std::set<std::pair<double, LineStyle>> lines;
  for (std::size_t index = 0; index < g1_curve_count; ++index) {
    const CurveStyle style = curve_style(index, true);
    EXPECT_EQ(style.colour, (Colour{0, 0, 0}));
    lines.insert({style.width, style.style});
  }
  EXPECT_EQ(lines.size(), g1_curve_count);
}

TEST(CurveStyle, ATintIsLighterAndNotWhite) {
  EXPECT_EQ(tinted({255, 255, 255}), (Colour{255, 255, 255}));
  EXPECT_EQ(tinted({0, 100, 255}), (Colour{204, 224, 255}));
}

}  // namespace
}  // namespace kov
