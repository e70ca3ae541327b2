#include "graphs/g1_curves.h"

#include <span>

#include "numbers/cotyp.h"

namespace kov {
namespace {

std::span<double> columns(const G1Par& par, G1Curve& curve) {
  return std::span(curve.at).first(static_cast<std::size_t>(par.hpixcount));
}

template <class Function>
void for_each_curve(G1Par& par, const Function& function) {
  for (G1Range& range : par.range) {
    for (G1Curve& curve : range.curve) function(curve);
  }
}

void divide_by_count(G1Par& par) {
  for (G1Range& range : par.range) {
    if (range.count == 0) continue;
    for (G1Curve& curve : range.curve) {
      for (double& value : columns(par, curve)) value /= static_cast<double>(range.count);
    }
  }
}

void divide_by_range2(G1Par& par) {
  for (std::size_t quantity = 0; quantity < g1_quantity_count; ++quantity) {
    const G1Curve& divisor = par.range[1].curve[quantity];
    G1Curve& curve = par.range[0].curve[quantity];
    for (std::size_t column = 0; column < curve.at.size(); ++column) {
      curve.at[column] = divisor.at[column] == 0 ? 0 : curve.at[column] / divisor.at[column];
    }
  }
}

void find_y_interval(std::span<const double> values, G1Curve& curve) {
  for (const double value : values) require_finite(cotyp::floating(value, 0));
  const auto [min, max] = std::minmax_element(values.begin(), values.end());
  curve.min = *min;
  curve.max = *max;
}

void fill_zeros_from_left(std::span<double> values) {
  for (std::size_t column = 1; column < values.size(); ++column) {
    if (values[column] == 0) values[column] = values[column - 1];
  }
}

}  // namespace

void divide_curves(G1Par& par, std::int32_t divmode) {
  constexpr std::int32_t by_count = 1;
  constexpr std::int32_t by_range2 = 2;
  if (divmode == by_count) divide_by_count(par);
  if (divmode == by_range2) divide_by_range2(par);
}

void find_y_intervals(G1Par& par) {
  for_each_curve(par, [&](G1Curve& curve) { find_y_interval(columns(par, curve), curve); });
}

void treat_second_steps(G1Par& par, std::int32_t mode) {
  constexpr std::int32_t double_width = 1;
  constexpr std::int32_t fill_zeros = 2;
  for_each_curve(par, [&](G1Curve& curve) {
    if (mode == double_width) curve.double_width_from = second_steps_from(par, curve);
    if (mode == fill_zeros) fill_zeros_from_left(columns(par, curve));
  });
}

std::optional<int> second_steps_from(const G1Par& par, const G1Curve& curve) {
  if (par.pix_per_icoo < 1) return std::nullopt;
  std::array<int, 2> occupied{};
  for (std::int64_t x = par.xmin; x < par.xmax; ++x) {
    if (curve.at[par.column_of(x)] != 0) ++occupied[static_cast<std::size_t>((x - par.xmin) % 2)];
  }
  if (occupied[0] >= 2 && occupied[1] == 0) return 0;
  if (occupied[1] >= 2 && occupied[0] == 0) return 1;
  return std::nullopt;
}

}  // namespace kov
