#include "pictures/qt/picture_font.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "pictures/qt/utf8_text.h"

namespace kov {

QFont picture_font(double size) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
  // Hinting fits letters to the pixels of one screen: widths would differ from one to the next.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

double FontMeasure::width(std::string_view text, double size) const {
  return QFontMetricsF(picture_font(size)).horizontalAdvance(from_utf8(text));
}

double FontMeasure::height(double size) const { return QFontMetricsF(picture_font(size)).height(); }

}  // namespace kov
