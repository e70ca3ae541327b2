#include "graphs/axis_ticks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Indices of ticks beyond this are no longer exact enough for a step to be told from the next one.
constexpr double largest_index = 1E12;

constexpr int most_digits = 17;

/// mantissa * 10^exponent, rounded once.
double decimal(std::int64_t mantissa, int exponent) {
  return parse_floating(int_text(mantissa) + "E" + int_text(exponent)).value_or(0.0);
}

/// An interval of any finite ends: differences are formed from halves, which never overflow.
class Interval {
 public:
  Interval(double from, double to) : from_(from), to_(to) {}

  double half_length() const { return to_ / 2 - from_ / 2; }
  double place(double value) const { return std::clamp((value / 2 - from_ / 2) / half_length(), 0.0, 1.0); }
  /// Never falls where it should rise, however few doubles there are between the ends.
  double value(double place) const {
    if (place == 1) return to_;
    const double half = half_length() * place;
    return std::clamp(from_ + half + half, low(), high());
  }
  double low() const { return std::min(from_, to_); }
  double high() const { return std::max(from_, to_); }

 private:
  double from_;
  double to_;
};

/// A distance between ticks, mantissa * 10^exponent, and the indices of its ticks in an interval.
struct Steps {
  std::int64_t mantissa = 1;
  int exponent = 0;
  std::int64_t first = 0;
  std::int64_t last = -1;

  std::int64_t count() const { return last - first + 1; }
  double value(std::int64_t index) const { return decimal(index * mantissa, exponent); }
};

std::optional<Steps> steps_in(const Interval& interval, std::int64_t mantissa, int exponent) {
  const double step = decimal(mantissa, exponent);
  if (step == 0.0) return std::nullopt;
  const double low = interval.low() / step;
  const double high = interval.high() / step;
  if (!(std::abs(low) < largest_index && std::abs(high) < largest_index)) return std::nullopt;
  // An end that should be a multiple may miss it by rounding.
  const double tolerance = (high - low) * 1E-9;
  return Steps{mantissa, exponent, static_cast<std::int64_t>(std::ceil(low - tolerance)),
               static_cast<std::int64_t>(std::floor(high + tolerance))};
}

/// The steps whose ticks are nearest to the wanted number; of equal ones the narrower.
std::optional<Steps> best_steps(const Interval& interval, const TickRule& rule) {
  const double half_step = std::abs(interval.half_length()) / rule.wanted;
  if (half_step == 0.0) return std::nullopt;
  const int exponent = static_cast<int>(std::floor(std::log10(half_step) + std::log10(2.0)));
  std::optional<Steps> best;
  for (int e = exponent; e <= exponent + 1; ++e) {
    for (const std::int64_t mantissa : {1, 2, 5}) {
      if (rule.whole && e < 0) continue;
      const auto steps = steps_in(interval, mantissa, e);
      if (!steps) continue;
      if (!best || std::abs(steps->count() - rule.wanted) < std::abs(best->count() - rule.wanted))
        best = steps;
    }
  }
  if (!best && rule.whole) best = steps_in(interval, 1, 0);
  return best;
}

std::vector<Tick> round_ticks(const Interval& interval, const Steps& steps) {
  std::vector<Tick> ticks;
  for (std::int64_t index = steps.first; index <= steps.last; ++index) {
    const double value = steps.value(index);
    ticks.push_back({value, interval.place(value), index});
  }
  return ticks;
}

std::vector<Tick> equal_ticks(const Interval& interval, const TickRule& rule) {
  std::vector<Tick> ticks;
  for (int i = 0; i < rule.wanted; ++i) {
    const double place = rule.wanted == 1 ? 0.5 : static_cast<double>(i) / (rule.wanted - 1);
    double value = interval.value(place);
    if (rule.whole) value = std::nearbyint(value);
    if (value < interval.low() || value > interval.high()) continue;
    if (!ticks.empty() && value == ticks.back().value) continue;
    ticks.push_back({value, rule.whole ? interval.place(value) : place, i});
  }
  return ticks;
}

/// The number of a tick, and whether it is near enough to its value.
struct Number {
  std::string text;
  bool close = false;
};

/// Of more digits than every double has, only those that tell it from its neighbours.
std::string digits_text(double value, int digits) {
  constexpr int certain_digits = 15;
  std::string text = floating_text(value, std::min(digits, certain_digits));
  if (digits <= certain_digits || parse_floating(text) == value) return text;
  return floating_text(value, digits);
}

/// Numbers below a million without an exponent, however few their digits.
std::string plain_text(double value, int digits) {
  std::string text = digits_text(value, digits);
  if (text.find('E') == std::string::npos || !(std::abs(value) >= 1 && std::abs(value) < 1E6)) return text;
  return int_text(std::llround(parse_floating(text).value_or(value)));
}

Number number_of(double value, int digits, double tolerance) {
  std::string text = plain_text(value, digits);
  const double read = parse_floating(text).value_or(value);
  return {std::move(text), std::abs(read / 2 - value / 2) <= tolerance / 2};
}

/// A twentieth of the smallest distance between neighbours.
double tolerance_of(const std::vector<Tick>& ticks) {
  double smallest = std::abs(ticks.front().value) / 100;
  for (std::size_t i = 1; i < ticks.size(); ++i) {
    const double half = std::abs(ticks[i].value / 2 - ticks[i - 1].value / 2);
    smallest = i == 1 ? half : std::min(smallest, half);
  }
  return smallest / 10;
}

}  // namespace

std::vector<Tick> axis_ticks(double from, double to, const TickRule& rule) {
  if (rule.wanted < 1 || !std::isfinite(from) || !std::isfinite(to)) return {};
  const Interval interval(from, to);
  if (interval.half_length() == 0.0) {
    if (rule.whole && from != std::nearbyint(from)) return {};
    return {{from, 0.5, 0}};
  }
  const auto steps = rule.round_values ? best_steps(interval, rule) : std::nullopt;
  if (!steps) return equal_ticks(interval, rule);
  std::vector<Tick> ticks = round_ticks(interval, *steps);
  if (from > to) std::ranges::reverse(ticks);
  return ticks;
}

std::vector<std::string> tick_numbers(const std::vector<Tick>& ticks, bool whole, int digits,
                                      const std::function<bool(const std::string&)>& fits) {
  if (ticks.empty()) return {};
  const double tolerance = tolerance_of(ticks);
  const auto numbers = [&](int count) {
    std::vector<Number> all;
    all.reserve(ticks.size());
    for (const Tick& tick : ticks) all.push_back(number_of(tick.value, count, tolerance));
    return all;
  };
  int count = whole ? most_digits : std::clamp(digits, 1, most_digits);
  std::vector<Number> written = numbers(count);
  while (count < most_digits && !std::ranges::all_of(written, &Number::close)) written = numbers(++count);
  const auto fit = [&](const Number& number) { return fits(number.text); };
  while (count > 1 && !std::ranges::all_of(written, fit)) written = numbers(--count);
  std::vector<std::string> texts;
  texts.reserve(written.size());
  for (Number& number : written) {
    texts.push_back(number.close && fit(number) ? std::move(number.text) : std::string());
  }
  return texts;
}

std::string widest_number(int digits) {
  return "-8." + std::string(static_cast<std::size_t>(std::clamp(digits, 2, most_digits) - 1), '8') + "E-308";
}

}  // namespace kov
