#include "batch/picture_size.h"

#include "pictures/picture.h"
#include "text/integers.h"

namespace kov {
namespace {

/// An unsigned side: a sign is no part of a size.
std::optional<int> parse_side(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) return std::nullopt;
  const auto side = parse_int32(text);
  if (!side || *side > largest_picture_side) return std::nullopt;
  return *side;
}

}  // namespace

std::optional<PictureSize> parse_picture_size(std::string_view text) {
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return std::nullopt;
  const auto width = parse_side(text.substr(0, cross));
  const auto height = parse_side(text.substr(cross + 1));
  if (!width || !height) return std::nullopt;
  return PictureSize{*width, *height};
}

}  // namespace kov
