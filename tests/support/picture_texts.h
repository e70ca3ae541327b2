#pragma once

#include <string>

#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// The rectangle that a text takes, in pixels of its picture.
struct TextExtent {
  double left = 0, top = 0, right = 0, bottom = 0;
};

TextExtent extent_of(const PictureText& text, const TextMeasure& measure);

/// Empty when every text lies inside the picture and no two of them overlap; otherwise which do not.
std::string text_fault(const Picture& picture, const TextMeasure& measure);

}  // namespace kov
