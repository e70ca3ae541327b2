#include "graphs/curve_labels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "graphs/legend.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Of labels of curves that are not selected; the curves' own grey is too light for texts.
constexpr Colour quiet_text{100, 100, 100};
/// Distances in pixels.
constexpr double leader_length = 18;
constexpr double label_gap = 4;

struct LabelPlace {
  const StackedCurve* curve;
  /// Of the label's middle.
  double y;
};

bool selected(const StackedCurve& curve) { return curve.state != curve_unselected; }

/// Which curves have labels, of which there is room for so many, the frontal one first.
std::vector<const StackedCurve*> labelled(const CurveStack& stack, std::size_t room) {
  static constexpr std::array<std::size_t, 7> strides = {1, 2, 5, 10, 20, 50, nyabs_max};
  for (const bool all_selected : {true, false}) {
    for (const std::size_t stride : strides) {
      std::vector<const StackedCurve*> curves;
      for (std::size_t i = 0; i < stack.curves.size(); ++i) {
        const StackedCurve& curve = stack.curves[i];
        if (i % stride == 0 || (all_selected && selected(curve))) curves.push_back(&curve);
      }
      if (curves.size() <= room) return curves;
    }
  }
  return {};
}

/// Beside the zeros of the curves, but so far apart and not above top: they are pushed up by those below
/// them, and down again by the edge.
std::vector<LabelPlace> label_places(const std::vector<const StackedCurve*>& curves, const PlotArea& area,
                                     double top, double bottom, double distance) {
  std::vector<LabelPlace> places;
  double highest = bottom;
  for (const StackedCurve* curve : curves) {
    places.push_back({curve, std::min(area.top + curve->zero, highest)});
    highest = places.back().y - distance;
  }
  double lowest = top;
  for (auto place = places.rbegin(); place != places.rend(); ++place) {
    place->y = std::max(place->y, lowest);
    lowest = place->y + distance;
  }
  return places;
}

}  // namespace

double curve_label_room(const TextMeasure& measure) {
  return leader_length + 2 * label_gap + measure.width(curve_label(lowest_int), graph_text_size);
}

void draw_curve_labels(Picture& picture, const PlotArea& area, const CurveStack& stack,
                       std::string_view y_name, const TextMeasure& measure) {
  const double right = area.left + area.width;
  const double left = right + leader_length + label_gap;
  if (left + measure.width(curve_label(lowest_int), graph_text_size) > picture.width) return;
  const double height = measure.height(graph_text_size);
  const double heading = area.top + height / 2;
  const double top = heading + height;
  const double bottom = picture.height - height / 2;
  if (bottom < top) return;
  picture.texts.push_back(
      {{left, heading}, Anchor::left, "y: " + std::string(y_name), graph_text_size, quiet_text});
  const auto room = static_cast<std::size_t>((bottom - top) / height) + 1;
  for (const auto& [curve, y] : label_places(labelled(stack, room), area, top, bottom, height)) {
    const Colour colour = selected(*curve) ? curve_colour(curve->state) : quiet_text;
    picture.lines.push_back({{{right, area.top + curve->zero}, {right + leader_length, y}}, colour});
    picture.texts.push_back({{left, y}, Anchor::left, curve_label(curve->y), graph_text_size, colour});
  }
}

}  // namespace kov
