#pragma once

#include <optional>
#include <string_view>

namespace kov {

/// Width and height of a picture in pixels, as a line of a script gives them.
struct PictureSize {
  int width = 1000;
  int height = 700;
  friend bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// Reads "1200x900": two integers from 0 to largest_picture_side. Nothing for any other text.
std::optional<PictureSize> parse_picture_size(std::string_view text);

}  // namespace kov
