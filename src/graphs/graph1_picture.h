#pragma once

#include "graphs/axis_grid.h"
#include "graphs/graph1_view.h"
#include "interact/messages.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// The image: the part of a picture of this size in which the curves are. Needs no calculation. One pixel
/// wide for each column, so what is calculated for it is drawn in its own pixels; any other calculation is
/// stretched.
PlotArea graph1_plot_area(const G1View& view, int width, int height, const TextMeasure& measure);

/// The whole picture of the page: title, legend, axes and curves, as the parameters Graph_... and Graph1_...
/// say. Only for a complete calculation with a box checked.
Picture graph1_picture(const G1View& view, int width, int height, const TextMeasure& measure,
                       Messages& messages);

}  // namespace kov
