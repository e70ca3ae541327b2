#include "graphs/colour_ramp.h"

#include <algorithm>
#include <array>

#include "text/integers.h"

namespace kov {

ColourRamp ColourRamp::read(const cphclass& cph) {
  // A line of a data file may widen its own range; beyond 0 ... 100 per cent there is no colour.
  const int white_percent = std::clamp(cph.kmi("Graph2_color_white_offset"), 0, 100);
  return {cph.kmi("Graph2_color_mode"), white_percent};
}

std::string ColourRamp::complaint() const { return "clg2_from_01: invalid g2_colormode=" + int_text(mode_); }

ColourRamp::Channel ColourRamp::t(double w) const {
  // 3v - 1 just above a third may be a rounding error below 0, which must not wrap.
  return static_cast<Channel>(std::clamp(static_cast<int>(span_ * w) + white_offset_, 0, 255));
}

Colour ColourRamp::at(double v) const {
  if (!valid()) return {0, 0, static_cast<Channel>(white_offset_)};
  if (mode_ == 0) return {t(v), t(v), t(v)};
  constexpr Channel full = 255;
  // The channel that rises in the first third of the way, in the second, and in the last.
  std::array<Channel, 3> rising{};
  if (v <= 1.0 / 3) {
    rising = {t(3 * v), 0, 0};
  } else if (v <= 2.0 / 3) {
    rising = {full, t(3 * v - 1), 0};
  } else {
    rising = {full, full, t(3 * v - 2)};
  }
  const auto [first, second, last] = rising;
  switch (mode_) {
    case 1:
      return {first, second, last};
    case 2:
      return {last, first, second};
    default:
      return {second, last, first};
  }
}

Colour clg2_from_01(const ColourRamp& ramp, double v, Messages& messages) {
  if (!ramp.valid()) messages.error(ramp.complaint());
  return ramp.at(v);
}

}  // namespace kov
