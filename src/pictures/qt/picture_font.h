#pragma once

#include <QFont>
#include <string_view>

#include "pictures/text_measure.h"

namespace kov {

/// The one font of all pictures, in pixels: the same on a page, in a file and on the clipboard.
QFont picture_font(double size);

/// Measures texts in that font, independently of any screen. Needs a QGuiApplication.
class FontMeasure final : public TextMeasure {
 public:
  double width(std::string_view text, double size) const override;
  double height(double size) const override;
};

}  // namespace kov
