#pragma once

#include <cstdint>

namespace kov {

/// What the catalogue takes from the main window when it is defined; the defaults serve where there is
/// no window. Pixels, and the number of pages.
struct WindowFacts {
  std::int32_t height = 700;
  std::int32_t width = 1000;
  std::int32_t top = 0;
  std::int32_t left = 0;
  std::int32_t page_count = 9;
};

}  // namespace kov
