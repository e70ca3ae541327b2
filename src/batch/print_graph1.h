#pragma once

#include "batch/output.h"
#include "batch/picture_size.h"
#include "workbench/pages.h"

namespace kov {

/// Shows the page with an image of this size, then writes its calculation: a heading, then a line for each
/// range and each pixel column that holds a point, cells separated by a tab.
void print_graph1(Pages& pages, const PictureSize& size, Output& output);

}  // namespace kov
