#include "graphs/bars.h"

#include <cmath>

namespace kov {
namespace {

/// Every column, where a unit has less than one pixel.
std::vector<Bar> column_bars(const G1Par& par, const G1Curve& curve) {
  std::vector<Bar> bars;
  bars.reserve(static_cast<std::size_t>(par.hpixcount));
  for (int column = 0; column < par.hpixcount; ++column) {
    bars.push_back({.left = static_cast<double>(column),
                    .middle = column + 0.5,
                    .right = column + 1.0,
                    .value = curve.at[static_cast<std::size_t>(column)]});
  }
  return bars;
}

/// xmax has no column, since it lies on the image's right edge. No point has this x value, so its bar is zero
/// like that of xmin, unless zeros were filled from the left.
double value_at(const G1Par& par, const G1Curve& curve, std::int64_t x) {
  if (x < par.xmax) return curve.at[par.column_of(x)];
  const auto last = static_cast<std::size_t>(par.hpixcount - 1);
  return last == par.column_of(par.xmax - 1) ? 0 : curve.at[last];
}

/// Neighbours share the very same edge, since both compute it from the same half of a unit.
std::vector<Bar> unit_bars(const G1Par& par, const G1Curve& curve) {
  const int units = curve.double_width_from ? 2 : 1;
  const double half = units / 2.0;
  std::vector<Bar> bars;
  for (std::int64_t step = curve.double_width_from.value_or(0); step <= par.xcount(); step += units) {
    const auto u = static_cast<double>(step);
    const Bar bar{
        .left = std::max(std::round((u - half) * par.pix_per_icoo), 0.0),
        .middle = u * par.pix_per_icoo,
        .right = std::min(std::round((u + half) * par.pix_per_icoo), static_cast<double>(par.hpixcount)),
        .value = value_at(par, curve, par.xmin + step)};
    if (bar.left < bar.right) bars.push_back(bar);
  }
  return bars;
}

void append(std::vector<CurvePoint>& line, const CurvePoint& point) {
  if (line.empty() || line.back() != point) line.push_back(point);
}

std::vector<CurvePoint> outline(const std::vector<Bar>& bars, double width) {
  std::vector<CurvePoint> line;
  double x = 0;
  for (const Bar& bar : bars) {
    if (bar.left > x) {
      append(line, {x, 0});
      append(line, {bar.left, 0});
    }
    append(line, {bar.left, bar.value});
    append(line, {bar.right, bar.value});
    x = bar.right;
  }
  if (x < width) {
    append(line, {x, 0});
    append(line, {width, 0});
  }
  return line;
}

}  // namespace

std::vector<Bar> bars_of(const G1Par& par, const G1Curve& curve) {
  return par.pix_per_icoo < 1 ? column_bars(par, curve) : unit_bars(par, curve);
}

std::vector<CurvePoint> line_of_bars(const std::vector<Bar>& bars, double width, bool vertical_edges) {
  if (vertical_edges) return outline(bars, width);
  std::vector<CurvePoint> line;
  line.reserve(bars.size());
  for (const Bar& bar : bars) line.push_back({bar.middle, bar.value});
  return line;
}

}  // namespace kov
