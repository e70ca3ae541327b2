#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kov {

/// A place on an axis that gets a line, and perhaps a number.
struct Tick {
  double value = 0;
  /// Where it is between the ends of the axis, 0 ... 1.
  double place = 0;
  /// Counts the ticks; for round values it is the value in steps, so that whoever shows only every second
  /// or fifth number shows the rounder ones.
  std::int64_t index = 0;
};

/// What ticks are placed by.
struct TickRule {
  /// About so many; none for 0.
  int wanted = 5;
  /// Only whole numbers.
  bool whole = false;
  /// At 1, 2 or 5 times a power of ten, instead of equal divisions from end to end.
  bool round_values = true;
};

/// The ticks of an axis whose ends have these values, from the first end on. Round values are as near to
/// the wanted number as their steps allow; equal divisions are exactly so many (whole ones perhaps fewer,
/// one alone in the middle). Doubles too close together for round steps are divided equally. An axis with
/// both ends at one value has a tick in the middle; one with an end that is not finite has none.
std::vector<Tick> axis_ticks(double from, double to, const TickRule& rule);

/// The numbers at these ticks, which are in order. They have so many significant digits, more where a number
/// would otherwise be further from its tick than a twentieth of the distance to the next one, and fewer
/// where one does not fit; whole ones are written in full. What is then still too far off, or does not fit,
/// is an empty text: no number is wrong.
std::vector<std::string> tick_numbers(const std::vector<Tick>& ticks, bool whole, int digits,
                                      const std::function<bool(const std::string&)>& fits);

/// A text as wide as any number of so many digits can be, for keeping room before the values are known.
std::string widest_number(int digits);

}  // namespace kov
