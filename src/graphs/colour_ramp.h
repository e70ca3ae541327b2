#pragma once

#include <cstdint>
#include <string>

#include "config/cphclass.h"
#include "interact/messages.h"
#include "pictures/picture.h"

namespace kov {

/// One of the four ways from dark to white that a colour map is painted with: a place 0 ... 1 becomes a
/// colour.
class ColourRamp {
 public:
  /// mode: 0 grey, 1 red, 2 green, 3 blue and red, each up to white; others are reported when they are used.
  /// white_percent, 0 ... 100: how much light the darkest colour has.
  ColourRamp(int mode, int white_percent)
      : mode_(mode), white_offset_(white_percent * 255 / 100), span_(255 - white_offset_) {}
  /// By Graph2_color_mode and Graph2_color_white_offset.
  static ColourRamp read(const cphclass& cph);

  bool valid() const { return 0 <= mode_ && mode_ <= 3; }
  /// "clg2_from_01: invalid g2_colormode=" + the mode.
  std::string complaint() const;

  /// The colour at v, 0 ... 1. Thirds of the way belong to the lower of the bands that meet there. In an
  /// invalid mode the colour whose 24 bits are the white offset. Costs some nanoseconds.
  Colour at(double v) const;

 private:
  using Channel = std::uint8_t;

  /// Integer part of span * w, plus the white offset; w is 0 ... 1, but for rounding.
  Channel t(double w) const;

  int mode_;
  int white_offset_;
  int span_;
};

/// ColourRamp::at, which also reports an invalid mode.
Colour clg2_from_01(const ColourRamp& ramp, double v, Messages& messages);

}  // namespace kov
