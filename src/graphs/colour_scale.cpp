#include "graphs/colour_scale.h"

#include <utility>

#include "graphs/distinct_values.h"
#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr int shown_digits = 15;
constexpr std::size_t top_limit = fclimit_count - 1;

std::string text(double value) { return floating_text(value, shown_digits); }

}  // namespace

int threshold_index(double k, double step, Messages& messages) {
  const int index = static_cast<int>(k * step);
  if (index < fclimit_count) return index;
  messages.error("Set_equally_distributed_fclimit()\n" + int_text(index) +
                 "=i >= fclimit_count=" + int_text(fclimit_count));
  return fclimit_count - 1;
}

void ColourScale::Set_equally_distributed_fclimit(std::vector<double> values, Messages& messages) {
  const std::vector<double> Vmap = distinct_values(std::move(values));
  const double step = (fclimit_count - 1) / static_cast<double>(Vmap.size());
  fclimit_[0] = Vmap.front();
  std::size_t prev = 1;
  double k = 0;
  for (const double value : Vmap) {
    // Most of many values are the last one of no threshold.
    if (++k * step < static_cast<double>(prev)) continue;
    const auto index = static_cast<std::size_t>(threshold_index(k, step, messages));
    for (; prev <= index; ++prev) fclimit_[prev] = value;
  }
  for (; prev <= top_limit; ++prev) fclimit_[prev] = fclimit_[prev - 1];
  top_ = Vmap.back();
}

void ColourScale::set_linear_fclimit(double smallest, double largest) {
  for (std::size_t i = 0; i <= top_limit; ++i) {
    fclimit_[i] = std::lerp(smallest, largest, static_cast<double>(i) / static_cast<double>(top_limit));
  }
  top_ = largest;
}

Colour ColourScale::colour_between(std::size_t i, double q) const {
  const double low = fclimit_[i];
  const double high = fclimit_[i + 1];
  double share = (q - low) / (high - low);
  // The distance of two doubles may be more than the largest one.
  if (!std::isfinite(high - low)) share = (q / 2 - low / 2) / (high / 2 - low / 2);
  return ramp_.at((static_cast<double>(i) + share) / (fclimit_count - 1));
}

Colour ColourScale::colour_of(double q) const {
  if (q >= fclimit_[top_limit]) return ramp_.at(1);
  if (q < fclimit_[0]) return ramp_.at(0);
  std::size_t lo = 0;
  std::size_t hi = top_limit;
  while (hi - lo > 1) {
    const std::size_t mid = (lo + hi) / 2;
    (q < fclimit_[mid] ? hi : lo) = mid;
  }
  return colour_between(lo, q);
}

Colour ColourScale::color_from_fcl_table(double q, Messages& messages) const {
  if (littlesm(q) > fclimit_[top_limit]) {
    messages.minor_warning("color_from_fcl_table: \n" + text(fclimit_[top_limit]) +
                           "=fclimit[fclimit_count-1] < littlesm(q)=" + text(littlesm(q)));
  }
  if (littlegr(q) < fclimit_[0]) messages.minor_warning("color_from_fcl_table: fclimit[0]>littlegr(q)");
  if (!ramp_.valid()) messages.error(ramp_.complaint());
  return colour_of(q);
}

}  // namespace kov
