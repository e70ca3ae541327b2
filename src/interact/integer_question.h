#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "interact/questions.h"
#include "text/integers.h"

namespace kov {

/// Inclusive bounds of an integer that is asked for; the sentinels mean unbounded.
struct IntegerBounds {
  std::int32_t min = lowest_int;
  std::int32_t max = highest_int;

  bool contains(std::int32_t value) const { return min <= value && value <= max; }
};

/// The text behind "enter integer i": empty when unbounded, else " [i<=max]", " [min<=i]" or
/// " [min<=i<=max]" with the name of the integer that is asked for.
std::string range_text(const IntegerBounds& bounds, char name);

/// The integer input dialog: caption, prompt + "\nenter integer NAME" + range text, the current value
/// preset. Asks again until the text is an integer within the bounds; nothing when cancelled.
std::optional<std::int32_t> ask_integer(Questions& questions, const std::string& caption,
                                        const std::string& prompt, std::int32_t current,
                                        const IntegerBounds& bounds, char name = 'i');

/// What a pair has to fulfil besides its bounds.
using PairCondition = std::function<bool(std::int32_t a, std::int32_t b)>;

/// Likewise for two integers, typed as "a,b": prompt + "\nenter the two integers   a,b". Blanks around
/// the numbers do not count. With a condition, pairs that do not fulfil it are refused too.
std::optional<std::array<std::int32_t, 2>> ask_two_integers(Questions& questions, const std::string& caption,
                                                            const std::string& prompt,
                                                            const std::string& preset,
                                                            const IntegerBounds& bounds = {},
                                                            const PairCondition& condition = nullptr);

/// Likewise for three, "a,b,c": prompt + "\nenter the three integers   a,b,c".
std::optional<std::array<std::int32_t, 3>> ask_three_integers(Questions& questions,
                                                              const std::string& caption,
                                                              const std::string& prompt,
                                                              const std::string& preset,
                                                              const IntegerBounds& bounds = {});

}  // namespace kov
