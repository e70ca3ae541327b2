#pragma once

#include <string_view>

#include "graphs/axis_grid.h"
#include "graphs/curve_stack.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// Room that the labels need to the right of the plot, whatever the curves.
double curve_label_room(const TextMeasure& measure);

/// Names each curve of a stack, beside its right end, by its y. Where the ends are nearer to each other than
/// the labels are high, labels move up, and a line leads from each to the curve's zero. Where there are too
/// many curves for that, only every second, fifth, tenth ... has its label, and those that are selected.
/// Above them stands which coordinate y is.
void draw_curve_labels(Picture& picture, const PlotArea& area, const CurveStack& stack,
                       std::string_view y_name, const TextMeasure& measure);

}  // namespace kov
