#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kov {

/// The value in general format with so many significant digits (1 ... 17 are useful; more are taken
/// as 17, fewer as 1): trailing zeros dropped, exponent as in "1.5E-5" and "1E20" (capital E, no plus
/// sign, no padding). A value whose rounded text would lie beyond the largest double is rounded
/// towards zero instead, so the text of every finite value parses.
std::string floating_text(double value, int digits);

/// The value in the same shape with 15 digits, or with as many more as it takes to read back as the very
/// same value: "0.1", "0.30000000000000004". For tables that others compute with.
std::string exact_text(double value);

/// Reads a whole text of sign, digits, point and exponent ("E" or "e"). Nothing for any other text
/// (the words inf and nan among them) and for a value beyond the largest double; a value below the
/// smallest double reads as zero.
std::optional<double> parse_floating(std::string_view text);

}  // namespace kov
