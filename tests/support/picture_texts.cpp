#include "support/picture_texts.h"

#include <cstddef>
#include <vector>

namespace kov {
namespace {

/// Sums of halves may miss an edge by rounding.
constexpr double rounding = 1E-6;

double start_of(Anchor anchor, double width) {
  switch (anchor) {
    case Anchor::left:
      return 0;
    case Anchor::centre:
      return -width / 2;
    case Anchor::right:
      return -width;
  }
  return 0;
}

bool inside(const TextExtent& text, const Picture& picture) {
  return text.left >= -rounding && text.top >= -rounding && text.right <= picture.width + rounding &&
         text.bottom <= picture.height + rounding;
}

bool overlap(const TextExtent& a, const TextExtent& b) {
  return a.left + rounding < b.right && b.left + rounding < a.right && a.top + rounding < b.bottom &&
         b.top + rounding < a.bottom;
}

}  // namespace

TextExtent extent_of(const PictureText& text, const TextMeasure& measure) {
  const double width = measure.width(text.text, text.size), half_height = measure.height(text.size) / 2;
  const double start = start_of(text.anchor, width);
  if (text.upwards) {
    return {text.at.x - half_height, text.at.y - start - width, text.at.x + half_height, text.at.y - start};
  }
  return {text.at.x + start, text.at.y - half_height, text.at.x + start + width, text.at.y + half_height};
}

std::string text_fault(const Picture& picture, const TextMeasure& measure) {
  std::vector<TextExtent> extents;
  for (const PictureText& text : picture.texts) {
    const TextExtent extent = extent_of(text, measure);
    if (!inside(extent, picture)) return "\"" + text.text + "\" leaves the picture";
    for (std::size_t i = 0; i < extents.size(); ++i) {
      if (overlap(extent, extents[i])) {
        return "\"" + text.text + "\" overlaps \"" + picture.texts[i].text + "\"";
      }
    }
    extents.push_back(extent);
  }
  return {};
}

}  // namespace kov
