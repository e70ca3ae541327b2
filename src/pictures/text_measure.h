#pragma once

#include <string_view>

namespace kov {

/// How wide a text is, which only a font knows: the port that whoever lays out a picture asks.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;

  /// The width of a text of this size in pixels.
  virtual double width(std::string_view text, double size) const = 0;

  /// The height of a line of text of this size, in pixels: nothing of any text lies outside it.
  virtual double height(double size) const = 0;
};

}  // namespace kov
