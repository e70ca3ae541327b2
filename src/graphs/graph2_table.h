#pragma once

#include <functional>
#include <string>

#include "graphs/graph2_picture.h"
#include "graphs/graph_table.h"

namespace kov {

/// The numbers behind a drawing: of curves x and the value of each, with the frontal one first and 0 where
/// there is no point; of a map x, y and value of every pixel with a value.
GraphTable graph2_table(const Graph2Drawing& drawing);

/// Every pixel into which a point was summed, column by column, as lines "column row value colour" separated
/// by tabs: the row counted from y_min, the colour that of the scale as "#rrggbb".
void write_map_pixels(const Graph2Drawing& drawing,
                      const std::function<void(const std::string& line)>& write);

}  // namespace kov
