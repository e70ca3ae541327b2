#pragma once

#include <string>

namespace kov {

// A benchmark's figures are counters named by their unit ("ns/contribution"). One whose name ends with
// literal_suffix is the baseline of the benchmark without it; the table sets the two side by side.

inline constexpr const char* literal_suffix = " (literal)";

inline std::string literal_name(const std::string& name) { return name + literal_suffix; }

}  // namespace kov
